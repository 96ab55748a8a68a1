#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/company/session.h"
#include "core/ledger/category_list.h"
#include "core/names/names.h"
#include "lists/list_row.h"

/// The list of items, and the form that makes or changes one.
namespace tallymere {

/// One row of the list of frmItems.
struct ItemListRow {
  std::string ItemName, Description, ItemType, Category, PriceRate;
  bool Dormant = false;
  int level = 0;
};
/// Items in the order of the preference "ItemSort", and below each its sub-items.
std::vector<ItemListRow> Make_Items_List(Session& session, bool show_dormant);

/// A line of a "Group": one of the items that it stands for.
struct GroupLine {
  std::string Item = {};
  std::string Description = {};
  std::optional<double> Qty = {};
  friend bool operator==(const GroupLine&, const GroupLine&) = default;
};

/// What frmModItems shows: the fields of the item's type. Amounts are as they are typed.
struct ItemForm {
  std::string ItemName = {};
  std::string ItemType = {};
  bool chkSubItem = false;
  std::string ParentItem = {};
  std::string Description = {};
  std::string PriceRate = {};  ///< "12.50", or "6.875%"
  std::string ItemCat = {};    ///< CatID: income, or the liability of a "Sales Tax"
  bool InvTaxable = false;
  std::string TaxVendor = {};
  std::string PayMethod = {};
  std::string PayTo = {};  ///< CatID that a "Payment" is deposited to
  std::string InvPurchaseDesc = {};
  std::string Cost = {};
  std::string COGScat = {};
  std::string InvVendor = {};
  std::string InvAsset = {};
  std::string ReorderQty = {};
  std::string InitialQty = {};  ///< of a new part only, with what it is worth
  std::string TotalValue = {};
  std::optional<Date> InvDate = {};
  std::vector<GroupLine> lines = {};
  std::vector<GroupLine> lines_before = {};  ///< as they were read
  bool Dormant = false;
  Carry carry = Carry::Everywhere;  ///< a new name
};
ItemForm Item_Form(Session& session, ListRow& row);

/// Saves the form, or answers with the first mistake. A new name that another item has may make the two one.
RowSave Save_Item(Session& session, ListRow& row, const ItemForm& form);

/// What cmbType offers.
std::vector<std::string> Item_Types(Session& session);
/// Whether items of this type have fraService: one price, one category, taxable or not.
bool Is_Service_Like(std::string_view ItemType);
/// Why the type of an item stays what it is: who uses it, in words; "" for one that nobody uses yet.
std::string Type_Is_Fixed_By(Session& session, const std::string& ItemName);
/// What cmbSubITem offers: items of the type, but `name` and what stands below it.
std::vector<std::string> Items_To_Be_Parent(Session& session, const std::string& ItemType, const std::string& name);

/// A category as the combos of the form choose it.
enum class ItemCategory { Income, CostOfGoods, Asset, TaxLiability, Deposit, Any };
struct CategoryChoice {
  std::string AccountName;  ///< indented where the list is a tree
  std::string CatID;
};
/// What a combo offers; `chosen`, the category an item has already, is always among it.
std::vector<CategoryChoice> Category_Choices(Session& session, ItemCategory which, const std::string& chosen);

}  // namespace tallymere
