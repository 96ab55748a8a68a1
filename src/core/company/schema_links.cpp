#include <algorithm>
#include <array>

#include "core/company/schema.h"
#include "core/values/text.h"

// What joins the tables: indexes made for reading, the stored query, and what points at what.
namespace tallymere {
namespace {

constexpr ReadingIndex reading[] = {
    // every window loads, rewrites and walks whole transactions; the highest number gives the next one
    {"Transactions_TransNum", "Transactions", "TransNum", ""},
    // registers, balances and every report sum one category over a range of days, from the index alone; on
    // cash basis too
    {"Transactions_Account", "Transactions", "Account, Date, Debit, Credit, Type, Paid, Amount", ""},
    // one customer's, vendor's or payee's rows, of one category or all, summed from the index alone
    {"Transactions_Name", "Transactions", "Name, Account, Date, Debit, Credit, Type, Paid", ""},
    // the unpaid bills of each vendor, asked for whenever their list comes up
    {"Transactions_Unpaid", "Transactions", "Name, Debit", "Type = 'Bill' AND Paid = 0"},
    // find by day, the list of years, reports over all categories of a period; what was paid in it
    {"Transactions_Date", "Transactions", "Date, TransNum", ""},
    // stock, sales and sales tax of one item, summed from the index alone; most rows have none
    {"Transactions_Item", "Transactions",
     "Item, Date, Type, Paid, SourceName, Qty, Amount, Debit, Credit, Category, Account, Taxable", "Item IS NOT NULL"},
    // bills that nothing has paid yet, which do not count on cash basis
    {"Transactions_OpenBills", "Transactions", "Account, Date, Debit, Credit",
     "Type = 'Bill' AND COALESCE(PaidBy, '') = ''"},
    // one employee's sums per payroll item since New Year, asked for each line of a paycheck
    {"Transactions_SSNum", "Transactions", "SSNum, PayrollItem, Date", "SSNum IS NOT NULL"},
    // liabilities and tax forms sum one payroll item over all employees
    {"Transactions_PayrollItem", "Transactions", "PayrollItem, Date", "PayrollItem IS NOT NULL"},
    // the bills that a check paid, when it is shown, printed or deleted; income by the day it was paid
    {"Transactions_PaidBy", "Transactions", "PaidBy, Account, TransNum, Credit, Amount, Type, Paid",
     "PaidBy IS NOT NULL"},
    // what an invoice comes to: the first of its rows on AR1, as the rows were written
    {"Transactions_Receivable", "Transactions", "TransNum, RowKey, Amount", "Account = 'AR1'"},
    // income of a period, when the invoice had been paid in part before
    {"Transactions_PaidByMore", "Transactions", "PaidBy", not_one_payment},
    // what a payment settled, and by whom a document was settled, at every save and deletion
    {"Applied_Payment", "Applied", "Payment, Document", ""},
    {"Applied_Document", "Applied", "Document, RowKey, Payment, Amount", ""},
};

constexpr StoredQuery queries[] = {
    {"VENandCustList",
     "SELECT Name FROM Vendors UNION SELECT Name FROM Customers UNION SELECT Name FROM Employees "
     "UNION SELECT Name FROM OtherNames"},
};

constexpr std::string_view not_template = "SSNum <> '000'";

constexpr Reference links[] = {
    {"Transactions", "Account", "Accounts", "CatID"},
    {.from_table = "Transactions",
     .from_field = "Category",
     .to_table = "Accounts",
     .to_field = "CatID",
     .or_words = true},
    {"Applied", "Payment", "Transactions", "TransNum"},
    {"Estimates", "TakenBy", "Transactions", "TransNum"},
    {"PSlips", "TakenBy", "Transactions", "TransNum"},
    {"POs", "TakenBy", "Transactions", "TransNum"},
    {"Applied", "Document", "Transactions", "TransNum"},
    {"Transactions", "Item", "Items", "ItemName"},
    {"Transactions", "SSNum", "Employees", "SSNum"},
    {"Transactions", "PayrollItem", "PayrollItems", "Name"},
    {"RepeatTrans", "TransactionID", "Transactions", "TransNum"},
    {"RepeatTrans", "SourceCat", "Accounts", "CatID"},
    {"Accounts", "ParentAccount", "Accounts", "CatID"},
    {"Budget", "Category", "Accounts", "CatID"},
    {"GeneralPrefs", "State", "Accounts", "CatID", "Preference IN ('DefaultBank', 'FinanceCat')"},
    {.from_table = "SavedReports", .from_field = "Item", .to_table = "Accounts", .to_field = "CatID", .or_words = true},
    {"Customers", "ParentName", "Customers", "Name"},
    {"Vendors", "1099Cat", "Accounts", "CatID"},
    {"Items", "ParentItem", "Items", "ItemName"},
    {"Items", "ItemCat", "Accounts", "CatID"},
    {"Items", "COGScat", "Accounts", "CatID"},
    {"Items", "InvAsset", "Accounts", "CatID"},
    {"Items", "PayTo", "Accounts", "CatID"},
    {"ItemGroups", "GroupName", "Items", "ItemName"},
    {"ItemGroups", "Item", "Items", "ItemName"},
    {"POItems", "POIndex", "POs", "Index"},
    {"PSlipItems", "POIndex", "PSlips", "Index"},
    {"EstItems", "EstimateIndex", "Estimates", "Index"},
    {"EmployeeEarnings", "SSNum", "Employees", "SSNum", not_template},
    {"EmployeeEarnings", "Wage", "PayrollItems", "Name"},
    {"EmployeeAdjustments", "SSNum", "Employees", "SSNum", not_template},
    {"EmployeeAdjustments", "Adjustment", "PayrollItems", "Name"},
    {"EmployeeTaxes", "SSNum", "Employees", "SSNum", not_template},
    {"EmployeeTaxes", "Tax", "PayrollItems", "Name"},
    {"PayrollItems", "LiabilityAcct", "Accounts", "CatID"},
    {"PayrollItems", "ExpenseAcct", "Accounts", "CatID"},
    {"PreTaxTable", "Name", "PayrollItems", "Name"},
    {"PreTaxTable", "TaxName", "PayrollItems", "Name"},
    {"PreWageTable", "Name", "PayrollItems", "Name"},
    {"PreWageTable", "WageName", "PayrollItems", "Name"},
    {"PreDeducTable", "Name", "PayrollItems", "Name"},
    {"PreDeducTable", "DeducName", "PayrollItems", "Name"},
    {"PreTaxSet", "PreTax", "PayrollItems", "Name"},
    {"PreWageSet", "Wage", "PayrollItems", "Name"},
    {"PreDeducSet", "PreDeduc", "PayrollItems", "Name"},
};

// "Time20260104": a table made on demand, followed by its day.
bool dated(std::string_view name, const TableDef& table) {
  if (!table.on_demand || name.size() != table.name.size() + 8 ||
      !same_text(name.substr(0, table.name.size()), table.name))
    return false;
  return std::ranges::all_of(name.substr(table.name.size()), [](char c) { return c >= '0' && c <= '9'; });
}

const TableDef* find_in(std::span<const TableDef> tables, std::string_view name) {
  const auto found = std::ranges::find_if(
      tables, [name](const TableDef& table) { return same_text(table.name, name) || dated(name, table); });
  return found == tables.end() ? nullptr : &*found;
}

}  // namespace

std::span<const ReadingIndex> reading_indexes() { return reading; }
std::span<const StoredQuery> stored_queries() { return queries; }
std::span<const Reference> references() { return links; }

const TableDef* find_table(std::string_view name) {
  if (const TableDef* table = find_in(company_tables(), name)) return table;
  return find_in(accounts_tables(), name);
}

const FieldDef* TableDef::find_field(std::string_view field) const {
  const auto found = std::ranges::find_if(fields, [field](const FieldDef& def) { return same_text(def.name, field); });
  return found == fields.end() ? nullptr : &*found;
}

std::string_view Type_Name(FieldType type) {
  constexpr std::array<std::string_view, 8> names = {"Text",  "Memo",   "Long", "Integer",
                                                     "Money", "Double", "Date", "Flag"};
  return names[static_cast<std::size_t>(type)];
}

}  // namespace tallymere
