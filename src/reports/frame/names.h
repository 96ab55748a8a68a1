#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/ledger/category_tree.h"

namespace tallymere {

/// The names in a list of the company ("Customers", "Vendors", "Class", "PayrollItems"), in the order in which
/// every report walks them.
std::vector<std::string> Names_In(store::Database& db, std::string_view table);

/// What stands for a row's Account or Category: the AccountName, "<-Break Down->" as it is, "" for what is no
/// category.
std::string Category_Name(const CategoryTree& tree, std::string_view CatID);

}  // namespace tallymere
