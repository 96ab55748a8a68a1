#pragma once

#include <chrono>
#include <compare>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tallymere {

// A calendar day, without time or zone, from 1/1/100 to 12/31/9999. A day reckoned out of that range throws
// std::out_of_range.
class Date {
 public:
  // Throws std::invalid_argument if there is no such day.
  constexpr Date(int year, unsigned month, unsigned day);
  constexpr explicit Date(std::chrono::sys_days days) : days_(days) {
    if (days < first_day || days > last_day) throw std::out_of_range("date out of range");
  }

  static constexpr std::optional<Date> from_ymd(int year, unsigned month, unsigned day);

  // Reads "m/d/yyyy" and "m/d/yy" (00-29 is 20yy, 30-99 is 19yy), with "-" for "/" too, blanks around it
  // ignored; given today, also "m/d" of its year. Nothing else is a date.
  static std::optional<Date> parse(std::string_view typed, std::optional<Date> today = {});
  // Reads exactly "yyyy-mm-dd".
  static std::optional<Date> from_iso(std::string_view text);

  constexpr int year() const { return static_cast<int>(ymd().year()); }
  constexpr unsigned month() const { return static_cast<unsigned>(ymd().month()); }
  constexpr unsigned day() const { return static_cast<unsigned>(ymd().day()); }
  // 1 is Sunday, 7 is Saturday.
  constexpr int weekday() const { return static_cast<int>(std::chrono::weekday(days_).c_encoding()) + 1; }
  constexpr std::chrono::sys_days days() const { return days_; }

  Date plus_days(int days) const;
  // Keeps the day of the month, or takes the last there is: 1/31 plus one month is 2/28 or 2/29.
  Date add_months(int months) const;
  Date first_of_month() const;
  Date end_of_month() const;

  std::string to_text() const;  // "m/d/yyyy", no leading zeros
  std::string to_iso() const;   // "yyyy-mm-dd"

  friend constexpr auto operator<=>(Date, Date) = default;

 private:
  static constexpr std::chrono::sys_days first_day{std::chrono::year{100} / 1 / 1};
  static constexpr std::chrono::sys_days last_day{std::chrono::year{9999} / 12 / 31};

  constexpr std::chrono::year_month_day ymd() const { return days_; }

  std::chrono::sys_days days_;
};

// Each counts from the first date to the second, negative when the second is earlier.
int days_between(Date from, Date to);
// Differences of the calendar's months and years, whatever the day: 12/31/2025 to 1/1/2026 is one month and
// one year.
int months_between(Date from, Date to);
int years_between(Date from, Date to);

constexpr std::optional<Date> Date::from_ymd(int year, unsigned month, unsigned day) {
  if (year < 100 || year > 9999 || month > 12 || day > 31) return std::nullopt;
  const std::chrono::year_month_day ymd{std::chrono::year{year}, std::chrono::month{month}, std::chrono::day{day}};
  return ymd.ok() ? std::optional(Date(std::chrono::sys_days{ymd})) : std::nullopt;
}

constexpr Date::Date(int year, unsigned month, unsigned day) {
  const auto date = from_ymd(year, month, day);
  if (!date) throw std::invalid_argument("no such day");
  days_ = date->days_;
}

}  // namespace tallymere
