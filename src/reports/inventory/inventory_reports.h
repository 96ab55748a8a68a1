#pragma once

#include "reports/reports.h"

/// What is in stock, reckoned from the ledger up to the report's day: never from the StockQty of the list.
namespace tallymere {

ReportTable Build_Stock_By_Item(Session& session, const ReportRequest& request);
ReportTable Build_Stock_By_Vendor(Session& session, const ReportRequest& request);
ReportTable Build_Stock_Value(Session& session, const ReportRequest& request);
ReportTable Build_Stock_Value_Detail(Session& session, const ReportRequest& request);
ReportTable Build_Count_Worksheet(Session& session, const ReportRequest& request);

}  // namespace tallymere
