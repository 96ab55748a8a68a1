#include "core/ledger/at_a_glance.h"

namespace tallymere {

std::vector<BankBalance> Bank_Balances(Session& session) {
  std::vector<BankBalance> banks;
  session.dbCompany->each(
      "SELECT AccountName, Balance FROM Accounts WHERE AccountType = 'Bank' AND NOT Dormant ORDER BY AccountName", {},
      [&](const store::Row& row) {
        banks.push_back({std::string(row.text(0)), row.money(1)});
      });
  return banks;
}

Money Customers_Owe(Session& session) {
  return session.dbCompany->value("SELECT Balance FROM Accounts WHERE CatID = 'AR1'").money();
}

Due Due_This_Week(Session& session) {
  Due due;
  session.dbCompany->each(
      "SELECT COUNT(*), SUM(Amount - IFNULL((SELECT SUM(a.Amount) FROM Applied AS a WHERE a.Document = "
      "Transactions.TransNum), 0)) FROM Transactions WHERE Type = 'Bill' AND Account = 'AP1' AND NOT Paid AND "
      "DueDate < ?",
      {session.today().plus_days(7)}, [&](const store::Row& row) {
        due = {row.integer(0), row.money(1)};
      });
  return due;
}

}  // namespace tallymere
