#include "payroll/frmSetupYTD.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "entry/checks/check.h"
#include "payroll/pay_items.h"
#include "payroll/time_sheet.h"
#include "payroll/ytd_setup.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {
namespace column {
enum { Item, Amount };
}
constexpr int without_bank = 1, with_bank = 2;  // of optApply
}  // namespace

frmSetupYTD::frmSetupYTD(Shell& shell_of_frame)
    : EntryForm(shell_of_frame, "frmSetupYTD"), drpItems(new SSDBDropDown(this)) {
  setWindowTitle(QStringLiteral("Setup/Adjust Year-To-Date Amounts"));
  build();
  for (auto [combo, label, name] :
       {std::tuple{cmbEmployee, lblSSNum, "cmbEmployee_LostFocus"}, {cmbBank, lblBankID, "cmbBank_LostFocus"}}) {
    const auto choose = [combo, label] { label->setText(qt(combo->id())); };
    on(combo, &SSDBCombo::Click, name, choose);
    on(combo, &SSDBCombo::LostFocus, name, choose);
  }
  on(optApply, &QButtonGroup::idClicked, "optApply_Click", [this] { optApply_Click(); });
}

void frmSetupYTD::build() {
  cmbEmployee = named("cmbEmployee", new SSDBCombo);
  cmbBank = named("cmbBank", new SSDBCombo);
  for (SSDBCombo* combo : {cmbEmployee, cmbBank}) combo->setMinimumWidth(30 * theme::unit);
  lblSSNum = named("lblSSNum", new QLabel(this));
  lblBankID = named("lblBankID", new QLabel(this));
  for (QLabel* label : {lblSSNum, lblBankID}) label->hide();
  QuillbrookDatePick1 = named("QuillbrookDatePick1", new QuillbrookDatePick);
  optApply = new QButtonGroup(this);
  optApply->setObjectName(QStringLiteral("optApply"));
  auto* options = new QVBoxLayout;
  for (const auto& [id, text] : {std::pair{without_bank, "Apply to &Liability and Expense Categories"},
                                 {with_bank, "Apply to Liability, Expense, and &Bank Categories"}}) {
    auto* option = new QRadioButton(QString::fromLatin1(text));
    option->setChecked(id == without_bank);
    optApply->addButton(option, id);
    options->addWidget(option);
  }
  grdIncome = line_grid("grdIncome",
                        {{.name = QStringLiteral("Item"), .list = drpItems, .list_only = true},
                         {.name = QStringLiteral("Amount"), .kind = Kind::money, .width = 14}},
                        QStringLiteral("Choose what was earned, withheld and contributed."));
  grdIncome->setAccessibleName(QStringLiteral("Payroll YTD Setup"));
  cmdOk->setObjectName(QStringLiteral("cmdAction"));

  auto* who = form_layout();
  add_field(who, QStringLiteral("&Employee:"), cmbEmployee);
  add_field(who, QStringLiteral("&Date:"), QuillbrookDatePick1);
  auto* where = form_layout();
  where->addRow(options);
  add_field(where, QStringLiteral("B&ank:"), cmbBank);
  auto* head = row_layout();
  head->addLayout(who);
  head->addStretch(1);
  head->addLayout(where);
  auto* column = column_layout(this);
  column->addLayout(head);
  column->addWidget(new QLabel(QStringLiteral("Payroll YTD Setup")));
  column->addWidget(grdIncome, 1);
  column->addLayout(button_row({}, {cancel_button(), cmdOk}));
  setMinimumSize(92 * theme::unit, 48 * theme::unit);
}

void frmSetupYTD::load() {
  fill_lists();
  QuillbrookDatePick1->set_value(session.today());
  optApply_Click();
  keep();
  cmbEmployee->setFocus();
}

void frmSetupYTD::on_changed(const std::string& table) {
  if (table == "Employees" || table == "Accounts" || table == "PayrollItems") fill_lists();
}

void frmSetupYTD::fill_lists() {
  std::vector<SSDBDropDown::Item> employees, banks, items;
  for (const TimedEmployee& each : Employees_With_Time(session)) employees.push_back({each.Name, each.SSNum});
  for (const Bank& bank : Banks(session)) banks.push_back({bank.AccountName, bank.CatID});
  for (const PayItem& item : PayItems::Of(*session.dbCompany)->all()) items.push_back({item.Name, {}});
  cmbEmployee->list().set_items(employees);
  cmbBank->list().set_items(banks);
  drpItems->set_items(items);
}

void frmSetupYTD::optApply_Click() { cmbBank->setEnabled(optApply->checkedId() == with_bank); }

bool frmSetupYTD::enter() {
  if (!grdIncome->commit()) return false;
  YtdSetup setup{.SSNum = cmbEmployee->id(),
                 .Employee = cmbEmployee->text(),
                 .date = QuillbrookDatePick1->value(),
                 .to_bank = optApply->checkedId() == with_bank,
                 .BankID = cmbBank->id()};
  for (int row = 0; row < grdIncome->rows(); ++row)
    setup.lines.push_back({grdIncome->text(row, column::Item), Money_At(*grdIncome, row, column::Amount)});
  const auto fault = Set_Up_Year_To_Date(session, setup);
  return conclude({.fault = fault, .written = !fault});
}

}  // namespace tallymere
