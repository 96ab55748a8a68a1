#pragma once

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>

namespace tallymere {

// digits * 10^exponent; at most 17 digits when it comes from a double.
struct Decimal {
  bool negative = false;
  std::uint64_t digits = 0;
  int exponent = 0;
};

// The shortest decimal that reads back as this double: what a person meant by it. None for infinities and no
// number.
inline std::optional<Decimal> shortest_decimal(double value) {
  if (!std::isfinite(value)) return std::nullopt;
  std::array<char, 32> text{};
  const char* end =
      std::to_chars(text.data(), text.data() + text.size(), std::fabs(value), std::chars_format::scientific).ptr;
  Decimal decimal{.negative = std::signbit(value)};
  bool after_point = false;
  const char* at = text.data();
  for (; *at != 'e'; ++at) {
    if (*at == '.') {
      after_point = true;
      continue;
    }
    decimal.digits = decimal.digits * 10 + static_cast<std::uint64_t>(*at - '0');
    if (after_point) --decimal.exponent;
  }
  at += at[1] == '+' ? 2 : 1;  // from_chars knows no plus
  int power = 0;
  std::from_chars(at, end, power);
  decimal.exponent += power;
  return decimal;
}

}  // namespace tallymere
