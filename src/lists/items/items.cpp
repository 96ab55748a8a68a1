#include "lists/items/items.h"

#include <algorithm>

#include "core/company/preferences.h"
#include "core/ledger/item_rate.h"
#include "core/ledger/ledger.h"
#include "core/values/caseless.h"
#include "core/values/format.h"
#include "core/values/text.h"
#include "lists/items/item_groups.h"

namespace tallymere {
namespace {

constexpr std::string_view like_services[] = {"Service", "Other Charge", "Non-Inventory Part", "Discount"};

struct CategoryRule {
  ItemCategory which;
  std::string_view type;  ///< the AccountType offered; empty: the tree of all
};
constexpr CategoryRule category_rules[] = {{ItemCategory::Income, "Income"},
                                           {ItemCategory::Asset, "Current Asset"},
                                           {ItemCategory::TaxLiability, "Current Liability"},
                                           {ItemCategory::Deposit, "Bank"},
                                           {ItemCategory::CostOfGoods, ""},
                                           {ItemCategory::Any, ""}};

bool Offers(const CategoryRule& rule, const CategoryRow& row) {
  return rule.type.empty() || row.AccountType == rule.type ||
         (rule.which == ItemCategory::Deposit && row.CatID == undeposited_funds);
}

std::string Number_Text(const store::Value& number) { return number.blank() ? "" : number.text(); }

std::string Amount_Text(const store::Value& amount) { return amount.blank() ? "" : Format(amount.money(), price_mask); }

}  // namespace

// --- frmItems --------------------------------------------------------------------------------------------

std::vector<ItemListRow> Make_Items_List(Session& session, bool show_dormant) {
  store::Database& db = *session.dbCompany;
  const bool by_name = Preference(db, preference::ItemSort) == "Name";
  CaselessMap<std::string> categories;
  db.each("SELECT CatID, AccountName FROM Accounts", {},
          [&](const store::Row& row) { categories[std::string(row.text(0))] = row.text(1); });
  std::vector<ItemListRow> list;
  for (const ItemRow& row : Make_Item_List(db, by_name ? ItemOrder::Name : ItemOrder::TypeThenName, show_dormant)) {
    const auto category = categories.find(row.ItemCat);
    list.push_back({row.ItemName, row.Description, row.ItemType, category == categories.end() ? "" : category->second,
                    Rate_Text(row.PriceRate, row.ItemType), row.Dormant, row.level});
  }
  return list;
}

// --- what frmModItems offers -----------------------------------------------------------------------------

std::vector<std::string> Item_Types(Session& session) {
  std::vector<std::string> types;
  session.dbAccounts->each("SELECT Type FROM ItemTypes ORDER BY RowKey", {},
                           [&](const store::Row& row) { types.emplace_back(row.text(0)); });
  return types;
}

bool Is_Service_Like(std::string_view ItemType) {
  return std::ranges::find(like_services, ItemType) != std::end(like_services);
}

std::string Type_Is_Fixed_By(Session& session, const std::string& ItemName) {
  return Spoken(Used_In(session, NameList::Items, ItemName));
}

std::vector<std::string> Items_To_Be_Parent(Session& session, const std::string& ItemType, const std::string& name) {
  std::vector<std::string> parents;
  int own_level = -1;  // of `name`, while what is below it is passed by
  for (const ItemRow& row : Make_Item_List(*session.dbCompany)) {
    if (own_level >= 0 && row.level > own_level) continue;
    own_level = !name.empty() && same_text(row.ItemName, name) ? row.level : -1;
    if (own_level < 0 && row.ItemType == ItemType) parents.push_back(row.ItemName);
  }
  return parents;
}

std::vector<CategoryChoice> Category_Choices(Session& session, ItemCategory which, const std::string& chosen) {
  const CategoryRule& rule = *std::ranges::find(category_rules, which, &CategoryRule::which);
  std::vector<CategoryChoice> choices;
  for (const CategoryRow& row : Make_Expense_List(*session.dbCompany))
    if (Offers(rule, row) || (!chosen.empty() && same_text(row.CatID, chosen)))
      choices.push_back({rule.type.empty() ? Indented(row.AccountName, row.level) : row.AccountName, row.CatID});
  if (!chosen.empty() && std::ranges::none_of(choices, [&](auto& choice) { return same_text(choice.CatID, chosen); }))
    choices.push_back({Category_Name(session, chosen), chosen});  // one that hangs below nothing
  return choices;
}

ItemForm Item_Form(Session& session, ListRow& row) {
  if (row.is_new()) return {.InvDate = session.today()};
  ItemForm form{.ItemName = row.key(),
                .ItemType = row["ItemType"].text(),
                .chkSubItem = !row["ParentItem"].blank(),
                .ParentItem = row["ParentItem"].text(),
                .Description = row["Description"].text(),
                .ItemCat = row["ItemCat"].text(),
                .InvTaxable = row["InvTaxable"].flag(),
                .TaxVendor = row["TaxVendor"].text(),
                .PayMethod = row["PayMethod"].text(),
                .PayTo = row["PayTo"].text(),
                .InvPurchaseDesc = row["InvPurchaseDesc"].text(),
                .Cost = row["Cost"].blank() ? "$0.00" : Amount_Text(row["Cost"].value()),
                .COGScat = row["COGScat"].text(),
                .InvVendor = row["InvVendor"].text(),
                .InvAsset = row["InvAsset"].text(),
                .ReorderQty = Number_Text(row["ReorderQty"].value()),
                .InvDate = row["InvDate"].maybe_date(),
                .Dormant = row["Dormant"].flag()};
  form.PriceRate = Rate_Text(Rate_Of(row["PriceRate"].value(), row["ExactRate"].value()), form.ItemType);
  form.lines = form.lines_before = Group_Lines(session, form.ItemName);
  return form;
}

}  // namespace tallymere
