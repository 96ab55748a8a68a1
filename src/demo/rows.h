#pragma once

#include <initializer_list>
#include <string_view>
#include <utility>

#include "core/store/database.h"

namespace tallymere::demo {

using Field = std::pair<std::string_view, store::Value>;

/// Adds one row to a list; what is not named stays null.
void Add_Row(store::Database& db, std::string_view table, std::initializer_list<Field> fields);

}  // namespace tallymere::demo
