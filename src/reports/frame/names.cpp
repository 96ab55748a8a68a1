#include "reports/frame/names.h"

#include "core/ledger/ledger.h"
#include "core/store/sql.h"

namespace tallymere {

std::vector<std::string> Names_In(store::Database& db, std::string_view table) {
  const std::string field = table == "Class" ? "Class" : "Name";
  std::vector<std::string> names;
  db.each("SELECT " + field + " FROM " + store::Quoted(table) + " ORDER BY " + field + ", RowKey", {},
          [&](const store::Row& row) { names.emplace_back(row.text(0)); });
  return names;
}

std::string Category_Name(const CategoryTree& tree, std::string_view CatID) {
  return CatID == break_down ? break_down : tree.name(CatID);
}

}  // namespace tallymere
