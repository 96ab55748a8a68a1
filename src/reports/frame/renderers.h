#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>

#include "reports/frame/report_table.h"

/// What becomes of a ReportTable away from the screen. None of these knows bookkeeping.
namespace tallymere {

/// For people at a terminal: the heading, then aligned columns as the eye sees them.
void Write_Text(const ReportTable& table, std::ostream& out);

/// RFC 4180, UTF-8: the captions, then the rows; plain amounts, dates m/d/yyyy. A group's caption stands
/// before those of its columns.
void Write_Csv(const ReportTable& table, std::ostream& out);

/// The clipboard's form: cells between tabs, rows on lines, as text; tabs and line ends inside a cell become
/// blanks. `rows` are those to copy; empty: all, below the captions.
std::string Tab_Separated(const ReportTable& table, const std::vector<int>& rows = {});

/// A workbook with real numbers and dates, the heading above, looks as on screen; further sheets when one is
/// full. Throws store::Error 3044 or 3026 when the file cannot be written.
void Write_Xlsx(const ReportTable& table, const std::filesystem::path& file);

}  // namespace tallymere
