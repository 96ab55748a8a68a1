#include <algorithm>

#include "core/ledger/item_rate.h"
#include "core/store/sql.h"
#include "core/values/text.h"
#include "lists/items/item_groups.h"
#include "lists/items/items.h"
#include "lists/named_rows.h"

namespace tallymere {
namespace {

constexpr std::string_view part = "Inventory Part";

Fault Mistake(const std::string& text, const std::string& title, const std::string& control) {
  return {{text, title, Icon::Information}, control};
}
Fault Plain(const std::string& text, const std::string& control) { return {{text, "", Icon::None}, control}; }

// --- mistakes --------------------------------------------------------------------------------------------

std::optional<Fault> Type_Fault(Session& session, ListRow& row, const ItemForm& form) {
  const auto types = Item_Types(session);
  if (std::ranges::find(types, form.ItemType) == types.end())
    return Mistake("Please select a type for this Item.", "No Type", "cmbType");
  if (row.is_new() || row["ItemType"].text() == form.ItemType) return std::nullopt;
  const std::string users = Type_Is_Fixed_By(session, row.key());
  if (users.empty()) return std::nullopt;
  return Mistake("The type of this item stays \"" + row["ItemType"].text() + "\", for it is used in " + users + ".",
                 "Item in Use", "cmbType");
}

std::optional<Fault> Parent_Fault(Session& session, ListRow& row, const ItemForm& form) {
  if (!form.chkSubItem || form.ParentItem.empty()) return std::nullopt;
  const auto parents = Items_To_Be_Parent(session, form.ItemType, row.key());
  if (std::ranges::any_of(parents, [&](auto& name) { return same_text(name, form.ParentItem); })) return std::nullopt;
  return Mistake("Please select a Parent Item of the same type.", "No Parent", "cmbSubITem");
}

std::optional<Fault> Category_Fault(const ItemForm& form) {
  if (form.ItemType == "Sales Tax" && form.ItemCat.empty())
    return Plain("Please input a liability category for this sales tax.", "cmbTaxLia");
  if (form.ItemType == "Payment" && form.PayTo.empty())
    return Plain("Please input a deposit category for this payment.", "cmbDeposit");
  if (form.ItemType != part) return std::nullopt;
  const std::pair<std::string, const char*> needed[] = {
      {form.COGScat, "cmbInvCOGSC"}, {form.ItemCat, "cmbInvIncome"}, {form.InvAsset, "cmbAsset"}};
  for (const auto& [CatID, control] : needed)
    if (CatID.empty())
      return Plain("Please input a income category, COGS Category and Asset Category for this Inventroy Part.",
                   control);
  return std::nullopt;
}

/// What is typed and no number; the fields of other types are blank.
std::optional<Fault> Number_Fault(const ItemForm& form) {
  const auto fault = [](const std::string& typed, const std::string& control) {
    return Mistake("\"" + typed + "\" is not an amount.", "No Amount", control);
  };
  if (!Parse_Rate(form.PriceRate))
    return fault(form.PriceRate, form.ItemType == part          ? "txtInvPrice"
                                 : form.ItemType == "Sales Tax" ? "txtTaxRate"
                                                                : "txtPrice");
  for (const auto& [typed, control] : {std::pair{form.Cost, "txtInvCost"}, {form.TotalValue, "txtInvValue"}})
    if (!trim(typed).empty() && !Money::parse(typed)) return fault(typed, control);
  for (const auto& [typed, control] : {std::pair{form.ReorderQty, "txtReorder"}, {form.InitialQty, "txtInvQty"}})
    if (!trim(typed).empty() && !is_numeric(typed)) return fault(typed, control);
  return std::nullopt;
}

/// A vendor that the form names anew is one of the list.
std::optional<Fault> Vendor_Fault(Session& session, ListRow& row, const ItemForm& form) {
  const bool tax = form.ItemType == "Sales Tax";
  const std::string& name = tax ? form.TaxVendor : form.InvVendor;
  if (name.empty() || row[tax ? "TaxVendor" : "InvVendor"].text() == name || Row_Exists(session, Vendor_Rows, name))
    return std::nullopt;
  return Mistake("There is no vendor named \"" + name + "\".", "No Vendor", tax ? "cmbTaxAgency" : "cmbInvVen");
}

std::optional<Fault> Item_Fault(Session& session, ListRow& row, const ItemForm& form) {
  if (auto fault = Type_Fault(session, row, form)) return fault;
  if (auto fault = Parent_Fault(session, row, form)) return fault;
  if (auto fault = Category_Fault(form)) return fault;
  if (auto fault = Number_Fault(form)) return fault;
  if (form.ItemType == part || form.ItemType == "Sales Tax")
    if (auto fault = Vendor_Fault(session, row, form)) return fault;
  return form.ItemType == "Group" ? Group_Fault(session, row.key(), form.lines) : std::nullopt;
}

// --- fields ----------------------------------------------------------------------------------------------

/// What reads alike stays as it is, so that looking and saving changes nothing.
void Set(ListRow& row, std::string_view field, const store::Value& number) {
  if (row.is_new() || row[field].number() != number.number()) row[field] = number;
}
void Set_If_Typed(ListRow& row, std::string_view field, const std::string& typed) {
  if (!trim(typed).empty()) Set(row, field, *Money::parse(typed));
}

/// "" is a price of 0.
void Set_Rate(ListRow& row, const std::string& typed) {
  const ItemRate before = Rate_Of(row["PriceRate"].value(), row["ExactRate"].value());
  if (!row.is_new() && Rate_Text(before, row["ItemType"].text()) == typed) return;
  const ItemRate rate = *Parse_Rate(typed);
  Set(row, "PriceRate", rate.PriceRate.value_or(Money()));
  if (before.ExactRate != rate.ExactRate) row["ExactRate"] = rate.ExactRate;
}

void Write_Service(ListRow& row, const ItemForm& form) {
  Set_Rate(row, form.PriceRate);
  row.set_text("ItemCat", form.ItemCat);
  row.set_flag("InvTaxable", form.InvTaxable);
}

/// What a part begins with. Without a reorder quantity none of it is counted as in stock here.
void Begin_Stock(ListRow& row, const ItemForm& form) {
  const store::Value quantity = trim(form.InitialQty).empty() ? store::Value(0.0) : store::Value(trim(form.InitialQty));
  row["StockQty"] = trim(form.ReorderQty).empty() ? store::Value(0.0) : quantity;
  row["InitialQty"] = quantity;
  Set_If_Typed(row, "TotalValue", form.TotalValue);
}

void Write_Part(ListRow& row, const ItemForm& form, bool begins_stock) {
  Set_If_Typed(row, "Cost", form.Cost);
  row.set_text("COGScat", form.COGScat);
  row.set_text("InvVendor", form.InvVendor);
  row.set_text("InvPurchaseDesc", form.InvPurchaseDesc);
  if (!trim(form.PriceRate).empty()) Set_Rate(row, form.PriceRate);
  row.set_text("ItemCat", form.ItemCat);
  row.set_text("InvAsset", form.InvAsset);
  if (!trim(form.ReorderQty).empty()) Set(row, "ReorderQty", store::Value(trim(form.ReorderQty)).number());
  if (begins_stock) Begin_Stock(row, form);
  if (row["InvDate"].maybe_date() != form.InvDate) row["InvDate"] = form.InvDate;
  row.set_flag("InvTaxable", form.InvTaxable);
}

void Write_Fields(ListRow& row, const ItemForm& form) {
  const bool begins_stock = row.is_new() || row["ItemType"].text() != part;
  if (Is_Service_Like(form.ItemType)) Write_Service(row, form);
  if (form.ItemType == part) Write_Part(row, form, begins_stock);
  if (form.ItemType == "Sales Tax") {
    Set_Rate(row, form.PriceRate);
    row.set_text("TaxVendor", form.TaxVendor);
    row.set_text("ItemCat", form.ItemCat);
  }
  if (form.ItemType == "Payment") {
    row.set_text("PayMethod", form.PayMethod);
    row.set_text("PayTo", form.PayTo);
  }
  if (form.ItemType == "Subtotal" || form.ItemType == "Group") {
    row.set_text("ItemCat", "");
    Set_Rate(row, "");
  }
  row.set_text("Description", form.Description);
  row.set_text("ItemType", form.ItemType);
  row.set_text("ParentItem", form.chkSubItem ? form.ParentItem : "");
  row.set_flag("Dormant", form.Dormant);
}

std::optional<Fault> Write_Item(Session& session, ListRow& row, const ItemForm& form) {
  if (auto fault = Item_Fault(session, row, form)) return fault;
  Write_Fields(row, form);
  const std::vector<GroupLine> no_lines;
  Write_Group(session, row.is_new() ? trim(form.ItemName) : row.key(), form.lines_before,
              form.ItemType == "Group" ? form.lines : no_lines);
  return std::nullopt;
}

// --- two items become one --------------------------------------------------------------------------------

/// What of an item goes over to the one that it becomes.
struct Stock {
  std::string ItemType;
  double InitialQty, StockQty;
  Money TotalValue;
};

std::optional<Fault> Merge_Item(Session& session, const std::string& name, const Stock& stock,
                                const std::string& into) {
  store::Database& db = *session.dbCompany;
  const std::string type = db.value("SELECT ItemType FROM Items WHERE ItemName = ?", {into}).text();
  if (type != stock.ItemType)
    return Mistake("\"" + into + "\" is of another type: \"" + type + "\".", "Merge Names", "txtName");
  if (Holds(session, into, name) || Holds(session, name, into))
    return Mistake("One of the two groups holds the other.", "Merge Names", "txtName");
  if (type == part)
    db.Execute(
        "UPDATE Items SET InitialQty = IFNULL(InitialQty, 0) + ?, StockQty = IFNULL(StockQty, 0) + ?,"
        " TotalValue = IFNULL(TotalValue, 0) + ? WHERE ItemName = ?",
        {stock.InitialQty, stock.StockQty, stock.TotalValue, into});
  return std::nullopt;
}

}  // namespace

RowSave Save_Item(Session& session, ListRow& row, const ItemForm& form) {
  if (Is_Service_Like(form.ItemType) && form.ItemCat.empty())
    return {.fault = Plain("Please input a income category for this service.", "cmbCategory")};
  if (trim(form.ItemName).empty())
    return {.fault = Mistake("Please enter a Name for this Item.", "No Name", "txtName")};
  Stock stock{};
  if (!row.is_new())
    stock = {row["ItemType"].text(), row["InitialQty"].number(), row["StockQty"].number(), row["TotalValue"].money()};
  return Save_Named_Row(
      session, row, {.list = NameList::Items, .name = form.ItemName, .carry = form.carry},
      [&](ListRow& fields) { return Write_Item(session, fields, form); },
      [&](ListRow& gone) { return Merge_Item(session, gone.key(), stock, trim(form.ItemName)); });
}

}  // namespace tallymere
