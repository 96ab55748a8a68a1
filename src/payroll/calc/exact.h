#pragma once

#include <compare>
#include <cstdint>
#include <string>

#include "core/values/money.h"

namespace tallymere {

/// A number of payroll arithmetic, to eighteen decimals: what a tax is before it is rounded to the cent. Sums are exact,
/// products and quotients round the eighteenth decimal half to even, so that a half cent is a half cent: as a double,
/// one biweekly amount in 566 that ends on a tie falls to the wrong side. What leaves +-170,000,000,000,000,000,000 throws
/// std::overflow_error.
class Exact {
 public:
  constexpr Exact() = default;
  Exact(Money amount);
  Exact(int whole) : Exact(int64_t{whole}) {}
  Exact(int64_t whole);
  /// The shortest decimal that means this double: 0.0535 is 5.35 percent.
  static Exact of(double number);
  /// The digits of "1234.5" without a sign; more than eighteen decimals are cut.
  static Exact of_digits(std::string_view digits);

  Exact operator-() const { return Exact(-units_, 0); }
  Exact& operator+=(Exact other);
  Exact& operator-=(Exact other) { return *this += -other; }
  friend Exact operator+(Exact a, Exact b) { return a += b; }
  friend Exact operator-(Exact a, Exact b) { return a -= b; }
  friend Exact operator*(Exact a, Exact b);
  friend Exact operator/(Exact a, Exact b);  ///< std::domain_error by zero
  friend auto operator<=>(Exact, Exact) = default;

  bool is_zero() const { return units_ == 0; }
  Exact abs() const { return units_ < 0 ? -*this : *this; }
  /// This many hundredths of another: rate.percent_of(wage).
  Exact percent_of(Exact base) const { return base * *this / 100; }

  Money cents() const;  ///< to the cent, half a cent away from zero
  Money money() const;  ///< to the ten-thousandth, half to even
  /// As an amount stands in a grid of the paycheck: "0.00", "-63.98".
  std::string cell() const;
  /// All of it, without trailing zeros, at most `decimals` of them: "16.3290666667".
  std::string text(int decimals = 18) const;

 private:
  __extension__ using Units = __int128;
  __extension__ using Magnitude = unsigned __int128;
  constexpr Exact(Units units, int) : units_(units) {}
  static Exact signed_of(bool negative, Magnitude magnitude);
  Magnitude magnitude() const {
    return units_ < 0 ? Magnitude{} - static_cast<Magnitude>(units_) : static_cast<Magnitude>(units_);
  }

  Units units_ = 0;
};

}  // namespace tallymere
