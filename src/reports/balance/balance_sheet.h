#pragma once

#include "reports/graph/graph.h"

/// The company's position at the end of a day: frmPrintBalSheet in its four variants.
namespace tallymere {

ReportTable Build_BalStand(Session& session, const ReportRequest& request);
ReportTable Build_BalSum(Session& session, const ReportRequest& request);
ReportTable Build_BalCmp(Session& session, const ReportRequest& request);
ReportTable Build_BalDetail(Session& session, const ReportRequest& request);

/// What its totals came to when each of the last twelve months ended.
Graph Build_Balance_Graph(Session& session, const ReportRequest& request);

}  // namespace tallymere
