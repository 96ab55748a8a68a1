#pragma once

#include "reports/sums/ledger_sums.h"

namespace tallymere {

/// The transactions that a detailed statement lists under each category, read once.
class Statement_Rows {
 public:
  static constexpr int amount_column = 8;
  /// Type to Amount; the other side's column is called differently from statement to statement.
  static std::vector<ReportColumn> Columns(std::string_view break_down_caption);

  /// The period's rows of these categories that meet `counted` (in SQL; empty: all), by date.
  Statement_Rows(store::Database& db, const CategoryTree& tree, const CatIDs& categories, DateRange days,
                 const std::string& counted = {});

  /// Adds the rows of a category with all below it.
  void add_to(ReportTable& table, const std::string& CatID) const;

 private:
  CategoryTree const& tree_;
  ReportTable lines_;
  CaselessMap<std::vector<int>> by_category_;  ///< rows of lines_
};

}  // namespace tallymere
