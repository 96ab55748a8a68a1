#pragma once

#include <string>
#include <vector>

#include "reports/frame/report_table.h"

namespace tallymere {

/// Writes the rows of a list name by name: each name a head, below it its rows and, where wanted, a foot with
/// their sum and a blank row.
class Listing {
 public:
  enum class Idle { Left_Out, Shown };  ///< names without rows
  static constexpr int no_feet = -1;

  /// `foot_column` is where the sum stands. The table and the names must outlive it.
  Listing(ReportTable& table, const std::vector<std::string>& names, Idle idle, int foot_column = no_feet)
      : table_(table), names_(names), idle_(idle), foot_column_(foot_column) {}

  /// The rows that are added from now on belong to names[place]; places do not go back.
  void go_to(size_t place);
  const std::string& name() const { return names_[place_]; }
  void sum(Money amount) { sum_ += amount; }  ///< into the present name's foot
  void finish();                              ///< after the last row

 private:
  void add_head(size_t place);
  void add_foot();

  ReportTable& table_;
  const std::vector<std::string>& names_;
  Idle idle_;
  int foot_column_;
  size_t place_ = 0, next_ = 0;  ///< next_: the first name that has no head yet
  Money sum_;
};

}  // namespace tallymere
