#include "payroll/posting.h"

#include "core/ledger/undo.h"
#include "core/store/history.h"
#include "payroll/chosen_items.h"
#include "payroll/payroll_company.h"

namespace tallymere {
namespace {

using testing::Dollars;
using testing::PayrollCompany;
using testing::Rows_Of;

const std::string posted = "Account Debit Credit Amount PayrollItem Hours Qty Memo Cleared Category";

TEST(Posting, APaycheckIsItsRows) {
  PayrollCompany acme;
  EXPECT_EQ(acme.pay("Ann"), 1);
  // By hand: the plan's 80.00 lowers the base of the federal tax, (1,920 - 765) x 12 % + 47.70, and the wage that federal
  // unemployment is taken of; the match is 2 percent of 1,561.70, the wage less its four taxes.
  EXPECT_EQ(Rows_Of(acme.db(), 1, "Account Category Debit Credit PayrollItem Memo"),
            "0SS|<-Break Down->|0|1481.7||P-1\n"
            "68SS|0SS|2000|0|Salary|\n"
            "21SS|0SS|0|80|Plan|\n"
            "15SS|0SS|0|186.3|Federal Withholding|\n"
            "16SS|0SS|0|124|Social Security Employee|\n"
            "17SS|0SS|0|29|Medicare Employee|\n"
            "19SS|0SS|0|99|IL Tax|\n"
            "69SS|0SS|124|0|Social Security Company|\n"
            "16SS|0SS|0|124|Social Security Company|\n"
            "69SS|0SS|29|0|Medicare Company|\n"
            "17SS|0SS|0|29|Medicare Company|\n"
            "69SS|0SS|11.52|0|Federal Unemployment|\n"
            "18SS|0SS|0|11.52|Federal Unemployment|\n"
            "69SS|0SS|67|0|IL Fund|\n"
            "20SS|0SS|0|67|IL Fund|\n"
            "70SS|0SS|31.23|0|Match|\n"
            "21SS|0SS|0|31.23|Match|\n");
  EXPECT_EQ(acme.off_balance(1), Money());
  EXPECT_EQ(acme.paid("Ann"), "Yes");
  EXPECT_EQ(acme.paid("Bob"), "No");
  EXPECT_EQ(Rows_Of(acme.db(), 1, "Type Date Number Name SSNum PayPeriod Address").substr(0, 80),
            "Paycheck|6/12/2026|Print|Ann|1|05/25/2026 - 06/07/2026|Ann\r\n1 Elm \r\nAlton, IL 62");
}

TEST(Posting, OpenedAgainAndSavedUnchangedTheRowsStay) {
  PayrollCompany acme;
  for (const std::string rule : {"Balanced", "Plain"}) {
    acme.rule(rule);
    const int64_t number = acme.pay("Ann");
    acme.run("UPDATE Transactions SET Cleared = -1 WHERE TransNum = ? AND PayrollItem IS NULL", {number});
    const std::string fields = posted + " Type Date Number Name Address SSNum Class PayPeriod";
    const std::string before = Rows_Of(acme.db(), number, fields);
    // Tables, categories and items may change meanwhile; nobody touched the check.
    acme.run("UPDATE PayrollItems SET LiabilityAcct = '14SS' WHERE Name = 'IL Tax'");
    acme.run("DELETE FROM PayrollItems WHERE Name = 'Plan'");
    for (int time = 0; time < 3; ++time) {
      auto entry = Open_Paycheck(*acme.session, number);
      ASSERT_TRUE(entry);
      EXPECT_EQ(std::ranges::count(entry->check.grdCompany, "IL Fund", &SummaryRow::Name), 1) << "two rows, one amount";
      EXPECT_TRUE(Post_Paycheck(*acme.session, *entry).ok());
      EXPECT_EQ(Rows_Of(acme.db(), number, fields), before) << rule << " " << time;
    }
    // A deleted item survives a recalculation too.
    auto entry = Open_Paycheck(*acme.session, number);
    entry->check.grdOtherItems.clear();
    Calculate(entry->check, entry->facts);
    Post_Paycheck(*acme.session, *entry);
    EXPECT_NE(Rows_Of(acme.db(), number, "PayrollItem Amount").find("Plan|80\n"), std::string::npos);
    acme.add_item("Plan", "Deduction", "", "21SS", "PayCal, LiabilityNumber", "'Gross', 'P-1'");
    acme.run("UPDATE PayrollItems SET LiabilityAcct = '19SS' WHERE Name = 'IL Tax'");
  }
}

TEST(Posting, OpenedAgainHourlyRatesKeepTheirFullPrecision) {
  PayrollCompany acme;
  PaycheckEntry entry = acme.opened("Bob");
  entry.check.grdEarnings = {{"Hourly", "18.3333", "33.33"}, {"Hourly", "27.5", "7"}};
  Calculate(entry.check, entry.facts);
  ASSERT_TRUE(Post_Paycheck(*acme.session, entry).ok());
  const std::string rows = Rows_Of(acme.db(), entry.TransNum, "PayrollItem Amount Hours");
  EXPECT_EQ(rows.substr(rows.find('\n') + 1, 38), "Hourly|611.05|33.33\nHourly|192.5|7\nFed") << rows;
  auto again = Open_Paycheck(*acme.session, entry.TransNum);
  const std::string before = Exact(again->check.lblTotal).cell();
  Calculate(again->check, again->facts);
  EXPECT_EQ(again->check.grdEmployee[0].Amount, "611.05");
  EXPECT_EQ(Exact(again->check.lblTotal).cell(), before);
}

TEST(Posting, UnderThePlainRuleWhatDoesNotBalanceHasAName) {
  PayrollCompany acme;
  acme.rule("Plain");
  PaycheckEntry entry = acme.opened("Ann");
  Calculate(entry.check, entry.facts);
  const Money match = *Money::parse(entry.check.grdEmployee.back().Amount);
  EXPECT_EQ(entry.check.grdEmployee.back().Name, "Match");
  EXPECT_EQ(Off_Balance_Lines(entry),
            std::vector<std::string>{"Match (" + Exact(match).cell() +
                                     ") is paid out with the check and owed to its agency as well."});
  Post_Paycheck(*acme.session, entry);
  EXPECT_EQ(acme.off_balance(entry.TransNum), -match);

  acme.run("DELETE FROM EmployeeAdjustments");
  PaycheckEntry given_back = acme.opened("Ann");
  Calculate(given_back.check, given_back.facts);
  given_back.check.grdEmployee[1].Amount = "12.00";  // federal withholding, by hand
  Calc_Balance(given_back.check, given_back.facts);
  EXPECT_EQ(Off_Balance_Lines(given_back),
            std::vector<std::string>{"Federal Withholding (12.00) is given back, but posts as if it was taken."});
  Post_Paycheck(*acme.session, given_back);
  EXPECT_EQ(acme.off_balance(given_back.TransNum), Dollars(-24));
  EXPECT_EQ(acme.found_off_balance(), 0) << "both are known patterns of the plain rule";
  acme.run("UPDATE Transactions SET Debit = Debit + 10000 WHERE PayrollItem = 'Salary' AND TransNum = ?",
           {given_back.TransNum});
  EXPECT_EQ(acme.found_off_balance(), 1) << "a dollar more is not";
  acme.run("UPDATE Transactions SET Debit = Debit - 10000 WHERE PayrollItem = 'Salary' AND TransNum = ?",
           {given_back.TransNum});

  acme.rule("Balanced");
  EXPECT_EQ(acme.found_off_balance(), 2) << "which books that balance do not have";
  EXPECT_NE(Verify_Company(acme.db()).front().what.find("(company contribution paid out, by the plain rule)"),
            std::string::npos)
      << Verify_Company(acme.db()).front().what;
  PaycheckEntry balanced = acme.opened("Ann");
  Calculate(balanced.check, balanced.facts);
  balanced.check.grdEmployee[1].Amount = "12.00";
  Calc_Balance(balanced.check, balanced.facts);
  EXPECT_TRUE(Off_Balance_Lines(balanced).empty());
  Post_Paycheck(*acme.session, balanced);
  EXPECT_EQ(acme.off_balance(balanced.TransNum), Money());
  EXPECT_EQ(Open_Paycheck(*acme.session, balanced.TransNum)->check.grdEmployee[1].Amount, "12.00");
}

TEST(Posting, IsAllOrNothing) {
  PayrollCompany acme;
  PaycheckEntry entry = acme.opened("Ann");
  entry.check.grdEmployee.push_back({"Nobody's item", "5.00", ""});
  EXPECT_THROW(Post_Paycheck(*acme.session, entry), store::Error);
  EXPECT_EQ(acme.db().value("SELECT COUNT(*) FROM Transactions").integer(), 0);
  EXPECT_EQ(acme.db().value("SELECT COUNT(*) FROM PayHistory").integer(), 0) << "looking leaves nothing either";
  entry.check.grdEarnings.clear();
  EXPECT_EQ(Post_Paycheck(*acme.session, entry).fault->box.title, "No Income");

  const int64_t number = acme.pay("Ann");
  auto mine = Open_Paycheck(*acme.session, number);
  auto other = acme.another_user();
  auto theirs = Open_Paycheck(*other, number);
  theirs->Class = "Office";
  EXPECT_TRUE(Post_Paycheck(*other, *theirs).ok());
  EXPECT_TRUE(Post_Paycheck(*acme.session, *mine).conflict);
  EXPECT_EQ(acme.db().value("SELECT MIN(Class) FROM Transactions").text(), "Office");
}

TEST(Posting, DeletingAndTakingBackOpenThePeriodAgain) {
  PayrollCompany acme;
  const int64_t first = acme.pay("Ann"), second = acme.pay("Ann");
  Delete_Transaction(*acme.session, second);
  EXPECT_EQ(acme.paid("Ann"), "Yes") << "another check pays it";
  Delete_Transaction(*acme.session, first);
  EXPECT_EQ(acme.paid("Ann"), "No");
  const int64_t deletion = store::List_Actions(acme.db(), 1).front().number;
  Undo_Action(*acme.session, deletion);
  EXPECT_EQ(acme.paid("Ann"), "Yes");
  Undo_Action(*acme.session, store::List_Actions(acme.db(), 1).front().number);
  EXPECT_EQ(acme.paid("Ann"), "No");
  EXPECT_EQ(acme.db().value("SELECT COUNT(*) FROM Transactions").integer(), 0);
}

TEST(PayRun, ListsTheEmployedAndAsksBeforePayingTwice) {
  PayrollCompany acme;
  acme.run("UPDATE Employees SET ReleaseDate = '2026-01-31' WHERE Name = 'Bob'");
  auto names = [&] {
    std::string list;
    for (const PayRunRow& row : Pay_Run(acme.db(), Date(2026, 6, 7))) list += row.Employee + (row.Paid ? "+" : "-");
    return list;
  };
  EXPECT_EQ(names(), "Ann-");
  acme.pay("Ann");
  EXPECT_EQ(names(), "Ann+");
  EXPECT_EQ(acme.db().value("SELECT COUNT(*) FROM PayHistory").integer(), 2) << "the released one has a row";
  acme.run("UPDATE Employees SET ReleaseDate = NULL");
  EXPECT_EQ(names(), "Ann+Bob-");
  acme.run("UPDATE PayHistory SET Paid = 'No'");
  const PayRunRow ann = Pay_Run(acme.db(), Date(2026, 6, 7)).front();
  const PayPeriod period = *Period_Bounds("BiWeekly", Date(2026, 6, 7), Date(2026, 6, 12));
  EXPECT_TRUE(Is_Already_Paid(acme.db(), ann, "1", period)) << "its check is there";
  EXPECT_FALSE(Is_Already_Paid(acme.db(), ann, "2", period));

  PayRunRow twice_a_year{"Ann", "SemiAnnually", false, Date(2026, 6, 7)};
  EXPECT_EQ(New_Paycheck(*acme.session, {Date(2026, 6, 7), Date(2026, 6, 12), "0SS"}, twice_a_year).box->text,
            "Please Select a Pay Period for this Employee.");
  EXPECT_EQ(Run_Fault({Date(2026, 6, 7), Date(2026, 6, 12), ""})->box.title, "No Bank");
}

TEST(ChosenItems, BringTheirRateAndGoOnUpcomingChecksOnce) {
  PayrollCompany acme;
  acme.run("UPDATE PayrollItems SET DefaultRate = '6%', DefaultLimit = 100000 WHERE Name = 'Plan'");
  PayFacts facts = acme.opened("Bob").facts;
  EXPECT_EQ(Chosen_Wage(facts, "hourly"), (EarningRow{"Hourly", "18.5", "0.0"}));
  EXPECT_EQ(Chosen_Wage(facts, "Salary"), (EarningRow{"Salary", "", ""}));
  EXPECT_EQ(Chosen_Item(facts, "Plan"), (OtherItemRow{"Plan", "6%", "", "Deduction"}));
  EXPECT_TRUE(Is_Missing_From_Upcoming(acme.db(), facts.employee, "Plan"));
  Add_To_Upcoming(*acme.session, facts, "Plan");
  EXPECT_FALSE(Is_Missing_From_Upcoming(acme.db(), facts.employee, "plan"));
  EXPECT_FALSE(Is_Missing_From_Upcoming(acme.db(), acme.opened("Bob").facts.employee, "Plan"));
  const std::string where = " FROM EmployeeAdjustments WHERE SSNum = '2'";
  EXPECT_EQ(acme.db().value("SELECT AmountRate" + where).text(), "6%");
  EXPECT_EQ(acme.db().value("SELECT \"Limit\"" + where).text(), "10");
  acme.run("DELETE FROM Employees WHERE Name = 'Ann'");
  EXPECT_FALSE(Is_Missing_From_Upcoming(acme.db(), {.SSNum = "1", .Name = "Ann"}, "Bonus")) << "who is gone has none";
}

TEST(FirstCalculation, ComesUpWithThePercentageUndivided) {
  PayrollCompany acme;
  PaycheckEntry entry = acme.opened("Ann");
  EXPECT_EQ(entry.check.gross, Dollars(2000));
  // 2,000 less 4 times 2,000, and then less 4 percent of what that leaves.
  EXPECT_EQ(entry.check.lblNet, Dollars(-6000) - Dollars(240));
  EXPECT_EQ(entry.check.grdOtherItems[0].Rate, "4%");
  Calculate(entry.check, entry.facts);
  EXPECT_EQ(entry.check.lblNet, Dollars(1920));
  acme.run("UPDATE Employees SET PayPeriod = 'Annually' WHERE Name = 'Ann'");
  const PaycheckEntry yearly = acme.opened("Ann");
  EXPECT_EQ(yearly.check.grdEarnings, (std::vector<EarningRow>{{"Salary", "", ""}}));
}

TEST(YearToDate, EachRuleCountsItsOwnRows) {
  PayrollCompany acme;
  acme.pay("Ann");
  acme.run(
      "INSERT INTO Transactions (TransNum, Type, Date, Name, SSNum, PayrollItem, Amount, Hours) VALUES"
      " (50, 'YTD Adjust', '2026-01-01', 'Ann', '1', 'Salary', 1000000, 0),"
      " (51, 'Paycheck', '2025-12-31', 'Ann', '1', 'Salary', 70000, 0),"
      " (52, 'Paycheck', '2026-06-30', 'Ann', '1', 'Salary', 5000000, 8)");
  const Date day(2026, 6, 12);
  auto sum = [&](const SumFilter& filter) { return ItemSums::Read(acme.db(), filter).of("salary").amount; };
  EXPECT_EQ(sum(SumFilter::Earned_This_Year("1", day)), Dollars(2600));
  EXPECT_EQ(sum(SumFilter::Paid_This_Year("1", day)), Dollars(2500));
  EXPECT_EQ(sum(SumFilter::Paid_This_Year("1", day, 1)), Dollars(500));
  EXPECT_EQ(sum(SumFilter::Paid_Up_To("1", day)), Dollars(2000));
  EXPECT_EQ(sum(SumFilter::Paid_Up_To("1", Date(2025, 12, 31))), Dollars(7));
  EXPECT_EQ(sum(SumFilter::On_Stub("Ann", day)), Dollars(2100));
  EXPECT_EQ(sum(SumFilter::Paid_In({Date(2026, 4, 1), Date(2026, 6, 30)})), Dollars(2500));
  // An employer's tax stands in two rows and counts once.
  PaycheckEntry next = acme.opened("Ann", Date(2026, 6, 21));
  const auto fund = std::ranges::find(next.check.grdCompany, "IL Fund", &SummaryRow::Name);
  EXPECT_EQ(fund->Amount, "-67.00");
  EXPECT_EQ(fund->YTD, "-134.00");
}

TEST(Periods, BoundsOfEveryFrequency) {
  struct Case {
    std::string frequency;
    Date end, pay;
    std::string bounds;
  };
  const Date end(2026, 3, 14), pay(2026, 1, 20);
  for (const auto& [frequency, last, paid, bounds] : std::vector<Case>{
           {"Daily", end, pay, "03/14/2026 - 03/14/2026"},
           {"weekly", end, pay, "03/08/2026 - 03/14/2026"},
           {"BiWeekly", end, pay, "03/01/2026 - 03/14/2026"},
           {"SemiMonthly", end, pay, "03/01/2026 - 03/15/2026"},
           {"SemiMonthly", Date(2028, 2, 16), pay, "02/16/2028 - 02/29/2028"},
           {"Monthly", end, pay, "00/20/2026 - 03/14/2026"},  // paid in January: a month 0, shown as it is
           {"Monthly", end, end, "02/14/2026 - 03/14/2026"},
           {"Quarterly", end, Date(2026, 6, 5), "03/05/2026 - 03/14/2026"},
           {"Annually", end, pay, "01/20/2025 - 03/14/2026"}})
    EXPECT_EQ(Period_Bounds(frequency, last, paid)->text(), bounds) << frequency;
  EXPECT_FALSE(Period_Bounds("SemiAnnually", end, pay));
  EXPECT_FALSE(Period_Bounds("", end, pay));
  EXPECT_FALSE(Read_Pay_Period("00/20/2026 - 03/14/2026", end).first);
}

TEST(Periods, HoursComeFromTheWeeksTheyOverlap) {
  PayrollCompany acme;
  auto week = [&](const std::string& table, const std::string& hours) {
    acme.run("CREATE TABLE " + table +
             " (SSNum TEXT, PayrollItem TEXT, DayOne REAL, DayTwo REAL, DayThree REAL, DayFour REAL, DayFive REAL,"
             " DaySix REAL, DaySeven REAL)");
    acme.run("INSERT INTO " + table + " VALUES ('2', 'Hourly', " + hours + "), ('2', 'Other', 1, 1, 1, 1, 1, 1, 1)");
  };
  week("Time20260524", "64, 8, 8, NULL, 8, 8, 0.5");  // from Sunday, May 24
  week("Time20260531", "0, 8, 8, 8, 8, 7.25, 0");
  week("Time20260607", "4, 32, 32, 32, 32, 32, 32");
  EXPECT_EQ(Get_Hours(*acme.session, "Hourly", "2", *Period_Bounds("BiWeekly", Date(2026, 6, 7), Date(2026, 6, 7)),
                      "BiWeekly"),
            8 + 8 + 8 + 8 + 0.5 + 39.25 + 4);
  EXPECT_EQ(
      Get_Hours(*acme.session, "Hourly", "2", *Period_Bounds("Daily", Date(2026, 6, 5), Date(2026, 6, 5)), "Daily"),
      7.25);
  EXPECT_EQ(acme.opened("Bob").check.grdEarnings[0].Hours, "75.75");
  acme.run("UPDATE GeneralPrefs SET State = 'Monday' WHERE Preference = 'FirstDay'");
  EXPECT_EQ(acme.opened("Bob").check.grdEarnings[0].Hours, "0") << "weeks of another first day are not found";
}

}  // namespace
}  // namespace tallymere
