#include "demo/calendar.h"

#include <algorithm>
#include <array>

namespace tallymere::demo {
namespace {

constexpr int64_t small_business_a_year = 1250;
constexpr int64_t least_a_year = 400;  // what rent, payroll and taxes alone come to
constexpr int64_t largest = 250'000;   // where the lists stop growing
constexpr int64_t bulk_from = 20'000;

/// Landscaping work by month, in percent of the average.
constexpr std::array season = {60, 65, 95, 130, 140, 130, 115, 110, 115, 105, 75, 60};

/// From `small` at a small business to `large` at the largest, in a straight line.
int Scaled(int64_t transactions, int small, int large) {
  const int64_t size = std::clamp<int64_t>(transactions, 0, largest);
  return small + static_cast<int>((large - small) * size / largest);
}

/// The larger the later: business grows by about a tenth a year.
int64_t Weight(Date day, int index) { return Is_Workday(day) ? season[day.month() - 1] * int64_t{3650 + index} : 0; }

}  // namespace

bool Is_Workday(Date day) {
  constexpr std::array<std::pair<unsigned, unsigned>, 4> holidays = {{{1, 1}, {7, 4}, {12, 24}, {12, 25}}};
  const bool weekend = day.weekday() == 1 || day.weekday() == 7;
  return !weekend && std::ranges::find(holidays, std::pair(day.month(), day.day())) == holidays.end();
}

Date Workday_From(Date day) {
  while (!Is_Workday(day)) day = day.plus_days(1);
  return day;
}

Plan::Plan(const DemoOptions& options)
    : first(options.today.add_months(-12 * std::max(options.years, 1)).plus_days(1)),
      last(options.today),
      last_workday(last) {
  const int years = std::max(options.years, 1);
  transactions = std::max(options.transactions.value_or(small_business_a_year * years), least_a_year * years);
  days = days_between(first, last) + 1;
  const int64_t a_year = transactions / years;
  customers = Scaled(transactions, static_cast<int>(std::clamp<int64_t>(a_year / 30, 10, 40)), 500);
  vendors = Scaled(transactions, 12, 200);
  employees = Scaled(3 * a_year, static_cast<int>(std::clamp<int64_t>(a_year / 300, 1, 4)), 50);
  parts = Scaled(transactions, 12, 120);
  bulk = transactions > bulk_from;
  while (!Is_Workday(last_workday)) last_workday = last_workday.plus_days(-1);

  std::vector<int64_t> sums;
  int64_t sum = 0;
  for (int index = 0; index < days; ++index) sums.push_back(sum += Weight(first.plus_days(index), index));
  for (int64_t so_far : sums)
    due_.push_back(
        static_cast<int64_t>(static_cast<double>(transactions) *
                             (static_cast<double>(so_far) / static_cast<double>(std::max<int64_t>(sum, 1)))));
}

}  // namespace tallymere::demo
