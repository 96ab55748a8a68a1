#include "core/ledger/category_list.h"

#include <algorithm>

namespace tallymere {
namespace {

std::vector<CategoryRow> Read_Categories(store::Database& company) {
  std::vector<CategoryRow> rows;
  company.each(
      "SELECT CatID, AccountName, AccountType, ParentAccount, Balance, Dormant FROM Accounts ORDER BY "
      "AccountName",
      {}, [&](const store::Row& row) {
        rows.push_back({std::string(row.text(0)), std::string(row.text(1)), std::string(row.text(2)),
                        std::string(row.text(3)), row.money(4), row.flag(5)});
      });
  return rows;
}

std::vector<ItemRow> Read_Items(store::Database& company) {
  std::vector<ItemRow> rows;
  company.each(
      "SELECT ItemName, ItemType, ParentItem, Description, InvPurchaseDesc, ItemCat, PayMethod, PayTo, "
      "PriceRate, ExactRate, Cost, Dormant FROM Items ORDER BY ItemName",
      {}, [&](const store::Row& row) {
        const auto text = [&](int column) { return std::string(row.text(column)); };
        rows.push_back(
            {text(0), text(1), text(2), text(3), text(4), text(5), text(6), text(7),
             Rate_Of(row.is_null(8) ? store::Value() : row.money(8), row.is_null(9) ? store::Value() : row.number(9)),
             row.money(10), row.flag(11)});
      });
  Raise_Lost_Rows(rows, &ItemRow::ParentItem);
  return rows;
}

template <typename Row>
void Leave_Out_Dormant(std::vector<Row>& rows) {
  std::erase_if(rows, [](const Row& row) { return row.Dormant; });
}

template <typename Row>
std::vector<const Row*> Top_Rows(const std::vector<Row>& rows) {
  std::vector<const Row*> tops;
  for (const Row& row : rows)
    if (row.parent().empty()) tops.push_back(&row);
  return tops;
}

template <typename Row>
void Sort_By_Type(std::vector<const Row*>& tops, const std::string Row::*type) {
  std::stable_sort(tops.begin(), tops.end(),
                   [&](const Row* a, const Row* b) { return folded(a->*type) < folded(b->*type); });
}

template <typename Row>
std::vector<Row> Walk(const std::vector<Row>& rows, const std::vector<const Row*>& tops) {
  TreeList<Row> tree(rows);
  for (const Row* top : tops) tree.add(*top);
  return std::move(tree.list);
}

}  // namespace

std::vector<CategoryRow> Make_Category_List(store::Database& company, bool show_dormant) {
  auto rows = Read_Categories(company);
  if (!show_dormant) Leave_Out_Dormant(rows);
  std::vector<const CategoryRow*> tops;
  for (const std::string_view type : Category_Types)
    for (const CategoryRow* top : Top_Rows(rows))
      if (same_text(top->AccountType, type)) tops.push_back(top);
  return Walk(rows, tops);
}

std::vector<CategoryRow> Make_Expense_List(store::Database& company) {
  const auto rows = Read_Categories(company);
  auto tops = Top_Rows(rows);
  Sort_By_Type(tops, &CategoryRow::AccountType);
  return Walk(rows, tops);
}

std::vector<ItemRow> Make_Item_List(store::Database& company, ItemOrder order, bool show_dormant) {
  auto rows = Read_Items(company);
  if (!show_dormant) Leave_Out_Dormant(rows);
  auto tops = Top_Rows(rows);
  if (order == ItemOrder::TypeThenName) Sort_By_Type(tops, &ItemRow::ItemType);
  return Walk(rows, tops);
}

}  // namespace tallymere
