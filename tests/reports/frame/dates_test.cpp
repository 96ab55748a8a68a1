#include "reports/frame/dates.h"

#include <gtest/gtest.h>

namespace tallymere {
namespace {

TEST(Dates, DecideHowAReportComesUpAndWhatItsHeadingSays) {
  const Date today(2026, 6, 15);
  struct Case {
    Dates dates;
    const char* heading;
    bool period, day;
  };
  for (const auto& [dates, heading, period, day] :
       {Case{Dates::Month, "6/1/2026 - 6/15/2026", true, true}, Case{Dates::Year, "1/1/2026 - 6/15/2026", true, true},
        Case{Dates::Budget_Year, "1/1/2026 - 12/31/2026", true, true},
        Case{Dates::As_Of, "As of 6/15/2026", false, true}, Case{Dates::Today, "Monday, June 15, 2026", false, false},
        Case{Dates::All, "All Transactions", false, false}}) {
    EXPECT_EQ(Dates_Text(dates, Default_Dates(dates, today)), heading);
    EXPECT_EQ(Is_Period(dates), period) << heading;
    EXPECT_EQ(Asks_A_Day(dates), day) << heading;
  }
  EXPECT_EQ(Default_Dates(Dates::As_Of, today).start, First_Day);
  EXPECT_EQ(Default_Dates(Dates::All, today).end, Last_Day) << "what is dated ahead counts too";
}

}  // namespace
}  // namespace tallymere
