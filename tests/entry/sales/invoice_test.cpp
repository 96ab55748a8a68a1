#include "entry/sales/invoice.h"

#include "core/ledger/verify.h"
#include "demo/demo.h"
#include "entry/sales/inventory_posting.h"
#include "support/entry_company.h"

namespace tallymere {
namespace {

using testing::Dollars;
using testing::EntryCompany;
using testing::Rows_Of;

constexpr const char* sides = "Account Category Debit Credit Amount";

/// A company that sells work and bolts, and taxes the bolts. Ten bolts were bought at 2.00.
struct Shop : EntryCompany {
  Shop() : EntryCompany() {
    run("INSERT INTO Customers (Name, BillingAddress, ShippingAddress) VALUES ('Jones', ?, 'Dock 4')",
        {"Jones\r\n1 Main St"});
    item("Work", "Service", "29SS", Dollars(10), false);
    item("Bolt", "Inventory Part", "30SS", Dollars(5), true);
    run("UPDATE Items SET COGScat = '35SS', InvAsset = '3SS', Cost = ? WHERE ItemName = 'Bolt'", {Dollars(9)});
    item("Sum", "Subtotal", "", {}, false);
    item("Tax", "Sales Tax", "20SS", Money::from_units(650), false);
    item("Tenth off", "Discount", "31SS", Money::from_units(1000), true);
    item("Rebate", "Discount", "31SS", Dollars(3), false);
    item("Paid", "Payment", "", {}, false);
    run("UPDATE Items SET PayTo = 'UF1' WHERE ItemName = 'Paid'");
    item("Kit", "Group", "", {}, false);
    run("INSERT INTO ItemGroups (GroupName, Item, Description, Qty) VALUES ('Kit', 'Work', 'Fitting', 2),"
        " ('Kit', 'Bolt', NULL, 6), ('Kit', 'Gone', NULL, 1), ('Kit', 'Sum', NULL, NULL)");
    for (const char* id : {"3SS", "20SS", "29SS", "30SS", "31SS", "35SS"})
      if (db().value("SELECT 1 FROM Accounts WHERE CatID = ?", {id}).is_null()) add_category(id, "Income");
    Transaction_Writer bill(*session, {.Type = "Bill", .Date = Date(2026, 1, 5)});
    bill.add({.Account = "3SS", .Debit = Dollars(20), .Amount = Dollars(20), .Item = "Bolt", .Qty = 10});
    bill.add({.Account = "AP1", .Credit = Dollars(20), .Amount = Dollars(20)});
    bill.commit();
  }
  void item(const char* name, const char* type, const char* category, std::optional<Money> price, bool taxable) {
    run("INSERT INTO Items (ItemName, ItemType, ItemCat, Description, PriceRate, InvTaxable) VALUES (?, ?, ?, ?, ?, ?)",
        {name, type, category, std::string("The ") + name, price, taxable});
  }
  /// A line as it stands once its item was chosen and its quantity typed.
  ItemLine line(const char* item, std::optional<double> quantity = {}) {
    ItemLine line{.Quantity = quantity};
    return Chosen_Line(Item_Facts(*session, item), line);
  }
  Invoice invoice(std::vector<ItemLine> lines) {
    Invoice made = New_Invoice(*session);
    made.Name = "Jones";
    SaleItems items(*session);
    Reckon_Lines(items, lines);
    made.lines = std::move(lines);
    return made;
  }
  int64_t saved(std::vector<ItemLine> lines) {
    Invoice made = invoice(std::move(lines));
    const SaveResult result = Enter_Invoice(*session, made);
    EXPECT_TRUE(result.written) << (result.fault ? result.fault->box.text + result.fault->box.detail : "");
    return made.TransNum;
  }
  void rule(const char* State) {
    run("UPDATE GeneralPrefs SET State = ? WHERE Preference = 'InventoryPosting'", {State});
  }
  std::string sides_of(int64_t number) { return Rows_Of(db(), number, sides); }
};

std::string Amounts(const std::vector<ItemLine>& lines) {
  std::string text;
  for (const ItemLine& line : lines) text += line.Item + "=" + (line.Amount ? line.Amount->to_text() : "") + " ";
  return text;
}

TEST(SaleLines, SubtotalsTaxesAndDiscountsSeeAllLinesAboveThem) {
  Shop shop;
  SaleItems items(*shop.session);
  std::vector<ItemLine> lines = {shop.line("Bolt", 2), shop.line("Work"),      shop.line("Sum"),
                                 shop.line("Tax"),     shop.line("Tenth off"), shop.line("Rebate"),
                                 shop.line("Sum"),     shop.line("Paid"),      shop.line("Tax")};
  lines[7].Amount = Dollars(4);
  Lower_Total("Payment", lines[7]);
  Reckon_Lines(items, lines);
  // The tenth is of 20.65, and as it is taxable the second tax is on 10.00 less 2.07.
  EXPECT_EQ(Amounts(lines), "Bolt=10 Work=10 Sum=20 Tax=0.65 Tenth off=-2.07 Rebate=-3 Sum=15.58 Paid=-4 Tax=0.52 ");
  EXPECT_EQ(Total_Of(items, lines), Dollars(12, 10));
  EXPECT_EQ(lines[7].CatID, "UF1");
  for (const auto& [taxed, tax] :
       {std::pair(Dollars(10), "0.65"), {Dollars(10, 10), "0.66"}, {-Dollars(10, 10), "-0.66"}}) {
    std::vector<ItemLine> two = {{.Item = "Bolt", .Amount = taxed, .Tax = true}, shop.line("Tax")};
    Reckon_Lines(items, two);
    EXPECT_EQ(two[1].Amount->to_text(), tax);
  }
}

TEST(SaleLines, ARateOfManyDecimalsTaxesExactlyNowAndAtEveryLaterEdit) {
  Shop shop;
  shop.run("UPDATE Items SET PriceRate = ?, ExactRate = 0.06875 WHERE ItemName = 'Tax'", {Money::from_units(688)});
  const int64_t number = shop.saved(
      {{.Item = "Bolt", .Quantity = 1, .Amount = Dollars(1000), .Tax = true, .CatID = "3SS"}, shop.line("Tax")});
  shop.run("UPDATE Items SET PriceRate = ?, ExactRate = NULL WHERE ItemName = 'Tax'", {Money::from_units(700)});
  Invoice again = *Load_Invoice(*shop.session, number);
  EXPECT_EQ(Amounts(again.lines), "Bolt=1000 Tax=68.75 ");
  again.lines[0].Amount = Dollars(2000);
  SaleItems items(*shop.session);
  Reckon_Lines(items, again.lines);
  EXPECT_EQ(Amounts(again.lines), "Bolt=2000 Tax=137.5 ") << "at the rate of its day";
}

TEST(SaleLines, AGroupAddsItsMembersWithTheirPricesTaxAndCategories) {
  Shop shop;
  SaleItems items(*shop.session);
  const std::vector<ItemLine> members = Group_Members(*shop.session, items, "Kit");
  EXPECT_EQ(Amounts(members), "Work=20 Bolt=30 Sum= ") << "what is in no list is left out";
  EXPECT_EQ(members[0].Description + ", " + members[1].Description, "Fitting, The Bolt");
  EXPECT_TRUE(members[1].Tax);
  EXPECT_EQ(members[0].CatID + members[1].CatID, "29SS3SS");
}

TEST(Invoices, TheRowsOfBothRulesOfInventory) {
  Shop shop;
  const auto lines = [&] {
    return std::vector{shop.line("Work", 1.5), shop.line("Bolt", 4), shop.line("Sum"), shop.line("Tax"),
                       shop.line("Rebate")};
  };
  const std::string head = "AR1|<-Break Down->|33.3|0|33.3\n29SS|AR1|0|15|15\n",
                    tail = "|AR1|0|0|0\n20SS|AR1|0|1.3|1.3\n31SS|AR1|3|0|3\n";
  const int64_t cost = shop.saved(lines());
  EXPECT_EQ(shop.sides_of(cost), head + "3SS|AR1|0|8|20\n35SS|AR1|8|0|20\n30SS|AR1|0|20|20\n" + tail);
  EXPECT_EQ(Rows_Of(shop.db(), cost, "Item Qty SalePrice SourceName Taxable"),
            "|||Product|False\nWork|-1.5|10|Product|False\nBolt|-4|5|Product|True\nBolt|-4|5|Inventory Part|True\n"
            "Bolt|-4|5|Inventory Part|True\nSum||0|Product|False\nTax||0.065|Product|False\nRebate||3|Product|False\n");
  shop.rule("Sale");
  const int64_t sale = shop.saved(lines());
  EXPECT_EQ(shop.sides_of(sale), head + "3SS|AR1|0|20|20\n35SS|AR1|0|20|20\n30SS|AR1|0|20|20\n" + tail);
  // The letter does not balance; verify lets exactly this pass.
  const auto off_balance = [&] {
    const auto findings = Verify_Company(shop.db());
    return std::ranges::count(findings, "balance", &Finding::check);
  };
  EXPECT_EQ(off_balance(), 0);
  EXPECT_NE(Sold_Parts_Note(shop.db()).find("debits by 40."), std::string::npos);
  shop.run("UPDATE Transactions SET Credit = ? WHERE TransNum = ? AND Account = '30SS'", {Dollars(21), sale});
  EXPECT_EQ(off_balance(), 1);
  // What came back stands on the other sides.
  shop.rule("Cost");
  const int64_t back = shop.saved({shop.line("Bolt", -1)});
  EXPECT_EQ(shop.sides_of(back), "AR1|<-Break Down->|0|5|5\n3SS|AR1|2|0|5\n35SS|AR1|0|2|5\n30SS|AR1|5|0|5\n");
}

/// What a part cost stays while its quantity does, and so does the rule it was posted by.
TEST(Invoices, ALaterEditKeepsWhatItCostUnlessTheQuantityChanges) {
  Shop shop;
  const int64_t number = shop.saved({shop.line("Bolt", 4)});
  shop.run("UPDATE Transactions SET Debit = ? WHERE Account = '3SS' AND Type = 'Bill'", {Dollars(50)});
  shop.rule("Sale");
  Invoice invoice = *Load_Invoice(*shop.session, number);
  invoice.lines[0].Amount = Dollars(19);
  invoice.Terms = "Net 30";
  ASSERT_TRUE(Enter_Invoice(*shop.session, invoice).written);
  EXPECT_EQ(shop.sides_of(number), "AR1|<-Break Down->|19|0|19\n3SS|AR1|0|8|19\n35SS|AR1|8|0|19\n30SS|AR1|0|19|19\n");
  EXPECT_EQ(Rows_Of(shop.db(), number, "Terms"), "Net 30\nNet 30\nNet 30\nNet 30\n");
  invoice = *Load_Invoice(*shop.session, number);
  invoice.lines[0].Quantity = 1;
  ASSERT_TRUE(Enter_Invoice(*shop.session, invoice).written);
  EXPECT_EQ(shop.sides_of(number), "AR1|<-Break Down->|19|0|19\n3SS|AR1|0|5|19\n35SS|AR1|5|0|19\n30SS|AR1|0|19|19\n");
}

TEST(Invoices, ShownAndSavedAsTheyAreNothingChanges) {
  Shop shop;
  const auto everything = [](store::Database& db, int64_t number) {
    return Rows_Of(
        db, number,
        "Type Date Number Name Address ShippingAddress Memo Account Category Debit Credit Amount Class Cleared "
        "Paid PaidBy AmountReceived SourceName Item ItemDescription Qty SalePrice Taxable Terms DueDate PONum "
        "ShipDate FOB Via Rep PayMethod");
  };
  shop.run("UPDATE Items SET InvAsset = '29SS' WHERE ItemName = 'Bolt'");
  const int64_t odd =
      shop.saved({shop.line("Bolt", 3), shop.line("Work"), shop.line("Tax"), shop.line("Kit"), shop.line("Bolt")});
  shop.run("UPDATE Items SET InvAsset = '3SS', ItemCat = '' WHERE ItemName = 'Bolt'");  // both moved since
  shop.run("DELETE FROM Items WHERE ItemName = 'Work'");
  shop.run("UPDATE Transactions SET Memo = 'its own', Class = 'North', Qty = 0 WHERE TransNum = ? AND Item = 'Tax'",
           {odd});
  shop.run(
      "INSERT INTO Transactions (TransNum, Type, Date, Name, Account, Category, Debit, Credit, Amount, Memo, SourceName) VALUES"
      " (?, 'Invoice', '2026-06-15', 'Jones', '29SS', 'AR1', 0, ?, ?, 'by a register', 'Product')",
      {odd, Dollars(2), Dollars(2)});
  shop.run("UPDATE Transactions SET Debit = Debit + ?, Amount = Amount + ? WHERE TransNum = ? AND Account = 'AR1'",
           {Dollars(2), Dollars(2), odd});
  const std::string before = everything(shop.db(), odd);
  Invoice invoice = *Load_Invoice(*shop.session, odd);
  EXPECT_EQ(invoice.lines.size(), 6u) << "a part's three rows are one line, also when its category moved";
  EXPECT_EQ(invoice.Billto, "Jones\r\n1 Main St");
  ASSERT_TRUE(Enter_Invoice(*shop.session, invoice).written);
  EXPECT_EQ(everything(shop.db(), odd), before);

  // And so for all invoices and credits of a year's business.
  testing::TestCompany demo;
  Write_Demo_Company(*demo.session, {.years = 1, .transactions = 500, .today = Date(2026, 6, 15)});
  std::vector<int64_t> numbers;
  demo.db().each("SELECT DISTINCT TransNum FROM Transactions WHERE Type = 'Invoice'", {},
                 [&](const store::Row& row) { numbers.push_back(row.integer(0)); });
  ASSERT_GT(numbers.size(), 50u);
  for (const int64_t number : numbers) {
    const std::string stored = everything(demo.db(), number);
    Invoice shown = *Load_Invoice(*demo.session, number);
    ASSERT_TRUE(Enter_Invoice(*demo.session, shown).written) << number;
    ASSERT_EQ(everything(demo.db(), number), stored);
  }
}

TEST(Invoices, WhatWouldBeLostOrPostedNowhereIsRefused) {
  Shop shop;
  Session& session = *shop.session;
  const auto said = [&](Invoice invoice) {
    const SaveResult result = Enter_Invoice(session, invoice);
    EXPECT_FALSE(result.written);
    return result.fault ? result.fault->box.title + ": " + result.fault->box.text : "nothing";
  };
  const std::string no_items = "No Items: Please Select a item for this Invoice.";
  Invoice nobody = shop.invoice({shop.line("Work")});
  nobody.Name = "";
  EXPECT_EQ(said(nobody), "No Customer: Please select the customer this invoice is for.");
  nobody.lines.clear();
  EXPECT_EQ(said(nobody), "nothing");
  EXPECT_EQ(said(shop.invoice({})), no_items);
  EXPECT_EQ(said(shop.invoice({shop.line("Work"), {.Amount = Dollars(5)}})), no_items);
  EXPECT_EQ(said(shop.invoice({{.Item = "Wrok", .Amount = Dollars(5)}})), no_items);
  shop.run("UPDATE Items SET ItemCat = NULL WHERE ItemName IN ('Work', 'Bolt')");
  EXPECT_EQ(said(shop.invoice({shop.line("Work")})).substr(0, 11), "No Category");
  EXPECT_EQ(said(shop.invoice({shop.line("Bolt", 1)})).substr(0, 11), "No Category");
  EXPECT_EQ(shop.count(), 2);

  shop.run("UPDATE Items SET ItemCat = '30SS', PriceRate = NULL WHERE ItemName = 'Bolt'");
  shop.prompts.boxes.clear();
  const int64_t number = shop.saved({shop.line("Bolt", 1)});
  ASSERT_EQ(shop.prompts.boxes.size(), 1u);
  EXPECT_EQ(shop.prompts.boxes[0].text, "WARNING! Item \"Bolt\" does not have a value!");
  EXPECT_EQ(Rows_Of(shop.db(), number, "Account Debit Credit Amount"),
            "AR1|0|0|0\n3SS|0|2|0\n35SS|2|0|0\n30SS|0|0|0\n");
}

TEST(Invoices, TwoUsersNeverMergeAndTypedAddressesStay) {
  Shop shop;
  Invoice first = shop.invoice({shop.line("Work")}), second = shop.invoice({shop.line("Work", 2)});
  second.Billto = "Elsewhere";
  second.ShipTo = "Dock 4\r\n";
  ASSERT_TRUE(Enter_Invoice(*shop.session, first).written);
  ASSERT_TRUE(Enter_Invoice(*shop.session, second).written);
  EXPECT_EQ(second.TransNum, first.TransNum + 1);
  EXPECT_EQ(Rows_Of(shop.db(), second.TransNum, "Address ShippingAddress"), "Elsewhere|\nElsewhere|\n");
  shop.run("UPDATE Customers SET BillingAddress = 'Moved', ShippingAddress = 'Dock 5'");
  const Invoice again = *Load_Invoice(*shop.session, second.TransNum);
  EXPECT_EQ(again.Billto + ", " + again.ShipTo, "Elsewhere, Dock 5");

  Invoice mine = *Load_Invoice(*shop.session, first.TransNum);
  shop.run("UPDATE Transactions SET Memo = 'theirs' WHERE TransNum = ?", {first.TransNum});
  mine.Message = "mine";
  const SaveResult result = Enter_Invoice(*shop.session, mine);
  ASSERT_TRUE(result.conflict);
  EXPECT_TRUE(result.conflict->reload);
  EXPECT_EQ(Rows_Of(shop.db(), first.TransNum, "Memo"), "theirs\ntheirs\n");
}

TEST(Invoices, APaperIsTakenOnceAndGivenBackWhenItsInvoiceGoes) {
  Shop shop;
  Session& session = *shop.session;
  shop.run("INSERT INTO PSlips (\"Index\", Open, Vendor, PONumber, Total) VALUES (3, True, 'Jones', 'S3', ?)",
           {Dollars(12)});
  shop.run(
      "INSERT INTO PSlipItems (POIndex, Item, Description, Qty, Rate, Amount) VALUES (3, 'Bolt', 'Long bolt', 2, ?, ?)",
      {Dollars(6), Dollars(12)});
  ASSERT_EQ(Open_Papers(session, Slip_Paper, "Jones").size(), 1u);
  EXPECT_TRUE(Open_Papers(session, Slip_Paper, "").empty());
  SaleItems items(session);
  const std::vector<ItemLine> lines = Paper_Lines(session, items, Slip_Paper, 3);
  ASSERT_EQ(Amounts(lines), "Bolt=12 ");
  EXPECT_EQ(lines[0].CatID, "3SS") << "a part posts to its asset";
  EXPECT_TRUE(lines[0].Tax);
  Invoice mine = shop.invoice(lines), theirs = shop.invoice(lines);
  mine.taken = theirs.taken = {{&Slip_Paper, 3}};
  EXPECT_EQ(Open_Papers(session, Slip_Paper, "Jones").size(), 1u) << "pulled and not saved: open";
  ASSERT_TRUE(Enter_Invoice(session, theirs).written);
  EXPECT_TRUE(Open_Papers(session, Slip_Paper, "Jones").empty());
  const int64_t rows = shop.count();
  EXPECT_TRUE(Enter_Invoice(session, mine).fault);
  EXPECT_EQ(shop.count(), rows);
  ASSERT_TRUE(Enter_Invoice(session, theirs).written) << "saved again from the same window";
  Delete_Transaction(session, theirs.TransNum);
  EXPECT_EQ(Open_Papers(session, Slip_Paper, "Jones").size(), 1u);
  EXPECT_TRUE(Enter_Invoice(session, mine).written);
}

TEST(Invoices, DeletingAPaidOneAsksTwice) {
  Shop shop;
  const int64_t number = shop.saved({shop.line("Work")});
  shop.run("UPDATE Transactions SET Paid = True, PaidBy = '9;' WHERE TransNum = ?", {number});
  shop.prompts.boxes.clear();
  shop.prompts.answers = {true, false};
  EXPECT_FALSE(Delete_Invoice(*shop.session, *Load_Invoice(*shop.session, number)).deleted);
  ASSERT_EQ(shop.prompts.boxes.size(), 2u);
  EXPECT_EQ(shop.prompts.boxes[1].text,
            "This Invoice has already received a payment. Are you sure you want to delete this Invoice?");
  shop.prompts.answers = {true, true};
  EXPECT_TRUE(Delete_Invoice(*shop.session, *Load_Invoice(*shop.session, number)).deleted);
  EXPECT_EQ(shop.sides_of(number), "");
}

}  // namespace
}  // namespace tallymere
