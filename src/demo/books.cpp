#include "demo/books.h"

#include <algorithm>

namespace tallymere::demo {
namespace {

constexpr int days_in_print_queue = 3;
constexpr int day_of_statement = 10;  // last month's bank statement has been worked through by then

Date Reconciled_Through(Date today) {
  const Date last_month = today.first_of_month().plus_days(-1);
  return today.day() >= day_of_statement ? last_month : last_month.first_of_month().plus_days(-1);
}

}  // namespace

Books::Books(store::Database& database, const DemoOptions& options)
    : db(database),
      random(options.seed),
      plan(options),
      chart(database, plan.first),
      parties(plan, random),
      items(plan, chart, parties, random),
      loader(database, {chart.checking, chart.savings, chart.card}, Reconciled_Through(plan.last)),
      day(plan.first),
      size_(std::max(1.0, plan.employees / 5.0)) {}

Document& Books::Open_Check(std::string_view type, std::string_view payee, std::string_view address) {
  Document& check = Open(type);
  check.name = payee;
  check.address = address;
  check.reference = days_between(day, plan.last_workday) < days_in_print_queue ? std::string(to_print)
                                                                               : std::to_string(next_check_++);
  return check;
}

void Books::Close(Document& document) {
  for (const Posting& row : document.rows) {
    if (row.account == chart.checking) bank_ += row.debit - row.credit;
    if (row.item == items.state_tax->name) state_tax_ += row.credit - row.debit;
    if (row.item == items.city_tax->name) city_tax_ += row.credit - row.debit;
  }
}

Document& Books::Entry(std::string_view debited, std::string_view credited, Money amount, std::string_view memo,
                       std::string_view name) {
  Document& entry = Open("Ledger Entry");
  entry.memo = memo;
  entry.name = name;
  entry.add({.account = debited, .category = credited, .debit = amount});
  entry.add({.account = credited, .category = debited, .credit = amount});
  Close(entry);
  return entry;
}

void Books::On(Date when, std::function<void()> work) {
  const Date workday = Workday_From(when <= day ? day.plus_days(1) : when);
  if (workday <= plan.last) due_[plan.day_index(workday)].push_back(std::move(work));
}

void Books::Run_Due() {
  const auto today = due_.find(plan.day_index(day));
  if (today == due_.end()) return;
  for (const auto& work : today->second) work();
  due_.erase(today);
}

Money Books::between(int low, int high) {
  return Money::from_units(int64_t{random.between(low * 100, high * 100)} * 100);
}

}  // namespace tallymere::demo
