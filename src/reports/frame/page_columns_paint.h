#pragma once

#include <QtGlobal>
#include <vector>

#include "reports/frame/print_fonts_paint.h"
#include "reports/frame/report_table.h"

namespace tallymere {

/// How a table's columns stand on a page, in twips.
struct Page_Columns {
  static constexpr qreal pad = 80;  ///< blank at both sides of a cell

  qreal scale = 1;  ///< of the fonts
  std::vector<qreal> widths;
  /// A table too wide for the page goes on over several, its first column on each of them.
  std::vector<std::vector<int>> panels;

  qreal width_of(const std::vector<int>& panel) const;
};

/// Columns that fit the room: spread a little where there is plenty; else texts wrap, then the print shrinks
/// while it is still readable, then columns without content go, then the table is parted.
Page_Columns Fit_Columns(const ReportTable& table, qreal room);

/// What the table would like to have.
qreal Natural_Width(const ReportTable& table);

}  // namespace tallymere
