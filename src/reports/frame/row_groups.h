#pragma once

#include <vector>

#include "reports/frame/report_table.h"

namespace tallymere {

/// For each row the number of the head it stands under, -1 for none: a total under the head it closes, a head
/// under the one around it. Heads close when their total comes, or another head no deeper than they are.
std::vector<int> Heads_Over(const ReportTable& table);

/// The table without what shows nothing: heads with no rows below them, each with its total and blank row,
/// categories and names whose figures are all zero, and columns that may go. Rows of the ledger always stay.
ReportTable Without_Empty_Groups(const ReportTable& table);
/// Whether that would leave anything out.
bool Has_Empty_Groups(const ReportTable& table);

}  // namespace tallymere
