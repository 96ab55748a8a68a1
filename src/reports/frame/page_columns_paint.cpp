#include "reports/frame/page_columns_paint.h"

#include <algorithm>
#include <numeric>

#include "reports/frame/widest_texts.h"
#include "shell/widgets/Form.h"

namespace tallymere {

namespace {

using Kind = ReportColumn::Kind;
using Widths = std::vector<qreal>;

constexpr qreal widest_text = 3600;    ///< beyond it texts wrap
constexpr qreal widest_label = 5200;   ///< the same for the first column
constexpr qreal narrowest_text = 900;  ///< a text column is not squeezed below it
constexpr qreal longest_word = 2400;
constexpr qreal word_slack = 1.1;  ///< which word is the widest was found without a font
constexpr qreal widest_caption = 1300;
constexpr qreal smallest_print = 0.78;
constexpr qreal most_spread = 1.35;
constexpr qreal least_share = 0.62;  ///< of the page's width, however little there is to show

qreal Sum(const Widths& widths) { return std::accumulate(widths.begin(), widths.end(), qreal{0}); }

/// The widths that columns ask for and those they can do with.
class Measure {
 public:
  explicit Measure(const ReportTable& table) : table_(table), texts_(Widest_Texts(table)) {
    for (size_t column = 0; column < table.columns.size(); ++column) {
      natural.push_back(is_shown(column) ? natural_of(column) : 0);
      least.push_back(is_text(column) ? least_of(column) : natural.back());
    }
  }

  void leave_out_empty() {
    for (size_t column = 0; column < texts_.size(); ++column)
      if (texts_[column].empty()) natural[column] = least[column] = 0;
  }

  Widths natural, least;

 private:
  bool is_shown(size_t column) const { return table_.columns[column].kind != Kind::Margin; }
  bool is_text(size_t column) const { return table_.columns[column].kind == Kind::Text; }
  bool is_first(size_t column) const {
    for (size_t before = 0; before < column; ++before)
      if (is_shown(before)) return false;
    return true;
  }

  qreal natural_of(size_t column) const {
    qreal width = std::max(caption_width(column), is_text(column) ? word_width(column) : 0);
    for (const StyledText& text : texts_[column])
      width = std::max(width, fonts_.of(text.style).metrics.horizontalAdvance(qt(text.text)));
    width += 2 * Page_Columns::pad + 20;
    if (!is_text(column)) return width;
    return std::min(width, is_first(column) ? widest_label : widest_text);
  }
  /// Texts wrap between words; only a word beyond all measure is broken.
  qreal least_of(size_t column) const {
    const qreal width = std::max(word_width(column), caption_width(column)) + 2 * Page_Columns::pad + 20;
    return std::min(natural[column], std::max(width, narrowest_text));
  }
  qreal word_width(size_t column) const {
    qreal width = 0;
    for (const StyledText& text : texts_[column])
      width = std::max(width, fonts_.of(text.style).metrics.horizontalAdvance(qt(text.word)));
    return std::min(width * word_slack, longest_word);
  }
  /// A long caption of several words may stand in two lines.
  qreal caption_width(size_t column) const {
    const QString caption = qt(table_.columns[column].caption);
    qreal whole = fonts_.heads().metrics.horizontalAdvance(caption), word = 0;
    for (const QString& part : caption.split(QLatin1Char(' ')))
      word = std::max(word, fonts_.heads().metrics.horizontalAdvance(part));
    return std::max(word, std::min(whole, widest_caption));
  }

  const ReportTable& table_;
  std::vector<std::vector<StyledText>> texts_;
  Print_Fonts fonts_{1};
};

Widths Times(Widths widths, qreal factor) {
  for (qreal& width : widths) width *= factor;
  return widths;
}

/// Some way between the least and the natural widths.
Widths Between(const Widths& least, const Widths& natural, qreal room) {
  const qreal part = (room - Sum(least)) / std::max(Sum(natural) - Sum(least), qreal{1});
  Widths widths = least;
  for (size_t at = 0; at < widths.size(); ++at) widths[at] += (natural[at] - least[at]) * part;
  return widths;
}

std::vector<int> Shown(const Widths& widths) {
  std::vector<int> shown;
  for (size_t column = 0; column < widths.size(); ++column)
    if (widths[column] > 0) shown.push_back(static_cast<int>(column));
  return shown;
}

std::vector<std::vector<int>> Parted(const Widths& widths, qreal room) {
  const std::vector<int> shown = Shown(widths);
  std::vector<std::vector<int>> panels;
  qreal used = room;
  for (const int column : shown) {
    const qreal width = widths[static_cast<size_t>(column)];
    if (used + width > room && (panels.empty() || panels.back().size() > 1)) {
      panels.push_back(panels.empty() ? std::vector<int>{} : std::vector<int>{shown.front()});
      used = panels.size() == 1 ? 0 : widths[static_cast<size_t>(shown.front())];
    }
    panels.back().push_back(column);
    used += width;
  }
  if (panels.empty()) panels.emplace_back();
  return panels;
}

bool Fits_Whole(const Measure& measure, qreal room, Page_Columns& columns) {
  const qreal natural = Sum(measure.natural), least = Sum(measure.least);
  if (natural <= room) {
    const qreal wanted = std::max(most_spread, least_share * room / std::max(natural, qreal{1}));
    columns.widths = Times(measure.natural, std::min(room / std::max(natural, qreal{1}), wanted));
  } else if (least * smallest_print <= room) {
    columns.scale = std::min(room / least, qreal{1});
    columns.widths =
        columns.scale < 1 ? Times(measure.least, columns.scale) : Between(measure.least, measure.natural, room);
  } else {
    return false;
  }
  columns.panels = {Shown(columns.widths)};
  return true;
}

}  // namespace

qreal Page_Columns::width_of(const std::vector<int>& panel) const {
  qreal width = 0;
  for (const int column : panel) width += widths[static_cast<size_t>(column)];
  return width;
}

Page_Columns Fit_Columns(const ReportTable& table, qreal room) {
  Measure measure(table);
  Page_Columns columns;
  if (Fits_Whole(measure, room, columns)) return columns;
  measure.leave_out_empty();
  if (Fits_Whole(measure, room, columns)) return columns;
  columns.scale = smallest_print;
  columns.widths = Times(measure.natural, smallest_print);
  for (qreal& width : columns.widths) width = std::min(width, room / 2);
  columns.panels = Parted(columns.widths, room);
  return columns;
}

qreal Natural_Width(const ReportTable& table) { return Sum(Measure(table).natural); }

}  // namespace tallymere
