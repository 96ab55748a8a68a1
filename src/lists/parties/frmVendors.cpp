#include "lists/parties/frmVendors.h"

#include <QCheckBox>

#include "core/ledger/balances.h"
#include "lists/named_rows.h"
#include "lists/parties/vendors.h"

namespace tallymere {

namespace {

enum { Name, Balance };

}  // namespace

frmVendors::frmVendors(Shell& shell_of_frame)
    : ListForm(shell_of_frame, "frmVendors", "grdVendors", {"mnuVendors", "mnuNewVen", "mnuDeleteVen"}) {
  setWindowTitle(QStringLiteral("Vendors"));
  chkShowDormant = named("chkShowDormant", new QCheckBox(QStringLiteral("&Show Dormant Vendors")));
  build({{.name = QStringLiteral("Name")}, {.name = QStringLiteral("Balance"), .kind = Kind::money, .width = 16}}, Name,
        chkShowDormant);
  grdVendors->set_empty_hint(QStringLiteral("No vendors yet. Insert makes one."));
  on(chkShowDormant, "chkShowDormant_Click", [this] { make_list_again(); });
  on(grdVendors, &SSDBGrid::DblClick, "grdVendors_DblClick", [this] { chosen("mnuEditVen"); });
}

void frmVendors::load() {
  Update_Vendors(session);
  ListForm::load();
}

/// What was entered may have changed what vendors are owed.
void frmVendors::on_changed(const std::string& table) {
  if (table != "Vendors" && table != "Transactions") return;
  Update_Vendors(session);
  make_list_again();
}

void frmVendors::Make_List() {
  const SSDBGrid::Fill fill(*grdVendors);
  grdVendors->RemoveAll();
  for (const VendorRow& row : Make_Vendor_List(session, chkShowDormant->isChecked()))
    grdVendors->AddValues({row.Name, row.Balance}, row.Dormant ? dormant_style : "");
}

std::string frmVendors::name() const { return grid_->text(grid_->Row(), Name); }

std::vector<std::string> frmVendors::disabled() const {
  std::vector<std::string> off;
  if (!has_row()) off = {"mnuEditVen", "mnuDeleteVen"};
  if (!has_row() || !shell.has_window("frmPrintCustom")) off.push_back("mnuVenRep");
  return off;
}

void frmVendors::chosen(const std::string& item) {
  if (item == "mnuNewVen") new_row("frmModVendor");
  if (item == "mnuEditVen") edit_row("frmModVendor", Vendor_Rows, name());
  if (item == "mnuDeleteVen") mnuDeleteVen_Click();
  if (item == "mnuVenRep") shell.Show_Custom_Report({.window = "frmPrintCustom", .key = "VendorRep", .parent = name()});
}

void frmVendors::mnuDeleteVen_Click() {
  if (Delete_Named_Row(session, Vendor_Rows, NameList::Vendors, name())) shell.changed("Vendors");
}

}  // namespace tallymere
