#include "core/store/shape.h"

#include "core/store/error.h"
#include "core/values/text.h"

namespace tallymere::store {
namespace {

std::string First_Text(Connection& connection, const std::string& sql) {
  auto row = connection.prepare(sql);
  return row.step() ? std::string(row.text(0)) : std::string();
}

void Require(const std::vector<FoundTable>& found, std::string_view name, const std::vector<std::string>& columns) {
  for (const FoundTable& table : found) {
    if (table.name != name || !table.is_plain || table.columns.size() != columns.size()) continue;
    bool same = true;
    for (size_t at = 0; at < columns.size(); ++at)
      same = same && table.columns[at].name == columns[at] && !table.columns[at].is_computed;
    if (same) return;
  }
  Refuse_Shape("its table " + std::string(name) + " is missing or not its own");
}

}  // namespace

void Refuse_Shape(const std::string& what) {
  throw Error(errors::file_damaged, "This is no sound file of Tallymere: " + what + ".");
}

std::vector<FoundTable> Found_Tables(Connection& connection) try {
  std::vector<FoundTable> tables;
  auto rows = connection.prepare(
      "SELECT t.name, t.type = 'table' AND NOT t.wr, c.name, c.type, c.hidden FROM pragma_table_list AS t"
      " LEFT JOIN pragma_table_xinfo(t.name) AS c ON t.type = 'table'"
      " WHERE t.schema = 'main' AND t.name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY t.name, c.cid");
  while (rows.step()) {
    if (tables.empty() || tables.back().name != rows.text(0))
      tables.push_back({std::string(rows.text(0)), rows.integer(1) != 0, {}});
    if (!rows.is_null(2))
      tables.back().columns.push_back({std::string(rows.text(2)), std::string(rows.text(3)), rows.integer(4) != 0});
  }
  return tables;
} catch (const Error& fault) {
  if (fault.number != errors::bad_statement) throw;
  Refuse_Shape("a query in it asks for what is not there");  // the list of tables looks into each
}

void Refuse_What_Acts(Connection& connection) {
  if (First_Text(connection, "PRAGMA encoding") != "UTF-8") Refuse_Shape("its texts are not UTF-8");
  const std::string kind = First_Text(  // one that hides from this is no plain table of rows, and triggers are off
      connection,
      "SELECT CASE WHEN type = 'trigger' THEN 'a trigger' ELSE 'a virtual table' END FROM sqlite_schema"
      " WHERE type = 'trigger' OR sql LIKE 'CREATE VIRTUAL%' LIMIT 1");
  if (!kind.empty()) Refuse_Shape("it holds " + kind);
}

bool Is_Own_Table(std::string_view name) {
  return same_text(name, "History") || same_text(name, "StorePassword") || starts_with_same_text(name, "sqlite_");
}

void Require_Own_Tables(Connection& connection) {
  const auto found = Found_Tables(connection);
  Require(found, "StorePassword", {"Salt", "Hash"});
  Require(found, "History", {"RowKey", "At", "User", "What", "Undoes", "Changes"});
}

}  // namespace tallymere::store
