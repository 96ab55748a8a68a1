#include "entry/sales/finance_charge.h"

#include "entry/sales/open_invoices.h"
#include "support/entry_company.h"

namespace tallymere {
namespace {

using testing::Dollars;

struct FinanceCharges : ::testing::Test {
  testing::EntryCompany company;
  Session& session = *company.session;
  testing::ScriptedPrompts& prompts = company.prompts;
  const Date day{2026, 6, 15};

  void SetUp() override {
    company.run("INSERT INTO Customers (Name, Dormant) VALUES ('O''Hara', 0), ('Bell', 0), ('Nobody', 0)");
    rate("18%");
  }
  void rate(const std::string& APR) {
    company.run("UPDATE GeneralPrefs SET State = ? WHERE Preference = 'FinanceAPR'", {APR});
  }
  int64_t invoice(const std::string& name, const std::string& number, Date date, Money amount, Money received = {},
                  bool credit_memo = false) {
    Transaction_Writer rows(session, {.Type = "Invoice", .Date = date, .Number = number, .Name = name});
    LedgerRow head{.Account = "AR1", .Category = "66SS", .Debit = amount, .Amount = amount, .AmountReceived = received};
    LedgerRow line{.Account = "66SS", .Category = "AR1", .Credit = amount, .Amount = amount};
    if (credit_memo) std::swap(head.Debit, head.Credit), std::swap(line.Debit, line.Credit);
    rows.add(head);
    rows.add(line);
    rows.commit();
    return rows.number();
  }
  void two_invoices() {
    invoice("O'Hara", "1", Date(2026, 6, 5), Dollars(1000), Dollars(200));
    invoice("O'Hara", "2", Date(2026, 5, 6), Dollars(500));
    company.write("Payment", Date(2026, 6, 8), "AR1", "0SS", Dollars(200), "O'Hara");
  }
  int64_t statements() {
    return company.db().value("SELECT COUNT(*) FROM Transactions WHERE Type = 'Statement'").integer();
  }
};

TEST_F(FinanceCharges, EachOpenInvoiceIsChargedOnTheWholeBalanceByItsOwnDays) {
  two_invoices();
  const int64_t paid = invoice("O'Hara", "3", Date(2026, 1, 1), Dollars(10));
  company.run("UPDATE Transactions SET Paid = -1 WHERE TransNum = ?", {paid});
  company.write("Payment", Date(2026, 6, 8), "AR1", "0SS", Dollars(10), "O'Hara");
  const FinanceCharge charge = Reckon_Finance_Charge(session, "O'Hara", day);
  EXPECT_EQ(charge.balance, Dollars(1300));
  ASSERT_EQ(charge.lines.size(), 2u);
  EXPECT_EQ(charge.lines[0].Number, "2");
  EXPECT_EQ(charge.lines[0].days, 40);
  EXPECT_EQ(charge.lines[0].charge, Money::parse("25.6438"));  // 1300 x 0.18 / 365 x 40
  EXPECT_EQ(charge.lines[1].charge, Money::parse("5.4247"));   // 1100 x 0.18 / 365 x 10
  EXPECT_EQ(charge.amount, Dollars(31, 7));
  // A day before the invoices counts the days back to it.
  EXPECT_EQ(Reckon_Finance_Charge(session, "O'Hara", Date(2026, 5, 1)).lines[1].days, 35);
  rate("18");  // the other form: less days times what was received
  EXPECT_EQ(Reckon_Finance_Charge(session, "O'Hara", day).amount, Money::parse("-1998.82"));
  EXPECT_EQ(Reckon_Finance_Charge(session, "Nobody", day).amount, Money());
}

TEST_F(FinanceCharges, AChargeIsTwoRowsOpenToPayment) {
  two_invoices();
  EXPECT_EQ(Statement_Fault(Reckon_Finance_Charge(session, "O'Hara", day), false)->box.title, "No Preview Made");
  const FinanceCharge charge = Reckon_Finance_Charge(session, "O'Hara", day);
  EXPECT_FALSE(Statement_Fault(charge, true));
  ASSERT_TRUE(Post_Statements(session, {charge}));
  EXPECT_TRUE(prompts.boxes.empty());
  EXPECT_EQ(testing::Rows_Of(company.db(), Next_TransNum(company.db()) - 1,
                             "Type Date Name Account Category Debit Credit Amount Memo Paid"),
            "Statement|6/15/2026|O'Hara|AR1|32SS|31.07|0|31.07|Finanace Charge|False\n"
            "Statement|6/15/2026|O'Hara|32SS|AR1|0|31.07|31.07|Finanace Charge|False\n");
  EXPECT_EQ(Open_Finance_Charges(session, "O'Hara"), Dollars(31, 7));
  const FinanceCharge next = Reckon_Finance_Charge(session, "O'Hara", day);
  EXPECT_EQ(next.balance, Dollars(1331, 7));  // from now on it is charged on
  EXPECT_EQ(next.lines.size(), 2u);
}

TEST_F(FinanceCharges, WithoutRateOrCategoryThereAreNoStatements) {
  two_invoices();
  for (const char* missing : {"FinanceAPR", "FinanceCat"}) {
    const std::string before =
        company.db().value("SELECT State FROM GeneralPrefs WHERE Preference = ?", {missing}).text();
    for (const char* State : {"", missing == std::string("FinanceCat") ? "gone" : " "}) {
      company.run("UPDATE GeneralPrefs SET State = ? WHERE Preference = ?", {State, missing});
      EXPECT_EQ(Statement_Fault(Reckon_Finance_Charge(session, "O'Hara", day), true)->box.title, "No Settings Made");
    }
    company.run("UPDATE GeneralPrefs SET State = ? WHERE Preference = ?", {before, missing});
  }
}

TEST_F(FinanceCharges, NothingIsPostedForZeroOrLess) {
  two_invoices();
  rate("18");
  EXPECT_TRUE(Post_Statements(session, {Reckon_Finance_Charge(session, "O'Hara", day)}));
  EXPECT_TRUE(Post_Statements(session, {Reckon_Finance_Charge(session, "Nobody", day)}));
  EXPECT_EQ(prompts.boxes.size(), 2u);
  EXPECT_EQ(prompts.boxes[0].title, "No Finance Charge");
  EXPECT_EQ(statements(), 0);
}

TEST_F(FinanceCharges, ASecondOneOnTheSameDayIsAskedAbout) {
  two_invoices();
  const FinanceCharge charge = Reckon_Finance_Charge(session, "O'Hara", day);
  ASSERT_TRUE(Post_Statements(session, {charge}));
  const FinanceCharge second = Reckon_Finance_Charge(session, "O'Hara", day);
  prompts.answers = {false, true};
  EXPECT_FALSE(Post_Statements(session, {second}));
  EXPECT_EQ(statements(), 2);
  EXPECT_EQ(prompts.boxes.at(0).detail, "O'Hara $31.07");
  EXPECT_TRUE(Post_Statements(session, {second}));
  EXPECT_EQ(statements(), 4);
  EXPECT_TRUE(Post_Statements(session, {Reckon_Finance_Charge(session, "O'Hara", day.plus_days(1))}));
  EXPECT_EQ(prompts.boxes.size(), 2u);  // another day is no question
}

TEST_F(FinanceCharges, AllWhoOweAreChargedInOnePostingOrNobody) {
  two_invoices();
  invoice("Bell", "4", Date(2026, 5, 6), Dollars(365));
  invoice("Nobody", "5", Date(2026, 5, 6), Dollars(10));
  invoice("Nobody", "6", Date(2026, 5, 6), Dollars(10), {}, true);
  const auto charges = Reckon_Finance_Charges(session, day);
  ASSERT_EQ(charges.size(), 2u);
  EXPECT_EQ(charges[0].customer, "Bell");
  EXPECT_EQ(charges[0].amount, Dollars(7, 20));
  // A colleague takes a payment while the list stands open.
  auto colleague = company.another_user();
  Transaction_Writer paid(*colleague, {.Type = "Payment", .Date = day, .Name = "Bell"});
  paid.add({.Account = "AR1", .Category = "0SS", .Credit = Dollars(65), .Amount = Dollars(65)});
  paid.add({.Account = "0SS", .Category = "AR1", .Debit = Dollars(65), .Amount = Dollars(65)});
  paid.commit();
  EXPECT_FALSE(Post_Statements(session, charges));
  EXPECT_EQ(prompts.boxes.at(0).title, "Data has changed");
  EXPECT_EQ(prompts.boxes[0].detail, "Bell");
  EXPECT_EQ(statements(), 0);
  ASSERT_TRUE(Post_Statements(session, Reckon_Finance_Charges(session, day)));
  EXPECT_EQ(statements(), 4);
  EXPECT_EQ(company.db().value("SELECT What FROM History ORDER BY RowKey DESC LIMIT 1").text(), "Finance charges");
}

}  // namespace
}  // namespace tallymere
