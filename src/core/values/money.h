#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tallymere {

// An amount of dollars, held as a whole count of ten-thousandths. Positive or negative;
// +-922,337,203,685,477.58 at most. Sums are exact. Whatever leaves the range throws std::overflow_error;
// nothing wraps, nothing becomes a double unasked.
class Money {
 public:
  constexpr Money() = default;

  static constexpr Money from_units(std::int64_t ten_thousandths) { return Money(ten_thousandths); }

  // dollars(-3, 50) is -3.50: the cents carry the sign of the whole. Only dollars(0, -50) takes negative
  // cents; any other throws std::invalid_argument.
  static constexpr Money dollars(std::int64_t whole, int cents = 0);

  // Reads what people type: "$1,234.50", "(12)", " 7 ", "-3.5", ".5". Commas must group by threes;
  // parentheses are a minus. Nothing else is a number: not words, not blank text, not five decimals, not an
  // amount out of range.
  static std::optional<Money> parse(std::string_view typed);

  // The nearest ten-thousandth, half to even, of the shortest decimal that means this double (so 0.00005 is a
  // tie). Throws std::overflow_error for what is out of range or no number.
  static Money from_double(double dollars);

  constexpr std::int64_t units() const { return units_; }
  constexpr double to_double() const { return static_cast<double>(units_) / per_dollar; }
  constexpr bool is_zero() const { return units_ == 0; }
  constexpr bool is_negative() const { return units_ < 0; }
  constexpr Money abs() const { return is_negative() ? -*this : *this; }

  constexpr Money operator-() const { return Money() - *this; }
  constexpr Money& operator+=(Money other) {
    if (__builtin_add_overflow(units_, other.units_, &units_)) overflow();
    return *this;
  }
  constexpr Money& operator-=(Money other) {
    if (__builtin_sub_overflow(units_, other.units_, &units_)) overflow();
    return *this;
  }
  friend constexpr Money operator+(Money a, Money b) { return a += b; }
  friend constexpr Money operator-(Money a, Money b) { return a -= b; }
  friend constexpr auto operator<=>(Money, Money) = default;

  // This times a rate or quantity, rounded once: to the ten-thousandth, half to even. The factor counts as
  // the shortest decimal that means it, so 0.0725 is exactly 7.25%. Throws std::overflow_error, also for a
  // factor that is no number.
  Money times(double factor) const;

  // This * part / whole, exact until one rounding to the ten-thousandth, half to even.
  // Throws std::domain_error when whole is zero, std::overflow_error when the share is out of range.
  Money share(Money part, Money whole) const;

  // Half a cent goes away from zero: 0.005 is 0.01, -0.005 is -0.01.
  Money rounded_to_cents() const;

  // Plain and minimal, with a point in every country: "1234.5", "-0.0001", "0". parse() reads it back.
  std::string to_text() const;

 private:
  static constexpr std::int64_t per_dollar = 10000;

  constexpr explicit Money(std::int64_t units) : units_(units) {}
  [[noreturn]] static void overflow() { throw std::overflow_error("amount out of range"); }

  std::int64_t units_ = 0;
};

constexpr Money Money::dollars(std::int64_t whole, int cents) {
  if (cents < 0 && whole != 0) throw std::invalid_argument("negative cents beside whole dollars");
  std::int64_t units = 0;
  if (__builtin_mul_overflow(whole, per_dollar, &units)) overflow();
  const Money fraction(std::int64_t{cents} * (per_dollar / 100));
  return whole < 0 ? Money(units) - fraction : Money(units) + fraction;
}

}  // namespace tallymere
