#include "core/names/name_faults.h"

#include "core/names/name_links.h"
#include "core/store/sql.h"
#include "core/values/caseless.h"

namespace tallymere {
namespace {

using store::Quoted;

void Find_Doubles(store::Database& db, const NameTable& table, std::vector<std::string>& faults) {
  const std::string field = Quoted(table.field);
  db.each(
      "SELECT MIN(" + field + "), COUNT(*) FROM " + Quoted(table.table) + " GROUP BY " + field + " HAVING COUNT(*) > 1",
      {}, [&](const store::Row& row) {
        faults.push_back(std::to_string(row.integer(1)) + " rows of " + std::string(table.table) + " are named \"" +
                         std::string(row.text(0)) + "\"");
      });
}

void Find_Circles(store::Database& db, const NameTable& table, std::vector<std::string>& faults) {
  CaselessMap<std::string> parents;
  db.each("SELECT " + Quoted(table.field) + ", " + Quoted(table.parent) + " FROM " + Quoted(table.table), {},
          [&](const store::Row& row) { parents.emplace(row.text(0), row.text(1)); });
  CaselessMap<bool> sound;  // false while a walk is still going up through it
  for (const auto& [name, parent] : parents) {
    std::vector<const std::string*> way;
    auto at = parents.find(name);
    for (; at != parents.end() && sound.emplace(at->first, false).second; at = parents.find(at->second))
      way.push_back(&at->first);
    if (at != parents.end() && !sound.at(at->first))
      faults.push_back("the " + std::string(table.word) + " \"" + at->first + "\" stands below itself");
    for (const std::string* passed : way) sound.at(*passed) = true;
  }
}

}  // namespace

std::vector<std::string> Name_Faults(store::Database& company) {
  std::vector<std::string> faults;
  for (const NameTable& table : Name_Tables()) {
    if (table.list == NameList::Employees) continue;  // told apart by their numbers
    Find_Doubles(company, table, faults);
    if (!table.parent.empty()) Find_Circles(company, table, faults);
  }
  return faults;
}

}  // namespace tallymere
