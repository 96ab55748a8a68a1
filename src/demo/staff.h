#pragma once

#include <string>
#include <vector>

#include "demo/books.h"

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

inline constexpr double retirement_rate = 0.04, match_rate = 0.02;
inline constexpr double state_unemployment_rate = 0.0335;  // Illinois, new employers, 2026
inline constexpr double training_rate = 0.001;

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
  Money year_gross;  ///< paid so far in `year`
  int year = 0;

  explicit Employee(Date day) : hired(day) {}
};

struct Staff {
  std::vector<Employee> employees;
  std::vector<Pay_Item> items;

  explicit Staff(Books& books);
  const Pay_Item& item(std::string_view name) const;
  void Write_Employees(store::Database& db) const;

 private:
  void Hire(Books& books);
};

/// Adds the company's payroll items with their tick rows, and tells the federal ones their agency.
void Write_Payroll_Items(store::Database& db, const Chart& chart);

}  // namespace tallymere::demo
