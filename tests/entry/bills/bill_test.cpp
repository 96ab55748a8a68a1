#include "entry/bills/bill.h"

#include <functional>

#include "core/ledger/settlement.h"
#include "support/entry_company.h"

namespace tallymere {
namespace {

using testing::Dollars;
using testing::EntryCompany;
using testing::Rows_Of;

constexpr const char* sides = "Account Category Debit Credit Amount";

/// A bill for 25.00 of advertising, as its window would hold it.
Bill Simple_Bill(Session& session) {
  Bill bill = New_Bill(session);
  bill.DueDate = Date(2026, 7, 15);
  bill.Number = "77";
  bill.Name = "Acme Supply";
  bill.Terms = "Net 30";
  bill.Memo = "June";
  bill.Amount = Dollars(25);
  bill.expenses = {{.Category = "Advertising and Promotion",
                    .Amount = Dollars(25),
                    .Memo = "Flyers",
                    .Customer = "Jones",
                    .Class = "North",
                    .CatID = "40SS"}};
  return bill;
}

ItemLine Bolts(Money amount) {
  return {.Item = "Bolt",
          .Description = "Steel",
          .Quantity = 5.0,
          .Cost = Dollars(2),
          .Amount = amount,
          .Customer = "Jones",
          .Class = "North",
          .CatID = "3SS"};
}

int64_t Saved(Session& session, Bill bill) {
  EXPECT_TRUE(Enter_Bill(session, bill).written);
  return bill.TransNum;
}

/// A payment by check of a whole bill.
int64_t Pay(EntryCompany& company, int64_t bill, Money amount) {
  const int64_t check = company.write("Billcheck", Date(2026, 6, 16), "0SS", "AP1", amount, "Acme Supply", "Print");
  store::Transaction tx(company.db(), "Paid by a test");
  Apply(company.db(), check, bill, amount);
  tx.commit();
  return check;
}

// --- rows ------------------------------------------------------------------------------------------------

TEST(Bills, TheLinesOfBothTabsStandBehindThePayableRowAndSayTheSameOfTheBill) {
  EntryCompany company;
  Bill bill = Simple_Bill(*company.session);
  const int64_t one = Saved(*company.session, bill);
  EXPECT_EQ(Rows_Of(company.db(), one, sides), "AP1|40SS|0|25|25\n40SS|AP1|25|0|25\n");
  EXPECT_EQ(Rows_Of(company.db(), one, "Type Number Name Terms DueDate Memo SourceName Class Paid PaidBy"),
            "Bill|77|Acme Supply|Net 30|7/15/2026|June|||False|\n"
            "Bill|77|Acme Supply|Net 30|7/15/2026|Flyers|Jones|North|False|\n");
  bill = Simple_Bill(*company.session);
  bill.Amount = Dollars(41);
  bill.expenses.push_back({.Category = "x", .Amount = -Dollars(4), .CatID = "46SS"});
  bill.items = {Bolts(Dollars(10)), {.Item = "Freight", .Amount = Dollars(10), .CatID = "39SS"}};
  const int64_t both = Saved(*company.session, bill);
  EXPECT_EQ(Rows_Of(company.db(), both, sides),
            "AP1|<-Break Down->|0|41|41\n40SS|AP1|25|0|25\n46SS|AP1|0|4|4\n3SS|AP1|10|0|10\n39SS|AP1|10|0|10\n");
  EXPECT_EQ(Rows_Of(company.db(), both, "Item ItemDescription Qty SalePrice SourceName Class"),
            "|||||\n||||Jones|North\n|||||\nBolt|Steel|5|2|Jones|North\nFreight||0|||\n");
}

TEST(Bills, ACreditStandsOnTheOtherSideAndAReceiptDiffersByItsTypeAlone) {
  EntryCompany company;
  Session& session = *company.session;
  const std::string debit = "AP1|<-Break Down->|25|0|25\n3SS|AP1|0|25|25\n";
  const std::string credit = "AP1|<-Break Down->|0|25|25\n3SS|AP1|25|0|25\n";
  const struct {
    bool is_credit, is_receipt;
    const char* Type;
    std::string rows;
  } cases[] = {{false, false, "Bill", credit},
               {true, false, "Credit", debit},
               {false, true, "Item Receipt", credit},
               {true, true, "Item Receipt", debit}};
  for (const auto& each : cases) {
    Bill bill = Simple_Bill(session);
    bill.credit = each.is_credit;
    bill.receipt = each.is_receipt;
    bill.Tab = LineTab::Items;
    bill.expenses.clear();
    bill.items = {Bolts(Dollars(25))};
    const int64_t number = Saved(session, bill);
    EXPECT_EQ(Rows_Of(company.db(), number, sides), each.rows);
    const Bill again = *Load_Bill(session, number);
    EXPECT_EQ(again.Type, each.Type);
    EXPECT_EQ(again.credit, each.is_credit);
    EXPECT_EQ(again.receipt, each.is_receipt);
    EXPECT_EQ(again.Amount, Dollars(25));
    EXPECT_EQ(again.Tab, LineTab::Items);
    EXPECT_EQ(again.items, bill.items);
  }
}

TEST(Bills, AReceiptMadeABillKeepsItsNumberAndQuantities) {
  EntryCompany company;
  Session& session = *company.session;
  Bill receipt = Simple_Bill(session);
  receipt.receipt = true;
  receipt.Tab = LineTab::Items;
  receipt.expenses.clear();
  receipt.items = {Bolts(Dollars(25))};
  const int64_t number = Saved(session, receipt);
  ASSERT_EQ(Open_Receipts(session).size(), 1u);
  EXPECT_EQ(Open_Receipts(session)[0].TransNum, number);
  Bill bill = *Load_Bill(session, Open_Receipts(session)[0].TransNum);
  bill.receipt = false;
  ASSERT_TRUE(Enter_Bill(session, bill).written);
  EXPECT_EQ(bill.TransNum, number);
  EXPECT_EQ(Rows_Of(company.db(), number, "Type Account Item Qty"), "Bill|AP1||\nBill|3SS|Bolt|5\n");
  EXPECT_TRUE(Open_Receipts(session).empty());
}

TEST(Bills, APostingToAParentGoesToItsChildAndAnItemWithoutCategoryToItsOwn) {
  EntryCompany company;
  Session& session = *company.session;
  company.run(
      "INSERT INTO Items (ItemName, ItemType, ItemCat, InvAsset) VALUES ('Bolt', 'Inventory Part', '36SS', '3SS')");
  Bill bill = Simple_Bill(session);
  bill.expenses.front().CatID = "41SS";  // Automobile
  bill.items = {Bolts(Dollars(10))};
  bill.items[0].CatID = "";  // as it comes from an order
  bill.Amount = Dollars(35);
  const int64_t number = Saved(session, bill);
  const auto child = company.db().value("SELECT CatID FROM Accounts WHERE AccountName = 'Automobile - Other'").text();
  EXPECT_EQ(Rows_Of(company.db(), number, "Account"), "AP1\n" + child + "\n3SS\n");
}

// --- mistakes --------------------------------------------------------------------------------------------

TEST(Bills, TheFirstMistakeInOrderStopsTheSave) {
  EntryCompany company;
  const std::string expense = "Please Select an expense for this Transaction|No Expense|grdExpense";
  const std::string item = "Please Select an item for this Transaction|No items|grdItems";
  const struct {
    std::string said;
    std::function<void(Bill&)> spoil;
  } cases[] = {
      {"Please select a vendor for this bill.|No Vendor|cmbVendor",
       [](Bill& bill) {
         bill.Name.clear();
         bill.expenses.clear();  // found later
       }},
      {expense,
       [](Bill& bill) {
         bill.expenses.clear();
         bill.Amount = Dollars(1);
       }},
      {expense, [](Bill& bill) { bill.expenses.push_back({.Amount = Dollars(3)}); }},
      {expense, [](Bill& bill) { bill.expenses.push_back({.Category = "Nobody knows"}); }},
      {item, [](Bill& bill) { bill.Tab = LineTab::Items; }},
      {item, [](Bill& bill) { bill.items = {{.Item = "Unheard of", .Amount = Dollars(0)}}; }},
      {"Transaction does not Balance|No Balance|grdExpense", [](Bill& bill) { bill.Amount = Dollars(25, 1); }},
      {"Transaction does not Balance|No Balance|txtAmount", [](Bill& bill) { bill.Amount.reset(); }},
      {"Transaction does not Balance|No Balance|grdExpense",  // what stands on the tab behind is written too
       [](Bill& bill) { bill.items = {Bolts(Dollars(10))}; }},
      {"Cannot Assign Category to Transaction that is also the Category that you are editing.|Invalid "
       "Category|grdExpense",
       [](Bill& bill) { bill.expenses.front().CatID = "AP1"; }},
  };
  for (const auto& wrong : cases) {
    Bill bill = Simple_Bill(*company.session);
    wrong.spoil(bill);
    const SaveResult result = Enter_Bill(*company.session, bill);
    ASSERT_TRUE(result.fault) << wrong.said;
    EXPECT_EQ(result.fault->box.text + "|" + result.fault->box.title + "|" + result.fault->control, wrong.said);
    EXPECT_FALSE(result.ok() || result.written);
  }
  Bill blank = New_Bill(*company.session);
  EXPECT_TRUE(Enter_Bill(*company.session, blank).ok()) << "nothing typed is nothing to save";
  EXPECT_EQ(company.count(), 0);
}

TEST(Bills, WhatTheAmountProposedBeforeItemsWereChosenDoesNotCount) {
  EntryCompany company;
  Bill bill = Simple_Bill(*company.session);
  bill.expenses = {{.Amount = Dollars(25)}};
  bill.Tab = LineTab::Items;
  bill.items = {Bolts(Dollars(25))};
  EXPECT_EQ(Rows_Of(company.db(), Saved(*company.session, bill), "Account"), "AP1\n3SS\n");
}

// --- seen, changed, paid, deleted ------------------------------------------------------------------------

TEST(Bills, WhatIsOnlySeenIsNotWrittenAndAChangeTakenBackLeavesItAsItWas) {
  EntryCompany company;
  Session& session = *company.session;
  Bill bill = Simple_Bill(session);
  bill.Amount = Dollars(31);
  bill.expenses.push_back({.Category = "x", .Amount = -Dollars(4), .CatID = "46SS"});
  bill.items = {Bolts(Dollars(10))};
  const int64_t number = Saved(session, bill);
  company.run(
      "UPDATE Transactions SET Memo = 'hidden', PONum = 'p', Cleared = True, Taxable = True WHERE Item = 'Bolt'");
  const std::string all =
      "Account Category Debit Credit Amount Memo SourceName Class Item ItemDescription Qty SalePrice Taxable Cleared "
      "PONum Terms DueDate Address";
  const std::string before = Rows_Of(company.db(), number, all);
  const auto history = [&] { return company.db().value("SELECT COUNT(*) FROM History").integer(); };
  const int64_t saves = history();
  Bill seen = *Load_Bill(session, number);
  EXPECT_TRUE(Enter_Bill(session, seen).ok());
  EXPECT_EQ(history(), saves);
  seen.Memo = "changed";
  ASSERT_TRUE(Enter_Bill(session, seen).written);
  EXPECT_EQ(history(), saves + 1);
  seen.Memo = "June";  // a second save from the same window meets its own rows, not a conflict
  ASSERT_TRUE(Enter_Bill(session, seen).written);
  EXPECT_EQ(Rows_Of(company.db(), number, all), before);
}

TEST(Bills, APaidBillIsChangedAfterASecondQuestionAndStaysPaidByTheSame) {
  EntryCompany company;
  Session& session = *company.session;
  const int64_t number = Saved(session, Simple_Bill(session));
  const int64_t check = Pay(company, number, Dollars(25));
  Bill bill = *Load_Bill(session, number);
  ASSERT_TRUE(bill.Paid);
  bill.expenses = {{.Category = "a", .Amount = Dollars(20), .CatID = "40SS"},
                   {.Category = "b", .Amount = Dollars(5), .CatID = "46SS"}};
  company.prompts.answers = {false};
  EXPECT_FALSE(Enter_Bill(session, bill).ok());
  EXPECT_EQ(company.prompts.boxes.back().title, "Bill Paid");
  EXPECT_EQ(Rows_Of(company.db(), number, "Account"), "AP1\n40SS\n");
  company.prompts.answers = {true};
  ASSERT_TRUE(Enter_Bill(session, bill).written);
  const std::string paid = "True|" + Paid_By(check) + "\n";
  EXPECT_EQ(Rows_Of(company.db(), number, "Paid PaidBy"), paid + paid + paid);
  bill = *Load_Bill(session, number);
  bill.receipt = true;
  const SaveResult turned = Enter_Bill(session, bill);
  ASSERT_TRUE(turned.fault) << "a payment pays bills";
  EXPECT_EQ(turned.fault->control, "chkRecipt");
  bill.receipt = false;
  bill.Amount = Dollars(30);
  bill.expenses[0].Amount = Dollars(25);
  company.prompts.answers = {true};
  ASSERT_TRUE(Enter_Bill(session, bill).written);
  const std::string partly = "False|" + Paid_By(check) + "\n";
  EXPECT_EQ(Rows_Of(company.db(), number, "Paid PaidBy"), partly + partly + partly) << "5.00 are owed still";
}

TEST(Bills, DeletingAPaidBillAsksTwiceAndLeavesThePayment) {
  EntryCompany company;
  Session& session = *company.session;
  const int64_t number = Saved(session, Simple_Bill(session));
  const int64_t check = Pay(company, number, Dollars(25));
  const Bill bill = *Load_Bill(session, number);
  company.prompts.answers = {true, false};
  EXPECT_FALSE(Delete_Bill(session, bill).deleted);
  company.prompts.answers = {true, true};
  EXPECT_TRUE(Delete_Bill(session, bill).deleted);
  const auto& boxes = company.prompts.boxes;
  EXPECT_EQ(boxes[boxes.size() - 2].text, "Are you sure you want to delete this Bill?");
  EXPECT_EQ(boxes[boxes.size() - 2].title, "Confirm Delete");
  EXPECT_EQ(Rows_Of(company.db(), number, "Account"), "");
  EXPECT_EQ(Rows_Of(company.db(), check, "Account"), "0SS\nAP1\n");
  EXPECT_TRUE(Applied_By(company.db(), check).empty());
}

TEST(Bills, AnotherUsersPaymentMeanwhileIsTold) {
  EntryCompany company;
  Session& session = *company.session;
  const int64_t number = Saved(session, Simple_Bill(session));
  Bill bill = *Load_Bill(session, number);
  Pay(company, number, Dollars(25));
  Bill seen = bill;
  EXPECT_TRUE(Enter_Bill(session, seen).ok()) << "what is only seen meets nobody";
  bill.Memo = "mine";
  const SaveResult result = Enter_Bill(session, bill);
  ASSERT_TRUE(result.conflict && result.conflict->reload);
  EXPECT_EQ(Rows_Of(company.db(), number, "Memo Paid"), "June|True\nFlyers|True\n");
  EXPECT_TRUE(Delete_Bill(session, bill).conflict);
}

// --- what a vendor's new bill begins as ------------------------------------------------------------------

TEST(Bills, AnEmptyBillBeginsAsTheVendorsLastOne) {
  EntryCompany company;
  Session& session = *company.session;
  Bill old = Simple_Bill(session);
  old.Name = "O'Brien";
  Saved(session, old);
  old = Simple_Bill(session);
  old.Name = "O'Brien";
  old.Amount = Dollars(36);
  old.expenses.push_back({.Category = "x", .Amount = Dollars(1), .CatID = "46SS"});
  old.items = {Bolts(Dollars(10))};
  const int64_t last = Saved(session, old);  // of the same day: the later number
  Bill credit = Simple_Bill(session);
  credit.Name = "O'Brien";
  credit.credit = true;
  credit.Date = Date(2026, 6, 20);
  Saved(session, credit);

  Bill bill = New_Bill(session);
  bill.Name = "o'brien";
  bill.expenses = {{}};  // a line nothing was typed in
  ASSERT_TRUE(Fill_From_Last_Bill(session, bill));
  EXPECT_EQ(bill.Amount, Dollars(36));
  EXPECT_EQ(bill.expenses, Load_Bill(session, last)->expenses);
  EXPECT_EQ(bill.items, Load_Bill(session, last)->items);
  EXPECT_EQ(bill.Number + bill.Memo, "");
  const int64_t number = Saved(session, bill);
  EXPECT_EQ(Rows_Of(company.db(), number, sides), Rows_Of(company.db(), last, sides));

  Bill begun = New_Bill(session);
  begun.Name = "O'Brien";
  begun.expenses = {{.Category = "x", .CatID = "46SS"}};
  EXPECT_FALSE(Fill_From_Last_Bill(session, begun));
  EXPECT_EQ(begun.expenses.size(), 1u);
  begun.expenses.clear();
  begun.Amount = Dollars(9);
  EXPECT_FALSE(Fill_From_Last_Bill(session, begun));
  EXPECT_EQ(begun.Amount, Dollars(9));
}

TEST(Bills, ANumberTheVendorUsedAndAVendorNobodyKnowsAreNoticed) {
  EntryCompany company;
  Session& session = *company.session;
  company.run("INSERT INTO Vendors (Name) VALUES ('Acme Supply')");
  const int64_t number = Saved(session, Simple_Bill(session));
  const Bill again = Simple_Bill(session);
  EXPECT_EQ(Bill_Notice(session, again), "Acme Supply has a bill 77 already, of 6/15/2026 for $25.00.");
  EXPECT_EQ(Bill_Notice(session, *Load_Bill(session, number)), "") << "not of itself";
  Bill other = Simple_Bill(session);
  other.Name = "Nobody";
  EXPECT_EQ(Bill_Notice(session, other), "Nobody is not in the list of vendors.");
}

TEST(Bills, OrdersItTakesUpCloseWithItAndOpenAgainWhenItGoes) {
  EntryCompany company;
  Session& session = *company.session;
  company.run("INSERT INTO Items (ItemName, ItemType, InvAsset) VALUES ('Bolt', 'Inventory Part', '3SS')");
  PaperDocument order = New_Paper(session, PaperKind::PO);
  order.Party = "Acme Supply";
  order.lines = {{.Item = "Bolt", .Qty = 5.0, .Rate = Dollars(2), .Amount = Dollars(10)}};
  ASSERT_TRUE(Enter_PO(session, PaperKind::PO, order).written);
  const auto open = [&] { return Open_Orders(session, "Acme Supply").size(); };
  Bill mine = Simple_Bill(session), theirs = mine;
  for (Bill* bill : {&mine, &theirs}) Take_Up_Orders(session, *bill, {order.Index});
  EXPECT_EQ(mine.Amount, Dollars(35));
  EXPECT_EQ(mine.items.at(0).CatID, "3SS");
  EXPECT_EQ(open(), 1u) << "nothing is saved yet";
  ASSERT_TRUE(Enter_Bill(session, mine).written);
  EXPECT_EQ(open(), 0u);
  const SaveResult late = Enter_Bill(session, theirs);
  ASSERT_TRUE(late.fault) << "who took the same order a moment later is told";
  EXPECT_EQ(late.fault->control, "cmbVendor");
  Delete_Bill(session, *Load_Bill(session, mine.TransNum));
  EXPECT_EQ(open(), 1u);
}

}  // namespace
}  // namespace tallymere
