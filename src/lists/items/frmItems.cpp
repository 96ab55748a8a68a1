#include "lists/items/frmItems.h"

#include <QCheckBox>

#include "core/ledger/tree_list.h"
#include "lists/items/items.h"
#include "lists/named_rows.h"

namespace tallymere {

namespace {

enum { Name, Description, Type, Category, PriceRate, Key };

}  // namespace

frmItems::frmItems(Shell& shell_of_frame)
    : ListForm(shell_of_frame, "frmItems", "grdAccounts", {"mnuItems", "mnuNewItem", "mnuDeleteItem"}) {
  setWindowTitle(QStringLiteral("Items"));
  chkDormant = named("chkDormant", new QCheckBox(QStringLiteral("&Show Dormant Items")));
  build({{.name = QStringLiteral("Name"), .width = 28},
         {.name = QStringLiteral("Description")},
         {.name = QStringLiteral("Type"), .width = 19},
         {.name = QStringLiteral("Category"), .width = 22},
         {.name = QStringLiteral("Price/Rate"), .kind = Kind::money, .width = 14},
         {.name = QStringLiteral("Key"), .kind = Kind::hidden}},
        Key, chkDormant);
  grdAccounts->set_empty_hint(QStringLiteral("No items yet. Insert makes one."));
  on(chkDormant, "chkDormant_Click", [this] { make_list_again(); });
  on(grdAccounts, &SSDBGrid::DblClick, "grdAccounts_DblClick", [this] { chosen("mnuEditItem"); });
}

/// Also when the order of items, the names of their categories, or a vendor's name changed.
void frmItems::on_changed(const std::string& table) {
  if (table == "Items" || table == "Accounts" || table == "GeneralPrefs") make_list_again();
}

void frmItems::Make_List() {
  const SSDBGrid::Fill fill(*grdAccounts);
  grdAccounts->RemoveAll();
  for (const ItemListRow& row : Make_Items_List(session, chkDormant->isChecked()))
    grdAccounts->AddValues(
        {Indented(row.ItemName, row.level), row.Description, row.ItemType, row.Category, row.PriceRate, row.ItemName},
        row.Dormant ? dormant_style : "");
}

std::string frmItems::name() const { return grid_->text(grid_->Row(), Key); }

std::vector<std::string> frmItems::disabled() const {
  std::vector<std::string> off;
  if (!has_row()) off = {"mnuEditItem", "mnuDeleteItem"};
  if (!has_row() || !shell.has_window("frmPrintCustom")) off.push_back("mnuItemReport");
  return off;
}

void frmItems::chosen(const std::string& item) {
  if (item == "mnuNewItem") new_row("frmModItems");
  if (item == "mnuEditItem") edit_row("frmModItems", Item_Rows, name());
  if (item == "mnuDeleteItem") mnuDeleteItem_Click();
  if (item == "mnuItemReport")
    shell.Show_Custom_Report({.window = "frmPrintCustom", .key = "ItemRep", .parent = name()});
}

void frmItems::mnuDeleteItem_Click() {
  if (Delete_Named_Row(session, Item_Rows, NameList::Items, name())) shell.changed("Items");
}

}  // namespace tallymere
