#include "reports/profit/row_by_row.h"

#include <random>

#include "reports/sums/kept_ledger.h"

namespace tallymere {
namespace {

using testing::Books;
using testing::Posting;
using testing::RowByRow;

/// Makes small ledgers that leave no rule alone: deep trees, odd sides, payments before, in and after the
/// period.
class Random_Ledger {
 public:
  explicit Random_Ledger(unsigned seed) : engine_(seed) {}

  int pick(int below) { return static_cast<int>(engine_() % static_cast<unsigned>(below)); }
  bool chance(int percent) { return pick(100) < percent; }
  template <typename T>
  const T& any(const std::vector<T>& from) {
    return from[static_cast<size_t>(pick(static_cast<int>(from.size())))];
  }
  Date day() { return Date(2024, 11, 1).plus_days(pick(500)); }

  void fill(RowByRow& ledger) {
    ledger.customers = {"Abel", "O'Hara", "Zoe"};
    ledger.vendors = {"Landlord", "Zoe"};
    ledger.classes = {"East", "West"};
    ledger.accounts = {{"AR1", "Accounts Receivable", ""}, {"Bank", "Bank", ""}};
    for (int at = 0, count = 4 + pick(12); at < count; ++at) add_account(ledger, at);
    for (int number = 1, count = 10 + pick(25); number <= count; ++number) add_transaction(ledger, number, count);
    std::shuffle(ledger.rows.begin(), ledger.rows.end(), engine_);
  }

 private:
  void add_account(RowByRow& ledger, int at) {
    static const std::vector<std::string> types = {"Income",  "Income",        "Other Income", "Cost of Goods Sold",
                                                   "Expense", "Other Expense", "Bank"};
    std::string parent = chance(50) ? any(ledger.accounts).CatID : "";
    ledger.accounts.push_back({std::string(1, static_cast<char>('a' + (at * 7) % 26)) + "cat", any(types), parent});
  }

  std::string paid_by(int numbers) {
    std::string text;
    for (int at = pick(4); at > 0; --at) text += std::to_string(1 + pick(numbers + 3)) + ";";
    return text + (chance(10) ? "7" : "");
  }

  void add_transaction(RowByRow& ledger, int number, int numbers) {
    static const std::vector<std::string> types = {"Invoice", "Invoice", "Bill", "Bill", "Payment", "Check"};
    static const std::vector<std::string> names = {"Abel", "O'Hara", "Zoe", "Landlord", "stranger", ""};
    Posting head{.TransNum = number, .Type = any(types), .day = day(), .Account = ""};
    head.Name = any(names);
    head.Paid = chance(50);
    head.PaidBy = paid_by(numbers);
    for (int at = 1 + pick(4); at > 0; --at) {
      Posting row = head;
      row.Account = chance(20) ? "AR1" : any(ledger.accounts).CatID;
      Money amount = Money::from_units(pick(3) * 10000 + pick(40000));
      (chance(50) ? row.Debit : row.Credit) = amount;
      if (chance(5)) row.Debit = row.Credit = amount;
      if (chance(5)) row.Amount = Money::from_units(pick(90000) - 20000);
      if (chance(10)) row.day = day();
      if (chance(10)) row.PaidBy = paid_by(numbers);
      if (chance(10)) row.Paid = !row.Paid;
      row.Class = chance(50) ? any(ledger.classes) : "";
      row.Category = chance(30) ? "<-Break Down->" : chance(50) ? any(ledger.accounts).CatID : "gone";
      ledger.rows.push_back(row);
    }
  }

  std::mt19937 engine_;
};

void Write(Books& books, const RowByRow& ledger) {
  store::Transaction tx(books.db(), "A random ledger", store::Transaction::History::Summary);
  for (auto table : {"Accounts", "Transactions", "Customers", "Vendors", "Class"})
    books.db().Execute(std::string("DELETE FROM ") + table);
  for (const auto& account : ledger.accounts) books.add(account.CatID, account.AccountType, account.ParentAccount);
  for (const auto& row : ledger.rows) books.post(row);
  for (const auto& name : ledger.customers) books.add_customer(name);
  for (const auto& name : ledger.vendors) books.add_vendor(name);
  for (const auto& name : ledger.classes) books.run("INSERT INTO Class (Class) VALUES (?)", {name});
  tx.commit();
}

/// Compares every variant with the plain reading; the number of lines that hold a figure.
int Compare(Books& books, const RowByRow& ledger, const std::string& note) {
  int figures = 0;
  for (std::string key :
       {"PL", "PLYTD", "PLPrev", "PLCus", "PLClass", "PLDetail", "PLCusSum", "PLCusDetail", "PLVenSum", "PLVenDetail"})
    for (Basis basis : {Basis::Cash, Basis::Accrual}) {
      RowByRow slow = ledger;
      slow.key = key;
      slow.basis = basis;
      Find_Report(key)->window == "frmPrintPL2" ? slow.Load_Standard() : slow.Load_Names();
      EXPECT_EQ(testing::Lines(books.report(key, slow.start, slow.end, basis)), slow.lines)
          << key << (basis == Basis::Cash ? " cash, " : " accrual, ") << note;
      for (const std::string& line : slow.lines) figures += line.find_first_of("123456789") != std::string::npos;
    }
  return figures;
}

TEST(RowByRow, EveryVariantAgreesOnRandomLedgersWhetherReadAfreshOrKept) {
  Books books;
  int figures = 0;
  for (unsigned seed = 1; seed <= 100 && !::testing::Test::HasFailure(); ++seed) {
    Random_Ledger random(seed);
    RowByRow ledger{.start = random.day(), .end = random.day()};
    if (ledger.end < ledger.start) std::swap(ledger.start, ledger.end);
    if (random.chance(10)) ledger.end = Date(9999, 12, 31);  // the last day there is
    random.fill(ledger);
    Write(books, ledger);
    const std::string note = "seed " + std::to_string(seed);
    figures += Compare(books, ledger, note);
    while (KeptLedger::Read_Ahead(books.db())) {
    }
    ASSERT_TRUE(KeptLedger::Of(books.db(), {}));
    figures += Compare(books, ledger, note + ", kept");
  }
  EXPECT_GT(figures, 10000);  // it was not zero against zero
}

}  // namespace
}  // namespace tallymere
