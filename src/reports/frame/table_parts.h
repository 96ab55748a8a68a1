#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reports/frame/report_table.h"

/// Tables made of parts of others.
namespace tallymere {

/// The table with only these of its columns and rows; without `rows`, all of them.
ReportTable Part_Of(const ReportTable& table, const std::vector<bool>& columns, const std::vector<bool>& rows = {});

/// Adds some rows of another table of the same columns.
void Add_Rows(const ReportTable& from, int first, int count, ReportTable& to);

/// The names of a comma-list, as options and saved reports keep columns; blanks and empty entries are left out.
/// A comma inside a name stands there after a backslash, a backslash after another.
std::vector<std::string> Column_Names(std::string_view list);
/// Each with a trailing comma.
std::string Column_List(const std::vector<std::string>& names);

/// The table with the columns of the list, in the table's order; margins and labels stay, and all do where it
/// names none of the others. What else could be picked is in `offered`.
ReportTable Pick_Columns(ReportTable table, std::string_view list);

}  // namespace tallymere
