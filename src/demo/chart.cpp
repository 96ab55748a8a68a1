#include "demo/chart.h"

#include <array>

#include "demo/rows.h"

namespace tallymere::demo {
namespace {

struct Role {
  std::string Chart::*id;
  std::string_view name, type;
  std::string_view parent = {};
};

constexpr std::array roles = {
    Role{&Chart::checking, "Checking", "Bank"},
    Role{&Chart::savings, "Savings", "Bank"},
    Role{&Chart::card, "Company Credit Card", "Credit Card"},
    Role{&Chart::inventory, "Inventory Asset", "Current Asset"},
    Role{&Chart::equipment, "Machinery and Equipment", "Fixed Asset"},
    Role{&Chart::vehicles, "Vehicles", "Fixed Asset"},
    Role{&Chart::depreciated, "Accumulated Depreciation", "Fixed Asset"},
    Role{&Chart::sales_tax, "Sales Tax Payable", "Current Liability"},
    Role{&Chart::credit_line, "Line of Credit", "Current Liability"},
    Role{&Chart::vehicle_loan, "Vehicle Loan", "Long Term Liability"},
    Role{&Chart::federal_withheld, "Federal Withholding Payable", "Current Liability", "Payroll Liabilities"},
    Role{&Chart::social_security, "Social Security Payable", "Current Liability", "Payroll Liabilities"},
    Role{&Chart::medicare, "Medicare Payable", "Current Liability", "Payroll Liabilities"},
    Role{&Chart::federal_unemployment, "Federal Unemployment Payable", "Current Liability", "Payroll Liabilities"},
    Role{&Chart::state_withheld, "State Withholding Payable", "Current Liability", "Payroll Liabilities"},
    Role{&Chart::state_unemployment, "State Unemployment Payable", "Current Liability", "Payroll Liabilities"},
    Role{&Chart::deductions, "Employee Deductions Payable", "Current Liability", "Payroll Liabilities"},
    Role{&Chart::investment, "Owner's Investment", "Equity"},
    Role{&Chart::draw, "Owner's Draw", "Equity"},
    Role{&Chart::sales, "Sales Income", "Income"},
    Role{&Chart::services, "Service Income - Other", "Income", "Service Income"},
    Role{&Chart::design, "Design Fees", "Income", "Service Income"},
    Role{&Chart::installation, "Installation Work", "Income", "Service Income"},
    Role{&Chart::upkeep, "Maintenance Contracts", "Income", "Service Income"},
    Role{&Chart::shipping, "Shipping Income", "Income"},
    Role{&Chart::finance, "Finance Charge Income", "Income"},
    Role{&Chart::discounts, "Sales Discounts", "Income"},
    Role{&Chart::interest, "Interest Income", "Other Income"},
    Role{&Chart::cost_of_goods, "Cost of Goods Sold", "Cost of Goods Sold"},
    Role{&Chart::freight, "Freight In", "Cost of Goods Sold"},
    Role{&Chart::materials, "Job Materials", "Cost of Goods Sold"},
    Role{&Chart::subcontractors, "Subcontractors", "Cost of Goods Sold"},
    Role{&Chart::advertising, "Advertising and Promotion", "Expense"},
    Role{&Chart::fuel, "Fuel", "Expense", "Automobile"},
    Role{&Chart::repairs, "Vehicle Repairs", "Expense", "Automobile"},
    Role{&Chart::vehicle_insurance, "Vehicle Insurance", "Expense", "Automobile"},
    Role{&Chart::bank_charges, "Bank Service Charges", "Expense"},
    Role{&Chart::computer, "Computer and Internet", "Expense"},
    Role{&Chart::depreciation, "Depreciation", "Expense"},
    Role{&Chart::dues, "Dues and Subscriptions", "Expense"},
    Role{&Chart::liability_insurance, "Liability Insurance", "Expense", "Insurance"},
    Role{&Chart::property_insurance, "Property Insurance", "Expense", "Insurance"},
    Role{&Chart::workers_insurance, "Workers' Compensation Insurance", "Expense", "Insurance"},
    Role{&Chart::loan_interest, "Loan Interest", "Expense", "Interest Expense"},
    Role{&Chart::adjustments, "Inventory Adjustments", "Expense"},
    Role{&Chart::licenses, "Licenses and Permits", "Expense"},
    Role{&Chart::meals, "Meals", "Expense"},
    Role{&Chart::office, "Office Supplies", "Expense"},
    Role{&Chart::wages, "Wages and Salaries", "Expense", "Payroll Expenses"},
    Role{&Chart::payroll_taxes, "Employer Payroll Taxes", "Expense", "Payroll Expenses"},
    Role{&Chart::benefits, "Employee Benefits", "Expense", "Payroll Expenses"},
    Role{&Chart::postage, "Postage and Delivery", "Expense"},
    Role{&Chart::accounting, "Accounting Fees", "Expense", "Professional Fees"},
    Role{&Chart::rent, "Rent", "Expense"},
    Role{&Chart::maintenance, "Repairs and Maintenance", "Expense"},
    Role{&Chart::tools, "Small Tools and Supplies", "Expense"},
    Role{&Chart::telephone, "Telephone", "Expense"},
    Role{&Chart::travel, "Travel", "Expense"},
    Role{&Chart::electricity, "Electricity", "Expense", "Utilities"},
    Role{&Chart::heating, "Heating", "Expense", "Utilities"},
    Role{&Chart::water, "Water and Sewer", "Expense", "Utilities"},
};

std::string Free_CatID(store::Database& db) {
  for (int number = 0;; ++number) {
    std::string id = std::to_string(number) + "SS";
    if (db.value("SELECT CatID FROM Accounts WHERE CatID = ?", {id}).blank()) return id;
  }
}

std::string Find_Or_Add(store::Database& db, std::string_view name, std::string_view type, std::string_view parent,
                        Date opening) {
  const auto found = db.value("SELECT CatID FROM Accounts WHERE AccountName = ? AND AccountType = ?", {name, type});
  if (!found.blank()) return found.text();
  std::string id = Free_CatID(db);
  Add_Row(db, "Accounts",
          {{"CatID", id},
           {"AccountName", name},
           {"AccountType", type},
           {"ParentAccount", parent},
           {"Dormant", false},
           {"Balance", Money()},
           {"LastYearEndBal", Money()},
           {"OpeningDate", opening}});
  return id;
}

}  // namespace

Chart::Chart(store::Database& db, Date opening) {
  for (const Role& role : roles) {
    const std::string parent = role.parent.empty() ? "" : Find_Or_Add(db, role.parent, role.type, "", opening);
    this->*role.id = Find_Or_Add(db, role.name, role.type, parent, opening);
  }
}

}  // namespace tallymere::demo
