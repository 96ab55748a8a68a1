#include "reports/frame/print_fonts_paint.h"

#include <QPainter>
#include <algorithm>

#include "shell/widgets/printed_pages.h"

namespace tallymere {

namespace {

constexpr int twips_to_the_point = 20;

struct Row {
  const char* style;
  double points;
  bool bold, underline;
  bool scaled;  ///< shrinks with a table that is too wide; what stands around it does not
};
constexpr Row rows[] = {
    {"", 9.5, false, false, true},     {"Bold", 10, true, false, true},        {"sBold", 9.5, true, false, true},
    {"Small", 9, false, false, true},  {"Underline", 9.5, false, true, true},  {"heads", 8.5, true, false, true},
    {"title", 18, true, false, false}, {"company", 11.5, false, false, false}, {"period", 10, false, false, false},
    {"edge", 8, false, false, false},
};

QFont Font_Of(const QFont& family, const Row& row, qreal scale) {
  QFont font = family;
  font.setPixelSize(static_cast<int>(row.points * twips_to_the_point * (row.scaled ? scale : 1)));
  font.setBold(row.bold);
  font.setUnderline(row.underline);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

}  // namespace

Print_Fonts::Print_Fonts(qreal scale) {
  const QFont family = Paper_Font();
  for (const Row& row : rows) {
    const QFont font = Font_Of(family, row, scale);
    looks_.emplace(row.style, Look{font, QFontMetricsF(font)});
  }
}

const Print_Fonts::Look& Print_Fonts::of(std::string_view style) const {
  const auto found = looks_.find(style);
  return found == looks_.end() ? looks_.find("")->second : found->second;
}

void Write_Line(QPainter& painter, const QRectF& line, int align, const Print_Fonts::Look& look, const QString& text) {
  constexpr qreal smallest = 0.6;
  QFont font = look.font;
  const qreal needed = look.metrics.horizontalAdvance(text);
  if (needed > line.width())
    font.setPixelSize(static_cast<int>(font.pixelSize() * std::max(line.width() / needed, smallest)));
  painter.setFont(font);
  painter.drawText(line, align | Qt::TextSingleLine,
                   QFontMetricsF(font).elidedText(text, Qt::ElideRight, line.width()));
}

}  // namespace tallymere
