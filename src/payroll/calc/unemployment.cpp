#include <algorithm>

#include "core/values/text.h"
#include "payroll/calc/calculate.h"

/// Unemployment taxes, which the company pays up to a yearly wage, and the other taxes of an employee.
namespace tallymere {
namespace {

/// The first state unemployment item that still applies after the wages of earlier checks.
const PayItem* Unemployment_Item(const Paycheck& check, const PayFacts& facts) {
  const auto found = std::ranges::find_if(facts.items->all(), [&](const PayItem& item) {
    return item.type() == ItemType::StateTax && item.TaxType == "State Unemployment" && facts.employee.SUIHold &&
           same_text(item.SState, facts.employee.StateWorked) && check.lblYearEarnings <= item.limit();
  });
  return found == facts.items->all().end() ? nullptr : &*found;
}

}  // namespace

// A check that crosses the limit pays on what is under it.
void Calc_Fed_Unemployment(Paycheck& check, const PayFacts& facts) {
  const PayItem& item = facts.items->item(fixed_items::federal_unemployment);
  const Money limit = item.limit(), year = check.lblYearEarnings, wages = check.lblNet;
  const Exact rate = Read_Rate(item.UnempTaxRate).fraction();
  Exact tax;
  if (year <= limit) tax = -(year + wages > limit ? limit - year : wages) * rate;
  check.grdCompany.push_back({item.Name, tax.cell(), ""});
}

// A check that crosses the limit is taxed in full: only the wages before it decide.
void Calc_State_Unemployment(Paycheck& check, const PayFacts& facts) {
  const PayItem* item = Unemployment_Item(check, facts);
  if (!item) return;
  const Exact tax = -(Taxable_Base(check, facts, item->Name) * Read_Rate(item->UnempTaxRate).fraction());
  check.grdCompany.push_back({item->Name, tax.cell(), ""});
}

// The net does not move, so net-based deductions do not see these taxes. A line without a rate repeats the tax before it.
void Calc_Other_Taxes(Paycheck& check, const PayFacts& facts) {
  Exact tax;
  for (const EmployeeLine& line : facts.employee.taxes) {
    if (line.AmountRate) tax = -Read_Rate(*line.AmountRate).of(check.lblNet);
    const std::string& paid_by = facts.items->item(line.item).TaxPaid;
    const SummaryRow row{line.item, tax.cell(), ""};
    const bool both = contains(paid_by, "Both");
    if (both || contains(paid_by, "Employee")) check.grdEmployee.push_back(row);
    if (both || !contains(paid_by, "Employee")) check.grdCompany.push_back(row);
  }
}

}  // namespace tallymere
