#include "payroll/time_sheet.h"

#include <gtest/gtest.h>

#include "core/store/error.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;

const Date week(2026, 6, 14);

TEST(TimeSheets, TheWeekBeginsOnThePreferredDay) {
  TestCompany company;
  const auto prefer = [&](const char* day) {
    store::Transaction tx(company.db(), "first day");
    company.db().Execute("UPDATE GeneralPrefs SET State = ? WHERE Preference = 'FirstDay'", {std::string(day)});
    tx.commit();
  };
  EXPECT_EQ(First_Day_Of_Week(*company.session, Date(2026, 6, 15)), week);
  EXPECT_EQ(First_Day_Of_Week(*company.session, week), week);
  prefer("Saturday");
  EXPECT_EQ(First_Day_Of_Week(*company.session, Date(2026, 6, 19)), Date(2026, 6, 13));
  prefer("someday");
  EXPECT_EQ(First_Day_Of_Week(*company.session, Date(2026, 6, 15)), week);
}

TEST(TimeSheets, LookingAtAWeekMakesNoTableWritingMakesOne) {
  TestCompany company;
  Session& session = *company.session;
  EXPECT_TRUE(Time_Rows(session, week, "111").empty());
  EXPECT_FALSE(company.db().find_table("Time20260614"));
  TimeRow row{.Customer = "Baker", .PayrollItem = "Hourly", .hours = {{8, std::nullopt, 7.5}}};
  row.key = Save_Time_Row(session, week, "111", {}, row);
  Save_Time_Row(session, week, "222", {}, {.PayrollItem = "Hourly", .hours = {{1}}});
  ASSERT_TRUE(company.db().find_table("Time20260614"));
  EXPECT_EQ(Time_Rows(session, week, "111"), std::vector{row});
  EXPECT_EQ(Calc_Hours({row, row}).back(), 31);
  EXPECT_EQ(Calc_Hours({row, row})[2], 15);
}

TEST(TimeSheets, ARowThatAnotherUserChangedIsNeitherWrittenOverNorDeleted) {
  TestCompany company;
  Session& session = *company.session;
  TimeRow mine{.PayrollItem = "Hourly", .hours = {{8}}};
  mine.key = Save_Time_Row(session, week, "111", {}, mine);
  TimeRow theirs = mine;
  theirs.hours[1] = 4;
  Save_Time_Row(session, week, "111", mine, theirs);
  EXPECT_THROW(Save_Time_Row(session, week, "111", mine, mine), store::Error);
  EXPECT_THROW(Delete_Time_Row(session, week, mine), store::Error);
  EXPECT_EQ(Time_Rows(session, week, "111"), std::vector{theirs});
  Delete_Time_Row(session, week, theirs);
  EXPECT_TRUE(Time_Rows(session, week, "111").empty());
}

TEST(TimeSheets, HoursAreNumbersAndGoToAPayrollItem) {
  const auto said = [](const std::array<std::string, 7>& typed, const char* item) {
    const auto fault = Time_Row_Fault(typed, item);
    return fault ? fault->box.title + "@" + fault->control : "";
  };
  EXPECT_EQ(said({"8", "", "eight"}, "Hourly"), "Not a Number@DayThree");
  EXPECT_EQ(said({"8"}, ""), "No Payroll item@PayrollItem");
  EXPECT_EQ(said({}, ""), "") << "a note alone";
  EXPECT_EQ(said({"7.25"}, "Hourly"), "");
}

}  // namespace
}  // namespace tallymere
