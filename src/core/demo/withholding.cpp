#include "core/demo/withholding.h"

#include <algorithm>
#include <array>

namespace tallymere::demo {
namespace {

struct Bracket {
  int over;  // dollars a year
  double base, rate;
};
constexpr std::array<Bracket, 5> single = {
    {{7500, 0, 0.10}, {19900, 1240, 0.12}, {57900, 5800, 0.22}, {113200, 17966, 0.24}, {209275, 41024, 0.32}}};
constexpr std::array<Bracket, 5> joint = {
    {{19300, 0, 0.10}, {44100, 2480, 0.12}, {120100, 11600, 0.22}, {230700, 35932, 0.24}, {422850, 82048, 0.32}}};

}  // namespace

Money Federal_Withholding(Money taxable, bool married, int allowances) {
  const double wage = taxable.to_double() * pay_periods - 4300.0 * allowances;
  double tax = 0;
  for (const Bracket& bracket : married ? joint : single)
    if (wage > bracket.over) tax = bracket.base + (wage - bracket.over) * bracket.rate;
  return Money::from_double(tax / pay_periods).rounded_to_cents();
}

Money Illinois_Withholding(Money taxable, int allowances) {
  const double over = taxable.to_double() - 2925.0 * allowances / pay_periods;
  return Money::from_double(std::max(over, 0.0) * 0.0495).rounded_to_cents();
}

Money Under_Limit(Money gross, Money year_gross, Money limit) {
  return std::clamp(limit - year_gross, Money(), gross);
}

}  // namespace tallymere::demo
