#include "reports/transactions/transaction_reports.h"

#include "core/ledger/ledger.h"
#include "reports/sums/ledger_sums.h"
#include "reports/transactions/custom_rows.h"

namespace tallymere {
namespace {

std::vector<std::string> Texts(store::Database& db, std::string_view sql) {
  std::vector<std::string> texts;
  db.each(sql, {}, [&](const store::Row& row) { texts.emplace_back(row.text(0)); });
  return texts;
}

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
  Money credits;
  for (const auto& [id, amount] : Sum_Category(db, family, {{Date(100, 1, 1), day.plus_days(-1)}, Basis::Accrual}))
    credits += amount;
  return credit_positive ? credits : -credits;
}

}  // namespace

std::string_view Custom_Report_Columns(std::string_view key) {
  constexpr std::string_view of_a_category = "Type,Date,Number,Name,Memo,Category,Amount,Balance,";
  constexpr std::pair<std::string_view, std::string_view> columns[] = {
      {"AcctRep", of_a_category},
      {"PrintAcctRep", of_a_category},
      {"PrintAcctBal", of_a_category},
      {"VendorRep", of_a_category},
      {"PayItem", "Type,Date,Number,Name,PayrollItem,Amount,"},
      {"ItemRep", "Type,Date,Number,Name,Memo,Qty,Amount,"},
  };
  for (const auto& [known, list] : columns)
    if (known == key) return list;
  return "";
}

std::vector<std::string> Column_Names(std::string_view list) {
  std::vector<std::string> names;
  for (const std::string& part : split(list, ","))
    if (std::string name = trim(part); !name.empty()) names.push_back(std::move(name));
  return names;
}

std::string_view Caption_Of_Field(std::string_view field) {
  return field == "Account" ? "Category" : field == "Category" ? break_down : field;
}

std::vector<std::string> Pickable_Fields(store::Database& db) {
  std::vector<std::string> names;
  for (const store::Field& field : db.find_table("Transactions")->fields) names.push_back(field.name);
  return names;
}

ReportTable Build_Date_Report(Session& session, const ReportRequest& request) {
  return Build(session, request, "", [](Custom_Rows& rows, ReportTable&) { rows.Fill_Rows("", {}, "Date, TransNum"); });
}

ReportTable Build_Customer_Report(Session& session, const ReportRequest& request) {
  auto customers = Texts(*session.dbCompany, "SELECT Name FROM Customers ORDER BY Name, RowKey");
  ReportTable table = Build_Groups(session, request, "Name", customers);
  if (customers.empty()) table.notice = "No Customers to Report";
  return table;
}

ReportTable Build_Vendor_Report(Session& session, const ReportRequest& request) {
  return Build_Groups(session, request, "Name",
                      Texts(*session.dbCompany, "SELECT Name FROM Vendors ORDER BY Name, RowKey"));
}

ReportTable Build_PayItem_Report(Session& session, const ReportRequest& request) {
  return Build_Groups(session, request, "PayrollItem",
                      Texts(*session.dbCompany, "SELECT Name FROM PayrollItems ORDER BY Name, RowKey"));
}

ReportTable Build_Category_Report(Session& session, const ReportRequest& request) {
  store::Database& db = *session.dbCompany;
  const std::string& id = request.option(report_option::category);
  return Build(session, request, Category_Name(session, id), [&](Custom_Rows& rows, ReportTable&) {
    const CategoryTree& tree = rows.categories();
    const Category* category = tree.find(id);
    const bool credit_positive = category && Credit_Is_Positive(category->AccountType);
    rows.set_credit_positive(credit_positive);
    CatIDs family = {id};
    for (const Category* below : tree.descendants(id)) family.push_back(below->CatID);
    if (request.key == "PrintAcctBal")
      rows.set_running_total(Balance_Before(db, family, request.from, credit_positive));
    rows.Fill_Rows(" AND Account IN (SELECT value FROM json_each(?3))", {Id_List(family)});
  });
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
