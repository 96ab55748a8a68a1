#pragma once

#include <string>
#include <string_view>

#include "core/values/date.h"
#include "core/values/money.h"

namespace tallymere {

// Number masks: up to three sections "positive;negative;zero"; an empty one is the first. "0" always shows a
// digit, "#" only if there is one; "." is the point, a "," between digits groups by threes, "%" multiplies by
// a hundred; text in quotes, a character after a backslash and any other character stand as they are. Rounds
// half away from zero, in decimal: a double counts as the shortest decimal that means it, so 1.005 under
// "0.00" is "1.01". A negative value without a section of its own gets "-" in front; a value that rounds to
// zero shows as zero, never "-0.00". Doubles that are no number show as "nan", "inf" or "-inf".
std::string Format(Money value, std::string_view mask);
std::string Format(double value, std::string_view mask);

// Date masks: d dd, m mm mmm mmmm (English month names), yy yyyy; other characters, quoted or not, stand as
// they are.
std::string Format(Date value, std::string_view mask);

}  // namespace tallymere
