#include "core/ledger/ledger.h"

#include "core/ledger/transaction_writer.h"

#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;

TEST(Ledger, NumbersGoOnFromTheHighest) {
  TestCompany company;
  EXPECT_EQ(Next_TransNum(company.db()), 1);
  company.run("INSERT INTO Transactions (TransNum) VALUES (7), (41), (12)");
  EXPECT_EQ(Next_TransNum(company.db()), 42);
  Delete_Transaction(*company.session, 41);
  EXPECT_EQ(Next_TransNum(company.db()), 42) << "what named 41 must not meet another";
  company.run("INSERT INTO Transactions (TransNum) VALUES (2147483647)");
  EXPECT_THROW(Next_TransNum(company.db()), store::Error);
}

TEST(Ledger, SubCategoriesAreNamedAtAnyDepthAndInCircles) {
  TestCompany company;
  company.add_category("car", "Expense");
  company.add_category("fuel", "Expense", "car");
  company.add_category("diesel", "Expense", "FUEL", true);
  company.add_category("o'il", "Expense", "car");
  EXPECT_EQ(SubAccount_Clause(*company.session, "car"),
            " OR Account = 'fuel' OR Account = 'diesel' OR Account = 'o''il'");
  EXPECT_EQ(SubAccount_Clause(*company.session, "diesel"), "");

  company.run("UPDATE Accounts SET ParentAccount = 'diesel' WHERE CatID = 'car'");
  EXPECT_EQ(SubAccount_Clause(*company.session, "fuel"),
            " OR Account = 'diesel' OR Account = 'car' OR Account = 'o''il'");
}

TEST(Ledger, NamesCategories) {
  TestCompany company;
  EXPECT_EQ(Category_Name(*company.session, "UF1"), "Undeposited Funds");
  EXPECT_EQ(Category_Name(*company.session, "<-Break Down->"), "<-Break Down->");
  EXPECT_EQ(Category_Name(*company.session, "gone"), "");
  EXPECT_EQ(Category_Name(*company.session, ""), "");
}

TEST(Ledger, PostingsGoToLeavesOnly) {
  TestCompany company;
  Session& session = *company.session;
  company.add_category("car", "Expense");
  EXPECT_EQ(Get_Postable_Category(session, "car"), "car");
  EXPECT_EQ(Get_Postable_Category(session, "<-Break Down->"), "<-Break Down->");
  EXPECT_EQ(Get_Postable_Category(session, ""), "");

  company.add_category("fuel", "Expense", "car");
  std::string other = Get_Postable_Category(session, "car");
  EXPECT_EQ(other, "92SS");
  EXPECT_EQ(Get_Postable_Category(session, "car"), other);

  auto row = company.db().OpenRecordset("SELECT * FROM Accounts WHERE CatID = ?", {other});
  EXPECT_EQ(row["AccountName"].text(), "Name of car - Other");
  EXPECT_EQ(row["AccountType"].text(), "Expense");
  EXPECT_EQ(row["ParentAccount"].text(), "car");
  EXPECT_EQ(row["OpeningDate"].date(), session.today());
  EXPECT_FALSE(row["Dormant"].flag());
  EXPECT_FALSE(row["LastYearEndBal"].value().is_null());
}

TEST(Ledger, AnOtherChildGoesWithTheSaveThatNeededIt) {
  TestCompany company;
  company.add_category("car", "Expense");
  company.add_category("fuel", "Expense", "car");
  {
    store::Transaction save(company.db(), "A save that fails");
    EXPECT_NE(Get_Postable_Category(*company.session, "car"), "car");
  }
  EXPECT_EQ(company.db().value("SELECT COUNT(*) FROM Accounts WHERE ParentAccount = 'car'").integer(), 1);
}

TEST(Ledger, TypesHaveASide) {
  for (auto type : {"Equity", "Credit Card", "Accounts Payable", "Current Liability", "Long Term Liability"})
    EXPECT_TRUE(Is_Credit_Normal(type)) << type;
  for (auto type : {"Bank", "Accounts Receivable", "Fixed Asset", "Income", "Other Expense", ""})
    EXPECT_FALSE(Is_Credit_Normal(type)) << type;
  EXPECT_TRUE(Is_Profit_And_Loss("Cost of Goods Sold"));
  EXPECT_FALSE(Is_Profit_And_Loss("Other Expense"));
}

TEST(Ledger, CountsLinesWhateverEndsThem) {
  const std::pair<const char*, int> cases[] = {{"", 1}, {"a", 1}, {"a\r\nb\r\n", 3}, {"a\rb\nc", 3}, {"\n\n", 3}};
  for (const auto& [text, lines] : cases) EXPECT_EQ(Count_Text_Lines(text), lines) << text;
}

}  // namespace
}  // namespace tallymere
