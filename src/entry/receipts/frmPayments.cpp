#include "entry/receipts/frmPayments.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/values/format.h"
#include "shell/drop_downs.h"
#include "shell/list_combo.h"
#include "shell/widgets/MoneyEdit.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {
namespace column {
enum { Recieved, InvoiceDate, InvoiceNumber, Total, AmountRecieved, RefTran, TransNum };
}
}  // namespace

// --- the screen ----------------------------------------------------------------------------------

frmPayments::frmPayments(Shell& shell_of_frame)
    : DocumentForm(shell_of_frame, "frmPayments", Payment_Kind), lists_(new DropDowns(session, this)) {
  setWindowTitle(QStringLiteral("Recieve Payments"));
  build_fields();
  build();
  connect_controls();
}

void frmPayments::build_fields() {
  cmbCustomer = named("cmbCustomer", new SSDBCombo);
  cmbCustomer->set_list(lists_->Customers());
  DTPicker1 = named("DTPicker1", new QuillbrookDatePick);
  txtAmount = named("txtAmount", new MoneyEdit);
  txtAmount->set_mask("0.00");
  txtPayMethod =
      named("txtPayMethod", new ListCombo(shell, *lists_, PaymentMethod_List, Grow_Unasked(PaymentMethod_List)));
  txtCheckNum = named("txtCheckNum", new QLineEdit);
  txtMemo = named("txtMemo", new QLineEdit);
  cmbAccount = named("cmbAccount", new SSDBCombo);
  cmbAccount->set_list_only(true);
  txtIndex = named("txtIndex", new QLineEdit(this));
  txtIndex->setFocusPolicy(Qt::NoFocus);
  txtIndex->hide();
  lblDepositCat = named("lblDepositCat", new QLabel(this));
  lblDepositCat->hide();
  lblLocked = named("lblLocked", new QLabel);
  lblLocked->setWordWrap(true);
  lblApply = named("lblApply", new QLabel);
  lblApply->setFont(theme::tabular(lblApply->font()));
  grdHistory = named("grdHistory", new SSDBGrid);
  grdHistory->setAccessibleName(QStringLiteral("Invoice History"));
  grdHistory->set_columns(
      {{.name = QStringLiteral("Recieved"), .kind = Kind::check, .width = 9},
       {.name = QStringLiteral("Invoice Date"), .kind = Kind::date, .width = 13, .locked = true},
       {.name = QStringLiteral("Invoice Number"), .locked = true},
       {.name = QStringLiteral("Total"), .kind = Kind::money, .width = 15, .locked = true, .mask = "#,##0.00"},
       {.name = QStringLiteral("Amount Recieved"), .kind = Kind::money, .width = 17, .mask = "#,##0.00"},
       {.name = QStringLiteral("RefTran"), .kind = Kind::hidden},
       {.name = QStringLiteral("TransNum"), .kind = Kind::hidden}});
  grdHistory->set_read_only(false);
  grdHistory->set_empty_hint(QStringLiteral("This customer has no open invoices."));
  Take_Only_Amounts(shell, *grdHistory);
}

void frmPayments::build() {
  auto* left = form_layout();
  add_field(left, QStringLiteral("C&ustomer"), cmbCustomer);
  add_field(left, QStringLiteral("D&ate"), DTPicker1);
  add_field(left, QStringLiteral("Amount &$"), txtAmount);
  add_field(left, QStringLiteral("D&eposit to"), cmbAccount);
  auto* right = form_layout();
  add_field(right, QStringLiteral("Pa&yment Method"), txtPayMethod);
  add_field(right, QStringLiteral("Chec&k Number"), txtCheckNum);
  add_field(right, QStringLiteral("&Memo"), txtMemo);
  auto* head = row_layout();
  head->addLayout(left, 3);
  head->addSpacing(2 * theme::gap);
  head->addLayout(right, 2);
  auto* foot = row_layout();
  foot->addStretch(1);
  foot->addWidget(new QLabel(QStringLiteral("Amount to Apply :")));
  foot->addWidget(lblApply);
  cmdDelete = named("cmdDelete", new QPushButton(QStringLiteral("&Delete")));
  cmdCancel = cancel_button();
  auto* column = column_layout(this);
  column->addLayout(head);
  column->addWidget(lblLocked);
  column->addWidget(label_for(grdHistory, QStringLiteral("Invoice &History")), 0, Qt::AlignLeft);
  column->addWidget(grdHistory, 1);
  column->addLayout(foot);
  column->addLayout(button_row({cmdDelete}, {cmdCancel, cmdPrev, cmdNext, cmdSaveNew, cmdOk}));
  setMinimumSize(80 * theme::unit, 48 * theme::unit);
  QWidget* const order[] = {cmbCustomer, DTPicker1,  txtAmount, txtPayMethod, txtCheckNum, txtMemo,   cmbAccount,
                            grdHistory,  cmdSaveNew, cmdOk,     cmdPrev,      cmdNext,     cmdCancel, cmdDelete};
  for (size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

void frmPayments::connect_controls() {
  // A box that opens while the focus is on its way would catch it: these wait until it has arrived.
  const auto later_on = [this](auto* field, auto signal, const char* procedure, auto handler) {
    connect(
        field, signal, this, [this, procedure, handler] { guard(procedure, [&] { (this->*handler)(); }); },
        Qt::QueuedConnection);
  };
  on(cmbCustomer, &SSDBCombo::CloseUp, "cmbCustomer_CloseUp", [this] { cmbCustomer_CloseUp(); });
  later_on(cmbCustomer, &SSDBCombo::LostFocus, "cmbCustomer_LostFocus", &frmPayments::cmbCustomer_CloseUp);
  later_on(txtAmount, &MoneyEdit::LostFocus, "txtAmount_LostFocus", &frmPayments::txtAmount_LostFocus);
  on(cmbAccount, &SSDBCombo::Changed, "cmbAccount_Click",
     [this] { lblDepositCat->setText(qt(cmbAccount->Valid() ? cmbAccount->id() : "")); });
  on(grdHistory, &SSDBGrid::AfterColUpdate, "grdHistory_AfterColUpdate",
     [this](int row, int column) { grdHistory_AfterColUpdate(row, column); });
  on(cmdDelete, "cmdDelete_Click", [this] { cmdDelete_Click(); });
}

// --- opening -------------------------------------------------------------------------------------

void frmPayments::load() {
  lists_->fill();
  on_changed("Accounts");
  show(Open_Document(session, Payment_Kind));
  cmbCustomer->setFocus();
}

void frmPayments::on_changed(const std::string& table) {
  lists_->changed(table);
  if (table != "Accounts") return;
  std::vector<SSDBDropDown::Item> categories;
  for (const auto& [name, CatID] : Deposit_Categories(session)) categories.push_back({name, CatID});
  cmbAccount->list().set_items(categories);
}

// --- document to screen and back -----------------------------------------------------------------

void frmPayments::show_document(const Payment& payment) {
  txtIndex->setText(QString::number(payment.TransNum));
  cmbCustomer->set_text(payment.Name);
  DTPicker1->set_value(payment.Date);
  txtAmount->set_amount(payment.Amount);
  applied_ = utf8(txtAmount->text());
  txtPayMethod->set_text(payment.PayMethod);
  txtCheckNum->setText(qt(payment.Number));
  txtMemo->setText(qt(payment.Memo));
  lblDepositCat->setText(qt(payment.CatID));
  cmbAccount->set_id(payment.CatID);
  show_items(payment.items);
  show_left(payment.is_new() ? Money() : Left_To_Apply(payment.items, payment.Amount.value_or(Money())));
  set_editable(payment);
}

void frmPayments::shown() {
  if (document_.is_new() && !cmbCustomer->hasFocus()) go_to(cmbCustomer);
}

void frmPayments::show_items(const std::vector<OpenItem>& items) {
  const SSDBGrid::Fill fill(*grdHistory);
  grdHistory->RemoveAll();
  for (const OpenItem& item : items)
    grdHistory->AddValues(
        {item.Recieved, item.Date, item.Number, item.Total, item.AmountRecieved, item.before, item.TransNum});
}

std::vector<OpenItem> frmPayments::items() const {
  std::vector<OpenItem> items = document_.items;
  for (size_t at = 0; at < items.size(); ++at) {
    const int row = static_cast<int>(at);
    items[at].Recieved = grdHistory->checked(row, column::Recieved);
    items[at].AmountRecieved = Money_At(*grdHistory, row, column::AmountRecieved).value_or(items[at].before);
  }
  return items;
}

Payment frmPayments::read() const {
  Payment payment = document_;
  payment.Name = cmbCustomer->text();
  payment.Date = DTPicker1->value();
  payment.Amount = txtAmount->amount();
  payment.PayMethod = txtPayMethod->text();
  payment.Number = utf8(txtCheckNum->text());
  payment.Memo = utf8(txtMemo->text());
  payment.CatID = utf8(lblDepositCat->text());
  payment.items = items();
  return payment;
}

/// A payment that lies in a deposit or has cleared stays as it is; the line above the list says why.
void frmPayments::set_editable(const Payment& payment) {
  const std::string why = Locked_Why(session, payment);
  lblLocked->setText(qt(why));
  lblLocked->setVisible(!why.empty());
  for (QWidget* field :
       {static_cast<QWidget*>(cmbCustomer), static_cast<QWidget*>(DTPicker1), static_cast<QWidget*>(txtAmount),
        static_cast<QWidget*>(txtPayMethod), static_cast<QWidget*>(txtCheckNum), static_cast<QWidget*>(txtMemo),
        static_cast<QWidget*>(cmbAccount)})
    field->setEnabled(why.empty());
  grdHistory->set_may_edit([editable = why.empty()](int, int) { return editable; });
}

// --- saving --------------------------------------------------------------------------------------

bool frmPayments::settle() {
  txtPayMethod->settle();
  cmbCustomer_CloseUp();
  txtAmount_LostFocus();
  return true;
}

/// What was seen and not changed is not written again.
bool frmPayments::enter() {
  grdHistory->commit();
  return (!document_.is_new() && !changed()) || DocumentForm::enter();
}

void frmPayments::entered(const SaveResult& result) {
  txtIndex->setText(QString::number(document_.TransNum));
  if (result.fault && result.fault->control == "cmbAccount") cmbAccount->showPopup();
}

/// Another user was faster. What was typed of a new payment stays, applied to what is open now.
void frmPayments::load_again() {
  if (!document_.is_new()) return DocumentForm::load_again();
  List_Open_Items(session, document_);
  show_items(document_.items);
  applied_.clear();
  txtAmount_LostFocus();
}

// --- while it is filled in -----------------------------------------------------------------------

void frmPayments::cmbCustomer_CloseUp() {
  const std::string name = cmbCustomer->text();
  if (name == document_.Name) return;
  document_.Name = name;
  List_Open_Items(session, document_);
  show_items(document_.items);
  applied_.clear();
  txtAmount_LostFocus();
}

/// The amount is applied anew once it was changed, or the customer.
void frmPayments::txtAmount_LostFocus() {
  txtAmount->reckon();
  const std::string text = utf8(txtAmount->text());
  if (text == applied_) return;
  applied_ = text;
  std::vector<OpenItem> applied = items();
  show_left(Apply_Automatically(applied, txtAmount->amount().value_or(Money())));
  show_items(applied);
}

void frmPayments::grdHistory_AfterColUpdate(int row, int column) {
  std::vector<OpenItem> applied = items();
  OpenItem& item = applied.at(static_cast<size_t>(row));
  const Money amount = txtAmount->amount().value_or(Money());
  if (column == column::AmountRecieved) item.Recieved = !item.share().is_zero();
  if (item.Recieved && item.Total.is_negative()) {
    item.Recieved = false;
    shell.say("A payment is not applied to a credit.");
  }
  if (column == column::Recieved || !item.Recieved) Tick(item, Left_To_Apply(applied, amount));
  grdHistory->set_value(row, column::Recieved, item.Recieved);
  grdHistory->set_value(row, column::AmountRecieved, item.AmountRecieved);
  show_left(Left_To_Apply(applied, amount));
}

void frmPayments::show_left(Money left) { lblApply->setText(qt(Format(left, "0.00"))); }

void frmPayments::cmdDelete_Click() { show_deleted(Delete_Payment(session, document_)); }

}  // namespace tallymere
