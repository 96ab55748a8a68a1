#include "entry/bank/reconcile.h"

#include <gtest/gtest.h>

#include "entry/bank/reconcile_report.h"
#include "support/entry_company.h"

namespace tallymere {
namespace {

using testing::Dollars;
using testing::EntryCompany;

struct Reconciling : ::testing::Test {
  Reconciling() {
    transfer = company.write("Ledger Entry", Date(2026, 5, 1), "0SS", "1SS", Dollars(100), "", "T");
    company.write("Check", Date(2026, 5, 4), "0SS", "40SS", Dollars(30), "Acme", "102");
    company.write("Check", Date(2026, 5, 3), "0SS", "40SS", Dollars(25), "Zeta", "101");
    company.write("Ledger Entry", Date(2026, 5, 2), "29SS", "0SS", Dollars(500), "Sales", "9");
    company.write("Check", Date(2026, 6, 9), "0SS", "40SS", Dollars(7), "Late", "103");
  }
  std::string numbers(const Reconciliation& now, Side side) {
    std::string text;
    for (const ReconcileLine& line : now.lines(side)) text += line.Number + (line.Cleared ? "* " : " ");
    return text;
  }
  int64_t cleared_rows() {
    return company.db().value("SELECT COUNT(*) FROM Transactions WHERE Cleared = True").integer();
  }
  EntryCompany company;
  int64_t transfer = 0;
};

TEST_F(Reconciling, OnlyTheBanksOwnRowsAreStamped) {
  Reconciliation now(*company.session, "0SS");
  EXPECT_EQ(numbers(now, Side::Payments), "101 102 103 T ");
  EXPECT_EQ(numbers(now, Side::Deposits), "9 ");
  now.mark_all(true);
  now.mark(Side::Payments, 2, false);
  EXPECT_EQ(now.cleared(), Dollars(345));
  EXPECT_EQ(now.marked(Side::Payments).count, 3);
  now.set_ending(Dollars(344));
  EXPECT_EQ(now.Balance().fault->box.title, "Not Balanced");
  EXPECT_EQ(cleared_rows(), 0);
  now.set_ending(Dollars(345));
  EXPECT_TRUE(now.Balance().ok());
  EXPECT_EQ(cleared_rows(), 4);
  EXPECT_FALSE(
      company.db().value("SELECT Cleared FROM Transactions WHERE TransNum = ? AND Account = '1SS'", {transfer}).flag())
      << "the other bank has not seen it yet";
  const Reconciliation next(*company.session, "0SS");
  EXPECT_EQ(next.opening(), Dollars(345));
  EXPECT_EQ(numbers(next, Side::Payments), "103 ");
}

TEST_F(Reconciling, EqualRowsOfOneTransactionAreMarkedEachForItself) {
  Transaction_Writer rows(*company.session, {.Type = "Ledger Entry", .Date = Date(2026, 5, 5)});
  rows.add({.Account = "0SS", .Category = "40SS", .Debit = Dollars(10), .Amount = Dollars(10)});
  rows.add({.Account = "0SS", .Category = "40SS", .Debit = Dollars(10), .Amount = Dollars(10)});
  rows.add({.Account = "40SS", .Category = "0SS", .Credit = Dollars(20), .Amount = Dollars(20)});
  rows.commit();
  Reconciliation now(*company.session, "0SS");
  ASSERT_EQ(now.lines(Side::Deposits).size(), 3u);
  now.mark(Side::Deposits, 2, true);
  now.set_ending(Dollars(10));
  EXPECT_TRUE(now.Balance().ok());
  EXPECT_EQ(cleared_rows(), 1);
}

TEST_F(Reconciling, AnotherUsersWorkIsNotStampedOver) {
  Reconciliation mine(*company.session, "0SS"), theirs(*company.session, "0SS");
  mine.mark(Side::Deposits, 0, true);
  theirs.mark(Side::Deposits, 0, true);
  mine.set_ending(Dollars(500));
  theirs.set_ending(Dollars(500));
  EXPECT_TRUE(theirs.Balance().ok());
  EXPECT_TRUE(mine.Balance().conflict) << "the opening balance is another one by now";

  Reconciliation again(*company.session, "0SS");
  again.mark(Side::Payments, 0, true);
  again.mark(Side::Payments, 1, true);
  again.set_ending(Dollars(445));
  Delete_Transaction(*company.session, again.lines(Side::Payments)[1].TransNum);
  EXPECT_TRUE(again.Balance().conflict);
  EXPECT_EQ(cleared_rows(), 1) << "none of them was stamped";
  again.Load_Lists();
  EXPECT_EQ(numbers(again, Side::Payments), "101* 103 T ") << "what is still there stays marked";
  EXPECT_EQ(again.marked(Side::Payments).total, Dollars(25));
}

TEST_F(Reconciling, TheReportTellsOpenFromNewByTheClosingDate) {
  Reconciliation now(*company.session, "0SS");
  now.mark(Side::Deposits, 0, true);
  now.mark(Side::Payments, 0, true);
  now.set_ending(Dollars(475));
  const Reconciled record = Record_Of(*company.session, now);
  ASSERT_TRUE(now.Balance().ok());
  const ReportTable summary = Reconcile_Summary(record, Date(2026, 5, 31));
  std::string text;
  for (int row = 0; row < summary.rows(); ++row)
    if (!summary.is_spacer(row))
      text += summary.text(row, 1) + " " + summary.text(row, 2) + " " + summary.text(row, 3) + "\n";
  EXPECT_EQ(
      text,
      "Opening Balance  0\nCleared Deposits 1 500\nCleared Payments 1 25\nCleared Balance  475\n"
      "Ending Statement Balance  475\nUncleared Deposits 0 0\nUncleared Payments 2 130\n"
      "Register Balance at Closing  345\nNew Deposits 0 0\nNew Payments 1 7\nRegister Balance after Closing  338\n");
  const ReportTable full = Reconcile_Full(record, Date(2026, 5, 31));
  std::string heads;
  for (int row = 0; row < full.rows(); ++row)
    if (full.is_head(row)) heads += full.text(row, 1) + "|";
  EXPECT_EQ(
      heads,
      "Cleared Transactions|     Deposits and Other Credits|     Checks and Other Payments|Uncleared Transactions|"
      "     Checks and Other Payments|New Transactions|     Checks and Other Payments|");
}

}  // namespace
}  // namespace tallymere
