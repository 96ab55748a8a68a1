#include "payroll/items/frmPayrollItems.h"

#include "payroll/items/pay_item_form.h"

namespace tallymere {

namespace {

enum { Name, Type };

}  // namespace

frmPayrollItems::frmPayrollItems(Shell& shell_of_frame)
    : ListForm(shell_of_frame, "frmPayrollItems", "grdPayItems", {"mnuPayroll", "mnuNewPayroll", "mnuDeletePayroll"}) {
  setWindowTitle(QStringLiteral("PayRoll Items"));
  build({{.name = QStringLiteral("Name")}, {.name = QStringLiteral("Type"), .width = 24}}, Name);
  on(grdPayItems, &SSDBGrid::DblClick, "grdPayItems_DblClick", [this] { chosen("mnuEditPayroll"); });
}

/// Each time the window comes to the front it shows the items as they are.
void frmPayrollItems::take(const Request&) { make_list_again(); }

void frmPayrollItems::on_changed(const std::string& table) {
  if (table == "PayrollItems") make_list_again();
}

void frmPayrollItems::Make_List() {
  const SSDBGrid::Fill fill(*grdPayItems);
  grdPayItems->RemoveAll();
  for (const PayItemListRow& row : Make_Pay_Item_List(session)) grdPayItems->AddValues({row.Name, row.Type});
}

std::vector<std::string> frmPayrollItems::disabled() const {
  if (!has_row()) return {"mnuEditPayroll", "mnuDeletePayroll"};
  const bool federal = Item_Type_Of(grid_->text(grid_->Row(), Type)) == ItemType::FederalTax;
  return federal ? std::vector<std::string>{"mnuDeletePayroll"} : std::vector<std::string>();
}

void frmPayrollItems::chosen(const std::string& item) {
  const std::string name = grid_->text(grid_->Row(), Name);
  if (item == "mnuNewPayroll") new_row("frmModPayItem");
  if (item == "mnuEditPayroll") edit_row("frmModPayItem", PayItem_Rows, name);
  if (item == "mnuDeletePayroll" && Delete_Pay_Item(session, name)) shell.changed("PayrollItems");
}

}  // namespace tallymere
