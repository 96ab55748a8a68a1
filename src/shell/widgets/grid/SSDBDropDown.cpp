#include "shell/widgets/grid/SSDBDropDown.h"

#include "core/values/text.h"

namespace tallymere {

SSDBDropDown::SSDBDropDown(QObject* parent) : QAbstractTableModel(parent) {}

void SSDBDropDown::set_columns(std::vector<ListColumn> columns) {
  beginResetModel();
  columns_ = columns.empty() ? std::vector<ListColumn>{ListColumn{}} : std::move(columns);
  endResetModel();
}

SSDBDropDown::Row SSDBDropDown::row_of(const std::string& tab_separated, const std::string& id) {
  return {split(tab_separated, "\t"), id};
}

void SSDBDropDown::AddItem(const std::string& tab_separated, const std::string& id) {
  beginInsertRows({}, rows(), rows());
  items_.push_back(row_of(tab_separated, id));
  endInsertRows();
}

void SSDBDropDown::RemoveAll() { set_items({}); }

void SSDBDropDown::set_items(const std::vector<Item>& items) {
  beginResetModel();
  items_.clear();
  items_.reserve(items.size());
  for (const Item& item : items) items_.push_back(row_of(item.text, item.id));
  endResetModel();
}

std::string SSDBDropDown::text(int row, int column) const {
  if (row < 0 || row >= rows() || column < 0) return {};
  const auto& cells = items_[static_cast<size_t>(row)].cells;
  if (static_cast<size_t>(column) >= cells.size()) return {};
  const std::string& cell = cells[static_cast<size_t>(column)];
  return column == 0 ? std::string(Without_Indent(cell)) : cell;
}

std::string SSDBDropDown::id(int row) const {
  return row < 0 || row >= rows() ? std::string() : items_[static_cast<size_t>(row)].id;
}

int SSDBDropDown::find(const std::string& text) const {
  return Find_Whole(text, rows(), [this](int row) { return std::string_view(name(row)); });
}

int SSDBDropDown::find_id(const std::string& id) const {
  for (int row = 0; row < rows(); ++row)
    if (items_[static_cast<size_t>(row)].id == id) return row;
  return -1;
}

Completion SSDBDropDown::complete(const std::string& typed) const {
  return Complete(typed, rows(), [this](int row) { return std::string_view(name(row)); });
}

int SSDBDropDown::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows(); }

int SSDBDropDown::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant SSDBDropDown::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rows()) return {};
  const bool money = columns_[static_cast<size_t>(index.column())].money;
  switch (role) {
    case Qt::EditRole:
      return QString::fromStdString(text(index.row(), index.column()));
    case Qt::DisplayRole:
      return QString::fromStdString(index.column() == 0 ? name(index.row()) : text(index.row(), index.column()));
    case Qt::TextAlignmentRole:
      return QVariant::fromValue((money ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    default:
      return {};
  }
}

QVariant SSDBDropDown::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  const ListColumn& column = columns_[static_cast<size_t>(section)];
  if (role == Qt::DisplayRole) return column.name;
  if (role == Qt::TextAlignmentRole)
    return QVariant::fromValue((column.money ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  return {};
}

}  // namespace tallymere
