#pragma once

#include "reports/reports.h"

/// What the company has on record, list by list: the frmPrintList windows. Balances and stock are those kept with the
/// lists, as last recomputed.
namespace tallymere {

ReportTable Build_Customer_List(Session& session, const ReportRequest& request);
ReportTable Build_Vendor_List(Session& session, const ReportRequest& request);
/// Whole social security numbers are for the administrator; others see the last four digits.
ReportTable Build_Employee_List(Session& session, const ReportRequest& request);
ReportTable Build_Category_List(Session& session, const ReportRequest& request);
ReportTable Build_Item_List(Session& session, const ReportRequest& request);
ReportTable Build_Repeat_List(Session& session, const ReportRequest& request);
ReportTable Build_PayItem_List(Session& session, const ReportRequest& request);

}  // namespace tallymere
