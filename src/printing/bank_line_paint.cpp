#include "printing/bank_line_paint.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <array>

#include "shell/widgets/printed_pages.h"

namespace tallymere {
namespace {

constexpr qreal module = 0.013 * Pages::twips;  // all strokes are so wide, or twice
constexpr qreal pitch = Pages::twips / 8.0;
constexpr int rows = 9;

/// A character on its raster, the right edge of the longest row at the right of its place.
struct Shape {
  char16_t character;
  std::array<const char*, rows> raster;
};
constexpr Shape shapes[] = {
    {u'0', {"#######", "#     #", "#     #", "#     #", "#     #", "#     #", "#     #", "#     #", "#######"}},
    {u'1', {" ## ", "  # ", "  # ", "  # ", "  # ", "####", "####", "####", "####"}},
    {u'2', {"#####", "    #", "    #", "    #", "#####", "#    ", "#    ", "#    ", "#####"}},
    {u'3', {" #### ", "    # ", "    # ", "    # ", " #####", "    ##", "    ##", "    ##", "######"}},
    {u'4', {"#      ", "#      ", "#      ", "#      ", "#   ## ", "#   ## ", "#######", "    ## ", "    ## "}},
    {u'5', {"#####", "#    ", "#    ", "#    ", "#####", "    #", "    #", "    #", "#####"}},
    {u'6', {"###   ", "#     ", "#     ", "#     ", "######", "#    #", "#    #", "#    #", "######"}},
    {u'7', {"#####", "##  #", "##  #", "    #", "  ###", "  #  ", "  #  ", "  #  ", "  #  "}},
    {u'8', {" ##### ", " #   # ", " #   # ", " #   # ", "#######", "##   ##", "##   ##", "##   ##", "#######"}},
    {u'9', {"######", "#    #", "#    #", "#    #", "######", "    ##", "    ##", "    ##", "    ##"}},
    {u'\u2446',
     {"##   ###", "##   ###", "##   ###", "##      ", "##      ", "##      ", "##   ###", "##   ###", "##   ###"}},
    {u'\u2448',
     {"        ", "## ##   ", "## ##   ", "## ##   ", "## ##   ", "## ## ##", "## ## ##", "      ##", "        "}},
    {u'\u2449',
     {"        ", "        ", "        ", "## ## ##", "## ## ##", "## ## ##", "        ", "        ", "        "}},
};

/// Fonts made for it keep the digits and put the signs on letters.
QChar In_Fonts(QChar character) {
  switch (character.unicode()) {
    case u'\u2446':
      return QLatin1Char('A');
    case u'\u2448':
      return QLatin1Char('C');
    case u'\u2449':
      return QLatin1Char('D');
    default:
      return character;
  }
}

void Paint_Shape(QPainter& painter, QPointF end, QChar character) {
  for (const Shape& shape : shapes) {
    if (character != QChar(shape.character)) continue;
    const auto width = static_cast<int>(qstrlen(shape.raster[0]));
    for (int row = 0; row < rows; ++row)
      for (int from = 0, to; from < width; from = to + 1) {
        for (to = from; to < width && shape.raster[static_cast<size_t>(row)][to] == '#'; ++to) {
        }
        if (to > from)
          painter.fillRect(
              QRectF(end.x() - (width - from) * module, end.y() - (rows - row) * module, (to - from) * module, module),
              Qt::black);
      }
  }
}

}  // namespace

QString Bank_Font() {
  for (const QString& family : QFontDatabase::families())
    for (const char* word : {"MICR", "E13B", "E-13B"})
      if (family.contains(QLatin1String(word), Qt::CaseInsensitive)) return family;
  return {};
}

void Paint_Bank_Line(QPainter& painter, QPointF end, const QString& line) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, false);
  const QString family = Bank_Font();
  QFont font(family);
  font.setPixelSize(qRound(rows * module));
  if (!family.isEmpty()) {
    const qreal height = QFontMetricsF(font).tightBoundingRect(QStringLiteral("0")).height();
    if (height > 0) font.setPixelSize(qRound(rows * module * font.pixelSize() / height));
  }
  painter.setFont(font);
  painter.setPen(Qt::black);
  for (qsizetype at = 0; at < line.size(); ++at) {
    const QPointF right = end - QPointF(static_cast<qreal>(line.size() - 1 - at) * pitch, 0);
    if (family.isEmpty())
      Paint_Shape(painter, right, line[at]);
    else
      painter.drawText(right - QPointF(QFontMetricsF(font).horizontalAdvance(In_Fonts(line[at])), 0),
                       QString(In_Fonts(line[at])));
  }
  painter.restore();
}

}  // namespace tallymere
