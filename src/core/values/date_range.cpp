#include "core/values/date_range.h"

namespace tallymere {
namespace {

DateRange Week(Date day) { return {day.plus_days(1 - day.weekday()), day.plus_days(7 - day.weekday())}; }

DateRange Month(Date day) { return {day.first_of_month(), day.end_of_month()}; }

DateRange Quarter(Date day) {
  const Date start(day.year(), (day.month() - 1) / 3 * 3 + 1, 1);
  return {start, start.add_months(2).end_of_month()};
}

DateRange Year(int year) { return {Date(year, 1, 1), Date(year, 12, 31)}; }

}  // namespace

DateRange Get_Date_Range(std::string_view name, Date today) {
  if (name == "Today") return {today, today};
  if (name == "This Week") return Week(today);
  if (name == "This Month") return Month(today);
  if (name == "This Quarter") return Quarter(today);
  if (name == "This Year") return Year(today.year());
  if (name == "Yesterday") return {today.plus_days(-1), today.plus_days(-1)};
  if (name == "Last Week") return Week(today.plus_days(-7));
  if (name == "Last Month") return Month(today.add_months(-1));
  if (name == "Last Quarter") return Quarter(today.first_of_month().add_months(-3));
  if (name == "Last Year") return Year(today.year() - 1);
  return {today.first_of_month(), today};
}

}  // namespace tallymere
