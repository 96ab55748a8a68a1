#include "reports/frame/listing.h"
#include "reports/frame/names.h"
#include "reports/frame/table_parts.h"
#include "reports/sales/sales_reports.h"
#include "reports/sums/ledger_sums.h"

// Invoices by customer or by representative.
namespace tallymere {
namespace {

using Kind = ReportColumn::Kind;

/// Whom the invoices are counted for: a field of their receivable row, and the list of its names.
struct Seller {
  std::string_view field, list, no_name;
};
constexpr Seller customers = {"Name", "Customers", "No Name"}, representatives = {"Rep", "RepNames", "No Rep"};

std::string Invoice_Rows(Basis basis) {
  return " FROM Transactions INDEXED BY Transactions_Account WHERE Account = 'AR1' AND Date >= ?1 AND Date <= ?2 AND"
         " Transactions.Type = 'Invoice'" +
         std::string(basis == Basis::Cash ? " AND Paid <> 0" : "");
}

constexpr std::string_view signed_amount = "CASE WHEN Credit <> 0 THEN -Amount ELSE Amount END";

std::string Shown(const Seller& seller, const std::string& name) {
  return name.empty() ? std::string(seller.no_name) : name;
}

ReportTable Summary(Session& session, const ReportRequest& request, const Seller& seller) {
  store::Database& db = *session.dbCompany;
  CaselessMap<Money> sums;
  std::vector<std::string> met;
  Money total;
  db.each("SELECT " + std::string(seller.field) + ", SUM(" + std::string(signed_amount) + ")" +
              Invoice_Rows(request.basis) + " GROUP BY 1",
          {request.from, request.to}, [&](const store::Row& row) {
            met.emplace_back(row.text(0));
            sums[met.back()] += row.money(1);
            total += row.money(1);
          });
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.columns = {{.kind = Kind::Margin}, {.name = "Name"}, {.caption = "Amount", .kind = Kind::Money}};
  for (const std::string& name : Names_Met(db, seller.list, met))
    if (const auto sum = sums.find(name); sum != sums.end())
      table.add_row().skip().text(Shown(seller, name)).money(sum->second);
  table.add_row(Role::Grand_Total).skip().text("Total").money(total);
  return table;
}

std::vector<ReportColumn> Detail_Columns() {
  return {{.kind = Kind::Margin}, {.caption = "Type"}, {.caption = "Date", .kind = Kind::Date},   {.caption = "Number"},
          {.caption = "Name"},    {.caption = "Memo"}, {.caption = "Amount", .kind = Kind::Money}};
}

ReportTable Detail(Session& session, const ReportRequest& request, const Seller& seller) {
  enum { Of, TransNum, Type, Day, Number, Name, Memo, Amount };
  store::Database& db = *session.dbCompany;
  ReportTable table, lines;
  CaselessMap<std::vector<int>> rows_of;
  std::vector<std::string> met;
  Money total;
  db.each("SELECT " + std::string(seller.field) + ", TransNum, Transactions.Type, Date, Number, Name, Memo, " +
              std::string(signed_amount) + Invoice_Rows(request.basis) +
              " ORDER BY Date, TransNum, Transactions.RowKey",
          {request.from, request.to}, [&](const store::Row& row) {
            met.emplace_back(row.text(Of));
            rows_of[met.back()].push_back(lines.rows());
            total += row.money(Amount);
            auto line = lines.add_row(Role::Detail, To_Transaction(row.text(Type), row.integer(TransNum)));
            line.skip().text("     " + std::string(row.text(Type))).value(row.date(Day));
            for (int column = Number; column <= Memo; ++column) line.text(row.text(column));
            line.money(row.money(Amount));
          });
  table.heading = Make_Heading(session, request);
  table.columns = Detail_Columns();
  const int amount_column = table.find_column("Amount");
  std::vector<std::string> shown;
  const std::vector<std::string> names = Names_Met(db, seller.list, met);
  for (const std::string& name : names) shown.push_back(Shown(seller, name));
  Listing listing(table, shown, Listing::Idle::Left_Out, amount_column);
  for (size_t at = 0; at < names.size(); ++at) {
    const auto found = rows_of.find(names[at]);
    if (found == rows_of.end()) continue;
    listing.go_to(at);
    for (const int row : found->second) {
      listing.sum(lines.value(row, amount_column).money());
      Add_Rows(lines, row, 1, table);
    }
  }
  listing.finish();
  table.add_row(Role::Grand_Total).skip().text("Total").skip(amount_column - 2).money(total);
  return table;
}

}  // namespace

ReportTable Build_Customer_Sales(Session& session, const ReportRequest& request) {
  return Summary(session, request, customers);
}
ReportTable Build_Customer_Sales_Detail(Session& session, const ReportRequest& request) {
  return Detail(session, request, customers);
}
ReportTable Build_Rep_Sales(Session& session, const ReportRequest& request) {
  return Summary(session, request, representatives);
}
ReportTable Build_Rep_Sales_Detail(Session& session, const ReportRequest& request) {
  return Detail(session, request, representatives);
}

}  // namespace tallymere
