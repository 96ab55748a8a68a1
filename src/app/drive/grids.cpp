#include "app/drive/grids.h"

#include <map>

#include "app/drive/failed.h"
#include "app/drive/hands.h"
#include "shell/widgets/Form.h"

namespace tallymere::drive::grids {

namespace {

std::string Name_Of(const SSDBGrid& grid) { return utf8(grid.objectName()); }

/// A row of the grid; the one after the last is the new line.
int Row_In(const SSDBGrid& grid, const QJSValue& row, bool or_new_line = false) {
  const int number = row.toInt();
  const int last = grid.rows() - (or_new_line ? 0 : 1);
  if (row.isNumber() && number >= 0 && number <= last) return number;
  throw Failed{Name_Of(grid) + " has no row " + utf8(row.toString()), {}, std::to_string(grid.rows()) + " rows"};
}

int Column_In(const SSDBGrid& grid, const QJSValue& column) {
  const int number = column.isNumber() ? column.toInt() : grid.column_named(utf8(column.toString()));
  if (number >= 0 && number < grid.columns()) return number;
  throw Failed{Name_Of(grid) + " has no column " + utf8(column.toString()),
               {},
               "columns: " + utf8(Property_Of(grid, QStringLiteral("columns")).toStringList().join(u','))};
}

SSDBGrid& Usable(SSDBGrid& grid) {
  hands::Reach(grid, grid.objectName());
  return grid;
}

QJSValue Text(QJSEngine&, SSDBGrid& grid, const QJSValue& args) {
  const int row = Row_In(grid, args.property(0), true);
  return qt(grid.text(row, Column_In(grid, args.property(1))));
}

QJSValue Set(QJSEngine&, SSDBGrid& grid, const QJSValue& args) {
  const int row = Row_In(grid, args.property(0), true);
  const int column = Column_In(grid, args.property(1));
  hands::Take_Focus(Usable(grid));
  const std::string text = utf8(args.property(2).toString());
  if (!grid.type_text(row, column, text)) {
    throw Failed{Name_Of(grid) + " did not take " + Shown(text), {}, "refused, or the cell is locked"};
  }
  hands::Settle();
  return {};
}

QJSValue Select(QJSEngine&, SSDBGrid& grid, const QJSValue& args) {
  std::vector<int> rows;
  const QJSValue wanted = args.property(0);
  for (int i = 0; i < wanted.property(QStringLiteral("length")).toInt(); ++i) {
    rows.push_back(Row_In(grid, wanted.property(static_cast<quint32>(i))));
  }
  hands::Take_Focus(Usable(grid));
  grid.select_rows(rows);
  hands::Settle();
  return {};
}

/// g.row(n) goes to a row by the pointer, g.row() tells where the grid stands.
QJSValue Row(QJSEngine&, SSDBGrid& grid, const QJSValue& args) {
  if (args.property(QStringLiteral("length")).toInt() == 0) return grid.Row();
  const int row = Row_In(grid, args.property(0), true);
  hands::Take_Focus(Usable(grid));
  const QModelIndex place = grid.model()->index(row, std::max(grid.Col(), 0));
  grid.scrollTo(place);
  const QRect cell = grid.visualRect(place);
  if (cell.isEmpty()) grid.set_Row(row);
  if (!cell.isEmpty()) hands::Click(*grid.viewport(), cell.center());
  hands::Settle();
  return {};
}

QJSValue Double_Click(QJSEngine&, SSDBGrid& grid, const QJSValue& args) {
  const int row = Row_In(grid, args.property(0));
  hands::Take_Focus(Usable(grid));
  grid.double_click(row);
  hands::Settle();
  return {};
}

QJSValue Toggle(QJSEngine&, SSDBGrid& grid, const QJSValue& args) {
  const int row = Row_In(grid, args.property(0), true);
  const int column = Column_In(grid, args.property(1));
  hands::Take_Focus(Usable(grid));
  if (!grid.toggle(row, column)) throw Failed{Name_Of(grid) + " did not take the mark"};
  hands::Settle();
  return {};
}

QJSValue Remove(QJSEngine&, SSDBGrid& grid, const QJSValue& args) {
  const int row = Row_In(grid, args.property(0));
  hands::Take_Focus(Usable(grid));
  if (!grid.delete_row(row)) throw Failed{Name_Of(grid) + " keeps row " + std::to_string(row)};
  hands::Settle();
  return {};
}

QJSValue Style(QJSEngine&, SSDBGrid& grid, const QJSValue& args) {
  return qt(grid.row_style(Row_In(grid, args.property(0))));
}

}  // namespace

Verb Find_Verb(const QString& name) {
  static const std::map<std::string, Verb> verbs{
      {"text", Text},     {"set", Set},       {"select", Select}, {"row", Row}, {"dblclick", Double_Click},
      {"toggle", Toggle}, {"remove", Remove}, {"style", Style}};
  const auto found = verbs.find(utf8(name));
  return found == verbs.end() ? nullptr : found->second;
}

QVariant Property_Of(const SSDBGrid& grid, const QString& word) {
  if (word == QLatin1String("rows")) return grid.rows();
  if (word != QLatin1String("columns")) return {};
  QStringList names;
  for (int column = 0; column < grid.columns(); ++column) names << grid.column(column).name;
  return names;
}

void Right_Click(SSDBGrid& grid, int row) {
  Row_In(Usable(grid), row);
  const QModelIndex place = grid.model()->index(row, std::max(grid.Col(), 0));
  grid.scrollTo(place);
  hands::Click(*grid.viewport(), grid.visualRect(place).center(), Qt::RightButton);
  hands::Settle();
}

}  // namespace tallymere::drive::grids
