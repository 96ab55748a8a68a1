#include "entry/bank/frmPaySalesTax.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

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
enum { Select, Item, Vendor, Amount };
}
}  // namespace

frmPaySalesTax::frmPaySalesTax(Shell& shell_of_frame)
    : Form(shell_of_frame, "frmPaySalesTax"),
      payment_{.BankID = {}, .PayDate = session.today(), .PaidThrough = session.today()} {
  setWindowTitle(QStringLiteral("Pay Sales Tax"));
  build();
  on(cmbBankAcct, &SSDBCombo::LostFocus, "cmbBankAcct_LostFocus", [this] { cmbBankAcct_LostFocus(); });
  on(dtePayDate, &QuillbrookDatePick::Change, "dtePayDate_Change", [this] { dtePayDate_Change(); });
  on(dteQtrDate, &QuillbrookDatePick::Change, "dteQtrDate_Change", [this] { Load_List(); });
  on(cmdOk, "cmdCreate_AfterClick", [this] { cmdCreate_AfterClick(); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { finish(false); });
}

void frmPaySalesTax::build() {
  cmbBankAcct = named("cmbBankAcct", new SSDBCombo);
  cmbBankAcct->setMinimumWidth(30 * theme::unit);
  lblBankID = named("lblBankID", new QLabel(this));
  lblBankID->hide();
  lblBalance = named("lblBalance", new QLabel);
  lblBalance->setFont(theme::tabular(lblBalance->font()));
  dtePayDate = named("dtePayDate", new QuillbrookDatePick);
  dteQtrDate = named("dteQtrDate", new QuillbrookDatePick);
  SSDBGrid1 = named("SSDBGrid1", new SSDBGrid);
  SSDBGrid1->setAccessibleName(QStringLiteral("Sales taxes"));
  SSDBGrid1->set_columns({{.name = QStringLiteral("Select"), .kind = Kind::check, .width = 8},
                          {.name = QStringLiteral("Item"), .locked = true},
                          {.name = QStringLiteral("Vendor"), .locked = true},
                          {.name = QStringLiteral("Amount"), .kind = Kind::money, .width = 14, .locked = true}});
  SSDBGrid1->set_read_only(false);
  SSDBGrid1->set_empty_hint(QStringLiteral("No item is a sales tax."));
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("C&reate")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Cancel")));

  auto* bank = form_layout();
  add_field(bank, QStringLiteral("&Bank Account:"), cmbBankAcct);
  bank->addRow(QStringLiteral("Balance"), lblBalance);
  auto* dates = form_layout();
  add_field(dates, QStringLiteral("Payment &Date:"), dtePayDate);
  add_field(dates, QStringLiteral("&Liability as of:"), dteQtrDate);
  auto* head = row_layout();
  head->addLayout(bank);
  head->addStretch(1);
  head->addLayout(dates);
  auto* column = column_layout(this);
  column->addLayout(head);
  column->addWidget(SSDBGrid1, 1);
  column->addLayout(button_row({}, {cmdCancel, cmdOk}));
  setMinimumSize(84 * theme::unit, 48 * theme::unit);
}

void frmPaySalesTax::load() {
  on_changed("Accounts");
  payment_ = New_Sales_Tax_Payment(session);
  show_payment();
}

void frmPaySalesTax::take(const Request& request) {
  if (request.number == 0) return;
  auto payment = Edit_Sales_Tax_Payment(session, request.number);
  if (!payment) return shell.say("There is no sales tax check " + std::to_string(request.number) + " any more.");
  payment_ = std::move(*payment);
  if (request.start) payment_.Number = request.key, payment_.PayDate = *request.start;
  show_payment();
}

void frmPaySalesTax::on_changed(const std::string& table) {
  if (table == "Transactions" && !is_edit()) Load_List();
  if (table != "Accounts") return;
  std::vector<SSDBDropDown::Item> banks;
  for (const Bank& bank : Banks(session)) banks.push_back({bank.AccountName, bank.CatID});
  cmbBankAcct->list().set_items(banks);
  show_balance();
}

void frmPaySalesTax::show_payment() {
  lblBankID->setText(qt(payment_.BankID));
  cmbBankAcct->set_id(payment_.BankID);
  show_balance();
  dtePayDate->set_value(payment_.PayDate);
  dteQtrDate->set_value(payment_.PaidThrough);
  for (QWidget* date : {dtePayDate, dteQtrDate}) date->setEnabled(!is_edit());
  cmdOk->setText(is_edit() ? QStringLiteral("&Save") : QStringLiteral("C&reate"));
  const SSDBGrid::Fill fill(*SSDBGrid1);
  SSDBGrid1->RemoveAll();
  for (const SalesTaxLine& line : payment_.lines)
    SSDBGrid1->AddValues({line.Select, line.Item, line.Vendor, line.Amount});
}

void frmPaySalesTax::show_balance() {
  lblBalance->setText(qt(Dollar_Text(Read_Bank(session, utf8(lblBankID->text())).Balance)));
}

/// What is owed as of the day shown; lines that were selected stay so.
void frmPaySalesTax::Load_List() {
  if (is_edit()) return;
  SalesTaxPayment now = read();
  const auto before = std::move(now.lines);
  now.lines = Sales_Tax_Owed(session, now.PaidThrough);
  for (SalesTaxLine& line : now.lines)
    line.Select =
        std::ranges::any_of(before, [&](const SalesTaxLine& old) { return old.Select && old.Item == line.Item; });
  payment_ = std::move(now);
  show_payment();
}

void frmPaySalesTax::dtePayDate_Change() {
  dteQtrDate->set_value(Liability_Date(dtePayDate->value()));
  Load_List();
}

void frmPaySalesTax::cmbBankAcct_LostFocus() {
  lblBankID->setText(qt(cmbBankAcct->id()));
  show_balance();
}

SalesTaxPayment frmPaySalesTax::read() const {
  SalesTaxPayment payment = payment_;
  payment.BankID = cmbBankAcct->id();
  payment.PayDate = dtePayDate->value();
  payment.PaidThrough = dteQtrDate->value();
  payment.lines.clear();
  for (int row = 0; row < SSDBGrid1->rows(); ++row)
    payment.lines.push_back({SSDBGrid1->checked(row, column::Select), SSDBGrid1->text(row, column::Item),
                             SSDBGrid1->text(row, column::Vendor), SSDBGrid1->value(row, column::Amount).money()});
  return payment;
}

void frmPaySalesTax::cmdCreate_AfterClick() {
  const Hourglass hourglass(session.prompts);
  const SalesTaxResult result = Pay_Sales_Tax(session, read());
  if (result.fault) {
    show_fault(*result.fault);
    if (result.fault->control == "cmbBankAcct") cmbBankAcct->showPopup();
    return;
  }
  if (result.conflict) return session.prompts.box(result.conflict->box);
  if (!result.written.empty()) {
    session.prompts.sound(stapler);
    shell.changed("Transactions");
  }
  finish(true);
}

}  // namespace tallymere
