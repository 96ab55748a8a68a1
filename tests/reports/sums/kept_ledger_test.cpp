#include "reports/sums/kept_ledger.h"

#include "support/report_books.h"

namespace tallymere {
namespace {

using testing::Books;
using testing::D;

/// A shop whose P&L is asked again and again; the ledger is kept in memory between.
class KeptLedgerTest : public ::testing::Test {
 protected:
  KeptLedgerTest() {
    books.add("Sales", "Income");
    sell(1, D(100));
    read();
  }
  void sell(int64_t number, Money amount) {
    books.post({.TransNum = number, .Type = "Deposit", .day = Date(2026, 3, 1), .Account = "Sales", .Credit = amount});
  }
  void read() {
    while (KeptLedger::Read_Ahead(books.db())) {
    }
  }
  bool is_kept() { return KeptLedger::Of(books.db(), {"sales"}); }
  std::string income() {
    const auto table = books.report("PL", Date(2026, 1, 1), Date(2026, 12, 31));
    return testing::Line_Of(table, "Total Income");
  }
  Books books;
};

TEST_F(KeptLedgerTest, NoChangeGoesUnnoticed) {
  ASSERT_TRUE(is_kept());
  EXPECT_FALSE(KeptLedger::Of(books.db(), {"Sales", "Checking"})) << "it has no rows of a bank";

  sell(2, D(20));
  EXPECT_FALSE(is_kept());
  EXPECT_EQ(income(), "Total Income|120");
  read();
  EXPECT_TRUE(is_kept());
  EXPECT_EQ(income(), "Total Income|120");

  auto other = books.another_user();
  store::Transaction tx(*other->dbCompany, "Another desk");
  other->dbCompany->Execute("UPDATE Transactions SET Credit = 10000 WHERE TransNum = 2");
  tx.commit();
  EXPECT_FALSE(is_kept());
  EXPECT_EQ(income(), "Total Income|101");
}

TEST_F(KeptLedgerTest, NothingIsKeptOfWhatWasUndone) {
  {
    store::Transaction undone(books.db(), "Never mind");
    sell(2, D(20));
    EXPECT_EQ(income(), "Total Income|120");
    EXPECT_TRUE(KeptLedger::Read_Ahead(books.db())) << "it waits for the end";
    EXPECT_FALSE(is_kept());
  }
  EXPECT_EQ(income(), "Total Income|100");
  read();
  EXPECT_TRUE(is_kept());
  EXPECT_EQ(income(), "Total Income|100");
}

TEST_F(KeptLedgerTest, AChangeBetweenTwoStepsEndsTheReading) {
  books.run(
      "INSERT INTO Transactions (TransNum, Type, Date, Account, Credit, Amount) WITH RECURSIVE each(n) AS"
      " (SELECT 2 UNION ALL SELECT n + 1 FROM each WHERE n < 30000)"
      " SELECT n, 'Deposit', '2026-03-01', 'Sales', 10000, 10000 FROM each",
      {});
  ASSERT_TRUE(KeptLedger::Read_Ahead(books.db())) << "the ledger takes several steps";
  books.run("UPDATE Transactions SET Credit = 0 WHERE TransNum = 1", {});
  EXPECT_FALSE(KeptLedger::Read_Ahead(books.db()));
  EXPECT_FALSE(is_kept());
  read();
  EXPECT_TRUE(is_kept());
  EXPECT_EQ(income(), "Total Income|29999");
}

}  // namespace
}  // namespace tallymere
