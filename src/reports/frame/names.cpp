#include "reports/frame/names.h"

#include <algorithm>

#include "core/ledger/ledger.h"
#include "core/store/sql.h"
#include "core/values/caseless.h"
#include "core/values/text.h"

namespace tallymere {

std::vector<std::string> Names_In(store::Database& db, std::string_view table) {
  const std::string field = table == "Class" ? "Class" : "Name";
  std::vector<std::string> names;
  db.each("SELECT " + field + " FROM " + store::Quoted(table) + " ORDER BY " + field + ", RowKey", {},
          [&](const store::Row& row) { names.emplace_back(row.text(0)); });
  return names;
}

std::vector<std::string> Names_Met(store::Database& db, std::string_view table,
                                   const std::vector<std::string>& in_rows) {
  std::vector<std::string> names;
  CaselessMap<bool> known;
  const auto add = [&](const std::string& name) {
    if (known.try_emplace(name, true).second) names.push_back(name);
  };
  for (const std::string& name : Names_In(db, table))
    if (!name.empty()) add(name);
  const auto listed = static_cast<std::ptrdiff_t>(names.size());
  for (const std::string& name : in_rows) add(name);
  std::sort(names.begin() + listed, names.end(), [](const std::string& a, const std::string& b) {
    return std::pair(a.empty(), folded(a)) < std::pair(b.empty(), folded(b));
  });
  return names;
}

std::string_view Shown_Name(std::string_view name) { return name.empty() ? "No Name" : name; }

std::string Category_Name(const CategoryTree& tree, std::string_view CatID) {
  return CatID == break_down ? break_down : tree.name(CatID);
}

}  // namespace tallymere
