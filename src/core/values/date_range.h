#pragma once

#include <array>
#include <string_view>

#include "core/values/date.h"

namespace tallymere {

/// Both days belong to the range.
struct DateRange {
  Date start;
  Date end;
  friend bool operator==(const DateRange&, const DateRange&) = default;
};

/// Before and after whatever a ledger holds.
inline constexpr Date First_Day(100, 1, 1), Last_Day(9999, 12, 31);

/// The preset names in the order in which lists offer them.
inline constexpr std::array<std::string_view, 10> Date_Range_Names = {
    "Today",     "This Week", "This Month", "This Quarter", "This Year",
    "Yesterday", "Last Week", "Last Month", "Last Quarter", "Last Year"};

/// Weeks run Sunday to Saturday, quarters and years follow the calendar, never a fiscal year. A name that is
/// none of the presets is the current month up to today.
DateRange Get_Date_Range(std::string_view name, Date today);

}  // namespace tallymere
