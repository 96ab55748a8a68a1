#include "entry/repeats/repeat.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;

std::string Dates(const std::string& frequency, Date from, int count) {
  std::string dates;
  const int anchor = static_cast<int>(from.day());
  for (Date date = from; count > 0; --count) dates += (date = Next_Date(frequency, date, anchor)).to_text() + " ";
  return dates;
}

TEST(Repeats, DatesKeepToTheDayThatWasChosen) {
  EXPECT_EQ(Dates("Daily", Date(2028, 2, 28), 2), "2/29/2028 3/1/2028 ");
  EXPECT_EQ(Dates("Every Four Weeks", Date(2026, 12, 20), 1), "1/17/2027 ");
  EXPECT_EQ(Dates("Monthly", Date(2026, 12, 31), 4), "1/31/2027 2/28/2027 3/31/2027 4/30/2027 ");
  EXPECT_EQ(Dates("Quarterly", Date(2026, 11, 30), 3), "2/28/2027 5/30/2027 8/30/2027 ");
  EXPECT_EQ(Dates("Semiannually", Date(2026, 8, 31), 2), "2/28/2027 8/31/2027 ");
  EXPECT_EQ(Dates("Annually", Date(2024, 2, 29), 4), "2/28/2025 2/28/2026 2/28/2027 2/29/2028 ");
  EXPECT_EQ(Dates("Semimonthly", Date(2026, 1, 15), 5), "1/31/2026 2/15/2026 2/28/2026 3/15/2026 3/31/2026 ");
  EXPECT_EQ(Dates("Semimonthly", Date(2026, 1, 20), 1), "2/15/2026 ");
  EXPECT_EQ(Frequencies().size(), 9u);
}

struct RepeatRuns : ::testing::Test {
  TestCompany company;  // stands on 6/15/2026
  Session& session = *company.session;

  RepeatRuns() {
    company.add_category("900SS", "Bank");
    company.add_category("901SS", "Expense");
  }
  /// Two rows; `fields` are set on both.
  void transaction(int64_t number, const char* type, const char* account, const std::string& fields) {
    for (const bool head : {true, false})
      company.run(
          "INSERT INTO Transactions (TransNum, Type, Date, Name, Account, Debit, Credit, Amount) VALUES (?, ?, "
          "'2026-05-15', 'Acme', ?, ?, ?, 500000)",
          {number, type, head ? account : "901SS", head ? 0 : 500000, head ? 500000 : 0});
    company.run("UPDATE Transactions SET " + fields + " WHERE TransNum = ?", {number});
  }
  void repeat(const char* name, const char* type, int64_t number, const char* next, store::Value remain = {},
              int ahead = 0) {
    company.run(
        "INSERT INTO RepeatTrans (Name, Type, TransactionID, Frequency, NextDate, AdvDays, NumRemain) VALUES (?, ?, "
        "?, 'Monthly', ?, ?, ?)",
        {name, type, number, next, ahead, remain});
  }
  std::string value(const std::string& sql) { return company.db().value(sql).text(); }
  std::string titles() {
    std::string all;
    for (const Box& box : company.prompts.boxes) all += box.title + ";";
    return all;
  }
};

TEST_F(RepeatRuns, ABillIsEnteredAheadOfItsDateAndFallsDueAsItsTermsSay) {
  transaction(1, "Bill", "AP1",
              "Number = 'R-1', Terms = 'Net 30', DueDate = '2026-06-14', Paid = -1, PaidBy = '7;', Cleared = -1");
  company.run(
      "INSERT INTO Terms (Term, Days) SELECT 'Net 30', 30 WHERE NOT EXISTS (SELECT 1 FROM Terms WHERE Term = 'Net 30')");
  repeat("Rent", "Bill", 1, "2026-06-18", 2, 3);
  const std::string before = value("SELECT COUNT(*) FROM History");
  EXPECT_TRUE(Check_Repeats(session));
  EXPECT_EQ(
      value(
          "SELECT GROUP_CONCAT(Account || Date || Number || DueDate || Paid || Cleared || IFNULL(PaidBy, '-') || Debit ||"
          " '/' || Credit) FROM Transactions WHERE TransNum = 2"),
      "AP12026-06-18R-12026-07-1800-0/500000,901SS2026-06-18R-12026-07-1800-500000/0");
  EXPECT_EQ(company.prompts.boxes.back().text, "Repeat Transaction \"Rent\" was added to your Current Bills");
  EXPECT_EQ(value("SELECT NextDate || NumRemain FROM RepeatTrans"), "2026-07-181");
  EXPECT_EQ(value("SELECT COUNT(*) FROM History"), std::to_string(std::stoi(before) + 1)) << "one action";
  EXPECT_FALSE(Check_Repeats(session)) << "not due again";

  company.run("UPDATE RepeatTrans SET NextDate = '2026-06-15'");
  company.run("UPDATE Transactions SET Terms = 'unheard of' WHERE TransNum = 1");
  company.prompts.boxes.clear();
  EXPECT_TRUE(Check_Repeats(session));
  EXPECT_EQ(value("SELECT DueDate FROM Transactions WHERE TransNum = 3"), "7/15/2026") << "30 days, as it was";
  EXPECT_EQ(company.prompts.boxes.back().text,
            "Number of Repeats for \"Rent\" has run out. \"Rent\" has been removed.");
  EXPECT_EQ(value("SELECT COUNT(*) FROM RepeatTrans"), "0");
}

TEST_F(RepeatRuns, InvoicesAndChecksGetNewNumbersAndNothingIsPaidYet) {
  transaction(1, "Invoice", "AR1", "Number = '40000', Paid = -1, AmountReceived = 500000");
  transaction(2, "Check", "900SS", "Number = '1007', Cleared = -1");
  repeat("Dues", "Invoice", 1, "2026-06-15");
  repeat("Phone", "Check", 2, "2026-06-15");
  EXPECT_TRUE(Check_Repeats(session));
  EXPECT_EQ(value("SELECT DISTINCT Number || Paid || AmountReceived FROM Transactions WHERE TransNum = 3"), "4000100");
  EXPECT_EQ(value("SELECT DISTINCT Number || Cleared FROM Transactions WHERE TransNum = 4"), "Print0");
  EXPECT_EQ(titles(), "Added Invoice;Added Check;");
  company.run("UPDATE Transactions SET Number = 'INV-A' WHERE TransNum = 3");
  company.run("UPDATE RepeatTrans SET NextDate = '2026-06-15' WHERE Name = 'Dues'");
  EXPECT_TRUE(Check_Repeats(session));
  EXPECT_EQ(value("SELECT DISTINCT Number FROM Transactions WHERE TransNum = 5"), "40001")
      << "after the highest there is";
}

TEST_F(RepeatRuns, WhatIsDueIsEnteredWhoeverOpensTheCompany) {
  transaction(7, "Invoice", "AR1", "Number = '9'");
  repeat("Rent out", "Invoice", 7, "2026-06-10");
  company.run("INSERT INTO Users (UserName) VALUES ('Ann')");
  session.MultiUser = true;
  session.CurrentUser = "Ann";
  EXPECT_TRUE(Check_Repeats(session));
  EXPECT_EQ(value("SELECT COUNT(DISTINCT TransNum) FROM Transactions WHERE Type = 'Invoice'"), "2");
}

TEST_F(RepeatRuns, AMissingTemplateIsNamedAndTheOthersGoOn) {
  transaction(1, "Check", "900SS", "Number = '1'");
  repeat("Gone", "Bill", 1, "2026-06-01");  // it is no bill
  repeat("Odd", "Paycheck", 1, "2026-06-01");
  repeat("Phone", "Check", 1, "2026-06-01");
  repeat("Spent", "Check", 1, "2030-01-01", 0);
  EXPECT_TRUE(Check_Repeats(session));
  EXPECT_EQ(titles(), "No Bill;Added Check;No more Repeats;");
  EXPECT_EQ(value("SELECT GROUP_CONCAT(Name || NextDate) FROM RepeatTrans"),
            "Gone2026-06-01,Odd2026-07-01,Phone2026-07-01");
  EXPECT_EQ(value("SELECT COUNT(DISTINCT TransNum) FROM Transactions"), "2");
}

TEST_F(RepeatRuns, TwoProgramsThatStartTogetherEnterItOnce) {
  transaction(1, "Check", "900SS", "Number = '1'");
  repeat("Phone", "Check", 1, "2026-05-20");
  struct Colleague : testing::ScriptedPrompts {
    std::function<void()> meanwhile;
    void box(const Box& shown) override {
      ScriptedPrompts::box(shown);
      if (auto once = std::exchange(meanwhile, nullptr)) once();
    }
  };
  repeat("Rent", "Check", 1, "2026-05-20");
  Colleague prompts;
  auto mine = std::make_unique<Session>(company.folder.path(), company.clock, prompts);
  Main(*mine);
  company.open(*mine);
  const auto theirs = company.another_user();
  prompts.meanwhile = [&] { Check_Repeats(*theirs); };  // between my first and my second repeat
  Check_Repeats(*mine);
  EXPECT_EQ(value("SELECT COUNT(DISTINCT TransNum) FROM Transactions WHERE Date = '2026-05-20'"), "2");
}

TEST_F(RepeatRuns, TheFormKeepsWhatItDoesNotShow) {
  transaction(1, "Bill", "AP1", "Number = '1'");
  EXPECT_FALSE(New_Repeat(session, "Bill", 9));
  EXPECT_FALSE(New_Repeat(session, "Check", 1));
  RepeatForm form = *New_Repeat(session, "Bill", 1);
  ListRow fresh(session, Repeat_Rows);
  EXPECT_EQ(Save_Repeat(session, fresh, form).fault->box.title, "Not Valid");
  form.Name = "Rent";
  form.Frequency = "Monthly";
  form.NextDate = Date(2026, 1, 31);
  form.AdvDays = "soon";
  EXPECT_EQ(Save_Repeat(session, fresh, form).fault->control, "txtAdvDays");
  form.AdvDays = "0";
  ASSERT_TRUE(Save_Repeat(session, fresh, form).ok()) << "without a count it goes on without end";
  EXPECT_EQ(
      value(
          "SELECT SourceCat || Amount || Type || TransactionID || AnchorDay || IFNULL(NumRemain, '-') FROM RepeatTrans"),
      "AP1500000Bill131-");
  ListRow again(session, Repeat_Rows);
  EXPECT_EQ(Save_Repeat(session, again, form).fault->box.title, "Duplicate Name");

  company.run("UPDATE RepeatTrans SET NextDate = '2026-02-28'");
  ListRow row(session, Repeat_Rows, "rent");
  form = Repeat_Form(row);
  form.AdvDays = "5";
  ASSERT_TRUE(Save_Repeat(session, row, form).ok());
  EXPECT_EQ(value("SELECT AnchorDay FROM RepeatTrans"), "31") << "the month's end stays the month's end";
}

}  // namespace
}  // namespace tallymere
