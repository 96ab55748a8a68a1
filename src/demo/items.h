#pragma once

#include <string>
#include <vector>

#include "demo/chart.h"
#include "demo/parties.h"
#include "demo/random.h"

namespace tallymere::demo {

struct Item {
  std::string name, type, parent, description, purchase_description;
  std::string_view category, cost_category, asset, vendor;
  Money price, cost;
  double initial = 0, stock = 0, reorder = 0;
  bool taxable = false;

  bool is_part() const { return type == "Inventory Part"; }
  /// Where a bill, a check or the first row of an invoice line posts.
  std::string_view posting_category() const { return is_part() ? asset : category; }
};

/// What the company sells and buys. Nothing is added once it is built: documents point into it.
struct ItemList {
  std::vector<Item> all;
  std::vector<Item*> services, goods, parts;  ///< what invoices draw from
  Item *delivery, *discount, *subtotal, *group, *state_tax, *city_tax, *light, *lighting_work;

  ItemList(const Plan& plan, const Chart& chart, const Parties& parties, Random& random);
  void Write(store::Database& db, Date opening) const;
  Money opening_value() const;

 private:
  Item& Add(std::string_view name, std::string_view type, std::string_view category, Money price,
            std::string_view description, bool taxable = false);
  void Make_Parts(int count, const Chart& chart, const Parties& parties, Random& random);
  Item* find(std::string_view name);
};

inline constexpr double lights_in_group = 6;
inline constexpr double hours_in_group = 4;

}  // namespace tallymere::demo
