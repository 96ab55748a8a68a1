#pragma once

#include "core/values/money.h"

namespace tallymere::demo {

inline constexpr int pay_periods = 26;

/// Federal income tax of one biweekly paycheck, to cents. Annual percentage method for Forms W-4 of 2019 or
/// earlier, 4,300 dollars an allowance: IRS Publication 15-T (2026).
Money Federal_Withholding(Money taxable, bool married, int allowances);

/// Illinois income tax of one biweekly paycheck, to cents: 4.95 percent over 2,925 dollars a year for each
/// allowance. Booklet IL-700-T, January 2026.
Money Illinois_Withholding(Money taxable, int allowances);

/// The part of `gross` that a tax with an annual limit still reaches, after `year_gross` earlier in the year.
Money Under_Limit(Money gross, Money year_gross, Money limit);

}  // namespace tallymere::demo
