#include "reports/transactions/transaction_reports.h"

#include "core/ledger/ledger.h"
#include "reports/frame/names.h"
#include "reports/sums/ledger_sums.h"
#include "reports/transactions/custom_rows.h"

namespace tallymere {
namespace {

/// The frame all these reports share; `fill` adds what lies between columns and total.
template <typename Fill>
ReportTable Build(Session& session, const ReportRequest& request, const std::string& subject, Fill&& fill) {
  ReportTable table;
  table.heading = Make_Heading(session, request, subject);
  Custom_Rows rows(*session.dbCompany, table, request);
  fill(rows, table);
  rows.Add_Total();
  return table;
}

ReportTable Build_Groups(Session& session, const ReportRequest& request, std::string_view field,
                         const std::vector<std::string>& names) {
  return Build(session, request, "", [&](Custom_Rows& rows, ReportTable&) { rows.Fill_Groups(field, names); });
}

bool Credit_Is_Positive(std::string_view AccountType) {
  return contains(AccountType, "Income") || contains(AccountType, "Liability") || AccountType == "Equity" ||
         AccountType == "Credit Card" || AccountType == "Accounts Payable";
}

/// The category's position when the day begins, positive on its own side.
Money Balance_Before(store::Database& db, const CatIDs& family, Date day, bool credit_positive) {
  if (day == First_Day) return {};
  Money credits;
  for (const auto& [id, amount] : Sum_Categories(db, family, {First_Day, day.plus_days(-1)}, {})) credits += amount;
  return credit_positive ? credits : -credits;
}

enum class Opening { Left_Out, Shown };

ReportTable Build_Of_Category(Session& session, const ReportRequest& request, Opening opening) {
  store::Database& db = *session.dbCompany;
  const std::string& id = request.option(report_option::category);
  return Build(session, request, Category_Name(session, id), [&](Custom_Rows& rows, ReportTable&) {
    const CategoryTree& tree = rows.categories();
    const Category* category = tree.find(id);
    const bool credit_positive = category && Credit_Is_Positive(category->AccountType);
    const CatIDs family = Family_Of(tree, id);
    rows.set_credit_positive(credit_positive);
    if (opening == Opening::Shown) {
      rows.set_running_total(Balance_Before(db, family, request.from, credit_positive));
      rows.Add_Opening_Balance();
    }
    rows.Fill_Rows(" AND Account IN (SELECT value FROM json_each(?3))", {Id_List(family)});
  });
}

}  // namespace

ReportTable Build_Date_Report(Session& session, const ReportRequest& request) {
  return Build(session, request, "", [](Custom_Rows& rows, ReportTable&) { rows.Fill_Rows("", {}, "Date, TransNum"); });
}

ReportTable Build_Customer_Report(Session& session, const ReportRequest& request) {
  auto customers = Names_In(*session.dbCompany, "Customers");
  ReportTable table = Build_Groups(session, request, "Name", customers);
  if (customers.empty()) table.notice = "No Customers to Report";
  return table;
}

ReportTable Build_Vendor_Report(Session& session, const ReportRequest& request) {
  return Build_Groups(session, request, "Name", Names_In(*session.dbCompany, "Vendors"));
}

ReportTable Build_PayItem_Report(Session& session, const ReportRequest& request) {
  return Build_Groups(session, request, "PayrollItem", Names_In(*session.dbCompany, "PayrollItems"));
}

ReportTable Build_Category_Report(Session& session, const ReportRequest& request) {
  return Build_Of_Category(session, request, Opening::Left_Out);
}

ReportTable Build_Balance_Report(Session& session, const ReportRequest& request) {
  return Build_Of_Category(session, request, Opening::Shown);
}

ReportTable Build_One_Vendor_Report(Session& session, const ReportRequest& request) {
  const std::string& vendor = request.option(report_option::name);
  return Build(session, request, vendor, [&](Custom_Rows& rows, ReportTable&) {
    rows.Fill_Rows(" AND Name = ?3 AND (Debit IS NULL OR Debit = 0)", {vendor});
  });
}

ReportTable Build_Item_Report(Session& session, const ReportRequest& request) {
  const std::string& item = request.option(report_option::item);
  return Build(session, request, item,
               [&](Custom_Rows& rows, ReportTable&) { rows.Fill_Rows(" AND Item = ?3", {item}); });
}

}  // namespace tallymere
