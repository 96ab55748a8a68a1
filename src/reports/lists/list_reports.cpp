#include "reports/lists/list_reports.h"

#include "core/company/ss_number.h"
#include "reports/frame/field_columns.h"

namespace tallymere {
namespace {

ReportTable List_Of(Session& session, const ReportRequest& request, std::string_view table_name,
                    const std::vector<Record_Column>& fields) {
  ReportTable table;
  table.heading = Make_Heading(session, request);
  Add_Records(*session.dbCompany, table, table_name, fields);
  return table;
}

}  // namespace

ReportTable Build_Customer_List(Session& session, const ReportRequest& request) {
  return List_Of(session, request, "Customers", {{"Name", "Customer"}, {"Phone"}, {"AltPhone"}, {"Contact"}});
}

ReportTable Build_Vendor_List(Session& session, const ReportRequest& request) {
  return List_Of(session, request, "Vendors", {{"Name", "Vendor"}, {"Phone"}, {"AltPhone"}, {"Contact"}});
}

ReportTable Build_Employee_List(Session& session, const ReportRequest& request) {
  Record_Column SSNum{"SSNum"};
  SSNum.shown = [&session](std::string_view number) { return Shown_SSNum(session, number); };
  return List_Of(session, request, "Employees",
                 {{"Name"},
                  {"Phone"},
                  {"AltPhone"},
                  SSNum,
                  {"FedStatus"},
                  {"FedAllow"},
                  {"FedWithHolding"},
                  {"StateStatus"},
                  {"StateAllow"},
                  {"StateWithHolding"}});
}

ReportTable Build_Category_List(Session& session, const ReportRequest& request) {
  return List_Of(session, request, "Accounts", {{"AccountName"}, {"AccountType"}, {"AccountNum"}, {"Balance"}});
}

ReportTable Build_Item_List(Session& session, const ReportRequest& request) {
  return List_Of(session, request, "Items",
                 {{"ItemName"}, {"ItemType"}, {"Description"}, {"PriceRate"}, {"StockQty"}, {"InvVendor"}});
}

ReportTable Build_Repeat_List(Session& session, const ReportRequest& request) {
  return List_Of(session, request, "RepeatTrans",
                 {{"Name", "Transaction"}, {"Type"}, {"SourceCat"}, {"Amount"}, {"Frequency"}, {"NextDate"}});
}

ReportTable Build_PayItem_List(Session& session, const ReportRequest& request) {
  return List_Of(session, request, "PayrollItems",
                 {{"Name", "Item"}, {"Type"}, {"DefaultRate"}, {"DefaultLimit"}, {"ExpenseAcct"}, {"LiabilityAcct"}});
}

}  // namespace tallymere
