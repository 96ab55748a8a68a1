#pragma once

#include <string>
#include <string_view>

#include "core/store/database.h"
#include "core/values/date.h"

namespace tallymere::demo {

/// The categories that a demo company posts to, by role. Found by name in the chart that came with the
/// company; one that is not there is made, so that no posting depends on how the model numbers them.
struct Chart {
  Chart(store::Database& db, Date opening);

  std::string checking, savings, card;
  std::string inventory, equipment, vehicles, depreciated;
  std::string sales_tax, credit_line, vehicle_loan;
  std::string federal_withheld, social_security, medicare, federal_unemployment, state_withheld, state_unemployment,
      deductions;
  std::string investment, draw;
  std::string sales, services, design, installation, upkeep, shipping, finance, discounts, interest;
  std::string cost_of_goods, freight, materials, subcontractors;
  std::string advertising, fuel, repairs, vehicle_insurance, bank_charges, computer, depreciation, dues;
  std::string liability_insurance, property_insurance, workers_insurance, loan_interest, adjustments, licenses, meals;
  std::string office, wages, payroll_taxes, benefits, postage, accounting, rent, maintenance, tools, telephone;
  std::string travel, electricity, heating, water;
};

}  // namespace tallymere::demo
