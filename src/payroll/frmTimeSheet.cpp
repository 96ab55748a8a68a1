#include "payroll/frmTimeSheet.h"

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include "core/values/format.h"
#include "shell/drop_downs.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBCombo.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

namespace column {
enum { Customer, Item, Notes, Class, DayOne, SSNum = DayOne + 7, PayrollItem };
}

const std::string nobody = "000";

std::string hours_text(double hours) { return utf8(QString::number(hours, 'g', 8)); }

}  // namespace

// --- controls ------------------------------------------------------------------------------------

frmTimeSheet::frmTimeSheet(Shell& shell_of_frame)
    : Form(shell_of_frame, "frmTimeSheet"),
      first_(session.today()),
      lists_(new DropDowns(session, this)),
      drpPayItems(new SSDBDropDown(this)) {
  setWindowTitle(QStringLiteral("Time Sheet"));
  build();
  connect_controls();
}

void frmTimeSheet::build() {
  grdTimeSheet = named("grdTimeSheet", new SSDBGrid);
  grdTimeSheet->setAccessibleName(QStringLiteral("Hours"));
  std::vector<GridColumn> columns = {{.name = QStringLiteral("Customer"), .width = 11, .list = lists_->drpCustomers},
                                     {.name = QStringLiteral("Item"), .width = 9, .list = lists_->drpItems},
                                     {.name = QStringLiteral("Notes"), .width = 8},
                                     {.name = QStringLiteral("Class"), .width = 7, .list = lists_->drpClass}};
  for (const char* field : Day_Fields)
    columns.push_back({.name = QLatin1String(field), .kind = Kind::number, .width = 5});
  columns.push_back({.name = QStringLiteral("SSNum"), .kind = Kind::hidden});
  columns.push_back({.name = QStringLiteral("Payroll Item"), .width = 11, .list = drpPayItems, .list_only = true});
  grdTimeSheet->set_columns(std::move(columns));
  grdTimeSheet->set_read_only(false);
  grdTimeSheet->set_new_line(true);
  grdTimeSheet->set_delete(true);
  cmdCancel = named("cmdCancel", new QPushButton(QStringLiteral("&New Sheet")));
  cmdOk = named("cmdOk", new QPushButton(QStringLiteral("&Close")));
  auto* column = column_layout(this);
  column->addLayout(build_head());
  column->addWidget(grdTimeSheet, 1);
  column->addLayout(build_totals());
  column->addLayout(plain_button_row({cmdCancel}, {cmdOk}));
  setMinimumSize(116 * theme::unit, 48 * theme::unit);
}

QLayout* frmTimeSheet::build_head() {
  cmbEmployee = named("cmbEmployee", new SSDBCombo);
  cmbEmployee->setMinimumWidth(32 * theme::unit);
  lblSSNum = named("lblSSNum", new QLabel(this));
  lblSSNum->hide();
  dteFirstDay = named("dteFirstDay", new QuillbrookDatePick);
  lblStartDate = named("lblStartDate", new QLabel);
  lblEndDate = named("lblEndDate", new QLabel);
  cmdChangeDate = named("cmdChangeDate", new QPushButton(QStringLiteral("Change &Date")));
  cmdChangeStartDate = named("cmdChangeStartDate", new QPushButton(QStringLiteral("Change &First Day")));
  auto* week = row_layout();
  week->addWidget(dteFirstDay);
  week->addWidget(cmdChangeDate);
  week->addWidget(cmdChangeStartDate);
  auto* days = row_layout();
  days->addWidget(lblStartDate);
  days->addWidget(new QLabel(QStringLiteral("to")));
  days->addWidget(lblEndDate);
  days->addStretch();
  auto* left = form_layout();
  add_field(left, QStringLiteral("&Employee:"), cmbEmployee);
  left->addRow(QStringLiteral("Week:"), days);
  auto* right = form_layout();
  right->addRow(label_for(dteFirstDay, QStringLiteral("&Go to week of:")), week);
  auto* head = row_layout();
  head->addLayout(left);
  head->addStretch(1);
  head->addLayout(right);
  return head;
}

QLayout* frmTimeSheet::build_totals() {
  auto* row = row_layout();
  row->addWidget(new QLabel(QStringLiteral("Hours:")));
  for (size_t at = 0; at < totals_.size(); ++at) {
    totals_[at] = named(("lblTotal" + std::to_string(at)).c_str(), new QLabel);
    totals_[at]->setFont(theme::tabular(totals_[at]->font()));
    row->addWidget(totals_[at]);
  }
  QFont bold = totals_.back()->font();
  bold.setBold(true);
  totals_.back()->setFont(bold);
  row->addStretch(1);
  return row;
}

void frmTimeSheet::connect_controls() {
  on(cmbEmployee, &SSDBCombo::CloseUp, "cmbEmployee_CloseUp", [this] { cmbEmployee_LostFocus(); });
  on(cmbEmployee, &SSDBCombo::LostFocus, "cmbEmployee_LostFocus", [this] { cmbEmployee_LostFocus(); });
  on(grdTimeSheet, &SSDBGrid::BeforeUpdate, "grdTimeSheet_BeforeUpdate",
     [this](int row, bool& cancel) { grdTimeSheet_BeforeUpdate(row, cancel); });
  on(grdTimeSheet, &SSDBGrid::AfterUpdate, "grdTimeSheet_AfterUpdate",
     [this](int row) { grdTimeSheet_AfterUpdate(row); });
  on(grdTimeSheet, &SSDBGrid::BeforeDelete, "grdTimeSheet_BeforeDelete",
     [this](int row, bool& cancel) { grdTimeSheet_BeforeDelete(row, cancel); });
  on(grdTimeSheet, &SSDBGrid::AfterDelete, "grdTimeSheet_AfterDelete", [this] { Calc_Hours(); });
  on(grdTimeSheet, &SSDBGrid::AfterColUpdate, "Calc_Hours", [this] { Calc_Hours(); });
  on(cmdChangeDate, "cmdChangeDate_AfterClick", [this] { go_to_week(dteFirstDay->value()); });
  on(dteFirstDay, &QuillbrookDatePick::CloseUp, "dteFirstDay_CloseUp", [this] { go_to_week(dteFirstDay->value()); });
  on(cmdChangeStartDate, "cmdChangeStartDate_AfterClick",
     [this] { shell.Show_Window({.window = "frmPrefrences", .key = "Payroll"}); });
  on(cmdCancel, "cmdCancel_AfterClick", [this] { cmdCancel_AfterClick(); });
  on(cmdOk, "cmdOk_AfterClick", [this] { close(); });
}

// --- employee and week ---------------------------------------------------------------------------

void frmTimeSheet::load() {
  lists_->fill();
  fill_lists();
  choose_employee(nobody);
  go_to_week(session.today());
  cmdChangeStartDate->setEnabled(shell.has_window("frmPrefrences"));
  cmbEmployee->setFocus();
}

void frmTimeSheet::fill_lists() {
  std::vector<SSDBDropDown::Item> employees;
  for (const TimedEmployee& employee : Employees_With_Time(session))
    employees.push_back({employee.Name, employee.SSNum});
  cmbEmployee->list().set_items(employees);
}

void frmTimeSheet::on_changed(const std::string& table) {
  lists_->changed(table);
  if (table == "Employees") follow_employee();
  if (table == "GeneralPrefs" && grdTimeSheet->commit()) go_to_week(first_);
}

/// Somebody on show may have got another name or number; one who is no longer there is nobody.
void frmTimeSheet::follow_employee() {
  const std::string name = cmbEmployee->text(), SSNum = utf8(lblSSNum->text());
  fill_lists();
  if (SSNum == nobody || cmbEmployee->set_id(SSNum)) return;
  cmbEmployee->set_text(name);
  choose_employee(cmbEmployee->Valid() ? cmbEmployee->id() : nobody);
  read_sheet();
}

void frmTimeSheet::go_to_week(Date day) {
  if (!grdTimeSheet->commit()) return;
  first_ = First_Day_Of_Week(session, day);
  dteFirstDay->set_value(first_);
  Set_Captions();
  read_sheet();
}

/// "Sun 04": each column by its day.
void frmTimeSheet::Set_Captions() {
  for (int day = 0; day < 7; ++day)
    grdTimeSheet->set_caption(column::DayOne + day, Format(first_.plus_days(day), "ddd dd"));
  lblStartDate->setText(qt(first_.to_text()));
  lblEndDate->setText(qt(first_.plus_days(6).to_text()));
}

void frmTimeSheet::cmbEmployee_LostFocus() {
  const std::string SSNum = cmbEmployee->Valid() ? cmbEmployee->id() : nobody;
  if (SSNum == utf8(lblSSNum->text()) || !grdTimeSheet->commit()) return;
  choose_employee(SSNum);
  read_sheet();
}

void frmTimeSheet::choose_employee(const std::string& SSNum) {
  lblSSNum->setText(qt(SSNum));
  std::vector<SSDBDropDown::Item> wages;
  if (SSNum != nobody)
    for (const std::string& wage : Wages_Of(session, SSNum)) wages.push_back({wage, {}});
  drpPayItems->set_items(wages);
  grdTimeSheet->setEnabled(SSNum != nobody);
  grdTimeSheet->set_empty_hint(SSNum == nobody ? QStringLiteral("Choose an employee.") : QString());
}

void frmTimeSheet::cmdCancel_AfterClick() {
  if (!grdTimeSheet->commit()) return;
  cmbEmployee->set_text({});
  choose_employee(nobody);
  read_sheet();
  go_to(cmbEmployee);
}

// --- rows ----------------------------------------------------------------------------------------

void frmTimeSheet::read_sheet() {
  const std::string SSNum = utf8(lblSSNum->text());
  shown_ = Time_Rows(session, first_, SSNum);
  {
    const SSDBGrid::Fill fill(*grdTimeSheet);
    grdTimeSheet->RemoveAll();
    for (const TimeRow& row : shown_) {
      std::vector<store::Value> cells = {row.Customer, row.Item, row.Notes, row.Class};
      for (const auto& hours : row.hours) cells.push_back(hours ? store::Value(*hours) : store::Value());
      cells.insert(cells.end(), {SSNum, row.PayrollItem});
      grdTimeSheet->AddValues(cells);
    }
  }
  Calc_Hours();
}

void frmTimeSheet::Calc_Hours() {
  std::vector<TimeRow> rows;
  for (int row = 0; row < grdTimeSheet->rows(); ++row) rows.push_back(row_at(row));
  const auto sums = tallymere::Calc_Hours(rows);
  for (int day = 0; day < 7; ++day)
    totals_[static_cast<size_t>(day)]->setText(
        qt(Format(first_.plus_days(day), "ddd") + " " + hours_text(sums[static_cast<size_t>(day)]) + "   "));
  totals_.back()->setText(qt("Week " + hours_text(sums.back())));
}

TimeRow frmTimeSheet::row_at(int row) const {
  TimeRow read{.key = row < static_cast<int>(shown_.size()) ? shown_[static_cast<size_t>(row)].key : 0,
               .Customer = grdTimeSheet->text(row, column::Customer),
               .Item = grdTimeSheet->text(row, column::Item),
               .Notes = grdTimeSheet->text(row, column::Notes),
               .Class = grdTimeSheet->text(row, column::Class),
               .PayrollItem = grdTimeSheet->text(row, column::PayrollItem)};
  for (int day = 0; day < 7; ++day)
    if (const auto hours = Money::parse(grdTimeSheet->text(row, column::DayOne + day)))
      read.hours[static_cast<size_t>(day)] = hours->to_double();
  return read;
}

void frmTimeSheet::grdTimeSheet_BeforeUpdate(int row, bool& cancel) {
  std::array<std::string, 7> typed;
  for (int day = 0; day < 7; ++day) typed[static_cast<size_t>(day)] = grdTimeSheet->text(row, column::DayOne + day);
  const auto fault = Time_Row_Fault(typed, grdTimeSheet->text(row, column::PayrollItem));
  if (!fault) return;
  cancel = true;
  session.prompts.box(fault->box);
  const auto day = std::ranges::find(Day_Fields, fault->control);
  grdTimeSheet->set_cell(row, day == Day_Fields.end() ? static_cast<int>(column::PayrollItem)
                                                      : column::DayOne + static_cast<int>(day - Day_Fields.begin()));
}

void frmTimeSheet::grdTimeSheet_AfterUpdate(int row) {
  const auto at = static_cast<size_t>(row);
  if (at >= shown_.size()) shown_.resize(at + 1);
  TimeRow now = row_at(row);
  now.key = Save_Time_Row(session, first_, utf8(lblSSNum->text()), shown_[at], now);
  shown_[at] = now;
  grdTimeSheet->set_text(row, column::SSNum, utf8(lblSSNum->text()));
  Calc_Hours();
}

void frmTimeSheet::grdTimeSheet_BeforeDelete(int row, bool& cancel) {
  const auto at = static_cast<size_t>(row);
  if (at >= shown_.size()) return;
  cancel = true;
  if (shown_[at].key != 0) Delete_Time_Row(session, first_, shown_[at]);
  shown_.erase(shown_.begin() + row);
  cancel = false;
}

/// What is being typed is written, as leaving its row does.
bool frmTimeSheet::may_close() { return grdTimeSheet->commit(); }

}  // namespace tallymere
