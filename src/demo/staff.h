#pragma once

#include <string>
#include <vector>

#include "demo/books.h"
#include "payroll/calc/calculate.h"

namespace tallymere::demo {

/// Payroll items that the company adds to the federal ones it came with.
namespace pay_items {
inline constexpr std::string_view hourly = "Hourly Wage", salary = "Salary", overtime = "Overtime", sick = "Sick Pay",
                                  vacation = "Vacation Pay", bonus = "Bonus", commission = "Sales Commission",
                                  retirement = "401(k) Deduction", match = "401(k) Match", health = "Health Insurance",
                                  state_tax = "Illinois Withholding", state_unemployment = "Illinois Unemployment",
                                  training = "Workforce Training Tax";
inline constexpr std::string_view federal = "Federal Withholding", social_employee = "Social Security Employee",
                                  social_company = "Social Security Company", medicare_employee = "Medicare Employee",
                                  medicare_company = "Medicare Company", federal_unemployment = "Federal Unemployment";
}  // namespace pay_items

/// What a pay run must know of a payroll item: where it posts, and whom it is owed to.
struct Pay_Item {
  std::string name, expense, liability, agency, number;
  bool federal = false;
};

struct Employee {
  std::string name, ss_num, address_one, city, zip, address;
  std::string class_name;
  Money rate;  ///< an hour, or a year for the salaried
  bool salaried = false, married = false, in_plan = false, insured = false;
  int allowances = 0;
  Date hired;
  std::optional<Date> released;
  PayFacts facts;  ///< what a paycheck is calculated by, with what was earned so far in `year`
  int year = 0;

  explicit Employee(Date day) : hired(day) {}
};

struct Staff {
  std::vector<Employee> employees;
  std::vector<Pay_Item> items;

  explicit Staff(Books& books);
  const Pay_Item& item(std::string_view name) const;
  void Write_Employees(store::Database& db) const;
  /// Once they are written: how their paychecks are calculated.
  void Learn_Facts(store::Database& db, store::Database& accounts);

 private:
  void Hire(Books& books);
};

/// Adds the company's payroll items with their tick rows, and tells the federal ones their agency.
void Write_Payroll_Items(store::Database& db, const Chart& chart);

}  // namespace tallymere::demo
