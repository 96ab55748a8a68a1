#include "reports/frame/report_paint.h"

#include <QPainter>
#include <algorithm>

#include "reports/frame/widest_texts.h"
#include "shell/widgets/Form.h"

namespace tallymere {

namespace {

using Kind = ReportColumn::Kind;

constexpr qreal side = 900, top = 720, bottom = 900;  ///< margins; the top one is half an inch
constexpr qreal below_heading = 260;
constexpr qreal pad = Page_Columns::pad;
constexpr int most_lines = 12;  ///< of one cell

const QColor ink(20, 20, 20), soft_ink(90, 90, 90), hairline(222, 226, 228);

qreal Room_On(const QPageLayout& page) { return page.fullRect(QPageLayout::Inch).width() * Pages::twips - 2 * side; }

bool Is_Bold(std::string_view style) { return style == "Bold" || style == "sBold"; }

QPen Pen(const QColor& color, qreal width) { return QPen(color, width, Qt::SolidLine, Qt::FlatCap); }

void Use(QPainter& painter, const Print_Fonts::Look& look, const QColor& color) {
  painter.setFont(look.font);
  painter.setPen(color);
}

/// Between words, and within one only where it is too long for the room.
int Wrapping(const QFontMetricsF& metrics, const QString& text, qreal room) {
  for (const QString& word : text.simplified().split(QLatin1Char(' ')))
    if (metrics.horizontalAdvance(word) > room) return Qt::TextWrapAnywhere;
  return Qt::TextWordWrap;
}

bool Is_One_Line(const QFontMetricsF& metrics, const QString& text, qreal room) {
  if (text.contains(QLatin1Char('\n'))) return false;
  const bool is_short = static_cast<qreal>(text.size()) * metrics.horizontalAdvance(QLatin1Char('W')) <= room;
  return is_short || metrics.horizontalAdvance(text) <= room;
}

}  // namespace

Report_Pages::Report_Pages(const ReportTable& table, const QPageLayout& page)
    : Pages(page), table_(table), columns_(Fit_Columns(table, Room_On(page))), fonts_(columns_.scale) {
  label_column_ = Label_Column(table);
  is_list_ = columns_.panels.front().size() > 4;
  if (table.rows() > 0 && is_total(table.rows() - 1)) grand_total_ = table.rows() - 1;
  heads_height_ = heads_height();
  decimals_ = Most_Decimals(table_);
  part_into_pages();
}

int Report_Pages::count() const { return static_cast<int>(first_rows_.size() * columns_.panels.size()); }

// --- measuring

bool Report_Pages::is_total(int row) const {
  if (!Is_Bold(table_.style(row))) return false;
  for (size_t column = 0; column < table_.columns.size(); ++column)
    if (table_.columns[column].kind == Kind::Money && !table_.value(row, static_cast<int>(column)).blank()) return true;
  return false;
}

bool Report_Pages::is_head(int row) const { return Is_Bold(table_.style(row)) && !is_total(row); }

/// The width of a cell; a label has that of the empty cells after it too.
qreal Report_Pages::room_of(const Panel& panel, size_t at, int row) const {
  const int column = panel[at];
  qreal room = columns_.widths[static_cast<size_t>(column)] - 2 * pad;
  if (column != label_column_) return room;
  const int end = column + Label_Span(table_, row);
  for (size_t next = at + 1; next < panel.size() && panel[next] < end; ++next)
    room += columns_.widths[static_cast<size_t>(panel[next])];
  return room;
}

qreal Report_Pages::lines_of(int row, int column, qreal room) const {
  if (table_.columns[static_cast<size_t>(column)].kind != Kind::Text) return 1;
  const QString text = qt(table_.for_the_eye(row, column));
  const QFontMetricsF& metrics = fonts_.of(table_.style(row, column)).metrics;
  if (Is_One_Line(metrics, text, room)) return 1;
  const qreal height = metrics.boundingRect(QRectF(0, 0, room, 1e6), Wrapping(metrics, text, room), text).height();
  return std::clamp(std::round(height / metrics.lineSpacing()), 1.0, qreal{most_lines});
}

qreal Report_Pages::row_height(int row) const {
  const Print_Fonts::Look& look = fonts_.of(table_.style(row));
  if (table_.is_spacer(row)) return look.row_height() * 0.6;
  qreal lines = 1;
  for (const Panel& panel : columns_.panels)
    for (size_t at = 0; at < panel.size(); ++at)
      lines = std::max(lines, lines_of(row, panel[at], room_of(panel, at, row)));
  return look.row_height() + (lines - 1) * look.metrics.lineSpacing() + lead(row);
}

/// A head keeps its distance from what stands above it.
qreal Report_Pages::lead(int row) const {
  const bool apart = row == 0 || table_.is_spacer(row - 1) || !is_head(row);
  return apart ? 0 : fonts_.of(table_.style(row)).row_height() * 0.5;
}

qreal Report_Pages::heading_height(bool first_page) const {
  if (!first_page) return fonts_.edge().row_height() + below_heading / 2;
  return fonts_.title().row_height() + fonts_.company().row_height() + fonts_.period().row_height() + below_heading;
}

qreal Report_Pages::groups_height() const { return table_.groups.empty() ? 0 : fonts_.heads().row_height() + 40; }

qreal Report_Pages::heads_height() const {
  const Print_Fonts::Look& look = fonts_.heads();
  qreal height = look.metrics.lineSpacing();
  bool any = false;
  for (const Panel& panel : columns_.panels)
    for (const int column : panel) {
      const QString caption = qt(table_.columns[static_cast<size_t>(column)].caption);
      const qreal room = columns_.widths[static_cast<size_t>(column)] - 2 * pad;
      any = any || !caption.trimmed().isEmpty();
      const QRectF place(0, 0, room, 1e6);
      height = std::max(height, look.metrics.boundingRect(place, Qt::TextWordWrap, caption).height());
    }
  return any ? height + 120 : 60;
}

/// A head keeps to what it heads, a total to the last of what it adds up.
int Report_Pages::first_of_next(int start, int row) const {
  int first = row;
  if (is_total(first) && first - 1 > start) --first;
  while (first - 1 > start && is_head(first - 1)) --first;
  return first > start ? first : row;
}

void Report_Pages::part_into_pages() {
  const qreal end = size().height() - bottom;
  const auto begin_page = [&](int row) {
    first_rows_.push_back(row);
    return top + heading_height(first_rows_.size() == 1) + groups_height() + heads_height_;
  };
  qreal y = begin_page(0);
  for (int row = 0; row < table_.rows(); ++row) {
    const qreal height = row_height(row);
    if (y + height <= end || row == first_rows_.back()) {
      y += height;
      continue;
    }
    int next = first_of_next(first_rows_.back(), row);
    while (next < table_.rows() - 1 && table_.is_spacer(next)) ++next;
    y = begin_page(next);
    row = next - 1;
  }
}

// --- painting

void Report_Pages::paint(QPainter& painter, int page) const {
  const size_t panels = columns_.panels.size();
  const size_t part = static_cast<size_t>(page) / panels;
  const Panel& panel = columns_.panels[static_cast<size_t>(page) % panels];
  const int end = part + 1 < first_rows_.size() ? first_rows_[part + 1] : table_.rows();
  Place at{(size().width() - columns_.width_of(panel)) / 2, top + heading_height(part == 0)};
  paint_heading(painter, part == 0);
  paint_groups(painter, panel, at);
  at.top += groups_height();
  paint_heads(painter, panel, at);
  at.top += heads_height_;
  paint_rows(painter, panel, at, first_rows_[part], end);
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
  Use(painter, fonts_.heads(), ink);
  qreal left = at.left;
  for (const int column : panel) {
    const ReportColumn& how = table_.columns[static_cast<size_t>(column)];
    const QRectF cell(left, at.top, columns_.widths[static_cast<size_t>(column)], heads_height_ - 70);
    painter.drawText(cell.adjusted(pad, 0, -pad, 0),
                     (how.right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignBottom | Qt::TextWordWrap,
                     qt(how.caption));
    left += cell.width();
  }
  const qreal y = at.top + heads_height_ - 45;
  painter.setPen(Pen(ink, 14));
  painter.drawLine(QPointF(at.left, y), QPointF(left, y));
}

void Report_Pages::paint_rows(QPainter& painter, const Panel& panel, Place at, int first, int end) const {
  for (int row = first; row < end; ++row) {
    const qreal height = row_height(row);
    paint_row(painter, panel, at, row, height);
    at.top += height;
  }
}

void Report_Pages::paint_row(QPainter& painter, const Panel& panel, Place at, int row, qreal height) const {
  if (table_.is_spacer(row)) return;
  qreal left = at.left;
  const qreal space = lead(row);
  for (size_t place = 0; place < panel.size(); ++place) {
    const int column = panel[place];
    const QRectF cell(left, at.top + space, columns_.widths[static_cast<size_t>(column)], height - space);
    paint_cell(painter, cell, room_of(panel, place, row), row, column);
    left += cell.width();
  }
  if (!is_list_ || Is_Bold(table_.style(row))) return;
  painter.setPen(Pen(hairline, 6));
  painter.drawLine(QPointF(at.left, at.top + height), QPointF(left, at.top + height));
}

void Report_Pages::paint_cell(QPainter& painter, const QRectF& cell, qreal width_of_room, int row, int column) const {
  const QString text = qt(table_.for_the_eye(row, column));
  if (text.trimmed().isEmpty()) return;
  const ReportColumn& how = table_.columns[static_cast<size_t>(column)];
  const Print_Fonts::Look& look = fonts_.of(table_.style(row, column));
  Use(painter, look, ink);
  QRectF room = cell.adjusted(pad, 0, -pad, 0);
  if (!how.right) room.setWidth(width_of_room);
  const qreal width = look.metrics.horizontalAdvance(text);
  const qreal baseline = cell.top() + look.metrics.lineSpacing() * 0.12 + look.metrics.ascent();
  if (how.kind == Kind::Text && !Is_One_Line(look.metrics, text, room.width()))
    painter.drawText(room.adjusted(0, look.metrics.lineSpacing() * 0.12, 0, 0),
                     Qt::AlignLeft | Wrapping(look.metrics, text, room.width()), text);
  else
    painter.drawText(QPointF(how.right ? room.right() - width - beyond(row, column, look) : room.left(), baseline),
                     text);
  if (how.kind == Kind::Money && Is_Bold(table_.style(row))) paint_rule(painter, cell, row);
}

/// Amounts stand point below point, though some show fractions of a cent.
qreal Report_Pages::beyond(int row, int column, const Print_Fonts::Look& look) const {
  const int most = decimals_[static_cast<size_t>(column)];
  if (most == 2) return 0;
  const store::Value value = table_.value(row, column);
  const Money* amount = std::get_if<Money>(&value.content());
  return (most - (amount ? Decimals(*amount) : 2)) * look.metrics.horizontalAdvance(QLatin1Char('0'));
}

/// As under a column of figures that is added up; the last total of all stands on a double line.
void Report_Pages::paint_rule(QPainter& painter, const QRectF& cell, int row) const {
  const auto line = [&](qreal y) {
    painter.drawLine(QPointF(cell.left() + pad, y), QPointF(cell.right() - pad / 2, y));
  };
  painter.setPen(Pen(ink, 10));
  line(cell.top() + 8);
  if (row != grand_total_) return;
  line(cell.bottom() - 12);
  line(cell.bottom() + 22);
}

void Report_Pages::paint_foot(QPainter& painter, int page) const {
  const Print_Fonts::Look& look = fonts_.edge();
  Use(painter, look, soft_ink);
  const QRectF foot(side, size().height() - bottom + 200, size().width() - 2 * side, look.row_height());
  painter.drawText(foot, Qt::AlignLeft, qt(table_.heading.basis));
  painter.drawText(foot, Qt::AlignRight, QStringLiteral("Page %1 of %2").arg(page + 1).arg(count()));
}

QPageLayout Page_For(const ReportTable& table) {
  const QPageLayout upright = Letter_Page(QPageLayout::Portrait);
  return Natural_Width(table) <= Room_On(upright) * 1.1 ? upright : Letter_Page(QPageLayout::Landscape);
}

void Write_Report_Pdf(const ReportTable& table, const std::filesystem::path& file) {
  Write_Pdf(Report_Pages(table, Page_For(table)), file, qt(table.heading.title));
}

}  // namespace tallymere
