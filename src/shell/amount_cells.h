#pragma once

#include <optional>

#include "core/values/money.h"

/// Cells of amounts and numbers in grids that people write in.
namespace tallymere {

class Shell;
class SSDBGrid;

/// Words typed into the grid's columns of amounts and numbers are refused; the status bar says so.
void Take_Only_Amounts(Shell& shell, SSDBGrid& grid);

/// Cells of a line as documents hold them; a cell that is blank or does not read as a number is nothing.
std::optional<Money> Money_At(const SSDBGrid& grid, int row, int column);
std::optional<double> Number_At(const SSDBGrid& grid, int row, int column);

}  // namespace tallymere
