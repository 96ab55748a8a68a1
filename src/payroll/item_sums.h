#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/store/database.h"
#include "core/values/caseless.h"
#include "core/values/date_range.h"

/// What stands in the ledger under payroll items, summed in one pass.
namespace tallymere {

/// Which rows count. The paycheck, its stub, the forms and the payroll reports each have a year to date of their own;
/// they differ on purpose, so each has its name here and nobody writes the condition again.
struct SumFilter {
  bool paychecks_only = false;
  std::string SSNum = {}, Name = {};  ///< of one employee, or empty
  std::optional<Date> from = {}, to = {};
  int64_t without_number = 0;  ///< a TransNum that does not count, or 0

  /// Wages since New Year, set-up rows included, whatever the check's own date: what unemployment taxes go by.
  static SumFilter Earned_This_Year(std::string_view ss_num, Date today);
  /// Of earlier paychecks since New Year: the YTD column of a check being entered, which adds its own amount.
  static SumFilter Paid_This_Year(std::string_view ss_num, Date today, int64_t own_number = 0);
  /// Of paychecks in the year of a check up to its day, itself included: the YTD column of a check opened again.
  static SumFilter Paid_Up_To(std::string_view ss_num, Date day);
  /// By the employee's name, set-up rows included, in the year of a check up to its day: the printed stub.
  static SumFilter On_Stub(std::string_view name, Date day);
  /// Of everybody's paychecks in a period: forms and quarterly reports.
  static SumFilter Paid_In(DateRange days);
  /// Of everybody, set-up rows and liability payments included: payroll reports.
  static SumFilter Posted_In(DateRange days);
};

class ItemSums {
 public:
  struct Sum {
    Money amount;
    double hours = 0;
    int64_t rows = 0;
    Sum& operator+=(const Sum& other);
  };
  /// One group: an item of an employee in a month.
  struct Group {
    std::string item, SSNum;
    int year, month;
    Sum sum;
  };

  static ItemSums Read(store::Database& company, const SumFilter& filter);
  void add(Group group);

  /// Of an item, over all that was read. An amount counts once for each row it stands in (PayItem::rows_per_amount).
  Sum of(std::string_view item) const;
  Sum of(std::string_view item, std::string_view ss_num) const;
  const std::vector<Group>& groups() const { return groups_; }

 private:
  std::vector<Group> groups_;
  CaselessMap<std::vector<size_t>> by_item_;
};

}  // namespace tallymere
