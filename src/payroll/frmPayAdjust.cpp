#include "payroll/frmPayAdjust.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QPushButton>
#include <QRadioButton>

#include "payroll/pay_items.h"
#include "shell/drop_downs.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {
namespace column {
enum { PayrollItem, Amount, Employee, TaxPaid };
}
}  // namespace

frmPayAdjust::frmPayAdjust(Shell& shell_of_frame)
    : EntryForm(shell_of_frame, "frmPayAdjust"),
      lists_(new DropDowns(session, this)),
      drpItems(new SSDBDropDown(this)) {
  setWindowTitle(QStringLiteral("Adjust Liabilites"));
  build();
  on(grdAdjustments, &SSDBGrid::AfterColUpdate, "drpItems_AfterClick",
     [this](int row, int column) { drpItems_AfterClick(row, column); });
  on(grdAdjustments, &SSDBGrid::BeforeUpdate, "grdAdjustments_BeforeUpdate",
     [this](int row, bool& cancel) { grdAdjustments_BeforeUpdate(row, cancel); });
}

void frmPayAdjust::build() {
  DTPicker1 = named("DTPicker1", new QuillbrookDatePick);
  DTPicker1->setMaximumWidth(22 * theme::unit);
  optApply = new QButtonGroup(this);
  optApply->setObjectName(QStringLiteral("optApply"));
  auto* apply = row_layout();
  // Which rows an adjustment makes depends on its item alone, so this says what happens and cannot be changed.
  for (const auto& [id, text] : {std::pair{0, "&Yes"}, {1, "&No"}}) {
    auto* option = new QRadioButton(QString::fromLatin1(text));
    option->setChecked(id == 0);
    option->setEnabled(id == 0);
    optApply->addButton(option, id);
    apply->addWidget(option);
  }
  optApply->button(1)->setToolTip(
      QStringLiteral("An item with an expense category is always corrected there too, so that the books balance."));
  apply->addStretch(1);
  grdAdjustments = line_grid(
      "grdAdjustments",
      {{.name = QStringLiteral("Payroll Item"), .list = drpItems, .list_only = true},
       {.name = QStringLiteral("Amount"), .kind = Kind::money, .width = 14},
       {.name = QStringLiteral("Employee Affected"), .width = 24, .list = lists_->Employees(), .list_only = true},
       {.name = QStringLiteral("TaxPaid"), .width = 20, .locked = true}},
      QStringLiteral("Choose a tax. A positive amount lowers what is owed."));
  grdAdjustments->setAccessibleName(QStringLiteral("Adjustments"));
  auto* fields = form_layout();
  add_field(fields, QStringLiteral("&Date:"), DTPicker1);
  fields->addRow(QStringLiteral("Apply to Liability and Expense Accounts?"), apply);
  auto* column = column_layout(this);
  column->addLayout(fields);
  column->addWidget(grdAdjustments, 1);
  column->addLayout(button_row({}, {cancel_button(), cmdOk}));
  setMinimumSize(92 * theme::unit, 44 * theme::unit);
}

void frmPayAdjust::load() {
  lists_->fill();
  fill_items();
  DTPicker1->set_value(session.today());
  keep();
  DTPicker1->setFocus();
}

void frmPayAdjust::on_changed(const std::string& table) {
  lists_->changed(table);
  if (table == "PayrollItems") fill_items();
}

void frmPayAdjust::fill_items() {
  std::vector<SSDBDropDown::Item> taxes;
  for (const PayItem& item : PayItems::Of(*session.dbCompany)->all())
    if (Is_Tax(item.type())) taxes.push_back({item.Name, {}});
  drpItems->set_items(taxes);
}

LiabilityCorrection frmPayAdjust::row_at(int row) const {
  return {grdAdjustments->text(row, column::PayrollItem),
          Money_At(*grdAdjustments, row, column::Amount).value_or(Money()),
          grdAdjustments->text(row, column::Employee)};
}

void frmPayAdjust::drpItems_AfterClick(int row, int column) {
  if (column != column::PayrollItem) return;
  const PayItem* item = PayItems::Of(*session.dbCompany)->find(grdAdjustments->text(row, column::PayrollItem));
  grdAdjustments->set_text(row, column::TaxPaid, item ? item->TaxPaid : "");
}

void frmPayAdjust::grdAdjustments_BeforeUpdate(int row, bool& cancel) {
  const LiabilityCorrection typed = row_at(row);
  const auto fault = Correction_Fault(*session.dbCompany, typed);
  if (!fault) return;
  cancel = true;
  session.prompts.box(fault->box);
  if (!typed.Employee.empty()) grdAdjustments->set_text(row, column::Employee, "");
  grdAdjustments->set_cell(row, typed.PayrollItem.empty() ? column::PayrollItem : column::Employee);
}

bool frmPayAdjust::enter() {
  if (!grdAdjustments->commit()) return false;
  std::vector<LiabilityCorrection> rows;
  for (int row = 0; row < grdAdjustments->rows(); ++row) rows.push_back(row_at(row));
  const LiabilityResult result = Adjust_Liabilities(session, DTPicker1->value(), rows);
  return conclude({result.fault, result.conflict, !result.numbers.empty()});
}

}  // namespace tallymere
