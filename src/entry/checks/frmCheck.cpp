#include "entry/checks/frmCheck.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>

#include "core/company/users.h"
#include "core/ledger/balances.h"
#include "core/values/format.h"
#include "core/values/text.h"
#include "entry/document/TabbedGrid.h"
#include "lists/small_lists.h"
#include "shell/drop_downs.h"
#include "shell/widgets/AddressEdit.h"
#include "shell/widgets/MoneyEdit.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/company_color.h"
#include "shell/widgets/grid/SSDBCombo.h"

namespace tallymere {

namespace {

QString text_of(double hours) { return QString::number(hours, 'g', 10); }

}  // namespace

// --- opening -------------------------------------------------------------------------------------

void frmCheck::load() {
  lists_->fill();
  lblCompany->setText(qt(session.dbCompany->value("SELECT Name FROM CompanyInfo").text()));
  on_changed("Accounts");
  on_changed("Colors");
  show(Open_Checks(session));
  cmbPayee->setFocus();
}

void frmCheck::on_changed(const std::string& table) {
  lists_->changed(table);
  if (table == "Colors") Paint_Paper(*fraCheck, Company_Color(session, "CheckBack"));
  if (table == "Accounts" || table == "Transactions") {
    Update_Accounts(session, Categories::Bank);
    show_balance();
  }
  if (table != "Accounts") return;
  std::vector<SSDBDropDown::Item> banks;
  for (const Bank& bank : Banks(session)) banks.push_back({bank.AccountName, bank.CatID});
  cmbAccount->list().set_items(banks);
}

// --- document to screen --------------------------------------------------------------------------

void frmCheck::show_document(const Check& check) {
  show_head(check);
  SSTab1->show_lines(check);
  show_other_kinds(check);
  set_editable(check);
}

void frmCheck::shown() {
  if (document_.is_new() && !cmbPayee->hasFocus()) go_to(cmbPayee);
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

void frmCheck::show_other_kinds(const Check& check) {
  grdBills->RemoveAll();
  for (const PaidBill& bill : check.bills)
    grdBills->AddValues({bill.DueDate, bill.Number, bill.Vendor, bill.Amount, bill.BillDate});
  grdLiabilities->RemoveAll();
  for (const LiabilityLine& line : check.liabilities) grdLiabilities->AddValues({line.PayrollItem, line.Amount});
  lblPayPeriod->setText(qt(check.PayPeriod));
  lblHours->setText(text_of(check.Hours));
  lblPaidThrough->setText(check.PaidThrough ? qt(check.PaidThrough->to_text()) : QString());
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
  lblLocked->setText(qt(Locked_Why(check)));
  lblLocked->setVisible(check.is_narrow());
  show_assigned();
  allow(cmdEditPayCheck, "frmPayCheck", "mnuPayroll");
  check.has_payroll_items ? allow(cmdLiaEdit, "frmPayLiabilites", "mnuPayroll")
                          : allow(cmdLiaEdit, "frmPaySalesTax", "mnuPaySalesTax");
}

/// A button to a window that is there, for those who may use the command that opens it.
void frmCheck::allow(QPushButton* button, const char* window, const char* command) {
  const bool there = shell.has_window(window), granted = May_Use(session, command);
  button->setEnabled(there && granted);
  button->setToolTip(!there     ? QStringLiteral("Its window is not part of this version yet.")
                     : !granted ? QStringLiteral("This is not among your rights.")
                                : QString());
}

// --- screen to document --------------------------------------------------------------------------

Check frmCheck::read() const {
  Check check = document_;
  check.BankID = utf8(lblBankID->text());
  check.Date = DTPicker1->value();
  check.Number = utf8(txtNumber->text());
  check.Name = cmbPayee->text();
  check.Address = Without_Last_Line_End(txtAddress->text());
  check.Memo = utf8(txtMemo->text());
  check.Amount = txtAmount->amount();
  check.Valid = Valid();
  SSTab1->read_lines(check);
  return check;
}

// --- while it is filled in -----------------------------------------------------------------------

void frmCheck::set_bank(const std::string& CatID) {
  const Bank bank = Read_Bank(session, CatID);
  lblBankID->setText(qt(CatID));
  if (!cmbAccount->set_id(CatID)) cmbAccount->set_text(bank.AccountName);
  show_balance();
}

void frmCheck::show_balance() {
  lblBalance->setText(qt(Dollar_Text(Read_Bank(session, utf8(lblBankID->text())).Balance)));
}

void frmCheck::cmbAccount_LostFocus() { set_bank(cmbAccount->Valid() ? cmbAccount->id() : utf8(lblBankID->text())); }

/// An address that was written by hand stays until another payee is chosen.
void frmCheck::Load_Address_Box() {
  const std::string name = cmbPayee->text();
  if (name == addressed_) return;
  addressed_ = name;
  if (!document_.is_narrow()) txtAddress->set_text(tallymere::Load_Address_Box(session, name));
  if (name.empty()) return;
  set_Valid(cmbPayee->Valid());
  Check_New_Payee();
}

void frmCheck::Check_New_Payee() {
  const std::string name = cmbPayee->text();
  if (tallymere::Check_New_Payee(session, name)) return;
  if (shell.Ask_Window({.window = "frmNewPayee", .key = name})) set_Valid(true);
}

/// The amount routine. false: what was typed was refused.
bool frmCheck::txtAmount_LostFocus() {
  if (document_.is_narrow()) return true;
  txtAmount->reckon();
  const CheckAmount amount = Check_Amount_In_Words(session.words, utf8(txtAmount->text()));
  txtAmount->setText(qt(amount.text));
  lblAmount->setText(qt(amount.words));
  in_words_ = amount.text;
  if (amount.fault) {
    session.prompts.box(amount.fault->box);
    go_to(txtAmount);
    return false;
  }
  if (amount.value) SSTab1->propose_remainder(*amount.value);
  return true;
}

/// What the lines have to come to; nothing where other windows wrote them.
std::optional<Money> frmCheck::amount_of_lines() const {
  return document_.is_narrow() ? std::nullopt : txtAmount->amount();
}

void frmCheck::show_assigned() { SSTab1->show_assigned(); }

bool frmCheck::settle() {
  SSTab1->settle();
  Load_Address_Box();
  return utf8(txtAmount->text()) == in_words_ || txtAmount_LostFocus();
}

void frmCheck::entered(const SaveResult& result) {
  if (result.fault) SSTab1->expenses->point_at_mistake();
  txtIndex->setText(QString::number(document_.TransNum));
}

// --- commands ------------------------------------------------------------------------------------

void frmCheck::cmdDelete_Click() { show_deleted(Delete_Check(session, document_)); }

void frmCheck::cmdPrint_Click() {
  if (!save()) return;
  if (const auto fault = Cannot_Print(read())) return show_fault(*fault);
  shell.Ask_Window({.window = "frmPrintCheck", .key = {}, .number = document_.TransNum});
  load_again();
}

void frmCheck::cmdRepeat_Click() {
  if (save()) shell.Ask_Window({.window = "frmModRepeat", .key = "Check", .number = document_.TransNum});
}

/// The window that wrote this check, with the number, bank and date as they stand here.
void frmCheck::edit_in(const char* window) {
  const Check check = read();
  if (shell.Ask_Window({.window = window,
                        .key = check.Number,
                        .number = check.TransNum,
                        .parent = check.BankID,
                        .start = check.Date}))
    load_again();
}

void frmCheck::cmdEditPayCheck_Click() { edit_in("frmPayCheck"); }

void frmCheck::cmdLiaEdit_Click() { edit_in(document_.has_payroll_items ? "frmPayLiabilites" : "frmPaySalesTax"); }

}  // namespace tallymere
