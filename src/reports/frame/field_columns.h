#pragma once

#include "core/store/database.h"
#include "reports/frame/report_table.h"

namespace tallymere {

/// The column in which a field of the company stands: its caption in words, its kind.
ReportColumn Column_Of(const store::Field& field);

/// What a query has in a column that holds a field of this type; null where that is null.
store::Value Field_Value(const store::Row& row, int column, store::FieldType type);

/// A margin, a column for each of these fields, and a row for each record of the table, in the order of the first
/// field.
void Add_Records(store::Database& db, ReportTable& table, std::string_view table_name,
                 const std::vector<std::string>& fields);

}  // namespace tallymere
