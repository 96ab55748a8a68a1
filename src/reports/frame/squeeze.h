#pragma once

#include <vector>

namespace tallymere {

/// A column as it would like to stand, and what it holds.
struct Column_Demand {
  double natural;             ///< as wide as its widest content
  double least;               ///< narrower it cannot be
  std::vector<double> texts;  ///< how wide those are that may wrap; it is not squeezed when it holds none
};

struct Squeezed_Columns {
  std::vector<double> widths;
  double more_lines = 0;  ///< that their texts take, wrapped
};

/// Widths that together fit the room, narrowed where that costs the fewest lines for what it wins. Where even the
/// least ones do not fit, those.
Squeezed_Columns Squeeze(const std::vector<Column_Demand>& columns, double room);

}  // namespace tallymere
