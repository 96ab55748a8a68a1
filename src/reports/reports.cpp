#include "reports/reports.h"

#include "core/values/date_range.h"
#include "core/values/text.h"
#include "reports/profit/pl_by_name.h"
#include "reports/profit/profit_and_loss.h"
#include "reports/transactions/transaction_reports.h"

namespace tallymere {
namespace {

using Start = ReportDef::Start;

constexpr std::string_view category_title = "Category Report: ";

// One row for each report. A new one needs its row and its builder, nothing else.
constexpr ReportDef reports[] = {
    {"PL", "frmPrintPL2", "PL", "Profit And Loss", Start::OfMonth, true, "", Build_PL},
    {"PLYTD", "frmPrintPL2", "PLYTD", "Profit And Loss Year To Date Comparioson", Start::OfMonth, true, "",
     Build_PLYTD},
    {"PLPrev", "frmPrintPL2", "PLPrev", "Profit And Loss Previous Year Comparioson", Start::OfYear, true, "",
     Build_PLPrev},
    {"PLCus", "frmPrintPL2", "PLCus", "Profit And Loss Previous by Customer", Start::OfYear, true, "", Build_PLCus},
    {"PLClass", "frmPrintPL2", "PLClass", "Profit And Loss Previous by Class", Start::OfYear, true, "", Build_PLClass},
    {"PLDetail", "frmPrintPL2", "PLDetail", "Profit And Loss", Start::OfYear, true, "", Build_PLDetail},
    {"PLCusSum", "frmPrintPLName", "PLCusSum", "Customer Income Summary", Start::OfYear, true, "", Build_PLCusSum},
    {"PLVenSum", "frmPrintPLName", "PLVenSum", "Vendor Expenses Summary", Start::OfYear, true, "", Build_PLVenSum},
    {"PLCusDetail", "frmPrintPLName", "PLCusDetail", "Customer Income Detail", Start::OfYear, true, "",
     Build_PLCusDetail},
    {"PLVenDetail", "frmPrintPLName", "PLVenDetail", "Vendor Expenses Detail", Start::OfYear, true, "",
     Build_PLVenDetail},
    {"Date", "frmPrintCustom", "Date", "Detailed Transactions by Date", Start::OfMonth, false, "fields",
     Build_Date_Report},
    {"Customer", "frmPrintCustom", "Customer", "Detailed Transactions by Customer", Start::OfMonth, false, "fields",
     Build_Customer_Report},
    {"Vendor", "frmPrintCustom", "Vendor", "Detailed Transactions by Vendor", Start::OfMonth, false, "fields",
     Build_Vendor_Report},
    {"AcctRep", "frmPrintCustom", "AcctRep", category_title, Start::OfMonth, false, "category fields",
     Build_Category_Report},
    {"PrintAcctRep", "frmPrintCustom", "PrintAcctRep", category_title, Start::OfYear, false, "category fields",
     Build_Category_Report},
    {"PrintAcctBal", "frmPrintCustom", "PrintAcctBal", category_title, Start::OfYear, false, "category fields",
     Build_Category_Report},
    {"VendorRep", "frmPrintCustom", "VendorRep", "Vendor Report: ", Start::OfMonth, false, "name fields",
     Build_One_Vendor_Report},
    {"ItemRep", "frmPrintCustom", "ItemRep", "Item Report: ", Start::OfYear, false, "item fields", Build_Item_Report},
    {"PayItem", "frmPrintCustom", "PayItem", "Payroll Item Report", Start::OfYear, false, "fields",
     Build_PayItem_Report},
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
    if (report.window == window && report.window_key == window_key) return &report;
  return nullptr;
}

bool ReportDef::takes(std::string_view option) const {
  for (const std::string& name : split(options, " "))
    if (name == option) return true;
  return false;
}

const std::string& ReportRequest::option(std::string_view name) const {
  static const std::string none;
  auto found = options.find(name);
  return found == options.end() ? none : found->second;
}

ReportRequest Default_Request(const Session& session, std::string_view key) {
  const Date today = session.today();
  const ReportDef* report = Find_Report(key);
  ReportRequest request{.key = std::string(report ? report->key : key), .from = today, .to = today};
  if (!report) return request;
  if (report->start == Start::OfMonth) request.from = today.first_of_month();
  if (report->start == Start::OfYear) request.from = Date(today.year(), 1, 1);
  if (auto columns = Custom_Report_Columns(report->key); !columns.empty() && report->takes(report_option::fields))
    request.options.emplace(report_option::fields, columns);
  return request;
}

ReportTable Build_Report(Session& session, const ReportRequest& request) {
  const ReportDef* report = Find_Report(request.key);
  if (!report) throw store::Error(store::errors::no_such_field, "There is no report \"" + request.key + "\".");
  const store::Snapshot moment(*session.dbCompany);
  return report->build(session, request);
}

std::optional<ReportRequest> Go_To_Request(const ReportTable& table, int row, const ReportRequest& opened_from) {
  const RowKey key = table.key(row);
  if (table.go_to != ReportTable::GoTo::Category || key.text.empty()) return std::nullopt;
  ReportRequest request{.key = table.go_to_report, .from = Date(opened_from.to.year(), 1, 1), .to = opened_from.to};
  request.options.emplace(report_option::fields, Custom_Report_Columns(table.go_to_report));
  request.options.emplace(report_option::category, key.text);
  return request;
}

std::string Company_Name(Session& session) {
  return session.dbCompany->value("SELECT Name FROM CompanyInfo ORDER BY RowKey LIMIT 1").text();
}

std::string Period_Text(Date start, Date end) { return start.to_text() + " - " + end.to_text(); }

ReportHeading Make_Heading(Session& session, const ReportRequest& request, std::string_view subject) {
  const ReportDef* report = Find_Report(request.key);
  std::string own = std::string(report ? report->title : "") + std::string(subject);
  ReportHeading heading{request.title.empty() ? own : request.title, Company_Name(session),
                        Period_Text(request.from, request.to)};
  if (report && report->has_basis) heading.basis = request.basis == Basis::Cash ? "Cash basis" : "Accrual basis";
  return heading;
}

}  // namespace tallymere
