#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/store/database.h"
#include "core/values/caseless.h"

namespace tallymere {

/// One row of Accounts.
struct Category {
  int64_t key = 0;  ///< hidden key
  std::string CatID, AccountName, AccountType, AccountNum, Description, ParentAccount;
  bool Dormant = false;
  std::optional<Money> Balance, LastYearEndBal;
};

/// All categories, read with one query, and who is whose child. It is a picture of the moment it was loaded.
class CategoryTree {
 public:
  static CategoryTree Load(store::Database& db);

  /// In the order they were entered; the pointers below point into this and live as long as the tree.
  const std::vector<Category>& all() const { return categories_; }
  const Category* find(std::string_view CatID) const;   ///< nullptr when there is none
  std::string name(std::string_view CatID) const;       ///< AccountName, or "" when there is none
  const Category* parent(const Category& child) const;  ///< nullptr at the top, or when the parent is gone
  bool has_children(std::string_view CatID) const { return children_.contains(CatID); }
  std::vector<const Category*> children(std::string_view CatID) const;

  /// All below a category at any depth, each once, every child followed by its own children; not the category
  /// itself.
  std::vector<const Category*> descendants(std::string_view CatID) const;

  /// Rolls figures kept by CatID up: the category's own with all its descendants'. T needs a default and
  /// `+=`.
  template <typename T>
  T sum_family(std::string_view CatID, const CaselessMap<T>& figures) const {
    T sum{};
    auto take = [&](std::string_view id) {
      if (auto found = figures.find(id); found != figures.end()) sum += found->second;
    };
    take(CatID);
    for (const Category* child : descendants(CatID)) take(child->CatID);
    return sum;
  }

 private:
  std::vector<Category> categories_;
  CaselessMap<size_t> by_id_;
  CaselessMap<std::vector<size_t>> children_;
};

}  // namespace tallymere
