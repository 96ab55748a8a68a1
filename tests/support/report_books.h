#pragma once

#include <string>
#include <vector>

#include "reports/reports.h"
#include "support/test_company.h"

namespace tallymere::testing {

inline Money D(int64_t dollars) { return Money::dollars(dollars); }

/// A row of the ledger as a test writes it; what is left out stays null.
struct Posting {
  int64_t TransNum;
  std::string Type;
  Date day;
  std::string Account;
  Money Debit = {}, Credit = {};
  std::string Name = {}, PaidBy = {};
  bool Paid = false;
  std::string Class = {}, Category = {}, Memo = {};
  std::optional<Money> Amount = {};  ///< else what stands in Debit or Credit
  std::string Number = {}, Terms = {}, Rep = {}, SourceName = {}, Item = {};
  std::optional<Date> DueDate = {};
  std::optional<double> Qty = {};
  Money SalePrice = {}, AmountReceived = {};
  bool Taxable = false;
};

inline Money Amount_Of(const Posting& row) { return row.Amount.value_or(row.Debit.is_zero() ? row.Credit : row.Debit); }

/// A company with categories and rows of the test's own, today 6/15/2026.
struct Books : TestCompany {
  Books() {
    db().connection().execute("PRAGMA synchronous = OFF");  // nobody pulls the plug on these
    run("DELETE FROM Accounts");
  }

  void add(const std::string& id, const std::string& type, const std::string& parent = "") {
    run("INSERT INTO Accounts (CatID, AccountName, AccountType, ParentAccount, Dormant) VALUES (?, ?, ?, ?, "
        "0)",
        {id, id, type, parent.empty() ? store::Value() : store::Value(parent)});
  }
  void add_customer(const std::string& name) { run("INSERT INTO Customers (Name) VALUES (?)", {name}); }
  void add_vendor(const std::string& name) { run("INSERT INTO Vendors (Name) VALUES (?)", {name}); }

  void post(const Posting& row) {
    auto text = [](const std::string& given) { return given.empty() ? store::Value() : store::Value(given); };
    auto amount = [](Money given) { return given.is_zero() ? store::Value() : store::Value(given); };
    run("INSERT INTO Transactions (TransNum, Type, Date, Account, Debit, Credit, Amount, Name, PaidBy, Paid, Class,"
        " Category, Memo, Number, Terms, Rep, SourceName, Item, DueDate, Qty, SalePrice, AmountReceived, Taxable)"
        " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        {row.TransNum,
         row.Type,
         row.day,
         row.Account,
         amount(row.Debit),
         amount(row.Credit),
         Amount_Of(row),
         text(row.Name),
         text(row.PaidBy),
         row.Paid,
         text(row.Class),
         text(row.Category),
         text(row.Memo),
         text(row.Number),
         text(row.Terms),
         text(row.Rep),
         text(row.SourceName),
         text(row.Item),
         row.DueDate,
         row.Qty,
         amount(row.SalePrice),
         amount(row.AmountReceived),
         row.Taxable});
  }

  ReportRequest request(const std::string& key, Date from, Date to, Basis basis = Basis::Accrual) {
    ReportRequest made = Default_Request(*session, key);
    made.from = from;
    made.to = to;
    made.basis = basis;
    return made;
  }
  ReportTable report(const std::string& key, Date from, Date to, Basis basis = Basis::Accrual) {
    return Build_Report(*session, request(key, from, to, basis));
  }
};

/// Every row's cells, from the left and separated by "|"; a row of blanks is "".
inline std::vector<std::string> Lines(const ReportTable& table) {
  std::vector<std::string> lines;
  for (int row = 0; row < table.rows(); ++row) {
    std::string line;
    for (int column = 1; column < static_cast<int>(table.columns.size()); ++column)
      line += (column > 1 ? "|" : "") + table.text(row, column);
    line.erase(line.find_last_not_of('|') + 1);
    lines.push_back(table.is_spacer(row) ? "" : line);
  }
  return lines;
}

/// The first line that begins so, blanks before it aside; "" when there is none.
inline std::string Line_Of(const ReportTable& table, const std::string& label) {
  for (std::string line : Lines(table))
    if (line.erase(0, line.find_first_not_of(' ')).starts_with(label + "|")) return line;
  return "";
}

}  // namespace tallymere::testing
