#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStackedLayout>

#include "core/values/format.h"
#include "reports/frame/ReportForm.h"
#include "reports/frame/row_groups.h"
#include "reports/frame/widest_texts.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

/// The table of a report on the screen: its heading, its columns, the looks and widths of its rows.
namespace tallymere {

namespace {

constexpr int rows_looked_at = 400;  ///< for the widths of columns
constexpr int widest_column = 40 * theme::unit, narrowest_text = 8 * theme::unit;

Kind Kind_Of(const ReportColumn& column) {
  if (column.kind == ReportColumn::Kind::Money) return Kind::money;
  return column.is_right() ? Kind::number : Kind::text;
}

std::string On_One_Line(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
  return text;
}

}  // namespace

void ReportForm::Load_Standard() {
  if (building_) return;
  const QScopedValueRollback building(building_, true);
  guard("Load_Standard", [this] { build(); });
}

void ReportForm::build() {
  const Hourglass hourglass(session.prompts);
  table_ = Build_Report(session, request_);
  show_table();
  if (cmdGraph->isChecked()) draw_graph();  // only one that is on show is reckoned
  after_load();
  if (!table_.notice.empty()) session.prompts.box({table_.notice, table_.heading.title, Icon::Information});
}

void ReportForm::show_table() {
  show_heading();
  show_columns();
  cmdGoto->setVisible(table_.leads_on());
  cmdPick->setVisible(table_.offered.size() > 1);
  chkEmpty->setVisible(chkEmpty->isChecked() || Has_Empty_Groups(table_));
  grdPL->set_row_loaded([this](int row) {
    for (const auto& [column, style] : table_.own_styles(row)) grdPL->set_cell_style(row, column, style);
  });
  grdPL->set_rows(table_.rows(), [this](int row) { return GridRow{row_text(row), std::string(table_.style(row))}; });
  show_labels();
  show_widths();
}

/// Amounts go to the grid as they are: it shows their cents and sorts by all of them.
std::string ReportForm::row_text(int row) const {
  std::string text;
  for (int column = 0; column < static_cast<int>(table_.columns.size()); ++column) {
    const bool amount = grdPL->column(column).kind == Kind::money;
    text += (column ? "\t" : "") + On_One_Line(amount ? table_.text(row, column) : table_.for_the_eye(row, column));
  }
  return text;
}

/// A label runs on over the empty cells after it, as it does on paper; beyond the first rows of a long list
/// that is for heads and totals only.
void ReportForm::show_labels() {
  constexpr int most_rows = 20000;
  grdPL->clearSpans();
  const int label = table_.label_column();
  for (int row = 0; row < table_.rows(); ++row) {
    if (row >= most_rows && table_.role(row) == Role::Detail) continue;
    if (const int span = Label_Span(table_, row); span > 1) grdPL->setSpan(row, label, 1, span);
  }
}

void ReportForm::show_heading() {
  setWindowTitle(qt(table_.heading.title));
  Label6->setText(qt(table_.heading.title));
  Label5->setText(qt(table_.heading.company));
  Label4->setText(qt(table_.heading.period));
  lblNote->setText(qt(table_.heading.note));
  show_note();
  grdPL->setAccessibleDescription(qt(table_.heading.caption()));
}

/// It speaks of the columns: not below a graph.
void ReportForm::show_note() { lblNote->setVisible(!table_.heading.note.empty() && shown_->currentWidget() == grdPL); }

/// Columns as they were keep the widths the user gave them.
void ReportForm::show_columns() {
  std::vector<GridColumn> columns;
  for (const ReportColumn& column : table_.columns) {
    const bool plain = Kind_Of(column) == Kind::money && column.mask.empty();
    columns.push_back(
        {.name = qt(column.caption), .kind = Kind_Of(column), .mask = plain ? std::string(money_mask) : column.mask});
  }
  bool same = static_cast<int>(columns.size()) == grdPL->columns();
  for (int at = 0; same && at < grdPL->columns(); ++at)
    same = grdPL->column(at).name == columns[static_cast<size_t>(at)].name &&
           grdPL->column(at).kind == columns[static_cast<size_t>(at)].kind;
  if (!same) grdPL->set_columns(std::move(columns));
  std::vector<GridGroup> groups;  // which may be others over the same columns
  for (const ReportGroup& group : table_.groups) groups.push_back({qt(group.caption), group.first, group.count});
  grdPL->set_groups(std::move(groups));
  grdPL->setAlternatingRowColors(table_.columns.size() > 4);
}

/// Texts give way where room is short, amounts never.
void ReportForm::show_widths() {
  grdPL->set_frozen_columns(table_.label_column() + 1);
  std::map<std::string, QFontMetrics> looks;
  const auto width_of = [&](const StyledText& text) {
    QFont font = theme::tabular(grdPL->font());
    font.setBold(text.style == "Bold" || text.style == "sBold");
    return looks.try_emplace(text.style, font).first->second.horizontalAdvance(qt(text.text));
  };
  const auto texts = Widest_Texts(table_, rows_looked_at);
  std::vector<int> natural, least;
  for (size_t column = 0; column < texts.size(); ++column) {
    const ReportColumn& how = table_.columns[column];
    const int head = width_of({how.caption, "sBold"});
    int width = head;
    for (const StyledText& text : texts[column]) width = std::max(width, std::min(width_of(text), widest_column));
    const bool margin = how.kind == ReportColumn::Kind::Margin;
    const bool gives_way = how.kind == ReportColumn::Kind::Text && column > 1;
    natural.push_back(margin ? 2 * theme::unit : width + 3 * theme::unit);
    least.push_back(gives_way ? std::min(natural.back(), std::max(head + 3 * theme::unit, narrowest_text))
                              : natural.back());
  }
  grdPL->set_natural_widths(std::move(natural), std::move(least));
  fit_sheet();
}

}  // namespace tallymere
