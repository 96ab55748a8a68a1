#include "payroll/pay_history.h"

#include <algorithm>

#include "core/values/text.h"

namespace tallymere {
namespace {

using store::Database;
using store::Row;

bool Is_Open(Database& db, Date pay_end) {
  return !db.value("SELECT RowKey FROM PayHistory WHERE PayEndDate = ? LIMIT 1", {pay_end}).is_null();
}

void Add_History(Database& db, std::string_view employee, std::string_view pay_period, Date pay_end, Date check_date) {
  db.Execute("INSERT INTO PayHistory (Employee, PayPeriod, PayEndDate, PayCheckDate, Paid) VALUES (?, ?, ?, ?, 'No')",
             {employee, pay_period, pay_end, check_date});
}

std::vector<PayRunRow> Rows_Of(Database& db, std::string_view query, Date pay_end) {
  std::vector<PayRunRow> rows;
  db.each(query, {pay_end}, [&](const Row& row) {
    rows.push_back({std::string(row.text(0)), std::string(row.text(1)), same_text(row.text(2), "Yes"),
                    row.date(3).value_or(pay_end)});
  });
  return rows;
}

}  // namespace

std::vector<PayRunRow> Pay_Run(Database& db, Date pay_end) {
  if (!Is_Open(db, pay_end))
    return Rows_Of(db,
                   "SELECT Name, PayPeriod, 'No', NULL FROM Employees WHERE ReleaseDate IS NULL AND ? IS NOT NULL"
                   " ORDER BY Name",
                   pay_end);
  return Rows_Of(
      db,
      "SELECT Employee, PayPeriod, Paid, PayCheckDate FROM PayHistory AS h WHERE PayEndDate = ? AND"
      " (SELECT e.ReleaseDate IS NULL FROM Employees AS e WHERE e.Name = h.Employee ORDER BY e.RowKey LIMIT 1)"
      " ORDER BY Employee",
      pay_end);
}

bool Is_Already_Paid(Database& db, const PayRunRow& row, std::string_view ss_num, const PayPeriod& period) {
  return row.Paid || !db.value(
                            "SELECT RowKey FROM Transactions WHERE SSNum = ? AND Type = 'Paycheck' AND PayPeriod = ?"
                            " LIMIT 1",
                            {ss_num, period.text()})
                          .is_null();
}

void Open_Pay_Period(Database& db, Date pay_end) {
  if (Is_Open(db, pay_end)) return;
  db.Execute(
      "INSERT INTO PayHistory (Employee, PayPeriod, PayEndDate, PayCheckDate, Paid)"
      " SELECT Name, PayPeriod, ?, ?, 'No' FROM Employees ORDER BY RowKey",
      {pay_end, pay_end});
}

void Mark_Paid(Database& db, std::string_view employee, Date pay_end) {
  db.Execute("UPDATE PayHistory SET Paid = 'Yes' WHERE Employee = ? AND PayEndDate = ?", {employee, pay_end});
}

void Seed_Pay_History(Database& db, std::string_view employee, std::string_view pay_period) {
  std::vector<std::pair<Date, Date>> opened;  // the day and the check date of its first row
  db.each("SELECT PayEndDate, PayCheckDate FROM PayHistory WHERE PayEndDate IS NOT NULL ORDER BY PayEndDate, RowKey",
          {}, [&](const Row& row) {
            const Date day = *row.date(0);
            if (opened.empty() || opened.back().first != day) opened.emplace_back(day, row.date(1).value_or(day));
          });
  for (const auto& [pay_end, check_date] : opened) Add_History(db, employee, pay_period, pay_end, check_date);
}

}  // namespace tallymere
