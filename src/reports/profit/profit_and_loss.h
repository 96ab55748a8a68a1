#pragma once

#include "reports/graph/graph.h"

/// The income statement: frmPrintPL2 in its six variants.
namespace tallymere {

ReportTable Build_PL(Session& session, const ReportRequest& request);
ReportTable Build_PLYTD(Session& session, const ReportRequest& request);
ReportTable Build_PLPrev(Session& session, const ReportRequest& request);
ReportTable Build_PLCus(Session& session, const ReportRequest& request);
ReportTable Build_PLClass(Session& session, const ReportRequest& request);
ReportTable Build_PLDetail(Session& session, const ReportRequest& request);

/// The same figures month by month, and the largest expenses: top-level categories with all below them.
Graph Build_PL_Graph(Session& session, const ReportRequest& request);

}  // namespace tallymere
