#pragma once

#include <string_view>

#include "core/company/session.h"
#include "payroll/calc/calculate.h"

/// What an item chosen in a grid of a paycheck brings along.
namespace tallymere {

/// Whether an item stands among the other items: additions, deductions and company contributions.
bool Is_Other_Item(const PayItem& item);

/// A wage with its rate: the item's own, else what the employee earns by the hour. Hourly wages begin with no hours.
EarningRow Chosen_Wage(const PayFacts& facts, std::string_view name);
OtherItemRow Chosen_Item(const PayFacts& facts, std::string_view name);  ///< with rate and type

/// Whether the employee, who is still there, does not have the item on every check already.
bool Is_Missing_From_Upcoming(store::Database& company, const PayEmployee& employee, std::string_view item);
/// Puts it on the employee's upcoming checks with its usual rate and limit; `employee` knows of it afterwards.
void Add_To_Upcoming(Session& session, PayFacts& facts, std::string_view item);

}  // namespace tallymere
