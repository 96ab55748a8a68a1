#include "reports/frame/page_columns_paint.h"

#include <algorithm>
#include <limits>
#include <numeric>

#include "core/values/text.h"
#include "reports/frame/squeeze.h"
#include "reports/frame/widest_texts.h"
#include "reports/frame/wrapped_text.h"
#include "shell/widgets/Form.h"

namespace tallymere {

namespace {

using Kind = ReportColumn::Kind;
using Widths = std::vector<qreal>;

constexpr qreal widest_text = 3600;    ///< no sheet is turned for texts beyond it
constexpr qreal widest_label = 5200;   ///< the same for the first column
constexpr qreal narrowest_text = 900;  ///< a text column is not squeezed below it
constexpr qreal longest_word = 2400;
constexpr qreal word_slack = 1.1;  ///< which word is the widest was found without a font
constexpr qreal widest_caption = 1300;
constexpr qreal smallest_print = 0.78;
constexpr qreal most_spread = 1.35;
constexpr qreal least_share = 0.62;  ///< of the page's width, however little there is to show
constexpr int rows_measured = 1500;  ///< at most about so many, to find where texts wrap least
constexpr qreal many_spared = 0.88;  ///< what remains of the lines where smaller print spares many

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

  /// Labels that ran on over columns which go then need room of their own.
  void leave_out_empty() {
    const qreal labels = labels_width();
    for (size_t column = 0; column < texts_.size(); ++column) {
      if (is_label(column) && labels > 0) {
        natural[column] = std::max(natural[column], std::min(labels + around, widest_text));
        least[column] = std::min(std::max(least[column], narrowest_text), natural[column]);
      } else if (texts_[column].empty()) {
        natural[column] = least[column] = 0;
      }
    }
  }

  /// The natural widths as far as they are no long texts.
  qreal modest_width() const {
    qreal sum = 0;
    for (size_t column = 0; column < natural.size(); ++column)
      sum +=
          is_text(column) ? std::min(natural[column], is_label(column) ? widest_label : widest_text) : natural[column];
    return sum;
  }

  /// What the texts of some rows would take, spread over the table.
  std::vector<Column_Demand> demands() const {
    std::vector<Column_Demand> columns;
    for (size_t column = 0; column < natural.size(); ++column)
      columns.push_back({natural[column], least[column], is_text(column) ? texts_of(column) : std::vector<double>()});
    return columns;
  }
  int rows_looked_at() const { return table_.rows() / step() + 1; }

  Widths natural, least;

 private:
  bool is_shown(size_t column) const { return table_.columns[column].kind != Kind::Margin; }
  bool is_text(size_t column) const { return table_.columns[column].kind == Kind::Text; }
  bool is_label(size_t column) const { return static_cast<int>(column) == table_.label_column(); }
  int step() const { return std::max(table_.rows() / rows_measured, 1); }

  qreal labels_width() const {
    const int label = table_.label_column();
    qreal width = 0;
    for (int row = 0; label >= 0 && row < table_.rows(); row += step())
      width =
          std::max(width, fonts_.of(table_.style(row, label)).metrics.horizontalAdvance(qt(table_.text(row, label))));
    return width;
  }

  std::vector<double> texts_of(size_t column) const {
    std::vector<double> widths;
    for (int row = 0; row < table_.rows(); row += step()) {
      const int at = static_cast<int>(column);
      if (table_.value(row, at).blank() || (is_label(column) && Label_Span(table_, row) > 1)) continue;
      const QFontMetricsF& metrics = fonts_.of(table_.style(row, at)).metrics;
      qreal width = 0;
      for (const std::string& line : split(table_.for_the_eye(row, at), "\n"))
        width = std::max(width, metrics.horizontalAdvance(qt(line)));
      widths.push_back(width + around);
    }
    return widths;
  }

  qreal natural_of(size_t column) const {
    qreal width = std::max(caption_width(column), is_text(column) ? word_width(column) : 0);
    for (const StyledText& text : texts_[column])
      width = std::max(width, fonts_.of(text.style).metrics.horizontalAdvance(qt(text.text)));
    return width + around;
  }
  /// Texts wrap between words; only a word beyond all measure is broken.
  qreal least_of(size_t column) const {
    const qreal width = std::max(word_width(column), caption_width(column)) + around;
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
    for (std::string_view part : Words(table_.columns[column].caption))
      word = std::max(word, fonts_.heads().metrics.horizontalAdvance(qt(std::string(part))));
    return std::max(word, std::min(whole, widest_caption));
  }

  const qreal around = 2 * Page_Columns().pad() + 20;

  const ReportTable& table_;
  std::vector<std::vector<StyledText>> texts_;
  Print_Fonts fonts_{1};
};

Widths Times(Widths widths, qreal factor) {
  for (qreal& width : widths) width *= factor;
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

/// Texts wrap. Where there is no room still, or where it spares many lines, the print shrinks as far as it stays
/// readable.
bool Fits_Squeezed(const Measure& measure, qreal room, Page_Columns& columns) {
  const std::vector<Column_Demand> demands = measure.demands();
  const qreal least = Sum(measure.least);
  qreal lines = std::numeric_limits<qreal>::infinity();
  for (const qreal scale : {qreal{1}, qreal{0.92}, qreal{0.85}, smallest_print}) {
    if (least * scale > room) continue;
    const Squeezed_Columns squeezed = Squeeze(demands, room / scale);
    const qreal now = measure.rows_looked_at() + squeezed.more_lines;
    if (now > lines * many_spared) continue;
    lines = now;
    columns.scale = scale;
    columns.widths = Times(squeezed.widths, scale);
  }
  return lines < std::numeric_limits<qreal>::infinity();
}

bool Fits_Whole(const Measure& measure, qreal room, Page_Columns& columns) {
  const qreal natural = Sum(measure.natural);
  if (natural <= room) {
    const qreal wanted = std::max(most_spread, least_share * room / std::max(natural, qreal{1}));
    columns.widths = Times(measure.natural, std::min(room / std::max(natural, qreal{1}), wanted));
  } else if (Sum(measure.least) * smallest_print > room || !Fits_Squeezed(measure, room, columns)) {
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

std::vector<int> Page_Columns::shown() const { return Shown(widths); }

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

qreal Modest_Width(const ReportTable& table) { return Measure(table).modest_width(); }

}  // namespace tallymere
