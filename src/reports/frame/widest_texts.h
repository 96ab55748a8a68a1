#pragma once

#include <string>
#include <vector>

#include "reports/frame/report_table.h"

namespace tallymere {

/// A text that stands in a column in one of the looks.
struct StyledText {
  std::string text;
  std::string style;
  std::string word = {};  ///< the widest one in that look, not always of that text; empty for amounts
};

/// What a renderer measures to find how wide each column must be: for every column and look the widest text
/// and the amounts with the most digits. Labels that run over empty cells need no room in their own column.
/// At most about `rows_looked_at` rows are read, the last ones among them, since totals stand there; 0 reads
/// all.
std::vector<std::vector<StyledText>> Widest_Texts(const ReportTable& table, int rows_looked_at = 0);

/// How many cells a row's label may run over: its own and the empty ones after it. 1 in ordinary rows.
int Label_Span(const ReportTable& table, int row);

}  // namespace tallymere
