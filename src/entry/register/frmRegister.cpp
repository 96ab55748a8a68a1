#include "entry/register/frmRegister.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QTimer>
#include <utility>

#include "core/ledger/balances.h"
#include "core/ledger/ledger.h"
#include "core/values/text.h"
#include "entry/document/EntryForm.h"
#include "lists/categories.h"
#include "lists/small_lists.h"
#include "shell/drop_downs.h"
#include "shell/widgets/QuillbrookDatePick.h"

namespace tallymere {

namespace column = register_column;

namespace {

/// What the cells of a line and of the entry behind it have in common.
struct TextCell {
  int column;
  std::string RegisterEntry::*field;
};
constexpr TextCell text_cells[] = {
    {column::Num, &RegisterEntry::Number},        {column::Payee, &RegisterEntry::Name},
    {column::Category, &RegisterEntry::Category}, {column::Memo, &RegisterEntry::Memo},
    {column::Class, &RegisterEntry::Class},       {column::CatID, &RegisterEntry::CatID}};

/// Other windows write texts of several lines; a cell shows them in one.
std::string one_line(const std::string& text) {
  return replace_all(replace_all(replace_all(text, "\r", ""), "\n", " "), "\t", " ");
}

std::string text_of(const std::optional<Money>& amount) { return amount ? amount->to_text() : ""; }
std::string text_of(const std::optional<Date>& date) { return date ? date->to_text() : ""; }
std::string text_of(bool flag) { return flag ? "-1" : "0"; }

std::string cells_of_line(const RegisterLine& line) {
  if (line.TransNum == 0) return "";
  const std::string CatID = line.CatID == break_down ? "" : line.CatID;
  return join({text_of(line.Date), one_line(line.Number), one_line(line.Name), one_line(line.Category),
               one_line(line.Memo), one_line(line.Class), text_of(line.Credit), text_of(line.Cleared),
               text_of(line.Debit), line.Balance.to_text(), std::to_string(line.TransNum), CatID},
              "\t");
}

}  // namespace

// --- opening ---------------------------------------------------------------------------------------------

void frmRegister::load() {
  for (const char* table : {"Accounts", "Vendors", "Class"}) lists_->changed(table);
  show_colors();
}

void frmRegister::take(const Request& request) {
  if (register_ && register_->category().CatID == request.key) return;
  if (register_ && !let_go()) return;
  register_ = std::make_unique<Register>(session, request.key);
  show_category();
  show_lines(0);
  focus_line();
}

void frmRegister::on_changed(const std::string& table) {
  lists_->changed(table);
  if (table == "Colors") show_colors();
  if (table == "Transactions" && !telling_ && register_) reload_later();
}

void frmRegister::unloading() {
  if (!session.dbCompany) return;
  Update_Accounts(session);
  telling_ = true;
  shell.changed("Accounts");
}

// --- lines -----------------------------------------------------------------------------------------------

void frmRegister::Load_Register(int64_t return_to) {
  const Hourglass hourglass(session.prompts);
  register_ = std::make_unique<Register>(session, register_->category().CatID);
  show_lines(return_to);
}

void frmRegister::show_lines(int64_t return_to) {
  const QScopedValueRollback code(filling_, true);
  reload_due_ = false;
  const int column = return_to ? std::max(grdRegister->Col(), 0) : static_cast<int>(column::Date);
  const int count = static_cast<int>(register_->count());
  grdRegister->set_rows(count, [this](int row) { return GridRow{cells_of(row), {}}; });
  lblTotal->setText(qt(register_->lblTotal()));
  const int64_t found = return_to ? register_->Row_Of(return_to) : -1;
  const int end = Takes_New_Lines(register_->category().AccountType) ? count : count - 1;
  grdRegister->set_cell(found >= 0 ? static_cast<int>(found) : end, column);
  arrive(grdRegister->Row());
  Timer1->start();
}

void frmRegister::reload_later() {
  reload_due_ = true;
  Timer1->start();
}

/// After the grid was laid out: the current line in view, the date control on it.
void frmRegister::Timer1_Timer() {
  if (reload_due_ && is_typing()) return;  // what is typed stays; moving on comes back here
  if (reload_due_) return Load_Register(entry_.TransNum);
  if (row_ < 0) return;
  grdRegister->set_cell(row_, std::max(grdRegister->Col(), 0));
  place_floats();
  if (isAncestorOf(QApplication::focusWidget()) && !fraBreakDown->isVisible()) focus_line();
}

bool frmRegister::is_typing() const {
  return changed_ || grdRegister->editing() || (datReg->hasFocus() && datReg->isModified());
}

std::string frmRegister::cells_of(int row) {
  register_->Fill(row, 1);
  if (register_->stale() && !reload_due_) reload_later();
  return cells_of_line(register_->line(row));
}

void frmRegister::arrive(int row) {
  row_ = row;
  changed_ = payee_typed_ = false;
  hide_break_down();
  if (row >= 0 && row < register_->count())
    open_line(row);
  else
    entry_ = New_Entry(*register_);
  datReg->set_value(entry_.Date);
  place_floats();
}

/// Another user may have changed the line since it was read: then it shows what is there now.
void frmRegister::open_line(int row) {
  register_->Fill(row, 1);
  const RegisterLine line = register_->line(row);
  const auto entry = Open_Entry(session, *register_, line);
  entry_ = entry ? *entry : Entry_As_Shown(line);
  const bool as_shown = entry && Shows(line, *entry);
  if (as_shown || filling_) return;
  if (entry) show_entry();
  reload_later();
  shell.say("Another user has changed this register. It now shows what is there.");
}

void frmRegister::show_cell(int column, const std::string& text) {
  if (row_ < grdRegister->rows() && grdRegister->text(row_, column) != text) grdRegister->set_text(row_, column, text);
}

void frmRegister::show_entry() {
  for (const TextCell& cell : text_cells) show_cell(cell.column, one_line(entry_.*cell.field));
  show_cell(column::Date, text_of(entry_.Date));
  show_cell(column::Out, text_of(entry_.Credit));
  show_cell(column::Clear, text_of(entry_.Cleared));
  show_cell(column::In, text_of(entry_.Debit));
}

void frmRegister::set_changed() {
  changed_ = true;
  grdRegister->touch_row(row_);
}

// --- typing ----------------------------------------------------------------------------------------------

void frmRegister::grdRegister_RowColChange(int last_column) {
  if (filling_ || grdRegister->Row() < 0) return;
  if (last_column == column::Payee) fill_memorised();
  if (grdRegister->Row() != row_) arrive(grdRegister->Row());
  place_floats();
  if (grdRegister->Col() == column::Date && grdRegister->hasFocus()) focus_line();
  if (reload_due_) Timer1->start();
}

void frmRegister::grdRegister_AfterColUpdate(int column) {
  if (filling_) return;
  take_cell(column);
  set_changed();
  // Boxes wait until the focus has arrived where it is going.
  if (column == column::Payee) {
    payee_typed_ = entry_.is_new();
    QTimer::singleShot(0, this, [this] { guard("Check_New_Payee", [this] { Check_New_Payee(); }); });
  }
  if (column == column::Category)
    QTimer::singleShot(0, this, [this] { guard("Check_New_Payee", [this] { Check_New_Category(); }); });
}

/// A line began: it carries the date that stood over it.
void frmRegister::grdRegister_AfterInsert() {
  if (!filling_) show_cell(column::Date, text_of(entry_.Date));
  place_floats();
}

void frmRegister::grdRegister_BeforeUpdate(bool& cancel) {
  if (filling_) return;
  cancel = true;  // also when asking or recording fails
  if (settling_) return;
  fill_memorised();
  cancel = !let_go();
  if (!cancel) reload_later();
}

/// On a line that has not been begun the date waits for the rest.
void frmRegister::datReg_Change() {
  entry_.Date = datReg->maybe_value();
  if (row_ < 0 || row_ >= grdRegister->rows()) return;
  show_cell(column::Date, text_of(entry_.Date));
  set_changed();
}

void frmRegister::take_cell(int column) {
  const std::string text = grdRegister->text(row_, column);
  for (const TextCell& cell : text_cells)
    if (cell.column == column) entry_.*cell.field = text;
  if (column == column::Category) entry_.CatID = grdRegister->text(row_, column::CatID);
  if (column == column::Out || column == column::In) take_amount(column);
  if (column == column::Clear) entry_.Cleared = grdRegister->checked(row_, column);
  if (column != column::Date) return;
  entry_.Date = Date::parse(text);
  datReg->set_value(entry_.Date);
}

/// A line stands on one side: an amount on the other gives way. Text that is no amount is none.
void frmRegister::take_amount(int column) {
  const int opposite = column == column::Out ? column::In : column::Out;
  if (Money_At(*grdRegister, row_, column)) show_cell(opposite, "");
  const auto out = Money_At(*grdRegister, row_, column::Out), in = Money_At(*grdRegister, row_, column::In);
  const bool readable =
      (out || grdRegister->text(row_, column::Out).empty()) && (in || grdRegister->text(row_, column::In).empty());
  entry_.Credit = readable ? out : std::nullopt;
  entry_.Debit = readable ? in : std::nullopt;
}

void frmRegister::fill_memorised() {
  if (!std::exchange(payee_typed_, false)) return;
  Fill_Memorised(session, entry_);
  show_entry();
}

void frmRegister::Check_New_Payee() {
  const std::string name = entry_.Name;
  if (name.empty() || tallymere::Check_New_Payee(session, name)) return;
  if (shell.Ask_Window({.window = "frmNewPayee", .key = name})) lists_->changed("Vendors");
}

void frmRegister::Check_New_Category() {
  if (!entry_.CatID.empty() || entry_.Category.empty()) return;
  const auto CatID = new_category(entry_.Category, row_);
  if (!CatID) return;
  entry_.CatID = *CatID;
  entry_.Category = Category_Name(session, *CatID);
  show_entry();
}

std::optional<std::string> frmRegister::new_category(const std::string& name, int row) {
  const auto unknown = tallymere::Check_New_Payee(session, name, row);
  if (!unknown) {
    const std::string known = Category_Named(session, name);  // which the list has not heard of yet
    lists_->changed("Accounts");
    return known.empty() ? std::nullopt : std::optional(known);
  }
  const auto CatID = shell.Ask_Window({.window = "frmModAccount",
                                       .key = unknown->AccountName,
                                       .number = static_cast<int64_t>(AccountMode::FromRegister)});
  if (CatID) lists_->changed("Accounts");
  return CatID;
}

}  // namespace tallymere
