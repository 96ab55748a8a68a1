#include "payroll/periods.h"

#include <algorithm>
#include <cstdio>

#include "core/store/sql.h"
#include "core/values/format.h"
#include "core/values/text.h"
#include "payroll/time_sheet.h"

namespace tallymere {
namespace {

constexpr std::string_view date_mask = "mm/dd/yyyy";
PayPeriod Period_Of(Date first, Date last) { return {Format(first, date_mask), Format(last, date_mask), first, last}; }

PayPeriod Half_Month(Date pay_end) {
  const Date first = pay_end.first_of_month();
  return pay_end.day() > 15 ? Period_Of(first.plus_days(15), first.end_of_month())
                            : Period_Of(first, first.plus_days(14));
}

/// The first day as its parts say it, a month 0 or less included.
PayPeriod Period_From(int month, unsigned day, int year, Date last) {
  char text[24];
  std::snprintf(text, sizeof text, "%s%02d/%02u/%04d", month < 0 ? "-" : "", month < 0 ? -month : month, day, year);
  const auto first = month > 0 ? Date::from_ymd(year, static_cast<unsigned>(month), day) : std::nullopt;
  return {text, Format(last, date_mask), first, last};
}

/// How many days of the time sheets count, from the first day on.
int Days_Of(std::string_view pay_period, Date first, Date last) {
  const std::string period = folded(pay_period);
  const int length = days_between(first, last) + 1;
  if (period == "daily") return 1;
  if (period == "weekly") return std::min(7, length);
  if (period == "biweekly") return std::min(14, length);
  return length;
}

/// The hours of some days of one week, `from` and `to` counted from its first day.
double Hours_Of_Week(store::Database& db, const std::string& table, std::string_view wage, std::string_view ss_num,
                     int from, int to) {
  std::string sum;
  for (int day = from; day <= to; ++day)
    sum += std::string(sum.empty() ? "IFNULL(" : " + IFNULL(") + Day_Fields[static_cast<size_t>(day)] + ", 0)";
  return db
      .value("SELECT TOTAL(" + sum + ") FROM " + store::Quoted(table) + " WHERE SSNum = ? AND PayrollItem = ?",
             {ss_num, wage})
      .number();
}

}  // namespace

const PayFrequency* Find_Frequency(std::string_view pay_period) {
  const auto found = std::ranges::find_if(
      pay_frequencies, [pay_period](const PayFrequency& known) { return same_text(known.name, pay_period); });
  return found == pay_frequencies.end() ? nullptr : &*found;
}

std::optional<PayPeriod> Period_Bounds(std::string_view pay_period, Date pay_end, Date pay_date) {
  const std::string period = folded(pay_period);
  const int month = static_cast<int>(pay_date.month());
  if (period == "daily") return Period_Of(pay_end, pay_end);
  if (period == "weekly") return Period_Of(pay_end.plus_days(-6), pay_end);
  if (period == "biweekly") return Period_Of(pay_end.plus_days(-13), pay_end);
  if (period == "semimonthly") return Half_Month(pay_end);
  if (period == "monthly") return Period_From(month - 1, pay_date.day(), pay_end.year(), pay_end);
  if (period == "quarterly") return Period_From(month - 3, pay_date.day(), pay_end.year(), pay_end);
  if (period == "annually") return Period_From(month, pay_date.day(), pay_end.year() - 1, pay_end);
  return std::nullopt;
}

PayPeriod Read_Pay_Period(std::string_view text, Date day) {
  const auto parts = split(text, " - ");
  if (parts.size() != 2) return Period_Of(day, day);
  return {parts[0], parts[1], Date::parse(parts[0]), Date::parse(parts[1])};
}

double Get_Hours(Session& session, std::string_view wage, std::string_view ss_num, const PayPeriod& period,
                 std::string_view pay_period) {
  if (!period.first || !period.last || *period.last < *period.first) return 0;
  const Date last = period.first->plus_days(Days_Of(pay_period, *period.first, *period.last) - 1);
  double hours = 0;
  for (Date week = First_Day_Of_Week(session, *period.first); week <= last; week = week.plus_days(7)) {
    const std::string table = Time_Table(week);
    if (!session.dbCompany->find_table(table)) continue;
    const int from = std::max(0, days_between(week, *period.first)), to = std::min(6, days_between(week, last));
    hours += Hours_Of_Week(*session.dbCompany, table, wage, ss_num, from, to);
  }
  return hours;
}

}  // namespace tallymere
