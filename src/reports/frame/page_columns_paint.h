#pragma once

#include <QtGlobal>
#include <vector>

#include "reports/frame/print_fonts_paint.h"
#include "reports/frame/report_table.h"

namespace tallymere {

/// How a table's columns stand on a page, in twips.
struct Page_Columns {
  qreal scale = 1;  ///< of the fonts
  std::vector<qreal> widths;
  /// A table too wide for the page goes on over several, its first column on each of them.
  std::vector<std::vector<int>> panels;

  qreal pad() const { return 80 * scale; }  ///< blank at both sides of a cell
  qreal width_of(const std::vector<int>& panel) const;
  std::vector<int> shown() const;  ///< those that stand on some page
};

/// Columns that fit the room: spread a little where there is plenty; else texts wrap where the fewest rows do,
/// then the print shrinks while it is still readable, then columns without content go, then the table is parted.
Page_Columns Fit_Columns(const ReportTable& table, qreal room);

/// What the table would like to have, long texts aside.
qreal Modest_Width(const ReportTable& table);

}  // namespace tallymere
