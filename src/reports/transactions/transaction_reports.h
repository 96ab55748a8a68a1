#pragma once

#include "reports/reports.h"

/// The rows of the ledger in columns that the user picks: frmPrintCustom under all its keys. Amounts of a
/// category's report are positive on the category's own side; those of the others are positive for debits.
namespace tallymere {

/// The columns a key comes up with, each with a trailing comma; empty: all fields of Transactions.
std::string_view Custom_Report_Columns(std::string_view key);

/// A comma-list as names; blanks and empty entries are left out.
std::vector<std::string> Column_Names(std::string_view list);

/// "Category" for field Account, "<-Break Down->" for field Category, any other as it stands.
std::string_view Caption_Of_Field(std::string_view field);

/// What frmSelectFields offers for these reports: the fields of Transactions in their order.
std::vector<std::string> Pickable_Fields(store::Database& db);

ReportTable Build_Date_Report(Session& session, const ReportRequest& request);
ReportTable Build_Customer_Report(Session& session, const ReportRequest& request);
ReportTable Build_Vendor_Report(Session& session, const ReportRequest& request);
ReportTable Build_Category_Report(Session& session, const ReportRequest& request);
ReportTable Build_One_Vendor_Report(Session& session, const ReportRequest& request);
ReportTable Build_Item_Report(Session& session, const ReportRequest& request);
ReportTable Build_PayItem_Report(Session& session, const ReportRequest& request);

}  // namespace tallymere
