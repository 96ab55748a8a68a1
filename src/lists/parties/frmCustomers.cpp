#include "lists/parties/frmCustomers.h"

#include <QCheckBox>

#include "core/ledger/balances.h"
#include "core/ledger/tree_list.h"
#include "lists/named_rows.h"
#include "lists/parties/customers.h"

namespace tallymere {

namespace {

enum { Name, Balance, Key };

}  // namespace

frmCustomers::frmCustomers(Shell& shell_of_frame)
    : ListForm(shell_of_frame, "frmCustomers", "grdCustomers", {"mnuCustomers", "mnuNewCustomer", "mnuDeleteCus"}) {
  setWindowTitle(QStringLiteral("Customers"));
  chkShowDormant = named("chkShowDormant", new QCheckBox(QStringLiteral("&Show Dormant Customers")));
  build({{.name = QStringLiteral("Name")},
         {.name = QStringLiteral("Balance"), .kind = Kind::money, .width = 16},
         {.name = QStringLiteral("Key"), .kind = Kind::hidden}},
        Key, chkShowDormant);
  grdCustomers->set_empty_hint(QStringLiteral("No customers yet. Insert makes one."));
  on(chkShowDormant, "chkShowDormant_Click", [this] { make_list_again(); });
  on(grdCustomers, &SSDBGrid::DblClick, "grdCustomers_DblClick", [this] { chosen("mnuEditCus"); });
}

void frmCustomers::load() {
  Update_Customers(session);
  ListForm::load();
}

/// What was entered may have changed what customers owe.
void frmCustomers::on_changed(const std::string& table) {
  if (table != "Customers" && table != "Transactions") return;
  Update_Customers(session);
  make_list_again();
}

void frmCustomers::Make_List() {
  const SSDBGrid::Fill fill(*grdCustomers);
  grdCustomers->RemoveAll();
  for (const CustomerRow& row : Make_Customer_List(session, chkShowDormant->isChecked()))
    grdCustomers->AddValues({Indented(row.Name, row.level), row.Balance, row.Name}, row.Dormant ? dormant_style : "");
}

std::string frmCustomers::name() const { return grid_->text(grid_->Row(), Key); }

std::vector<std::string> frmCustomers::disabled() const {
  std::vector<std::string> off;
  if (!has_row()) off = {"mnuEditCus", "mnuDeleteCus"};
  if (!has_row() || !shell.has_window("frmStatement")) off.push_back("mnuCreateStatement");
  return off;
}

void frmCustomers::chosen(const std::string& item) {
  if (item == "mnuNewCustomer") new_row("frmModCustomer");
  if (item == "mnuEditCus") edit_row("frmModCustomer", Customer_Rows, name());
  if (item == "mnuDeleteCus") mnuDeleteCus_Click();
  if (item == "mnuCreateStatement") shell.Show_Window({.window = "frmStatement", .key = name()});
  if (item == "mnuCreateStatements") shell.Show_Window({.window = "frmStatements", .key = {}});
}

void frmCustomers::mnuDeleteCus_Click() {
  if (Delete_Named_Row(session, Customer_Rows, NameList::Customers, name())) shell.changed("Customers");
}

}  // namespace tallymere
