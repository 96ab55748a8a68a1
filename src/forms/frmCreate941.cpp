#include "forms/frmCreate941.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "forms/frmPrintForm.h"
#include "payroll/states.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/theme.h"

namespace tallymere {

frmCreate941::frmCreate941(Shell& shell_of_frame) : LinesForm(shell_of_frame, "frmCreate941", Lines_941()) {
  setWindowTitle(QStringLiteral("Create 941"));
  build();
  on(dteEnd, &QuillbrookDatePick::Change, "cmbDate_Click", [this] { cmbDate_Click(); });
  on(chkFutReturn, "chkFutReturn_Click", [this] {
    for (QWidget* final_wage : std::initializer_list<QWidget*>{lblFinalWage, dteFinalWage})
      final_wage->setVisible(chkFutReturn->isChecked());
  });
  on(cmdPP, "cmdPP_AfterClick", [this] { cmdPP_AfterClick(); });
}

void frmCreate941::build() {
  cmdPP = named("cmdPP", new QPushButton(QStringLiteral("&Print Preview")));
  auto* sides = row_layout();
  sides->setSpacing(2 * theme::margin);
  sides->addLayout(left_side(), 1);
  sides->addLayout(right_side(), 1);
  auto* fields = column_layout();
  fields->addLayout(head());
  fields->addLayout(sides);
  fields->addStretch(1);
  auto* column = column_layout(this);
  column->addWidget(page(fields), 1);
  column->addLayout(button_row({cmdCSV}, {cmdCancel, cmdPP}));
  setMinimumSize(112 * theme::unit, 50 * theme::unit);
}

QLayout* frmCreate941::head() {
  dteEnd = named("dteEnd", new QuillbrookDatePick);
  dteFinalWage = named("dteFinalWage", new QuillbrookDatePick);
  cmbState = named("cmbState", new SSDBCombo);
  cmbState->set_list_only(true);
  for (const UsState& state : us_states) cmbState->AddItem(std::string(state.letters));
  const auto box = [this](const char* name, const char* caption) {
    return named(name, new QCheckBox(QString::fromLatin1(caption)));
  };
  chkAddDif = box("chkAddDif", "Check here if address is different from prior return");
  chkSeason = box("chkSeason", "Check here if you are a seasonal employer");
  chkFutReturn = box("chkFutReturn", "Check here if you will not be filling any returns in the future");
  chkApplyTaxableWage =
      box("chkApplyTaxableWage", "Check here is wages are not subject to social security and/or Medicare tax");
  lblFinalWage = label_for(dteFinalWage, QStringLiteral("Enter date Final wages were paid"));
  auto* state = label_for(
      cmbState,
      QStringLiteral("Please Select State if deposits were made in a different State than your address state"));
  state->setWordWrap(true);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(theme::margin);
  grid->setVerticalSpacing(theme::gap / 2);
  grid->addWidget(label_for(dteEnd, QStringLiteral("&Date Quarter Ended")), 0, 0);
  grid->addWidget(dteEnd, 0, 1);
  grid->addWidget(state, 0, 2);
  grid->addWidget(cmbState, 0, 3);
  grid->addWidget(chkAddDif, 1, 0, 1, 2);
  grid->addWidget(chkFutReturn, 1, 2, 1, 2);
  grid->addWidget(chkSeason, 2, 0, 1, 2);
  grid->addWidget(lblFinalWage, 2, 2);
  grid->addWidget(dteFinalWage, 2, 3);
  grid->addWidget(chkApplyTaxableWage, 3, 0, 1, 4);
  grid->setColumnStretch(2, 1);
  lblFinalWage->hide();
  dteFinalWage->hide();
  return grid;
}

QLayout* frmCreate941::left_side() {
  txtEmpCount = named("txtEmpCount", new QLineEdit);
  txtEmpCount->setFixedWidth(line_width);
  txtEmpCount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  auto* caption = new QLabel(QStringLiteral("1. Number of employees in the pay period that includes March 12th"));
  caption->setWordWrap(true);
  caption->setBuddy(txtEmpCount);
  QGridLayout* grid = lines_layout();
  grid->addWidget(caption, 0, 0);
  grid->addWidget(txtEmpCount, 0, 1);
  const int row =
      add_lines(grid, 1,
                {"txtWages", "txtWithheld", "txtAsjustPreced", "txtTotalWithheld", "txtSocWage", "lblTotSocTaxWage",
                 "txtSocTip", "lblTotSocTaxTip", "txtMedWT", "lblMedTax", "lblTotalTax"});
  for (const char* result : {"lblTotSocTaxWage", "lblTotSocTaxTip", "lblMedTax"})
    caption_of(result)->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  grid->setRowStretch(row, 1);
  return grid;
}

QLayout* frmCreate941::right_side() {
  QGridLayout* grid = lines_layout();
  int row = add_lines(grid, 0,
                      {"txtAdjustTaxes", "txtTotalAdjust", "txtTax", "txtEIC", "txtNetTaxes", "txtDeposits",
                       "txtBalance", "txtOverpay"});
  auto* over = row_layout();
  optOver = options("optOver", over, {"Refund overpayment", "Apply overpayment to next return"}, Entry941::Refund);
  grid->addLayout(over, row++, 0, 1, 3);
  auto* deposit = row_layout();
  optDeposit = options("optDeposit", deposit, {"Semiweekly Depositor", "Monthly Depositor"}, Entry941::Monthly);
  grid->addLayout(deposit, row++, 0, 1, 3);
  grid->addWidget(new QLabel(QStringLiteral("17. Monthly Summary of Federal Tax Liability")), row++, 0, 1, 3);
  row = add_lines(grid, row, {"txtFirst", "txtSecond", "txtThird", "lblTotalLia"});
  for (const char* month : {"txtFirst", "txtSecond", "txtThird", "lblTotalLia"})
    caption_of(month)->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  lblScheduleB = named("lblScheduleB", new QLabel);
  lblScheduleB->setWordWrap(true);
  grid->addWidget(lblScheduleB, row++, 0, 1, 3);
  grid->setRowStretch(row, 1);
  return grid;
}

QButtonGroup* frmCreate941::options(const char* name, QLayout* into, std::initializer_list<const char*> captions,
                                    int chosen) {
  auto* group = named(name, new QButtonGroup(this));
  for (const char* caption : captions) {
    auto* option = new QRadioButton(QString::fromLatin1(caption));
    group->addButton(option, static_cast<int>(group->buttons().size()));
    into->addWidget(option);
  }
  group->button(chosen)->setChecked(true);
  return group;
}

void frmCreate941::load() {
  dteEnd->set_value(Quarter_Of(session.today().year(), 1).end);
  dteFinalWage->set_value(session.today());
  begin_anew();
}

/// Whatever day was given, the field shows the end of its quarter.
void frmCreate941::cmbDate_Click() {
  if (in_click_) return;
  in_click_ = true;
  dteEnd->set_value(Quarter_Of(dteEnd->value()).end);
  in_click_ = false;
  begin_anew();
}

void frmCreate941::after_reckoning(const TaxForm& form) {
  const Date end = Quarter_Of(dteEnd->value()).end;
  const auto items = PayItems::Of(*session.dbCompany);
  const QString social = qt(Rate_Label(*items, fixed_items::social_security_employee));
  for (const char* result : {"lblTotSocTaxWage", "lblTotSocTaxTip"}) caption_of(result)->setText(social);
  caption_of("lblMedTax")->setText(qt(Rate_Label(*items, fixed_items::medicare_employee)));
  for (const char* month : {"txtFirst", "txtSecond", "txtThird", "lblTotalLia"})
    caption_of(month)->setText(qt(std::string(form.find(month)->def.caption)));
  lblScheduleB->setText(qt(Schedule_B_Words(Reckon_Schedule_B(*session.dbCompany, end), form["txtNetTaxes"])));
  const int employees = Employees_On_The_12th(*session.dbCompany, end);
  txtEmpCount->setPlaceholderText(employees == 0 ? QString() : qt(std::to_string(employees) + " on the 12th"));
}

Entry941 frmCreate941::read() const {
  return {.dteEnd = dteEnd->value(),
          .typed = typed(),
          .txtEmpCount = utf8(txtEmpCount->text()),
          .cmbState = cmbState->text(),
          .optDeposit = static_cast<Entry941::Deposit>(optDeposit->checkedId()),
          .optOver = static_cast<Entry941::Over>(optOver->checkedId()),
          .chkAddDif = chkAddDif->isChecked(),
          .chkSeason = chkSeason->isChecked(),
          .chkApplyTaxableWage = chkApplyTaxableWage->isChecked(),
          .dteFinalWage = chkFutReturn->isChecked() ? std::optional(dteFinalWage->value()) : std::nullopt};
}

void frmCreate941::cmdPP_AfterClick() {
  if (!settle()) return;
  const Entry941 entry = read();
  if (const auto fault = Print_Fault(entry)) {
    show_fault(*fault);
    if (fault->control == "cmbState") cmbState->showPopup();
    return;
  }
  Show_Paper(shell, "frmPrint941", Paper_941(session, entry));
  if (entry.optDeposit == Entry941::Semiweekly) Show_Paper(shell, "frmSchedB", Paper_Schedule_B(session, entry));
}

}  // namespace tallymere
