#include "payroll/paychecks.h"

#include "core/ledger/ledger.h"

namespace tallymere {
namespace {

/// A salary's part of a period: what the year's amount is divided by, or nothing for the two longest periods.
std::optional<Exact> Period_Salary(const PayEmployee& employee, Money rate) {
  const PayFrequency* frequency = Find_Frequency(employee.PayPeriod);
  if (!frequency || frequency->salary_divisor == 0) return std::nullopt;
  return Exact(rate) / frequency->salary_divisor;
}

void Add_Salary(Paycheck& check, const PayEmployee& employee, const PayEmployee::Earning& earning) {
  if (!earning.Rate) return;
  const auto amount = Period_Salary(employee, *earning.Rate);
  const std::string cell = amount ? amount->cell() : "";
  check.grdEarnings.push_back({earning.Wage, cell, ""});
  check.grdEmployee.push_back({earning.Wage, cell, ""});
  if (!amount) return;
  check.lblRegSal = amount->money();
  check.lblNet += check.lblRegSal;
}

void Add_Hourly(Paycheck& check, const PayEmployee::Earning& earning, double hours) {
  const Money amount = earning.Rate ? (Exact(*earning.Rate) * Exact::of(hours)).cents() : Money();
  check.grdEarnings.push_back({earning.Wage, earning.Rate ? earning.Rate->to_text() : "", Exact::of(hours).text()});
  check.grdEmployee.push_back({earning.Wage, Exact(amount).cell(), ""});
  check.lblNet += amount;
}

std::string Negated(const std::string& amount) { return amount.starts_with('-') ? amount.substr(1) : "-" + amount; }

// The number of a percentage stands undivided here. A new check has always come up so; the first recalculation, which
// comes before it is created, begins again from the wages.
Money First_Move(const PayItem& item, const Rate& rate, Money regular_salary) {
  const bool moves = item.type() == ItemType::Addition || (item.type() == ItemType::Deduction && !item.is_net_based());
  if (!moves || item.QuantityBased) return {};
  const Exact amount = rate.is_percent() ? rate.value * regular_salary : rate.value;
  return (item.type() == ItemType::Addition ? amount : -amount).money();
}

void Add_Line(Paycheck& check, const PayItem& item, const EmployeeLine& line) {
  const std::string text = line.AmountRate.value_or("");
  const Rate rate = Read_Rate(text);
  const bool negated = item.type() == ItemType::Deduction && rate.kind == Rate::Kind::Amount;
  check.grdOtherItems.push_back({item.Name, negated ? Negated(text) : text, "", ""});
  check.lblNet += First_Move(item, rate, check.lblRegSal);
}

std::vector<double> Hours_Of(Session& session, const PayEmployee& employee, const PayPeriod& period,
                             const std::string& pay_period) {
  std::vector<double> hours;
  for (const auto& earning : employee.earnings)
    hours.push_back(Get_Hours(session, earning.Wage, employee.SSNum, period, pay_period));
  return hours;
}

}  // namespace

PayFacts Pay_Facts(Session& session, PayEmployee employee, int64_t own_number) {
  store::Database& company = *session.dbCompany;
  PayFacts facts{.employee = std::move(employee),
                 .items = PayItems::Of(company),
                 .tables = TaxTables::Of(*session.dbAccounts),
                 .rule = Posting_Rule(company),
                 .earned_this_year = {},
                 .paid_this_year = {}};
  const std::string& number = facts.employee.SSNum;
  facts.earned_this_year = ItemSums::Read(company, SumFilter::Earned_This_Year(number, session.today()));
  facts.paid_this_year = ItemSums::Read(company, SumFilter::Paid_This_Year(number, session.today(), own_number));
  return facts;
}

std::optional<Fault> Run_Fault(const PayRunHead& run) {
  if (!run.BankID.empty()) return {};
  return Fault{{"Please select a bank to write Paychecks from.", "No Bank"}, "cmbBank"};
}

NewPaycheck New_Paycheck(Session& session, const PayRunHead& run, const PayRunRow& row) {
  const auto period = Period_Bounds(row.PayPeriod, run.pay_end, run.pay_date);
  if (!period)
    return {{}, Box{"Please Select a Pay Period for this Employee.", "No Pay Period", Icon::Information, row.Employee}};
  auto employee = Find_Employee_By_Name(*session.dbCompany, row.Employee);
  if (!employee)
    throw store::Error(store::errors::no_current_record,
                       "No current record. There is no employee " + row.Employee + ".");
  PaycheckEntry entry{.date = run.pay_date, .pay_end = run.pay_end, .BankID = run.BankID, .period = *period};
  entry.facts = Pay_Facts(session, std::move(*employee));
  const std::vector<double> hours = Hours_Of(session, entry.facts.employee, *period, row.PayPeriod);
  Fill_From_Employee(entry.check, entry.facts, hours);
  Calculate_After_Earnings(entry.check, entry.facts);
  return {std::move(entry), {}};
}

void Fill_From_Employee(Paycheck& check, const PayFacts& facts, const std::vector<double>& hours) {
  const PayEmployee& employee = facts.employee;
  check.lblSick = employee.SickHoursStart;
  check.lblVac = employee.VacHoursStart;
  for (size_t at = 0; at < employee.earnings.size(); ++at) {
    const PayEmployee::Earning& earning = employee.earnings[at];
    const PayItem& item = facts.items->item(earning.Wage);
    check.lblYearEarnings += facts.earned_this_year.of(earning.Wage).amount;
    if (item.PayStyle != "Regular") continue;
    item.is_salary() ? Add_Salary(check, employee, earning) : Add_Hourly(check, earning, hours[at]);
    check.gross = check.lblNet;
    check.net = check.gross;
  }
  for (const EmployeeLine& line : employee.adjustments) Add_Line(check, facts.items->item(line.item), line);
}

}  // namespace tallymere
