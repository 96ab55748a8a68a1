#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/ledger/category_tree.h"

/// Which categories a statement walks, section by section.
namespace tallymere {

using CatIDs = std::vector<std::string>;

/// The sections of a profit and loss in their order. On the expense side a debit is positive.
inline constexpr std::array<std::string_view, 5> PL_Sections = {"Income", "Other Income", "Cost of Goods Sold",
                                                                "Expense", "Other Expense"};
bool Is_Expense_Side(std::string_view AccountType);

/// Whether a category stands at the top: it has no parent, or one that is gone.
bool Is_Top_Level(const CategoryTree& tree, const Category& category);
/// The top-level categories, by name, as every statement walks them.
std::vector<const Category*> Top_Level_By_Name(const CategoryTree& tree);

/// The CatIDs of a section: its top-level categories with all that stands below them.
CatIDs Section_Categories(const CategoryTree& tree, std::string_view AccountType);
/// Those of all sections of a profit and loss.
CatIDs Result_Categories(const CategoryTree& tree);
/// A category with all that stands below it.
CatIDs Family_Of(const CategoryTree& tree, const std::string& CatID);

}  // namespace tallymere
