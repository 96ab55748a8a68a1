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

// Date masks: d dd ddd dddd (the latter two the weekday's English name), m mm mmm mmmm (the month's), yy yyyy;
// other characters, quoted or not, stand as they are.
std::string Format(Date value, std::string_view mask);

// How amounts stand on screen and paper unless a text asks for another look: grouped, with cents and one minus
// sign. What is kept stays exact: 224,667.1499 shows as "224,667.15".
inline constexpr std::string_view money_mask = "#,##0.00";
inline constexpr std::string_view dollar_mask = "$#,##0.00";  // where the text says so: "-$1,234.50"
inline constexpr std::string_view price_mask = "#,##0.00##";  // of one piece, which may cost parts of a cent
inline constexpr std::string_view long_date_mask = "dddd, mmmm d, yyyy";

inline std::string Money_Text(Money amount) { return Format(amount, money_mask); }
inline std::string Dollar_Text(Money amount) { return Format(amount, dollar_mask); }

}  // namespace tallymere
