#include "reports/reports.h"

#include "core/values/text.h"
#include "reports/aging/aging_reports.h"
#include "reports/balance/balance_sheet.h"
#include "reports/budget/budget_reports.h"
#include "reports/frame/row_groups.h"
#include "reports/frame/table_parts.h"
#include "reports/inventory/inventory_reports.h"
#include "reports/lists/list_reports.h"
#include "reports/payroll/payroll_checkup.h"
#include "reports/payroll/payroll_reports.h"
#include "reports/profit/pl_by_name.h"
#include "reports/profit/profit_and_loss.h"
#include "reports/sales/sales_reports.h"
#include "reports/transactions/transaction_reports.h"

namespace tallymere {
namespace {

constexpr std::string_view category_title = "Category Report: ";
constexpr std::string_view by_transaction = "Date,Type,Number,Name,Memo,Account,Amount,";
constexpr std::string_view of_a_category = "Type,Date,Number,Name,Memo,Category,Amount,Balance,";
constexpr bool has_basis = true, no_basis = false;

// One row for each report. A new one needs its row and its builder, nothing else.
constexpr ReportDef reports[] = {
    {"PL", "frmPrintPL2", "mnuPL", "Profit And Loss", Dates::Month, Build_PL, has_basis},
    {"PLYTD", "frmPrintPL2", "mnuPL", "Profit And Loss Year To Date Comparioson", Dates::Month, Build_PLYTD, has_basis},
    {"PLPrev", "frmPrintPL2", "mnuPL", "Profit And Loss Previous Year Comparioson", Dates::Year, Build_PLPrev,
     has_basis},
    {"PLCus", "frmPrintPL2", "mnuPL", "Profit And Loss Previous by Customer", Dates::Year, Build_PLCus, has_basis},
    {"PLClass", "frmPrintPL2", "mnuPL", "Profit And Loss Previous by Class", Dates::Year, Build_PLClass, has_basis},
    {"PLDetail", "frmPrintPL2", "mnuPL", "Profit And Loss", Dates::Year, Build_PLDetail, has_basis},
    {"PLCusSum", "frmPrintPLName", "mnuPL", "Customer Income Summary", Dates::Year, Build_PLCusSum, has_basis},
    {"PLVenSum", "frmPrintPLName", "mnuPL", "Vendor Expenses Summary", Dates::Year, Build_PLVenSum, has_basis},
    {"PLCusDetail", "frmPrintPLName", "mnuPL", "Customer Income Detail", Dates::Year, Build_PLCusDetail, has_basis},
    {"PLVenDetail", "frmPrintPLName", "mnuPL", "Vendor Expenses Detail", Dates::Year, Build_PLVenDetail, has_basis},
    {"Date", "frmPrintCustom", "mnuTransaction", "Detailed Transactions by Date", Dates::Month, Build_Date_Report,
     no_basis, "", by_transaction},
    {"Customer", "frmPrintCustom", "mnuTransaction", "Detailed Transactions by Customer", Dates::Month,
     Build_Customer_Report, no_basis, "", by_transaction},
    {"Vendor", "frmPrintCustom", "mnuTransaction", "Detailed Transactions by Vendor", Dates::Month, Build_Vendor_Report,
     no_basis, "", by_transaction},
    {"AcctRep", "frmPrintCustom", "mnuAccounts", category_title, Dates::Month, Build_Category_Report, no_basis,
     report_option::category, of_a_category},
    {"PrintAcctRep", "frmPrintCustom", "mnuPL", category_title, Dates::Year, Build_Category_Report, no_basis,
     report_option::category, of_a_category},
    {"PrintAcctBal", "frmPrintCustom", "mnuBalance", category_title, Dates::Year, Build_Balance_Report, no_basis,
     report_option::category, of_a_category},
    {"VendorRep", "frmPrintCustom", "mnuVendors", "Vendor Report: ", Dates::Month, Build_One_Vendor_Report, no_basis,
     report_option::name, of_a_category},
    {"ItemRep", "frmPrintCustom", "mnuItems", "Item Report: ", Dates::Year, Build_Item_Report, no_basis,
     report_option::item, "Type,Date,Number,Name,Memo,Qty,Amount,"},
    {"PayItem", "frmPrintCustom", "mnuRPayroll", "Payroll Item Report", Dates::Year, Build_PayItem_Report, no_basis, "",
     "Type,Date,Number,Name,PayrollItem,Amount,"},
    {"BalStand", "frmPrintBalSheet", "mnuBalance", "Balance Sheet", Dates::As_Of, Build_BalStand, has_basis},
    {"BalSum", "frmPrintBalSheet", "mnuBalance", "Balance Sheet Summary", Dates::As_Of, Build_BalSum, has_basis},
    {"BalCmp", "frmPrintBalSheet", "mnuBalance", "Balance Sheet Comparison", Dates::As_Of, Build_BalCmp, has_basis},
    {"BalDetail", "frmPrintBalSheet", "mnuBalance", "Balance Sheet Detailed", Dates::As_Of, Build_BalDetail, has_basis},
    {"PayCheckup", "frmPrintPayCheckup", "mnuRPayroll", "Payroll Check-up", Dates::As_Of, Build_Payroll_Checkup},
    {"AR", "frmPrintAging", "mnuAR", "Accounts Receivable Aging Summary", Dates::As_Of, Build_Receivable_Aging},
    {"AP", "frmPrintAging", "mnuAP", "Accounts Payable Aging Summary", Dates::As_Of, Build_Payable_Aging},
    {"ARDetail", "frmPrintAgeDetail", "mnuAR", "Accounts Receivable Aging Detail", Dates::As_Of,
     Build_Receivable_Aging_Detail},
    {"APDetail", "frmPrintAgeDetail", "mnuAP", "Accounts Payable Aging Detail", Dates::As_Of,
     Build_Payable_Aging_Detail},
    {"OpenInvoices", "frmPrintAgeDetail", "mnuAR", "Open Invoices", Dates::As_Of, Build_Open_Invoices},
    {"CR", "frmPrintAgeDetail", "mnuAR", "Collections Report", Dates::As_Of, Build_Collections},
    {"OpenBills", "frmPrintAgeDetail", "mnuAP", "Unpaid Bills", Dates::As_Of, Build_Unpaid_Bills},
    {"ARCusSum", "frmPrintBalances", "mnuAR", "Customer Balance Summary", Dates::Year, Build_Customer_Balances},
    {"APVenSum", "frmPrintBalances", "mnuAP", "Vendor Balance Summary", Dates::Year, Build_Vendor_Balances},
    {"ARCusDetail", "frmPrintBalances", "mnuAR", "Customer Balance Detail", Dates::Year, Build_Customer_Balance_Detail},
    {"APVenDetail", "frmPrintBalances", "mnuAP", "Vendor Balance Detail", Dates::Year, Build_Vendor_Balance_Detail},
    {"SaleSum", "frmPrintSales", "mnuSales", "Sales Item Summary", Dates::Month, Build_Item_Sales, has_basis},
    {"SaleDetail", "frmPrintSales", "mnuSales", "Sales Item Detail", Dates::Month, Build_Item_Sales_Detail, has_basis},
    {"SaleCusSum", "frmPrintSaleCus", "mnuSales", "Sales Customer Summary", Dates::Month, Build_Customer_Sales,
     has_basis, "", "", "SaleSum"},
    {"SaleCusDetail", "frmPrintSaleCus", "mnuSales", "Sales Customer Detail", Dates::Month, Build_Customer_Sales_Detail,
     has_basis, "", "", "SaleDetail"},
    {"RepSum", "frmPrintSaleCus", "mnuSales", "Sales Rep Summary", Dates::Month, Build_Rep_Sales, has_basis},
    {"RepDetail", "frmPrintSaleCus", "mnuSales", "Sales Rep Detail", Dates::Month, Build_Rep_Sales_Detail, has_basis},
    {"SalesTax", "frmPrintSalesTax", "mnuSalesReport", "Sales Tax Report", Dates::Month, Build_Sales_Tax},
    {"InvItem", "frmPrintInvItem", "mnuReportsInventory", "Inventory Status by Item", Dates::As_Of, Build_Stock_By_Item,
     no_basis, "", "", "Item"},
    {"InvVendor", "frmPrintInvItem", "mnuReportsInventory", "Inventory Status by Item", Dates::As_Of,
     Build_Stock_By_Vendor, no_basis, "", "", "Vendor"},
    {"InvValSum", "frmPrintInvValue", "mnuReportsInventory", "Inventory Stock Value Summary", Dates::As_Of,
     Build_Stock_Value, no_basis, "", "", "Sum"},
    {"InvValDetail", "frmPrintInvValue", "mnuReportsInventory", "Inventory Stock Value Detail", Dates::As_Of,
     Build_Stock_Value_Detail, no_basis, "", "", "Detail"},
    {"InvCount", "frmPrintInvCount", "mnuReportsInventory", "Inventory Count Worksheet", Dates::All,
     Build_Count_Worksheet},
    {"PaySum", "frmPrintPayroll", "mnuRPayroll", "Payroll Summary", Dates::Year, Build_Payroll_Summary, no_basis, "",
     "Hours,Avg Rate,TOTAL,", "Hours,Avg Rate,TOTAL,"},
    {"EmpSum", "frmPrintPayrollEarnings", "mnuRPayroll", "Payroll Earnings", Dates::Year, Build_Payroll_Earnings},
    {"PayLia", "frmPrintPayrollEarnings", "mnuRPayroll", "Liability Report", Dates::Year, Build_Payroll_Liabilities},
    {"PayDetail", "frmPrintPayDetail", "mnuRPayroll", "Payroll Detail", Dates::Year, Build_Payroll_Detail},
    {"BudList", "frmPrintBudList", "mnuBudget", "Complete Budget Listing", Dates::Budget_Year, Build_Budget_List},
    {"BudCompare", "frmPrintBudCompare", "mnuBudget", "Budget vs. Actual", Dates::Budget_Year, Build_Budget_Compare},
    {"ListCus", "frmPrintListCus", "mnuReportLists", "Customer Contact Phone List", Dates::Today, Build_Customer_List},
    {"ListVen", "frmPrintListVen", "mnuReportLists", "Vendor Contact Phone List", Dates::Today, Build_Vendor_List},
    {"ListEmp", "frmPrintListEmp", "mnuReportLists", "Employee Info List", Dates::Today, Build_Employee_List},
    {"ListCat", "frmPrintListCat", "mnuReportLists", "Category Listing", Dates::Today, Build_Category_List},
    {"ListItem", "frmPrintListItem", "mnuReportLists", "Item Listing", Dates::Today, Build_Item_List},
    {"ListMemTran", "frmPrintListMem", "mnuReportLists", "Repeat Transactions", Dates::Today, Build_Repeat_List},
    {"ListPayItem", "frmPrintListPay", "mnuReportLists", "Payroll Item Listing", Dates::Today, Build_PayItem_List},
};

}  // namespace

std::span<const ReportDef> Reports() { return reports; }

const ReportDef* Find_Report(std::string_view key) {
  for (const ReportDef& report : reports)
    if (same_text(report.key, key)) return &report;
  return nullptr;
}

const ReportDef* Find_Report(std::string_view window, std::string_view window_key) {
  for (const ReportDef& report : reports)
    if (report.window == window && (window_key.empty() || report.asked_as() == window_key)) return &report;
  return nullptr;
}

bool ReportDef::takes(std::string_view option) const {
  return option == report_option::fields || option == report_option::empty || (!option.empty() && option == subject);
}

const std::string& ReportRequest::option(std::string_view name) const {
  static const std::string none;
  auto found = options.find(name);
  return found == options.end() ? none : found->second;
}

ReportRequest Default_Request(const Session& session, std::string_view key) {
  const ReportDef* report = Find_Report(key);
  const Date today = session.today();
  if (!report) return {.key = std::string(key), .from = today, .to = today};
  const DateRange days = Default_Dates(report->dates, today);
  ReportRequest request{.key = std::string(report->key), .from = days.start, .to = days.end};
  if (!report->fields.empty()) request.options.emplace(report_option::fields, report->fields);
  return request;
}

ReportTable Build_Report(Session& session, const ReportRequest& request) {
  const ReportDef* report = Find_Report(request.key);
  if (!report) throw store::Error(store::errors::no_such_field, "There is no report \"" + request.key + "\".");
  const store::Snapshot moment(*session.dbCompany);
  ReportTable table = report->build(session, request);
  if (table.offered.empty()) table = Pick_Columns(std::move(table), request.option(report_option::fields));
  if (request.option(report_option::empty) == report_option::hide) table = Without_Empty_Groups(table);
  return table;
}

std::optional<ReportRequest> Go_To_Request(const RowKey& key, const ReportRequest& opened_from) {
  const ReportDef* report = key.leads() ? Find_Report(key.report) : nullptr;
  if (!report) return std::nullopt;
  ReportRequest request{.key = std::string(report->key),
                        .from = Date(opened_from.to.year(), 1, 1),
                        .to = opened_from.to,
                        .options = {{std::string(report_option::fields), std::string(report->fields)}}};
  request.options.emplace(report->subject, key.text);
  return request;
}

std::string Company_Name(Session& session) {
  return session.dbCompany->value("SELECT Name FROM CompanyInfo ORDER BY RowKey LIMIT 1").text();
}

ReportHeading Make_Heading(Session& session, const ReportRequest& request, std::string_view subject) {
  const ReportDef* report = Find_Report(request.key);
  std::string own = std::string(report ? report->title : "") + std::string(subject);
  ReportHeading heading{request.title.empty() ? own : request.title, Company_Name(session),
                        Dates_Text(report ? report->dates : Dates::Month, request.days())};
  if (report && report->has_basis) heading.basis = request.basis == Basis::Cash ? "Cash basis" : "Accrual basis";
  return heading;
}

}  // namespace tallymere
