#include "payroll/frmPayRefund.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include "payroll/liabilities.h"
#include "payroll/pay_items.h"
#include "shell/drop_downs.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {
namespace column {
enum { Item, Amount };
}
}  // namespace

frmPayRefund::frmPayRefund(Shell& shell_of_frame)
    : EntryForm(shell_of_frame, "frmPayRefund"),
      lists_(new DropDowns(session, this)),
      drpItems(new SSDBDropDown(this)) {
  setWindowTitle(QStringLiteral("Deposit Tax Refunds"));
  build();
  const auto choose = [this] { lblCatID->setText(qt(cmbDeposit->id())); };
  on(cmbDeposit, &SSDBCombo::Click, "cmbDeposit_Click", choose);
  on(cmbDeposit, &SSDBCombo::LostFocus, "cmbDeposit_LostFocus", choose);
}

void frmPayRefund::build() {
  dteRefund = named("dteRefund", new QuillbrookDatePick);
  dteEndPeriod = named("dteEndPeriod", new QuillbrookDatePick);
  cmbVendor = named("cmbVendor", new SSDBCombo);
  cmbVendor->set_list(lists_->Vendors());
  cmbVendor->setMinimumWidth(28 * theme::unit);
  cmbDeposit = named("cmbDeposit", new SSDBCombo);
  cmbDeposit->setMinimumWidth(28 * theme::unit);
  lblCatID = named("lblCatID", new QLabel(this));
  lblCatID->hide();
  grdItems = line_grid("grdItems",
                       {{.name = QStringLiteral("Item"), .list = drpItems, .list_only = true},
                        {.name = QStringLiteral("Amount"), .kind = Kind::money, .width = 14}},
                       QStringLiteral("Choose the payroll item that was paid too much."));
  grdItems->setAccessibleName(QStringLiteral("Refunded items"));

  auto* dates = form_layout();
  add_field(dates, QStringLiteral("&Date:"), dteRefund);
  add_field(dates, QStringLiteral("for Period &Ending"), dteEndPeriod);
  auto* places = form_layout();
  add_field(places, QStringLiteral("&Vendor:"), cmbVendor);
  add_field(places, QStringLiteral("Deposit &To:"), cmbDeposit);
  auto* head = row_layout();
  head->addLayout(dates);
  head->addStretch(1);
  head->addLayout(places);
  auto* column = column_layout(this);
  column->addLayout(head);
  column->addWidget(grdItems, 1);
  column->addLayout(button_row({}, {cancel_button(), cmdOk}));
  setMinimumSize(80 * theme::unit, 44 * theme::unit);
}

void frmPayRefund::load() {
  lists_->fill();
  fill_items();
  fill_banks();
  dteRefund->set_value(session.today());
  dteEndPeriod->set_value(session.today());
  keep();
  dteRefund->setFocus();
}

void frmPayRefund::on_changed(const std::string& table) {
  lists_->changed(table);
  if (table == "PayrollItems") fill_items();
  if (table == "Accounts") fill_banks();
}

void frmPayRefund::fill_items() {
  std::vector<SSDBDropDown::Item> owed;
  for (const PayItem& item : PayItems::Of(*session.dbCompany)->all())
    if (!item.LiabilityAcct.empty()) owed.push_back({item.Name, {}});
  drpItems->set_items(owed);
}

void frmPayRefund::fill_banks() {
  std::vector<SSDBDropDown::Item> places;
  for (const auto& [name, CatID] : Refund_Places(*session.dbCompany)) places.push_back({name, CatID});
  cmbDeposit->list().set_items(places);
}

bool frmPayRefund::enter() {
  if (!grdItems->commit()) return false;
  LiabilityRefund refund{.date = dteRefund->value(),
                         .period_end = dteEndPeriod->value(),
                         .Vendor = cmbVendor->text(),
                         .CatID = cmbDeposit->id()};
  for (int row = 0; row < grdItems->rows(); ++row)
    if (const auto amount = Money_At(*grdItems, row, column::Amount))
      refund.lines.push_back({grdItems->text(row, column::Item), *amount});
  const LiabilityResult result = Refund_Liabilities(session, refund);
  return conclude({result.fault, result.conflict, !result.numbers.empty()});
}

}  // namespace tallymere
