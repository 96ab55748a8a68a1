#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/values/money.h"

namespace tallymere {

/// What the law of the year gives a new payroll item: texts as they are typed, "1.696%".
struct PayrollDefault {
  std::string item;   ///< the federal item's name, or "State Unemployment"
  std::string state;  ///< two letters, or ""
  std::string rate;
  std::optional<Money> limit;
  std::optional<double> workforce_fee;  ///< within `rate`, as a fraction
};

/// The rows that ship, read once; none when they do not lie beside the program.
const std::vector<PayrollDefault>& Payroll_Defaults();
/// What a state's unemployment item begins with; nullptr for a state that has no row.
const PayrollDefault* Unemployment_Default(std::string_view state);

}  // namespace tallymere
