#include <sqlite3.h>

#include "support/report_books.h"

// How often a report asks the company.
namespace tallymere {
namespace {

using testing::Books;
using testing::D;

int statements = 0;

int Count(unsigned, void*, void*, void*) { return ++statements, 0; }
int Watch(sqlite3* opened, char**, const sqlite3_api_routines*) {
  return sqlite3_trace_v2(opened, SQLITE_TRACE_STMT, Count, nullptr);
}

/// Counts what every connection opened while it lives is asked.
struct Watching {
  Watching() { sqlite3_auto_extension(reinterpret_cast<void (*)()>(Watch)); }
  ~Watching() { sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(Watch)); }
};

/// The same thousand transactions, among so many customers, vendors, categories, items and representatives.
void Write_Company(Books& books, int names) {
  store::Transaction tx(books.db(), "A company", store::Transaction::History::Summary);
  for (auto table : {"Customers", "Vendors", "Items", "RepNames", "Class", "Budget"})
    books.run(std::string("DELETE FROM ") + table);
  books.add("AR1", "Accounts Receivable");
  books.add("AP1", "Accounts Payable");
  books.add("Bank", "Bank");
  for (int at = 0; at < names; ++at) {
    const std::string n = std::to_string(at);
    books.add("Sales" + n, "Income");
    books.add("Cost" + n, "Expense");
    books.add_customer("Customer " + n);
    books.add_vendor("Vendor " + n);
    books.run("INSERT INTO RepNames (Name) VALUES (?)", {"Rep " + n});
    books.run("INSERT INTO Class (Class) VALUES (?)", {"Class " + n});
    books.run("INSERT INTO Items (ItemName, ItemType, Dormant) VALUES (?, ?, 0)",
              {"Item " + n, at % 2 ? "Inventory Part" : "Sales Tax"});
    books.run("INSERT INTO Budget (Category, Year, Month, Amount) VALUES (?, 2026, 1, ?)", {"Cost" + n, D(1)});
  }
  for (int64_t number = 1; number <= 1000; ++number) {
    const std::string n = std::to_string(number % names);
    const Date day = Date(2026, 1, 1).plus_days(static_cast<int>(number % 150));
    const auto row = [&](const char* type, const std::string& account, Money debit, Money credit, const char* list) {
      books.post({.TransNum = number,
                  .Type = type,
                  .day = day,
                  .Account = account,
                  .Debit = debit,
                  .Credit = credit,
                  .Name = list + n,
                  .Class = "Class " + n,
                  .Category = "AR1",
                  .Rep = "Rep " + n,
                  .Item = account == "AR1" ? "" : "Item " + n,
                  .Qty = -1});
    };
    if (number % 2) {
      row("Invoice", "AR1", D(10), {}, "Customer ");
      row("Invoice", "Sales" + n, {}, D(10), "Customer ");
    } else {
      row("Bill", "AP1", {}, D(7), "Vendor ");
      row("Bill", "Cost" + n, D(7), {}, "Vendor ");
    }
  }
  tx.commit();
}

TEST(EveryReport, AsksAsOftenForFiveNamesAsForFiveHundred) {
  const Watching watching;
  std::map<std::string, int> asked;
  for (const int names : {5, 500}) {
    Books books;
    Write_Company(books, names);
    for (const ReportDef& report : Reports())
      for (const Basis basis : {Basis::Cash, Basis::Accrual}) {
        ReportRequest request = books.request(std::string(report.key), Date(2026, 1, 1), Date(2026, 6, 15), basis);
        const int before = statements;
        const ReportTable table = Build_Report(*books.session, request);
        const int count = statements - before;
        const std::string what = std::string(report.key) + (basis == Basis::Cash ? ", cash" : ", accrual");
        EXPECT_GT(count, 0) << what;
        EXPECT_LE(count, 60) << what;
        EXPECT_EQ(asked.emplace(what, count).first->second, count) << what;
      }
  }
}

}  // namespace
}  // namespace tallymere
