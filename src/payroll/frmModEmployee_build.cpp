#include <QButtonGroup>
#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "payroll/frmModEmployee.h"
#include "payroll/states.h"
#include "shell/drop_downs.h"
#include "shell/list_combo.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

// The pages of frmModEmployee.

namespace tallymere {

void frmModEmployee::build() {
  lblSSNum = named("lblSSNum", new QLabel(this));
  lblSSNum->hide();
  SSTab1 = named("SSTab1", new QTabWidget);
  SSTab1->addTab(person_page(), QStringLiteral("&Personal"));
  SSTab1->addTab(earnings_page(), QStringLiteral("&Earnings"));
  SSTab1->addTab(taxes_page(), QStringLiteral("&Taxes"));
  SSTab1->addTab(leave_page(), QStringLiteral("&Sick/Vacation"));
  SSTab1->addTab(notes_page(), QStringLiteral("&Notes"));
  auto* column = column_layout(this);
  column->addWidget(SSTab1, 1);
  column->addSpacing(theme::gap);
  column->addLayout(button_row({}, {cmdCancel, cmdOk}));
  setMinimumWidth(96 * theme::unit);
}

// --- what a page is made of ----------------------------------------------------------------------

namespace {

QWidget* page_of(std::initializer_list<QLayout*> sides) {
  auto* page = new QWidget;
  auto* row = new QHBoxLayout(page);
  row->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
  row->setSpacing(2 * theme::margin);
  for (QLayout* side : sides) row->addLayout(side, 1);
  return page;
}

/// A second field on the line of the first.
void beside(QFormLayout* fields, QWidget* first, const QString& label, QWidget* second) {
  int row = 0;
  QFormLayout::ItemRole role = QFormLayout::FieldRole;
  fields->getWidgetPosition(first, &row, &role);
  fields->removeWidget(first);
  auto* both = row_layout();
  second->setMinimumWidth(12 * theme::unit);
  both->addWidget(first, 1);
  both->addWidget(label_for(second, label));
  both->addWidget(second, 1);
  fields->setLayout(row, QFormLayout::FieldRole, both);
}

void head(QFormLayout* fields, const char* caption) {
  auto* label = new QLabel(QLatin1String(caption));
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  fields->addRow(label);
}

}  // namespace

void frmModEmployee::line(QFormLayout* fields, const char* name, const char* label) {
  add_field(fields, QLatin1String(label), named(name, new QLineEdit));
}

void frmModEmployee::tick(QFormLayout* fields, const char* name, const char* caption) {
  fields->addRow(QString(), named(name, new QCheckBox(QLatin1String(caption))));
}

SSDBCombo* frmModEmployee::choice(QFormLayout* fields, const char* name, const char* label,
                                  std::initializer_list<const char*> rows) {
  auto* combo = named(name, new SSDBCombo);
  for (const char* row : rows) combo->AddItem(row);
  add_field(fields, QLatin1String(label), combo);
  return combo;
}

SSDBCombo* frmModEmployee::states(QFormLayout* fields, const char* name, const char* label) {
  SSDBCombo* combo = choice(fields, name, label, {});
  combo->set_columns({{}, {}});
  for (const UsState& state : us_states) combo->AddItem(std::string(state.letters) + "\t" + std::string(state.name));
  return combo;
}

SSDBGrid* frmModEmployee::lines_grid(size_t at, const char* item, const char* rate, SSDBDropDown* list) {
  const EmployeeGrid& shown = Employee_Grids[at];
  auto* grid = named(std::string(shown.control).c_str(), new SSDBGrid);
  const bool earnings = shown.limit.empty();
  grid->set_columns({{.name = QLatin1String(item), .list = list, .list_only = true},
                     {.name = QLatin1String(rate), .kind = earnings ? Kind::money : Kind::text, .width = 14},
                     {.name = QStringLiteral("Limit"), .kind = earnings ? Kind::hidden : Kind::text, .width = 12},
                     {.name = QStringLiteral("SSNum"), .kind = Kind::hidden},
                     {.name = QStringLiteral("Key"), .kind = Kind::hidden}});
  grid->set_read_only(false);
  grid->set_new_line(true);
  grid->set_delete(true);
  grid->setMinimumHeight(10 * theme::unit);
  grid->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  return grid;
}

// --- the pages -----------------------------------------------------------------------------------

QWidget* frmModEmployee::person_page() { return page_of({person_side(), job_side()}); }

QLayout* frmModEmployee::person_side() {
  auto* fields = form_layout();
  line(fields, "txtSSNum", "Social Security #:");
  auto* cmbPrefix = choice(fields, "cmbPrefix", "Prefix:", {"Mr.", "Miss", "Ms.", "Mrs.", "Dr."});
  beside(fields, cmbPrefix, QStringLiteral("Initials:"), named("txtInitials", new QLineEdit));
  line(fields, "txtName", "Name:");
  line(fields, "txtPrintAs", "Print As:");
  line(fields, "txtAddressOne", "Address:");
  auto* txtAddressTwo = named("txtAddressTwo", new QLineEdit);
  txtAddressTwo->setAccessibleName(QStringLiteral("Address, second line"));
  fields->addRow(QString(), txtAddressTwo);
  line(fields, "txtCity", "City:");
  beside(fields, states(fields, "cmbState", "State:"), QStringLiteral("Zip:"), named("txtZip", new QLineEdit));
  return fields;
}

QLayout* frmModEmployee::job_side() {
  auto* fields = form_layout();
  line(fields, "txtPhone", "Phone:");
  line(fields, "txtAltPhone", "Alt Phone:");
  line(fields, "txtAccNum", "Account Number:");
  choice(fields, "cmbType", "Type:", {"Regular", "Officer", "Statuary", "Owner", "Sales Rep"});
  add_field(fields, QStringLiteral("Class:"),
            named("txtClass", new ListCombo(shell, *lists_, Class_List, Grow_Unasked(Class_List))));
  auto* dteHire = named("dteHire", new QuillbrookDatePick);
  dteHire->allow_blank(true);
  add_field(fields, QStringLiteral("Hired:"), dteHire);
  chkReleased = named("chkReleased", new QCheckBox(QStringLiteral("&Released:")));
  dteRelease = named("dteRelease", new QuillbrookDatePick);
  dteRelease->setAccessibleName(QStringLiteral("Released on"));
  fields->addRow(chkReleased, dteRelease);
  return fields;
}

QWidget* frmModEmployee::earnings_page() {
  auto* period = form_layout();
  choice(period, "cmbPayPeriod", "Pay Period:",
         {"Daily", "Weekly", "BiWeekly", "SemiMonthly", "Monthly", "Quarterly", "SemiAnnually", "Annually"})
      ->set_list_only(true);
  grids_[0] = lines_grid(0, "Wage", "Rate", items_[0]);
  grids_[1] = lines_grid(1, "Adjustment", "Amount/Rate", items_[1]);
  auto* column = column_layout();
  column->addLayout(period);
  column->addWidget(label_for(grids_[0], QStringLiteral("Earnings")), 0, Qt::AlignLeft);
  column->addWidget(grids_[0], 1);
  column->addWidget(label_for(grids_[1], QStringLiteral("Additions, Deductions and Company Contributions")), 0,
                    Qt::AlignLeft);
  column->addWidget(grids_[1], 1);
  return page_of({column});
}

QWidget* frmModEmployee::taxes_page() {
  auto* sides = row_layout();
  sides->setSpacing(2 * theme::margin);
  sides->addLayout(federal_side(), 1);
  sides->addLayout(state_side(), 1);
  grids_[2] = lines_grid(2, "Tax", "Amount/Rate", items_[2]);
  auto* column = column_layout();
  column->addLayout(sides);
  column->addWidget(label_for(grids_[2], QStringLiteral("Other Taxes")), 0, Qt::AlignLeft);
  column->addWidget(grids_[2], 1);
  return page_of({column});
}

QLayout* frmModEmployee::federal_side() {
  auto* fields = form_layout();
  head(fields, "Federal");
  choice(fields, "cmbFedStatus", "Filing Status:", {"Single", "Married", "Don't WithHold"})->set_list_only(true);
  line(fields, "txtFedAllow", "Allowances:");
  line(fields, "txtFedWithHolding", "Extra Withholding:");
  tick(fields, "chkSS", "With hold Social Security");
  tick(fields, "chkMedicare", "With hold Medicare");
  tick(fields, "chkFUTA", "With hold FUTA");
  tick(fields, "chkEarned", "With hold Earned Income Credit");
  return fields;
}

QLayout* frmModEmployee::state_side() {
  auto* fields = form_layout();
  head(fields, "State");
  states(fields, "cmbStateLive", "State Lived:");
  cmbStateWorked = states(fields, "cmbStateWorked", "State Worked:");
  choice(fields, "cmbSStatus", "Filing Status:", {"Single", "Married", "Head", "Don't WithHold"})->set_list_only(true);
  line(fields, "txtSAllow", "Allowances:");
  line(fields, "txtSWithHold", "Extra Withholding:");
  tick(fields, "chkSUI", "With hold SUI");
  return fields;
}

QWidget* frmModEmployee::leave_page() {
  return page_of(
      {leave_side("Sick", "Label25", {"txtSickStart", "txtSickRecur", "txtSickMax", "optPeriod", "chkSickReset"}),
       leave_side("Vacation", "Label32", {"txtVacStart", "txtVacRecur", "txtVacMax", "optVac", "chkVacReset"})});
}

QLayout* frmModEmployee::leave_side(const char* kind, const char* as_of, const std::array<const char*, 5>& controls) {
  const QString hours = QLatin1String(kind);
  auto* fields = form_layout();
  head(fields, kind);
  auto* start = named(controls[0], new QLineEdit);
  start->setAccessibleName(hours + QStringLiteral(" hours available"));
  fields->addRow(named(as_of, label_for(start, {})), start);
  add_field(fields, QStringLiteral("Hours accured per period:"), named(controls[1], new QLineEdit));
  add_field(fields, QStringLiteral("Maximum number of %1 Hours:").arg(hours), named(controls[2], new QLineEdit));
  auto* accrue = named(controls[3], new QButtonGroup(this));
  for (const char* caption : {"Every Pay Period", "Beginning of the Year"}) {
    const auto id = accrue->buttons().size();
    const std::string name = controls[3] + ("_" + std::to_string(id));
    auto* option = named(name.c_str(), new QRadioButton(QLatin1String(caption)));
    accrue->addButton(option, static_cast<int>(id));
    fields->addRow(option);
  }
  fields->addRow(named(controls[4], new QCheckBox(QStringLiteral("Reset %1 Hours each New Year").arg(hours))));
  return fields;
}

QWidget* frmModEmployee::notes_page() {
  auto* fields = form_layout();
  for (size_t at = 0; at < txtCust.size(); ++at) {
    const std::string number = std::to_string(at + 1);
    txtCust[at] = named(("txtCust" + number).c_str(), new QLineEdit);
    txtCust[at]->setAccessibleName(qt("Free field " + number));
    lblCust[at] = named(("lblCust" + number).c_str(), label_for(txtCust[at], {}));
    fields->addRow(lblCust[at], txtCust[at]);
  }
  cmdDefine = named("cmdDefine", new QPushButton(QStringLiteral("&Define Fields")));
  cmdPrintNotes = named("cmdPrintNotes", new QPushButton(QStringLiteral("Pr&int Notes")));
  auto* txtNotes = named("txtNotes", new QPlainTextEdit);
  auto* buttons = row_layout();
  buttons->addWidget(cmdPrintNotes);
  buttons->addStretch(1);
  buttons->addWidget(cmdDefine);
  auto* column = column_layout();
  column->addLayout(fields);
  column->addWidget(label_for(txtNotes, QStringLiteral("Notes:")), 0, Qt::AlignLeft);
  column->addWidget(txtNotes, 1);
  column->addLayout(buttons);
  return page_of({column});
}

}  // namespace tallymere
