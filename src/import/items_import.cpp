#include "import/list_records.h"

#include <algorithm>
#include <iterator>

#include "core/ledger/item_rate.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 9> types = {{{"SERV", "Service"},
                                                                                 {"PART", "Non-Inventory Part"},
                                                                                 {"INVENTORY", "Inventory Part"},
                                                                                 {"OTHC", "Other Charge"},
                                                                                 {"GRP", "Group"},
                                                                                 {"DISC", "Discount"},
                                                                                 {"PMT", "Payment"},
                                                                                 {"COMPTAX", "Sales Tax"},
                                                                                 {"SUBT", "Subtotal"}}};

/// The two cells of a price or rate. A rate loses its sign, a discount's "-10%" as a tax's "-6.2%".
std::vector<ListRows::Cell> Rate_Cells(const std::string& text) {
  const bool negative_rate = text.starts_with('-') && text.ends_with('%');
  const auto rate = Parse_Rate(negative_rate ? text.substr(1) : text);
  if (!rate) return {{"PriceRate", text}};
  return {{"PriceRate", store::Value(rate->PriceRate).text()}, {"ExactRate", store::Value(rate->ExactRate).text()}};
}

std::string Zero_For_Nothing(const std::string& text) { return text.empty() ? "0" : text; }

}  // namespace

RecordDone Put_Item(ImportWork& work, const IifRecord& record) {
  const auto cell = [&](std::string_view header, int off, int on = 0) {
    return record.at({header, off, on == 0 ? off : on}, work.release_2003);
  };
  const PathName name(cell("NAME", 1));
  std::string ItemType;
  for (const auto& [theirs, ours] : types)
    if (same_text(theirs, cell("INVITEMTYPE", 4))) ItemType = ours;
  if (name.last.empty()) return {ImportDid::Skipped, "it has no name"};
  if (ItemType.empty()) return {ImportDid::Skipped, "there is no type \"" + cell("INVITEMTYPE", 4) + "\""};
  if (auto other = work.other_parent("Items", "ItemName", "ParentItem", name)) return {ImportDid::Skipped, *other};

  const std::string category = work.categories.Map_Category(cell("ACCNT", 7));
  const std::string stock = Zero_For_Nothing(cell("QNTY", 10));
  std::vector<ListRows::Cell> cells = {
      {"ItemType", ItemType},
      {"ParentItem", name.parent},
      {"Description", With_Lines(cell("DESC", 5))},
      {"ItemCat", category},
      {"PayTo", ItemType == "Payment" ? category : ""},
      {"TaxVendor", cell("TAXVEND", 16, 17)},
      {"PayMethod", cell("PAYMETH", 15, 16)},
      {"Cost", Zero_For_Nothing(cell("COST", 13))},
      {"COGScat", work.categories.Map_Category(cell("COGSACCNT", 9))},
      {"InvVendor", cell("PREFVEND", 18, 19)},
      {"InvPurchaseDesc", With_Lines(cell("PURCHASEDESC", 6))},
      {"InvTaxable", cell("TAXABLE", 14)},
      {"InvAsset", ItemType == "Inventory Part" ? work.categories.Asset_Category(cell("ASSETACCNT", 8))
                                                : work.categories.Map_Category(cell("ASSETACCNT", 8))},
      {"ReorderQty", Zero_For_Nothing(cell("REORDERPOINT", 19, 20))},
      {"Dormant", cell("HIDDEN", 28, 29)}};
  std::ranges::move(Rate_Cells(cell("PRICE", 12)), std::back_inserter(cells));
  if (!work.is_entered("Item", name.last)) {  // what was bought and sold here counts from here on
    cells.push_back({"StockQty", stock});
    cells.push_back({"InitialQty", stock});
  }
  return work.put("Items", {{"ItemName", name.last}}, cells);
}

RecordDone Put_Group_Line(ImportWork& work, const std::string& group, const IifRecord& record) {
  const std::string item = PathName(record.at({"", 1}, work.release_2003)).last;
  if (!work.rows.has("Items", {"ItemName", item})) return {ImportDid::Skipped, "there is no item " + item};
  return work.put("ItemGroups",
                  {{"GroupName", PathName(group).last}, {"Item", item}},
                  {{"Description", With_Lines(record.at({"", 5}, work.release_2003))},
                   {"Qty", record.at({"", 8}, work.release_2003)}});
}

}  // namespace tallymere
