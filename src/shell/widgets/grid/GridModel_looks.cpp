// What a grid's cells look like: text for the eye, alignment, fonts and colours.
#include <QColor>

#include "core/values/format.h"
#include "core/values/text.h"
#include "shell/widgets/grid/GridModel.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

/// An amount whose writer gave it a look of its own ("$5.00", "(5.00)", "7%") keeps it.
bool has_own_look(const std::string& text) { return text.find_first_of("$(%") != std::string::npos; }

bool is_figures(Kind kind) { return kind == Kind::money || kind == Kind::number; }

Qt::Alignment alignment_of(Kind kind) {
  if (is_figures(kind)) return Qt::AlignRight | Qt::AlignVCenter;
  return (kind == Kind::check ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter;
}

}  // namespace

std::string GridModel::style(int row, int column) const {
  if (row < 0 || row >= rows()) return {};
  read(row);
  const Row& source = rows_[static_cast<size_t>(row)];
  const auto own = source.cell_styles.find(column);
  return own == source.cell_styles.end() ? source.style : own->second;
}

void GridModel::set_style(int row, const std::string& style) {
  if (row < 0 || row >= rows()) return;
  read(row);
  rows_[static_cast<size_t>(row)].style = style;
  if (!filling_) Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
}

void GridModel::set_style(int row, int column, const std::string& style) {
  if (!has(row, column)) return;
  read(row);
  rows_[static_cast<size_t>(row)].cell_styles[column] = style;
  tell(row, column);
}

void GridModel::set_font(const QFont& font) {
  font_ = font;
  figures_ = theme::tabular(font);
}

std::optional<GridStyle> GridModel::find_style(int row, int column) const {
  const auto found = styles_.find(style(row, column));
  return found == styles_.end() ? std::nullopt : std::optional(found->second);
}

QFont GridModel::font_of(int row, int column) const {
  QFont font = is_figures(columns_[static_cast<size_t>(column)].kind) ? figures_ : font_;
  if (const auto look = find_style(row, column)) {
    font.setBold(look->bold);
    font.setUnderline(look->underline);
    if (look->size > 0) font.setPointSizeF(look->size);
    if (look->size < 0 && font.pointSizeF() > 0) font.setPointSizeF(font.pointSizeF() + look->size);
  }
  return font;
}

QString GridModel::for_the_eye(int row, int column) const {
  const GridColumn& how = columns_[static_cast<size_t>(column)];
  const std::string typed = text(row, column);
  if (how.kind == Kind::check) return {};
  if (how.kind == Kind::money && !has_own_look(typed))
    if (const store::Value amount = value(row, column); std::holds_alternative<Money>(amount.content()))
      return QString::fromStdString(Format(amount.money(), how.mask.empty() ? money_mask : how.mask));
  return QString::fromStdString(typed);
}

QVariant GridModel::color_of(int row, int column, bool back) const {
  if (const auto look = find_style(row, column)) {
    const QColor own = back ? look->back : look->text;
    if (own.isValid()) return own;
  }
  const Kind kind = columns_[static_cast<size_t>(column)].kind;
  const bool typed_wrong = (kind == Kind::money || kind == Kind::date) &&
                           std::holds_alternative<std::string>(value(row, column).content()) &&
                           !trim(text(row, column)).empty();
  return typed_wrong && !back && !read_only ? QVariant(theme::faulty()) : QVariant();
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const int row = index.row();
  const int column = index.column();
  if (role == Qt::TextAlignmentRole)
    return QVariant::fromValue(alignment_of(columns_[static_cast<size_t>(column)].kind));
  if (!has(row, column)) return role == Qt::DisplayRole || role == Qt::EditRole ? QVariant(QString()) : QVariant();
  switch (role) {
    case Qt::DisplayRole:
      return for_the_eye(row, column);
    case Qt::EditRole:
      return QString::fromStdString(text(row, column));
    case Qt::FontRole:
      return font_of(row, column);
    case Qt::ForegroundRole:
      return color_of(row, column, false);
    case Qt::BackgroundRole:
      return color_of(row, column, true);
    case Qt::CheckStateRole:
      if (!column_is(column, Kind::check)) return {};
      return flag(row, column) ? Qt::Checked : Qt::Unchecked;
    default:
      return {};
  }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  const GridColumn& column = columns_[static_cast<size_t>(section)];
  if (role == Qt::DisplayRole) return column.name;
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(alignment_of(column.kind));
  return {};
}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows() + (new_line_ ? 1 : 0); }

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  const Qt::ItemFlags shown = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  const GridColumn& column = columns_[static_cast<size_t>(index.column())];
  const bool fixed =
      read_only || column.locked || column.kind == Kind::check || (may_edit && !may_edit(index.row(), index.column()));
  return fixed ? shown : shown | Qt::ItemIsEditable;
}

}  // namespace tallymere
