#include "core/ledger/bill_faults.h"

namespace tallymere {
namespace {

using store::Database;
using store::Row;
using Findings = std::vector<std::string>;

std::string Text(const Row& row, int column) { return std::string(row.text(column)); }

void Heads(Database& db, Findings& found) {
  db.each(
      "SELECT TransNum, MAX(Type), SUM(Account = 'AP1' AND (Item IS NULL OR Item = '')) AS Heads,"
      " MIN(CASE WHEN Account = 'AP1' THEN RowKey END), MIN(RowKey) FROM Transactions"
      " WHERE Type IN ('Bill', 'Credit', 'Item Receipt') GROUP BY TransNum",
      {}, [&](const Row& row) {
        const std::string name = Text(row, 1) + " " + Text(row, 0);
        if (row.integer(2) != 1)
          found.push_back(name + " has " + Text(row, 2) + " rows in accounts payable");
        else if (row.integer(3) != row.integer(4))
          found.push_back(name + ": its row in accounts payable is not the first");
      });
}

/// The rows are met by their numbers ("+" keeps the index of categories out of it), not each with each.
void Payers(Database& db, Findings& found) {
  db.each(
      "SELECT a.Payment, a.Document, p.Type, p.Name, b.Name FROM Applied AS a"
      " JOIN Transactions AS b ON b.TransNum = a.Document AND +b.Account = 'AP1' AND b.Type = 'Bill'"
      " JOIN Transactions AS p ON p.TransNum = a.Payment AND +p.Account = 'AP1'"
      " WHERE p.Type NOT IN ('Billcheck', 'Ledger Entry', 'Credit') OR p.Name <> b.Name",
      {}, [&](const Row& row) {
        found.push_back("bill " + Text(row, 1) + " of " + Text(row, 4) + " was paid by " + Text(row, 2) + " " +
                        Text(row, 0) + " of " + Text(row, 3));
      });
}

void Amounts(Database& db, Findings& found) {
  db.each(
      "SELECT Payment, SUM(Amount), IFNULL((SELECT SUM(Debit) - SUM(Credit) FROM Transactions WHERE TransNum = Payment"
      " AND Account = 'AP1'), 0) FROM Applied WHERE Document IN (SELECT TransNum FROM Transactions WHERE Type = 'Bill'"
      " AND Account = 'AP1') GROUP BY Payment",
      {}, [&](const Row& row) {
        if (row.money(1) > row.money(2))
          found.push_back("transaction " + Text(row, 0) + " paid bills for " + row.money(1).to_text() + " and takes " +
                          row.money(2).to_text() + " off accounts payable");
      });
}

}  // namespace

Findings Bill_Faults(Database& company) {
  Findings found;
  Heads(company, found);
  Payers(company, found);
  Amounts(company, found);
  return found;
}

}  // namespace tallymere
