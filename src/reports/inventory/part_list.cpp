#include "reports/inventory/part_list.h"

#include <cmath>

#include "core/ledger/tree_list.h"

namespace tallymere {
namespace {

std::vector<Part> Read_Parts(store::Database& db, std::string_view order) {
  std::vector<Part> parts;
  db.each(
      "SELECT ItemName, ParentItem, Description, InvVendor, InitialQty, ReorderQty, PriceRate, Dormant FROM Items WHERE"
      " ItemType = 'Inventory Part' ORDER BY " +
          std::string(order) + ", RowKey",
      {}, [&](const store::Row& row) {
        const auto text = [&](int column) { return std::string(row.text(column)); };
        parts.push_back({text(0), text(1), text(2), text(3), row.number(4), row.number(5), row.money(6), row.flag(7)});
      });
  return parts;
}

int Sundays_Before(Date day) {
  constexpr int first_sunday = 4;  // the third of January 1970 was a Saturday
  return static_cast<int>(std::floor(static_cast<double>(day.days().time_since_epoch().count() + first_sunday) / 7));
}

}  // namespace

std::string Part::key() const { return replace_all(ItemName, ".", ""); }
std::string Part::parent() const { return replace_all(ParentItem, ".", ""); }
std::string Part::label() const { return Indented(ItemName, level); }

std::vector<Part> Parts_By_Item(store::Database& db) {
  std::vector<Part> parts = Read_Parts(db, "ItemName");
  CaselessMap<bool> known;  // items of any kind, in use or not
  db.each("SELECT ItemName FROM Items", {},
          [&](const store::Row& row) { known.try_emplace(replace_all(row.text(0), ".", ""), true); });
  std::erase_if(parts, [](const Part& part) { return part.Dormant; });
  TreeList<Part> tree(parts);
  for (const Part& part : parts)
    if (part.ParentItem.empty() || !known.contains(part.parent())) tree.add(part);
  return std::move(tree.list);
}

std::vector<Part> Parts_By_Vendor(store::Database& db) {
  std::vector<Part> parts = Read_Parts(db, "COALESCE(InvVendor, '') COLLATE NOCASE, ItemName");
  std::erase_if(parts, [](const Part& part) { return part.Dormant; });
  return parts;
}

double Part_Sales::per_week(Date until) const {
  if (!first_day || *first_day > until) return 0;
  const int weeks = std::max(Sundays_Before(until) - Sundays_Before(*first_day), 1);
  return std::round(sold / weeks * 100) / 100;
}

CaselessMap<Part_Sales> Sales_Of_Parts(store::Database& db, Date until) {
  CaselessMap<Part_Sales> sales;
  db.each(
      "SELECT ItemName, MIN(Date), -SUM(CASE WHEN Qty < 0 AND COALESCE(SourceName, '') <> 'Inventory Part' THEN Qty"
      " ELSE 0 END) FROM Items CROSS JOIN Transactions INDEXED BY Transactions_Item ON Item = ItemName WHERE ItemType ="
      " 'Inventory Part' AND Date <= ? GROUP BY ItemName",
      {until}, [&](const store::Row& row) {
        sales[std::string(row.text(0))] = {row.date(1), row.number(2) + 0.0};
      });
  return sales;
}

}  // namespace tallymere
