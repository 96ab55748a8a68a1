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
      session_(session) {
  drpExpenseList->set_columns({{.name = QStringLiteral("AccountName")}, {.name = QStringLiteral("Type")}});
  drpItems->set_columns({{.name = QStringLiteral("ItemName")},
                         {.name = QStringLiteral("Description"), .width = 30},
                         {.name = QStringLiteral("PriceRate"), .money = true}});
}

void DropDowns::fill() {
  fill_categories();
  fill_items();
  fill_payees();
  fill_classes();
}

void DropDowns::changed(const std::string& table) {
  const bool payees = table == "Vendors" || table == "Customers" || table == "Employees" || table == "OtherNames";
  if (table == "Accounts") fill_categories();
  if (table == "Items") fill_items();
  if (payees) fill_payees();
  if (table == "Class") fill_classes();
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
        {Indented(row.ItemName, row.level) + "\t" + row.Description + "\t" + Format(row.PriceRate, "#,##0.00"), {}});
  drpItems->set_items(items);
}

void DropDowns::fill_payees() { drpCustomers->set_items(plain_items(VENandCustList(session_))); }

void DropDowns::fill_classes() {
  std::vector<std::string> names;
  for (const SmallListRow& row : Small_List_Rows(session_, Class_List)) names.push_back(row.text);
  drpClass->set_items(plain_items(names));
}

}  // namespace tallymere
