#include "core/ledger/pay_period.h"

#include "core/store/recordset.h"
#include "core/values/text.h"

namespace tallymere {

void Unpay_Period(store::Database& db, int64_t TransNum) {
  auto head = db.OpenRecordset(
      "SELECT * FROM Transactions WHERE TransNum = ? AND Type = 'Paycheck' AND PayrollItem = '' ORDER BY RowKey",
      {TransNum});
  if (!head.has_row() || head["PayPeriod"].blank()) return;
  const std::string period = head["PayPeriod"].text();
  const bool another = !db.value(
                              "SELECT RowKey FROM Transactions WHERE SSNum = ? AND Type = 'Paycheck'"
                              " AND PayPeriod = ? AND TransNum <> ? LIMIT 1",
                              {head["SSNum"].text(), period, TransNum})
                            .is_null();
  const auto bounds = split(period, " - ");
  const auto last = Date::parse(bounds.back());
  if (another || !last) return;
  // The bounds of a half month ignore the day that was typed, which is what the history keeps.
  db.Execute(
      "UPDATE PayHistory SET Paid = 'No' WHERE Employee = ? AND Paid = 'Yes' AND (PayEndDate = ? OR"
      " (PayPeriod = 'SemiMonthly' AND PayEndDate BETWEEN ? AND ?))",
      {head["Name"].text(), *last, Date::parse(bounds.front()).value_or(*last), *last});
}

}  // namespace tallymere
