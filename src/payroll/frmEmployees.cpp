#include "payroll/frmEmployees.h"

#include <QCheckBox>

#include "core/company/ss_number.h"
#include "payroll/employees.h"

namespace tallymere {

namespace {

enum { SSNum, Name, Key };

}  // namespace

frmEmployees::frmEmployees(Shell& shell_of_frame)
    : ListForm(shell_of_frame, "frmEmployees", "grdEmployees", {"mnuEmployee", "mnuNewEmp", "mnuDelEmp"}) {
  setWindowTitle(QStringLiteral("Employees"));
  chkReleased = named("chkReleased", new QCheckBox(QStringLiteral("&Show Released Employees")));
  build({{.name = QStringLiteral("Social Security #"), .width = 18},
         {.name = QStringLiteral("Name")},
         {.name = QStringLiteral("Key"), .kind = Kind::hidden}},
        Key, chkReleased);
  grdEmployees->set_empty_hint(QStringLiteral("No employees yet. Insert makes one."));
  on(chkReleased, "chkReleased_Click", [this] { make_list_again(); });
  on(grdEmployees, &SSDBGrid::DblClick, "grdEmployees_DblClick", [this] { chosen("mnuEditEmp"); });
}

void frmEmployees::on_changed(const std::string& table) {
  if (table == "Employees") make_list_again();
}

void frmEmployees::Make_List() {
  const SSDBGrid::Fill fill(*grdEmployees);
  grdEmployees->RemoveAll();
  for (const EmployeeListRow& row : Make_Employee_List(session, chkReleased->isChecked()))
    grdEmployees->AddValues({Shown_SSNum(session, row.SSNum), row.Name, row.SSNum}, row.released ? dormant_style : "");
}

std::string frmEmployees::number() const { return grid_->text(grid_->Row(), Key); }

std::vector<std::string> frmEmployees::disabled() const {
  return has_row() ? std::vector<std::string>() : std::vector<std::string>{"mnuEditEmp"};
}

void frmEmployees::chosen(const std::string& item) {
  if (item == "mnuNewEmp") new_row("frmModEmployee");
  if (item == "mnuEditEmp") edit_row("frmModEmployee", Employee_Rows, number());
  if (item == "mnuDelEmp") mnuDelEmp_Click();
}

void frmEmployees::mnuDelEmp_Click() {
  if (!has_row()) return session.prompts.box({"Please Select an Employee to delete", "No Selection"});
  if (!Delete_Employee(session, number(), grid_->text(grid_->Row(), Name))) return;
  shell.changed("PayHistory");
  shell.changed("Employees");
}

}  // namespace tallymere
