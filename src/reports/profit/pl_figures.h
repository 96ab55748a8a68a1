#pragma once

#include "reports/frame/statement.h"

/// The figures of a profit and loss in its variants.
namespace tallymere {

Statement_Columns Load_PL(store::Database& db, const CategoryTree& tree, const ReportRequest& request);
Statement_Columns Load_PLYTD(store::Database& db, const CategoryTree& tree, const ReportRequest& request);
Statement_Columns Load_PLPrev(store::Database& db, const CategoryTree& tree, const ReportRequest& request);
Statement_Columns Load_PLCus(store::Database& db, const CategoryTree& tree, const ReportRequest& request);
Statement_Columns Load_PLClass(store::Database& db, const CategoryTree& tree, const ReportRequest& request);

}  // namespace tallymere
