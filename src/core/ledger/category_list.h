#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/ledger/item_rate.h"
#include "core/ledger/tree_list.h"
#include "core/store/database.h"

/// Categories and items as indented lists. Each list is one reading of its table, arranged in memory.
namespace tallymere {

/// The category types in the order in which lists and reports show them.
inline constexpr std::array<std::string_view, 14> Category_Types = {"Bank",
                                                                    "Accounts Receivable",
                                                                    "Current Asset",
                                                                    "Fixed Asset",
                                                                    "Accounts Payable",
                                                                    "Credit Card",
                                                                    "Current Liability",
                                                                    "Long Term Liability",
                                                                    "Equity",
                                                                    "Income",
                                                                    "Other Income",
                                                                    "Cost of Goods Sold",
                                                                    "Expense",
                                                                    "Other Expense"};

struct CategoryRow {
  std::string CatID, AccountName, AccountType, ParentAccount;
  Money Balance;
  bool Dormant = false;
  int level = 0;

  const std::string& key() const { return CatID; }
  const std::string& parent() const { return ParentAccount; }
};

/// The list of categories: the top rows grouped by Category_Types, by name within a type, sub-categories by
/// name below their parent whatever their own type. Without `show_dormant` a dormant category and all below
/// it are left out.
std::vector<CategoryRow> Make_Category_List(store::Database& company, bool show_dormant);

/// The drop-down drpExpenseList of the entry windows: the top rows by AccountType, dormant ones too.
std::vector<CategoryRow> Make_Expense_List(store::Database& company);

struct ItemRow {
  std::string ItemName, ItemType, ParentItem, Description, InvPurchaseDesc, ItemCat, PayMethod, PayTo;
  ItemRate PriceRate;
  Money Cost;
  bool Dormant = false;
  int level = 0;

  const std::string& key() const { return ItemName; }
  const std::string& parent() const { return ParentItem; }
};

enum class ItemOrder { Name, TypeThenName };  ///< of the top rows; sub-items are always by name

/// Items and below each its sub-items; one whose parent is gone stands at the top. Without `show_dormant` a dormant item
/// and all below it are left out.
std::vector<ItemRow> Make_Item_List(store::Database& company, ItemOrder order = ItemOrder::Name,
                                    bool show_dormant = true);

}  // namespace tallymere
