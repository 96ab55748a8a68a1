#include "payroll/employee.h"

namespace tallymere {
namespace {

using store::Database;
using store::Row;

PayEmployee Employee_Of(const Row& row) {
  auto text = [&row](int column) { return std::string(row.text(column)); };
  PayEmployee employee{text(0), text(1), text(2), text(3), text(4),  text(5),
                       text(6), text(7), text(8), text(9), text(10), text(11)};
  employee.FedAllow = row.integer(12);
  employee.StateAllow = row.integer(13);
  employee.FedWithHolding = row.money(14);
  employee.StateWithHolding = row.money(15);
  employee.SickHoursStart = row.number(16);
  employee.VacHoursStart = row.number(17);
  employee.SUIHold = row.flag(18);
  employee.ReleaseDate = row.date(19);
  return employee;
}

std::vector<EmployeeLine> Read_Lines(Database& db, std::string_view query, const std::string& ss_num) {
  std::vector<EmployeeLine> lines;
  db.each(query, {ss_num}, [&lines](const Row& row) {
    EmployeeLine& line = lines.emplace_back(std::string(row.text(0)), std::nullopt, std::string(row.text(2)));
    if (!row.is_null(1)) line.AmountRate = std::string(row.text(1));
  });
  return lines;
}

void Read_What_Hangs_On(Database& db, PayEmployee& employee) {
  db.each("SELECT Wage, Rate FROM EmployeeEarnings WHERE SSNum = ? ORDER BY RowKey", {employee.SSNum},
          [&employee](const Row& row) {
            auto& earning = employee.earnings.emplace_back(std::string(row.text(0)), std::nullopt);
            if (!row.is_null(1)) earning.Rate = row.money(1);
          });
  employee.adjustments = Read_Lines(
      db, "SELECT Adjustment, AmountRate, \"Limit\" FROM EmployeeAdjustments WHERE SSNum = ? ORDER BY RowKey",
      employee.SSNum);
  employee.taxes = Read_Lines(
      db, "SELECT Tax, AmountRate, \"Limit\" FROM EmployeeTaxes WHERE SSNum = ? ORDER BY RowKey", employee.SSNum);
}

std::optional<PayEmployee> Find_Employee(Database& db, std::string_view field, std::string_view value) {
  std::optional<PayEmployee> found;
  db.each(
      "SELECT SSNum, Name, AddressOne, AddressTwo, City, State, Zip, Class, PayPeriod, FedStatus, StateStatus,"
      " StateWorked, FedAllow, StateAllow, FedWithHolding, StateWithHolding, SickHoursStart, VacHoursStart, SUIHold,"
      " ReleaseDate FROM Employees WHERE " +
          std::string(field) + " = ? ORDER BY RowKey LIMIT 1",
      {value}, [&found](const Row& row) { found = Employee_Of(row); });
  if (found) Read_What_Hangs_On(db, *found);
  return found;
}

}  // namespace

std::optional<PayEmployee> Find_Employee_By_Name(Database& company, std::string_view name) {
  return Find_Employee(company, "Name", name);
}

std::optional<PayEmployee> Find_Employee_By_Number(Database& company, std::string_view ss_num) {
  return Find_Employee(company, "SSNum", ss_num);
}

}  // namespace tallymere
