#pragma once

#include <map>
#include <string>

#include "payroll/calc/calculate.h"
#include "support/test_company.h"

namespace tallymere::testing {

inline PayItem Wage(std::string name, bool salary) {
  return {.Name = std::move(name), .Type = "Wage", .PayStyle = "Regular", .PayType = salary ? "Salary" : "Hourly"};
}

inline PayItem Federal_Tax(std::string_view name, std::string rate, std::string unemployment = "") {
  PayItem item{.Name = std::string(name), .Type = "Federal Tax"};
  item.DefaultRate = std::move(rate);
  item.UnempTaxRate = std::move(unemployment);
  if (!item.UnempTaxRate.empty()) item.DefaultLimit = Money::dollars(7000);
  return item;
}

inline PayItem State_Tax(const std::string& state, std::string tax_type, std::string rate = "", Money limit = {}) {
  PayItem item{.Name = state + (rate.empty() ? " Withholding" : " Unemployment"), .Type = "State Tax"};
  item.TaxType = std::move(tax_type);
  item.SState = state;
  item.UnempTaxRate = std::move(rate);
  if (!limit.is_zero()) item.DefaultLimit = limit;
  return item;
}

/// The items that every calculation needs, with a salary, an hourly wage and the withholding of five states.
inline PayItems Usual_Items() {
  PayItems items;
  items.add(Wage("Salary", true));
  items.add(Wage("Hourly", false));
  items.add(Federal_Tax("Federal Withholding", ""));
  items.add(Federal_Tax("Social Security Company", "6.2%"));
  items.add(Federal_Tax("Social Security Employee", "6.2%"));
  items.add(Federal_Tax("Medicare Company", "1.45%"));
  items.add(Federal_Tax("Medicare Employee", "1.45%"));
  items.add(Federal_Tax("Federal Unemployment", "", "0.006"));
  for (const char* state : {"MN", "WI", "MO", "IN", "IL"}) items.add(State_Tax(state, "State Withholding"));
  return items;
}

/// A calculation on paper: facts without a company.
struct PayCase {
  explicit PayCase(std::shared_ptr<const TaxTables> tables, PayItems items = Usual_Items()) {
    facts.tables = std::move(tables);
    facts.items = std::make_shared<const PayItems>(std::move(items));
    facts.employee = {
        .SSNum = "1", .Name = "Ann", .PayPeriod = "Weekly", .FedStatus = "Single", .StateStatus = "Single"};
  }
  PayCase& calculate() {
    Calculate(check, facts);
    return *this;
  }
  /// The amount of a row; "none" without it.
  std::string employee(std::string_view name) const { return amount(check.grdEmployee, name); }
  std::string company(std::string_view name) const { return amount(check.grdCompany, name); }

  PayFacts facts;
  Paycheck check;

 private:
  static std::string amount(const std::vector<SummaryRow>& grid, std::string_view name) {
    const auto row = std::ranges::find(grid, name, &SummaryRow::Name);
    return row == grid.end() ? "none" : row->Amount;
  }
};

/// The tables that ship, read once for all tests.
inline std::shared_ptr<const TaxTables> Shipped_Tables() {
  static const auto tables = [] {
    TempFolder folder;
    Prepare_Folder(folder.path(), data_folder);
    auto accounts = Open_Current(folder.path() / "Accounts.mdb", store::FileKind::Shared);
    return TaxTables::Of(*accounts);
  }();
  return tables;
}

}  // namespace tallymere::testing
