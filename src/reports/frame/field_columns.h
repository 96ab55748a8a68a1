#pragma once

#include <functional>

#include "core/store/database.h"
#include "reports/frame/report_table.h"

namespace tallymere {

/// The column in which a field of the company stands: its caption in words, its kind.
ReportColumn Column_Of(const store::Field& field);

/// What a query has in a column that holds a field of this type; null where that is null.
store::Value Field_Value(const store::Row& row, int column, store::FieldType type);

/// A field as a list report shows it.
struct Record_Column {
  std::string field;
  std::string caption = {};                                      ///< empty: the field's own
  std::function<std::string(std::string_view text)> shown = {};  ///< instead of the text that stands there
};

/// A margin, a column for each of these fields, and a row for each record of the table, in the order of the first
/// field. A field that holds a CatID shows the category's name.
void Add_Records(store::Database& db, ReportTable& table, std::string_view table_name,
                 const std::vector<Record_Column>& fields);

}  // namespace tallymere
