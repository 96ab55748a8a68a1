#include "core/ledger/balances.h"

#include <random>

#include "core/ledger/ledger.h"
#include "core/store/history.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using store::Value;
using testing::TestCompany;

void Post(TestCompany& company, const std::string& account, const Value& date, const Value& debit,
          const Value& credit = {}) {
  company.run("INSERT INTO Transactions (TransNum, Account, Date, Debit, Credit) VALUES (?, ?, ?, ?, ?)",
              {Next_TransNum(company.db()), account, date, debit, credit});
}

Money D(int64_t dollars) { return Money::dollars(dollars); }

/// "Balance/LastYearEndBal" of a category, "null" where unset.
std::string Figures(TestCompany& company, const std::string& id) {
  auto row = company.db().OpenRecordset("SELECT Balance, LastYearEndBal FROM Accounts WHERE CatID = ?", {id});
  auto text = [&](const char* field) { return row[field].value().is_null() ? "null" : row[field].text(); };
  return text("Balance") + "/" + text("LastYearEndBal");
}

// Today is 6/15/2026 in all of these.
const Date last_year(2025, 12, 31), new_year(2026, 1, 1), year_end(2026, 12, 31), next_year(2027, 1, 1);

/// Whatever a pass before left in the caches, and whichever pass it was.
TEST(UpdateAccounts, ArePutRightByAnyPassWhateverWasDoneBefore) {
  TestCompany company;
  for (auto id : {"quiet", "busy"}) company.add_category(id, "Bank");
  company.run("UPDATE Accounts SET Balance = ?, LastYearEndBal = ? WHERE CatID IN ('quiet', 'busy')", {D(70), D(70)});
  Post(company, "busy", last_year, D(40));
  Post(company, "busy", new_year, D(5));
  Post(company, "busy", next_year, D(1000));
  for (Categories which : {Categories::Bank, Categories::All, Categories::Bank}) {
    Update_Accounts(*company.session, which);
    EXPECT_EQ(Figures(company, "quiet"), "0/0");
    EXPECT_EQ(Figures(company, "busy"), "1045/40");
  }
  EXPECT_EQ(company.prompts.labels, std::vector<std::string>{"Updating Categories"}) << "the banks' pass is silent";
  EXPECT_EQ(company.prompts.in_progress, false);

  company.run("UPDATE Transactions SET Date = ? WHERE Date = ?", {last_year, new_year});  // into the year before
  company.run("UPDATE Accounts SET AccountType = 'Long Term Liability', ParentAccount = 'quiet' WHERE CatID = 'busy'");
  Update_Accounts(*company.session, Categories::All, Progress::Silent);
  EXPECT_EQ(Figures(company, "busy"), "-1045/-1045");
  EXPECT_EQ(Figures(company, "quiet"), "1045/1045") << "a new parent holds it";
  TestCompany later(Date(2027, 2, 1));
  for (auto day : {last_year, next_year}) Post(later, "0SS", day, D(3));
  Update_Accounts(*later.session, Categories::Bank);
  EXPECT_EQ(Figures(later, "0SS"), "6/3") << "the year has turned";
}

TEST(UpdateAccounts, FullPassFindsTheYearsEndAnew) {
  TestCompany company;
  for (auto id : {"fresh", "old", "both", "ahead", "none"}) company.add_category(id, "Bank");
  company.run("UPDATE Accounts SET LastYearEndBal = ?", {D(12345)});
  Post(company, "fresh", new_year, D(5));
  Post(company, "old", last_year, D(40));
  Post(company, "old", Date(2024, 2, 29), D(2));
  Post(company, "both", new_year, D(5));
  Post(company, "both", last_year, D(40));
  Post(company, "both", next_year, D(300));
  Post(company, "ahead", last_year, D(40));
  Post(company, "ahead", next_year, D(300));
  Update_Accounts(*company.session);
  EXPECT_EQ(Figures(company, "fresh"), "5/0");
  EXPECT_EQ(Figures(company, "old"), "42/42");
  EXPECT_EQ(Figures(company, "both"), "345/40");
  EXPECT_EQ(Figures(company, "ahead"), "340/340") << "no row of this year: the last row of all ends the year";
  EXPECT_EQ(Figures(company, "none"), "0/0");
}

TEST(UpdateAccounts, ParentsHoldAllBelowThemOnTheirOwnSide) {
  TestCompany company;
  company.add_category("loans", "Long Term Liability");
  company.add_category("house", "Long Term Liability", "loans", true);
  company.add_category("roof", "Bank", "HOUSE");
  company.add_category("Cost", "Expense", "loans");
  company.add_category("misc", "Other Expense");
  company.run("UPDATE Accounts SET Balance = ? WHERE CatID = 'house'", {D(77)});
  Post(company, "loans", new_year, {}, D(1));
  Post(company, "house", new_year, D(0), D(10));
  Post(company, "ROOF", new_year, D(30), D(0));
  Post(company, "cost", new_year, {}, D(100));
  Post(company, "misc", new_year, D(4));
  Update_Accounts(*company.session);
  EXPECT_EQ(Figures(company, "loans"), "81/0");
  EXPECT_EQ(Figures(company, "house"), "77/null") << "dormant: left alone, yet counted above";
  EXPECT_EQ(Figures(company, "roof"), "30/0");
  EXPECT_EQ(Figures(company, "Cost"), "null/null") << "keeps no balance, yet counted above";
  EXPECT_EQ(Figures(company, "misc"), "4/0");
}

TEST(UpdateAccounts, TheBankPassIsForBanks) {
  TestCompany company;
  company.add_category("main", "Bank");
  company.add_category("till", "Bank", "main");
  company.add_category("asset", "Fixed Asset");
  Post(company, "main", last_year, D(40));
  Post(company, "main", new_year, D(2));
  Post(company, "till", new_year, D(7));
  Post(company, "asset", new_year, D(9));
  Update_Accounts(*company.session, Categories::Bank);
  EXPECT_EQ(Figures(company, "main"), "49/40") << "as in the list of categories, with all below";
  EXPECT_EQ(Figures(company, "till"), "7/0");
  EXPECT_EQ(Figures(company, "asset"), "null/null");
  EXPECT_TRUE(company.prompts.labels.empty());
}

TEST(UpdateAccounts, WritesOnlyWhatChangedAndNoHistory) {
  TestCompany company;
  Post(company, "0SS", new_year, D(5));
  auto newest = [&] { return store::List_Actions(company.db(), 1).front().number; };
  int64_t before = newest();
  Update_Accounts(*company.session);
  Update_Customers(*company.session);
  EXPECT_EQ(Figures(company, "0SS"), "5/0");
  auto other = company.another_user();
  store::Transaction busy(*other->dbCompany, "Somebody is writing");
  Update_Accounts(*company.session);
  Update_Customers(*company.session);
  EXPECT_EQ(newest(), before);
}

TEST(FixAccounts, SetsTheYearsEndOfAllCategoriesAndNoBalance) {
  TestCompany company;
  company.add_category("asleep", "Equity", "", true);
  company.add_category("below", "Equity", "asleep");
  company.add_category("ahead", "Bank");
  company.run("UPDATE Accounts SET Balance = ? WHERE CatID = 'asleep'", {D(3)});
  Post(company, "asleep", last_year, {}, D(40));
  Post(company, "below", Date(2020, 5, 5), {}, D(2));
  Post(company, "below", new_year, {}, D(1000));
  Post(company, "below", next_year, {}, D(5000));
  Post(company, "ahead", next_year, D(8));
  Fix_Accounts(*company.session);
  EXPECT_EQ(Figures(company, "asleep"), "3/42");
  EXPECT_EQ(Figures(company, "below"), "null/2");
  EXPECT_EQ(Figures(company, "ahead"), "null/8");
}

// --- the same, row by row, on random ledgers -----------------------------------------------------

/// The balance pass as bookkeepers describe it: category by category, row by row.
class RowByRow {
 public:
  explicit RowByRow(TestCompany& company) : db_(company.db()) {}

  std::string figures(const std::string& id) {
    auto category = db_.OpenRecordset("SELECT * FROM Accounts WHERE CatID = ?", {id});
    credit_normal_ = Is_Credit_Normal(category["AccountType"].text());
    Money balance, carried;
    auto rows = db_.OpenRecordset("SELECT * FROM Transactions WHERE (Account = '" + id + "'" + below(id) +
                                  ") ORDER BY Date,TransNum");
    bool year_ends = true;
    if (!rows.Eof() && this_year(rows)) year_ends = false;
    while (!rows.Eof()) {
      balance += effect(rows);
      rows.MoveNext();
      if (year_ends && (rows.Eof() || this_year(rows))) carried = balance, year_ends = false;
    }
    return balance.to_text() + "/" + carried.to_text();
  }

  std::string fixed_year_end(const std::string& id) {
    auto category = db_.OpenRecordset("SELECT * FROM Accounts WHERE CatID = ?", {id});
    credit_normal_ = Is_Credit_Normal(category["AccountType"].text());
    auto rows = db_.OpenRecordset("SELECT * FROM Transactions WHERE (Account = '" + id + "'" + below(id) +
                                  ") ORDER BY Date,TransNum");
    Money sum;
    for (; !rows.Eof() && !this_year(rows); rows.MoveNext()) sum += effect(rows);
    return sum.to_text();
  }

 private:
  bool this_year(store::Recordset& row) {
    auto date = row["Date"].maybe_date();
    return date && date->year() == 2026;
  }
  Money effect(store::Recordset& row) {
    Money debit = row["Debit"].money(), credit = row["Credit"].money();
    return credit_normal_ ? credit - debit : debit - credit;
  }
  std::string below(const std::string& parent) {
    std::string clause;
    auto children = db_.OpenRecordset("SELECT * FROM Accounts WHERE ParentAccount = '" + parent + "'");
    for (; !children.Eof(); children.MoveNext())
      clause += " OR Account = '" + children["CatID"].text() + "'" + below(children["CatID"].text());
    return clause;
  }
  store::Database& db_;
  bool credit_normal_ = false;
};

class RandomLedger {
 public:
  explicit RandomLedger(unsigned seed) : random_(seed) {
    store::Transaction all_at_once(company.db(), "A random ledger");
    company.run("DELETE FROM Accounts");
    const char* types[] = {"Bank", "Equity", "Other Expense", "Expense", "Current Liability"};
    for (int at = 0; at < 12; ++at) {
      ids.push_back("c" + std::to_string(at));
      std::string parent = at > 0 && chance(60) ? ids[pick(ids.size() - 1)] : "";
      company.add_category(ids.back(), types[pick(5)], parent, chance(15));
      if (chance(50)) company.run("UPDATE Accounts SET LastYearEndBal = ? WHERE CatID = ?", {amount(), ids.back()});
    }
    // Few rows, so that accounts without rows before, in or after this year all come up.
    for (size_t rows = pick(40); rows > 0; --rows) Post(company, ids[pick(ids.size())], day(), amount(), amount());
    all_at_once.commit();
  }

  TestCompany company;
  std::vector<std::string> ids;

 private:
  size_t pick(size_t count) { return std::uniform_int_distribution<size_t>(0, count - 1)(random_); }
  bool chance(size_t percent) { return pick(100) < percent; }
  Value amount() {
    return chance(40) ? chance(50) ? Value() : Value(Money()) : Value(Money::from_units(int64_t(pick(9'000'000))));
  }
  Value day() {
    if (chance(5)) return {};
    constexpr int years[] = {2023, 2025, 2026, 2026, 2027, 2030};
    return Date(years[pick(6)], chance(30) ? 1 : 12, chance(50) ? 1 : 31);
  }
  std::mt19937 random_;
};

void Expect_Same(RandomLedger& ledger, Categories which) {
  TestCompany& company = ledger.company;
  std::map<std::string, std::string> expected;
  for (const auto& id : ledger.ids) {
    auto row = company.db().OpenRecordset("SELECT * FROM Accounts WHERE CatID = ?", {id});
    bool wanted = which == Categories::All || row["AccountType"].text() == "Bank";
    bool left_alone = row["Dormant"].flag() || Is_Profit_And_Loss(row["AccountType"].text()) || !wanted;
    expected[id] = left_alone ? Figures(company, id) : RowByRow(company).figures(id);
  }
  Update_Accounts(*company.session, which);
  for (const auto& id : ledger.ids) EXPECT_EQ(Figures(company, id), expected[id]) << id;
}

TEST(UpdateAccounts, AgreesWithTheWalkRowByRow) {
  for (unsigned seed = 1; seed <= 12; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    RandomLedger ledger(seed);
    Expect_Same(ledger, Categories::Bank);
    Expect_Same(ledger, Categories::All);

    Fix_Accounts(*ledger.company.session);
    for (const auto& id : ledger.ids) {
      auto row = ledger.company.db().OpenRecordset("SELECT * FROM Accounts WHERE CatID = ?", {id});
      if (Is_Profit_And_Loss(row["AccountType"].text())) continue;
      EXPECT_EQ(row["LastYearEndBal"].text(), RowByRow(ledger.company).fixed_year_end(id)) << id;
    }
  }
}

// --- customers and vendors -----------------------------------------------------------------------

void Sell(TestCompany& company, const std::string& name, const std::string& type, const Value& debit,
          const Value& credit, const std::string& account = "AR1") {
  company.run("INSERT INTO Transactions (TransNum, Type, Name, Account, Debit, Credit) VALUES (1, ?, ?, ?, ?, ?)",
              {type, name, account, debit, credit});
}

std::string Balance_Of(TestCompany& company, const std::string& table, const std::string& name) {
  return company.db().value("SELECT Balance FROM " + table + " WHERE Name = ?", {name}).text();
}

TEST(UpdateCustomers, OweTheirInvoicesLessTheirPayments) {
  TestCompany company;
  for (auto name : {"O'Brien", "Paid up", "Idle"})
    company.run("INSERT INTO Customers (Name, Balance) VALUES (?, ?)", {name, D(55)});
  company.run("INSERT INTO Customers (Name, Balance, Dormant) VALUES ('Gone', ?, True)", {D(55)});
  Sell(company, "O'BRIEN", "Invoice", D(100), {});
  Sell(company, "O'Brien", "Payment", D(0), D(30));
  Sell(company, "O'Brien", "Check", D(5), D(2));
  Sell(company, "O'Brien", "Statement", D(1000), {});
  Sell(company, "O'Brien", "Invoice", {}, D(1000), "9SS");
  Sell(company, "Paid up", "Invoice", D(10), {});
  Sell(company, "Paid up", "Payment", {}, D(10));
  Sell(company, "Gone", "Invoice", D(10), {});
  Update_Customers(*company.session);
  EXPECT_EQ(Balance_Of(company, "Customers", "O'Brien"), "1075") << "a row with a debit does not count its credit";
  EXPECT_EQ(Balance_Of(company, "Customers", "Paid up"), "0");
  EXPECT_EQ(Balance_Of(company, "Customers", "Idle"), "0");
  EXPECT_EQ(Balance_Of(company, "Customers", "Gone"), "55");
  EXPECT_EQ(company.prompts.labels, std::vector<std::string>{"Updating Customers"});
}

TEST(UpdateVendors, AreOwedWhatIsUnpaidOfTheirBills) {
  TestCompany company;
  for (auto name : {"Acme", "O'Brien", "Settled", "Zero"})
    company.run("INSERT INTO Vendors (Name, Balance) VALUES (?, ?)", {name, D(55)});
  for (auto name : {"ACME", "O'Brien", "Settled"}) {
    Sell(company, name, "Bill", {}, D(20), "AP1");
    Sell(company, name, "Bill", D(15), {}, "9SS");
    Sell(company, name, "Bill", D(5), {}, "8SS");
  }
  Sell(company, "Acme", "Credit", D(1000), {}, "AP1");
  Sell(company, "Zero", "Bill", {}, {}, "AP1");
  company.run("UPDATE Transactions SET Paid = True WHERE Name = 'Settled'");
  company.run("UPDATE Transactions SET TransNum = 2 WHERE Name = 'O''Brien'");
  company.run("INSERT INTO Applied (Payment, Document, Amount) VALUES (9, 2, ?)", {D(4)});
  Update_Vendors(*company.session);
  EXPECT_EQ(Balance_Of(company, "Vendors", "Acme"), "20");
  EXPECT_EQ(Balance_Of(company, "Vendors", "O'Brien"), "16") << "paid in part";
  EXPECT_EQ(Balance_Of(company, "Vendors", "Settled"), "0");
  EXPECT_EQ(Balance_Of(company, "Vendors", "Zero"), "0");
  EXPECT_EQ(company.prompts.labels, std::vector<std::string>{"Updating Vendors"});
}

// --- held against the ledger ---------------------------------------------------------------------

TEST(FalseBalances, AreFoundUnlessAPassIsDue) {
  TestCompany company;
  const auto passes = [&] {
    Update_Accounts(*company.session), Update_Customers(*company.session), Update_Vendors(*company.session);
  };
  company.run("INSERT INTO Customers (Name) VALUES ('Jones')");
  Post(company, "0SS", new_year, D(5));
  EXPECT_TRUE(False_Balances(company.db()).empty()) << "a pass is due";
  passes();
  EXPECT_TRUE(False_Balances(company.db()).empty());
  company.run("UPDATE Accounts SET Balance = ? WHERE CatID = '0SS'", {D(9)});
  company.run("UPDATE Accounts SET LastYearEndBal = ? WHERE CatID = '1SS'", {D(8)});
  company.run("UPDATE Customers SET Balance = ?", {D(7)});
  EXPECT_EQ(False_Balances(company.db()), (std::vector<std::string>{"Checking: 9, but 5 in the ledger",
                                                                    "Savings at the year's end: 8, but 0 in the ledger",
                                                                    "Jones: 7, but 0 in the ledger"}));
  passes();
  EXPECT_TRUE(False_Balances(company.db()).empty());
}

}  // namespace
}  // namespace tallymere
