#include "demo/demo.h"

#include <map>
#include <set>

#include "core/ledger/balances.h"
#include "core/ledger/verify.h"
#include "core/values/text.h"
#include "payroll/paychecks.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using store::Row;
using testing::TestCompany;

const Date today(2026, 6, 15);

std::string Text(const Row& row, int column) { return std::string(row.text(column)); }

/// Every cell of a query's result, for comparing two companies.
std::string Dump(store::Database& db, std::string_view sql) {
  std::string dump;
  auto rows = db.query(sql, {});
  while (rows.step())
    for (int column = 0; column < rows.columns(); ++column) dump += std::string(rows.text(column)) + '\t';
  return dump;
}

std::unique_ptr<TestCompany> Demo(DemoOptions options) {
  auto company = std::make_unique<TestCompany>(today);
  options.today = today;
  Write_Demo_Company(*company->session, options);
  return company;
}

/// One year of a small business, written once and only read by the tests.
class DemoCompany : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { company_ = Demo({.name = "O'Hara & Søn", .years = 1, .today = today}).release(); }
  static void TearDownTestSuite() { delete company_; }

  static store::Database& db() { return company_->db(); }
  static void each(std::string_view sql, const std::function<void(const Row&)>& fn) { db().each(sql, {}, fn); }
  static std::string value(std::string_view sql) { return db().value(sql).text(); }
  static Money sum(std::string_view expression, std::string_view where) {
    return Money::from_units(
        db().value("SELECT SUM(" + std::string(expression) + ") + 0 FROM Transactions WHERE " + std::string(where))
            .integer());
  }
  inline static TestCompany* company_ = nullptr;
};

TEST_F(DemoCompany, EveryKindOfTransactionAppears) {
  std::set<std::string> kinds;
  each("SELECT DISTINCT Type FROM Transactions", [&](const Row& row) { kinds.insert(Text(row, 0)); });
  EXPECT_EQ(kinds, (std::set<std::string>{"Check", "Billcheck", "Paycheck", "Liabilitycheck", "Bill", "Credit",
                                          "Item Receipt", "Invoice", "Payment", "Deposit", "Ledger Entry", "Inv Adjust",
                                          "Liability Adjust", "YTD Adjust", "Statement"}));
}

TEST_F(DemoCompany, RowsKeepTheConventionsOfTheLedger) {
  EXPECT_EQ(value("SELECT COUNT(*) FROM Transactions WHERE Debit < 0 OR Credit < 0 OR (Debit <> 0 AND Credit <> 0)"
                  " OR (Amount <> Debit + Credit AND (Item IS NULL OR Type <> 'Invoice'))"),
            "0");
  EXPECT_EQ(value("SELECT COUNT(*) FROM Transactions WHERE Date > '2026-06-15' OR Date <= '2025-06-15'"), "0");
  each(
      "SELECT TransNum, MAX(Type), SUM(Debit) - SUM(Credit) FROM Transactions GROUP BY TransNum HAVING SUM(Debit) <> "
      "SUM(Credit)",
      [](const Row& row) {
        ADD_FAILURE() << Text(row, 1) << " " << Text(row, 0) << " is off by " << row.money(2).to_text();
      });
  // A sold part leaves the stock at what it cost, and each of its three rows tells the sale.
  each(
      "SELECT t.TransNum, SUM(CASE WHEN t.Account = i.InvAsset THEN t.Credit END), SUM(CASE WHEN t.Account = "
      "i.COGScat THEN t.Debit END), SUM(CASE WHEN t.Account = i.ItemCat THEN t.Credit END), MAX(t.Qty), SUM(t.Amount),"
      " COUNT(*) FROM Transactions AS t"
      " JOIN Items AS i ON i.ItemName = t.Item WHERE i.ItemType = 'Inventory Part' AND t.Type = 'Invoice'"
      " GROUP BY t.TransNum, t.Item",
      [](const Row& row) {
        EXPECT_GT(row.money(1), Money()) << Text(row, 0);
        EXPECT_EQ(row.money(1), row.money(2)) << Text(row, 0);
        EXPECT_EQ(row.money(5), row.money(3) + row.money(3) + row.money(3)) << Text(row, 0);
        EXPECT_EQ(row.integer(6) % 3, 0) << Text(row, 0);
        EXPECT_LT(row.number(4), 0) << Text(row, 0);
      });
}

TEST_F(DemoCompany, PostsOnlyToCategoriesWithoutChildren) {
  EXPECT_EQ(value("SELECT COUNT(*) FROM Transactions AS t WHERE t.Account IS NOT NULL AND"
                  " (NOT EXISTS (SELECT 1 FROM Accounts AS a WHERE a.CatID = t.Account)"
                  " OR EXISTS (SELECT 1 FROM Accounts AS c WHERE c.ParentAccount = t.Account))"),
            "0");
  EXPECT_EQ(value("SELECT COUNT(*) FROM Transactions AS t LEFT JOIN Items AS i ON i.ItemName = t.Item"
                  " WHERE t.Account IS NULL AND (t.Amount <> 0 OR i.ItemType NOT IN ('Subtotal', 'Group'))"),
            "0");
}

TEST_F(DemoCompany, CategoryNamesTheOtherSide) {
  each(
      "SELECT t.TransNum, t.Type, t.Category FROM Transactions AS t WHERE t.Category <> '<-Break Down->' AND "
      "NOT EXISTS"
      " (SELECT 1 FROM Transactions AS o WHERE o.TransNum = t.TransNum AND o.Account = t.Category)"
      " AND t.Type <> 'YTD Adjust'",
      [](const Row& row) { ADD_FAILURE() << Text(row, 1) << " " << Text(row, 0) << " names " << Text(row, 2); });
  EXPECT_EQ(value("SELECT COUNT(*) FROM Transactions WHERE Category IS NULL"), "0");
}

TEST_F(DemoCompany, PaymentsAndWhatTheyPayAgree) {
  std::map<std::string, Money> received, paid;  // by customer
  each(
      "SELECT TransNum, Name, Amount, AmountReceived, Paid, IFNULL(PaidBy, '') FROM Transactions"
      " WHERE Account = 'AR1' AND Type IN ('Invoice', 'Statement')",
      [&](const Row& row) {
        const Money open = row.money(2) - row.money(3);
        received[Text(row, 1)] += row.money(3);
        EXPECT_EQ(row.flag(4), open.is_zero()) << Text(row, 0);
        EXPECT_EQ(row.text(5).empty(), row.money(3).is_zero()) << Text(row, 0);
        for (const std::string& number : split(row.text(5), ";")) {
          if (number.empty()) continue;
          EXPECT_EQ(
              db().value("SELECT Name FROM Transactions WHERE TransNum = ? AND Type = 'Payment'", {number}).text(),
              Text(row, 1));
        }
      });
  each("SELECT Name, Credit FROM Transactions WHERE Account = 'AR1' AND Type = 'Payment'",
       [&](const Row& row) { paid[Text(row, 0)] += row.money(1); });
  std::erase_if(received, [](const auto& entry) { return entry.second.is_zero(); });
  EXPECT_EQ(received, paid);
  // The share received is the same on every row of an invoice; whole where it is paid.
  EXPECT_EQ(value("SELECT COUNT(*) FROM Transactions WHERE Type = 'Invoice' AND Paid = -1 AND AmountReceived "
                  "<> Amount"),
            "0");
  EXPECT_NE(value("SELECT COUNT(*) FROM Transactions WHERE PaidBy LIKE '*;*;' AND Type = 'Invoice' AND "
                  "Account = 'AR1'"),
            "0");
}

TEST_F(DemoCompany, BillPaymentsAddUpToTheirBills) {
  each(
      "SELECT p.TransNum, p.Debit, (SELECT SUM(b.Amount) FROM Transactions AS b WHERE b.Account = 'AP1' AND "
      "b.Type = 'Bill'"
      " AND b.Paid = -1 AND b.Name = p.Name AND instr(';' || b.PaidBy, ';' || p.TransNum || ';') > 0)"
      " FROM Transactions AS p WHERE p.Account = 'AP1' AND p.Debit <> 0 AND p.Type IN ('Billcheck', 'Ledger "
      "Entry')",
      [](const Row& row) { EXPECT_EQ(row.money(1), row.money(2)) << Text(row, 0); });
  EXPECT_EQ(value("SELECT COUNT(*) FROM Transactions WHERE Type = 'Bill' AND (Paid = -1) <> (PaidBy IS NOT NULL)"),
            "0");
  EXPECT_EQ(value("SELECT COUNT(DISTINCT TransNum) FROM Transactions WHERE Type = 'Bill' AND PaidBy LIKE '*;*;'"), "1");
  EXPECT_EQ(value("SELECT COUNT(*) FROM Transactions WHERE Type = 'Billcheck' AND NOT EXISTS (SELECT 1 FROM Vendors"
                  " WHERE Vendors.Name = Transactions.Name AND Vendors.ShippingAddress = Transactions.Address)"),
            "0");
}

TEST_F(DemoCompany, ControlCategoriesEqualTheirPapers) {
  const Money waiting = sum("Debit", "Account = 'UF1' AND Type = 'Payment' AND Paid = 0");
  EXPECT_GT(waiting, Money());
  EXPECT_EQ(sum("Debit - Credit", "Account = 'UF1'"), waiting);
  const Money open = sum("Debit - CASE WHEN Debit <> 0 THEN AmountReceived ELSE 0 END - Credit",
                         "Account = 'AR1' AND Type IN ('Invoice', 'Statement')");
  EXPECT_GT(open, Money());
  EXPECT_EQ(sum("Debit - Credit", "Account = 'AR1'"), open);
  EXPECT_EQ(sum("Credit - Debit", "Account = 'AP1'"),
            sum("Credit - Debit", "Account = 'AP1' AND Paid = 0 AND Type IN ('Bill', 'Item Receipt', 'Credit')"));
  // A payment deposited is on exactly one deposit.
  EXPECT_EQ(sum("Debit", "Account = 'UF1' AND Type = 'Payment' AND Paid = -1"),
            sum("Credit", "Account = 'UF1' AND Type = 'Ledger Entry'"));
}

TEST_F(DemoCompany, CustomersOweWhatTheirInvoicesLeaveOpen) {
  Update_Customers(*company_->session);
  std::map<std::string, Money> expected, balances;
  each(
      "SELECT Name, Debit - Credit - CASE WHEN Debit <> 0 THEN AmountReceived ELSE 0 END FROM Transactions WHERE Account = 'AR1' AND Type IN ('Invoice', 'Statement')",
      [&](const Row& row) { expected[Text(row, 0)] += row.money(1); });
  each("SELECT Name, Balance FROM Customers", [&](const Row& row) { balances[Text(row, 0)] = row.money(1); });
  for (const auto& [name, amount] : expected) EXPECT_EQ(balances[name], amount) << name;
}

TEST_F(DemoCompany, PaychecksWithholdByLaw) {
  const std::string share =
      "SELECT TransNum, SUM(CASE WHEN PayrollItem IN ('Hourly Wage', 'Salary', 'Overtime', 'Sick Pay', "
      "'Bonus') THEN Debit"
      " ELSE 0 END), SUM(CASE WHEN PayrollItem = 'Social Security Employee' THEN Credit ELSE 0 END),"
      " SUM(CASE WHEN PayrollItem = 'Social Security Company' THEN Credit ELSE 0 END),"
      " SUM(CASE WHEN PayrollItem = 'Medicare Employee' THEN Credit ELSE 0 END),"
      " SUM(CASE WHEN PayrollItem IS NULL THEN Credit ELSE 0 END), COUNT(DISTINCT SSNum)"
      " FROM Transactions WHERE Type = 'Paycheck' GROUP BY TransNum";
  int checks = 0;
  each(share, [&](const Row& row) {
    ++checks;
    const Money gross = row.money(1);
    EXPECT_EQ(row.money(2), gross.times(0.062).rounded_to_cents());
    EXPECT_EQ(row.money(3), row.money(2));
    EXPECT_EQ(row.money(4), gross.times(0.0145).rounded_to_cents());
    EXPECT_GT(row.money(5), gross.times(0.6)) << Text(row, 0);
    EXPECT_LT(row.money(5), gross.times(0.93)) << Text(row, 0);
    EXPECT_EQ(row.integer(6), 1);
  });
  EXPECT_GT(checks, 60);
  EXPECT_EQ(value("SELECT COUNT(*) FROM Transactions WHERE Type = 'Paycheck' AND NOT EXISTS (SELECT 1 FROM PayHistory"
                  " WHERE Employee = Transactions.Name AND PayCheckDate = Transactions.Date AND Paid = 'Yes')"),
            "0");
}

/// A paycheck of the sample company is what the program makes of it: opened again and calculated, its amounts are the
/// same. The unemployment taxes go by the year's wages of today and are left out.
TEST_F(DemoCompany, PaychecksAreTheProgramsOwn) {
  std::vector<int64_t> numbers;
  each("SELECT DISTINCT TransNum FROM Transactions WHERE Type = 'Paycheck' ORDER BY TransNum",
       [&](const Row& row) { numbers.push_back(row.integer(0)); });
  ASSERT_GT(numbers.size(), 60U);
  auto amounts = [](const Paycheck& check) {
    std::map<std::string, std::string> all;
    for (const auto* grid : {&check.grdEmployee, &check.grdCompany})
      for (const SummaryRow& row : *grid)
        if (!contains(row.Name, "Unemployment")) all[row.Name] = row.Amount;
    return all;
  };
  for (const int64_t number : numbers) {
    auto entry = Open_Paycheck(*company_->session, number);
    ASSERT_TRUE(entry) << number;
    const auto kept = amounts(entry->check);
    const Money total = entry->check.lblTotal;
    Calculate(entry->check, entry->facts);
    ASSERT_EQ(amounts(entry->check), kept) << number;
    EXPECT_EQ(entry->check.lblTotal, total) << number;
  }
}

/// What stands open as of PaidThrough, counted as the liability windows count, is nothing once a check is
/// written.
TEST_F(DemoCompany, LiabilityChecksPayWhatIsOwed) {
  const std::string owed =
      "(SELECT SUM(o.Credit - o.Debit) FROM Transactions AS o WHERE o.Account = c.Account AND o.TransNum <= "
      "c.TransNum AND"
      " (o.PaidThrough IS NOT NULL OR o.Date <= c.PaidThrough) AND ";
  int checks = 0;
  for (const std::string item : {"PayrollItem", "Item"})
    each("SELECT c.TransNum, c." + item + ", " + owed + "o." + item + " = c." + item + ") FROM Transactions AS c" +
             " WHERE c.Type = 'Liabilitycheck' AND c." + item + " IS NOT NULL",
         [&](const Row& row) {
           ++checks;
           EXPECT_TRUE(row.money(2).is_zero()) << Text(row, 0) << " " << Text(row, 1) << ": " << row.money(2).to_text();
         });
  EXPECT_GT(checks, 80);
  EXPECT_NE(value("SELECT COUNT(*) FROM Transactions WHERE Type = 'Liabilitycheck' AND Item IS NOT NULL"), "0");
}

TEST_F(DemoCompany, StandsWhereABusinessStandsMidMonth) {
  EXPECT_EQ(value("SELECT COUNT(*) FROM Transactions WHERE Cleared = -1 AND Date > '2026-05-31'"), "0");
  EXPECT_EQ(value("SELECT COUNT(*) FROM Transactions WHERE Cleared = -1 AND Account NOT IN (SELECT CatID "
                  "FROM Accounts"
                  " WHERE AccountType IN ('Bank', 'Credit Card'))"),
            "0");
  EXPECT_NE(value("SELECT COUNT(*) FROM Transactions WHERE Cleared = -1"), "0");
  EXPECT_EQ(value("SELECT COUNT(*) FROM Transactions WHERE Number = 'Print' AND Date < '2026-06-12'"), "0");
  EXPECT_NE(value("SELECT COUNT(*) FROM Transactions WHERE Number = 'Print' AND Type LIKE '*check'"), "0");
  // The bank never runs dry.
  Money bank;
  each(
      "SELECT Debit - Credit FROM Transactions WHERE Account = (SELECT State FROM GeneralPrefs WHERE "
      "Preference ="
      " 'DefaultBank') ORDER BY Date, RowKey",
      [&](const Row& row) { bank += row.money(0); });
  EXPECT_GT(bank, Money());
  for (const char* table :
       {"Estimates", "EstItems", "POs", "POItems", "PSlips", "RepeatTrans", "SavedReports", "ItemGroups"})
    EXPECT_NE(db().value("SELECT COUNT(*) FROM " + std::string(table)).integer(), 0) << table;
  EXPECT_EQ(value("SELECT COUNT(*) FROM (SELECT Category FROM Budget WHERE Year = 2026 GROUP BY Category "
                  "HAVING COUNT(*) <> 12)"),
            "0");
  EXPECT_EQ(value("SELECT COUNT(DISTINCT ItemType) FROM Items"), "9");
  EXPECT_NE(value("SELECT COUNT(*) FROM Customers WHERE Name LIKE '*''*'"), "0");
  EXPECT_NE(value("SELECT COUNT(*) FROM Customers WHERE ParentName <> ''"), "0");
}

TEST_F(DemoCompany, PassesTheWholeBookChecks) {
  for (const Finding& finding : Verify_Company(db())) ADD_FAILURE() << finding.check << ": " << finding.what;
  EXPECT_EQ(value("SELECT COUNT(*) FROM History WHERE What = 'Demo company' AND Changes IS NULL"), "1");
}

TEST(Demo, TheSameSeedGivesTheSameRowsAndAnotherDoesNot) {
  auto rows = [](uint32_t seed) {
    auto company = Demo({.years = 1, .transactions = 400, .seed = seed, .today = today});
    std::string all;
    for (const store::TableDef& table : company->db().TableDefs())
      all += Dump(company->db(), "SELECT * FROM \"" + table.name + "\" ORDER BY RowKey");
    return all;
  };
  const std::string once = rows(7);
  EXPECT_TRUE(once == rows(7));
  EXPECT_FALSE(once == rows(8));
}

TEST(Demo, WritesAsManyTransactionsAsAskedForAndLeavesTheIndexes) {
  const auto indexes = "SELECT name, sql FROM sqlite_schema WHERE type = 'index' ORDER BY name";
  TestCompany fresh(today);
  const std::string before = Dump(fresh.db(), indexes);
  for (int64_t wanted : {5'000, 21'000}) {
    auto company = Demo({.years = 2, .transactions = wanted, .today = today});
    EXPECT_NEAR(static_cast<double>(company->db().value("SELECT COUNT(DISTINCT TransNum) FROM Transactions").integer()),
                static_cast<double>(wanted), 10);
    EXPECT_EQ(Dump(company->db(), indexes), before);
  }
}

}  // namespace
}  // namespace tallymere
