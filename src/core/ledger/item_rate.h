#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/store/value.h"

/// The price of an item, or its rate. A Money field holds four decimals and would make 6.875 % of 1,000.00 come to 68.80;
/// what was typed as a percentage stands beside it exactly.
namespace tallymere {

struct ItemRate {
  std::optional<Money> PriceRate = {};   ///< to the ten-thousandth: 0.0688
  std::optional<double> ExactRate = {};  ///< typed with "%": 0.06875

  /// What an amount is multiplied by.
  double factor() const { return ExactRate ? *ExactRate : PriceRate.value_or(Money()).to_double(); }
  /// This rate of an amount, rounded to cents: 6.875 % of 1,000.00 is 68.75.
  Money of(Money amount) const { return amount.times(factor()).rounded_to_cents(); }
  bool blank() const { return !PriceRate && !ExactRate; }
  friend bool operator==(const ItemRate&, const ItemRate&) = default;
};

/// As the two fields say it. Another program may have changed PriceRate alone: then that counts.
ItemRate Rate_Of(const store::Value& PriceRate, const store::Value& ExactRate);

/// Reads what people type: "6.5%" is 0.065, "6.5" is 6.5, "" is blank. Nothing for what is no number.
std::optional<ItemRate> Parse_Rate(std::string_view typed);

/// As lists and forms show it: "6.875%" for what was typed so, for every sales tax and for discounts of less than one; else
/// "12.50"; "" when blank.
std::string Rate_Text(const ItemRate& rate, std::string_view ItemType);

}  // namespace tallymere
