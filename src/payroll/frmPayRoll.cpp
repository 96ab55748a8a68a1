#include "payroll/frmPayRoll.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "core/company/preferences.h"
#include "entry/checks/check.h"
#include "payroll/frmPayCheck.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmPayRoll::frmPayRoll(Shell& shell_of_frame) : Form(shell_of_frame, "frmPayRoll") {
  setWindowTitle(QStringLiteral("Payroll"));
  build();
  on(dtePayEnd, &QuillbrookDatePick::Change, "dtePayEnd_Change", [this] { dtePayEnd_Change(); });
  on(cmbBank, &SSDBCombo::Click, "cmbBank_Click", [this] { cmbBank_LostFocus(); });
  on(cmbBank, &SSDBCombo::LostFocus, "cmbBank_LostFocus", [this] { cmbBank_LostFocus(); });
  on(cmdCreate, "cmdCreate_AfterClick", [this] { cmdCreate_AfterClick(); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { close(); });
}

void frmPayRoll::build() {
  dtePayEnd = named("dtePayEnd", new QuillbrookDatePick);
  dtePayDate = named("dtePayDate", new QuillbrookDatePick);
  cmbBank = named("cmbBank", new SSDBCombo);
  cmbBank->setMinimumWidth(30 * theme::unit);
  lblBank = named("lblBank", new QLabel(this));
  lblBank->hide();
  grdEmployees = named("grdEmployees", new SSDBGrid);
  grdEmployees->setAccessibleName(QStringLiteral("Employees"));
  grdEmployees->set_columns({{.name = QStringLiteral("Employee")},
                             {.name = QStringLiteral("Pay Period"), .width = 14},
                             {.name = QStringLiteral("Paid"), .width = 8},
                             {.name = QStringLiteral("PayCheckDate"), .kind = Kind::date, .width = 14}});
  grdEmployees->set_multi_select(true);
  grdEmployees->set_empty_hint(QStringLiteral("Nobody is employed who could be paid."));
  cmdCreate = named("cmdCreate", new QPushButton(QStringLiteral("C&reate")));
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&Close")));

  auto* dates = form_layout();
  add_field(dates, QStringLiteral("Pay Period &Ending Date"), dtePayEnd);
  add_field(dates, QStringLiteral("Pay Check &Date"), dtePayDate);
  auto* bank = form_layout();
  add_field(bank, QStringLiteral("&Bank Category"), cmbBank);
  auto* head = row_layout();
  head->addLayout(dates);
  head->addStretch(1);
  head->addLayout(bank);
  auto* column = column_layout(this);
  column->addLayout(head);
  column->addWidget(new QLabel(QStringLiteral("Press Ctrl+Click to pay more than one employee!!!")));
  column->addWidget(grdEmployees, 1);
  column->addLayout(button_row({}, {cmdCancel, cmdCreate}));
  setMinimumSize(84 * theme::unit, 48 * theme::unit);
}

// --- what it shows -------------------------------------------------------------------------------

void frmPayRoll::load() {
  fill_banks();
  dtePayEnd->set_value(session.today());
  dtePayDate->set_value(session.today());
  cmbBank->set_id(Preference(*session.dbCompany, preference::DefaultBank));
  cmbBank_LostFocus();
  dtePayEnd_Change();
}

void frmPayRoll::on_changed(const std::string& table) {
  if (table == "Accounts") fill_banks();
  if (table == "Employees" || table == "Transactions") dtePayEnd_Change();
}

void frmPayRoll::fill_banks() {
  std::vector<SSDBDropDown::Item> banks;
  for (const Bank& bank : Banks(session)) banks.push_back({bank.AccountName, bank.CatID});
  cmbBank->list().set_items(banks);
}

/// Who is selected stays so.
void frmPayRoll::dtePayEnd_Change() {
  const std::vector<std::string> names = selected();
  rows_ = Pay_Run(*session.dbCompany, dtePayEnd->value());
  std::vector<int> again;
  {
    const SSDBGrid::Fill fill(*grdEmployees);
    grdEmployees->RemoveAll();
    for (const PayRunRow& row : rows_) {
      if (std::ranges::find(names, row.Employee) != names.end()) again.push_back(grdEmployees->rows());
      grdEmployees->AddValues({row.Employee, row.PayPeriod, row.Paid ? "Yes" : "No", row.PayCheckDate});
    }
  }
  grdEmployees->select_rows(again);
}

void frmPayRoll::cmbBank_LostFocus() { lblBank->setText(qt(cmbBank->id())); }

std::vector<std::string> frmPayRoll::selected() const {
  std::vector<std::string> names;
  for (const int row : grdEmployees->selected_rows()) names.push_back(rows_[static_cast<size_t>(row)].Employee);
  return names;
}

// --- the run -------------------------------------------------------------------------------------

PayRunHead frmPayRoll::head() const {
  return {.pay_end = dtePayEnd->value(), .pay_date = dtePayDate->value(), .BankID = cmbBank->id()};
}

/// One check after the other. A check that cannot be made says so and the next one comes; what was created stands.
void frmPayRoll::cmdCreate_AfterClick() {
  const PayRunHead run = head();
  if (const auto fault = Run_Fault(run)) {
    show_fault(*fault);
    return cmbBank->showPopup();
  }
  std::vector<PayRunRow> chosen;
  for (const int row : grdEmployees->selected_rows()) chosen.push_back(rows_[static_cast<size_t>(row)]);
  if (chosen.empty()) return shell.say("Select the employees who are to be paid.");
  for (const PayRunRow& row : chosen) {
    Went went = Went::On;
    guard("cmdCreate_AfterClick", [&] { went = pay(run, row); });
    if (went == Went::EndsTheRun) return;
  }
}

frmPayRoll::Went frmPayRoll::pay(const PayRunHead& run, const PayRunRow& row) {
  const auto employee = Find_Employee_By_Name(*session.dbCompany, row.Employee);
  const auto period = Period_Bounds(row.PayPeriod, run.pay_end, run.pay_date);
  if (employee && !may_pay(row, *employee, period.value_or(PayPeriod()))) return Went::EndsTheRun;
  auto [entry, box] = New_Paycheck(session, run, row);
  if (box) {
    session.prompts.box(*box);
    return Went::EndsTheRun;
  }
  frmPayCheck window(shell);
  window.open(std::move(*entry));
  shell.Run_Modal(window);
  return Went::On;
}

bool frmPayRoll::may_pay(const PayRunRow& row, const PayEmployee& employee, const PayPeriod& period) {
  if (!Is_Already_Paid(*session.dbCompany, row, employee.SSNum, period)) return true;
  return session.prompts.ask({"This Employee has already been paid of this Pay Period. Create check anyways?",
                              "Confirm Paycheck", Icon::Question, row.Employee});
}

}  // namespace tallymere
