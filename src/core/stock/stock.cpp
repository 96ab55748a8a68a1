#include "core/stock/stock.h"

#include <cmath>

namespace tallymere {
namespace {

constexpr double no_quantity = 1e-9;  // what is left of 0.1 + 0.2 - 0.3

/// The rows of one item, up to a day. `condition` tells which of them.
std::string Rows_Of_Item(const std::string& condition, const std::optional<Date>& until) {
  return " FROM Transactions WHERE Item = ItemName AND " + condition + (until ? " AND Date <= ?" : "");
}

store::Database::Params Params_Of(const std::optional<Date>& until, int times, const std::string* name) {
  store::Database::Params params;
  if (until) params.assign(static_cast<size_t>(times), *until);
  if (name) params.emplace_back(*name);
  return params;
}

CaselessMap<double> Quantities(store::Database& db, const std::optional<Date>& until, const std::string* name) {
  const std::string moved =
      "(SELECT SUM(Qty)" + Rows_Of_Item("IFNULL(SourceName, '') <> 'Inventory Part'", until) + ")";
  CaselessMap<double> stock;
  db.each("SELECT ItemName, IFNULL(InitialQty, 0) + IFNULL(" + moved +
              ", 0) FROM Items WHERE ItemType = 'Inventory Part'" + (name ? " AND ItemName = ?" : ""),
          Params_Of(until, 1, name), [&](const store::Row& row) { stock[std::string(row.text(0))] = row.number(1); });
  return stock;
}

CaselessMap<PartCost> Costs(store::Database& db, const std::optional<Date>& until, const std::string* name) {
  const std::string rows = Rows_Of_Item("Type IN ('Inv Adjust', 'Check', 'Bill')", until);
  CaselessMap<PartCost> costs;
  db.each("SELECT ItemName, (SELECT SUM(IFNULL(Debit, 0) - IFNULL(Credit, 0))" + rows + "), (SELECT SUM(Qty)" + rows +
              ") FROM Items WHERE ItemType = 'Inventory Part'" + (name ? " AND ItemName = ?" : ""),
          Params_Of(until, 2, name), [&](const store::Row& row) {
            if (!row.is_null(1)) costs[std::string(row.text(0))] = {row.money(1), row.number(2)};
          });
  return costs;
}

template <typename Figure>
Figure Only(const CaselessMap<Figure>& figures) {
  return figures.empty() ? Figure{} : figures.begin()->second;
}

}  // namespace

CaselessMap<double> Stock_On_Hand(store::Database& db, std::optional<Date> until) {
  return Quantities(db, until, nullptr);
}

double Stock_On_Hand(store::Database& db, const std::string& ItemName, std::optional<Date> until) {
  return Only(Quantities(db, until, &ItemName));
}

Money PartCost::average() const { return value(1); }

Money PartCost::value(double qty) const {
  return std::abs(Qty) < no_quantity ? Money() : Money::from_double(Amount.to_double() * qty / Qty);
}

CaselessMap<PartCost> Average_Cost(store::Database& db, std::optional<Date> until) { return Costs(db, until, nullptr); }

PartCost Average_Cost(store::Database& db, const std::string& ItemName, std::optional<Date> until) {
  return Only(Costs(db, until, &ItemName));
}

}  // namespace tallymere
