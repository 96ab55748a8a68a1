#include "lists/parties/customers.h"

#include <gtest/gtest.h>

#include "core/store/recordset.h"
#include "lists/named_rows.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;

struct Customers : ::testing::Test {
  TestCompany company;
  Session& session = *company.session;

  void add(const char* name, const char* parent = "", bool dormant = false) {
    company.run("INSERT INTO Customers (Name, ParentName, Dormant) VALUES (?, ?, ?)", {name, parent, dormant});
  }
  std::string list(bool dormant) {
    std::string names;
    for (const CustomerRow& row : Make_Customer_List(session, dormant))
      names += std::to_string(row.level) + row.Name + ";";
    return names;
  }
  std::string value(const char* sql) { return company.db().value(sql).text(); }
};

TEST_F(Customers, TheListShowsEveryCustomerOnceAndHidesWhatHangsBelowADormantOne) {
  add("O'Brien");
  add("Garage", "o'brien", true);  // a dormant job shows
  add("Roof", "Garage");
  add("Baker", "", true);
  add("Kitchen", "Baker");
  add("Orphan", "gone");
  add("C1", "C2");
  add("C2", "c1");
  add("C3", "C2");
  EXPECT_EQ(list(false), "0C1;1C2;2C3;0O'Brien;1Garage;2Roof;0Orphan;");
  EXPECT_EQ(list(true), "0Baker;1Kitchen;0C1;1C2;2C3;0O'Brien;1Garage;2Roof;0Orphan;");
  EXPECT_EQ(Customers_To_Be_Job_Of(session, "o'brien"),
            (std::vector<std::string>{"Baker", "C1", "C2", "C3", "Kitchen", "Orphan"}));
}

TEST_F(Customers, SavingWritesTheFormKeepsTheBalanceAndAnUntouchedRow) {
  ListRow fresh(session, Customer_Rows);
  CustomerForm form{.Name = "  Ann Lee ", .Phone = "555", .RepName = "Jo", .BillingAddress = "1 Way\r\nTown"};
  ASSERT_TRUE(Save_Customer(session, fresh, form).ok());
  EXPECT_EQ(value("SELECT Name || Phone || BillingAddress || Balance || RepName FROM Customers"),
            "Ann Lee5551 Way\r\nTown0Jo");
  company.run("UPDATE Customers SET Balance = 770000");
  ListRow row(session, Customer_Rows, "ann lee");
  form = Customer_Form(row);
  EXPECT_EQ(form.Name, "Ann Lee");
  const auto actions = [&] { return value("SELECT COUNT(*) FROM History"); };
  const std::string before = actions();
  ASSERT_TRUE(Save_Customer(session, row, form).ok());
  EXPECT_EQ(actions(), before) << "viewing and saving is no action";
  form.Notes = "Rings twice";
  ASSERT_TRUE(Save_Customer(session, row, form).ok());
  EXPECT_EQ(company.db().value("SELECT Balance FROM Customers").money(), Money::dollars(77));
}

TEST_F(Customers, NamesAreUniqueParentsAreNoJobsOfTheirs) {
  add("Ann");
  add("House", "Ann");
  ListRow fresh(session, Customer_Rows), ann(session, Customer_Rows, "Ann");
  EXPECT_EQ(Save_Customer(session, fresh, {.Name = " "}).fault->box.text, "Please enter a Name");
  EXPECT_EQ(Save_Customer(session, fresh, {.Name = "ANN"}).fault->box.title, "Name in Use");
  EXPECT_EQ(Save_Customer(session, ann, {.Name = "Ann", .chkSubJob = true, .ParentName = "house"}).fault->control,
            "cmbCustomers");
  EXPECT_EQ(value("SELECT ParentName FROM Customers WHERE Name = 'Ann'"), "");
}

TEST_F(Customers, ARenameIsOneActionAndAMergeIsAsked) {
  add("Ann");
  add("House", "Ann");
  add("Bob");
  company.run("INSERT INTO Transactions (TransNum, Type, Name) VALUES (1, 'Invoice', 'Ann')");
  ListRow ann(session, Customer_Rows, "Ann");
  CustomerForm form = Customer_Form(ann);
  form.Name = "Bob";
  company.prompts.answers = {false};
  EXPECT_TRUE(Save_Customer(session, ann, form).stayed);
  form.Name = "Ann Lee";
  form.carry = Carry::Lists;
  ASSERT_TRUE(Save_Customer(session, ann, form).ok());
  EXPECT_EQ(value("SELECT (SELECT Name FROM Transactions) || ParentName FROM Customers WHERE Name = 'House'"),
            "AnnAnn Lee");

  company.run("UPDATE Transactions SET Name = 'Ann Lee'");
  ListRow lee(session, Customer_Rows, "Ann Lee");
  form = Customer_Form(lee);
  form.Name = "house";  // her own job
  company.prompts.answers = {true};
  EXPECT_EQ(Save_Customer(session, lee, form).fault->box.title, "Merge Names");
  form.Name = "bob";
  company.prompts.answers = {true};
  ASSERT_TRUE(Save_Customer(session, lee, form).ok());
  EXPECT_EQ(value("SELECT GROUP_CONCAT(Name) FROM (SELECT Name FROM Customers ORDER BY Name)"), "Bob,House");
  EXPECT_EQ(value("SELECT (SELECT Name FROM Transactions) || ParentName FROM Customers WHERE Name = 'House'"),
            "BobBob");
}

TEST_F(Customers, TwoUsersOnOneCustomer) {
  add("Ann");
  ListRow mine(session, Customer_Rows, "Ann");
  const auto colleague = company.another_user();
  ListRow theirs(*colleague, Customer_Rows, "Ann");
  ASSERT_TRUE(Save_Customer(*colleague, theirs, {.Name = "Ann", .Phone = "theirs"}).ok());
  const RowSave refused = Save_Customer(session, mine, {.Name = "Anna", .Phone = "mine"});
  ASSERT_TRUE(refused.conflict);
  EXPECT_TRUE(refused.conflict->reload);
  EXPECT_EQ(value("SELECT Name || Phone FROM Customers"), "Anntheirs");
}

TEST_F(Customers, OneThatIsUsedMayBecomeDormantInsteadOfGoing) {
  add("Ann");
  company.run("INSERT INTO Transactions (TransNum, Type, Name) VALUES (1, 'Invoice', 'Ann')");
  const auto remove = [&] { return Delete_Named_Row(session, Customer_Rows, NameList::Customers, "Ann"); };
  company.prompts.answers = {false};
  EXPECT_FALSE(remove());
  EXPECT_EQ(company.prompts.boxes.back().text, "Are you sure you want to delete \"Ann\"");
  company.prompts.answers = {true, true};
  EXPECT_TRUE(remove());
  EXPECT_EQ(company.prompts.boxes.back().text,
            "\"Ann\" cannot be deleted, for it is used in 1 transaction. Do you want to make it dormant?");
  EXPECT_EQ(value("SELECT COUNT(*) FROM Customers WHERE Dormant = True"), "1");
  company.prompts.boxes.clear();
  EXPECT_FALSE(remove());
  EXPECT_EQ(company.prompts.boxes.size(), 2u) << "the question and the reason, nothing more to offer";
  company.run("DELETE FROM Transactions");
  EXPECT_TRUE(remove());
  EXPECT_EQ(value("SELECT COUNT(*) FROM Customers"), "0");
}

}  // namespace
}  // namespace tallymere
