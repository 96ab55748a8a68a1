#include "payroll/frmModEmployee.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "core/company/company_settings.h"
#include "core/values/text.h"
#include "payroll/pay_items.h"
#include "shell/drop_downs.h"
#include "shell/list_combo.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/control_text.h"
#include "shell/widgets/frmPreview.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/text_pages.h"

namespace tallymere {

namespace {

namespace column {
enum { Item, Rate, Limit, SSNum, Key };
}

}  // namespace

frmModEmployee::frmModEmployee(Shell& shell_of_frame)
    : RowForm(shell_of_frame, "frmModEmployee", Employee_Rows, {"New Employee", "Edit Employee"}),
      lists_(new DropDowns(session, this)) {
  lists_->small_list(Class_List);
  for (SSDBDropDown*& list : items_) list = new SSDBDropDown(this);
  build();
  connect_controls();
}

void frmModEmployee::connect_controls() {
  on(chkReleased, "chkReleased_Click", [this] { chkReleased_Click(); });
  on(cmbStateWorked, &SSDBCombo::Click, "cmbStateWorked_Click", [this] { cmbStateWorked_Click(); });
  on(cmdDefine, "cmdDefine_AfterClick", [this] { cmdDefine_AfterClick(); });
  on(cmdPrintNotes, "cmdPrintNotes_AfterClick", [this] { cmdPrintNotes_AfterClick(); });
  for (SSDBGrid* grid : grids_) {
    on(grid, &SSDBGrid::BeforeUpdate, "Grid_BeforeUpdate",
       [this, grid](int row, bool& cancel) { Grid_BeforeUpdate(*grid, row, cancel); });
    on(grid, &SSDBGrid::CloseUp, "drpItems_CloseUp",
       [this, grid](int row, int at) { drpItems_CloseUp(*grid, row, at); });
  }
  on(grids_[0], &SSDBGrid::MenuRequested, "grdEarnings_MouseUp",
     [this](int row) { Grid_MouseUp(*grids_[0], row, "mnuDelEarn"); });
  on(grids_[1], &SSDBGrid::MenuRequested, "grdOthers_MouseUp",
     [this](int row) { Grid_MouseUp(*grids_[1], row, "mnuDelItem"); });
}

// --- showing -------------------------------------------------------------------------------------

void frmModEmployee::on_changed(const std::string& table) {
  lists_->changed(table);
  if (table == "PayrollItems") fill_items();
  if (table == "CompanyInfo") show_custom_fields();
}

void frmModEmployee::show_row() {
  lists_->changed("Class");
  fill_items();
  show_custom_fields();
  form_ = is_new() ? New_Employee(session) : Employee_Form(session, row());
  for (const EmployeeField& field : Employee_Fields) Show_Text(Control_Of(*this, field.control), form_[field.field]);
  for (size_t at = 0; at < grids_.size(); ++at) show_lines(at);
  const auto show_as_of = [this](const char* label, const std::optional<Date>& day) {
    static_cast<QLabel&>(Control_Of(*this, label)).setText(qt("Starting Hours as of " + (day ? day->to_text() : "")));
  };
  show_as_of("Label25", form_.SickDateStart);
  show_as_of("Label32", form_.VacDateStart);
  chkReleased->setChecked(form_.ReleaseDate.has_value());
  dteRelease->set_value(form_.ReleaseDate.value_or(session.today()));
  chkReleased_Click();
  lblSSNum->setText(qt(row().key()));
  if (!is_new()) setWindowTitle(qt(form_["Name"]));
  go_to(qobject_cast<QWidget*>(&Control_Of(*this, "txtSSNum")));
}

void frmModEmployee::show_lines(size_t at) {
  SSDBGrid& grid = *grids_[at];
  const SSDBGrid::Fill fill(grid);
  grid.RemoveAll();
  for (const EmployeeGridRow& line : form_.lines[at])
    grid.AddValues({line.item, line.rate, line.limit, row().key(), std::to_string(line.key)});
}

/// A free field without a name is none.
void frmModEmployee::show_custom_fields() {
  const CustomFields captions = Read_Custom_Fields(session);
  for (size_t at = 0; at < captions.size(); ++at) {
    lblCust[at]->setText(qt(captions[at]));
    lblCust[at]->setVisible(!captions[at].empty());
    txtCust[at]->setVisible(!captions[at].empty());
    if (!captions[at].empty()) txtCust[at]->setAccessibleName(qt(captions[at]));
  }
}

void frmModEmployee::fill_items() {
  std::array<std::vector<SSDBDropDown::Item>, 3> rows;
  for (const PayItem& item : PayItems::Of(*session.dbCompany)->all()) {
    const ItemType type = item.type();
    if (type == ItemType::Wage) rows[0].push_back({item.Name, {}});
    if (type == ItemType::Addition || type == ItemType::Deduction || type == ItemType::CompanyContribution)
      rows[1].push_back({item.Name, {}});
    if (type == ItemType::OtherTax) rows[2].push_back({item.Name, {}});
  }
  for (size_t at = 0; at < rows.size(); ++at) items_[at]->set_items(rows[at]);
}

// --- what the controls do ------------------------------------------------------------------------

void frmModEmployee::chkReleased_Click() { dteRelease->setEnabled(chkReleased->isChecked()); }

void frmModEmployee::cmbStateWorked_Click() {
  const std::string state = cmbStateWorked->text();
  const auto items = PayItems::Of(*session.dbCompany);
  if (std::ranges::any_of(items->all(), [&](const PayItem& item) { return same_text(item.SState, state); })) return;
  session.prompts.box(
      {"You have no payroll items for this state. Please make sure you add your payroll items for this "
       "state.",
       "No Payroll Items"});
  if (shell.has_window("frmPayrollItems")) shell.Ask_Window({.window = "frmPayrollItems", .key = {}});
}

void frmModEmployee::Grid_BeforeUpdate(SSDBGrid& grid, int row, bool& cancel) {
  cancel = number_typed().empty();
  if (cancel) return session.prompts.box({"Please Enter a Social Security Number first.", ""});
  grid.set_text(row, column::SSNum, number_typed());
}

/// An item that is chosen brings what it usually has. A wage has nothing.
void frmModEmployee::drpItems_CloseUp(SSDBGrid& grid, int row, int at) {
  const auto items = PayItems::Of(*session.dbCompany);
  const PayItem* item = items->find(grid.text(row, column::Item));
  if (&grid == grids_[0] || at != column::Item || !item) return;
  grid.set_text(row, column::Rate, item->DefaultRate);
  grid.set_text(row, column::Limit, item->DefaultLimit ? item->DefaultLimit->to_text() : "");
}

void frmModEmployee::Grid_MouseUp(SSDBGrid& grid, int row, const char* menu) {
  if (row < 0 || row >= grid.rows()) return;
  shell.Popup(menu, grid, {}, [this, &grid, row](const std::string& item) {
    guard((item + "_Click").c_str(), [&] { grid.delete_row(row); });
  });
}

void frmModEmployee::cmdDefine_AfterClick() {
  shell.Ask_Window({.window = "frmCustFields", .key = {}});
  show_custom_fields();
}

void frmModEmployee::cmdPrintNotes_AfterClick() {
  const QString name = qt(read()["Name"]), notes = qt(read()["Notes"]);
  frmPreview preview(
      shell, QStringLiteral("Notes"),
      [&](const QPageLayout& page) { return std::make_unique<TextPages>(page, name, notes); },
      Letter_Page(QPageLayout::Portrait));
  shell.Run_Modal(preview);
}

// --- saving --------------------------------------------------------------------------------------

std::string frmModEmployee::number_typed() const { return trim(Text_In(Control_Of(*this, "txtSSNum"))); }

std::string frmModEmployee::saved_key() const { return number_typed(); }

EmployeeForm frmModEmployee::read() const {
  EmployeeForm form = form_;
  for (const EmployeeField& field : Employee_Fields) form[field.field] = Text_In(Control_Of(*this, field.control));
  form.ReleaseDate = chkReleased->isChecked() ? std::optional(dteRelease->value()) : std::nullopt;
  for (size_t at = 0; at < grids_.size(); ++at) form.lines[at] = read_lines(*grids_[at]);
  return form;
}

/// A line in which nothing stands is none.
std::vector<EmployeeGridRow> frmModEmployee::read_lines(const SSDBGrid& grid) const {
  std::vector<EmployeeGridRow> lines;
  for (int row = 0; row < grid.rows(); ++row) {
    const std::string key = is_new() ? "" : grid.text(row, column::Key);
    EmployeeGridRow line{key.empty() ? 0 : std::stoll(key), grid.text(row, column::Item), grid.text(row, column::Rate),
                         grid.text(row, column::Limit)};
    if (!(line.item + line.rate + line.limit).empty()) lines.push_back(line);
  }
  return lines;
}

RowSave frmModEmployee::save_row() {
  if (!number_typed().empty())  // without one the lines have no place; that is said first
    for (SSDBGrid* grid : grids_)
      if (!grid->commit()) return {.stayed = true};
  static_cast<ListCombo&>(Control_Of(*this, "txtClass")).settle();
  return Save_Employee(session, row(), read());
}

void frmModEmployee::announce() {
  shell.changed("PayHistory");
  const bool carried = !is_new() && (number_typed() != row().key() || read()["Name"] != form_["Name"]);
  if (carried) shell.changed("Transactions");
  RowForm::announce();
}

}  // namespace tallymere
