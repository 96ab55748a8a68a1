#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/company/session.h"
#include "core/values/date.h"

/// Time sheets: hours by day, a week to a sheet. Each week is a table of its own, named by its first day.
namespace tallymere {

/// The seven fields of a week's days, in order.
inline constexpr std::array<const char*, 7> Day_Fields = {"DayOne",  "DayTwo", "DayThree", "DayFour",
                                                          "DayFive", "DaySix", "DaySeven"};

struct TimeRow {
  int64_t key = 0;  ///< 0: not written yet
  std::string Customer = {}, Item = {}, Notes = {}, Class = {}, PayrollItem = {};
  std::array<std::optional<double>, 7> hours = {};

  friend bool operator==(const TimeRow&, const TimeRow&) = default;
};

/// "Time20260104" for the week that begins on this day.
std::string Time_Table(Date first);
/// Of all weeks that have one.
std::vector<std::string> Time_Tables(store::Database& company);

/// The first day of the week a day lies in, by the preference "FirstDay".
Date First_Day_Of_Week(Session& session, Date day);

/// An employee's rows of a week, in the order in which they were written; none when nobody wrote in that week yet.
std::vector<TimeRow> Time_Rows(Session& session, Date first, const std::string& SSNum);

/// What the user must put right in a row, with the column's field as its control. `typed` are the day cells as they stand.
std::optional<Fault> Time_Row_Fault(const std::array<std::string, 7>& typed, const std::string& PayrollItem);

/// Writes a row; the week's table is made with the first one. `before` is the row as it was shown: Error 3197 when another user has
/// changed or deleted it since. The row's new key.
int64_t Save_Time_Row(Session& session, Date first, const std::string& SSNum, const TimeRow& before,
                      const TimeRow& now);
void Delete_Time_Row(Session& session, Date first, const TimeRow& row);

/// The sum of each day, and after them of the week.
std::array<double, 8> Calc_Hours(const std::vector<TimeRow>& rows);

struct TimedEmployee {
  std::string SSNum, Name;
};
std::vector<TimedEmployee> Employees_With_Time(Session& session);               ///< who is not released
std::vector<std::string> Wages_Of(Session& session, const std::string& SSNum);  ///< the wage items of an employee

}  // namespace tallymere
