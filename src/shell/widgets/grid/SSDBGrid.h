#pragma once

#include <QTableView>
#include <QTimer>
#include <functional>
#include <string>
#include <vector>

#include "shell/widgets/grid/GridModel.h"

namespace tallymere {

class GridHeader;

/// Rows and columns of typed cells: lists, entry lines, reports. Rows count from 0; the new line, where
/// allowed, is row rows(). What code does raises no signal; what the user does, does.
class SSDBGrid : public QTableView {
  Q_OBJECT

 public:
  explicit SSDBGrid(QWidget* parent = nullptr);
  ~SSDBGrid() override;

  // --- columns ---
  void set_columns(std::vector<GridColumn> columns);  ///< rows go
  void set_groups(std::vector<GridGroup> groups);
  const std::vector<GridGroup>& groups() const;
  int columns() const;
  const GridColumn& column(int column) const;
  int column_named(const std::string& caption) const;  ///< -1: none
  void set_caption(int column, const std::string& caption);
  void set_locked(int column, bool locked);
  void show_column(int column, bool shown);
  void set_frozen_columns(int count);  ///< the first ones stay in view when the grid is scrolled sideways
  /// Widths as the captions and first rows need; columns of width 0 share what is left beyond that.
  void fit_columns(int rows_looked_at = 200);
  /// Widths in pixels as one knows them who knows the contents. Room beyond the natural ones goes to all in
  /// proportion; where it is short, columns give way down to the least ones if that brings all into view. A
  /// column the user gave a width keeps it.
  void set_natural_widths(std::vector<int> natural, std::vector<int> least);
  int natural_width() const;           ///< of all shown columns together, with frame and scroll bar
  void set_keeps_sum(bool keeps_sum);  ///< what a dragged column gains, the last shown one gives up

  // --- rows ---
  void AddItem(const std::string& tab_separated, const std::string& style = {});
  void InsertItem(int row, const std::string& tab_separated, const std::string& style = {});
  void AddValues(const std::vector<store::Value>& values, const std::string& style = {});
  void RemoveItem(int row);
  void RemoveAll();
  /// `count` rows that `provider` describes when they come into view or are read: any number of rows opens at
  /// once.
  void set_rows(int count, GridModel::Provider provider);
  int rows() const;  ///< without the new line
  /// Many changes, one repaint: lives while rows are added.
  class Fill {
   public:
    explicit Fill(SSDBGrid& grid);
    ~Fill();
    Fill(const Fill&) = delete;
    Fill& operator=(const Fill&) = delete;

   private:
    SSDBGrid& grid_;
  };

  // --- cells: text as it was given or typed; value what it stands for ---
  std::string text(int row, int column) const;  ///< "" outside
  void set_text(int row, int column, const std::string& text);
  /// Null when blank; text that does not read as the column's kind comes as text, so that money() of it is
  /// Error 3421.
  store::Value value(int row, int column) const;
  void set_value(int row, int column, const store::Value& value);
  bool checked(int row, int column) const;
  int list_row(int row,
               int column) const;        ///< of the column's drop-down: where the cell's text stands; -1: nowhere
  bool Valid() const { return valid_; }  ///< the text last typed or picked in a drop-down cell is in its list
  void set_Valid(bool valid) { valid_ = valid; }

  // --- where the user is ---
  int Row() const;  ///< -1: nowhere; rows() on the new line
  int Col() const;
  void set_Row(int row);
  void set_cell(int row, int column);  ///< moves there and brings it into view
  void MoveFirst() { set_Row(0); }
  void MoveNext() { set_Row(Row() + 1); }
  void MovePrevious() { set_Row(Row() - 1); }
  void MoveLast() { set_Row(rows() - 1); }
  bool on_new_line() const { return Row() >= 0 && Row() == rows(); }
  void set_multi_select(bool allowed);
  std::vector<int> selected_rows() const;  ///< ascending, without the new line
  void select_rows(const std::vector<int>& rows);

  // --- what the user may do ---
  void set_read_only(bool read_only);  ///< true at first: a list; entry grids say false
  void set_new_line(bool allowed);     ///< typing in it makes a row, Insert goes to it
  void set_delete(bool allowed);       ///< the Delete key (not while typing) and drop rows
  void set_sorting(bool allowed);      ///< a click on a head sorts by value: for all lists whose order is free
  void set_empty_hint(const QString& text);
  void set_may_edit(std::function<bool(int row, int column)> may_edit);
  /// Takes what is being typed and settles the row, as leaving it does: call it before saving. false:
  /// BeforeUpdate refused the row.
  bool commit();
  bool editing() const { return state() == EditingState; }
  /// Code changed a row on the user's behalf: leaving it settles it as if it had been typed in.
  void touch_row(int row) { changed_row_ = row; }

  // --- looks ---
  void define_style(const std::string& name,
                    const GridStyle& style);  ///< "Bold", "sBold", "Small", "Underline" exist
  void set_row_style(int row, const std::string& style);
  void set_cell_style(int row, int column, const std::string& style);
  std::string row_style(int row) const;
  std::string cell_style(int row, int column) const;       ///< the cell's own, else the row's
  void set_row_loaded(std::function<void(int row)> hook);  ///< styles a row when it is first shown or read
  void set_sheet_color(const QColor& color);               ///< a register's own paper; an invalid colour: the theme's

  // --- as the user does it, signals and all (for tools that drive windows) ---
  bool type_text(int row, int column, const std::string& text);  ///< false: refused or locked
  bool toggle(int row, int column);                              ///< a check cell
  bool delete_row(int row);                                      ///< asks BeforeDelete
  void double_click(int row, int column = 0);
  void request_menu(int row, const QPoint& global);

  QPoint menu_place() const { return menu_place_; }  ///< where MenuRequested was said, on the screen
  GridModel& cells() { return *model_; }
  bool selects_rows() const { return selectionBehavior() == SelectRows; }
  QSize sizeHint() const override;
  void scrollTo(const QModelIndex& cell, ScrollHint hint = EnsureVisible) override;

 Q_SIGNALS:
  void RowColChange(int last_row, int last_column);  ///< the current cell moved
  /// A cell is about to take what was typed or picked; cancel leaves it as it was.
  void BeforeColUpdate(int row, int column, const std::string& typed, bool& cancel);
  void AfterColUpdate(int row, int column);
  void CloseUp(int row, int column);         ///< a drop-down was closed by picking; the cell holds it already
  void AfterInsert(int row);                 ///< typing in the new line made this row
  void BeforeUpdate(int row, bool& cancel);  ///< a changed row is being left; cancel stays in it
  void AfterUpdate(int row);                 ///< a changed row was left
  void BeforeDelete(int row, bool& cancel);
  void AfterDelete();
  void DblClick(int row);  ///< never the new line
  void MenuRequested(int row,
                     const QPoint& global);  ///< right click below the head; the row is current by then

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  friend class GridDelegate;
  /// The one way a user's text gets into a cell; list_row: where it stands in its drop-down, -1: nowhere; picked: chosen
  /// there, not typed. A cell whose text was not changed keeps the id it has, be it in the list or not.
  bool take(int row, int column, const std::string& typed, int list_row, bool picked = false);
  void store_choice(int row, int column, int list_row);
  std::string tidied(int column, const std::string& typed, int list_row) const;
  bool same_content(int row, int column, const std::string& text, int list_row, bool picked) const;
  bool open_list(const QModelIndex& index);
  bool leave_row();
  bool is_stop(int row, int column) const;  ///< a cell that Enter and Tab stop at
  QModelIndex next_cell(const QModelIndex& from, int step) const;
  bool light_row();
  bool go_home(bool end);  ///< Home and End: the rows of a list, the cells of a line
  void widen_amounts();
  void restore_widths();
  QString width_key(int column) const;  ///< under which the user's width is kept; empty: nowhere
  bool enter_pressed();                 ///< on to the next cell; in a list, what a double click does
  void remove_selected();
  void settle_modes();
  int char_width(int characters) const;
  int content_width(int column, int rows_looked_at) const;
  void set_widths();
  void share_widths();
  void spread_widths();
  void dragged(int column, int before, int now);
  int last_shown() const;
  void sort_clicked(int column);
  void sort_again();
  void paint_frozen_columns();
  void paint_frozen(QPainter& painter, int row, int column);
  void go_to(int row, int column);  ///< by code: no RowColChange

  GridModel* model_;
  GridHeader* header_;
  QString hint_;
  std::vector<int> least_;                    ///< widths fit_columns found, in pixels
  std::vector<int> natural_, natural_least_;  ///< empty: not given
  bool keeps_sum_ = false;
  std::vector<bool> dragged_;  ///< columns the user gave a width of their own
  bool delete_ = false;
  bool multi_ = false;
  bool valid_ = true;
  bool by_code_ = false;
  int changed_row_ = -1;
  int sorted_by_ = -1;
  QPoint menu_place_;
  QTimer* widening_;  ///< amounts came that may need more room
  bool descending_ = false;
};

}  // namespace tallymere
