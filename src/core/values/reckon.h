#pragma once

#include <optional>
#include <string_view>

#include "core/values/money.h"

namespace tallymere {

/// What is typed into a field for an amount: an amount as Money::parse reads it, or a small reckoning with + - * / of
/// such amounts without parentheses, "12+8", "3*19.95", products first. Sums are exact; what was multiplied or divided
/// is rounded to cents. Nothing for all else: words, a missing number, a division by zero, what is out of range.
std::optional<Money> Reckon(std::string_view typed);

}  // namespace tallymere
