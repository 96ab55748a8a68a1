#include "payroll/calc/state_holding.h"

#include <algorithm>
#include <array>

#include "core/values/text.h"
#include "payroll/periods.h"

/// Income tax of the states, each by its own formula over its own tables. Extra withholding is an amount a check in
/// Minnesota and an amount a year in the others.
namespace tallymere {
namespace {

constexpr std::string_view head_as_married(std::string_view status) { return status == "Head" ? "Married" : status; }

StateHolding Holding_Of(Exact tax) { return {-tax, -tax}; }

Exact Extra_A_Check(const StateCase& state) { return Exact(state.employee.StateWithHolding) / state.periods; }

// Allowances come off the annual wage, which cannot fall below 0.
StateHolding Minnesota(const StateCase& state) {
  const StatusRows rows(state.tables.minnesota, "MNWithhold", head_as_married(state.employee.StateStatus));
  const Exact allowances = Exact(state.employee.StateAllow) * rows.first().allowance;
  const Exact base = std::max(state.base * state.periods - allowances, Exact());
  const TaxBracket& reached = rows.walk([&](const TaxBracket& row) { return base <= row.over; });
  const TaxBracket& row = reached.over > 0 ? rows.before(reached) : reached;
  const Exact tax = (base - row.over) * row.rate + row.base;
  return Holding_Of(tax / state.periods + state.employee.StateWithHolding);
}

// Allowances come off the tax, by the bracket's own value; the tax may fall below 0.
StateHolding Wisconsin(const StateCase& state) {
  const StatusRows rows(state.tables.wisconsin, "WIWithhold", head_as_married(state.employee.StateStatus));
  const Exact base = state.base * state.periods;
  const TaxBracket& row = rows.before(rows.walk([&](const TaxBracket& at) { return base <= at.over; }));
  const Exact tax = (base - row.over) * row.rate + row.base - Exact(state.employee.StateAllow) * row.allowance;
  return Holding_Of(tax / state.periods + Extra_A_Check(state));
}

// The year's federal tax comes off the wage, up to 5,000. The tax is summed in money, bracket by bracket. What moves the
// net is the wage over the last bracket and not the tax: net-based deductions of Missouri rest on it.
StateHolding Missouri(const StateCase& state) {
  const StatusRows rows(state.tables.missouri, "MOWithhold", state.employee.StateStatus);
  const Exact federal = std::max(state.fed_hold * state.periods, Exact(-5000));
  Exact base = state.base * state.periods - rows.first().standard_deduction -
               rows.first().allowance * Exact(state.employee.StateAllow) + federal;
  Money tax;
  const TaxBracket& last = rows.walk([&](const TaxBracket& row) {
    if (base <= row.under) return true;
    tax = (tax + (row.under - row.over) * row.rate).money();
    return false;
  });
  base -= last.over;
  tax = (tax + base * last.rate).money();
  tax = (tax / state.periods).money();
  tax = (tax + Extra_A_Check(state)).money();
  return {-tax, base};
}

// The tables hold exemptions of a pay period. A number of allowances that is not in the table takes nothing off.
StateHolding Indiana(const StateCase& state) {
  const PayFrequency* frequency = Find_Frequency(state.employee.PayPeriod);
  const size_t period = frequency ? static_cast<size_t>(frequency - pay_frequencies.data()) : 0;
  auto find = [](const std::vector<ExemptionRow>& table, std::string_view key) {
    const auto found = std::ranges::find_if(table, [key](const ExemptionRow& row) { return same_text(row.key, key); });
    return found == table.end() ? nullptr : &*found;
  };
  if (state.tables.indiana_allowances.empty())
    throw store::Error(store::errors::no_current_record, "No current record. INWithHoldA has no rows.");
  Exact base = state.base;
  if (const auto* status = find(state.tables.indiana_statuses, head_as_married(state.employee.StateStatus)))
    base -= status->amounts[period];
  const auto* allowances = find(state.tables.indiana_allowances, std::to_string(state.employee.StateAllow));
  if (allowances)
    base -= allowances->amounts[period];
  else
    allowances = &state.tables.indiana_allowances.front();
  return Holding_Of(base * allowances->rate + Extra_A_Check(state));
}

StateHolding Illinois(const StateCase& state) {
  if (!state.tables.illinois)
    throw store::Error(store::errors::no_current_record, "No current record. ILWithHold has no row.");
  const auto& [rate, line1, line2] = *state.tables.illinois;
  const Exact allowances = state.employee.StateAllow;
  const Exact exempt = (line1 * allowances + line2 * allowances) / state.periods;
  return Holding_Of((state.base - exempt) * rate + Extra_A_Check(state));
}

struct StateFormula {
  std::string_view state;
  StateHolding (*holding)(const StateCase& state);
};
constexpr std::array<StateFormula, 5> formulas = {
    {{"MN", Minnesota}, {"WI", Wisconsin}, {"MO", Missouri}, {"IN", Indiana}, {"IL", Illinois}}};

const StateFormula* Find_Formula(std::string_view state) {
  const auto found =
      std::ranges::find_if(formulas, [state](const StateFormula& formula) { return same_text(formula.state, state); });
  return found == formulas.end() ? nullptr : &*found;
}

Box Missing_Item(const std::string& state) {
  return {"WARNING!!! You must add " + state +
              " Payroll Withholding to Payroll Items before it will be added to Employee Summary.",
          "No Item", Icon::Critical};
}

}  // namespace

bool Has_State_Formula(std::string_view state) { return Find_Formula(state) != nullptr; }

void Calc_State_Holding(Paycheck& check, const PayFacts& facts) {
  const PayEmployee& employee = facts.employee;
  const StateFormula* formula = Find_Formula(employee.StateWorked);
  if (!formula) {
    if (!employee.StateWorked.empty())
      check.notes.push_back("Income tax of " + employee.StateWorked + " is not calculated.");
    return;
  }
  const Exact periods = facts.tables->allowance_of(employee.PayPeriod).periods;
  const PayItem* item = facts.items->state_withholding(employee.StateWorked);
  if (!item) {
    check.boxes.push_back(Missing_Item(std::string(formula->state)));
    return;
  }
  const Exact base = Taxable_Base(check, facts, item->Name);
  const auto [tax, net_moves_by] = formula->holding({base, periods, check.lblFedHold, employee, *facts.tables});
  check.grdEmployee.push_back({item->Name, tax.cell(), ""});
  check.net += net_moves_by;
}

}  // namespace tallymere
