#include <cmath>

#include "core/values/format.h"
#include "reports/frame/listing.h"
#include "reports/frame/table_parts.h"
#include "reports/sales/sales_reports.h"
#include "reports/sums/ledger_sums.h"

// Sales by item, type by type.
namespace tallymere {
namespace {

using Kind = ReportColumn::Kind;

constexpr std::string_view no_longer_listed = "No longer listed";
constexpr int indent = 5;

struct Sold {
  double Qty = 0;
  Money Amount;
};

/// An item in the order of the report.
struct Walked_Item {
  std::string ItemName, ItemType;
};

/// The rows of an item's sales: the item's own one of the three that a sold inventory part stands in.
std::string Sales_Rows(Basis basis) {
  return " FROM met CROSS JOIN Transactions INDEXED BY Transactions_Item WHERE Item = met.name AND Date >= ?1 AND"
         " Date <= ?2 AND Transactions.Type = 'Invoice' AND COALESCE(SourceName, '') <> 'Inventory Part'" +
         std::string(basis == Basis::Cash ? " AND Paid <> 0" : "");
}

/// The items that rows bear, by leaps through the index.
constexpr std::string_view each_item =
    "WITH RECURSIVE met(name) AS (SELECT MIN(Item) FROM Transactions WHERE Item IS NOT NULL UNION ALL"
    " SELECT (SELECT MIN(Item) FROM Transactions WHERE Item > met.name) FROM met WHERE met.name IS NOT NULL) ";
constexpr std::string_view signed_amount = "CASE WHEN Debit <> 0 THEN -Amount ELSE Amount END";

/// The items by type, and by name within it; last those that rows bear but the list has no more.
std::vector<Walked_Item> Walk_Items(store::Database& db, const std::vector<std::string>& in_rows) {
  std::vector<Walked_Item> items;
  CaselessMap<bool> known;
  db.each("SELECT ItemName, ItemType FROM Items ORDER BY ItemType, ItemName, RowKey", {}, [&](const store::Row& row) {
    const std::string name(row.text(0));
    if (known.try_emplace(name, true).second && row.text(1) != "Group")
      items.push_back({name, std::string(row.text(1))});
  });
  for (const std::string& name : in_rows)
    if (!name.empty() && known.try_emplace(name, true).second) items.push_back({name, std::string(no_longer_listed)});
  return items;
}

std::string Item_Label(const std::string& name) { return std::string(indent, ' ') + name; }

/// Heads and totals of the types around what is added for each item.
template <typename Each, typename Close>
void Walk_Types(ReportTable& table, const std::vector<Walked_Item>& items, Each&& each, Close&& close) {
  const std::string* type = nullptr;
  for (const Walked_Item& item : items) {
    if (!type || *type != item.ItemType) {
      if (type) close(*type);
      type = &item.ItemType;
      table.add_row(Role::Head).skip().text(*type);
    }
    each(item);
  }
  if (type) close(*type);
}

class Summary {
 public:
  Summary(ReportTable& table, const CaselessMap<Sold>& sold, const std::vector<Walked_Item>& items)
      : table_(table), sold_(sold) {
    for (const Walked_Item& item : items) grand_.Amount += of(item).Amount;
    Walk_Types(
        table, items, [&](const Walked_Item& item) { add(item); }, [&](const std::string& type) { close(type); });
    add_figures(table_.add_row(Role::Grand_Total), "Total", {all_Qty_, grand_.Amount}, false);
  }

 private:
  /// A discount has no quantity.
  Sold of(const Walked_Item& item) const {
    const auto found = sold_.find(item.ItemName);
    if (found == sold_.end()) return {};
    return {item.ItemType == "Discount" ? 0 : found->second.Qty, found->second.Amount};
  }

  void add(const Walked_Item& item) {
    const Sold sold = of(item);
    add_figures(table_.add_row(Role::Detail, To_Report("ItemRep", item.ItemName)), Item_Label(item.ItemName), sold,
                true);
    type_.Qty += sold.Qty;
    type_.Amount += sold.Amount;
  }

  void close(const std::string& type) {
    add_figures(table_.add_row(Role::Total), "Total " + type, type_, false);
    table_.add_spacer();
    all_Qty_ += type_.Qty;
    type_ = {};
  }

  void add_figures(ReportTable::Line line, std::string_view label, const Sold& sold, bool with_price) {
    line.skip().text(label).value(sold.Qty).money(sold.Amount);
    line.value(grand_.Amount.is_zero() ? 0.0 : sold.Amount.to_double() / grand_.Amount.to_double());
    if (with_price && sold.Qty != 0)
      line.money(Money::from_double(sold.Amount.to_double() / sold.Qty).rounded_to_cents());
  }

  ReportTable& table_;
  const CaselessMap<Sold>& sold_;
  Sold type_, grand_;
  double all_Qty_ = 0;
};

}  // namespace

ReportTable Build_Item_Sales(Session& session, const ReportRequest& request) {
  store::Database& db = *session.dbCompany;
  CaselessMap<Sold> sold;
  std::vector<std::string> met;
  db.each(std::string(each_item) + "SELECT met.name, -SUM(Qty), SUM(" + std::string(signed_amount) + ")" +
              Sales_Rows(request.basis) + " GROUP BY met.name",
          {request.from, request.to}, [&](const store::Row& row) {
            met.emplace_back(row.text(0));
            sold[met.back()] = {row.number(1) + 0.0, row.money(2)};
          });
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.columns = {{.kind = Kind::Margin},
                   {.name = "Item"},
                   {.caption = "Qty", .kind = Kind::Number},
                   {.caption = "Amount", .kind = Kind::Money},
                   {.caption = "Percent of Sales", .kind = Kind::Number, .mask = "0.0%"},
                   {.caption = "Avg Price", .kind = Kind::Money}};
  Summary(table, sold, Walk_Items(db, met));
  return table;
}

ReportTable Build_Item_Sales_Detail(Session& session, const ReportRequest& request) {
  enum { Item, TransNum, Type, Day, Number, Name, Qty, SalePrice, Amount };
  store::Database& db = *session.dbCompany;
  ReportTable table, lines;
  CaselessMap<std::pair<int, int>> rows_of;  // the first of lines and how many
  std::vector<std::string> met;
  Money total;
  db.each(std::string(each_item) +
              "SELECT met.name, TransNum, Transactions.Type, Date, Number, Transactions.Name, -Qty, SalePrice, " +
              std::string(signed_amount) + Sales_Rows(request.basis) +
              " ORDER BY met.name, Date, TransNum, Transactions.RowKey",
          {request.from, request.to}, [&](const store::Row& row) {
            if (met.empty() || !same_text(met.back(), row.text(Item))) met.emplace_back(row.text(Item));
            auto& [first, count] = rows_of.try_emplace(met.back(), lines.rows(), 0).first->second;
            ++count;
            auto line = lines.add_row(Role::Detail, To_Transaction(row.text(Type), row.integer(TransNum)));
            line.skip(2).text(row.text(Type)).value(row.date(Day)).text(row.text(Number)).text(row.text(Name));
            if (row.is_null(Qty))
              line.skip();
            else
              line.value(row.number(Qty) + 0.0);
            line.money(row.money(SalePrice)).money(row.money(Amount));
          });
  table.heading = Make_Heading(session, request);
  table.columns = {{.kind = Kind::Margin},
                   {.name = "Item"},
                   {.caption = "Type"},
                   {.caption = "Date", .kind = Kind::Date},
                   {.caption = "Number"},
                   {.caption = "Name"},
                   {.caption = "Qty", .kind = Kind::Number},
                   {.caption = "Sale Price", .kind = Kind::Money, .mask = std::string(price_mask)},
                   {.caption = "Amount", .kind = Kind::Money}};
  const auto each = [&](const Walked_Item& item) {
    table.add_row(Role::Group, To_Report("ItemRep", item.ItemName)).skip().text(Item_Label(item.ItemName));
    const auto found = rows_of.find(item.ItemName);
    if (found == rows_of.end()) return;
    const auto [first, count] = found->second;
    Add_Rows(lines, first, count, table);
    for (int row = first; row < first + count; ++row) total += lines.value(row, Amount).money();
  };
  Walk_Types(table, Walk_Items(db, met), each, [](const std::string&) {});
  table.add_row(Role::Grand_Total).skip().text("Total").skip(6).money(total);
  return table;
}

}  // namespace tallymere
