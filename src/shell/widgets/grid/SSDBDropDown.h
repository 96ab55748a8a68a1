#pragma once

#include <QAbstractTableModel>
#include <string>
#include <vector>

#include "core/values/completion.h"

namespace tallymere {

/// A column of a drop-down list. Width in characters; 0: as its text needs.
struct ListColumn {
  QString name{};
  int width = 0;
  bool money = false;  ///< right-aligned, in tabular figures
};

/// The rows a combo or a grid's cells choose from: columns of text and a hidden id. One list may serve many
/// of them (drpExpenseList). Names of sub-categories stand indented by blanks; what is chosen comes without.
class SSDBDropDown : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit SSDBDropDown(QObject* parent = nullptr);

  void set_columns(std::vector<ListColumn> columns);
  const std::vector<ListColumn>& columns() const { return columns_; }

  /// Columns separated by tabs; the first is the name that is typed and chosen.
  void AddItem(const std::string& tab_separated, const std::string& id = {});
  void RemoveAll();
  /// Replaces all rows at once: quicker than RemoveAll and many AddItem when the list is long.
  struct Item {
    std::string text;
    std::string id;
  };
  void set_items(const std::vector<Item>& items);

  int rows() const { return static_cast<int>(items_.size()); }
  const std::string& name(int row) const { return items_[static_cast<size_t>(row)].cells.front(); }  ///< indented
  std::string text(int row, int column = 0) const;  ///< without the indentation; "" outside
  std::string id(int row) const;                    ///< "" for no row

  int find(const std::string& text) const;   ///< the row with this name, ignoring case; -1: none
  int find_id(const std::string& id) const;  ///< -1: none
  Completion complete(const std::string& typed) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  struct Row {
    std::vector<std::string> cells;
    std::string id;
  };
  static Row row_of(const std::string& tab_separated, const std::string& id);

  std::vector<ListColumn> columns_{ListColumn{}};
  std::vector<Row> items_;
};

}  // namespace tallymere
