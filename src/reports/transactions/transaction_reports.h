#pragma once

#include "reports/reports.h"

/// The rows of the ledger in columns that the user picks: frmPrintCustom under all its keys. Amounts of a
/// category's report are positive on the category's own side; those of the others are positive for debits.
namespace tallymere {

ReportTable Build_Date_Report(Session& session, const ReportRequest& request);
ReportTable Build_Customer_Report(Session& session, const ReportRequest& request);
ReportTable Build_Vendor_Report(Session& session, const ReportRequest& request);
ReportTable Build_Category_Report(Session& session, const ReportRequest& request);
/// The same, opening with the category's balance when the period begins.
ReportTable Build_Balance_Report(Session& session, const ReportRequest& request);
ReportTable Build_One_Vendor_Report(Session& session, const ReportRequest& request);
ReportTable Build_Item_Report(Session& session, const ReportRequest& request);
ReportTable Build_PayItem_Report(Session& session, const ReportRequest& request);

}  // namespace tallymere
