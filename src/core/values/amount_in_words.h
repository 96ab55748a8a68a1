#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/company/prompts.h"
#include "core/values/money.h"
#include "core/values/number_words.h"

namespace tallymere {

/// The text line of a printed check, "One hundred Five and 20/100 * * *": padded on the right with " *" to at
/// least 123 characters. An amount of a thousand million or more, for which there are no words, stands in
/// figures.
std::string Amount_In_Words(const NumberWords& words, Money amount);

/// What leaving the amount box of a check gives: the tidied text ("1,234.50") and the line of words, padded
/// on the left with "* " to at least 123 characters. With a fault both are empty. Empty text gives empty
/// words and no fault.
struct CheckAmount {
  std::string text;
  std::string words;
  std::optional<Money> value;
  std::optional<Fault> fault;
};
/// Refuses more than two decimals, what is no number, and more than 21,474,836.47.
CheckAmount Check_Amount_In_Words(const NumberWords& words, std::string_view typed);

}  // namespace tallymere
