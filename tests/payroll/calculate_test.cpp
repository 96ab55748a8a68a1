#include "payroll/calc/calculate.h"

#include "support/pay_case.h"

namespace tallymere {
namespace {

using testing::PayCase;
using testing::Shipped_Tables;
using testing::Usual_Items;

struct Example {
  std::string period, gross, fed_status;
  int fed_allow;
  std::string federal, state, state_status;
  int state_allow;
  std::string state_tax;
};

// Worked out by hand from the tables; numbers 2 and 3 are also printed in the state's own booklet.
TEST(Withholding, WorkedExamplesToTheCent) {
  const std::vector<Example> examples = {
      {"Weekly", "800.00", "Single", 1, "-63.98", "MN", "Single", 1, "-32.51"},
      {"BiWeekly", "1000.00", "Married", 3, "0.00", "WI", "Married", 3, "-22.08"},
      {"Weekly", "350.00", "Single", 1, "-12.30", "WI", "Single", 1, "-7.59"},
      {"Monthly", "5000.00", "Single", 0, "-521.84", "MO", "Single", 0, "-137.31"},
      {"Quarterly", "24000.00", "Married", 2, "-1919.00", "MO", "Married", 2, "-645.74"},
      {"Weekly", "800.00", "Single", 2, "-54.02", "IL", "Single", 2, "-34.03"},
      {"Daily", "200.00", "Single", 1, "-17.55", "IN", "Single", 1, "-5.82"},
      {"BiWeekly", "2000.00", "Don't WithHold", 0, "0.00", "MN", "Don't WithHold", 0, "0.00"}};
  for (const Example& example : examples) {
    PayCase pay(Shipped_Tables());
    PayEmployee& employee = pay.facts.employee;
    employee.PayPeriod = example.period;
    employee.FedStatus = example.fed_status;
    employee.FedAllow = example.fed_allow;
    employee.StateWorked = example.state;
    employee.StateStatus = example.state_status;
    employee.StateAllow = example.state_allow;
    pay.check.grdEarnings = {{"Salary", example.gross, ""}};
    pay.calculate();
    EXPECT_EQ(pay.employee("Federal Withholding"), example.federal) << example.gross << " " << example.period;
    EXPECT_EQ(pay.employee(example.state + " Withholding"), example.state_tax) << example.state << " " << example.gross;
  }
}

TEST(Withholding, StatesAreToldApart) {
  PayCase pay(Shipped_Tables());
  pay.facts.employee.StateWorked = "MO";
  pay.check.grdEarnings = {{"Salary", "1000.00", ""}};
  pay.calculate();
  // Missouri moves the net by what of the wage lies over the last bracket, not by its tax: of 52,000 a year less the
  // deduction and 5,000, the most federal tax that counts, that is 21,464.
  EXPECT_EQ(pay.check.net.text(), (Exact(1000) - Exact::of(97.94) - 62 - Exact::of(14.5) + 21464).text());

  // Extra withholding is an amount a check in Minnesota and an amount a year in Illinois.
  auto state_tax = [&](const std::string& state, int extra) {
    pay.facts.employee.StateWorked = state;
    pay.facts.employee.StateWithHolding = Money::dollars(extra);
    pay.calculate();
    return First_Number(pay.employee(state + " Withholding"));
  };
  EXPECT_EQ(state_tax("MN", 0) - state_tax("MN", 52), Exact(52));
  EXPECT_EQ(state_tax("IL", 0) - state_tax("IL", 52), Exact(1));

  // Another state is a quiet line; a state without its item is a box, and both leave the rest of the check alone.
  state_tax("IA", 0);
  EXPECT_EQ(pay.check.notes, std::vector<std::string>{"Income tax of IA is not calculated."});
  EXPECT_TRUE(pay.check.boxes.empty());
  PayItems no_state;
  const PayItems usual = Usual_Items();
  for (const PayItem& item : usual.all())
    if (item.SState != "IN") no_state.add(item);
  pay.facts.items = std::make_shared<const PayItems>(no_state);
  EXPECT_EQ(state_tax("IN", 0), Exact(0));
  ASSERT_EQ(pay.check.boxes.size(), 1U);
  EXPECT_EQ(pay.check.boxes[0].text,
            "WARNING!!! You must add IN Payroll Withholding to Payroll Items before it will be added to Employee "
            "Summary.");
  EXPECT_EQ(pay.employee("Federal Withholding"), "-97.94");
}

TEST(Withholding, AWageAboveTheTableIsAFaultAndNeverAnotherStatus) {
  PayCase pay(Shipped_Tables());
  pay.check.grdEarnings = {{"Salary", "10000000.00", ""}};
  EXPECT_THROW(pay.calculate(), store::Error);
  pay.facts.employee.FedStatus = "Head";  // the federal tables have no such rows
  pay.check.grdEarnings = {{"Salary", "100.00", ""}};
  try {
    pay.calculate();
    FAIL();
  } catch (const store::Error& error) {
    EXPECT_EQ(error.number, store::errors::no_current_record);
    EXPECT_EQ(error.description(), "No current record. The federal Weekly table has no row for the status \"Head\".");
  }
}

/// Additions and deductions beside a wage of 1,000.00 a week.
struct Adjusted : ::testing::Test {
  PayItem item(std::string name, std::string type, std::string pay_cal = "Gross", bool by_quantity = false) {
    PayItem made{.Name = std::move(name), .Type = std::move(type), .PayCal = std::move(pay_cal)};
    made.TaxPaid = "Employee Paid Tax";
    made.QuantityBased = by_quantity;
    return made;
  }
  PayCase calculated(const PayItems& items, std::vector<OtherItemRow> rows,
                     PayrollPosting rule = PayrollPosting::Plain) {
    PayCase pay(Shipped_Tables(), items);
    pay.facts.rule = rule;
    pay.check.grdEarnings = {{"Salary", "1000.00", ""}};
    pay.check.grdOtherItems = std::move(rows);
    pay.calculate();
    return pay;
  }
};

TEST_F(Adjusted, GrossItemsMoveTheRunningWageAndNetItemsTakeWhatIsLeft) {
  PayItems items = Usual_Items();
  items.add(item("Bonus", "Addition"));
  items.add(item("Plan", "Deduction"));
  items.add(item("Club", "Deduction", "Net"));
  items.add(item("Uniform", "Deduction", "Gross", true));
  items.add(item("Match", "Company Contribution", ""));
  const PayCase pay = calculated(items, {{"Bonus", "200", "", ""},
                                         {"Plan", "10%", "", ""},
                                         {"Uniform", "-7.50", "2", ""},
                                         {"Club", "1%", "", ""},
                                         {"Match", "2%", "", ""}});
  EXPECT_EQ(pay.employee("Bonus"), "200.00");
  EXPECT_EQ(pay.employee("Plan"), "-120.00");  // of the wage with the bonus
  EXPECT_EQ(pay.employee("Uniform"), "-15.00");
  EXPECT_EQ(pay.check.lblNet, Money::dollars(1095));  // a gross deduction by quantity raises it
  EXPECT_EQ(pay.check.gross, Money::dollars(1000));
  // Of 1,000 less taxes of 97.94, 62.00 and 14.50; neither bonus nor plan count.
  EXPECT_EQ(pay.employee("Club"), "-8.26");
  EXPECT_EQ(pay.employee("Match"), "16.51");
  EXPECT_EQ(pay.company("Match"), "none");
  EXPECT_EQ(pay.check.lblTotal, Money::dollars(898, 81));
  EXPECT_EQ(pay.check.grdOtherItems[4].Type, "Company Contribution");

  const PayCase balanced = calculated(items, {{"Match", "2%", "", ""}}, PayrollPosting::Balanced);
  EXPECT_EQ(balanced.company("Match"), "16.51");
  EXPECT_EQ(balanced.employee("Match"), "none");
  EXPECT_EQ(balanced.check.lblTotal, Money::dollars(825, 56));
}

TEST_F(Adjusted, TicksMoveTheBaseOfTheirTaxOnly) {
  PayItems items = Usual_Items();
  items.add(item("Bonus", "Addition"));
  items.add(item("Plan", "Deduction"));
  items.add(item("Club", "Deduction", "Net"));
  for (const char* name : {"Bonus", "Plan", "Club"}) items.tick(name, "Medicare Company");
  auto medicare = [&](std::vector<OtherItemRow> rows) {
    return calculated(items, std::move(rows)).employee("Medicare Employee");
  };
  EXPECT_EQ(medicare({}), "-14.50");
  EXPECT_EQ(medicare({{"Bonus", "100", "", ""}}), "-15.95");
  EXPECT_EQ(medicare({{"Bonus", "10%", "", ""}}), "-13.05");  // a percentage that is added lowers the base
  EXPECT_EQ(medicare({{"Plan", "-100", "", ""}}), "-13.05");
  EXPECT_EQ(medicare({{"Plan", "10%", "3", ""}}), "-13.05");
  EXPECT_EQ(medicare({{"Plan", "", "", ""}}), "-14.50");
  EXPECT_EQ(medicare({{"Club", "100", "", ""}}), "-14.50");  // of the net: never, whatever is ticked
  EXPECT_EQ(calculated(items, {{"Plan", "10%", "", ""}}).employee("Social Security Employee"), "-62.00");
}

TEST_F(Adjusted, WithoutWagesNothingIsWalked) {
  PayItems items = Usual_Items();
  items.add(item("Bonus", "Addition"));
  PayCase pay(Shipped_Tables(), items);
  pay.check.grdEarnings = {{"Salary", "", ""}};
  pay.check.grdOtherItems = {{"Bonus", "100", "", ""}};
  pay.calculate();
  EXPECT_EQ(pay.employee("Bonus"), "none");
  EXPECT_EQ(pay.check.grdOtherItems[0].Type, "");
  EXPECT_EQ(pay.employee("Salary"), "");
}

TEST(Earnings, HoursAndRatesAndWhatIsLeftOfTheSickHours) {
  PayItems items = Usual_Items();
  PayItem sick = testing::Wage("Sick", false);
  sick.PayStyle = "Sick";
  items.add(sick);
  PayCase pay(Shipped_Tables(), items);
  pay.facts.employee.SickHoursStart = 40;
  pay.check.grdEarnings = {
      {"Hourly", "18.3333", "37.5"}, {"Hourly", "100", ""}, {"Sick", "18.50", "8"}, {"", "9", "9"}};
  pay.calculate();
  pay.calculate();  // a second time changes nothing
  ASSERT_GE(pay.check.grdEmployee.size(), 3U);
  EXPECT_EQ(pay.check.grdEmployee[0].Amount, "687.50");
  EXPECT_EQ(pay.check.grdEmployee[1].Amount, "100.00");
  EXPECT_EQ(pay.check.grdEmployee[2].Amount, "148.00");
  EXPECT_EQ(pay.check.gross, Money::from_units(9354988));  // kept to the ten-thousandth, shown to the cent
  EXPECT_EQ(pay.check.lblSick, 32);
}

TEST(Unemployment, LimitsAsTheyWork) {
  PayItems items = Usual_Items();
  items.add(testing::State_Tax("MN", "State Unemployment", "1.696%", Money::dollars(44000)));
  PayItem never = testing::State_Tax("WI", "State Unemployment", "3.05%");
  items.add(never);
  PayCase pay(Shipped_Tables(), items);
  pay.facts.employee.SUIHold = true;
  pay.facts.employee.StateWorked = "MN";
  auto taxes = [&](int year, int wage) {
    pay.check.grdEarnings = {{"Salary", std::to_string(wage), ""}};
    pay.check.grdEmployee.clear(), pay.check.grdCompany.clear();
    Add_Earnings(pay.check, pay.facts);
    pay.check.lblYearEarnings = Money::dollars(year);
    Calc_Fed_Unemployment(pay.check, pay.facts);
    Calc_State_Unemployment(pay.check, pay.facts);
    return pay.company("Federal Unemployment") + " " + pay.company(pay.facts.employee.StateWorked + " Unemployment");
  };
  EXPECT_EQ(taxes(0, 1000), "-6.00 -16.96");
  EXPECT_EQ(taxes(6500, 1000), "-3.00 -16.96");
  EXPECT_EQ(taxes(7000, 1000), "0.00 -16.96");
  EXPECT_EQ(taxes(44000, 1000), "0.00 -16.96");  // crossing the state's limit is taxed in full
  EXPECT_EQ(taxes(44001, 1000), "0.00 none");
  pay.facts.employee.StateWorked = "WI";  // an empty limit never applies
  EXPECT_EQ(taxes(0, 1000), "-6.00 -30.50");
  EXPECT_EQ(taxes(1, 1000), "-6.00 none");
  pay.facts.employee.SUIHold = false;
  EXPECT_EQ(taxes(0, 1000), "-6.00 none");
}

TEST(OtherTaxes, AreTheEmployeesTheCompanysOrBoths) {
  PayItems items = Usual_Items();
  for (const auto& [name, paid] : std::vector<std::pair<std::string, std::string>>{
           {"City", "Employee Paid Tax"}, {"Training", "Employer Paid Tax"}, {"Levy", "Both"}}) {
    PayItem item{.Name = name, .Type = "Other Tax"};
    item.TaxPaid = paid;
    items.add(item);
  }
  PayCase pay(Shipped_Tables(), items);
  pay.facts.employee.taxes = {{"City", "1%", ""}, {"Levy", "3", ""}, {"Training", std::nullopt, ""}};
  pay.check.grdEarnings = {{"Salary", "1000", ""}};
  pay.calculate();
  EXPECT_EQ(pay.employee("City"), "-10.00");
  EXPECT_EQ(pay.company("City"), "none");
  EXPECT_EQ(pay.employee("Levy"), "-3.00");
  EXPECT_EQ(pay.company("Levy"), "-3.00");
  EXPECT_EQ(pay.company("Training"), "-3.00");  // no rate: the tax before it stands
  EXPECT_EQ(pay.check.net, Exact(1000) - Exact::of(97.94) - 62 - Exact::of(14.5));
}

}  // namespace
}  // namespace tallymere
