#include "core/values/date_range.h"

namespace tallymere {
namespace {

TEST(DateRange, PresetsOnTheDaysWhereTheyTurn) {
  const struct {
    const char *name, *today, *start, *end;
  } cases[] = {
      {"Today", "2/29/2024", "2/29/2024", "2/29/2024"},
      {"Yesterday", "1/1/2026", "12/31/2025", "12/31/2025"},
      {"Yesterday", "3/1/2024", "2/29/2024", "2/29/2024"},
      // 3/1/2026 is a Sunday, 3/7 the Saturday of its week.
      {"This Week", "3/1/2026", "3/1/2026", "3/7/2026"},
      {"This Week", "3/7/2026", "3/1/2026", "3/7/2026"},
      {"This Week", "12/31/2025", "12/28/2025", "1/3/2026"},
      {"Last Week", "3/1/2026", "2/22/2026", "2/28/2026"},
      {"Last Week", "3/7/2026", "2/22/2026", "2/28/2026"},
      {"This Month", "2/1/2024", "2/1/2024", "2/29/2024"},
      {"This Month", "2/28/2023", "2/1/2023", "2/28/2023"},
      {"This Month", "12/31/2025", "12/1/2025", "12/31/2025"},
      {"Last Month", "3/31/2026", "2/1/2026", "2/28/2026"},
      {"Last Month", "3/31/2024", "2/1/2024", "2/29/2024"},
      {"Last Month", "1/15/2026", "12/1/2025", "12/31/2025"},
      {"This Quarter", "1/1/2026", "1/1/2026", "3/31/2026"},
      {"This Quarter", "6/30/2026", "4/1/2026", "6/30/2026"},
      {"This Quarter", "7/1/2026", "7/1/2026", "9/30/2026"},
      {"This Quarter", "12/31/2026", "10/1/2026", "12/31/2026"},
      {"Last Quarter", "1/15/2026", "10/1/2025", "12/31/2025"},
      {"Last Quarter", "3/31/2026", "10/1/2025", "12/31/2025"},
      {"Last Quarter", "5/31/2026", "1/1/2026", "3/31/2026"},
      {"Last Quarter", "12/31/2026", "7/1/2026", "9/30/2026"},
      {"This Year", "2/29/2024", "1/1/2024", "12/31/2024"},
      {"Last Year", "2/29/2024", "1/1/2023", "12/31/2023"},
      {"", "3/17/2026", "3/1/2026", "3/17/2026"},
      {"this week", "3/17/2026", "3/1/2026", "3/17/2026"},
  };
  for (const auto& test : cases) {
    const DateRange range = Get_Date_Range(test.name, *Date::parse(test.today));
    EXPECT_EQ(range.start.to_text(), test.start) << test.name << " on " << test.today;
    EXPECT_EQ(range.end.to_text(), test.end) << test.name << " on " << test.today;
  }
}

}  // namespace
}  // namespace tallymere
