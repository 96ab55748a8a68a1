#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "core/values/text.h"

namespace tallymere {

/// Blanks before a name in a list, for each level below the top.
inline constexpr int Blanks_Per_Level = 5;
/// How deep a list shows its rows; also what ends a walk through rows that name each other as parents.
inline constexpr int Deepest_Level = 100;

inline std::string Indented(const std::string& name, int level) {
  return std::string(static_cast<size_t>(level * Blanks_Per_Level), ' ') + name;
}

/// Arranges the rows of one reading as lists show them: each top row followed by what stands below it,
/// children in the order of `rows`. `Row` has key(), parent() and a `level`, which is set here. A row whose
/// parent is missing does not show; none shows twice, however rows name each other.
template <typename Row>
class TreeList {
 public:
  explicit TreeList(const std::vector<Row>& rows) {
    for (const Row& row : rows)
      if (!row.parent().empty()) children_[folded(row.parent())].push_back(&row);
  }

  /// Adds a row of those handed over, at this level, and all below it.
  void add(const Row& row, int level = 0) {
    if (!shown_.insert(&row).second) return;
    list.push_back(row);
    list.back().level = level;
    if (level < Deepest_Level) SubList(row.key(), level + 1);
  }

  std::vector<Row> list;

 private:
  void SubList(const std::string& parent, int level) {
    const auto found = children_.find(folded(parent));
    if (found == children_.end()) return;
    for (const Row* child : found->second) add(*child, level);
  }

  std::map<std::string, std::vector<const Row*>> children_;  ///< by the parent's key, folded
  std::set<const Row*> shown_;
};

/// Puts at the top what no list would show otherwise: rows whose parent is gone, and one of those that name each other in
/// a circle. `parent` is the field that names it.
template <typename Row>
void Raise_Lost_Rows(std::vector<Row>& rows, std::string Row::*parent) {
  std::map<std::string, Row*> by_key;
  for (Row& row : rows) by_key.emplace(folded(row.key()), &row);
  const auto above = [&](const Row& row) {
    const auto found = by_key.find(folded(row.*parent));
    return found == by_key.end() ? nullptr : found->second;
  };
  std::set<const Row*> hangs;  // below a top row
  for (Row& row : rows) {
    std::set<const Row*> way;
    Row* at = &row;
    for (; at && !hangs.contains(at) && way.insert(at).second; at = above(*at))
      if (!above(*at)) (at->*parent).clear();
    if (at && !hangs.contains(at)) (at->*parent).clear();  // a circle begins anew here
    hangs.insert(way.begin(), way.end());
  }
}

}  // namespace tallymere
