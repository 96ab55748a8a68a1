#include "payroll/plain_reading.h"

#include <chrono>
#include <random>

#include "payroll/periods.h"
#include "support/pay_case.h"

namespace tallymere {
namespace {

using testing::PayCase;
namespace plain = testing::plain;

/// Draws cases of a state: every period and status, ragged amounts, percentages, ticks here and there.
class Dice {
 public:
  explicit Dice(const char* state) : state_(state) {}
  plain::Case draw() {
    plain::Case drawn;
    drawn.period = below(8);
    drawn.status = pick({"Single", "Married", "Don't WithHold"});
    drawn.state = state_;
    drawn.state_status = pick({"Single", "Married", "Head", "Don't WithHold"});
    drawn.allowances = below(5);
    drawn.state_allowances = below(30) == 0 ? 99 : below(23);
    drawn.extra = below(3) ? "0" : amount(60);
    drawn.state_extra = below(3) ? "0" : amount(600);
    drawn.year = below(2) ? amount(60'000) : std::to_string(6000 + below(2000));
    drawn.unemployment = below(3) != 0;
    drawn.balanced = below(2) == 0;
    wages(drawn);
    lines(drawn);
    return drawn;
  }

 private:
  int below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }
  std::string pick(std::initializer_list<const char*> from) {
    return from.begin()[below(static_cast<int>(from.size()))];
  }
  std::string amount(int dollars) { return plain::Cell(plain::Fraction(below(dollars * 100), 100)); }

  void wages(plain::Case& drawn) {
    static constexpr std::array<int, 8> usual = {400, 2000, 4000, 4500, 9000, 27000, 54000, 110000};
    const int most = usual[static_cast<size_t>(drawn.period)] * (below(10) ? 1 : 20);
    for (int count = 1 + below(3); count > 0; --count) {
      if (below(2))
        drawn.wages.push_back({true, amount(most), ""});
      else
        drawn.wages.push_back({false, amount(90) + std::to_string(below(100)), below(4) ? amount(90) : ""});
    }
    if (below(40) == 0) drawn.wages = {{true, "0.00", ""}};
  }
  void lines(plain::Case& drawn) {
    for (int count = below(5); count > 0; --count) {
      const std::string name = "Item " + std::to_string(count);
      plain::Item item;
      item.type = pick({"Addition", "Deduction", "Deduction", "Company Contribution"});
      item.pay_cal = item.type == "Company Contribution" ? "" : pick({"Gross", "Net"});
      item.by_quantity = below(5) == 0;
      for (const std::string tax :
           {"Federal Withholding", "Social Security Company", "Medicare Company", "MN Withholding", "WI Withholding",
            "MO Withholding", "IN Withholding", "IL Withholding", "MN Unemployment"})
        if (below(2)) item.ticked.insert(tax);
      plain::Line line{name, "", ""};
      if (item.by_quantity)
        line = {name, amount(3), below(3) ? amount(4) : ""};
      else if (below(8))
        line.rate = below(2) ? amount(12) + "%" : (below(3) ? "" : "-") + amount(200);
      drawn.items[name] = item;
      drawn.lines.push_back(line);
    }
  }

  const char* state_;
  std::mt19937 random_{20260615};
};

PayItems Items_Of(const plain::Case& drawn) {
  PayItems items = testing::Usual_Items();
  items.add(testing::State_Tax("MN", "State Unemployment", "1.696%", Money::dollars(44000)));
  for (const auto& [name, item] : drawn.items) {
    PayItem made{.Name = name, .Type = item.type, .PayCal = item.pay_cal};
    made.TaxPaid = "Employee Paid Tax";
    made.QuantityBased = item.by_quantity;
    items.add(made);
    for (const std::string& tax : item.ticked) items.tick(name, tax);
  }
  return items;
}

PayCase Case_Of(const plain::Case& drawn) {
  PayCase pay(testing::Shipped_Tables(), Items_Of(drawn));
  PayEmployee& employee = pay.facts.employee;
  pay.facts.rule = drawn.balanced ? PayrollPosting::Balanced : PayrollPosting::Plain;
  employee.PayPeriod = pay_period_names[static_cast<size_t>(drawn.period)];
  employee.FedStatus = drawn.status;
  employee.FedAllow = drawn.allowances;
  employee.FedWithHolding = *Money::parse(drawn.extra);
  employee.StateWorked = drawn.state;
  employee.StateStatus = drawn.state_status;
  employee.StateAllow = drawn.state_allowances;
  employee.StateWithHolding = *Money::parse(drawn.state_extra);
  employee.SUIHold = drawn.unemployment;
  for (const auto& wage : drawn.wages)
    pay.check.grdEarnings.push_back({wage.salary ? "Salary" : "Hourly", wage.rate, wage.hours});
  for (const auto& line : drawn.lines) pay.check.grdOtherItems.push_back({line.item, line.rate, line.quantity, ""});
  return pay;
}

std::string Text_Of(const std::vector<SummaryRow>& grid) {
  std::string text;
  for (const SummaryRow& row : grid) text += row.Name + "=" + row.Amount + "\n";
  return text;
}
std::string Text_Of(const std::vector<std::pair<std::string, std::string>>& grid) {
  std::string text;
  for (const auto& [name, cell] : grid) text += name + "=" + cell + "\n";
  return text;
}
std::string Told(const plain::Case& drawn) {
  std::string text = drawn.state + " " + drawn.state_status + " " + std::to_string(drawn.state_allowances) + ", " +
                     drawn.status + " " + std::to_string(drawn.allowances) + ", period " +
                     std::to_string(drawn.period) + ", year " + drawn.year + "\n";
  for (const auto& wage : drawn.wages) text += "  wage " + wage.rate + " x " + wage.hours + "\n";
  for (const auto& line : drawn.lines)
    text += "  " + drawn.items.at(line.item).type + " " + line.rate + " x " + line.quantity + "\n";
  return text;
}

/// The steps, with a year's earlier wages that no ledger holds here.
void Calculate_With(PayCase& pay, const std::string& year) {
  Add_Earnings(pay.check, pay.facts);
  pay.check.lblYearEarnings = *Money::parse(year);
  Calculate_After_Earnings(pay.check, pay.facts);
}

class PlainReading : public ::testing::TestWithParam<const char*> {};

TEST_P(PlainReading, AgreesOnTwentyThousandChecks) {
  Dice dice(GetParam());
  int with_lines = 0;
  for (int number = 0; number < 20'000; ++number) {
    const plain::Case drawn = dice.draw();
    const plain::Answer expected = plain::Reading(drawn).read();
    PayCase pay = Case_Of(drawn);
    Calculate_With(pay, drawn.year);
    with_lines += !drawn.lines.empty();
    ASSERT_EQ(Text_Of(pay.check.grdEmployee), Text_Of(expected.employee)) << number << ": " << Told(drawn);
    ASSERT_EQ(Text_Of(pay.check.grdCompany), Text_Of(expected.company)) << number << ": " << Told(drawn);
    ASSERT_EQ(Exact(pay.check.lblTotal).cell(), expected.total) << number << ": " << Told(drawn);
  }
  EXPECT_GT(with_lines, 12'000);
}

INSTANTIATE_TEST_SUITE_P(States, PlainReading, ::testing::Values("MN", "WI", "MO", "IN", "IL", "IA"),
                         [](const auto& state) { return std::string(state.param); });

}  // namespace
}  // namespace tallymere
