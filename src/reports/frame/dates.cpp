#include "reports/frame/dates.h"

#include "core/values/format.h"

namespace tallymere {

bool Is_Period(Dates dates) { return dates == Dates::Month || dates == Dates::Year || dates == Dates::Budget_Year; }

bool Asks_A_Day(Dates dates) { return Is_Period(dates) || dates == Dates::As_Of; }

DateRange Default_Dates(Dates dates, Date today) {
  switch (dates) {
    case Dates::Month:
      return {today.first_of_month(), today};
    case Dates::Year:
      return {Date(today.year(), 1, 1), today};
    case Dates::Budget_Year:
      return {Date(today.year(), 1, 1), Date(today.year(), 12, 31)};
    case Dates::As_Of:
      return {First_Day, today};
    case Dates::Today:
      return {today, today};
    case Dates::All:
      break;
  }
  return {First_Day, Last_Day};
}

std::string Period_Text(Date start, Date end) { return start.to_text() + " - " + end.to_text(); }

std::string Dates_Text(Dates dates, const DateRange& days) {
  if (dates == Dates::As_Of) return "As of " + days.end.to_text();
  if (dates == Dates::Today) return Format(days.end, long_date_mask);
  if (dates == Dates::All) return "All Transactions";
  return Period_Text(days.start, days.end);
}

}  // namespace tallymere
