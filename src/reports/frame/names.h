#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/ledger/category_tree.h"

namespace tallymere {

/// The names in a list of the company ("Customers", "Vendors", "Class", "PayrollItems"), in the order in which
/// every report walks them.
std::vector<std::string> Names_In(store::Database& db, std::string_view table);

/// The names that reports with a row for each name walk: those of the list, each once, then those that rows of the
/// ledger bear but the list has no more, renamed or deleted since, by name, and last "" for rows without any.
std::vector<std::string> Names_Met(store::Database& db, std::string_view table,
                                   const std::vector<std::string>& in_rows);

/// A name as it is shown: "" is "No Name".
std::string_view Shown_Name(std::string_view name);

/// What stands for a row's Account or Category: the AccountName, "<-Break Down->" as it is, "" for what is no
/// category.
std::string Category_Name(const CategoryTree& tree, std::string_view CatID);

}  // namespace tallymere
