#include "shell/drop_downs.h"

#include "core/ledger/category_list.h"
#include "core/values/format.h"
#include "lists/small_lists.h"

namespace tallymere {

namespace {

std::vector<SSDBDropDown::Item> plain_items(const std::vector<std::string>& names) {
  std::vector<SSDBDropDown::Item> items;
  for (const std::string& name : names) items.push_back({name, {}});
  return items;
}

}  // namespace

DropDowns::DropDowns(Session& session, QObject* parent)
    : QObject(parent),
      drpExpenseList(new SSDBDropDown(this)),
      drpItems(new SSDBDropDown(this)),
      drpCustomers(new SSDBDropDown(this)),
      drpClass(new SSDBDropDown(this)),
      session_(session),
      small_{{Class_List.table, {Class_List, drpClass}}} {
  drpExpenseList->set_columns({{.name = QStringLiteral("Category")}, {.name = QStringLiteral("Type")}});
  drpItems->set_columns({{.name = QStringLiteral("Item")},
                         {.name = QStringLiteral("Description"), .width = 30},
                         {.name = QStringLiteral("Price"), .money = true}});
}

void DropDowns::fill() {
  fill_categories();
  fill_items();
  fill_payees();
  for (const auto& [table, small] : small_) fill(small);
}

void DropDowns::changed(const std::string& table) {
  const bool payees = table == "Vendors" || table == "Customers" || table == "Employees" || table == "OtherNames";
  if (table == "Accounts") fill_categories();
  if (table == "Items") fill_items();
  if (payees) fill_payees();
  if (const auto found = small_.find(table); found != small_.end()) fill(found->second);
}

void DropDowns::fill_categories() {
  std::vector<SSDBDropDown::Item> items;
  for (const CategoryRow& row : Make_Expense_List(*session_.dbCompany))
    items.push_back({Indented(row.AccountName, row.level) + "\t" + row.AccountType, row.CatID});
  drpExpenseList->set_items(items);
}

void DropDowns::fill_items() {
  std::vector<SSDBDropDown::Item> items;
  for (const ItemRow& row : Make_Item_List(*session_.dbCompany))
    items.push_back(
        {Indented(row.ItemName, row.level) + "\t" + row.Description + "\t" + Rate_Text(row.PriceRate, row.ItemType),
         {}});
  drpItems->set_items(items);
}

void DropDowns::fill_payees() { drpCustomers->set_items(plain_items(VENandCustList(session_))); }

void DropDowns::fill(const Small& small) {
  std::vector<std::string> names;
  for (const SmallListRow& row : Small_List_Rows(session_, small.list)) names.push_back(row.text);
  small.rows->set_items(plain_items(names));
}

SSDBDropDown* DropDowns::small_list(const SmallList& list) {
  const auto found = small_.find(list.table);
  if (found != small_.end()) return found->second.rows;
  const Small made{list, new SSDBDropDown(this)};
  small_.emplace(list.table, made);
  return made.rows;
}

}  // namespace tallymere
