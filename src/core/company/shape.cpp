#include "core/company/shape.h"

#include "core/company/schema.h"
#include "core/store/shape.h"
#include "core/store/sql.h"
#include "core/values/control_characters.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

using store::FileKind;
using store::FoundTable;
using store::Refuse_Shape;

void Check_Field(const FoundTable& found, const FieldDef& field, bool is_older) {
  const auto column = std::ranges::find_if(found.columns, [&](auto& c) { return same_text(c.name, field.name); });
  const std::string where = " of its table " + found.name;
  if (column == found.columns.end()) {
    if (!is_older) Refuse_Shape("the field " + std::string(field.name) + where + " is missing");
  } else if (column->is_computed || column->declared != store::Declaration_Of_Type(field.type)) {
    Refuse_Shape("the field " + std::string(field.name) + where + " is of another kind");
  }
}

void Check_Table(const FoundTable& found, const TableDef& table, bool is_older) {
  const bool has_key = found.is_plain && !found.columns.empty() && found.columns[0].name == store::hidden_key &&
                       found.columns[0].declared == "INTEGER";
  if (!has_key) Refuse_Shape("what it calls " + std::string(table.name) + " is no table of rows");
  for (const FieldDef& field : table.fields) Check_Field(found, field, is_older);
}

/// A name from the file, fit to be told.
std::string Told(std::string_view name) { return "\"" + in_one_plain_line(name.substr(0, 60)) + "\""; }

void Check_Queries(store::Database& db, FileKind kind, bool is_older) {
  for (const store::QueryDef& query : db.QueryDefs()) {
    const auto own = std::ranges::find_if(stored_queries(), [&](auto& q) { return q.name == query.name; });
    const bool known = kind != FileKind::Shared && own != stored_queries().end();
    if (!known || (!is_older && query.sql != store::Translate(own->sql)))
      Refuse_Shape("it holds a query of another program, " + Told(query.name));
  }
}

}  // namespace

void Check_Shape(store::Database& db, FileKind kind, bool is_older) {
  const auto found = store::Found_Tables(db.connection());
  for (const TableDef& table : kind == FileKind::Shared ? accounts_tables() : company_tables()) {
    bool is_there = false;
    for (const FoundTable& candidate : found) {
      if (find_table(candidate.name) != &table) continue;
      is_there = true;
      Check_Table(candidate, table, is_older);
    }
    if (!is_there && !is_older && !table.on_demand)
      Refuse_Shape("its table " + std::string(table.name) + " is missing");
  }
  Check_Queries(db, kind, is_older);
  const bool company = kind == FileKind::Company && !is_older;
  if (company && db.value("SELECT COUNT(*) FROM CompanyInfo").integer() != 1)
    Refuse_Shape("it does not hold one company");
}

}  // namespace tallymere
