#include "reports/frame/report_paint.h"

#include <QPainter>
#include <algorithm>

#include "shell/widgets/Form.h"

namespace tallymere {

namespace {

using Kind = ReportColumn::Kind;

constexpr qreal side = Sheet::side, top = Sheet::top;

const QColor ink(20, 20, 20), soft_ink(90, 90, 90), hairline(222, 226, 228);

QPen Pen(const QColor& color, qreal width) { return QPen(color, width, Qt::SolidLine, Qt::FlatCap); }

void Use(QPainter& painter, const Print_Fonts::Look& look, const QColor& color) {
  painter.setFont(look.font);
  painter.setPen(color);
}

/// Lines one below the other, the first one's baseline as given.
void Write_Lines(QPainter& painter, const Print_Fonts::Look& look, const std::vector<std::string>& lines,
                 const QRectF& room, bool right, qreal baseline) {
  for (const std::string& line : lines) {
    const QString text = qt(line);
    painter.drawText(QPointF(right ? room.right() - look.metrics.horizontalAdvance(text) : room.left(), baseline),
                     text);
    baseline += look.metrics.lineSpacing();
  }
}

}  // namespace

Report_Pages::Report_Pages(const ReportTable& table, const QPageLayout& page)
    : Pages(page), table_(table), columns_(Fit_Columns(table, Sheet::room_on(page))), fonts_(columns_.scale) {
  label_column_ = table.label_column();
  is_list_ = columns_.panels.front().size() > 4;
  measure();
}

int Report_Pages::count() const { return static_cast<int>(starts_.size() * columns_.panels.size()); }

void Report_Pages::paint(QPainter& painter, int page) const {
  const size_t panels = columns_.panels.size();
  const size_t part = static_cast<size_t>(page) / panels;
  const Panel& panel = columns_.panels[static_cast<size_t>(page) % panels];
  const int end = part + 1 < starts_.size() ? starts_[part + 1].row : table_.rows();
  Place at{(size().width() - columns_.width_of(panel)) / 2, top + heading_height(part == 0)};
  paint_heading(painter, part == 0);
  paint_groups(painter, panel, at);
  at.top += groups_height();
  paint_heads(painter, panel, at);
  at.top += heads_height_;
  if (const std::string& continued = starts_[part].continued; !continued.empty()) {
    paint_continued(painter, continued, {at.left, at.top, columns_.width_of(panel), continued_height()});
    at.top += continued_height();
  }
  paint_rows(painter, panel, at, starts_[part].row, end);
  paint_foot(painter, page);
}

void Report_Pages::paint_heading(QPainter& painter, bool first_page) const {
  const ReportHeading& heading = table_.heading;
  QRectF line(side, top, size().width() - 2 * side, 0);
  const auto write = [&](const Print_Fonts::Look& look, const QString& text, const QColor& color) {
    line.setHeight(look.row_height());
    Use(painter, look, color);
    Write_Line(painter, line, Qt::AlignHCenter | Qt::AlignTop, look, text);
    line.translate(0, line.height());
  };
  if (!first_page)
    return write(fonts_.edge(), qt(heading.title + "   " + heading.company + "   " + heading.period), soft_ink);
  write(fonts_.title(), qt(heading.title), ink);
  write(fonts_.company(), qt(heading.company), ink);
  write(fonts_.period(), qt(heading.period), soft_ink);
}

void Report_Pages::paint_groups(QPainter& painter, const Panel& panel, Place at) const {
  const qreal pad = columns_.pad();
  Use(painter, fonts_.heads(), ink);
  for (const ReportGroup& group : table_.groups) {
    QRectF place(0, at.top, 0, fonts_.heads().row_height());
    qreal left = at.left;
    for (const int column : panel) {
      const qreal width = columns_.widths[static_cast<size_t>(column)];
      if (column >= group.first && column < group.first + group.count) {
        if (place.width() == 0) place.setLeft(left), place.setWidth(0);
        place.setRight(left + width);
      }
      left += width;
    }
    if (place.width() <= 0) continue;
    painter.drawText(place, Qt::AlignCenter, qt(group.caption));
    painter.setPen(Pen(soft_ink, 8));
    painter.drawLine(QPointF(place.left() + pad, place.bottom()), QPointF(place.right() - pad, place.bottom()));
    painter.setPen(ink);
  }
}

void Report_Pages::paint_heads(QPainter& painter, const Panel& panel, Place at) const {
  const qreal pad = columns_.pad();
  const Print_Fonts::Look& look = fonts_.heads();
  Use(painter, look, ink);
  qreal left = at.left;
  for (const int column : panel) {
    const QRectF cell(left, at.top, width_of(column), heads_height_ - 70);
    const std::vector<std::string> lines = caption_lines(column);
    const qreal last = cell.bottom() - look.metrics.descent();
    Write_Lines(painter, look, lines, cell.adjusted(pad, 0, -pad, 0),
                table_.columns[static_cast<size_t>(column)].is_right(),
                last - static_cast<qreal>(lines.size() - 1) * look.metrics.lineSpacing());
    left += cell.width();
  }
  const qreal y = at.top + heads_height_ - 45;
  painter.setPen(Pen(ink, 14));
  painter.drawLine(QPointF(at.left, y), QPointF(left, y));
}

void Report_Pages::paint_continued(QPainter& painter, const std::string& text, const QRectF& line) const {
  const qreal pad = columns_.pad();
  Use(painter, fonts_.of("sBold"), soft_ink);
  Write_Line(painter, line.adjusted(pad, 0, -pad, 0), Qt::AlignLeft | Qt::AlignVCenter, fonts_.of("sBold"), qt(text));
}

void Report_Pages::paint_rows(QPainter& painter, const Panel& panel, Place at, int first, int end) const {
  for (int row = first; row < end; ++row) {
    paint_row(painter, panel, at, row);
    at.top += heights_[static_cast<size_t>(row)];
  }
}

void Report_Pages::paint_row(QPainter& painter, const Panel& panel, Place at, int row) const {
  if (table_.is_spacer(row)) return;
  qreal left = at.left;
  const qreal space = lead(row), height = heights_[static_cast<size_t>(row)];
  for (size_t place = 0; place < panel.size(); ++place) {
    const QRectF cell(left, at.top + space, width_of(panel[place]), height - space);
    paint_cell(painter, cell, room_of(panel, place, row), row, panel[place]);
    left += cell.width();
  }
  if (!is_list_ || table_.role(row) == Role::Head || table_.role(row) == Role::Total) return;
  painter.setPen(Pen(hairline, 6));
  painter.drawLine(QPointF(at.left, at.top + height), QPointF(left, at.top + height));
}

void Report_Pages::paint_cell(QPainter& painter, const QRectF& cell, qreal room, int row, int column) const {
  const qreal pad = columns_.pad();
  const std::vector<std::string> lines = lines_of(row, column, room);
  if (lines.size() == 1 && lines.front().empty()) return;
  const ReportColumn& how = table_.columns[static_cast<size_t>(column)];
  const Print_Fonts::Look& look = fonts_.of(table_.style(row, column));
  Use(painter, look, ink);
  Write_Lines(painter, look, lines, cell.adjusted(pad, 0, -pad, 0), how.is_right(),
              cell.top() + look.metrics.lineSpacing() * 0.12 + look.metrics.ascent());
  const bool sums = table_.role(row) == Role::Total || table_.role(row) == Role::Grand_Total;
  if (how.kind == Kind::Money && sums) paint_rule(painter, cell, row);
}

/// As under a column of figures that is added up; a grand total stands on a double line.
void Report_Pages::paint_rule(QPainter& painter, const QRectF& cell, int row) const {
  const qreal pad = columns_.pad();
  const auto line = [&](qreal y) {
    painter.drawLine(QPointF(cell.left() + pad, y), QPointF(cell.right() - pad / 2, y));
  };
  painter.setPen(Pen(ink, 10));
  line(cell.top() + 8);
  if (table_.role(row) != Role::Grand_Total) return;
  line(cell.bottom() - 12);
  line(cell.bottom() + 22);
}

void Report_Pages::paint_foot(QPainter& painter, int page) const {
  const Print_Fonts::Look& look = fonts_.edge();
  Use(painter, look, soft_ink);
  QRectF foot(side, size().height() - foot_height_ + 200, size().width() - 2 * side, look.row_height());
  const std::vector<std::string> note = note_lines();
  Write_Lines(painter, look, note, foot, false, foot.top() + look.metrics.ascent());
  foot.translate(0, static_cast<qreal>(note.size()) * look.metrics.lineSpacing());
  painter.drawText(foot, Qt::AlignLeft, qt(table_.heading.basis));
  painter.drawText(foot, Qt::AlignRight, QStringLiteral("Page %1 of %2").arg(page + 1).arg(count()));
}

void Write_Report_Pdf(const ReportTable& table, const std::filesystem::path& file) {
  Write_Pdf(Report_Pages(table, Page_For(table)), file, qt(table.heading.title));
}

}  // namespace tallymere
