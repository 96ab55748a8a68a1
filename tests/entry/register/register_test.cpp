#include "entry/register/register.h"

#include <functional>

#include "entry/register/register_entry.h"
#include "support/entry_company.h"

namespace tallymere {
namespace {

using testing::Dollars;
using testing::EntryCompany;
using testing::Rows_Of;

constexpr const char* sides = "Type Account Category Debit Credit Amount";

std::string Balances(Register& reg) {
  reg.Fill(0, reg.count());
  std::string text;
  for (int64_t row = 0; row < reg.count(); ++row)
    text += reg.line(row).Number + ":" + reg.line(row).Balance.to_text() + " ";
  return text;
}

/// The entry on the register's line of a transaction.
RegisterEntry Entry_Of(Session& session, Register& reg, int64_t TransNum) {
  const int64_t row = reg.Row_Of(TransNum);
  reg.Fill(row, 1);
  return *Open_Entry(session, reg, reg.line(row));
}

RegisterEntry Typed(Register& reg, Money out) {
  RegisterEntry entry = New_Entry(reg);
  entry.Number = "12";
  entry.Name = "Acme Supply";
  entry.Category = "Advertising and Promotion";
  entry.Memo = "Flyers";
  entry.Class = "North";
  entry.Credit = out;
  entry.CatID = "40SS";
  return entry;
}

// --- reading ---------------------------------------------------------------------------------------------

TEST(Registers, BalancesRunByDateAndNumberOnTheSideOfTheType) {
  EntryCompany company;
  company.write("Check", Date(2026, 2, 1), "0SS", "12SS", Dollars(30), "", "9");
  company.write("Deposit", Date(2026, 1, 1), "29SS", "0SS", Dollars(100), "", "5");
  company.write("Check", Date(2026, 2, 1), "0SS", "24SS", Dollars(90), "", "10");
  company.write("Check", Date(2026, 2, 1), "12SS", "40SS", Dollars(50), "", "2");
  Register bank(*company.session, "0SS"), card(*company.session, "12SS"), loan(*company.session, "24SS");
  EXPECT_EQ(Balances(bank), "5:100 10:10 9:-20 ");  // numbers are text
  EXPECT_EQ(bank.lblTotal(), "-$20.00");
  EXPECT_EQ(Balances(card), "2:50 9:20 ");
  EXPECT_EQ(Balances(loan), "10:-90 ");
  EXPECT_EQ(bank.New_Line_Date(), Date(2026, 2, 1));
  EXPECT_EQ(Register(*company.session, "1SS").New_Line_Date(), Date(2026, 6, 15));
}

TEST(Registers, ALineNamesTheOtherSide) {
  EntryCompany company;
  Transaction_Writer rows(*company.session, {.Type = "Check", .Date = Date(2026, 1, 1), .Name = "Acme"});
  rows.add({.Account = "0SS", .Category = "<-Break Down->", .Credit = Dollars(9), .Memo = "m", .Class = "c"});
  rows.add({.Account = "24SS", .Category = "0SS", .Debit = Dollars(9), .Cleared = true});
  rows.commit();
  const RegisterLine line = Register(*company.session, "0SS").line(0);
  EXPECT_EQ(line.Name + line.Category + line.Memo + line.Class, "Acme<-Break Down->mc");
  EXPECT_EQ(line.Credit, Dollars(9));
  EXPECT_EQ(line.Debit, std::nullopt);
  const RegisterLine other = Register(*company.session, "24SS").line(0);
  EXPECT_EQ(other.Category + "|" + other.CatID, "Checking|0SS");
  EXPECT_TRUE(other.Cleared);
}

TEST(Registers, OnlyTheLastTwentyLinesAreReadAtLoad) {
  EntryCompany company;
  for (int day = 1; day <= 20; ++day)
    company.write("Check", Date(2026, 1, 1 + static_cast<unsigned>(day) / 2), "0SS", "40SS", Dollars(day));
  EXPECT_TRUE(Register(*company.session, "0SS").filled(0));
  const int64_t first = company.write("Deposit", Date(2025, 1, 1), "29SS", "0SS", Dollars(1000), "First");
  Register reg(*company.session, "0SS");
  EXPECT_FALSE(reg.filled(0));
  EXPECT_TRUE(reg.filled(1));
  EXPECT_EQ(reg.line(0).Name, "");
  EXPECT_EQ(reg.line(1).Balance, Dollars(999)) << "the balance is walked over what is not read";
  EXPECT_EQ(reg.line(20).Balance, reg.ending_balance());
  reg.Fill(0, 3);
  EXPECT_EQ(reg.line(0).Name, "First");
  EXPECT_EQ(reg.Row_Of(first), 0);
  EXPECT_EQ(reg.Row_Of(12345), -1);
}

TEST(Registers, OpeningSumsTheIndexAndReadsNoRow) {
  EntryCompany company;
  std::string plan;
  company.db().each(
      "EXPLAIN QUERY PLAN SELECT Date, COUNT(*), SUM(Debit), SUM(Credit) FROM Transactions WHERE Account = ? "
      "GROUP BY Date ORDER BY Date",
      {"0SS"}, [&](const store::Row& row) { plan += row.text(3); });
  EXPECT_NE(plan.find("USING COVERING INDEX"), std::string::npos) << plan;
  EXPECT_EQ(plan.find("TEMP B-TREE"), std::string::npos) << plan;
}

TEST(Registers, RowsOfAnotherUserAreNoticedAndNeverShiftTheLines) {
  EntryCompany company;
  for (int day = 1; day <= 25; ++day)
    company.write("Check", Date(2026, 1, static_cast<unsigned>(day)), "0SS", "40SS", Dollars(day));
  Register reg(*company.session, "0SS");
  auto other = company.another_user();
  Delete_Transaction(*other, 2);
  reg.Fill(0, 5);
  EXPECT_TRUE(reg.stale());
  EXPECT_EQ(reg.line(1).TransNum, 0);
  EXPECT_EQ(reg.line(2).TransNum, 3);
  reg.Load_Register();
  EXPECT_FALSE(reg.stale());
  EXPECT_EQ(reg.count(), 24);
}

TEST(Registers, CaptionsAndNewLinesFollowTheType) {
  EXPECT_EQ(Register_Captions("Accounts Receivable").in, "Amt Billed");
  EXPECT_EQ(Register_Captions("Accounts Payable").out, "Billed");
  EXPECT_EQ(Register_Captions("Long Term Liability").out, "Increase");
  EXPECT_EQ(Register_Captions("Fixed Asset").out, "Decrease");
  EXPECT_EQ(Register_Captions("Credit Card").out, "Charge");
  EXPECT_EQ(Register_Captions("Bank").in, "Deposit");
  EXPECT_FALSE(Takes_New_Lines("Accounts Payable"));
  EXPECT_TRUE(Takes_New_Lines("Credit Card"));
}

TEST(Registers, ALineTellsThatAnotherUserChangedOrDeletedIt) {
  EntryCompany company;
  const int64_t number = company.write("Check", Date(2026, 1, 1), "0SS", "40SS", Dollars(5));
  Register reg(*company.session, "0SS");
  const RegisterLine line = reg.line(0);
  EXPECT_TRUE(Shows(line, *Open_Entry(*company.session, reg, line)));
  auto other = company.another_user();
  Rewrite_Fields(*other, number, {{"Memo", "theirs"}});
  EXPECT_FALSE(Shows(line, *Open_Entry(*company.session, reg, line)));
  Delete_Transaction(*other, number);
  EXPECT_FALSE(Open_Entry(*company.session, reg, line));
  RegisterEntry gone = Entry_As_Shown(line);
  const RecordResult result = Record(*company.session, reg, gone);
  ASSERT_TRUE(result.conflict);
  EXPECT_EQ(result.conflict->box.title, "Data has changed");
  EXPECT_EQ(Rows_Of(company.db(), number, sides), "") << "it does not come back";
}

// --- recording -------------------------------------------------------------------------------------------

TEST(Registers, TheFirstMistakeInOrderStopsARecord) {
  EntryCompany company;
  Register reg(*company.session, "0SS");
  struct Case {
    const char* text;
    std::function<void(RegisterEntry&)> spoil;
  };
  const char* incomplete = "Please Enter a Category and a dollar value for all transactions.";
  const Case cases[] = {
      {"Please Enter a date value for all transactions.",
       [](RegisterEntry& entry) {
         entry.Date.reset();
         entry.Category = "";
       }},
      {incomplete, [](RegisterEntry& entry) { entry.Category = ""; }},
      {incomplete,
       [](RegisterEntry& entry) {
         entry.Credit.reset();
         entry.CatID = "0SS";
       }},
      {incomplete, [](RegisterEntry& entry) { entry.CatID = ""; }},
      {"Cannot Assign Category to Transaction that is also the Category that you are editing.",
       [](RegisterEntry& entry) { entry.CatID = "0SS"; }},
      {"Break Down Values do not equal Transaction amount",
       [](RegisterEntry& entry) {
         entry.Category = "<-Break Down->";
         entry.breakdown = {{.Amount = Dollars(24), .CatID = "40SS"}};
       }},
      {incomplete,
       [](RegisterEntry& entry) {
         entry.Category = "<-Break Down->";
         entry.breakdown = {{.Amount = Dollars(25)}};
       }},
  };
  for (const Case& wrong : cases) {
    RegisterEntry entry = Typed(reg, Dollars(25));
    wrong.spoil(entry);
    const RecordResult result = Record(*company.session, reg, entry);
    ASSERT_TRUE(result.fault) << wrong.text;
    EXPECT_EQ(result.fault->box.text, wrong.text);
    EXPECT_FALSE(result.stapler || result.reload);
  }
  EXPECT_EQ(company.count(), 0);
}

TEST(Registers, ATypedEntryIsALedgerEntryOfTwoMirroredRows) {
  EntryCompany company;
  Register reg(*company.session, "0SS");
  RegisterEntry entry = Typed(reg, Dollars(25));
  const RecordResult result = Record(*company.session, reg, entry);
  EXPECT_TRUE(result.stapler && result.reload);
  EXPECT_EQ(Rows_Of(company.db(), result.TransNum, sides),
            "Ledger Entry|0SS|40SS|0|25|25\nLedger Entry|40SS|0SS|25|0|25\n");
  EXPECT_EQ(Rows_Of(company.db(), result.TransNum, "Date Number Name Memo Class Cleared"),
            "6/15/2026|12|Acme Supply|Flyers|North|False\n6/15/2026|12|Acme Supply|Flyers|North|False\n");

  RegisterEntry deposit = Typed(reg, Dollars(1));
  deposit.Credit.reset();
  deposit.Debit = Dollars(7);
  deposit.CatID = "41SS";  // a parent
  deposit.Date = Date(2025, 12, 31);
  const int64_t number = Record(*company.session, reg, deposit).TransNum;
  const std::string child =
      company.db().value("SELECT CatID FROM Accounts WHERE AccountName = 'Automobile - Other'").text();
  EXPECT_EQ(Rows_Of(company.db(), number, sides),
            "Ledger Entry|0SS|" + child + "|7|0|7\nLedger Entry|" + child + "|0SS|0|7|7\n");
}

TEST(Registers, ABreakDownPutsNegativeLinesOnTheRegistersSide) {
  EntryCompany company;
  Register reg(*company.session, "0SS");
  for (const bool outgoing : {true, false}) {
    RegisterEntry entry = Typed(reg, Dollars(25));
    if (!outgoing) std::swap(entry.Credit, entry.Debit);
    entry.Category = "<-Break Down->";
    entry.CatID = "";
    entry.breakdown = {{.Amount = Dollars(30), .Memo = "a", .Customer = "Jones", .CatID = "40SS"},
                       {.Amount = -Dollars(5), .Class = "c", .CatID = "46SS"}};
    const int64_t number = Record(*company.session, reg, entry).TransNum;
    EXPECT_EQ(Rows_Of(company.db(), number, "Account Category Debit Credit Amount Memo Name Class"),
              outgoing ? "0SS|<-Break Down->|0|25|25|Flyers|Acme Supply|North\n40SS|0SS|30|0|30|a|Jones|\n"
                         "46SS|0SS|0|5|5|||c\n"
                       : "0SS|<-Break Down->|25|0|25|Flyers|Acme Supply|North\n40SS|0SS|0|30|30|a|Jones|\n"
                         "46SS|0SS|5|0|5|||c\n");
    reg.Load_Register();
    const RegisterEntry again = Entry_Of(*company.session, reg, number);
    ASSERT_EQ(again.breakdown.size(), 2u);
    EXPECT_EQ(again.breakdown[0].Amount, Dollars(30));
    EXPECT_EQ(again.breakdown[1].Amount, -Dollars(5));
  }
}

// --- what already stands in the ledger -------------------------------------------------------------------

/// A check of 100 paying 60 on a loan and 40 of interest.
int64_t Write_Split_Check(EntryCompany& company, bool items = false) {
  Transaction_Writer rows(
      *company.session,
      {.Type = "Check", .Date = Date(2026, 3, 1), .Number = "Print", .Name = "Bank", .Address = "1 Bank St"});
  rows.add({.Account = "0SS", .Category = "<-Break Down->", .Credit = Dollars(100), .Amount = Dollars(100)});
  rows.add({.Account = "24SS",
            .Category = "0SS",
            .Debit = Dollars(60),
            .Amount = Dollars(60),
            .SourceName = "Jones",
            .Item = items ? "Bolt" : ""});
  rows.add({.Account = "40SS", .Category = "0SS", .Debit = Dollars(40), .Amount = Dollars(40)});
  rows.commit();
  return rows.number();
}

TEST(Registers, AnExpenseCheckIsRewrittenWithoutLosingWhatTheGridDoesNotShow) {
  EntryCompany company;
  const int64_t number = Write_Split_Check(company);
  Register reg(*company.session, "0SS");
  RegisterEntry entry = Entry_Of(*company.session, reg, number);
  entry.Cleared = true;
  ASSERT_TRUE(Record(*company.session, reg, entry).stapler);
  const char* fields = "Type Account Category Debit Credit Address SourceName Cleared";
  EXPECT_EQ(Rows_Of(company.db(), number, fields),
            "Check|0SS|<-Break Down->|0|100|1 Bank St||True\nCheck|24SS|0SS|60|0|1 Bank St|Jones|True\n"
            "Check|40SS|0SS|40|0|1 Bank St||True\n");
  entry.Category = "Bank Loan";
  entry.CatID = "24SS";
  ASSERT_TRUE(Record(*company.session, reg, entry).stapler);
  EXPECT_EQ(Rows_Of(company.db(), number, sides), "Check|0SS|24SS|0|100|100\nCheck|24SS|0SS|100|0|100\n");
}

TEST(Registers, WhatTheRegisterMayNotRewriteStaysAsItIs) {
  EntryCompany company;
  Session& session = *company.session;
  const Date day(2026, 3, 1);
  std::vector<std::pair<int64_t, const char*>> refused;
  for (const char* type : {"Paycheck", "Billcheck", "Liabilitycheck", "Liability Adjust", "Bill", "Deposit"})
    refused.emplace_back(company.write(type, day, "0SS", "24SS", Dollars(1)), "0SS");
  refused.emplace_back(Write_Split_Check(company, true), "0SS");
  for (const auto& [number, account] : refused) {
    EXPECT_FALSE(Can_Edit_In_Register(session, number));
    Register reg(session, account);
    RegisterEntry entry = Entry_Of(session, reg, number);
    entry.Memo = "typed";
    const RecordResult result = Record(session, reg, entry);
    ASSERT_TRUE(result.fault);
    EXPECT_EQ(result.fault->box.title, "Access Denied");
    EXPECT_EQ(result.fault->box.icon, Icon::Critical);
    EXPECT_TRUE(result.reload);
    EXPECT_EQ(Break_Down(session, entry)->box.title, "Break Down Denied");
  }
  EXPECT_TRUE(company.db().value("SELECT TransNum FROM Transactions WHERE Memo = 'typed'").is_null());
}

TEST(Registers, OneLineOfASplitCheckDoesNotSwallowTheOthers) {
  EntryCompany company;
  const int64_t number = Write_Split_Check(company);
  Register loan(*company.session, "24SS");
  RegisterEntry entry = Entry_Of(*company.session, loan, number);
  EXPECT_EQ(Record(*company.session, loan, entry).fault->box.title, "Access Denied");
  EXPECT_EQ(Rows_Of(company.db(), number, "Account"), "0SS\n24SS\n40SS\n");
}

TEST(Registers, ALedgerEntryOfMoreRowsOnlyChangesWhetherItsLineIsCleared) {
  EntryCompany company;
  Transaction_Writer rows(*company.session, {.Type = "Ledger Entry", .Date = Date(2026, 3, 1)});
  rows.add({.Account = "0SS", .Category = "<-Break Down->", .Credit = Dollars(5)});
  rows.add({.Account = "0SS", .Category = "<-Break Down->", .Credit = Dollars(6)});
  rows.add({.Account = "40SS", .Category = "0SS", .Debit = Dollars(11)});
  rows.commit();
  Register reg(*company.session, "0SS");
  RegisterEntry entry = *Open_Entry(*company.session, reg, reg.line(1));
  entry.Cleared = true;
  entry.Memo = "typed";
  entry.Category = "Advertising and Promotion";
  entry.CatID = "40SS";
  const RecordResult result = Record(*company.session, reg, entry);
  EXPECT_FALSE(result.fault || result.stapler);
  ASSERT_TRUE(result.notice) << "the memo and the category were not taken, and that is said";
  EXPECT_EQ(result.notice->title, "Access Denied");
  EXPECT_EQ(Rows_Of(company.db(), rows.number(), "Credit Cleared Memo"), "5|False|\n6|True|\n0|False|\n");
}

TEST(Registers, AChangeByAnotherUserStopsTheRecord) {
  EntryCompany company;
  const int64_t number = company.write("Ledger Entry", Date(2026, 3, 1), "0SS", "40SS", Dollars(9));
  Register reg(*company.session, "0SS");
  RegisterEntry mine = Entry_Of(*company.session, reg, number);
  auto other = company.another_user();
  Rewrite_Fields(*other, number, {{"Memo", "theirs"}});
  mine.Memo = "mine";
  const RecordResult result = Record(*company.session, reg, mine);
  ASSERT_TRUE(result.conflict && result.reload);
  EXPECT_EQ(result.conflict->box.title, "Data has changed");
  EXPECT_EQ(Rows_Of(company.db(), number, "Memo"), "theirs\ntheirs\n");
}

TEST(Registers, WhatAnotherUserChangedMeanwhileIsNotDeleted) {
  EntryCompany company;
  const int64_t number = company.write("Check", Date(2026, 3, 1), "0SS", "40SS", Dollars(9));
  Register reg(*company.session, "0SS");
  const RegisterEntry seen = Entry_Of(*company.session, reg, number);
  company.run("UPDATE Transactions SET Cleared = True");
  const RegisterDeletion result = Delete_From_Register(*company.session, {.TransNum = number}, seen.probe);
  EXPECT_TRUE(result.conflict && !result.deleted);
  EXPECT_EQ(Rows_Of(company.db(), number, "Account"), "0SS\n40SS\n");
}

// --- memorised filling and breaking down -----------------------------------------------------------------

TEST(Registers, ThePayeesLastOutgoingRowFillsEmptyCells) {
  EntryCompany company;
  Session& session = *company.session;
  company.write("Check", Date(2026, 1, 1), "0SS", "46SS", Dollars(1), "O'Brien");
  company.write("Check", Date(2026, 4, 1), "0SS", "40SS", Dollars(12), "O'Brien");
  company.write("Bill", Date(2026, 5, 1), "AP1", "46SS", Dollars(99), "O'Brien");
  Register reg(session, "0SS");
  RegisterEntry entry = New_Entry(reg);
  entry.Name = "O'Brien";
  entry.Memo = "kept";
  Fill_Memorised(session, entry);
  EXPECT_EQ(entry.Category + entry.CatID + entry.Memo, "Advertising and Promotion40SSkept");
  EXPECT_EQ(entry.Credit, Dollars(12));

  RegisterEntry deposit = New_Entry(reg);
  deposit.Name = "O'Brien";
  deposit.Debit = Dollars(3);
  Fill_Memorised(session, deposit);
  EXPECT_EQ(deposit.Credit, std::nullopt) << "an entry goes one way";
}

TEST(Registers, AMemorisedBreakDownBringsItsLinesOrNoCategory) {
  EntryCompany company;
  Session& session = *company.session;
  Write_Split_Check(company);
  Register reg(session, "0SS");
  RegisterEntry entry = New_Entry(reg);
  entry.Name = "Bank";
  Fill_Memorised(session, entry);
  ASSERT_EQ(entry.breakdown.size(), 2u);
  EXPECT_EQ(entry.breakdown[0].Account, "Bank Loan");
  EXPECT_TRUE(Record(session, reg, entry).stapler) << "it is complete as it is proposed";
  EXPECT_EQ(Rows_Of(company.db(), entry.TransNum, "SourceName"), "\n\n\n") << "the customer of then was not shown";

  company.run("DELETE FROM Transactions WHERE Category <> '<-Break Down->'");
  RegisterEntry empty = New_Entry(reg);
  empty.Name = "Bank";
  Fill_Memorised(session, empty);
  EXPECT_EQ(empty.Category, "");
}

TEST(Registers, BreakingDownStartsWithTheEntryAndMustAddUp) {
  EntryCompany company;
  Session& session = *company.session;
  Register reg(session, "0SS");
  RegisterEntry entry = New_Entry(reg);
  EXPECT_EQ(Break_Down(session, entry)->box.title, "No Value");
  entry = Typed(reg, Dollars(25));
  ASSERT_FALSE(Break_Down(session, entry));
  ASSERT_EQ(entry.breakdown.size(), 1u);
  EXPECT_EQ(entry.breakdown[0].Amount, Dollars(25));
  entry.breakdown[0].Amount = Dollars(20);
  EXPECT_EQ(Close_Break_Down(entry)->box.title, "Not Equal");
  entry.breakdown.push_back({.Account = "Bank Service Charges", .Amount = Dollars(5), .CatID = "46SS"});
  ASSERT_FALSE(Close_Break_Down(entry));
  EXPECT_EQ(entry.Category + entry.CatID, "<-Break Down->");
  entry.breakdown.erase(entry.breakdown.begin());
  entry.breakdown[0].Amount = Dollars(25);
  ASSERT_FALSE(Close_Break_Down(entry));
  EXPECT_EQ(entry.Category + entry.CatID, "Bank Service Charges46SS");
}

// --- go to and delete ------------------------------------------------------------------------------------

TEST(Registers, GoToLeadsToTheWindowOfTheType) {
  EntryCompany company;
  const std::pair<const char*, const char*> types[] = {
      {"Payment", "frmPayments"},     {"Paycheck", "frmCheck"}, {"Item Receipt", "frmBills"},
      {"Invoice", "frmInvoice"},      {"Credit", "frmBills"},   {"Ledger Entry", "frmJournal"},
      {"Liabilitycheck", "frmCheck"}, {"Inv Adjust", ""},
  };
  for (const auto& [type, window] : types)
    EXPECT_EQ(Go_To(*company.session, company.write(type, Date(2026, 1, 1), "0SS", "40SS", Dollars(1))).window, window);
}

TEST(Registers, DeletingAsksFirstAndSparesPayments) {
  EntryCompany company;
  Session& session = *company.session;
  auto& prompts = company.prompts;
  EXPECT_FALSE(Delete_From_Register(session, {}).deleted);
  EXPECT_TRUE(prompts.boxes.empty());

  const int64_t payment = company.write("Payment", Date(2026, 1, 1), "AR1", "0SS", Dollars(5));
  prompts.answers = {true};
  EXPECT_FALSE(Delete_From_Register(session, {.TransNum = payment}).deleted);
  EXPECT_EQ(prompts.boxes.back().text, "Payments can only be deleted from the payment screen.");

  const int64_t check = company.write("Check", Date(2025, 1, 1), "0SS", "40SS", Dollars(5));
  prompts.answers = {true, false};
  EXPECT_FALSE(Delete_From_Register(session, {.Cleared = true, .TransNum = check}).deleted);
  prompts.answers = {true, true};
  EXPECT_TRUE(Delete_From_Register(session, {.Cleared = true, .TransNum = check}).deleted);
  EXPECT_EQ(Rows_Of(company.db(), check, "Account"), "");
}

}  // namespace
}  // namespace tallymere
