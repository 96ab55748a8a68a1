#pragma once

#include "core/store/database.h"
#include "reports/frame/report_table.h"

namespace tallymere {

/// The column in which a field of the company stands: its caption in words, its kind.
ReportColumn Column_Of(const store::Field& field);

/// What a query has in a column that holds a field of this type; null where that is null.
store::Value Field_Value(const store::Row& row, int column, store::FieldType type);

}  // namespace tallymere
