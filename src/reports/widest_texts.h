#pragma once

#include <string>
#include <vector>

#include "reports/report_table.h"

namespace tallymere {

/// A text that stands in a column in one of the looks.
struct StyledText {
  std::string text;
  std::string style;
};

/// What a renderer measures to find how wide each column must be: for every column and look the longest text
/// and the amounts with the most digits. At most about `rows_looked_at` rows are read, the last ones among
/// them, since totals stand there; 0 reads all.
std::vector<std::vector<StyledText>> Widest_Texts(const ReportTable& table, int rows_looked_at = 0);

/// The table with only these of its columns; margins stay.
ReportTable Pick_Columns(const ReportTable& table, const std::vector<bool>& keep);

}  // namespace tallymere
