#include <array>

#include "demo/rows.h"
#include "demo/staff.h"

namespace tallymere::demo {
namespace {

struct Definition {
  std::string_view name, type, tax_type, pay_style, pay_type, tracking;
  std::string Chart::*expense;
  std::string Chart::*liability;
  std::string_view agency, number, rate;
  int limit;  // dollars a year, 0 for none
  std::string_view tax_paid = "Employee Paid Tax";
};

constexpr std::array definitions = {
    Definition{pay_items::hourly, "Wage", "", "Regular", "Hourly", "", &Chart::wages, nullptr, "", "", "", 0},
    Definition{pay_items::salary, "Wage", "", "Regular", "Salary", "", &Chart::wages, nullptr, "", "", "", 0},
    Definition{pay_items::overtime, "Wage", "", "Regular", "Hourly", "", &Chart::wages, nullptr, "", "", "", 0},
    Definition{pay_items::sick, "Wage", "", "Sick", "Hourly", "", &Chart::wages, nullptr, "", "", "", 0},
    Definition{pay_items::vacation, "Wage", "", "Vacation", "Hourly", "", &Chart::wages, nullptr, "", "", "", 0},
    Definition{pay_items::commission, "Commision", "", "", "", "", &Chart::wages, nullptr, "", "", "3%", 0},
    Definition{pay_items::bonus, "Addition", "", "", "", "Compensation", &Chart::wages, nullptr, "", "", "", 0},
    Definition{pay_items::retirement, "Deduction", "", "", "", "401(k)", nullptr, &Chart::deductions, retirement_plan,
               "PRS-20417", "4%", 24500},
    Definition{pay_items::health, "Deduction", "", "", "", "Fringe Benefits", nullptr, &Chart::deductions, health_plan,
               "HHP-5531", "85.00", 0},
    Definition{pay_items::match, "Company Contribution", "", "", "", "Fringe Benefits", &Chart::benefits,
               &Chart::deductions, retirement_plan, "PRS-20417", "2%", 0},
    Definition{pay_items::state_tax, "State Tax", "State Withholding", "", "", "", nullptr, &Chart::state_withheld,
               state_revenue, "3655-0142", "", 0},
    Definition{pay_items::state_unemployment, "State Tax", "State Unemployment", "", "", "", &Chart::payroll_taxes,
               &Chart::state_unemployment, state_employment, "48-11732", "", 14250, "Employer Paid Tax"},
    Definition{pay_items::training, "Other Tax", "", "", "", "Compensation", &Chart::payroll_taxes,
               &Chart::state_unemployment, state_employment, "48-11732", "0.1%", 14250, "Employer Paid Tax"},
};

using Names = std::vector<std::string>;

Names Names_Where(store::Database& db, std::string_view condition) {
  Names names;
  db.each("SELECT Name FROM PayrollItems WHERE " + std::string(condition) + " ORDER BY RowKey", {},
          [&names](const store::Row& row) { names.emplace_back(row.text(0)); });
  return names;
}

std::string Category_Of(const Chart& chart, std::string Chart::*member) { return member ? chart.*member : ""; }

std::optional<Money> Limit_Of(const Definition& item) {
  return item.limit ? std::optional(Money::dollars(item.limit)) : std::nullopt;
}

void Write_Item(store::Database& db, const Chart& chart, const Definition& item) {
  const bool state = item.type == "State Tax";
  const bool adjusts = item.type == "Addition" || item.type == "Deduction";
  const bool unemployment = item.tax_type == "State Unemployment";
  Add_Row(db, "PayrollItems",
          {{"Name", item.name},
           {"Type", item.type},
           {"TaxType", item.tax_type},
           {"PayCal", adjusts ? "Gross" : ""},
           {"PayStyle", item.pay_style},
           {"PayType", item.pay_type},
           {"TrackingType", item.tracking},
           {"SState", state ? "IL" : ""},
           {"LiabilityAcct", Category_Of(chart, item.liability)},
           {"ExpenseAcct", Category_Of(chart, item.expense)},
           {"LiabilityAgency", item.agency},
           {"LiabilityNumber", item.number},
           {"DefaultRate", item.rate},
           {"DefaultLimit", Limit_Of(item)},
           {"UnempTaxRate", unemployment ? "3.35%" : ""},
           {"TaxPaid", item.tax_paid},
           {"QuantityBased", false},
           {"FUTACredit", unemployment}});
}

/// Retirement lowers the wage for income taxes only.
bool Lowers(std::string_view adjustment, std::string_view tax) {
  return adjustment != pay_items::retirement || tax == pay_items::federal || tax == pay_items::state_tax;
}

void Write_Ticks(store::Database& db) {
  const Names taxes = Names_Where(db, "Type LIKE '*Tax*'");
  const Names pay = Names_Where(db, "Type = 'Wage' OR Type = 'Addition'");
  const Names deductions = Names_Where(db, "Type = 'Deduction'");
  for (const auto& tax : taxes) {
    for (const auto& wage : pay) Add_Row(db, "PreWageTable", {{"Name", tax}, {"WageName", wage}, {"Selected", true}});
    for (const auto& deduction : deductions)
      Add_Row(db, "PreDeducTable",
              {{"Name", tax},
               {"DeducName", deduction},
               {"Selected", deduction == pay_items::retirement && Lowers(deduction, tax)}});
  }
  for (const auto& item : Names_Where(db, "Type = 'Addition' OR Type = 'Deduction' OR Type = 'Company Contribution'"))
    for (const auto& tax : taxes) {
      const bool selected = item == pay_items::bonus || (item == pay_items::retirement && Lowers(item, tax));
      Add_Row(db, "PreTaxTable", {{"Name", item}, {"TaxName", tax}, {"Selected", selected}});
    }
  for (const auto& wage : pay) Add_Row(db, "PreWageSet", {{"Wage", wage}, {"Default", true}});
  for (const auto& deduction : deductions) Add_Row(db, "PreDeducSet", {{"PreDeduc", deduction}, {"Default", false}});
  for (const auto& tax : Names_Where(db, "Type = 'State Tax' OR Type = 'Other Tax'"))
    Add_Row(db, "PreTaxSet", {{"PreTax", tax}, {"Default", false}});
}

}  // namespace

void Write_Payroll_Items(store::Database& db, const Chart& chart) {
  db.Execute("UPDATE PayrollItems SET LiabilityAgency = ? WHERE Type = 'Federal Tax'", {treasury});
  for (const Definition& item : definitions) Write_Item(db, chart, item);
  Write_Ticks(db);
}

}  // namespace tallymere::demo
