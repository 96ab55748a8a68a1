#include "entry/bills/frmBills.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/values/amount_in_words.h"
#include "core/values/text.h"
#include "entry/document/PickForm.h"
#include "entry/document/TabbedGrid.h"
#include "lists/terms.h"
#include "shell/drop_downs.h"
#include "shell/list_combo.h"
#include "shell/menus.h"
#include "shell/widgets/MoneyEdit.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/company_color.h"
#include "shell/widgets/grid/SSDBCombo.h"

namespace tallymere {

namespace {

enum Option { Credit, Ordinary };  ///< of optBill

}  // namespace

// --- opening -------------------------------------------------------------------------------------

void frmBills::load() {
  lists_->fill();
  on_changed("Colors");
  show(New_Bill(session));
  cmbVendor->setFocus();
}

void frmBills::take(const Request& request) {
  if (request.key != Bills_Items && request.key != Bills_Item_Receipt) return DocumentForm::take(request);
  if (!let_go()) return;
  Bill bill = New_Bill(session);
  bill.Tab = LineTab::Items;
  bill.receipt = request.key == Bills_Item_Receipt;
  show(std::move(bill));
}

void frmBills::on_changed(const std::string& table) {
  lists_->changed(table);
  if (table == "Colors") Paint_Paper(*fraBill, Company_Color(session, "BillBack"));
  if (table == "Vendors") show_notice();
  if (table == "Transactions") show_others_changes();
}

/// What another window did to the bill, while nobody writes in it: paid it, for one.
void frmBills::show_others_changes() {
  if (document_.is_new() || changed()) return;
  auto now = Load_Bill(session, document_.TransNum);
  if (now && !Same_Bill(*now, document_)) show(std::move(*now));
}

// --- document to screen and back -----------------------------------------------------------------

void frmBills::show_document(const Bill& bill) {
  txtIndex->setText(QString::number(bill.TransNum));
  cmbVendor->set_text(bill.Name);
  vendor_ = bill.Name;
  dteDate->set_value(bill.Date);
  dated_ = bill.Date;
  dteDue->set_value(bill.DueDate);
  txtTerms->show_text(bill.Terms);
  txtNum->setText(qt(bill.Number));
  txtAmount->set_amount(bill.Amount);
  amount_text_ = utf8(txtAmount->text());
  txtMemo->setText(qt(bill.Memo));
  optBill->button(bill.credit ? Credit : Ordinary)->setChecked(true);
  chkRecipt->setChecked(bill.receipt);
  chkPaid->setChecked(bill.Paid);
  // What is paid stays what it is.
  for (QWidget* kind : {static_cast<QWidget*>(optBill->button(Credit)), static_cast<QWidget*>(chkRecipt)})
    kind->setEnabled(!bill.is_settled());
  SSTab1->show_lines(bill);
  show_kind();
  show_notice();
}

void frmBills::shown() {
  if (document_.is_new() && !cmbVendor->hasFocus()) go_to(cmbVendor);
}

Bill frmBills::read() const {
  Bill bill = document_;
  bill.Name = cmbVendor->text();
  bill.Date = dteDate->value();
  bill.DueDate = dteDue->maybe_value();
  bill.Terms = txtTerms->text();
  bill.Number = utf8(txtNum->text());
  bill.Amount = shown_amount();
  bill.Memo = utf8(txtMemo->text());
  bill.credit = optBill->checkedId() == Credit;
  bill.receipt = chkRecipt->isChecked();
  SSTab1->read_lines(bill);
  return bill;
}

/// An amount that is only seen keeps its parts of a cent.
std::optional<Money> frmBills::shown_amount() const {
  const auto amount = txtAmount->amount();
  if (amount && document_.Amount && amount == document_.Amount->rounded_to_cents()) return document_.Amount;
  return amount;
}

// --- while it is filled in -----------------------------------------------------------------------

void frmBills::show_kind() {
  lblBill->setText(optBill->checkedId() == Credit ? QStringLiteral("Credit") : QStringLiteral("Bill"));
  lblReceipt->setVisible(chkRecipt->isChecked());
  show_notice();
}

void frmBills::show_notice() {
  Bill typed{.TransNum = document_.TransNum, .Date = document_.Date};
  typed.credit = optBill->checkedId() == Credit;
  typed.receipt = chkRecipt->isChecked();
  typed.Number = utf8(txtNum->text());
  typed.Name = cmbVendor->text();
  lblNotice->setText(qt(Bill_Notice(session, typed)));
}

/// A vendor's new bill begins with what was ordered, or as its last one. true: orders were taken up.
bool frmBills::cmbVendor_LostFocus() {
  if (cmbVendor->text() == vendor_) return false;
  vendor_ = cmbVendor->text();
  show_notice();
  document_.pulled.clear();
  if (!document_.is_new()) return false;
  Bill bill = read();
  const bool ordered = take_up_orders(bill);
  if (!ordered && !Fill_From_Last_Bill(session, bill)) return false;
  document_.pulled = bill.pulled;
  txtAmount->set_amount(bill.Amount);
  amount_text_ = utf8(txtAmount->text());
  SSTab1->show_lines(bill);
  return ordered;
}

/// What is on order from this vendor can be taken up. It is closed when the bill is saved.
bool frmBills::take_up_orders(Bill& bill) {
  if (vendor_.empty() || Open_Orders(session, vendor_).empty()) return false;
  const Box question{"This Vendor has Open Purchase Orders. Would you like to enter them in now?", "Open POs",
                     Icon::Question};
  if (!session.prompts.ask(question)) return false;
  Take_Up_Orders(session, bill,
                 Ask_Numbers(shell, {.window = "frmOpenPOs", .key = vendor_}).value_or(std::vector<int64_t>()));
  return true;
}

/// The due date follows the terms as they are left, once for each date.
void frmBills::txtTerms_LostFocus() {
  dated_ = dteDate->value();
  if (const auto due = Due_Date(session, txtTerms->text(), dated_)) dteDue->set_value(*due);
}

/// The amount routine. false: what was typed was refused.
bool frmBills::txtAmount_LostFocus() {
  txtAmount->reckon();
  if (utf8(txtAmount->text()) == amount_text_) return true;
  const CheckAmount amount = Check_Amount_In_Words(session.words, utf8(txtAmount->text()));
  txtAmount->setText(qt(amount.text));
  amount_text_ = amount.text;
  if (amount.fault) {
    session.prompts.box(amount.fault->box);
    go_to(txtAmount);
    return false;
  }
  if (amount.value) SSTab1->propose_remainder(*amount.value);
  return true;
}

bool frmBills::settle() {
  SSTab1->settle();
  const bool ordered = cmbVendor_LostFocus();
  txtTerms->settle();
  return txtAmount_LostFocus() && !ordered;  // what was just taken up is to be seen before it is saved
}

void frmBills::entered(const SaveResult& result) {
  if (result.fault) SSTab1->expenses->point_at_mistake();
  txtIndex->setText(QString::number(document_.TransNum));
}

// --- commands ------------------------------------------------------------------------------------

void frmBills::cmdDelete_Click() { show_deleted(Delete_Bill(session, document_)); }

/// What is not in the ledger yet cannot be repeated: it is saved first.
void frmBills::cmdRepeat_Click() {
  if (!save() || document_.is_new()) return;
  shell.Show_Window({.window = "frmModRepeat", .key = "Bill", .number = document_.TransNum});
}

}  // namespace tallymere
