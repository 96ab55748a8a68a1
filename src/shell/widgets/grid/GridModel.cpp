#include "shell/widgets/grid/GridModel.h"

#include <QColor>
#include <algorithm>
#include <numeric>

#include "core/values/format.h"
#include "core/values/text.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

bool is_true(const std::string& text) {
  return text == "-1" || text == "1" || same_text(text, "true") || same_text(text, "yes");
}

/// A rank of kinds, so that a column of mixed contents sorts the same every time: blanks, numbers, dates,
/// words.
int rank(const store::Value& value) {
  if (value.blank()) return 0;
  if (std::holds_alternative<Date>(value.content())) return 2;
  return std::holds_alternative<std::string>(value.content()) ? 3 : 1;
}

bool precedes(const store::Value& a, const store::Value& b) {
  const int kind = rank(a);
  if (kind != rank(b)) return kind < rank(b);
  switch (kind) {
    case 1:
      return a.number() < b.number();
    case 2:
      return a.date() < b.date();
    case 3:
      return folded(a.text()) < folded(b.text());
    default:
      return false;
  }
}

}  // namespace

GridModel::GridModel(QObject* parent) : QAbstractTableModel(parent) {
  styles_ = {{"Bold", {.bold = true, .size = 14}},
             {"sBold", {.bold = true}},
             {"Small", {.size = -1.5}},
             {"Underline", {.underline = true}}};
}

void GridModel::set_columns(std::vector<GridColumn> columns) {
  beginResetModel();
  columns_ = std::move(columns);
  rows_.clear();
  provider_ = nullptr;
  endResetModel();
}

void GridModel::begin_fill() {
  if (filling_++ == 0) beginResetModel();
}

void GridModel::end_fill() {
  if (--filling_ == 0) endResetModel();
}

void GridModel::set_rows(int count, Provider provider) {
  begin_fill();
  rows_.assign(static_cast<size_t>(std::max(count, 0)), Row{});
  provider_ = std::move(provider);
  end_fill();
}

GridModel::Row GridModel::made(const GridRow& content) const {
  Row row;
  row.cells = split(content.text, "\t");
  row.cells.resize(columns_.size());
  row.values.reserve(columns_.size());
  for (size_t column = 0; column < columns_.size(); ++column)
    row.values.push_back(value_of(row.cells[column], columns_[column].kind));
  row.style = content.style;
  row.read = true;
  return row;
}

store::Value GridModel::value_of(const std::string& text, Kind kind) const {
  if (kind == Kind::check) return is_true(text);
  if (trim(text).empty()) return {};
  if (kind == Kind::money) {
    if (const auto amount = Money::parse(text)) return *amount;
  } else if (kind == Kind::number) {
    if (const auto amount = Money::parse(text)) return amount->to_double();
  } else if (kind == Kind::date) {
    if (const auto day = Date::parse(text)) return *day;
  }
  return text;
}

void GridModel::insert(int row, const GridRow& content) {
  const bool last = row >= rows();
  if (!last) read_all();
  const int place = last ? rows() + (new_line_ ? 1 : 0) : row;  // the new line turns into the row; another one follows
  if (!filling_) beginInsertRows({}, place, place);
  rows_.insert(rows_.begin() + std::min(row, rows()), made(content));
  if (filling_) return;
  endInsertRows();
  if (last && new_line_) Q_EMIT dataChanged(index(rows() - 1, 0), index(rows() - 1, columnCount() - 1));
}

void GridModel::read_all() {
  for (int row = 0; provider_ && row < rows(); ++row) read(row);
  provider_ = nullptr;
}

void GridModel::remove(int row) {
  if (row < 0 || row >= rows()) return;
  read_all();
  if (!filling_) beginRemoveRows({}, row, row);
  rows_.erase(rows_.begin() + row);
  if (!filling_) endRemoveRows();
}

void GridModel::remove_all() {
  begin_fill();
  rows_.clear();
  provider_ = nullptr;
  end_fill();
}

int GridModel::sort_rows(int column, bool descending, int follow) {
  read_all();
  std::vector<size_t> order(rows_.size());
  std::iota(order.begin(), order.end(), size_t{0});
  const auto key = [&](size_t row) -> const store::Value& { return rows_[row].values[static_cast<size_t>(column)]; };
  std::stable_sort(order.begin(), order.end(), [&](size_t a, size_t b) {
    return descending ? precedes(key(b), key(a)) : precedes(key(a), key(b));
  });
  begin_fill();
  std::vector<Row> sorted;
  sorted.reserve(rows_.size());
  for (const size_t row : order) sorted.push_back(std::move(rows_[row]));
  rows_ = std::move(sorted);
  end_fill();
  const auto found = std::find(order.begin(), order.end(), static_cast<size_t>(follow));
  return follow < 0 || found == order.end() ? -1 : static_cast<int>(found - order.begin());
}

bool GridModel::has(int row, int column) const {
  return row >= 0 && row < rows() && column >= 0 && column < static_cast<int>(columns_.size());
}

void GridModel::read(int row) const {
  Row& target = rows_[static_cast<size_t>(row)];
  if (!target.read) target = made(provider_ ? provider_(row) : GridRow{});
  if (target.shown || !row_loaded) return;
  target.shown = true;
  row_loaded(row);
}

std::string GridModel::text(int row, int column) const {
  if (!has(row, column)) return {};
  read(row);
  return rows_[static_cast<size_t>(row)].cells[static_cast<size_t>(column)];
}

store::Value GridModel::value(int row, int column) const {
  if (!has(row, column)) return {};
  read(row);
  return rows_[static_cast<size_t>(row)].values[static_cast<size_t>(column)];
}

bool GridModel::flag(int row, int column) const {
  return has(row, column) && column_is(column, Kind::check) && value(row, column).flag();
}

void GridModel::set_text(int row, int column, const std::string& text) {
  if (!has(row, column)) return;
  set(row, column, text, value_of(text, columns_[static_cast<size_t>(column)].kind));
}

void GridModel::set_value(int row, int column, const store::Value& value) {
  if (has(row, column)) set(row, column, value.text(), value);
}

void GridModel::set(int row, int column, const std::string& text, const store::Value& value) {
  read(row);
  Row& target = rows_[static_cast<size_t>(row)];
  target.cells[static_cast<size_t>(column)] = text;
  target.values[static_cast<size_t>(column)] = value;
  tell(row, column);
}

void GridModel::set_new_line(bool allowed) {
  if (allowed == new_line_) return;
  if (filling_ == 0) allowed ? beginInsertRows({}, rows(), rows()) : beginRemoveRows({}, rows(), rows());
  new_line_ = allowed;
  if (filling_ == 0) allowed ? endInsertRows() : endRemoveRows();
}

void GridModel::tell(int row, int column) {
  if (!filling_) Q_EMIT dataChanged(index(row, column), index(row, column));
}

}  // namespace tallymere
