#include "core/values/money.h"

#include <charconv>
#include <limits>

#include "core/values/decimal.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

__extension__ using Wide = __int128;  // holds any product of two amounts, or of an amount and 17 digits

Wide divided_half_even(Wide value, Wide divisor) {
  if (divisor < 0) {
    value = -value;
    divisor = -divisor;
  }
  const Wide quotient = value / divisor;
  const Wide rest = value < 0 ? -(value % divisor) : value % divisor;
  const bool away = rest > divisor - rest || (rest == divisor - rest && quotient % 2 != 0);
  return away ? quotient + (value < 0 ? -1 : 1) : quotient;
}

Money narrowed(Wide units) {
  constexpr Wide least = std::numeric_limits<std::int64_t>::min();
  constexpr Wide most = std::numeric_limits<std::int64_t>::max();
  if (units < least || units > most) throw std::overflow_error("amount out of range");
  return Money::from_units(static_cast<std::int64_t>(units));
}

Wide power_of_ten(int exponent) {
  Wide power = 1;
  while (exponent-- > 0) power *= 10;
  return power;
}

// "1,234" to "1234"; none if the commas do not group by threes.
std::optional<std::string> without_commas(std::string_view whole) {
  const auto groups = split(whole, ",");
  if (groups.size() == 1) return groups[0];
  if (groups[0].empty() || groups[0].size() > 3) return std::nullopt;
  for (std::size_t i = 1; i < groups.size(); ++i)
    if (groups[i].size() != 3) return std::nullopt;
  return join(groups, "");
}

// Units of a bare "1,234.5"; none for anything else.
std::optional<std::uint64_t> magnitude(std::string_view number) {
  const auto point = number.find('.');
  auto digits = without_commas(number.substr(0, point));
  std::string fraction(point == number.npos ? "" : number.substr(point + 1));
  if (!digits || fraction.size() > 4 || digits->size() + fraction.size() == 0) return std::nullopt;
  fraction.resize(4, '0');
  *digits += fraction;
  std::uint64_t units = 0;
  const char* const end = digits->data() + digits->size();
  const auto [stop, fault] = std::from_chars(digits->data(), end, units);
  return fault == std::errc() && stop == end ? std::optional(units) : std::nullopt;
}

bool take(std::string_view& text, char mark) {
  if (!text.starts_with(mark)) return false;
  text.remove_prefix(1);
  return true;
}

}  // namespace

std::optional<Money> Money::parse(std::string_view typed) {
  std::string trimmed = trim(typed);
  const bool bracketed = trimmed.size() > 2 && trimmed.front() == '(' && trimmed.back() == ')';
  if (bracketed) trimmed = trim(std::string_view(trimmed).substr(1, trimmed.size() - 2));

  std::string_view number = trimmed;
  const bool dollar_first = take(number, '$');
  const bool minus = !bracketed && take(number, '-');
  if (!bracketed && !minus) take(number, '+');
  if (!dollar_first) take(number, '$');

  const auto units = magnitude(number);
  if (!units) return std::nullopt;
  const bool negative = bracketed || minus;
  constexpr auto most = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
  if (*units > most + (negative ? 1 : 0)) return std::nullopt;
  return from_units(static_cast<std::int64_t>(negative ? 0 - *units : *units));
}

Money Money::from_double(double dollars) { return Money(per_dollar).times(dollars); }

Money Money::times(double factor) const {
  const auto decimal = shortest_decimal(factor);
  if (!decimal) overflow();
  if (is_zero() || decimal->digits == 0) return {};
  const Wide product = Wide{units_} * decimal->digits * (decimal->negative ? -1 : 1);
  if (decimal->exponent > 19) overflow();  // even one unit would be out of range
  if (decimal->exponent < -37) return {};  // a product has 36 digits, so it is less than half a unit
  if (decimal->exponent < 0) return narrowed(divided_half_even(product, power_of_ten(-decimal->exponent)));
  return narrowed(Wide{narrowed(product).units()} * power_of_ten(decimal->exponent));
}

Money Money::share(Money part, Money whole) const {
  if (whole.is_zero()) throw std::domain_error("share of a zero whole");
  return narrowed(divided_half_even(Wide{units_} * part.units_, whole.units_));
}

Money Money::rounded_to_cents() const {
  constexpr Wide cent = per_dollar / 100;
  return narrowed((Wide{units_} + (is_negative() ? -cent / 2 : cent / 2)) / cent * cent);
}

std::string Money::to_text() const {
  const auto size = is_negative() ? 0 - static_cast<std::uint64_t>(units_) : static_cast<std::uint64_t>(units_);
  std::string text = (is_negative() ? "-" : "") + std::to_string(size / per_dollar);
  if (const auto rest = size % per_dollar; rest != 0) {
    text += "." + std::to_string(per_dollar + rest).substr(1);
    text.erase(text.find_last_not_of('0') + 1);
  }
  return text;
}

}  // namespace tallymere
