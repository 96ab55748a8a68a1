#include "core/values/date.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "core/values/text.h"

namespace tallymere {
namespace {

// A number of `least` to `most` digits and nothing else.
std::optional<unsigned> digits(std::string_view text, std::size_t least, std::size_t most) {
  if (text.size() < least || text.size() > most) return std::nullopt;
  unsigned number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, fault] = std::from_chars(text.data(), end, number);
  return fault == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

std::optional<int> typed_year(std::string_view text) {
  const auto number = digits(text, 2, 4);
  if (!number || text.size() == 3) return std::nullopt;
  const int year = static_cast<int>(*number);
  if (text.size() == 4) return year;
  return year + (year < 30 ? 2000 : 1900);
}

int month_count(Date date) { return date.year() * 12 + static_cast<int>(date.month()) - 1; }

}  // namespace

std::optional<Date> Date::parse(std::string_view typed, std::optional<Date> today) {
  const auto parts = split(trim(typed), contains(typed, "/") ? "/" : "-");
  if (parts.size() != 3 && !(parts.size() == 2 && today)) return std::nullopt;
  const auto month = digits(parts[0], 1, 2);
  const auto day = digits(parts[1], 1, 2);
  const auto year = parts.size() == 3 ? typed_year(parts[2]) : today->year();
  return month && day && year ? from_ymd(*year, *month, *day) : std::nullopt;
}

std::optional<Date> Date::from_iso(std::string_view text) {
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
  const auto year = digits(text.substr(0, 4), 4, 4);
  const auto month = digits(text.substr(5, 2), 2, 2);
  const auto day = digits(text.substr(8, 2), 2, 2);
  return year && month && day ? from_ymd(static_cast<int>(*year), *month, *day) : std::nullopt;
}

Date Date::plus_days(int days) const { return Date(days_ + std::chrono::days(days)); }

Date Date::add_months(int months) const {
  const long long count = static_cast<long long>(month_count(*this)) + months;
  if (count < 100 * 12 || count > 9999 * 12 + 11) throw std::out_of_range("date out of range");
  const Date first(static_cast<int>(count / 12), static_cast<unsigned>(count % 12) + 1, 1);
  return Date(first.year(), first.month(), std::min(day(), first.end_of_month().day()));
}

Date Date::first_of_month() const { return Date(year(), month(), 1); }

Date Date::end_of_month() const {
  const auto [year, month] = std::pair(ymd().year(), ymd().month());
  return Date(std::chrono::sys_days(year / month / std::chrono::last));
}

std::string Date::to_text() const {
  return std::to_string(month()) + "/" + std::to_string(day()) + "/" + std::to_string(year());
}

std::string Date::to_iso() const {
  const auto padded = [](unsigned number, unsigned ten_to_width) {
    return std::to_string(ten_to_width + number).substr(1);
  };
  return padded(static_cast<unsigned>(year()), 10000) + "-" + padded(month(), 100) + "-" + padded(day(), 100);
}

int days_between(Date from, Date to) { return static_cast<int>((to.days() - from.days()).count()); }

int months_between(Date from, Date to) { return month_count(to) - month_count(from); }

int years_between(Date from, Date to) { return to.year() - from.year(); }

}  // namespace tallymere
