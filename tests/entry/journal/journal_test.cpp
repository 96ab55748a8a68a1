#include "entry/journal/journal.h"

#include <functional>

#include "core/ledger/settlement.h"
#include "support/entry_company.h"

namespace tallymere {
namespace {

using testing::Dollars;
using testing::EntryCompany;
using testing::Rows_Of;

constexpr const char* sides = "Account Category Debit Credit Amount";

LedgerLine Debit(const char* CatID, Money amount) { return {.Category = CatID, .Debit = amount, .CatID = CatID}; }
LedgerLine Credit(const char* CatID, Money amount) { return {.Category = CatID, .Credit = amount, .CatID = CatID}; }

LedgerEntry Entry(Session& session, std::vector<LedgerLine> lines) {
  LedgerEntry entry = New_Ledger_Entry(session);
  entry.Number = "J1";
  entry.lines = std::move(lines);
  return entry;
}

int64_t Saved(Session& session, LedgerEntry entry) {
  EXPECT_TRUE(Enter_Ledger(session, entry).written);
  return entry.TransNum;
}

TEST(Journal, OfTwoLinesEachNamesTheOtherOfThreeNoneDoes) {
  EntryCompany company;
  Session& session = *company.session;
  std::vector<LedgerLine> lines = {Debit("40SS", Dollars(30)), Credit("41SS", Dollars(30))};  // 41SS has children
  lines[0].Memo = "m";
  lines[0].Name = "Jones";
  lines[1].Class = "North";
  const int64_t two = Saved(session, Entry(session, lines));
  const auto child = company.db().value("SELECT CatID FROM Accounts WHERE AccountName = 'Automobile - Other'").text();
  EXPECT_EQ(Rows_Of(company.db(), two, sides), "40SS|" + child + "|30|0|30\n" + child + "|40SS|0|30|30\n");
  EXPECT_EQ(Rows_Of(company.db(), two, "Type Number Name Memo Class"),
            "Ledger Entry|J1|Jones|m|\nLedger Entry|J1|||North\n");
  const int64_t three =
      Saved(session,
            Entry(session, {Credit("0SS", Dollars(30)), {}, Debit("40SS", Dollars(10)), Debit("46SS", Dollars(20))}));
  EXPECT_EQ(Rows_Of(company.db(), three, sides),
            "0SS|<-Break Down->|0|30|30\n40SS|<-Break Down->|10|0|10\n46SS|<-Break Down->|20|0|20\n");
  EXPECT_EQ(Load_Ledger_Entry(session, three)->lines[0].Credit, Dollars(30));
  EXPECT_EQ(Load_Ledger_Entry(session, three)->lines[1].Debit, Dollars(10));
  const int64_t check = company.write("Check", Date(2026, 1, 1), "0SS", "40SS", Dollars(1));
  EXPECT_FALSE(Load_Ledger_Entry(session, check)) << "other types have windows of their own";
}

TEST(Journal, WhatDoesNotBalanceOrSaysTooLittleOrTooMuchIsRefused) {
  EntryCompany company;
  Session& session = *company.session;
  LedgerLine both = Debit("40SS", Dollars(5));
  both.Credit = Dollars(5);
  LedgerLine nameless = Debit("", Dollars(5));
  const struct {
    const char* said;
    std::vector<LedgerLine> lines;
  } cases[] = {
      {"This Transaction must have a value for every category|Balance Error", {{.Category = "a", .CatID = "40SS"}}},
      {"This Entry Does not Balance. Debits and Credits must equal zero.|Balance Error",
       {Debit("40SS", Dollars(5)), Credit("0SS", Dollars(5, 1))}},
      {"Please Enter a Categorry for each entry line|No Category", {nameless, Credit("0SS", Dollars(5))}},
      {"A line takes either a Credit or a Debit. Please enter them on two lines.|Balance Error", {both}},
  };
  for (const auto& wrong : cases) {
    LedgerEntry entry = Entry(session, wrong.lines);
    const SaveResult result = Enter_Ledger(session, entry);
    ASSERT_TRUE(result.fault) << wrong.said;
    EXPECT_EQ(result.fault->box.text + "|" + result.fault->box.title, wrong.said);
  }
  LedgerEntry blank = New_Ledger_Entry(session);
  EXPECT_TRUE(Enter_Ledger(session, blank).ok());
  EXPECT_EQ(company.count(), 0);
}

/// Registers, deposits and imports leave rows with more than the journal shows.
TEST(Journal, WhatTheJournalDoesNotShowSurvivesAChange) {
  EntryCompany company;
  Session& session = *company.session;
  const int64_t number = company.write("Ledger Entry", Date(2026, 3, 1), "0SS", "40SS", Dollars(12), "Acme", "7");
  company.run(
      "UPDATE Transactions SET Address = '1 Mill Road', Cleared = True, Item = 'Bolt', Qty = 2, SourceName = 's'"
      " WHERE Account = '40SS'");
  const char* unseen = "Account Debit Credit Address Cleared Item Qty SourceName Name Number";
  const std::string before = Rows_Of(company.db(), number, unseen);
  const int64_t history = company.db().value("SELECT COUNT(*) FROM History").integer();
  LedgerEntry entry = *Load_Ledger_Entry(session, number);
  EXPECT_TRUE(Enter_Ledger(session, entry).ok());
  EXPECT_EQ(company.db().value("SELECT COUNT(*) FROM History").integer(), history) << "only seen, not written";
  entry.lines[1].Memo = "new";
  ASSERT_TRUE(Enter_Ledger(session, entry).written);
  EXPECT_EQ(Rows_Of(company.db(), number, unseen), before);
  EXPECT_EQ(Rows_Of(company.db(), number, "Memo Type"), "|Ledger Entry\nnew|Ledger Entry\n");
}

TEST(Journal, AnEntryThatPaidBillsKeepsThatAmountAndFreesThemWhenItGoes) {
  EntryCompany company;
  Session& session = *company.session;
  company.add_category("900SS", "Credit Card");
  const int64_t bill = company.write("Bill", Date(2026, 3, 1), "AP1", "40SS", Dollars(12), "Acme");
  const int64_t card = company.write("Ledger Entry", Date(2026, 3, 1), "900SS", "AP1", Dollars(12), "Acme");
  {
    store::Transaction tx(company.db(), "Paid");
    Apply(company.db(), card, bill, Dollars(12));
    tx.commit();
  }
  LedgerEntry entry = *Load_Ledger_Entry(session, card);
  entry.lines[0].Credit = entry.lines[1].Debit = Dollars(15);
  ASSERT_TRUE(Enter_Ledger(session, entry).fault);
  entry = *Load_Ledger_Entry(session, card);
  entry.Date = Date(2026, 3, 2);
  ASSERT_TRUE(Enter_Ledger(session, entry).written);
  EXPECT_EQ(Rows_Of(company.db(), bill, "Paid"), "True\nTrue\n");
  entry.lines.clear();
  ASSERT_TRUE(Enter_Ledger(session, entry).written) << "an emptied entry is removed";
  EXPECT_EQ(Rows_Of(company.db(), card, "Account"), "");
  EXPECT_EQ(Rows_Of(company.db(), bill, "Paid PaidBy"), "False|\nFalse|\n");
  EXPECT_NE(entry.TransNum, card);
}

TEST(Journal, DeletingAsksAgainAboutWhatIsCleared) {
  EntryCompany company;
  Session& session = *company.session;
  const int64_t number = Saved(session, Entry(session, {Credit("0SS", Dollars(3)), Debit("40SS", Dollars(3))}));
  company.run("UPDATE Transactions SET Cleared = True WHERE Account = '0SS'");
  LedgerEntry entry = *Load_Ledger_Entry(session, number);
  company.prompts.answers = {true, false};
  EXPECT_FALSE(Delete_Ledger_Entry(session, entry).deleted);
  const auto& boxes = company.prompts.boxes;
  EXPECT_EQ(boxes[boxes.size() - 2].text, "Are you sure you want to Delete this Ledger Entry?");
  EXPECT_EQ(boxes.back().text, "This transaction has been cleared, Are you sure you want to Delete this Ledger Entry?");
  LedgerEntry emptied = entry;
  emptied.lines.clear();
  company.prompts.answers = {false};
  EXPECT_FALSE(Enter_Ledger(session, emptied).ok());
  EXPECT_EQ(company.count(), 2);
  const auto colleague = company.another_user();
  LedgerEntry theirs = *Load_Ledger_Entry(*colleague, number);
  theirs.lines[0].Memo = "theirs";
  ASSERT_TRUE(Enter_Ledger(*colleague, theirs).written);
  company.prompts.answers = {true, true};
  EXPECT_TRUE(Delete_Ledger_Entry(session, entry).conflict);
  company.prompts.answers = {true, true};
  EXPECT_TRUE(Delete_Ledger_Entry(session, *Load_Ledger_Entry(session, number)).deleted);
  EXPECT_EQ(company.count(), 0);
}

}  // namespace
}  // namespace tallymere
