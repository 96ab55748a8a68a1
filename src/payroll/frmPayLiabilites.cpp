#include "payroll/frmPayLiabilites.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "core/values/format.h"
#include "entry/checks/check.h"
#include "entry/document/document.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {
namespace column {
enum { Select, PayrollItem, PayTo, Amount, AcctNum };
}
}  // namespace

// --- controls ------------------------------------------------------------------------------------

frmPayLiabilites::frmPayLiabilites(Shell& shell_of_frame)
    : Form(shell_of_frame, "frmPayLiabilites"), payment_{.PayDate = session.today(), .QtrDate = session.today()} {
  setWindowTitle(QStringLiteral("Pay Liabilities"));
  build();
  on(cmbBankAcct, &SSDBCombo::Click, "cmbBankAcct_Click", [this] { cmbBankAcct_Click(); });
  on(cmbBankAcct, &SSDBCombo::LostFocus, "cmbBankAcct_LostFocus", [this] { cmbBankAcct_Click(); });
  on(dtePayDate, &QuillbrookDatePick::Change, "dtePayDate_Change", [this] { dteQtrDate_Change(); });
  on(dteQtrDate, &QuillbrookDatePick::Change, "dteQtrDate_Change", [this] { dteQtrDate_Change(); });
  on(grdItems, &SSDBGrid::AfterColUpdate, "grdItems_Click",
     [this](int row, int column) { grdItems_Click(row, column); });
  on(cmdCreate, "cmdCreate_AfterClick", [this] { cmdCreate_AfterClick(); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(false); });
}

void frmPayLiabilites::build() {
  cmbBankAcct = named("cmbBankAcct", new SSDBCombo);
  cmbBankAcct->setMinimumWidth(30 * theme::unit);
  lblBankID = named("lblBankID", new QLabel(this));
  lblBankID->hide();
  lblBalance = named("lblBalance", new QLabel);
  lblBalance->setFont(theme::tabular(lblBalance->font()));
  dtePayDate = named("dtePayDate", new QuillbrookDatePick);
  dteQtrDate = named("dteQtrDate", new QuillbrookDatePick);
  grdItems = named("grdItems", new SSDBGrid);
  grdItems->setAccessibleName(QStringLiteral("Payroll liabilities"));
  grdItems->set_columns(
      {{.name = QStringLiteral("Select"), .kind = Kind::check, .width = 8},
       {.name = QStringLiteral("Payroll Liability"), .locked = true},
       {.name = QStringLiteral("Pay To"), .locked = true},
       {.name = QStringLiteral("Amount"), .kind = Kind::money, .width = 14, .locked = true, .mask = "#,##0.00"},
       {.name = QStringLiteral("AcctNum"), .width = 14, .locked = true}});
  grdItems->set_read_only(false);
  grdItems->set_empty_hint(QStringLiteral("No payroll item has been owed to an agency yet."));
  cmdCreate = named("cmdCreate", new QPushButton(QStringLiteral("C&reate")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));

  auto* bank = form_layout();
  add_field(bank, QStringLiteral("&Bank Account:"), cmbBankAcct);
  bank->addRow(QStringLiteral("Ending Balance"), lblBalance);
  auto* dates = form_layout();
  add_field(dates, QStringLiteral("Payment &Date:"), dtePayDate);
  add_field(dates, QStringLiteral("&Liability as of:"), dteQtrDate);
  auto* head = row_layout();
  head->addLayout(bank);
  head->addStretch(1);
  head->addLayout(dates);
  auto* column = column_layout(this);
  column->addLayout(head);
  column->addWidget(grdItems, 1);
  column->addLayout(button_row({}, {cmdCancel, cmdCreate}));
  setMinimumSize(96 * theme::unit, 48 * theme::unit);
}

// --- what it shows -------------------------------------------------------------------------------

void frmPayLiabilites::load() {
  fill_banks();
  payment_ = New_Liability_Payment(session);
  show_payment();
}

void frmPayLiabilites::take(const Request& request) {
  if (request.number == 0) return;
  auto payment = Edit_Liability_Payment(session, request.number);
  if (!payment)
    throw store::Error(store::errors::no_current_record,
                       "There is no liability check " + std::to_string(request.number) + " any more.");
  payment_ = std::move(*payment);
  if (request.start) {
    payment_.PayDate = *request.start;
    payment_.Number = request.key;
    if (!request.parent.empty()) payment_.BankID = request.parent;
  }
  show_payment();
}

/// What was selected stays so.
void frmPayLiabilites::on_changed(const std::string& table) {
  if (table == "Accounts") fill_banks();
  if (is_edit() || (table != "Transactions" && table != "PayrollItems")) return;
  const LiabilityPayment before = read();
  payment_ = before;
  payment_.items = Load_List(*session.dbCompany, before.QtrDate);
  for (OwedItem& item : payment_.items)
    item.Select = std::ranges::any_of(
        before.items, [&](const OwedItem& old) { return old.Select && old.PayrollItem == item.PayrollItem; });
  show_payment();
}

void frmPayLiabilites::fill_banks() {
  std::vector<SSDBDropDown::Item> banks;
  for (const Bank& bank : Banks(session)) banks.push_back({bank.AccountName, bank.CatID});
  cmbBankAcct->list().set_items(banks);
}

void frmPayLiabilites::show_payment() {
  lblBankID->setText(qt(payment_.BankID));
  cmbBankAcct->set_id(payment_.BankID);
  dtePayDate->set_value(payment_.PayDate);
  dteQtrDate->set_value(payment_.QtrDate);
  cmdCreate->setText(is_edit() ? QStringLiteral("&Save") : QStringLiteral("C&reate"));
  show_items();
  ending_ = Read_Bank(session, payment_.BankID).Balance;
  // A check that stands in the ledger is in the balance already.
  if (!is_edit())
    for (const OwedItem& item : payment_.items)
      if (item.Select) ending_ -= item.Amount;
  show_balance();
}

void frmPayLiabilites::show_items() {
  const SSDBGrid::Fill fill(*grdItems);
  grdItems->RemoveAll();
  for (const OwedItem& item : payment_.items)
    grdItems->AddValues({item.Select, item.PayrollItem, item.PayTo, item.Amount, item.AcctNum});
}

void frmPayLiabilites::show_balance() { lblBalance->setText(qt(Format(ending_, "$0.00"))); }

// --- while it is filled in -----------------------------------------------------------------------

/// The list as of the day shown, with nothing selected. The ending balance stays where the ticks put it until a bank is
/// chosen or a line is ticked again.
void frmPayLiabilites::dteQtrDate_Change() {
  if (is_edit()) return;
  payment_ = read();
  payment_.items = Load_List(*session.dbCompany, payment_.QtrDate);
  show_items();
}

/// Another bank: its balance. Lines stay selected, and are paid from it.
void frmPayLiabilites::cmbBankAcct_Click() {
  if (cmbBankAcct->id() == utf8(lblBankID->text())) return;
  payment_ = read();
  show_payment();
}

void frmPayLiabilites::grdItems_Click(int row, int column) {
  if (column != column::Select) return;
  const bool ticked = grdItems->checked(row, column::Select);
  const bool no_agency = grdItems->text(row, column::PayTo).empty();
  if (ticked && (no_agency || cmbBankAcct->id().empty())) {
    grdItems->set_value(row, column::Select, false);
    return no_agency ? ask_for_agency(grdItems->text(row, column::PayrollItem))
                     : session.prompts.box({"Please Select a Bank to Pay Liabilities From.", "No Bank"});
  }
  const Money amount = grdItems->value(row, column::Amount).money();
  ending_ += ticked ? -amount : amount;
  show_balance();
}

void frmPayLiabilites::ask_for_agency(const std::string& item) {
  session.prompts.box({"Please Enter an Agency to Pay To before paying Liability", "No Agency"});
  shell.Ask_Window({.window = "frmModPayItem", .key = item});
}

// --- saving --------------------------------------------------------------------------------------

LiabilityPayment frmPayLiabilites::read() const {
  LiabilityPayment payment = payment_;
  payment.BankID = cmbBankAcct->id();
  payment.PayDate = dtePayDate->value();
  payment.QtrDate = dteQtrDate->value();
  payment.items.clear();
  for (int row = 0; row < grdItems->rows(); ++row)
    payment.items.push_back({grdItems->checked(row, column::Select), grdItems->text(row, column::PayrollItem),
                             grdItems->text(row, column::PayTo), grdItems->value(row, column::Amount).money(),
                             grdItems->text(row, column::AcctNum)});
  return payment;
}

void frmPayLiabilites::cmdCreate_AfterClick() {
  const Hourglass hourglass(session.prompts);
  const LiabilityResult result = Pay_Liabilities(session, read());
  if (result.fault) {
    show_fault(*result.fault);
    if (result.fault->control == "cmbBankAcct") cmbBankAcct->showPopup();
    return;
  }
  if (result.conflict) return session.prompts.box(result.conflict->box);
  if (result.numbers.empty()) return shell.say("Select the liabilities that are to be paid.");
  session.prompts.sound(stapler);
  shell.changed("Transactions");
  finish(true);
}

}  // namespace tallymere
