#include "core/company/preferences.h"
#include "reports/sales/sales_reports.h"
#include "reports/sums/ledger_sums.h"

namespace tallymere {
namespace {

using Kind = ReportColumn::Kind;

/// On cash basis an invoice counts once it is paid.
std::string If_Paid(bool cash) {
  return cash ? " AND (Transactions.Type IS NULL OR Transactions.Type <> 'Invoice' OR Paid <> 0)" : "";
}

/// A period's rows of the receivable's other side. Of an inventory part the one on its income category is the sale.
std::string Rows_Of_Period(bool cash) {
  return " FROM Items CROSS JOIN Transactions INDEXED BY Transactions_Item ON Item = ItemName WHERE Date >= ?1 AND"
         " Date <= ?2 AND Category = 'AR1' AND (Transactions.Type IS NULL OR Transactions.Type <> 'Payment')" +
         If_Paid(cash);
}

constexpr std::string_view signed_amount = "CASE WHEN Debit <> 0 THEN -Amount ELSE Amount END";

struct Period_Sales {
  Money taxable, other;
  Figures collected;  ///< of each tax
};

/// One pass: rows are read from the ledger, the index does not have their categories.
Period_Sales Sales_Of_Period(store::Database& db, DateRange days, bool cash) {
  Period_Sales sales;
  db.each("SELECT CASE WHEN ItemType = 'Sales Tax' THEN ItemName END AS tax, Taxable <> 0, SUM(" +
              std::string(signed_amount) + ")" + Rows_Of_Period(cash) +
              " AND (ItemType IN ('Service', 'Non-Inventory Part', 'Other Charge', 'Sales Tax') OR"
              " (ItemType = 'Inventory Part' AND Account = ItemCat)) GROUP BY 1, 2",
          {days.start, days.end}, [&](const store::Row& row) {
            if (!row.is_null(0))
              sales.collected[std::string(row.text(0))] += row.money(2);
            else
              (row.flag(1) ? sales.taxable : sales.other) += row.money(2);
          });
  return sales;
}

}  // namespace

ReportTable Build_Sales_Tax(Session& session, const ReportRequest& request) {
  store::Database& db = *session.dbCompany;
  const bool cash = Sales_Tax_On_Cash(db);
  Period_Sales sales = Sales_Of_Period(db, request.days(), cash);
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.heading.basis = cash ? "Cash basis" : "Accrual basis";
  table.heading.note = "Total Tax is what was collected up to the last day, less what was paid.";
  table.columns = {{.kind = Kind::Margin}, {.caption = "Sales Tax Item"}};
  for (const char* caption : {"Total Sales", "Non-Taxable Sales", "Taxable Sales"})
    table.columns.push_back({.caption = caption, .kind = Kind::Money});
  table.columns.push_back({.caption = "Tax Rate", .kind = Kind::Number, .mask = "0.00##%"});
  for (const char* caption : {"Tax Collected", "Total Tax"})
    table.columns.push_back({.caption = caption, .kind = Kind::Money});
  Money all_collected, all_tax;
  db.each(
      "SELECT ItemName, PriceRate, (SELECT SUM(CASE WHEN Debit <> 0 THEN -Debit WHEN ?2 OR Paid <> 0 THEN"
      " COALESCE(Credit, 0) ELSE 0 END) FROM Transactions INDEXED BY Transactions_Item WHERE Item = ItemName AND"
      " Date <= ?1 AND (Transactions.Type IS NULL OR Transactions.Type <> 'Payment'))"
      " FROM Items WHERE ItemType = 'Sales Tax' ORDER BY RowKey",
      {request.to, !cash}, [&](const store::Row& row) {
        const Money tax = sales.collected[std::string(row.text(0))];
        auto line = table.add_row(Role::Detail, To_Report("ItemRep", row.text(0)));
        line.skip().text("     " + std::string(row.text(0))).money(sales.taxable + sales.other);
        line.money(sales.other).money(sales.taxable).value(row.money(1).to_double()).money(tax).money(row.money(2));
        all_collected += tax;
        all_tax += row.money(2);
      });
  table.add_row(Role::Grand_Total).skip().text("Total").skip(4).money(all_collected).money(all_tax);
  return table;
}

}  // namespace tallymere
