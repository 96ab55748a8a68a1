#include "entry/receipts/frmDeposits.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "core/values/format.h"
#include "entry/document/PickForm.h"
#include "lists/small_lists.h"
#include "shell/drop_downs.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {
namespace column {
enum { Customer, Amount, Memo, FromCategory, Class, CatID, Payment };
}
}  // namespace

frmDeposits::frmDeposits(Shell& shell_of_frame)
    : EntryForm(shell_of_frame, "frmDeposits"),
      lists_(new DropDowns(session, this)),
      deposit_{.Date = session.today()} {
  setWindowTitle(QStringLiteral("Deposit Funds"));
  build_grid();
  build();
  connect_controls();
}

void frmDeposits::build_grid() {
  grdPayments =
      line_grid("grdPayments",
                {{.name = QStringLiteral("Customer"), .list = lists_->Customers()},
                 {.name = QStringLiteral("Amount"), .kind = Kind::money, .width = 15},
                 {.name = QStringLiteral("Memo")},
                 {.name = QStringLiteral("From Category"), .list = lists_->drpExpenseList, .id_column = column::CatID},
                 {.name = QStringLiteral("Class"), .width = 14, .list = lists_->drpClass},
                 {.name = QStringLiteral("CatID"), .kind = Kind::hidden},
                 {.name = QStringLiteral("Payment"), .kind = Kind::hidden}},
                QStringLiteral("Select payments that wait, or enter other receipts."));
  grdPayments->setAccessibleName(QStringLiteral("What is deposited"));
  // A held payment goes in as it was received; only a memo and a class can be put to it.
  grdPayments->set_may_edit([this](int row, int at) {
    return at == column::Memo || at == column::Class || grdPayments->text(row, column::Payment).empty();
  });
}

void frmDeposits::build() {
  dteDate = named("dteDate", new QuillbrookDatePick);
  txtNum = named("txtNum", new QLineEdit);
  cmbBank = named("cmbBank", new SSDBCombo);
  cmbBank->set_list_only(true);
  cmbBank->setMinimumContentsLength(28);
  lblBankID = named("lblBankID", new QLabel(this));
  lblBankID->hide();
  lblTotal = named("lblTotal", new QLabel);
  lblTotal->setFont(theme::tabular(lblTotal->font()));
  cmdSelect = named("cmdSelect", new QPushButton(QStringLiteral("&Select Payment to Deposit")));
  cmdOk->setObjectName(QStringLiteral("cmdDeposit"));
  cmdOk->setText(QStringLiteral("De&posit"));
  cmdOk->setToolTip(QStringLiteral("Writes the deposit and closes"));
  cmdCancel = cancel_button();
  auto* head = row_layout();
  head->addWidget(label_for(cmbBank, QStringLiteral("Deposit &To:")));
  head->addWidget(cmbBank);
  head->addStretch(1);
  head->addWidget(label_for(dteDate, QStringLiteral("&Date:")));
  head->addWidget(dteDate);
  head->addWidget(label_for(txtNum, QStringLiteral("&Number")));
  head->addWidget(txtNum);
  auto* foot = row_layout();
  foot->addStretch(1);
  foot->addWidget(new QLabel(QStringLiteral("Total")));
  foot->addWidget(lblTotal);
  auto* column = column_layout(this);
  column->addLayout(head);
  column->addWidget(grdPayments, 1);
  column->addLayout(foot);
  column->addLayout(button_row({cmdSelect}, {cmdCancel, cmdOk}));
  setMinimumSize(84 * theme::unit, 44 * theme::unit);
  QWidget* const order[] = {cmbBank, dteDate, txtNum, grdPayments, cmdSelect, cmdOk, cmdCancel};
  for (size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

void frmDeposits::connect_controls() {
  on(cmbBank, &SSDBCombo::Changed, "cmbBank_Click",
     [this] { lblBankID->setText(qt(cmbBank->Valid() ? cmbBank->id() : "")); });
  on(cmdSelect, "cmdSelect_Click", [this] { cmdSelect_Click(); });
  on(grdPayments, &SSDBGrid::AfterColUpdate, "grdPayments_AfterColUpdate", [this] { show_total(); });
  on(grdPayments, &SSDBGrid::AfterDelete, "grdPayments_AfterDelete", [this] { show_total(); });
  on(grdPayments, &SSDBGrid::AfterUpdate, "grdPayments_AfterUpdate", [this](int row) { grdPayments_AfterUpdate(row); });
}

// --- opening -------------------------------------------------------------------------------------

void frmDeposits::load() {
  lists_->fill();
  on_changed("Accounts");
  deposit_ = New_Deposit(session);
  dteDate->set_value(deposit_.Date);
  show_total();
  keep();
  cmbBank->setFocus();
}

void frmDeposits::take(const Request& request) {
  if (!request.key.empty()) add_held(Numbers_In(request.key));
}

void frmDeposits::on_changed(const std::string& table) {
  lists_->changed(table);
  if (table != "Accounts") return;
  std::vector<SSDBDropDown::Item> banks;
  for (const auto& [name, CatID] : Deposit_Banks(session)) banks.push_back({name, CatID});
  cmbBank->list().set_items(banks);
}

/// A payment that is in the grid is not put in again.
void frmDeposits::add_held(const std::vector<int64_t>& payments) {
  const std::vector<DepositLine> there = read().lines;
  for (const DepositLine& line : Held_Lines(session, payments))
    if (std::ranges::find(there, line.Payment, &DepositLine::Payment) == there.end())
      grdPayments->AddValues(
          {line.Customer, line.Amount, line.Memo, line.Category, line.Class, line.CatID, line.Payment});
  show_total();
}

// --- the deposit ---------------------------------------------------------------------------------

Deposit frmDeposits::read() const {
  Deposit deposit = deposit_;
  deposit.Date = dteDate->value();
  deposit.Number = utf8(txtNum->text());
  deposit.BankID = utf8(lblBankID->text());
  for (int row = 0; row < grdPayments->rows(); ++row)
    deposit.lines.push_back({.Customer = grdPayments->text(row, column::Customer),
                             .Amount = Money_At(*grdPayments, row, column::Amount),
                             .Memo = grdPayments->text(row, column::Memo),
                             .Category = grdPayments->text(row, column::FromCategory),
                             .Class = grdPayments->text(row, column::Class),
                             .CatID = grdPayments->text(row, column::CatID),
                             .Payment = grdPayments->value(row, column::Payment).integer()});
  return deposit;
}

bool frmDeposits::enter() {
  grdPayments->commit();
  Deposit deposit = read();
  const SaveResult result = Enter_Deposit_Form(session, deposit);
  const bool saved = conclude(result);
  if (result.fault && result.fault->control == "cmbBank") cmbBank->showPopup();
  return saved;
}

void frmDeposits::cmdSelect_Click() {
  if (const auto picked = Ask_Numbers(shell, {.window = "frmOpenPayments", .key = {}})) add_held(*picked);
}

void frmDeposits::grdPayments_AfterUpdate(int row) {
  const std::string name = grdPayments->text(row, column::Class);
  if (name.empty() || In_Small_List(session, Class_List, name)) return;
  Add_If_New(session, Class_List, name);
  shell.changed("Class");
}

void frmDeposits::show_total() { lblTotal->setText(qt(Format(read().total(), "$0.00"))); }

}  // namespace tallymere
