#include "entry/sales/open_invoices.h"

namespace tallymere {
namespace {

constexpr const char* open_invoices = "Paid = 0 AND Type = 'Invoice' AND Account = 'AR1'";

}  // namespace

store::Recordset Open_Invoices(Session& session, const std::string& customer) {
  return session.dbCompany->OpenRecordset(std::string("SELECT * FROM Transactions WHERE Name = ? AND ") +
                                              open_invoices + " ORDER BY Date, TransNum, RowKey",
                                          {customer});
}

std::vector<std::string> Customers_Who_Owe(Session& session) {
  std::vector<std::string> customers;
  session.dbCompany->each(std::string("SELECT Name FROM Transactions WHERE ") + open_invoices +
                              " AND Name <> '' GROUP BY Name HAVING SUM(CASE WHEN Credit <> 0 THEN -1 ELSE 1 END * "
                              "(COALESCE(Amount, 0) - COALESCE(AmountReceived, 0))) <> 0 ORDER BY Name",
                          {}, [&](const store::Row& row) { customers.emplace_back(row.text(0)); });
  return customers;
}

Money Open_Finance_Charges(Session& session, const std::string& customer) {
  Money open;
  session.dbCompany->each(
      "SELECT SUM(COALESCE(Amount, 0) - COALESCE(AmountReceived, 0)) FROM Transactions WHERE Name = ? AND Paid = 0 "
      "AND Type = 'Statement' AND Account = 'AR1'",
      {customer}, [&](const store::Row& row) { open = row.money(0); });
  return open;
}

}  // namespace tallymere
