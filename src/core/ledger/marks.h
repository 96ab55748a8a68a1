#pragma once

#include <cstdint>
#include <string_view>

#include "core/store/database.h"

/// How far a company has come in things that never go back: numbers that were given, figures that were worked out.
/// A mark is written in the commit that moves it, stands in no history, and no undo touches it.
namespace tallymere {

int64_t Mark(store::Database& db, std::string_view name);  ///< 0 until it is set
void Set_Mark(store::Database& db, std::string_view name, int64_t value);
void Raise_Mark(store::Database& db, std::string_view name, int64_t value);  ///< a lower value changes nothing

}  // namespace tallymere
