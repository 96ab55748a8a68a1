#pragma once

#include "reports/reports.h"

/// Income by customer and expenses by vendor: frmPrintPLName.
namespace tallymere {

ReportTable Build_PLCusSum(Session& session, const ReportRequest& request);
ReportTable Build_PLCusDetail(Session& session, const ReportRequest& request);
ReportTable Build_PLVenSum(Session& session, const ReportRequest& request);
ReportTable Build_PLVenDetail(Session& session, const ReportRequest& request);

}  // namespace tallymere
