#include "demo/withholding.h"

#include <algorithm>
#include <array>

namespace tallymere::demo {
namespace {

struct Bracket {
  Money over, base;  // a year
  double rate;
};
constexpr Money D(int dollars) { return Money::dollars(dollars); }
constexpr std::array<Bracket, 5> single = {{{D(7500), D(0), 0.10},
                                            {D(19900), D(1240), 0.12},
                                            {D(57900), D(5800), 0.22},
                                            {D(113200), D(17966), 0.24},
                                            {D(209275), D(41024), 0.32}}};
constexpr std::array<Bracket, 5> joint = {{{D(19300), D(0), 0.10},
                                           {D(44100), D(2480), 0.12},
                                           {D(120100), D(11600), 0.22},
                                           {D(230700), D(35932), 0.24},
                                           {D(422850), D(82048), 0.32}}};

Money Per_Period(Money a_year) { return a_year.share(Money::dollars(1), Money::dollars(pay_periods)); }

}  // namespace

// All in decimal amounts: a sum of doubles may differ from one machine to the next.
Money Federal_Withholding(Money taxable, bool married, int allowances) {
  const Money wage = taxable.times(pay_periods) - D(4300 * allowances);
  Money tax;
  for (const Bracket& bracket : married ? joint : single)
    if (wage > bracket.over) tax = bracket.base + (wage - bracket.over).times(bracket.rate);
  return Per_Period(tax).rounded_to_cents();
}

Money Illinois_Withholding(Money taxable, int allowances) {
  const Money over = taxable - Per_Period(D(2925 * allowances));
  return std::max(over, Money()).times(0.0495).rounded_to_cents();
}

Money Under_Limit(Money gross, Money year_gross, Money limit) { return std::clamp(limit - year_gross, Money(), gross); }

}  // namespace tallymere::demo
