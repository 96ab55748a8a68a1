#pragma once

#include <string>
#include <vector>

#include "reports/frame/report_table.h"

namespace tallymere {

/// Where a page begins, and whose rows it goes on with: "Expense: Rent (continued)"; empty: nobody's.
struct Page_Start {
  int row;
  std::string continued;
};

/// The room for rows, in whatever the renderer measures.
struct Page_Room {
  double first, next;  ///< on the first page and on each after it
  double continued;    ///< what the line takes that says whose rows a page goes on with
};

/// Parts rows of these heights into pages. A head keeps to what it heads and a total to the last of what it adds
/// up, as long as the page before is not left with nothing. There is always one page.
std::vector<Page_Start> Page_Breaks(const ReportTable& table, const std::vector<double>& heights,
                                    const Page_Room& room);

}  // namespace tallymere
