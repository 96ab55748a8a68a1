#include "entry/journal/LedgerGrid.h"

#include <QTimer>
#include <utility>

#include "core/ledger/ledger.h"
#include "core/values/text.h"
#include "shell/drop_downs.h"

namespace tallymere {

LedgerGrid::LedgerGrid(EntryForm& window, Shell& shell_of_frame, DropDowns& lists_of_window)
    : LineGrid(window, shell_of_frame, lists_of_window) {
  grid = new SSDBGrid;
  grid->setObjectName(QStringLiteral("grdLedger"));
  grid->setAccessibleName(QStringLiteral("Debits and credits"));
  grid->set_columns({choice("Category", lists.drpExpenseList, EntryNum), amount("Credit", 14), amount("Debit", 14),
                     text("Memo"), choice("Name", lists.drpCustomers), choice("Class", lists.drpClass),
                     hidden("EntryNum"), hidden("Cleared"), hidden("Kept")});
  grid->set_read_only(false);
  grid->set_new_line(true);
  grid->set_delete(true);
  grid->set_empty_hint(QStringLiteral("Choose a category to debit or credit."));
  add_new_classes(Class);
  connect(grid, &SSDBGrid::BeforeColUpdate, this, &LedgerGrid::check_amount);
  connect(grid, &SSDBGrid::BeforeUpdate, this, &LedgerGrid::check_category);
  on(&SSDBGrid::RowColChange, "grdLedger_RowColChange", [this](int, int) { propose(); });
  on(&SSDBGrid::AfterDelete, "grdLedger_AfterDelete", [this] {
    proposed_ = -1;
    tell();
  });
  on(&SSDBGrid::AfterColUpdate, "grdLedger_AfterColUpdate", [this](int row, int column) {
    if (column == Category && grid->text(row, EntryNum).empty() && !grid->text(row, Category).empty()) {
      typed_in_ = row;
      later("grdLedger_AfterColUpdate", [this] { new_category(); });
    }
    tell();
  });
}

// --- lines and cells -----------------------------------------------------------------------------

void LedgerGrid::show(const std::vector<LedgerLine>& lines) {
  proposed_ = typed_in_ = -1;
  forget();
  const SSDBGrid::Fill fill(*grid);
  grid->RemoveAll();
  for (const LedgerLine& line : lines)
    grid->AddValues({line.Category, line.Credit, line.Debit, line.Memo, line.Name, line.Class, line.CatID, line.Cleared,
                     keep(line.kept)});
  grid->set_cell(0, Category);
  tell();
}

LedgerLine LedgerGrid::line(int row) const {
  const KeptRow before = kept(grid->text(row, Kept));
  return {.Category = grid->text(row, Category),
          .Credit = Money_At(*grid, row, Credit),
          .Debit = Money_At(*grid, row, Debit),
          .Memo = grid->text(row, Memo),
          .Name = grid->text(row, Name),
          .Class = grid->text(row, Class),
          .CatID = grid->text(row, EntryNum),
          .Cleared = before && before->Cleared,
          .kept = before};
}

std::vector<LedgerLine> LedgerGrid::read() const {
  std::vector<LedgerLine> lines;
  for (int row = 0; row < grid->rows(); ++row)
    if (!is_proposal(row)) lines.push_back(line(row));
  return lines;
}

bool LedgerGrid::is_proposal(int row) const {
  if (row != proposed_) return false;
  const LedgerLine proposed = line(row);
  return proposed.Category.empty() && proposed.Memo.empty() && proposed.Name.empty() && proposed.Class.empty();
}

// --- while lines are typed -----------------------------------------------------------------------

void LedgerGrid::later(const char* procedure, std::function<void()> work) {
  QTimer::singleShot(0, this, [this, procedure, work = std::move(work)] { form.guard(procedure, work); });
}

void LedgerGrid::check_amount(int row, int column, const std::string& typed, bool& cancel) {
  if (column != Credit && column != Debit) return;
  if (row == proposed_) proposed_ = -1;  // it is the user's now
  if (trim(typed).empty() || Money::parse(typed)) return;
  cancel = true;
  if (row < grid->rows()) grid->set_text(row, column, "");
  later("grdLedger_BeforeColUpdate", [this] {
    session.prompts.box({"Please Enter a Dollar Value.", "Value Error", Icon::Critical});
  });
}

void LedgerGrid::check_category(int row, bool& cancel) {
  const LedgerLine left = line(row);
  if (!left.Category.empty() || (!left.Credit && !left.Debit)) return;
  cancel = true;
  later("grdLedger_BeforeUpdate", [this, row] {
    session.prompts.box({"Please Enter a Categorry for each entry line", "No Category", Icon::Information});
    grid->set_cell(row, Category);
  });
}

/// A new line below lines that are off balance comes up with what balances them.
void LedgerGrid::propose() {
  if (!grid->on_new_line() || (proposed_ >= 0 && is_proposal(proposed_))) return;
  const Money off = Off_Balance(read());
  if (off.is_zero()) return;
  proposed_ = grid->rows();
  const int column = grid->Col();
  grid->set_value(proposed_, off.is_negative() ? Debit : Credit, off.abs());
  grid->set_cell(proposed_, column);
  tell();
}

void LedgerGrid::new_category() {
  const int row = std::exchange(typed_in_, -1);
  const std::string name = grid->text(row, Category);
  if (name.empty() || !grid->text(row, EntryNum).empty()) return;
  const std::string id = category_or_new(name);
  if (id.empty()) return;
  grid->set_text(row, Category, Category_Name(session, id));
  grid->set_text(row, EntryNum, id);
}

bool LedgerGrid::settle() {
  const bool left = grid->commit();
  if (typed_in_ >= 0) new_category();
  return left;
}

}  // namespace tallymere
