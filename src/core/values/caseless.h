#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "core/values/text.h"

namespace tallymere {

struct CaselessHash {
  using is_transparent = void;
  size_t operator()(std::string_view text) const { return std::hash<std::string>{}(folded(text)); }
};
struct CaselessEqual {
  using is_transparent = void;
  bool operator()(std::string_view a, std::string_view b) const { return same_text(a, b); }
};

/// Keyed by a name or CatID as the store compares them: letter case does not count.
template <typename T>
using CaselessMap = std::unordered_map<std::string, T, CaselessHash, CaselessEqual>;

}  // namespace tallymere
