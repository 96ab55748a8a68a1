#include "shell/amount_cells.h"

#include <QApplication>

#include "core/values/text.h"
#include "shell/shell.h"
#include "shell/widgets/grid/SSDBGrid.h"

namespace tallymere {

namespace {

bool is_amount(Kind kind) { return kind == Kind::money || kind == Kind::number; }

}  // namespace

void Take_Only_Amounts(Shell& shell, SSDBGrid& grid) {
  const auto refuse = [&shell, &grid](int, int column, const std::string& typed, bool& cancel) {
    const GridColumn& how = grid.column(column);
    if (!is_amount(how.kind) || trim(typed).empty()) return;
    if (how.kind == Kind::money ? Money::parse(typed).has_value() : is_numeric(typed)) return;
    cancel = true;
    QApplication::beep();
    shell.say("\"" + typed + "\" is not an amount.");
  };
  QObject::connect(&grid, &SSDBGrid::BeforeColUpdate, &grid, refuse);
}

std::optional<Money> Money_At(const SSDBGrid& grid, int row, int column) {
  return Money::parse(grid.text(row, column));
}

std::optional<double> Number_At(const SSDBGrid& grid, int row, int column) {
  const store::Value value = grid.value(row, column);
  return value.blank() || !is_numeric(value.text()) ? std::nullopt : std::optional(value.number());
}

}  // namespace tallymere
