#include "core/ledger/category_tree.h"

namespace tallymere {
namespace {

Category Read_Category(const store::Row& row) {
  auto text = [&](int column) { return std::string(row.text(column)); };
  auto amount = [&](int column) { return row.is_null(column) ? std::nullopt : std::optional(row.money(column)); };
  return {.key = row.integer(0),
          .CatID = text(1),
          .AccountName = text(2),
          .AccountType = text(3),
          .AccountNum = text(4),
          .Description = text(5),
          .ParentAccount = text(6),
          .Dormant = row.flag(7),
          .Balance = amount(8),
          .LastYearEndBal = amount(9)};
}

}  // namespace

CategoryTree CategoryTree::Load(store::Database& db) {
  CategoryTree tree;
  db.each(
      "SELECT RowKey, CatID, AccountName, AccountType, AccountNum, Description, ParentAccount, Dormant, "
      "Balance,"
      " LastYearEndBal FROM Accounts ORDER BY RowKey",
      {}, [&](const store::Row& row) { tree.categories_.push_back(Read_Category(row)); });
  for (size_t at = 0; at < tree.categories_.size(); ++at) {
    const Category& category = tree.categories_[at];
    const bool is_first =
        tree.by_id_.try_emplace(category.CatID, at).second;  // a second of its id would multiply all below
    if (is_first && !category.ParentAccount.empty()) tree.children_[category.ParentAccount].push_back(at);
  }
  return tree;
}

const Category* CategoryTree::find(std::string_view CatID) const {
  auto found = by_id_.find(CatID);
  return found == by_id_.end() ? nullptr : &categories_[found->second];
}

std::string CategoryTree::name(std::string_view CatID) const {
  const Category* category = find(CatID);
  return category ? category->AccountName : "";
}

const Category* CategoryTree::parent(const Category& child) const {
  return child.ParentAccount.empty() ? nullptr : find(child.ParentAccount);
}

std::vector<const Category*> CategoryTree::children(std::string_view CatID) const {
  std::vector<const Category*> found;
  if (auto entry = children_.find(CatID); entry != children_.end())
    for (size_t at : entry->second) found.push_back(&categories_[at]);
  return found;
}

std::vector<const Category*> CategoryTree::descendants(std::string_view CatID) const {
  std::vector<const Category*> found;
  // However deep, and a category that was made its own ancestor must not send this round in circles.
  CaselessMap<bool> seen{{std::string(CatID), true}};
  std::vector<const Category*> open;
  const auto open_below = [&](std::string_view parent) {
    const auto below = children(parent);
    open.insert(open.end(), below.rbegin(), below.rend());
  };
  for (open_below(CatID); !open.empty();) {
    const Category* next = open.back();
    open.pop_back();
    if (!seen.try_emplace(next->CatID, true).second) continue;
    found.push_back(next);
    open_below(next->CatID);
  }
  return found;
}

}  // namespace tallymere
