#pragma once

#include "reports/graph/graph.h"

/// Budgets as they were set, and against what the ledger shows.
namespace tallymere {

ReportTable Build_Budget_List(Session& session, const ReportRequest& request);
ReportTable Build_Budget_Compare(Session& session, const ReportRequest& request);
Graph Build_Budget_Graph(Session& session, const ReportRequest& request);

}  // namespace tallymere
