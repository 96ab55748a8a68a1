#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/store/database.h"
#include "core/values/caseless.h"

/// The inventory parts as reports walk them, and how they sell.
namespace tallymere {

struct Part {
  std::string ItemName, ParentItem, Description, InvVendor;
  double InitialQty = 0, ReorderQty = 0;
  Money PriceRate;
  bool Dormant = false;
  int level = 0;

  std::string key() const;     ///< as sub-items name their parent: without full stops
  std::string parent() const;  ///< likewise
  std::string label() const;   ///< indented by its level
};

/// Parts in use by name, each followed by those below it; a dormant one is left out with all below it. One whose parent
/// is no item any more stands at the top.
std::vector<Part> Parts_By_Item(store::Database& db);
/// All parts in use by their preferred vendor, those without one first.
std::vector<Part> Parts_By_Vendor(store::Database& db);

/// What was sold of a part, and since when the ledger knows it.
struct Part_Sales {
  std::optional<Date> first_day;
  double sold = 0;

  /// To two places; the weeks are the Sundays since the first day, at least one.
  double per_week(Date until) const;
};
/// By ItemName, up to that day.
CaselessMap<Part_Sales> Sales_Of_Parts(store::Database& db, Date until);

}  // namespace tallymere
