#pragma once

#include <span>
#include <string>
#include <vector>

#include "core/store/value.h"

namespace tallymere::store {

/// One piece of a statement.
struct SqlPiece {
  enum class Kind { Blank, Word, Text, Parameter, Mark };
  Kind kind;
  std::string text;
};

/// The engine calls every comparison with null unknown, which drops the row. This rewrites comparisons of a column with
/// a text so that null counts as empty text, in forms that use an index wherever the plain one does.
void Take_Null_As_Blank(std::vector<SqlPiece>& pieces, std::span<const Value> params);

}  // namespace tallymere::store
