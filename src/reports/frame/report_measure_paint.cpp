// How high the rows of a report are on paper, and where its pages begin.
#include <algorithm>

#include "reports/frame/report_paint.h"
#include "reports/frame/widest_texts.h"
#include "reports/frame/wrapped_text.h"
#include "shell/widgets/Form.h"

namespace tallymere {

namespace {

using Kind = ReportColumn::Kind;

constexpr size_t most_lines = 12;  ///< of one cell; more are cut, and the last one says so
constexpr size_t most_note_lines = 3;

Text_Width Measured_By(const QFontMetricsF& metrics) {
  return [&metrics](std::string_view text) {
    return metrics.horizontalAdvance(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
  };
}

qreal Lines_High(size_t lines, const Print_Fonts::Look& look) {
  return static_cast<qreal>(lines) * look.metrics.lineSpacing();
}

}  // namespace

void Report_Pages::measure() {
  for (int row = 0; row < table_.rows(); ++row) spans_.push_back(Label_Span(table_, row));
  for (int row = 0; row < table_.rows(); ++row) heights_.push_back(row_height(row));
  heads_height_ = heads_height();
  foot_height_ = Sheet::bottom + Lines_High(note_lines().size(), fonts_.edge());
  const qreal end = size().height() - foot_height_;
  starts_ = Page_Breaks(table_, heights_, {end - rows_top(true), end - rows_top(false), continued_height()});
}

/// The width of a cell; a label has that of the empty cells after it too.
qreal Report_Pages::room_of(const Panel& panel, size_t at, int row) const {
  const int column = panel[at];
  qreal room = width_of(column) - 2 * columns_.pad();
  if (column != label_column_) return room;
  const int end = column + spans_[static_cast<size_t>(row)];
  for (size_t next = at + 1; next < panel.size() && panel[next] < end; ++next) room += width_of(panel[next]);
  return room;
}

std::vector<std::string> Report_Pages::lines_of(int row, int column, qreal room) const {
  const std::string text = table_.for_the_eye(row, column);
  if (table_.columns[static_cast<size_t>(column)].kind != Kind::Text) return {text};
  const QFontMetricsF& metrics = fonts_.of(table_.style(row, column)).metrics;
  const bool is_short = static_cast<qreal>(text.size()) * metrics.horizontalAdvance(QLatin1Char('W')) <= room;
  if (is_short && text.find('\n') == text.npos) return {text};
  return Wrapped(text, room, most_lines, Measured_By(metrics));
}

qreal Report_Pages::row_height(int row) const {
  const Print_Fonts::Look& look = fonts_.of(table_.style(row));
  if (table_.is_spacer(row)) return look.row_height() * 0.6;
  size_t lines = 1;
  for (const Panel& panel : columns_.panels)
    for (size_t at = 0; at < panel.size(); ++at)
      if (table_.columns[static_cast<size_t>(panel[at])].kind == Kind::Text)
        lines = std::max(lines, lines_of(row, panel[at], room_of(panel, at, row)).size());
  return look.row_height() + Lines_High(lines - 1, look) + lead(row);
}

/// A head keeps its distance from what stands above it.
qreal Report_Pages::lead(int row) const {
  const bool apart = row == 0 || table_.is_spacer(row - 1) || table_.role(row) != Role::Head;
  return apart ? 0 : fonts_.of(table_.style(row)).row_height() * 0.5;
}

qreal Report_Pages::heading_height(bool first_page) const {
  if (!first_page) return fonts_.edge().row_height() + Sheet::below_heading / 2;
  return fonts_.title().row_height() + fonts_.company().row_height() + fonts_.period().row_height() +
         Sheet::below_heading;
}

qreal Report_Pages::rows_top(bool first_page) const {
  return Sheet::top + heading_height(first_page) + groups_height() + heads_height_;
}

qreal Report_Pages::groups_height() const { return table_.groups.empty() ? 0 : fonts_.heads().row_height() + 40; }

std::vector<std::string> Report_Pages::caption_lines(int column) const {
  const qreal room = width_of(column) - 2 * columns_.pad();
  return Wrapped(table_.columns[static_cast<size_t>(column)].caption, room, most_lines,
                 Measured_By(fonts_.heads().metrics));
}

std::vector<std::string> Report_Pages::note_lines() const {
  if (table_.heading.note.empty()) return {};
  return Wrapped(table_.heading.note, size().width() - 2 * Sheet::side, most_note_lines,
                 Measured_By(fonts_.edge().metrics));
}

qreal Report_Pages::heads_height() const {
  size_t lines = 0;
  for (const int column : columns_.shown())
    if (!table_.columns[static_cast<size_t>(column)].caption.empty())
      lines = std::max(lines, caption_lines(column).size());
  return lines == 0 ? 60 : Lines_High(lines, fonts_.heads()) + 120;
}

QPageLayout Page_For(const ReportTable& table) {
  const QPageLayout upright = Letter_Page(QPageLayout::Portrait);
  return Modest_Width(table) <= Sheet::room_on(upright) * 1.1 ? upright : Letter_Page(QPageLayout::Landscape);
}

}  // namespace tallymere
