#pragma once

#include <string>

#include "core/values/date_range.h"

namespace tallymere {

/// What a report asks for by way of dates: it decides with which it comes up, which controls its window shows
/// and what stands in the heading.
enum class Dates {
  Month,        ///< a period, at first this month up to today
  Year,         ///< a period, at first this year up to today
  Budget_Year,  ///< a period, at first the whole of this year
  As_Of,        ///< all up to one day, at first today
  Today,        ///< a list as it stands: none, the heading has the day it was made
  All,          ///< none: all transactions
};

bool Is_Period(Dates dates);   ///< a start and an end are asked
bool Asks_A_Day(Dates dates);  ///< at least an end is

DateRange Default_Dates(Dates dates, Date today);

/// "1/1/2026 - 6/15/2026", as headings show a period.
std::string Period_Text(Date start, Date end);
/// The heading's line: the period, "As of 6/15/2026", "Monday, June 15, 2026", "All Transactions".
std::string Dates_Text(Dates dates, const DateRange& days);

}  // namespace tallymere
