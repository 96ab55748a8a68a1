#pragma once

#include <cstdint>
#include <vector>

#include "demo/demo.h"

namespace tallymere::demo {

bool Is_Workday(Date day);    ///< Monday to Friday, no fixed holiday
Date Workday_From(Date day);  ///< the day itself or the first workday after it

/// How large the business is, and how much of it has happened by the end of each day.
struct Plan {
  Date first, last;
  Date last_workday;
  int64_t transactions = 0;
  int customers = 0;
  int vendors = 0;
  int employees = 0;
  int parts = 0;
  int days = 0;
  bool bulk = false;  ///< many small jobs and a busy desk, instead of few large ones; worth setting the indexes aside

  int day_index(Date day) const { return days_between(first, day); }
  /// The number of transactions due by the end of a day, rising with the seasons and the years.
  int64_t due_by(Date day) const { return due_[static_cast<size_t>(day_index(day))]; }

  Plan(const DemoOptions& options);

 private:
  std::vector<int64_t> due_;
};

}  // namespace tallymere::demo
