#pragma once

#include <string_view>

#include "payroll/calc/calculate.h"

namespace tallymere {

/// One state's question: whose wage, and how often a year it is paid.
struct StateCase {
  Exact base;      ///< the taxable wage of the period
  Exact periods;   ///< in a year
  Exact fed_hold;  ///< the federal withholding of this check, negative
  const PayEmployee& employee;
  const TaxTables& tables;
};
/// What a formula answers. The row shows the tax, negative.
struct StateHolding {
  Exact tax;
  Exact net_moves_by;
};

/// Whether a state's income tax can be calculated: MN, WI, MO, IN, IL. Others have no withholding row.
bool Has_State_Formula(std::string_view state);

}  // namespace tallymere
