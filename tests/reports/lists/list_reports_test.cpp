#include "support/report_books.h"

namespace tallymere {
namespace {

using Strings = std::vector<std::string>;

TEST(ListReports, CategoriesAsTheyStandToday) {
  testing::Books books;
  books.add("Rent", "Expense");
  books.add("Bank", "Bank");
  books.run("UPDATE Accounts SET AccountNum = '1010', Balance = ? WHERE CatID = 'Bank'", {Money::from_units(123456)});
  ReportRequest request = Default_Request(*books.session, "ListCat");
  ReportTable table = Build_Report(*books.session, request);
  EXPECT_EQ(table.heading.period, "Monday, June 15, 2026");
  EXPECT_EQ(testing::Lines(table), (Strings{"Bank|Bank|1010|12.3456", "Rent|Expense"}));
  EXPECT_EQ(table.for_the_eye(0, 4), "12.35");
  EXPECT_EQ(table.columns[3].caption, "Acct #");

  request.options["fields"] = "Balance,";
  EXPECT_EQ(testing::Lines(Build_Report(*books.session, request)), (Strings{"Bank|12.3456", "Rent"}));
}

Strings Captions(const ReportTable& table) {
  Strings captions;
  for (const ReportColumn& column : table.columns) captions.push_back(column.caption);
  captions.erase(captions.begin());
  return captions;
}

TEST(ListReports, ColumnsAreCaptionedInWordsAndCategoriesShowTheirNames) {
  testing::Books books;
  books.run("INSERT INTO Accounts (CatID, AccountName, AccountType) VALUES ('7SS', 'Wages', 'Expense')");
  books.run("DELETE FROM PayrollItems");
  books.run(
      "INSERT INTO PayrollItems (Name, Type, DefaultRate, DefaultLimit, ExpenseAcct, LiabilityAcct)"
      " VALUES ('Hourly', 'Wage', '12.50', ?, '7SS', 'gone')",
      {Money::dollars(100)});
  books.run(
      "INSERT INTO RepeatTrans (Name, Type, SourceCat, Amount, Frequency, NextDate)"
      " VALUES ('Rent', 'Check', '7SS', ?, 'Monthly', ?)",
      {Money::dollars(850), Date(2026, 7, 1)});
  books.run(
      "INSERT INTO Items (ItemName, ItemType, Description, PriceRate, StockQty, InvVendor)"
      " VALUES ('Rake', 'Inventory Part', 'Leaf rake', ?, 2.5, 'Toolworks')",
      {Money::from_units(65)});
  books.run(
      "INSERT INTO Customers (Name, Phone, AltPhone, Contact) VALUES ('Zoe', '1', '2', 'Z'), ('abel', '3', '', '')");
  const auto report = [&](const char* key) {
    return Build_Report(*books.session, Default_Request(*books.session, key));
  };

  ReportTable table = report("ListPayItem");
  EXPECT_EQ(Captions(table), (Strings{"Item", "Type", "Amount", "Limit", "Expense Category", "Liability Category"}));
  EXPECT_EQ(testing::Lines(table), (Strings{"Hourly|Wage|12.50|100|Wages"}));
  table = report("ListMemTran");
  EXPECT_EQ(Captions(table), (Strings{"Transaction", "Type", "Source Account", "Amount", "Frequency", "Next Date"}));
  EXPECT_EQ(testing::Lines(table), (Strings{"Rent|Check|Wages|850|Monthly|7/1/2026"}));
  table = report("ListItem");
  EXPECT_EQ(Captions(table), (Strings{"Item", "Type", "Description", "Price", "Stock Qty", "Prefered Vendor"}));
  EXPECT_EQ(testing::Lines(table), (Strings{"Rake|Inventory Part|Leaf rake|0.0065|2.5|Toolworks"}));
  EXPECT_EQ(table.for_the_eye(0, 4), "0.0065");
  table = report("ListCus");
  EXPECT_EQ(Captions(table), (Strings{"Customer", "Phone", "Alt Phone", "Contact"}));
  EXPECT_EQ(testing::Lines(table), (Strings{"abel|3", "Zoe|1|2|Z"}));
  EXPECT_EQ(Captions(report("ListVen")), (Strings{"Vendor", "Phone", "Alt Phone", "Contact"}));
  EXPECT_EQ(report("ListVen").rows(), 0) << "an empty list is the head alone";
}

TEST(ListReports, OnlyTheAdministratorSeesWholeSocialSecurityNumbers) {
  testing::Books books;
  books.run(
      "INSERT INTO Employees (SSNum, Name, FedStatus, FedAllow, StateWithHolding)"
      " VALUES ('123-45-6789', 'Ann', 'Single', 2, ?), ('12', 'Bob', 'Married', NULL, NULL)",
      {Money::dollars(5)});
  books.session->MultiUser = true;
  const auto seen_by = [&](const char* user) {
    books.session->CurrentUser = user;
    ReportRequest request = Default_Request(*books.session, "ListEmp");
    request.options["fields"] = "SS #,";
    return testing::Lines(Build_Report(*books.session, request));
  };
  EXPECT_EQ(seen_by("Admin"), (Strings{"Ann|123-45-6789", "Bob|12"}));
  EXPECT_EQ(seen_by("Karen"), (Strings{"Ann|***-**-6789", "Bob|**"}));
  books.session->MultiUser = false;
  EXPECT_EQ(seen_by(""), (Strings{"Ann|123-45-6789", "Bob|12"}));
  EXPECT_EQ(Captions(Build_Report(*books.session, Default_Request(*books.session, "ListEmp"))),
            (Strings{"Name", "Phone", "Alt Phone", "SS #", "Federal Filing Status", "Fed Allowances", "Fed Extra Amt",
                     "State Filing Status", "State Allowances", "State Extra Amt"}));
}

}  // namespace
}  // namespace tallymere
