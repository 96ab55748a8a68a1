#pragma once

#include <iosfwd>

#include "reports/frame/report_table.h"

/// A report handed from one program to another: lines of text, fields between tabs. The command line writes
/// it for `tallymere-paint`, which alone links what paints pages.
///
///     tallymere-report 2
///     heading  TITLE COMPANY PERIOD BASIS NOTE
///     looks    statement, list
///     column   KIND MASK CAPTION
///     group    FIRST COUNT CAPTION
///     row      ROLE CELL...
///     cell     ROW COLUMN STYLE                 a cell with a look of its own
///     end
///
/// A cell is "" or a letter and its content: t text, m ten-thousandths, i whole number, d double, y
/// yyyy-mm-dd, f 0 or 1. In texts \t, \n, \r and \\ stand for a tab, line ends and a backslash.
namespace tallymere {

void Write_Report_File(const ReportTable& table, std::ostream& out);

/// Throws store::Error 3343 when this is no such file, or one cut short.
ReportTable Read_Report_File(std::istream& in);

}  // namespace tallymere
