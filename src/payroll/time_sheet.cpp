#include "payroll/time_sheet.h"

#include <algorithm>
#include <numeric>

#include "core/company/folder.h"
#include "core/store/recordset.h"
#include "core/values/format.h"
#include "core/values/money.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

constexpr std::array<const char*, 7> weekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                 "Thursday", "Friday", "Saturday"};

bool Is_Made(store::Database& company, Date first) { return company.find_table(Time_Table(first)) != nullptr; }

/// Inside a Transaction, which two programs cannot be in at once: the second one finds the first one's table.
void Create_Time_Table(store::Database& company, Date first) {
  if (!Is_Made(company, first)) company.CreateTableDef(Definition(*find_table("Time"), Time_Table(first)));
}

TimeRow Read_Row(store::Recordset& row) {
  TimeRow read{.key = row.key(),
               .Customer = row["Customer"].text(),
               .Item = row["Item"].text(),
               .Notes = row["Notes"].text(),
               .Class = row["Class"].text(),
               .PayrollItem = row["PayrollItem"].text()};
  for (size_t day = 0; day < Day_Fields.size(); ++day)
    if (!row[Day_Fields[day]].blank()) read.hours[day] = row[Day_Fields[day]].number();
  return read;
}

void Write_Row(store::Recordset& row, const TimeRow& now) {
  row["Customer"] = now.Customer;
  row["Item"] = now.Item;
  row["Notes"] = now.Notes;
  row["Class"] = now.Class;
  row["PayrollItem"] = now.PayrollItem;
  for (size_t day = 0; day < Day_Fields.size(); ++day)
    row[Day_Fields[day]] = now.hours[day] ? store::Value(*now.hours[day]) : store::Value();
}

/// The row as it was shown, or Error 3197.
store::Recordset At_Row(store::Database& company, Date first, const TimeRow& shown) {
  auto row = company.OpenRecordset("SELECT * FROM " + Time_Table(first) + " WHERE RowKey = ?", {shown.key});
  if (!row.has_row() || Read_Row(row) != shown)
    throw store::Error(store::errors::data_changed, "Another user has changed this row of the time sheet.");
  return row;
}

}  // namespace

std::string Time_Table(Date first) { return "Time" + Format(first, "yyyymmdd"); }

std::vector<std::string> Time_Tables(store::Database& company) {
  std::vector<std::string> tables;
  const TableDef* time = find_table("Time");
  for (const store::TableDef& table : company.TableDefs())
    if (find_table(table.name) == time) tables.push_back(table.name);
  return tables;
}

Date First_Day_Of_Week(Session& session, Date day) {
  const std::string name =
      session.dbCompany->value("SELECT State FROM GeneralPrefs WHERE Preference = 'FirstDay'").text();
  const auto found = std::ranges::find(weekdays, name);
  const int first = found == weekdays.end() ? 1 : static_cast<int>(found - weekdays.begin()) + 1;
  return day.plus_days(-((day.weekday() - first + 7) % 7));
}

std::vector<TimeRow> Time_Rows(Session& session, Date first, const std::string& SSNum) {
  std::vector<TimeRow> rows;
  if (!Is_Made(*session.dbCompany, first)) return rows;
  auto set = session.dbCompany->OpenRecordset("SELECT * FROM " + Time_Table(first) + " WHERE SSNum = ? ORDER BY RowKey",
                                              {SSNum});
  for (; !set.Eof(); set.MoveNext()) rows.push_back(Read_Row(set));
  return rows;
}

std::optional<Fault> Time_Row_Fault(const std::array<std::string, 7>& typed, const std::string& PayrollItem) {
  bool has_hours = false;
  for (size_t day = 0; day < typed.size(); ++day) {
    if (trim(typed[day]).empty()) continue;
    if (!Money::parse(typed[day])) return Fault{{"This needs to be a numeric value", "Not a Number"}, Day_Fields[day]};
    has_hours = true;
  }
  if (has_hours && PayrollItem.empty())
    return Fault{{"Please enter a payroll item for these hours to be applied to.", "No Payroll item"}, "PayrollItem"};
  return {};
}

int64_t Save_Time_Row(Session& session, Date first, const std::string& SSNum, const TimeRow& before,
                      const TimeRow& now) {
  store::Database& company = *session.dbCompany;
  store::Transaction tx(company, "Time sheet of " + first.to_text());
  Create_Time_Table(company, first);
  const bool fresh = before.key == 0;
  store::Recordset row = fresh ? company.OpenRecordset("SELECT * FROM " + Time_Table(first) + " WHERE 1 = 0")
                               : At_Row(company, first, before);
  fresh ? row.AddNew() : row.Edit();
  row["SSNum"] = SSNum;
  Write_Row(row, now);
  row.Update();
  const int64_t key = fresh ? row.last_added() : before.key;
  tx.commit();
  return key;
}

void Delete_Time_Row(Session& session, Date first, const TimeRow& shown) {
  store::Transaction tx(*session.dbCompany, "Time sheet of " + first.to_text());
  At_Row(*session.dbCompany, first, shown).Delete();
  tx.commit();
}

std::array<double, 8> Calc_Hours(const std::vector<TimeRow>& rows) {
  std::array<double, 8> sums{};
  for (const TimeRow& row : rows)
    for (size_t day = 0; day < row.hours.size(); ++day) sums[day] += row.hours[day].value_or(0);
  sums.back() = std::accumulate(sums.begin(), sums.end() - 1, 0.0);
  return sums;
}

std::vector<TimedEmployee> Employees_With_Time(Session& session) {
  std::vector<TimedEmployee> employees;
  session.dbCompany->each("SELECT SSNum, Name FROM Employees WHERE ReleaseDate IS NULL ORDER BY Name", {},
                          [&](const store::Row& row) {
                            employees.push_back({std::string(row.text(0)), std::string(row.text(1))});
                          });
  return employees;
}

std::vector<std::string> Wages_Of(Session& session, const std::string& SSNum) {
  std::vector<std::string> wages;
  session.dbCompany->each("SELECT Wage FROM EmployeeEarnings WHERE SSNum = ?", {SSNum},
                          [&](const store::Row& row) { wages.emplace_back(row.text(0)); });
  return wages;
}

}  // namespace tallymere
