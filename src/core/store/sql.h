#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/store/value.h"

namespace tallymere::store {

/// Turns the program's points of SQL into the engine's: `#m/d/yyyy#` into an ISO date, True and False into -1 and 0,
/// `LIKE 'a*b?'` into its engine form, column names that are reserved or begin with a digit into quoted ones.
/// Where a column is compared with a text, by `=`, `<>`, `IN` or `LIKE`, an empty field is an empty text whether it is
/// null or not: `SourceName <> 'Inventory Part'` finds rows without a source, `Class = ''` those without a class. So it
/// is with a `?` that stands for a text among `params`.
std::string Translate(std::string_view sql, std::span<const Value> params = {});

/// A query over one plain table, cut where a dynaset needs it; `table` is empty for joins, unions and groupings.
struct SingleTableQuery {
  std::string columns;  ///< between SELECT and FROM
  std::string table;
  std::string rest;  ///< WHERE and ORDER BY, as written
};
SingleTableQuery Split_Query(std::string_view translated);

/// A name as an SQL identifier.
std::string Quoted(std::string_view name);

}  // namespace tallymere::store
