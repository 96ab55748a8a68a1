#include "reports/frame/statement.h"

#include "core/ledger/tree_list.h"

namespace tallymere {

Statement::Statement(ReportTable& table, const CategoryTree& tree, Statement_Columns columns, std::string_view go_to,
                     const Statement_Rows* rows)
    : table_(table), tree_(tree), columns_(std::move(columns)), go_to_(go_to), rows_(rows) {}

Amounts Statement::add_section(std::string_view AccountType, Side side, int level, int level_below) {
  Amounts total;
  for (const Category* category : Top_Level_By_Name(tree_))
    if (category->AccountType == AccountType) total += add_category(*category, side, level, level_below);
  return total;
}

Amounts Statement::add_category(const Category& category, Side side, int level, int level_below) {
  Amounts total;
  add_family(category, {side, level, level_below}, true, total);
  return total;
}

void Statement::add_family(const Category& category, const Place& place, bool is_top, Amounts& total) {
  const std::string label = Indented(category.AccountName, place.level);
  if (rows_) {
    table_.add_row(Role::Group).skip(label_column).text(label);
    rows_->add_to(table_, category.CatID);
  }
  Amounts amounts = tree_.sum_family(category.CatID, columns_.own);
  for (size_t at = 0; at < columns_.columns.size(); ++at) {
    if (place.side == Side::Debit) amounts[at] = -amounts[at];
    if (is_top || columns_.counts_twice[at]) total[at] += amounts[at];
  }
  add_amounts(rows_ ? table_.add_row(Role::Subtotal) : table_.add_row(Role::Detail, To_Report(go_to_, category.CatID)),
              label, amounts);
  Load_SubAccounts(category.CatID, {place.side, place.level_below, place.level_below + 1}, total);
}

void Statement::Load_SubAccounts(const std::string& parent, const Place& place, Amounts& total) {
  if (place.level > Deepest_Level) return;
  for (const Category* child : tree_.children(parent)) add_family(*child, place, false, total);
}

void Statement::add_line(std::string_view label, const Amounts& amounts, const std::string& CatID,
                         const Statement_Rows* rows) {
  if (rows) {
    table_.add_row(Role::Group).skip(label_column).text(label);
    rows->add_to(table_, CatID);
  }
  const RowKey key = rows_ || CatID.empty() ? RowKey() : To_Report(go_to_, CatID);
  add_amounts(table_.add_row(rows ? Role::Subtotal : Role::Detail, key), label, amounts);
}

void Statement::add_total(std::string_view label, const Amounts& amounts, Role role) {
  if (!columns_.totals_apart) return add_amounts(table_.add_row(role), label, amounts);
  table_.add_row(role)
      .skip(label_column)
      .text(label)
      .skip()
      .money(amounts.columns.empty() ? Money() : amounts.columns[0]);
}

void Statement::add_amounts(ReportTable::Line line, std::string_view label, const Amounts& amounts) {
  line.skip(label_column).text(label);
  if (rows_) line.skip(Statement_Rows::amount_column - label_column - 1);
  for (size_t at = 0; at < columns_.columns.size(); ++at)
    line.money(at < amounts.columns.size() ? amounts.columns[at] : Money());
}

void Statement::add_gap() {
  if (rows_) table_.add_row(Role::Spacer);
}

std::vector<ReportColumn> Statement_Table_Columns(const Statement_Columns& columns) {
  std::vector<ReportColumn> all = {{.kind = ReportColumn::Kind::Margin}, {}};
  all.insert(all.end(), columns.columns.begin(), columns.columns.end());
  if (columns.totals_apart) all.push_back({.kind = ReportColumn::Kind::Money, .name = "Total"});
  return all;
}

}  // namespace tallymere
