#pragma once

#include <optional>
#include <string>

#include "core/store/database.h"
#include "core/values/caseless.h"

/// What is in stock and what it cost. No running figure is kept: the ledger is added up, in one grouped pass for all
/// parts. With `until` only what moved up to and on that day counts.
namespace tallymere {

/// Quantity on hand by ItemName of every "Inventory Part": its InitialQty and what moved since. A sold part stands in
/// three rows of its invoice and counts once.
CaselessMap<double> Stock_On_Hand(store::Database& db, std::optional<Date> until = {});
/// Of one part; 0 for what is none.
double Stock_On_Hand(store::Database& db, const std::string& ItemName, std::optional<Date> until = {});

/// What checks, bills and stock adjustments brought in of a part, net, and what that cost.
struct PartCost {
  Money Amount;
  double Qty = 0;

  Money average() const;          ///< of one piece, to the ten-thousandth; 0 when no quantity came in
  Money value(double qty) const;  ///< of so many pieces, rounded once
};
/// By ItemName of every "Inventory Part" that has such rows. What an adjustment or a returned line took out lowers
/// both figures.
CaselessMap<PartCost> Average_Cost(store::Database& db, std::optional<Date> until = {});
PartCost Average_Cost(store::Database& db, const std::string& ItemName, std::optional<Date> until = {});

}  // namespace tallymere
