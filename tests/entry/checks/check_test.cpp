#include "entry/checks/check.h"

#include <functional>

#include "support/entry_company.h"

namespace tallymere {
namespace {

using testing::Dollars;
using testing::EntryCompany;
using testing::Rows_Of;

constexpr const char* sides = "Account Category Debit Credit Amount";

/// A check for 25.00 over office supplies, as its window would hold it.
Check Simple_Check(Session& session) {
  Check check = New_Check(session);
  check.Number = "1042";
  check.Name = "Acme Supply";
  check.Address = "1 Main St";
  check.Memo = "Paper";
  check.Amount = Dollars(25);
  check.expenses = {{.Category = "Advertising and Promotion",
                     .Amount = Dollars(25),
                     .Memo = "Flyers",
                     .Customer = "Jones",
                     .Class = "North",
                     .CatID = "40SS"}};
  return check;
}

int64_t Saved(Session& session, Check check) {
  EXPECT_TRUE(Enter_Check(session, check).written);
  return check.TransNum;
}

TEST(Checks, ANewCheckTakesTheNextNumberOfTheWholeLedgerAndTheDefaultBank) {
  EntryCompany company;
  EXPECT_EQ(New_Check(*company.session).TransNum, 1);
  company.write("Invoice", Date(2026, 1, 5), "29SS", "AR1", Dollars(10), "", "", 41);
  const Check check = New_Check(*company.session);
  EXPECT_EQ(check.TransNum, 42);
  EXPECT_EQ(check.BankID + check.Number, "0SSPrint");
  EXPECT_EQ(check.Date, Date(2026, 6, 15));
  EXPECT_TRUE(check.is_new());
}

TEST(Checks, OpeningFreshensTheBanksAndShowsTheCheckAskedFor) {
  EntryCompany company;
  Session& session = *company.session;
  const int64_t check = company.write("Check", Date(2026, 2, 1), "0SS", "40SS", Dollars(30));
  const int64_t invoice = company.write("Invoice", Date(2026, 2, 1), "29SS", "AR1", Dollars(1));
  EXPECT_EQ(Read_Bank(session, "0SS").Balance, Money());
  EXPECT_EQ(Open_Checks(session, check).Amount, Dollars(30));
  EXPECT_EQ(Read_Bank(session, "0SS").Balance, -Dollars(30));
  EXPECT_TRUE(Open_Checks(session, invoice).is_new());
  ASSERT_EQ(Banks(session).size(), 3u);
  EXPECT_EQ(Banks(session).front().AccountName, "Checking");
}

// --- saving ----------------------------------------------------------------------------------------------

TEST(Checks, TheFirstMistakeInOrderStopsTheSave) {
  EntryCompany company;
  struct Case {
    const char* text;
    const char* title;
    std::function<void(Check&)> spoil;
  };
  const Case cases[] = {
      {"Please enter an amount for this check.", "No Amount",
       [](Check& check) {
         check.Amount.reset();
         check.expenses.front().Category = "";  // found later
       }},
      {"Please enter a Category for this Expense", "No Category",
       [](Check& check) {
         check.expenses.front() = {.Amount = Dollars(9)};
         check.Valid = false;
       }},
      {"Please enter a Valid Category for this Expense", "No Category",
       [](Check& check) {
         check.Valid = false;
         check.Amount = Dollars(1);
       }},
      {"Please enter a Valid Category for this Expense", "No Category",
       [](Check& check) { check.expenses.front().CatID = ""; }},
      {"Transaction does not Balance", "No Balance",
       [](Check& check) {
         check.Amount = Dollars(25, 1);
         check.expenses.back().CatID = "0SS";
       }},
      {"Transaction does not Balance", "No Balance", [](Check& check) { check.expenses.clear(); }},
      {"Cannot Assign Category to Transaction that is also the Category that you are editing.", "Invalid Category",
       [](Check& check) { check.expenses.back().CatID = check.BankID; }},
      {"Please enter a Item for this Expense", "No Category",
       [](Check& check) {
         check.Tab = LineTab::Items;
         check.items = {{.Amount = Dollars(3)}, {.Item = "Bolt"}};
       }},
      {"Transaction does not Balance", "No Balance",
       [](Check& check) {
         check.Tab = LineTab::Items;
         check.expenses.clear();
         check.items = {{.Item = "Bolt", .Amount = Dollars(24), .CatID = "29SS"}};
       }},
      {"Transaction does not Balance", "No Balance",  // the hidden tab's lines are written too
       [](Check& check) { check.items = {{.Item = "Bolt", .Amount = Dollars(5), .CatID = "29SS"}}; }},
  };
  for (const Case& wrong : cases) {
    Check check = Simple_Check(*company.session);
    wrong.spoil(check);
    const SaveResult result = Enter_Check(*company.session, check);
    ASSERT_TRUE(result.fault) << wrong.text;
    EXPECT_EQ(result.fault->box.text, wrong.text);
    EXPECT_EQ(result.fault->box.title, wrong.title);
    EXPECT_FALSE(result.ok() || result.written);
  }
  EXPECT_EQ(company.count(), 0);
}

TEST(Checks, NothingTypedIsNothingToSave) {
  EntryCompany company;
  Check check = New_Check(*company.session);
  const SaveResult result = Enter_Check(*company.session, check);
  EXPECT_TRUE(result.ok());
  EXPECT_FALSE(result.written);
  EXPECT_EQ(company.count(), 0);
}

TEST(Checks, OneExpenseNamesEachSideOnTheOther) {
  EntryCompany company;
  const int64_t number = Saved(*company.session, Simple_Check(*company.session));
  EXPECT_EQ(Rows_Of(company.db(), number, sides), "0SS|40SS|0|25|25\n40SS|0SS|25|0|25\n");
  EXPECT_EQ(Rows_Of(company.db(), number, "Type Number Name Address Memo SourceName Class Cleared"),
            "Check|1042|Acme Supply|1 Main St|Paper|||False\n"
            "Check|1042|Acme Supply|1 Main St|Flyers|Jones|North|False\n");
}

TEST(Checks, SeveralExpensesBreakDownInGridOrder) {
  EntryCompany company;
  Check check = Simple_Check(*company.session);
  check.expenses = {{.Category = "a", .Amount = Dollars(30), .CatID = "46SS"},
                    {.Category = "b", .Amount = -Dollars(5), .CatID = "40SS"},
                    {}};
  const int64_t number = Saved(*company.session, check);
  EXPECT_EQ(Rows_Of(company.db(), number, sides), "0SS|<-Break Down->|0|25|25\n46SS|0SS|30|0|30\n40SS|0SS|0|5|5\n");
}

TEST(Checks, ItemLinesPostToTheirItemsCategory) {
  EntryCompany company;
  Check check = Simple_Check(*company.session);
  check.Tab = LineTab::Items;
  check.expenses.clear();
  check.items = {{.Item = "Bolt",
                  .Description = "Steel",
                  .Quantity = 2.5,
                  .Cost = Dollars(10),
                  .Amount = Dollars(25),
                  .Customer = "Jones",
                  .Class = "North",
                  .CatID = "3SS"}};
  const int64_t number = Saved(*company.session, check);
  EXPECT_EQ(Rows_Of(company.db(), number, sides), "0SS|<-Break Down->|0|25|25\n3SS|0SS|25|0|25\n");
  EXPECT_EQ(Rows_Of(company.db(), number, "Item ItemDescription Qty SalePrice SourceName Class Memo"),
            "||||||Paper\nBolt|Steel|2.5|10|Jones|North|\n");
}

TEST(Checks, APostingToAParentMakesItsOtherChildOnce) {
  EntryCompany company;
  Check check = Simple_Check(*company.session);
  check.expenses.front().CatID = "41SS";  // Automobile
  const int64_t number = Saved(*company.session, check);
  const std::string child =
      company.db().value("SELECT CatID FROM Accounts WHERE AccountName = 'Automobile - Other'").text();
  ASSERT_TRUE(child.ends_with("SS"));
  EXPECT_EQ(Rows_Of(company.db(), number, "Account Category"), "0SS|" + child + "\n" + child + "|0SS\n");
  check.TransNum = 0;
  Saved(*company.session, check);
  EXPECT_EQ(company.db().value("SELECT COUNT(*) FROM Accounts WHERE ParentAccount = '41SS'").integer(), 4);
}

TEST(Checks, AnEditKeepsNumberAndClearingAndDropsTheOldRows) {
  EntryCompany company;
  Session& session = *company.session;
  const int64_t number = Saved(session, Simple_Check(session));
  company.run("UPDATE Transactions SET Cleared = True");
  Check check = *Load_Check(session, number);
  check.Amount = Dollars(60);
  check.expenses.push_back({.Category = "x", .Amount = Dollars(35), .CatID = "46SS"});
  ASSERT_TRUE(Enter_Check(session, check).ok());
  const std::string first = "0SS|<-Break Down->|60|True\n40SS|0SS|0|True\n46SS|0SS|0|True\n";
  EXPECT_EQ(Rows_Of(company.db(), number, "Account Category Credit Cleared"), first);
  check.Memo = "Again";  // a second save from the same window meets its own rows, not a conflict
  ASSERT_TRUE(Enter_Check(session, check).ok());
  EXPECT_EQ(Rows_Of(company.db(), number, "Account Category Credit Cleared"), first);
}

TEST(Checks, AFailureHalfWayLeavesTheOldRows) {
  EntryCompany company;
  Session& session = *company.session;
  const int64_t number = Saved(session, Simple_Check(session));
  company.add_category("90SS", "Expense", "gone");  // its parent has no row to take a name from
  Check check = *Load_Check(session, number);
  check.expenses.front().CatID = "gone";
  EXPECT_THROW(Enter_Check(session, check), store::Error);
  EXPECT_EQ(Rows_Of(company.db(), number, sides), "0SS|40SS|0|25|25\n40SS|0SS|25|0|25\n");
  check.expenses.front().CatID = "46SS";
  EXPECT_TRUE(Enter_Check(session, check).written) << "what was typed can still be saved";
}

// --- other users -----------------------------------------------------------------------------------------

TEST(Checks, AChangeByAnotherUserStopsTheSaveAndLosesNothing) {
  EntryCompany company;
  const int64_t number = Saved(*company.session, Simple_Check(*company.session));
  auto other = company.another_user();
  Check mine = *Load_Check(*company.session, number);
  Check theirs = *Load_Check(*other, number);
  theirs.Memo = "Theirs";
  ASSERT_TRUE(Enter_Check(*other, theirs).ok());
  mine.Memo = "Mine";
  const SaveResult result = Enter_Check(*company.session, mine);
  ASSERT_TRUE(result.conflict);
  EXPECT_EQ(result.conflict->box.title, "Data has changed");
  EXPECT_TRUE(result.conflict->reload);
  EXPECT_EQ(Rows_Of(company.db(), number, "Memo Credit"), "Theirs|25\nFlyers|0\n");
}

TEST(Checks, ANumberTakenMeanwhileNeverMergesTwoDocuments) {
  EntryCompany company;
  auto other = company.another_user();
  Check mine = Simple_Check(*company.session), theirs = Simple_Check(*other);
  ASSERT_EQ(mine.TransNum, theirs.TransNum);
  ASSERT_TRUE(Enter_Check(*other, theirs).ok());
  ASSERT_TRUE(Enter_Check(*company.session, mine).ok());
  EXPECT_EQ(mine.TransNum, theirs.TransNum + 1);
  EXPECT_EQ(company.count(), 4);
}

TEST(Checks, DeletingABlankCheckLeavesAnotherUsersTransactionAlone) {
  EntryCompany company;
  const Check blank = New_Check(*company.session);
  auto other = company.another_user();
  Saved(*other, Simple_Check(*other));
  company.prompts.answers = {true};
  EXPECT_TRUE(Delete_Check(*company.session, blank).deleted);
  EXPECT_EQ(company.count(), 2);
}

// --- checks of other windows -----------------------------------------------------------------------------

TEST(Checks, ChecksOfOtherWindowsGetOnlyTheirFewFields) {
  struct Case {
    const char* type;
    const char* rows;
  };
  const Case cases[] = {
      {"Billcheck", "Billcheck|77|1/5/2025|Payee\nBillcheck|77|1/5/2025|Payee\n"},
      {"Paycheck", "Paycheck|77|2/6/2026|Payee\nPaycheck|77|2/6/2026|Payee\n"},
      {"Liabilitycheck", "Liabilitycheck|77|2/6/2026|New\nLiabilitycheck|77|2/6/2026|New\n"},
  };
  for (const Case& kind : cases) {
    EntryCompany company;
    const int64_t number = company.write(kind.type, Date(2025, 1, 5), "0SS", "AP1", Dollars(10), "Payee", "Print");
    Check check = *Load_Check(*company.session, number);
    check.Number = "77";
    check.Date = Date(2026, 2, 6);
    check.Name = "New";
    check.Amount = Dollars(99);
    ASSERT_TRUE(Enter_Check(*company.session, check).written);
    EXPECT_EQ(Rows_Of(company.db(), number, "Type Number Date Name"), kind.rows);
    EXPECT_EQ(Rows_Of(company.db(), number, sides), "0SS|AP1|0|10|10\nAP1|0SS|10|0|10\n");
  }
}

TEST(Checks, EachKindShowsWhatItPaid) {
  EntryCompany company;
  Session& session = *company.session;
  const Date day(2026, 3, 1);
  const int64_t bill = company.write("Bill", day, "AP1", "40SS", Dollars(10), "Vendor", "B7");
  const int64_t paying = company.write("Billcheck", day, "0SS", "AP1", Dollars(10), "Vendor");
  company.run("UPDATE Transactions SET Paid = True, PaidBy = ?, DueDate = ? WHERE TransNum = ?",
              {std::to_string(paying) + ";", Date(2026, 3, 31), bill});
  const Check billcheck = *Load_Check(session, paying);
  ASSERT_EQ(billcheck.bills.size(), 1u);  // the payable row, not its expense
  EXPECT_EQ(billcheck.bills.front().Number + billcheck.bills.front().Vendor, "B7Vendor");
  EXPECT_EQ(billcheck.bills.front().DueDate, Date(2026, 3, 31));

  Transaction_Writer pay(session, {.Type = "Paycheck", .Date = day, .Name = "Ann"});
  pay.add({.Account = "0SS", .Credit = Dollars(70), .Amount = Dollars(70)});
  pay.add({.Account = "40SS", .Debit = Dollars(50), .PayrollItem = "Salary", .PayPeriod = "Weekly", .Hours = 40});
  pay.add({.Account = "40SS", .Debit = Dollars(20), .PayrollItem = "Bonus", .PayPeriod = "Weekly", .Hours = 2.5});
  pay.commit();
  const Check paycheck = *Load_Check(session, pay.number());
  EXPECT_EQ(paycheck.PayPeriod, "Weekly");
  EXPECT_EQ(paycheck.Hours, 42.5);
  EXPECT_EQ(paycheck.BankID, "0SS");
}

TEST(Checks, ALiabilityCheckPaysPayrollItemsOrSalesTax) {
  EntryCompany company;
  for (const bool payroll : {true, false}) {
    Transaction_Writer rows(*company.session, {.Type = "Liabilitycheck", .Date = Date(2026, 3, 1)});
    rows.add({.Account = "0SS", .Credit = Dollars(9), .Amount = Dollars(9)});
    rows.add({.Account = "13SS",
              .Debit = Dollars(9),
              .Amount = Dollars(9),
              .Item = payroll ? "" : "City Tax",
              .PaidThrough = Date(2026, 2, 28),
              .PayrollItem = payroll ? "Medicare Company" : ""});
    rows.commit();
    const Check check = *Load_Check(*company.session, rows.number());
    ASSERT_EQ(check.liabilities.size(), 1u);
    EXPECT_EQ(check.liabilities.front().PayrollItem, payroll ? "Medicare Company" : "City Tax");
    EXPECT_EQ(check.has_payroll_items, payroll);
    EXPECT_EQ(check.PaidThrough, Date(2026, 2, 28));
  }
}

TEST(Checks, ANarrowSaveOfACheckThatIsGoneOrGotItsNumberSaysSo) {
  EntryCompany company;
  Session& session = *company.session;
  const int64_t printed = company.write("Paycheck", Date(2026, 3, 1), "0SS", "40SS", Dollars(9), "Ann", "Print");
  const int64_t gone = company.write("Paycheck", Date(2026, 3, 1), "0SS", "40SS", Dollars(9), "Bob", "Print");
  Check seen = *Load_Check(session, printed), typed = seen, second = *Load_Check(session, gone);
  Rewrite_Fields(session, printed, {{"Number", "2001"}});
  Delete_Transaction(session, gone);
  EXPECT_TRUE(Enter_Check(session, seen).ok()) << "seen and left, it keeps the number that printing gave it";
  typed.Number = "1999";
  for (Check* check : {&typed, &second}) {
    const SaveResult result = Enter_Check(session, *check);
    EXPECT_TRUE(result.conflict && result.conflict->reload && !result.written);
  }
  EXPECT_EQ(Rows_Of(company.db(), printed, "Number"), "2001\n2001\n");
  Check again = *Load_Check(session, printed);
  again.Number = "2002";
  ASSERT_TRUE(Enter_Check(session, again).written);
  again.Number = "2003";
  EXPECT_TRUE(Enter_Check(session, again).written) << "one's own save is no other user's";
}

// --- loading and walking ---------------------------------------------------------------------------------

TEST(Checks, WhatWasSavedIsWhatLoads) {
  EntryCompany company;
  Check check = Simple_Check(*company.session);
  check.expenses.push_back({.Category = "Bank Service Charges", .Amount = -Dollars(4), .CatID = "46SS"});
  check.expenses.push_back({.Category = "Bank Service Charges", .Amount = Dollars(4), .CatID = "46SS"});
  const Check loaded = *Load_Check(*company.session, Saved(*company.session, check));
  EXPECT_EQ(loaded.BankID + loaded.Memo + loaded.Address, "0SSPaper1 Main St");
  EXPECT_EQ(loaded.Amount, Dollars(25));
  EXPECT_TRUE(loaded.expenses == check.expenses) << "in the order of the grid, the negative one negative";

  check.expenses.clear();
  check.Tab = LineTab::Items;
  check.items = {{.Item = "Bolt", .Quantity = 2, .Cost = Dollars(12, 50), .Amount = Dollars(25), .CatID = "3SS"}};
  check.TransNum = 0;
  const Check items = *Load_Check(*company.session, Saved(*company.session, check));
  EXPECT_EQ(items.Tab, LineTab::Items);
  EXPECT_EQ(items.items, check.items);
}

/// The numbers that a walk shows, "+" for a blank check, "!" for the sound.
std::string Walk_All(Session& session, int64_t from, bool forward) {
  std::string seen;
  for (int steps = 0; steps < 10; ++steps) {
    const Walked<Check> step = Walk_On(session, Check_Kind, from, forward);
    if (step.bounce) return seen + "!";
    if (!step.document || step.document->is_new()) return seen + "+";
    from = step.document->TransNum;
    seen += std::to_string(from) + " ";
  }
  return seen;
}

TEST(Checks, TheWalkGoesByDateWithinItsBandOfNumbers) {
  EntryCompany company;
  Session& session = *company.session;
  struct Row {
    int64_t number;
    const char* type;
    Date date;
  };
  for (const Row& row :
       {Row{2, "Check", Date(2026, 3, 1)}, Row{3, "Paycheck", Date(2026, 1, 1)}, Row{4, "Invoice", Date(2026, 2, 1)},
        Row{5, "Billcheck", Date(2026, 3, 1)}, Row{6, "Liabilitycheck", Date(2026, 2, 1)},
        Row{1001, "Check", Date(2026, 1, 15)}, Row{1005, "Check", Date(2026, 4, 1)}})
    company.write(row.type, row.date, "0SS", "40SS", Dollars(1), "", "", row.number);

  EXPECT_EQ(Walk_All(session, 3, true), "1001 6 2 5 +");  // 1005 is a thousand from 5
  EXPECT_EQ(Walk_All(session, 1005, false), "6 1001 3 !") << "2 and 5 are out of reach";
  EXPECT_EQ(Walk_All(session, 2, false), "6 1001 3 !");
  EXPECT_EQ(Walk_On(session, Check_Kind, 5, true).document->TransNum, 1006);
  EXPECT_EQ(Walk_All(session, 1006, true), "!") << "a new check has nothing after it";
  EXPECT_EQ(Walk_On(session, Check_Kind, 1006, false).document->TransNum, 1005);
  EXPECT_FALSE(Load_Check(session, 4)) << "an invoice is no check";
}

// --- deleting --------------------------------------------------------------------------------------------

TEST(Checks, DeletingFreesTheBillsItAlonePaidInOneStep) {
  EntryCompany company;
  Session& session = *company.session;
  const Date day(2026, 3, 1);
  const int64_t alone = company.write("Bill", day, "AP1", "40SS", Dollars(10));
  const int64_t shared = company.write("Bill", day, "AP1", "40SS", Dollars(20));
  const int64_t paying = company.write("Billcheck", day, "0SS", "AP1", Dollars(15), "Vendor", "5");
  const std::string paid_by = std::to_string(paying) + ";";
  const int64_t by_card = company.write("Ledger Entry", day, "12SS", "AP1", Dollars(20), "Vendor");
  company.run("UPDATE Transactions SET Paid = True, PaidBy = ? WHERE TransNum = ?", {paid_by, alone});
  company.run("UPDATE Transactions SET Paid = True, PaidBy = ? WHERE TransNum = ?",
              {std::to_string(by_card) + ";" + paid_by, shared});

  const Check check = *Load_Check(session, paying);
  company.prompts.answers = {false};
  EXPECT_FALSE(Delete_Check(session, check).deleted);
  company.prompts.answers = {true};
  const Deleted<Check> result = Delete_Check(session, check);
  ASSERT_TRUE(result.deleted);
  EXPECT_TRUE(result.show->is_new()) << "there is no earlier check";
  EXPECT_EQ(company.prompts.boxes.back().text, "Are you sure you want to delete this Check?");
  EXPECT_EQ(Rows_Of(company.db(), paying, "Account"), "");
  EXPECT_EQ(Rows_Of(company.db(), alone, "Paid PaidBy"), "False|\nFalse|\n");
  const std::string still = "True|" + std::to_string(by_card) + ";\n";
  EXPECT_EQ(Rows_Of(company.db(), shared, "Paid PaidBy"), still + still);
}

TEST(Checks, AClearedCheckIsAskedAboutTwiceAndThePreviousOneFollows) {
  EntryCompany company;
  Session& session = *company.session;
  const int64_t first = company.write("Check", Date(2026, 2, 1), "0SS", "40SS", Dollars(1));
  const int64_t second = company.write("Check", Date(2026, 3, 1), "0SS", "40SS", Dollars(1));
  company.write("Check", Date(2026, 4, 1), "0SS", "40SS", Dollars(1));
  company.run("UPDATE Transactions SET Cleared = True");
  const Check check = *Load_Check(session, second);
  company.prompts.answers = {true, false};
  EXPECT_FALSE(Delete_Check(session, check).deleted);
  EXPECT_EQ(company.prompts.boxes.back().title, "Transaction Cleared");
  EXPECT_EQ(company.prompts.boxes.back().icon, Icon::Critical);
  company.prompts.answers = {true, true};
  EXPECT_EQ(Delete_Check(session, check).show->TransNum, first);
}

// --- helps of the window ---------------------------------------------------------------------------------

TEST(Checks, TheAddressComesFromTheFirstListThatKnowsThePayee) {
  EntryCompany company;
  company.run("INSERT INTO Vendors (Name, ShippingAddress) VALUES ('Both', 'Vendor Rd'), ('Bare', NULL)");
  company.run(
      "INSERT INTO Customers (Name, ShippingAddress, BillingAddress) VALUES ('Both', 'x', 'y'), "
      "('Cust', 'Ship St', 'Bill St'), ('Bare', 'z', 'z')");
  company.run(
      "INSERT INTO Employees (SSNum, Name, AddressOne, City, State, Zip) VALUES "
      "('1', 'Ann', '2 Oak', 'Duluth', 'MN', '55801'), ('2', 'Bob', '3 Elm', 'Duluth', 'MN', NULL)");
  struct Case {
    const char* name;
    const char* address;
  };
  for (const Case& payee :
       {Case{"Both", "Vendor Rd"}, Case{"Bare", ""}, Case{"Cust", "Ship St"},
        Case{"Ann", "Ann\r\n2 Oak\r\nDuluth MN, 55801"}, Case{"Bob", ""}, Case{"", ""}, Case{"Nobody", ""}})
    EXPECT_EQ(Load_Address_Box(*company.session, payee.name), payee.address) << payee.name;
  EXPECT_EQ(Without_Last_Line_End("a\r\nb\r\n"), "a\r\nb");
}

TEST(Checks, PrintIsNoNumberToPrintUnder) {
  EXPECT_EQ(Cannot_Print({.Date = Date(2026, 1, 1)})->control, "txtNumber");
  EXPECT_FALSE(Cannot_Print({.Date = Date(2026, 1, 1), .Number = "7"}));
}

}  // namespace
}  // namespace tallymere
