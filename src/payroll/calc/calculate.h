#pragma once

#include <memory>
#include <string_view>

#include "payroll/calc/paycheck.h"
#include "payroll/calc/tax_tables.h"
#include "payroll/employee.h"
#include "payroll/item_sums.h"
#include "payroll/pay_items.h"
#include "payroll/posting_rule.h"

/// The calculation of a paycheck, step by step. It reads and writes the grids' cells as a person would, and nothing else:
/// no database, no window, no clock.
namespace tallymere {

/// All that a calculation goes by.
struct PayFacts {
  PayEmployee employee;
  std::shared_ptr<const PayItems> items;
  std::shared_ptr<const TaxTables> tables;
  PayrollPosting rule = PayrollPosting::Plain;
  ItemSums earned_this_year;  ///< SumFilter::Earned_This_Year
  ItemSums paid_this_year;    ///< SumFilter::Paid_This_Year
};

/// Everything, from the earnings to the balance: what leaving grdEarnings or grdOtherItems does. The summaries are made
/// anew. Error 3021, saying what is missing, when an item or a row of a tax table is not there.
void Calculate(Paycheck& check, const PayFacts& facts);

/// The steps after the earnings, in their order.
void Calculate_After_Earnings(Paycheck& check, const PayFacts& facts);

/// The wages of grdEarnings: fills the summary, gross, lblNet, net, lblYearEarnings and the hours left.
void Add_Earnings(Paycheck& check, const PayFacts& facts);

enum class Pass { Gross, Net };
/// Additions, deductions and contributions of grdOtherItems. Additions and gross-based deductions go with the gross pass
/// and move lblNet, all others with the net pass.
void Add_Adjusts(Paycheck& check, const PayFacts& facts, Pass pass);

/// The gross, moved by what is ticked for this tax.
Exact Taxable_Base(const Paycheck& check, const PayFacts& facts, std::string_view tax);

void Calc_Fed_Holding(Paycheck& check, const PayFacts& facts);
void Calc_SS(Paycheck& check, const PayFacts& facts);
void Calc_Medicare(Paycheck& check, const PayFacts& facts);
void Calc_Fed_Unemployment(Paycheck& check, const PayFacts& facts);
void Calc_State_Holding(Paycheck& check, const PayFacts& facts);
void Calc_State_Unemployment(Paycheck& check, const PayFacts& facts);
void Calc_Other_Taxes(Paycheck& check, const PayFacts& facts);

/// Net pay and the year to date of each row: what a change by hand in a summary does.
void Calc_Balance(Paycheck& check, const PayFacts& facts);

}  // namespace tallymere
