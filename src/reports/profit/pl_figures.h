#pragma once

#include "reports/profit/profit_and_loss.h"

namespace tallymere {

/// The amount columns of a profit and loss: what stands above them and each category's own figures.
struct PL_Columns {
  std::vector<std::string> captions;
  /// Whether the section's total takes in the sub-categories' figures although their parents' hold them
  /// already. All columns of comparison do; the report's own amount does not.
  std::vector<bool> counts_twice;
  ColumnFigures own;  ///< as income has them
};

PL_Columns Load_PL(store::Database& db, const CategoryTree& tree, const ReportRequest& request);
PL_Columns Load_PLYTD(store::Database& db, const CategoryTree& tree, const ReportRequest& request);
PL_Columns Load_PLPrev(store::Database& db, const CategoryTree& tree, const ReportRequest& request);
PL_Columns Load_PLCus(store::Database& db, const CategoryTree& tree, const ReportRequest& request);
PL_Columns Load_PLClass(store::Database& db, const CategoryTree& tree, const ReportRequest& request);

}  // namespace tallymere
