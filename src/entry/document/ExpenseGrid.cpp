#include "entry/document/ExpenseGrid.h"

#include <utility>

#include "core/ledger/ledger.h"
#include "shell/drop_downs.h"

namespace tallymere {

ExpenseGrid::ExpenseGrid(EntryForm& window, Shell& shell_of_frame, DropDowns& lists_of_window, const QString& hint)
    : LineGrid(window, shell_of_frame, lists_of_window) {
  grid = form.line_grid(
      "grdExpense",
      {choice("Category", lists.drpExpenseList, CatID), amount("Amount", 15), text("Memo"),
       choice("Customer", lists.drpCustomers), choice("Class", lists.drpClass), hidden("CatID"), hidden("Kept")},
      hint);
  grid->setAccessibleName(QStringLiteral("Expenses"));
  on(&SSDBGrid::AfterColUpdate, "grdExpense_AfterColUpdate", [this](int row, int column) {
    if (column == Category || column == Class) form.set_Valid(grid->Valid());
    if (column == Category) offer_remainder(row);
    tell();
  });
  on(&SSDBGrid::AfterDelete, "grdExpense_AfterDelete", [this] { tell(); });
  on(&SSDBGrid::AfterUpdate, "grdExpense_RowColChange", [this](int row) { left_line_ = row; });
  // A window that opens while the focus is on its way would catch it: this waits until it has arrived.
  connect(
      grid, &SSDBGrid::AfterUpdate, this, [this] { form.guard("grdExpense_RowColChange", [this] { new_category(); }); },
      Qt::QueuedConnection);
}

void ExpenseGrid::show(const std::vector<ExpenseLine>& lines) {
  left_line_ = -1;
  forget();
  grid->RemoveAll();
  for (const ExpenseLine& line : lines)
    grid->AddValues({line.Category, line.Amount, line.Memo, line.Customer, line.Class, line.CatID, keep(line.kept)});
  grid->set_cell(0, Category);
  tell();
}

std::vector<ExpenseLine> ExpenseGrid::read() const {
  std::vector<ExpenseLine> lines;
  for (int row = 0; row < grid->rows(); ++row)
    lines.push_back({.Category = grid->text(row, Category),
                     .Amount = Money_At(*grid, row, Amount),
                     .Memo = grid->text(row, Memo),
                     .Customer = grid->text(row, Customer),
                     .Class = grid->text(row, Class),
                     .CatID = grid->text(row, CatID),
                     .kept = kept(grid->text(row, Kept))});
  return lines;
}

void ExpenseGrid::offer_remainder(int row) {
  const auto rest = left_ ? left_() : std::nullopt;
  const bool named = !grid->text(row, Category).empty();
  if (named && rest && !rest->is_zero() && grid->text(row, Amount).empty()) grid->set_value(row, Amount, *rest);
}

void ExpenseGrid::propose_remainder(Money amount) {
  std::vector<ExpenseLine> lines = read();
  const std::optional<Money> rest = Expense_Remainder(lines, amount);
  if (lines.size() == static_cast<size_t>(grid->rows()) && !rest) return;
  for (int row = grid->rows() - 1; row >= 0; --row)
    if (!Money_At(*grid, row, Amount)) grid->RemoveItem(row);
  if (rest) grid->set_value(grid->rows(), Amount, *rest);
  grid->set_cell(grid->rows() - 1, Category);
  tell();
}

void ExpenseGrid::new_category() {
  const int row = std::exchange(left_line_, -1);
  const std::string name = grid->text(row, Category);
  if (name.empty() || !grid->text(row, CatID).empty()) return;
  const std::string id = category_or_new(name);
  if (id.empty()) return;
  grid->set_text(row, Category, Category_Name(session, id));
  grid->set_text(row, CatID, id);
  form.set_Valid(true);
}

void ExpenseGrid::settle() {
  grid->commit();
  new_category();
}

void ExpenseGrid::point_at_mistake() {
  for (int row = 0; row < grid->rows(); ++row) {
    const bool named = !grid->text(row, Category).empty();
    const bool known = !grid->text(row, CatID).empty();
    if (!known && (named || Money_At(*grid, row, Amount))) return grid->set_cell(row, Category);
  }
}

}  // namespace tallymere
