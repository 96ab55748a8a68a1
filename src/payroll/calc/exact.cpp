#include "payroll/calc/exact.h"

#include <algorithm>
#include <stdexcept>

#include "core/values/decimal.h"
#include "core/values/format.h"

namespace tallymere {
namespace {

__extension__ using Magnitude = unsigned __int128;
constexpr int places = 18;
constexpr Magnitude one = 1'000'000'000'000'000'000U;
constexpr Magnitude largest = ~Magnitude{} >> 1;

[[noreturn]] void Overflow() { throw std::overflow_error("number out of range"); }

Magnitude Product(Magnitude a, Magnitude b) {
  Magnitude product;
  if (__builtin_mul_overflow(a, b, &product)) Overflow();
  return product;
}

Magnitude Sum(Magnitude a, Magnitude b) {
  Magnitude sum;
  if (__builtin_add_overflow(a, b, &sum)) Overflow();
  return sum;
}

Magnitude Power_Of_Ten(int exponent) {
  Magnitude power = 1;
  while (exponent-- > 0) power = Product(power, 10);
  return power;
}

/// What a division leaves rounds the quotient half to even.
Magnitude Half_Even(Magnitude quotient, Magnitude rest, Magnitude divisor) {
  const bool up = rest > divisor - rest || (rest == divisor - rest && quotient % 2 != 0);
  return up ? Sum(quotient, 1) : quotient;
}

}  // namespace

Exact Exact::signed_of(bool negative, Magnitude magnitude) {
  if (magnitude > largest) Overflow();
  const Units units = static_cast<Units>(magnitude);
  return Exact(negative ? -units : units, 0);
}

Exact::Exact(Money amount) : units_(Units{amount.units()} * static_cast<Units>(one / 10000)) {}

Exact::Exact(int64_t whole) : units_(Units{whole} * static_cast<Units>(one)) {}

Exact Exact::of(double number) {
  const auto decimal = shortest_decimal(number);
  if (!decimal) Overflow();
  if (decimal->digits == 0 || decimal->exponent < -2 * places) return {};
  const int shift = places + decimal->exponent;
  if (shift >= 0) return signed_of(decimal->negative, Product(decimal->digits, Power_Of_Ten(shift)));
  const Magnitude divisor = Power_Of_Ten(-shift);
  return signed_of(decimal->negative, Half_Even(decimal->digits / divisor, decimal->digits % divisor, divisor));
}

Exact Exact::of_digits(std::string_view digits) {
  Magnitude units = 0;
  int decimals = -1;  // no point yet
  for (const char c : digits) {
    if (c == '.') {
      decimals = 0;
    } else if (decimals < places) {
      units = Sum(Product(units, 10), static_cast<Magnitude>(c - '0'));
      if (decimals >= 0) ++decimals;
    }
  }
  return signed_of(false, Product(units, Power_Of_Ten(places - std::max(decimals, 0))));
}

Exact& Exact::operator+=(Exact other) {
  if (__builtin_add_overflow(units_, other.units_, &units_)) Overflow();
  return *this;
}

Exact operator*(Exact a, Exact b) {
  const Magnitude x = a.magnitude(), y = b.magnitude();
  const Magnitude whole = Product(Product(x / one, y / one), one);
  const Magnitude crossed = Sum(Product(x / one, y % one), Product(x % one, y / one));
  const Magnitude parts = (x % one) * (y % one);
  return Exact::signed_of((a.units_ < 0) != (b.units_ < 0),
                          Sum(Sum(whole, crossed), Half_Even(parts / one, parts % one, one)));
}

Exact operator/(Exact a, Exact b) {
  if (b.is_zero()) throw std::domain_error("division by zero");
  const Magnitude divisor = b.magnitude();
  Magnitude quotient = a.magnitude() / divisor, rest = a.magnitude() % divisor;
  for (int place = 0; place < places; ++place) {
    rest = Product(rest, 10);
    quotient = Sum(Product(quotient, 10), rest / divisor);
    rest %= divisor;
  }
  return Exact::signed_of((a.units_ < 0) != (b.units_ < 0), Half_Even(quotient, rest, divisor));
}

Money Exact::cents() const {
  constexpr Magnitude cent = one / 100;
  const Magnitude count = Sum(magnitude(), cent / 2) / cent;
  if (count > static_cast<Magnitude>(INT64_MAX) / 100) Overflow();
  const Money amount = Money::from_units(static_cast<int64_t>(count) * 100);
  return units_ < 0 ? -amount : amount;
}

Money Exact::money() const {
  constexpr Magnitude unit = one / 10000;
  const Magnitude count = Half_Even(magnitude() / unit, magnitude() % unit, unit);
  if (count > static_cast<Magnitude>(INT64_MAX)) Overflow();
  const Money amount = Money::from_units(static_cast<int64_t>(count));
  return units_ < 0 ? -amount : amount;
}

std::string Exact::cell() const { return Format(cents(), "0.00"); }

std::string Exact::text(int decimals) const {
  const Magnitude step = Power_Of_Ten(places - decimals);
  const Magnitude rounded = Product(Half_Even(magnitude() / step, magnitude() % step, step), step);
  std::string digits;
  for (Magnitude rest = rounded; rest > 0 || digits.size() <= places; rest /= 10)
    digits.insert(digits.begin(), static_cast<char>('0' + static_cast<int>(rest % 10)));
  digits.insert(digits.size() - places, ".");
  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.back() == '.') digits.pop_back();
  return (units_ < 0 && rounded > 0 ? "-" : "") + digits;
}

}  // namespace tallymere
