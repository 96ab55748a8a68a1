#include "demo/rows.h"

#include <string>

#include "core/store/sql.h"

namespace tallymere::demo {

void Add_Row(store::Database& db, std::string_view table, std::initializer_list<Field> fields) {
  std::string columns, marks;
  store::Database::Params values;
  for (const auto& [name, value] : fields) {
    columns += (columns.empty() ? "" : ", ") + store::Quoted(name);
    marks += marks.empty() ? "?" : ", ?";
    values.push_back(value);
  }
  db.Execute("INSERT INTO " + store::Quoted(table) + " (" + columns + ") VALUES (" + marks + ")", values);
}

}  // namespace tallymere::demo
