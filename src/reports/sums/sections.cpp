#include "reports/sums/sections.h"

#include <algorithm>

#include "core/values/text.h"

namespace tallymere {

bool Is_Expense_Side(std::string_view type) { return contains(type, "Expense") || type == "Cost of Goods Sold"; }

bool Is_Top_Level(const CategoryTree& tree, const Category& category) { return !tree.parent(category); }

std::vector<const Category*> Top_Level_By_Name(const CategoryTree& tree) {
  std::vector<const Category*> top;
  for (const Category& category : tree.all())
    if (Is_Top_Level(tree, category)) top.push_back(&category);
  std::stable_sort(top.begin(), top.end(),
                   [](auto* a, auto* b) { return folded(a->AccountName) < folded(b->AccountName); });
  return top;
}

CatIDs Family_Of(const CategoryTree& tree, const std::string& CatID) {
  CatIDs family = {CatID};
  for (const Category* below : tree.descendants(CatID)) family.push_back(below->CatID);
  return family;
}

CatIDs Section_Categories(const CategoryTree& tree, std::string_view section) {
  CatIDs ids;
  for (const Category& category : tree.all()) {
    if (!Is_Top_Level(tree, category) || category.AccountType != section) continue;
    for (std::string& id : Family_Of(tree, category.CatID)) ids.push_back(std::move(id));
  }
  return ids;
}

CatIDs Result_Categories(const CategoryTree& tree) {
  CatIDs all;
  for (std::string_view section : PL_Sections)
    for (std::string& id : Section_Categories(tree, section)) all.push_back(std::move(id));
  return all;
}

}  // namespace tallymere
