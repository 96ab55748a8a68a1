#pragma once

#include <string>

#include "core/ledger/ledger.h"
#include "core/ledger/transaction_writer.h"
#include "core/store/recordset.h"
#include "support/test_company.h"

namespace tallymere::testing {

inline Money Dollars(int64_t whole, int cents = 0) { return Money::dollars(whole, cents); }

/// The fields of a transaction's rows, in writing order: "0SS|40SS|25|0" and so on, a row a line.
inline std::string Rows_Of(store::Database& db, int64_t TransNum, const std::string& fields) {
  std::string text;
  auto rows = db.OpenRecordset("SELECT * FROM Transactions WHERE TransNum = ? ORDER BY RowKey", {TransNum});
  for (; !rows.Eof(); rows.MoveNext()) {
    std::string line;
    for (size_t at = 0; at < fields.size();) {
      const size_t end = std::min(fields.find(' ', at), fields.size());
      line += (at ? "|" : "") + rows[fields.substr(at, end - at)].text();
      at = end + 1;
    }
    text += line + "\n";
  }
  return text;
}

/// A company with ledger rows written as other windows write them.
struct EntryCompany : TestCompany {
  using TestCompany::TestCompany;

  /// Money moving from one category to another on a day.
  int64_t write(const std::string& type, Date date, const std::string& from, const std::string& to, Money amount,
                const std::string& name = "", const std::string& number = "", int64_t TransNum = 0) {
    Transaction_Writer rows(*session,
                            {.TransNum = TransNum, .Type = type, .Date = date, .Number = number, .Name = name});
    rows.add({.Account = from, .Category = to, .Credit = amount, .Amount = amount});
    rows.add({.Account = to, .Category = from, .Debit = amount, .Amount = amount});
    rows.commit();
    return rows.number();
  }
  int64_t count() { return db().value("SELECT COUNT(*) FROM Transactions").integer(); }
};

}  // namespace tallymere::testing
