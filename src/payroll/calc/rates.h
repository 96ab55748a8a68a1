#pragma once

#include <string_view>

#include "payroll/calc/exact.h"

namespace tallymere {

/// What is typed where an amount or a rate is asked for: "85", "-85", "4%", "3.35%", "0.006", "$1,200" or nothing.
struct Rate {
  enum class Kind { Empty, Amount, Percent };
  Kind kind = Kind::Empty;
  Exact value;  ///< of "4%" it is 4; of text without a number 0

  bool is_empty() const { return kind == Kind::Empty; }
  bool is_percent() const { return kind == Kind::Percent; }
  /// The percentage of a base, or the amount as it is.
  Exact of(Exact base) const { return is_percent() ? value.percent_of(base) : value; }
  /// As the factor of a tax: "3.35%" and "0.0335" are the same.
  Exact fraction() const { return is_percent() ? value / 100 : value; }
};

/// Blanks count for nothing. A percentage is the text less its last character, as a number.
Rate Read_Rate(std::string_view text);

/// The first number in a text, with its sign; 0 when there is none.
Exact First_Number(std::string_view text);

/// Whether a rate of a tax reads as more than the whole wage, "3.35" for "3.35%": worth a question.
bool Is_Suspicious_Rate(std::string_view text);

}  // namespace tallymere
