#pragma once

#include <QAbstractTableModel>
#include <QFont>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/store/value.h"
#include "shell/widgets/grid/SSDBDropDown.h"

namespace tallymere {

enum class Kind { text, money, number, date, check, hidden };

/// A column of a grid. What is typed is kept as text; the value it stands for sorts, sums and exports.
struct GridColumn {
  QString name{};  ///< its caption
  Kind kind = Kind::text;
  int width = 0;                 ///< in characters; 0: a share of the room that is left
  bool locked = false;           ///< the user cannot write in it
  SSDBDropDown* list = nullptr;  ///< what its cells choose from; owned elsewhere
  int id_column = -1;            ///< takes the hidden id of what was chosen or typed from the list, "" when not in it
  std::string mask{};            ///< for the eye only; empty: money with cents, others as they stand
  bool list_only = false;        ///< text that is not in the list is refused
};

/// A head above some columns; captions may have several lines.
struct GridGroup {
  QString caption{};
  int first = 0;
  int count = 1;
};

/// The look of a row or a cell under a name.
struct GridStyle {
  bool bold = false;
  bool underline = false;
  bool rule = false;  ///< a line above the amounts: a total
  double size = 0;    ///< points; 0: the grid's own; negative: so much smaller
  QColor text{};      ///< invalid: the grid's own
  QColor back{};
};

/// A row as a provider hands it over.
struct GridRow {
  std::string text{};  ///< cells separated by tabs
  std::string style{};
};

/// The cells behind a grid. Rows stand in memory, or come from a provider when they are first looked at.
class GridModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using Provider = std::function<GridRow(int row)>;

  explicit GridModel(QObject* parent);

  void set_columns(std::vector<GridColumn> columns);
  const std::vector<GridColumn>& columns() const { return columns_; }
  GridColumn& column(int column) { return columns_[static_cast<size_t>(column)]; }

  int rows() const { return static_cast<int>(rows_.size()); }
  void set_rows(int count, Provider provider);
  void insert(int row, const GridRow& content);
  void remove(int row);
  void remove_all();
  void begin_fill();  ///< many inserts between these two tell the view once
  void end_fill();
  int sort_rows(int column, bool descending,
                int follow);  ///< where the row `follow` stands afterwards; -1: nowhere

  std::string text(int row, int column) const;
  store::Value value(int row, int column) const;
  void set_text(int row, int column, const std::string& text);
  void set_value(int row, int column, const store::Value& value);
  bool flag(int row, int column) const;

  void set_new_line(bool allowed);  ///< one empty line below the last row
  bool has_new_line() const { return new_line_; }
  bool is_new_line(int row) const { return new_line_ && row == rows(); }

  void define_style(const std::string& name, const GridStyle& style) { styles_[name] = style; }
  std::string style(int row, int column) const;  ///< the cell's own or the row's
  void set_style(int row, const std::string& style);
  void set_style(int row, int column, const std::string& style);
  void set_font(const QFont& font);
  std::optional<GridStyle> find_style(int row, int column) const;

  /// Called when a row is first shown or read: the window may style it.
  std::function<void(int row)> row_loaded;
  /// Asked before a cell is opened for typing: false keeps it shut.
  std::function<bool(int row, int column)> may_edit;
  bool read_only = false;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  struct Row {
    std::vector<std::string> cells;
    std::vector<store::Value> values;
    std::string style;
    std::map<int, std::string> cell_styles;
    bool read = false;
    bool shown = false;
  };
  Row made(const GridRow& content) const;
  void read(int row) const;  ///< fetches from the provider and lets the window style the row, once
  void read_all();           ///< before rows change places: a provider knows them by number
  bool has(int row, int column) const;
  store::Value value_of(const std::string& text, Kind kind) const;
  QString for_the_eye(int row, int column) const;
  QFont font_of(int row, int column) const;
  QVariant color_of(int row, int column, bool back) const;
  bool column_is(int column, Kind kind) const { return columns_[static_cast<size_t>(column)].kind == kind; }
  void set(int row, int column, const std::string& text, const store::Value& value);
  void tell(int row, int column);

  std::vector<GridColumn> columns_;
  mutable std::vector<Row> rows_;
  Provider provider_;
  bool new_line_ = false;
  int filling_ = 0;
  std::map<std::string, GridStyle> styles_;
  QFont font_, figures_;
};

}  // namespace tallymere
