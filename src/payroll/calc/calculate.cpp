#include "payroll/calc/calculate.h"

#include <algorithm>

#include "core/values/text.h"

namespace tallymere {
namespace {

/// What a row of grdOtherItems comes to, without its sign. `each_unit_of` is 1 in the gross pass and the net in the net
/// pass, `whole` what a percentage is of.
std::optional<Exact> Adjustment(const OtherItemRow& row, const PayItem& item, Exact each_unit_of, Exact whole) {
  const Rate rate = Read_Rate(row.Rate);
  if (item.QuantityBased && !row.Quantity.empty())
    return (rate.value * First_Number(row.Quantity) * each_unit_of).abs();
  if (rate.is_empty()) return std::nullopt;
  return rate.of(whole).abs();
}

/// The employer's own: it keeps the sign of its rate.
std::optional<Exact> Company_Adjustment(const OtherItemRow& row, const PayItem& item, Exact whole) {
  const Rate rate = Read_Rate(row.Rate);
  if (item.QuantityBased && !row.Quantity.empty()) return rate.value * First_Number(row.Quantity);
  if (rate.is_empty()) return std::nullopt;
  const Exact amount = rate.of(whole);
  return rate.is_percent() && item.type() == ItemType::Deduction ? -amount : amount;
}

bool Is_Gross_Item(const PayItem& item) {
  return item.type() == ItemType::Addition || (item.type() == ItemType::Deduction && !item.is_net_based());
}

std::string Cell_Of(const std::optional<Exact>& amount) { return amount ? amount->cell() : ""; }

/// One row on its way through a pass.
class Adjuster {
 public:
  Adjuster(Paycheck& check, const PayFacts& facts, Pass pass)
      : check_(check), rule_(facts.rule), pass_(pass), running_(check.lblNet) {}

  void adjust(const OtherItemRow& row, const PayItem& item) {
    if (item.paid_by_employer())
      add_to(check_.grdCompany, item, Company_Adjustment(row, item, running_));
    else if (Is_Gross_Item(item) == (pass_ == Pass::Gross))
      pass_ == Pass::Gross ? gross_item(row, item) : net_item(row, item);
  }
  Money lblNet() const { return running_.money(); }

 private:
  void gross_item(const OtherItemRow& row, const PayItem& item) {
    const auto amount = Adjustment(row, item, 1, running_);
    const bool deducted = item.type() == ItemType::Deduction;
    add_to(check_.grdEmployee, item, deducted && amount ? -*amount : amount);
    if (!amount) return;
    // A gross deduction by quantity has always raised the running wages; percentages of later rows rest on it.
    const bool by_quantity = item.QuantityBased && !row.Quantity.empty();
    running_ += deducted && !by_quantity ? -*amount : *amount;
  }
  void net_item(const OtherItemRow& row, const PayItem& item) {
    const auto amount = Adjustment(row, item, check_.net, check_.net);
    const bool deducted = item.type() == ItemType::Deduction;
    add_to(Is_Companys(rule_, item) ? check_.grdCompany : check_.grdEmployee, item,
           deducted && amount ? -*amount : amount);
  }
  static void add_to(std::vector<SummaryRow>& grid, const PayItem& item, const std::optional<Exact>& amount) {
    grid.push_back({item.Name, Cell_Of(amount), ""});
  }

  Paycheck& check_;
  PayrollPosting rule_;
  Pass pass_;
  Exact running_;
};

/// A tax that company and employee share: the same amount in both summaries.
void Calc_Shared_Tax(Paycheck& check, const PayFacts& facts, std::string_view company, std::string_view employee) {
  const Exact base = Taxable_Base(check, facts, company);
  const PayItem* item = facts.items->find(company);
  if (!item || item->type() != ItemType::FederalTax) return;
  const Money tax = (-Read_Rate(item->DefaultRate).value.percent_of(base)).money();
  check.grdCompany.push_back({std::string(company), Exact(tax).cell(), ""});
  check.grdEmployee.push_back({std::string(employee), Exact(tax).cell(), ""});
  check.net += tax;
}

/// What earlier paychecks of the year hold of an item, each amount once.
Exact Paid_Before(const PayFacts& facts, const PayItem* item, const std::string& name) {
  return Exact(facts.paid_this_year.of(name).amount) / (item ? item->rows_per_amount() : 1);
}

}  // namespace

Exact SummaryRow::amount() const { return First_Number(Amount); }

void Calculate(Paycheck& check, const PayFacts& facts) {
  check.grdEmployee.clear();
  check.grdCompany.clear();
  check.boxes.clear();
  check.notes.clear();
  Add_Earnings(check, facts);
  Calculate_After_Earnings(check, facts);
}

void Calculate_After_Earnings(Paycheck& check, const PayFacts& facts) {
  Add_Adjusts(check, facts, Pass::Gross);
  Calc_Fed_Holding(check, facts);
  Calc_SS(check, facts);
  Calc_Medicare(check, facts);
  Calc_Fed_Unemployment(check, facts);
  Calc_State_Holding(check, facts);
  Calc_State_Unemployment(check, facts);
  Calc_Other_Taxes(check, facts);
  Add_Adjusts(check, facts, Pass::Net);
  check.grdEmployee.insert(check.grdEmployee.end(), check.unknown_employee.begin(), check.unknown_employee.end());
  check.grdCompany.insert(check.grdCompany.end(), check.unknown_company.begin(), check.unknown_company.end());
  Calc_Balance(check, facts);
}

void Add_Earnings(Paycheck& check, const PayFacts& facts) {
  check.lblYearEarnings = Money();
  check.lblSick = facts.employee.SickHoursStart;
  check.lblVac = facts.employee.VacHoursStart;
  Exact wages;
  for (const EarningRow& row : check.grdEarnings) {
    if (row.Name.empty()) continue;
    const PayItem& item = facts.items->item(row.Name);
    Exact amount = First_Number(row.Rate);
    if (!item.is_salary() && !row.Hours.empty()) amount = amount * First_Number(row.Hours);
    wages += amount;
    check.grdEmployee.push_back({row.Name, row.Rate.empty() && row.Hours.empty() ? "" : amount.cell(), ""});
    check.lblYearEarnings += facts.earned_this_year.of(row.Name).amount;
    const double hours = row.Hours.empty() ? 0 : First_Number(row.Hours).money().to_double();
    if (item.PayStyle == "Sick") check.lblSick -= hours;
    if (item.PayStyle == "Vacation") check.lblVac -= hours;
  }
  check.lblNet = check.gross = wages.money();
  check.net = check.gross;
}

void Add_Adjusts(Paycheck& check, const PayFacts& facts, Pass pass) {
  if (check.gross <= Money()) return;
  Adjuster adjuster(check, facts, pass);
  for (OtherItemRow& row : check.grdOtherItems) {
    if (row.Item.empty()) continue;
    const PayItem& item = facts.items->item(row.Item);
    row.Type = item.Type;
    if (!item.LiabilityNumber.empty()) check.lblMemo = item.LiabilityNumber;
    adjuster.adjust(row, item);
  }
  check.lblNet = adjuster.lblNet();
}

// A percentage that is added lowers the base, and an amount that is added raises it. The asymmetry is old, stands in every
// tax alike, and companies have filed by it.
Exact Taxable_Base(const Paycheck& check, const PayFacts& facts, std::string_view tax) {
  Exact base = check.gross;
  if (check.gross <= Money()) return base;
  for (const OtherItemRow& row : check.grdOtherItems) {
    if (row.Item.empty() || facts.items->item(row.Item).is_net_based()) continue;
    if (!facts.items->moves_base(row.Item, tax)) continue;
    const Rate rate = Read_Rate(row.Rate);
    if (row.Type == "Addition")
      base = rate.is_percent() ? base - rate.of(base) : base + rate.value;
    else
      base -= rate.of(base).abs();
  }
  return base;
}

void Calc_Fed_Holding(Paycheck& check, const PayFacts& facts) {
  const PayEmployee& employee = facts.employee;
  Exact base = Taxable_Base(check, facts, fixed_items::federal_withholding);
  base -= Exact(employee.FedAllow) * facts.tables->allowance_of(employee.PayPeriod).amount;
  const StatusRows rows(facts.tables->federal_of(employee.PayPeriod), "The federal " + employee.PayPeriod + " table",
                        employee.FedStatus);
  const TaxBracket& row = rows.walk([&](const TaxBracket& at) { return base <= at.over || base < at.under; });
  const Exact tax = -((base - row.over) * row.rate + row.base + employee.FedWithHolding);
  check.lblFedHold = tax;
  check.grdEmployee.push_back({std::string(fixed_items::federal_withholding), tax.cell(), ""});
  check.net += tax;
}

void Calc_SS(Paycheck& check, const PayFacts& facts) {
  Calc_Shared_Tax(check, facts, fixed_items::social_security_company, fixed_items::social_security_employee);
}

void Calc_Medicare(Paycheck& check, const PayFacts& facts) {
  Calc_Shared_Tax(check, facts, fixed_items::medicare_company, fixed_items::medicare_employee);
}

void Calc_Balance(Paycheck& check, const PayFacts& facts) {
  Exact total;
  for (SummaryRow& row : check.grdEmployee) {
    const PayItem* item = facts.items->find(row.Name);
    const Exact amount = row.amount(), year = Paid_Before(facts, item, row.Name) + amount.abs();
    const bool paid_out = item ? item->type() == ItemType::Wage || item->type() == ItemType::Addition : amount >= 0;
    total += amount;
    row.YTD = (paid_out ? year : -year).cell();
  }
  check.lblTotal = total.cents();
  for (SummaryRow& row : check.grdCompany) {
    const Exact amount = row.amount(), before = Paid_Before(facts, facts.items->find(row.Name), row.Name);
    row.YTD = (amount > 0 ? amount + before : amount - before).cell();
  }
}

}  // namespace tallymere
