#include "entry/checks/frmCheck.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <utility>

#include "core/values/format.h"
#include "core/values/text.h"
#include "lists/categories.h"
#include "lists/small_lists.h"
#include "shell/drop_downs.h"
#include "shell/widgets/AddressEdit.h"
#include "shell/widgets/MoneyEdit.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/company_color.h"
#include "shell/widgets/grid/SSDBCombo.h"

namespace tallymere {

namespace {

/// The columns of grdExpense and grdItems.
namespace expense {
enum { Category, Amount, Memo, Customer, Class, CatID };
}
namespace item {
enum { Item, Description, Quantity, Cost, Amount, Customer, Class, CatID };
}

QString text_of(double hours) { return QString::number(hours, 'g', 10); }

}  // namespace

// --- opening -------------------------------------------------------------------------------------

void frmCheck::load() {
  lists_->fill();
  lblCompany->setText(qt(session.dbCompany->value("SELECT Name FROM CompanyInfo").text()));
  on_changed("Accounts");
  on_changed("Colors");
  show_check(Open_Checks(session));
  cmbPayee->setFocus();
}

void frmCheck::take(const Request& request) {
  if (request.number == 0 || !let_go()) return;
  const auto check = tallymere::Load_Check(session, request.number);
  if (!check) return shell.say("There is no check " + std::to_string(request.number) + " any more.");
  show_check(*check);
}

void frmCheck::on_changed(const std::string& table) {
  lists_->changed(table);
  if (table == "Colors") Paint_Paper(*fraCheck, Company_Color(session, "CheckBack"));
  if (table != "Accounts") return;
  std::vector<SSDBDropDown::Item> banks;
  for (const Bank& bank : Banks(session)) banks.push_back({bank.AccountName, bank.CatID});
  cmbAccount->list().set_items(banks);
}

// --- document to screen --------------------------------------------------------------------------

void frmCheck::show_check(const Check& check) {
  check_ = check;
  show_head(check);
  show_expenses(check.expenses);
  show_items(check.items);
  show_other_kinds(check);
  set_editable(check);
  valid_ = true;
  left_line_ = -1;
  keep();
  if (check.is_new() && !cmbPayee->hasFocus()) go_to(cmbPayee);
}

void frmCheck::show_head(const Check& check) {
  txtIndex->setText(QString::number(check.TransNum));
  set_bank(check.BankID);
  cmbPayee->set_text(check.Name);
  addressed_ = check.Name;
  txtNumber->setText(qt(check.Number));
  DTPicker1->set_value(check.Date);
  txtAmount->set_amount(check.Amount);
  in_words_ = utf8(txtAmount->text());
  lblAmount->setText(qt(Check_Amount_In_Words(session.words, in_words_).words));
  txtAddress->set_text(check.Address);
  txtMemo->setText(qt(check.Memo));
}

void frmCheck::show_expenses(const std::vector<ExpenseLine>& lines) {
  grdExpense->RemoveAll();
  for (const ExpenseLine& line : lines)
    grdExpense->AddValues({line.Category, line.Amount, line.Memo, line.Customer, line.Class, line.CatID});
  grdExpense->set_cell(0, expense::Category);
}

void frmCheck::show_items(const std::vector<ItemLine>& lines) {
  grdItems->RemoveAll();
  for (const ItemLine& line : lines)
    grdItems->AddValues(
        {line.Item, line.Description, line.Quantity, line.Cost, line.Amount, line.Customer, line.Class, line.CatID});
  grdItems->set_cell(0, item::Item);
}

void frmCheck::show_other_kinds(const Check& check) {
  grdBills->RemoveAll();
  for (const PaidBill& bill : check.bills)
    grdBills->AddValues({bill.DueDate, bill.Number, bill.Vendor, bill.Amount, bill.BillDate});
  grdLiabilities->RemoveAll();
  for (const LiabilityLine& line : check.liabilities) grdLiabilities->AddValues({line.PayrollItem, line.Amount});
  lblPayPeriod->setText(qt(check.PayPeriod));
  lblHours->setText(text_of(check.Hours));
  lblPaidThrough->setText(check.PaidThrough ? qt(check.PaidThrough->to_text()) : QString());
  SSTab1->setCurrentIndex(static_cast<int>(check.Tab));
  QWidget* front = SSTab1;
  if (check.Type == "Billcheck") front = fraBill;
  if (check.Type == "Paycheck") front = fraPaycheck;
  if (check.Type == "Liabilitycheck") front = fraLiability;
  pages_->setCurrentWidget(front);
}

/// Checks that other windows wrote are changed there; here only what the check itself says.
void frmCheck::set_editable(const Check& check) {
  const CheckFields may = Editable_Fields(check);
  DTPicker1->setEnabled(may.Date);
  cmbPayee->setEnabled(may.Name);
  for (QWidget* field : {static_cast<QWidget*>(cmbAccount), static_cast<QWidget*>(txtAmount),
                         static_cast<QWidget*>(txtAddress), static_cast<QWidget*>(txtMemo)})
    field->setEnabled(may.others);
  const bool there = shell.has_window(check.has_payroll_items ? "frmPayLiabilites" : "frmPaySalesTax");
  cmdLiaEdit->setEnabled(there);
  cmdLiaEdit->setToolTip(there ? QString() : QStringLiteral("Its window is not part of this version yet."));
}

// --- screen to document --------------------------------------------------------------------------

Check frmCheck::read() const {
  Check check = check_;
  check.BankID = utf8(lblBankID->text());
  check.Date = DTPicker1->value();
  check.Number = utf8(txtNumber->text());
  check.Name = cmbPayee->text();
  check.Address = Without_Last_Line_End(txtAddress->text());
  check.Memo = utf8(txtMemo->text());
  check.Amount = txtAmount->amount();
  check.Valid = valid_;
  check.Tab = static_cast<CheckTab>(SSTab1->currentIndex());
  check.expenses = read_expenses();
  check.items = read_items();
  return check;
}

std::vector<ExpenseLine> frmCheck::read_expenses() const {
  std::vector<ExpenseLine> lines;
  for (int row = 0; row < grdExpense->rows(); ++row)
    lines.push_back({.Category = grdExpense->text(row, expense::Category),
                     .Amount = Money_At(*grdExpense, row, expense::Amount),
                     .Memo = grdExpense->text(row, expense::Memo),
                     .Customer = grdExpense->text(row, expense::Customer),
                     .Class = grdExpense->text(row, expense::Class),
                     .CatID = grdExpense->text(row, expense::CatID)});
  return lines;
}

std::vector<ItemLine> frmCheck::read_items() const {
  std::vector<ItemLine> lines;
  for (int row = 0; row < grdItems->rows(); ++row)
    lines.push_back({.Item = grdItems->text(row, item::Item),
                     .Description = grdItems->text(row, item::Description),
                     .Quantity = Number_At(*grdItems, row, item::Quantity),
                     .Cost = Money_At(*grdItems, row, item::Cost),
                     .Amount = Money_At(*grdItems, row, item::Amount),
                     .Customer = grdItems->text(row, item::Customer),
                     .Class = grdItems->text(row, item::Class),
                     .CatID = grdItems->text(row, item::CatID)});
  return lines;
}

// --- while it is filled in -----------------------------------------------------------------------

void frmCheck::set_bank(const std::string& CatID) {
  const Bank bank = Read_Bank(session, CatID);
  lblBankID->setText(qt(CatID));
  if (!cmbAccount->set_id(CatID)) cmbAccount->set_text(bank.AccountName);
  lblBalance->setText(qt(Format(bank.Balance, "$0.00")));
}

void frmCheck::cmbAccount_LostFocus() { set_bank(cmbAccount->Valid() ? cmbAccount->id() : utf8(lblBankID->text())); }

/// An address that was written by hand stays until another payee is chosen.
void frmCheck::Load_Address_Box() {
  const std::string name = cmbPayee->text();
  if (name == addressed_) return;
  addressed_ = name;
  if (!check_.is_narrow()) txtAddress->set_text(tallymere::Load_Address_Box(session, name));
  if (name.empty()) return;
  valid_ = cmbPayee->Valid();
  Check_New_Payee();
}

void frmCheck::Check_New_Payee() {
  const std::string name = cmbPayee->text();
  if (tallymere::Check_New_Payee(session, name)) return;
  if (shell.Ask_Window({.window = "frmNewPayee", .key = name})) valid_ = true;
}

/// The amount routine. false: what was typed was refused.
bool frmCheck::txtAmount_LostFocus() {
  if (check_.is_narrow()) return true;
  const CheckAmount amount = Check_Amount_In_Words(session.words, utf8(txtAmount->text()));
  txtAmount->setText(qt(amount.text));
  lblAmount->setText(qt(amount.words));
  in_words_ = amount.text;
  if (amount.fault) {
    session.prompts.box(amount.fault->box);
    go_to(txtAmount);
    return false;
  }
  if (amount.value && SSTab1->currentIndex() == static_cast<int>(CheckTab::Expenses)) propose_remainder(*amount.value);
  return true;
}

/// Lines without an amount go; what the others leave of the check is proposed on a new one.
void frmCheck::propose_remainder(Money amount) {
  std::vector<ExpenseLine> lines = read_expenses();
  const std::optional<Money> rest = Expense_Remainder(lines, amount);
  if (lines.size() == static_cast<size_t>(grdExpense->rows()) && !rest) return;
  for (int row = grdExpense->rows() - 1; row >= 0; --row)
    if (!Money_At(*grdExpense, row, expense::Amount)) grdExpense->RemoveItem(row);
  if (rest) grdExpense->set_value(grdExpense->rows(), expense::Amount, *rest);
  grdExpense->set_cell(grdExpense->rows() - 1, expense::Category);
}

void frmCheck::grdExpense_AfterColUpdate(int, int column) {
  if (column == expense::Category || column == expense::Class) valid_ = grdExpense->Valid();
}

void frmCheck::new_category() {
  const int row = std::exchange(left_line_, -1);
  const std::string name = grdExpense->text(row, expense::Category);
  if (name.empty() || !grdExpense->text(row, expense::CatID).empty()) return;
  const auto CatID = shell.Ask_Window(
      {.window = "frmModAccount", .key = name, .number = static_cast<int64_t>(AccountMode::FromCheck)});
  if (!CatID) return;
  const SSDBDropDown& categories = *lists_->drpExpenseList;
  grdExpense->set_text(row, expense::Category, categories.text(categories.find_id(*CatID)));
  grdExpense->set_text(row, expense::CatID, *CatID);
  valid_ = true;
}

void frmCheck::grdItems_AfterColUpdate(int row, int column) {
  const std::string name = grdItems->text(row, item::Item);
  if (column == item::Item) grdItems->set_text(row, item::CatID, Item_Category(session, name));
  if (column == item::Item || column == item::Class) valid_ = grdItems->Valid();
  if (column != item::Quantity && column != item::Cost) return;
  const ItemLine line = read_items()[static_cast<size_t>(row)];
  grdItems->set_value(row, item::Amount, Item_Amount(line, Item_Type(session, name)));
}

void frmCheck::go_to_lines() {
  if (!isVisible() || pages_->currentWidget() != SSTab1) return;
  SSTab1->currentWidget()->setFocus();
}

bool frmCheck::settle() {
  grdExpense->commit();
  grdItems->commit();
  new_category();
  Load_Address_Box();
  return utf8(txtAmount->text()) == in_words_ || txtAmount_LostFocus();
}

// --- saving and moving ---------------------------------------------------------------------------

bool frmCheck::enter() {
  if (!settle()) return false;
  Check check = read();
  const SaveResult result = Enter_Check(session, check);
  if (result.fault) point_at_mistake();
  if (result.written) check_ = check;
  txtIndex->setText(QString::number(check_.TransNum));
  return conclude(result);
}

/// The line that the save routine does not take: an amount without a category, or a category nobody knows.
void frmCheck::point_at_mistake() {
  for (int row = 0; row < grdExpense->rows(); ++row) {
    const bool named = !grdExpense->text(row, expense::Category).empty();
    const bool known = !grdExpense->text(row, expense::CatID).empty();
    if (!known && (named || Money_At(*grdExpense, row, expense::Amount)))
      return grdExpense->set_cell(row, expense::Category);
  }
}

void frmCheck::step(bool forward) {
  const CheckStep next = tallymere::Load_Check(session, check_.TransNum, forward);
  if (next.bounce) bounce();
  if (next.check) show_check(*next.check);
}

void frmCheck::load_again() {
  const auto check = tallymere::Load_Check(session, check_.TransNum);
  show_check(check ? *check : New_Check(session));
}

// --- commands ------------------------------------------------------------------------------------

void frmCheck::cmdDelete_Click() {
  const DeleteResult result = Delete_Check(session, check_);
  if (result.conflict) return show_conflict(*result.conflict);
  if (!result.deleted) return;
  if (result.show) show_check(*result.show);
  shell.changed("Transactions");
}

void frmCheck::cmdPrint_Click() {
  if (!save()) return;
  if (const auto fault = Cannot_Print(read())) return show_fault(*fault);
  session.prompts.box(
      {"This check is saved. Printing checks is not part of this version yet.", "Print Check", Icon::Information});
  load_again();
}

void frmCheck::cmdRepeat_Click() {
  shell.Show_Window({.window = "frmModRepeat", .key = "Check", .number = check_.TransNum, .parent = check_.BankID});
}

void frmCheck::cmdEditPayCheck_Click() {
  shell.Show_Window({.window = "frmPayCheck", .key = {}, .number = check_.TransNum});
}

void frmCheck::cmdLiaEdit_Click() {
  const char* window = check_.has_payroll_items ? "frmPayLiabilites" : "frmPaySalesTax";
  shell.Show_Window({.window = window, .key = {}, .number = check_.TransNum});
}

}  // namespace tallymere
