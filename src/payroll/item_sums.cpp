#include "payroll/item_sums.h"

#include "core/values/text.h"

namespace tallymere {
namespace {

Date New_Year(Date day) { return Date(day.year(), 1, 1); }

/// The filter as a condition; its values are added in the order of their marks.
std::string Condition(const SumFilter& filter, store::Database::Params& params) {
  std::string condition = "PayrollItem IS NOT NULL";
  auto add = [&](std::string_view test, store::Value value) {
    condition += " AND " + std::string(test);
    params.push_back(std::move(value));
  };
  if (filter.paychecks_only) condition += " AND Type = 'Paycheck'";
  if (!filter.SSNum.empty()) add("SSNum = ?", filter.SSNum);
  if (!filter.Name.empty()) add("Name = ?", filter.Name);
  if (filter.from) add("Date >= ?", *filter.from);
  if (filter.to) add("Date <= ?", *filter.to);
  if (filter.without_number != 0) add("TransNum <> ?", filter.without_number);
  return condition;
}

}  // namespace

SumFilter SumFilter::Earned_This_Year(std::string_view ss_num, Date today) {
  return {.SSNum = std::string(ss_num), .from = New_Year(today)};
}

SumFilter SumFilter::Paid_This_Year(std::string_view ss_num, Date today, int64_t own_number) {
  return {.paychecks_only = true, .SSNum = std::string(ss_num), .from = New_Year(today), .without_number = own_number};
}

SumFilter SumFilter::Paid_Up_To(std::string_view ss_num, Date day) {
  return {.paychecks_only = true, .SSNum = std::string(ss_num), .from = New_Year(day), .to = day};
}

SumFilter SumFilter::On_Stub(std::string_view name, Date day) {
  return {.Name = std::string(name), .from = New_Year(day), .to = day};
}

SumFilter SumFilter::Paid_In(DateRange days) { return {.paychecks_only = true, .from = days.start, .to = days.end}; }

SumFilter SumFilter::Posted_In(DateRange days) { return {.from = days.start, .to = days.end}; }

ItemSums::Sum& ItemSums::Sum::operator+=(const Sum& other) {
  amount += other.amount;
  hours += other.hours;
  rows += other.rows;
  return *this;
}

ItemSums ItemSums::Read(store::Database& company, const SumFilter& filter) {
  ItemSums sums;
  store::Database::Params params;
  const std::string query =
      "SELECT PayrollItem, SSNum, substr(Date, 1, 4), substr(Date, 6, 2), SUM(Amount), TOTAL(Hours), COUNT(*)"
      " FROM Transactions WHERE " +
      Condition(filter, params) + " GROUP BY PayrollItem, SSNum, substr(Date, 1, 7)";
  company.each(query, params, [&sums](const store::Row& row) {
    sums.add({std::string(row.text(0)),
              std::string(row.text(1)),
              static_cast<int>(row.integer(2)),
              static_cast<int>(row.integer(3)),
              {row.money(4), row.number(5), row.integer(6)}});
  });
  return sums;
}

void ItemSums::add(Group group) {
  by_item_[group.item].push_back(groups_.size());
  groups_.push_back(std::move(group));
}

ItemSums::Sum ItemSums::of(std::string_view item) const {
  Sum total;
  if (const auto found = by_item_.find(item); found != by_item_.end())
    for (const size_t at : found->second) total += groups_[at].sum;
  return total;
}

ItemSums::Sum ItemSums::of(std::string_view item, std::string_view ss_num) const {
  Sum total;
  if (const auto found = by_item_.find(item); found != by_item_.end())
    for (const size_t at : found->second)
      if (same_text(groups_[at].SSNum, ss_num)) total += groups_[at].sum;
  return total;
}

}  // namespace tallymere
