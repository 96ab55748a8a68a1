#include "core/values/date.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdio>
#include <string>
#include <vector>

#include "core/values/clock.h"

namespace tallymere {
namespace {

std::string text_of(const std::optional<Date>& date) { return date ? date->to_iso() : "none"; }

TEST(Date, ReadsTypedDates) {
  const Date today(2024, 5, 6);
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"3/15/2026", "2026-03-15"}, {" 03/05/2026 ", "2026-03-05"}, {"3-15-2026", "2026-03-15"},
      {"1/1/00", "2000-01-01"},    {"1/1/29", "2029-01-01"},       {"1/1/30", "1930-01-01"},
      {"1/1/99", "1999-01-01"},    {"2/29", "2024-02-29"},         {"12-31", "2024-12-31"},
      {"1/1/0100", "0100-01-01"},  {"12/31/9999", "9999-12-31"},   {"2/29/2000", "2000-02-29"}};
  for (const auto& [typed, iso] : cases) EXPECT_EQ(text_of(Date::parse(typed, today)), iso) << typed;
}

TEST(Date, RefusesWhatIsNoDate) {
  const Date today(2023, 5, 6);
  for (const char* typed :
       {"",          "  ",          "/",         "1//2026",    "13/1/2026",  "0/1/2026",  "1/0/2026",
        "4/31/2026", "2/29/2023",   "2/29/1900", "2/29",       "1/1/0099",   "1/1/5",     "1/1/123",
        "1/1/20266", "001/1/2026",  "1/2-2026",  "1/1/2026/1", "1 /1/2026",  "-1/1/2026", "1/+1/2026",
        "1/1/2026x", "Jan 1, 2026", "1.1.2026",  "20260101",   "2026-01-01", "8"})
    EXPECT_FALSE(Date::parse(typed, today)) << typed;
  EXPECT_FALSE(Date::parse("3/15"));  // no year to lend
  EXPECT_THROW(Date(2023, 2, 29), std::invalid_argument);
  EXPECT_THROW(Date(99, 12, 31), std::invalid_argument);
  EXPECT_FALSE(Date::from_ymd(2023, 257, 1));  // must not wrap to January
  EXPECT_FALSE(Date::from_ymd(70000, 1, 1));
}

TEST(Date, IsoTextIsExact) {
  for (const char* iso : {"0100-01-01", "2024-02-29", "9999-12-31"}) EXPECT_EQ(text_of(Date::from_iso(iso)), iso);
  for (const char* text :
       {"", "2024-2-29", "2023-02-29", "2024/02/29", "2024-02-29 ", "24-02-29", "0099-01-01", "+024-02-29"})
    EXPECT_FALSE(Date::from_iso(text)) << text;
  EXPECT_EQ(Date(2026, 3, 5).to_text(), "3/5/2026");
}

TEST(Date, MovesThroughTheCalendar) {
  struct Case {
    Date from;
    int months;
    Date to;
  };
  for (const auto& [from, months, to] : std::vector<Case>{{{2024, 1, 31}, 1, {2024, 2, 29}},
                                                          {{2023, 1, 31}, 1, {2023, 2, 28}},
                                                          {{2024, 2, 29}, 12, {2025, 2, 28}},
                                                          {{2024, 2, 29}, 1, {2024, 3, 29}},
                                                          {{2024, 12, 15}, 1, {2025, 1, 15}},
                                                          {{2024, 1, 31}, -2, {2023, 11, 30}},
                                                          {{2024, 3, 31}, -15, {2022, 12, 31}},
                                                          {{2024, 3, 31}, 0, {2024, 3, 31}}})
    EXPECT_EQ(from.add_months(months), to) << from.to_iso() << " " << months;
  EXPECT_EQ(Date(2024, 2, 28).plus_days(2), Date(2024, 3, 1));
  EXPECT_EQ(Date(2024, 1, 1).plus_days(-1), Date(2023, 12, 31));
  EXPECT_EQ(Date(2024, 2, 10).first_of_month(), Date(2024, 2, 1));
  EXPECT_EQ(Date(1900, 2, 10).end_of_month(), Date(1900, 2, 28));
  EXPECT_EQ(Date(9999, 12, 1).end_of_month(), Date(9999, 12, 31));
}

TEST(Date, StaysInItsRange) {
  const Date first(100, 1, 1), last(9999, 12, 31);
  EXPECT_THROW(last.plus_days(1), std::out_of_range);
  EXPECT_THROW(first.plus_days(-1), std::out_of_range);
  EXPECT_THROW(last.add_months(1), std::out_of_range);
  EXPECT_THROW(first.add_months(-1), std::out_of_range);
  for (const int huge : {INT_MAX, INT_MIN}) {
    EXPECT_THROW(last.plus_days(huge), std::out_of_range);
    EXPECT_THROW(last.add_months(huge), std::out_of_range);
  }
  EXPECT_EQ(first.plus_days(days_between(first, last)), last);
  EXPECT_EQ(last.add_months(months_between(last, first)), Date(100, 1, 31));
}

TEST(Date, CountsDaysMonthsYearsAndWeekdays) {
  const Date eve(2025, 12, 31), new_year(2026, 1, 1);
  EXPECT_EQ(days_between(eve, new_year), 1);
  EXPECT_EQ(months_between(eve, new_year), 1);
  EXPECT_EQ(years_between(eve, new_year), 1);
  EXPECT_EQ(years_between(new_year, eve), -1);
  EXPECT_EQ(months_between(Date(2024, 1, 1), Date(2024, 1, 31)), 0);
  EXPECT_EQ(days_between(Date(2024, 3, 1), Date(2024, 2, 1)), -29);
  EXPECT_EQ(Date(2026, 3, 15).weekday(), 1);  // a Sunday
  EXPECT_EQ(Date(2026, 3, 14).weekday(), 7);
  EXPECT_EQ(Date(100, 1, 1).weekday(), 6);  // a Friday, counting back by the Gregorian rule
  EXPECT_LT(eve, new_year);
}

TEST(Clock, StandsOnADayWhileTimeRuns) {
  const Clock clock = Clock::standing_on(Date(2026, 3, 15));
  EXPECT_EQ(clock.today(), Date(2026, 3, 15));
  const std::string time = clock.now_time();
  int hour = 0, minute = 0, second = 0, read = 0;
  ASSERT_EQ(std::sscanf(time.c_str(), "%2d:%2d:%2d %n", &hour, &minute, &second, &read), 3) << time;
  EXPECT_TRUE(hour >= 1 && hour <= 12 && time[0] != '0') << time;
  const std::string half = time.substr(static_cast<std::size_t>(read));
  EXPECT_TRUE(half == "AM" || half == "PM") << time;
  EXPECT_GT(Clock::system().today(), Date(2024, 1, 1));
}

}  // namespace
}  // namespace tallymere
