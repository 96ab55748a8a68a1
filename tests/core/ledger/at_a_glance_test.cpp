#include "core/ledger/at_a_glance.h"

#include "support/test_company.h"

namespace tallymere {

TEST(AtAGlance, BanksInUseWhatIsOwedAndWhatIsDueWithinAWeek) {
  testing::TestCompany company(Date(2026, 6, 15));
  company.add_category("B2", "Bank");
  company.add_category("B3", "Bank", "", true);
  company.run("UPDATE Accounts SET Balance = ? WHERE CatID = 'B2'", {Money::parse("12.50").value()});
  company.run("UPDATE Accounts SET Balance = ? WHERE CatID = 'AR1'", {Money::parse("800").value()});
  const auto bill = [&](int64_t number, Date due, bool paid, const char* account, const char* amount) {
    company.run(
        "INSERT INTO Transactions (TransNum, Type, Account, DueDate, Paid, Amount) VALUES (?, 'Bill', ?, ?, ?, ?)",
        {number, std::string(account), due, paid, Money::parse(amount).value()});
  };
  bill(1, Date(2026, 6, 1), false, "AP1", "10");     // overdue
  bill(2, Date(2026, 6, 21), false, "AP1", "20.5");  // the last day of the week
  bill(3, Date(2026, 6, 22), false, "AP1", "40");
  bill(4, Date(2026, 6, 16), true, "AP1", "80");
  bill(1, Date(2026, 6, 1), false, "66SS", "10");  // the other side of the first

  std::string banks;
  for (const BankBalance& bank : Bank_Balances(*company.session))
    if (bank.AccountName.starts_with("Name of")) banks += bank.AccountName + " " + bank.Balance.to_text() + ";";
  EXPECT_EQ(banks, "Name of B2 12.5;");
  EXPECT_EQ(Customers_Owe(*company.session), Money::parse("800"));
  const Due due = Due_This_Week(*company.session);
  EXPECT_EQ(due.bills, 2);
  EXPECT_EQ(due.Amount, Money::parse("30.5"));
}

}  // namespace tallymere
