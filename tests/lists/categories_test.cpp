#include "lists/categories.h"

#include <functional>

#include "core/store/recordset.h"
#include "core/values/text.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;

std::string Names(const std::vector<AccountRow>& rows, const std::string& type) {
  std::string names;
  for (const AccountRow& row : rows)
    if (row.Type == type) names += row.Name + ";";
  return names;
}

TEST(Categories, TheListIsATreeByTypeAndHidesWhatHangsBelowDormantParents) {
  TestCompany company;
  company.run("DELETE FROM Accounts");
  company.add_category("b", "Bank");
  company.add_category("a", "Bank");
  company.add_category("a1", "Bank", "a");
  company.add_category("a11", "Expense", "a1");  // of another type than its parent
  company.add_category("a2", "Bank", "a", true);
  company.add_category("d", "Bank", "", true);
  company.add_category("d1", "Bank", "d");
  company.add_category("e", "Expense");
  company.add_category("lost", "Bank", "gone");
  const auto rows = Make_List(*company.session, false);
  EXPECT_EQ(Names(rows, "Bank"), "Name of a;     Name of a1;Name of b;");
  EXPECT_EQ(Names(rows, "Expense"), "          Name of a11;Name of e;");
  EXPECT_EQ(Names(Make_List(*company.session, true), "Bank"),
            "Name of a;     Name of a1;     Name of a2;Name of b;Name of d;     Name of d1;");
}

TEST(Categories, CommandsFollowTheRow) {
  struct Case {
    AccountRow row;
    const char* allowed;  ///< r register, c reconcile, d delete, 2 double click
  };
  const Case cases[] = {
      {{"Checking", "Bank", {}, "0SS"}, "rcd2"},
      {{"Visa", "Credit Card", {}, "1SS"}, "rcd2"},
      {{"Undeposited Funds", "Current Asset", {}, "UF1"}, "r2"},
      {{"     Truck", "Fixed Asset", {}, "2SS"}, "rd2"},
      {{"     Accounts Payable", "Accounts Payable", {}, "AP1"}, "r2"},
      {{"Trade", "Accounts Receivable", {}, "AR1"}, "rd2"},
      {{"Loan", "Long Term Liability", {}, "3SS"}, "rd2"},
      {{"Retained Earnings", "Equity", {}, "RE1"}, ""},
      {{"Opening", "Equity", {}, "OE1"}, ""},
      {{"Sales", "Income", {}, "4SS"}, "d"},
      {{"Cost", "Cost of Goods Sold", {}, "5SS"}, "d"},
      {{"Odd", "Other Asset", {}, "6SS"}, "rd2"},
      {{"Odd", "Other Liability", {}, "7SS"}, "d2"},  // the menu names its liabilities, the click does not
  };
  for (const Case& expected : cases) {
    const AccountCommands commands = Account_Commands(expected.row);
    EXPECT_EQ(std::string(commands.mnuRegister ? "r" : "") + (commands.mnuReconcile ? "c" : "") +
                  (commands.mnuDelete ? "d" : "") + (Opens_Register(expected.row.Type) ? "2" : ""),
              expected.allowed)
        << expected.row.Name << ", " << expected.row.Type;
  }
}

TEST(Categories, OnlyAnUnusedCategoryIsDeleted) {
  TestCompany company;
  auto delete_it = [&](const char* id, bool yes) {
    company.prompts.boxes.clear();
    company.prompts.answers = {yes};
    return Delete_Category(*company.session, {"     Name", "Expense", {}, id});
  };
  company.run("INSERT INTO Transactions (TransNum, Account) VALUES (1, '46SS')");
  EXPECT_FALSE(delete_it("40SS", false));
  EXPECT_EQ(company.prompts.boxes.front().text, "Are you sure you want to delete \"Name\"");
  EXPECT_EQ(company.prompts.boxes.front().icon, Icon::Critical);
  for (const char* used : {"46SS", "41SS"}) {  // posted to; parent of others
    EXPECT_FALSE(delete_it(used, true));
    EXPECT_EQ(company.prompts.boxes.back().title, "No Deletion");
  }
  // What preferences, lists and plans name is in use as well: its id would come back to them as another's.
  company.run("INSERT INTO Items (ItemName, COGScat) VALUES ('Bolt', '36SS')");
  company.run("INSERT INTO Vendors (Name, [1099Cat]) VALUES ('Acme', '39SS')");
  company.run("INSERT INTO Budget (Category) VALUES ('76SS')");
  company.run("INSERT INTO PayrollItems (Name, ExpenseAcct) VALUES ('Wage', '68SS')");
  company.run("INSERT INTO RepeatTrans (Name, SourceCat) VALUES ('Rent', '1SS')");
  company.run("INSERT INTO SavedReports (ReportName, Item) VALUES ('Mine', '82SS')");
  for (const char* named : {"0SS", "36SS", "39SS", "76SS", "68SS", "1SS", "82SS"}) {
    EXPECT_FALSE(delete_it(named, true)) << named;
    EXPECT_NE(company.prompts.boxes.back().detail, "");
  }
  EXPECT_TRUE(delete_it("40SS", true));
  EXPECT_TRUE(company.db().value("SELECT CatID FROM Accounts WHERE CatID = '40SS'").is_null());
}

TEST(Categories, TheFormNamesItsFirstMistake) {
  TestCompany company;
  CategoryForm form = New_Category();
  ListRow row(*company.session, Category_Rows);
  const auto save = [&] { return Save_Category(*company.session, row, form).fault; };
  EXPECT_EQ(save()->control, "txtName");
  form.txtName = "Fuel";
  EXPECT_EQ(save()->box.text, "Please select a type for this Category");
  EXPECT_EQ(Check_Sub_Category(form)->box.title, "No Parent");
  form.cmbType = "Expanse";  // would show in no list
  EXPECT_EQ(save()->control, "cmbType");
}

TEST(Categories, ANewCategoryTakesANumberThatNoneEverHad) {
  TestCompany company;
  EXPECT_TRUE(Delete_Category(*company.session, {"Penalties and Fines", "Other Expense", {}, "91SS"}));
  CategoryForm form = New_Category(AccountMode::FromCheck, "Gifts");
  form.cmbType = "Expense";
  form.lblParentID = "41SS";  // picked, then the box was cleared
  ListRow made(*company.session, Category_Rows);
  ASSERT_TRUE(Save_Category(*company.session, made, form).ok());
  EXPECT_EQ(form.CatID, "92SS");
  auto row = company.db().OpenRecordset("SELECT * FROM Accounts WHERE CatID = '92SS'");
  EXPECT_EQ(row["OpeningDate"].date(), Date(2026, 6, 15));
  EXPECT_EQ(row["LastYearEndBal"].money(), Money());
  EXPECT_FALSE(row["LastYearEndBal"].value().is_null());
  EXPECT_TRUE(row["ParentAccount"].blank());
}

TEST(Categories, AnEditKeepsWhatTheFormDoesNotShow) {
  TestCompany company;
  company.run("UPDATE Accounts SET LastYearEndBal = ?, AccountNum = '6120' WHERE CatID = '42SS'", {Money::dollars(9)});
  ListRow fuel(*company.session, Category_Rows, "42SS");
  CategoryForm form = Edit_Category(*company.session, fuel);
  EXPECT_TRUE(form.Check1);
  EXPECT_EQ(form.cmbSubCat + form.lblParentID + form.txtAcctNum, "Automobile41SS6120");
  form.txtName = "Gas";
  form.chkDormant = true;
  ASSERT_TRUE(Save_Category(*company.session, fuel, form).ok());
  auto row = company.db().OpenRecordset("SELECT * FROM Accounts WHERE CatID = '42SS'");
  EXPECT_EQ(row["AccountName"].text() + row["ParentAccount"].text(), "Gas41SS");
  EXPECT_TRUE(row["Dormant"].flag());
  EXPECT_EQ(row["LastYearEndBal"].money(), Money::dollars(9));
}

TEST(Categories, AnotherUsersChangeIsNotOverwrittenAndACategoryStaysWithItsType) {
  TestCompany company;
  ListRow row(*company.session, Category_Rows, "42SS");
  CategoryForm form = Edit_Category(*company.session, row);
  form.cmbType = "Bank";  // below Automobile, an expense
  EXPECT_EQ(Save_Category(*company.session, row, form).fault->control, "cmbSubCat");
  form = Edit_Category(*company.session, row);
  form.txtAcctNum = "6121";
  company.run("UPDATE Accounts SET Balance = 10000 WHERE CatID = '42SS'");  // only recomputed
  EXPECT_TRUE(Save_Category(*company.session, row, form).ok());
  company.run("UPDATE Accounts SET Description = 'theirs' WHERE CatID = '42SS'");
  form.txtAcctNum = "mine";
  const RowSave refused = Save_Category(*company.session, row, form);
  ASSERT_TRUE(refused.conflict);
  EXPECT_EQ(refused.conflict->box.title, "Data has changed");
  EXPECT_TRUE(refused.conflict->reload);
  EXPECT_EQ(company.db().value("SELECT AccountNum FROM Accounts WHERE CatID = '42SS'").text(), "6121");
}

TEST(Categories, NoCategoryIsOfferedAFamilyMemberBelowItAsParent) {
  TestCompany company;
  auto offers = [](const std::vector<ParentChoice>& choices, const char* id) {
    return std::ranges::any_of(choices, [&](const ParentChoice& choice) { return choice.CatID == id; });
  };
  ListRow automobile(*company.session, Category_Rows, "41SS");
  const auto choices = Parent_Choices(*company.session, Edit_Category(*company.session, automobile));
  EXPECT_TRUE(offers(choices, "40SS"));
  EXPECT_FALSE(offers(choices, "41SS"));
  EXPECT_FALSE(offers(choices, "42SS"));
  EXPECT_FALSE(offers(choices, "0SS"));
}

}  // namespace
}  // namespace tallymere
