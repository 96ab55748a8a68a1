#pragma once

#include "core/ledger/category_tree.h"
#include "reports/reports.h"

namespace tallymere {

/// The transactions that a detailed profit and loss lists under each category: all rows of the period, the
/// uncounted too, read once.
class PL_Rows {
 public:
  static constexpr int amount_column = 8;
  static std::vector<ReportColumn> Columns();

  PL_Rows(store::Database& db, const CategoryTree& tree, const ReportRequest& request);

  /// The rows of a category with all below it, by date. On cash basis income lists none.
  void add_to(ReportTable& table, std::string_view CatID) const;

 private:
  CategoryTree const& tree_;
  ReportTable lines_;
  CaselessMap<std::vector<int>> by_category_;  ///< rows of lines_
};

}  // namespace tallymere
