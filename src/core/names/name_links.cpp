#include "core/names/name_links.h"

#include <algorithm>
#include <array>

#include "core/store/sql.h"

namespace tallymere {
namespace {

using enum NameList;
using enum NameLink::Hold;

constexpr NameTable tables[] = {{Customers, "Customers", "Name", "customer", "ParentName"},
                                {Vendors, "Vendors", "Name", "vendor"},
                                {Items, "Items", "ItemName", "item", "ParentItem"},
                                {Employees, "Employees", "Name", "employee"},
                                {OtherNames, "OtherNames", "Name", "other name"}};

constexpr bool payee = true;
constexpr NameLink links[] = {
    {Customers, "Transactions", "Name", "transaction", Entry, "", payee},
    {Customers, "Transactions", "SourceName", "transaction line", Entry, "Type <> 'Invoice'"},  // there it is the style
    {Customers, "Customers", "ParentName", "job", List},
    {Customers, "Estimates", "Customer", "estimate"},
    {Customers, "PSlips", "Vendor", "package slip"},
    {Customers, "Time", "Customer", "time sheet line"},
    {Vendors, "Transactions", "Name", "transaction", Entry, "", payee},
    {Vendors, "POs", "Vendor", "purchase order"},
    {Vendors, "Items", "InvVendor", "item", List},
    {Vendors, "Items", "TaxVendor", "item", List},
    {Vendors, "PayrollItems", "LiabilityAgency", "payroll item", List},
    {Vendors, "SavedReports", "Item", "saved report", List, "Parent = 'VendorRep'"},
    {Items, "Transactions", "Item", "transaction"},
    {Items, "Items", "ParentItem", "sub-item", List},
    {Items, "ItemGroups", "Item", "group", List},
    {Items, "ItemGroups", "GroupName", "", Owned},
    {Items, "POItems", "Item", "purchase order line"},
    {Items, "EstItems", "Item", "estimate line"},
    {Items, "PSlipItems", "Item", "package slip line"},
    {Items, "Time", "Item", "time sheet line"},
    {Items, "SavedReports", "Item", "saved report", List, "Parent = 'ItemRep'"},
    {Employees, "Transactions", "Name", "transaction", Entry, "", payee},
    {Employees, "PayHistory", "Employee", "pay period", List},
    {OtherNames, "Transactions", "Name", "transaction", Entry, "", payee},
};

/// Whose transactions of some types are: the first of these lists that has the name.
struct Owners {
  std::string_view types;  ///< SQL; empty: all the others
  std::array<NameList, 4> first_to_last;
};
constexpr std::string_view customers_types = "'Invoice', 'Payment', 'Statement', 'Deposit'";
constexpr std::string_view vendors_types = "'Bill', 'Credit', 'Billcheck', 'Item Receipt', 'Check', 'Liabilitycheck'";
constexpr std::string_view employees_types = "'Paycheck', 'YTD Adjust'";
constexpr Owners owners[] = {{customers_types, {Customers, Vendors, OtherNames, Employees}},
                             {vendors_types, {Vendors, OtherNames, Employees, Customers}},
                             {employees_types, {Employees, Vendors, OtherNames, Customers}},
                             {"", {Customers, Vendors, OtherNames, Employees}}};

bool Has_Name(store::Database& db, NameList list, const std::string& name) {
  const NameTable& table = Table_Of(list);
  return !db.value("SELECT RowKey FROM " + store::Quoted(table.table) + " WHERE " + store::Quoted(table.field) + " = ?",
                   {name})
              .is_null();
}

std::string Types_Condition(std::string_view types) {
  if (!types.empty()) return "Type IN (" + std::string(types) + ")";
  std::string all;
  for (const Owners& of : owners)
    if (!of.types.empty()) all += (all.empty() ? "" : ", ") + std::string(of.types);
  return "Type NOT IN (" + all + ")";
}

}  // namespace

std::span<const NameTable> Name_Tables() { return tables; }
std::span<const NameLink> Name_Links() { return links; }

const NameTable& Table_Of(NameList list) { return *std::ranges::find(tables, list, &NameTable::list); }

std::string Payee_Condition(store::Database& db, NameList list, const std::string& name) {
  std::vector<NameList> holders;
  for (const NameList other : owners[0].first_to_last)
    if (other == list || Has_Name(db, other, name)) holders.push_back(other);
  if (holders.size() == 1) return "";
  std::string own;
  for (const Owners& of : owners) {
    const auto first = std::ranges::find_first_of(of.first_to_last, holders);
    if (*first == list) own += (own.empty() ? "" : " OR ") + Types_Condition(of.types);
  }
  return " AND (" + (own.empty() ? "1 = 0" : own) + ")";
}

}  // namespace tallymere
