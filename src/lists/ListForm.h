#pragma once

#include <set>
#include <string>
#include <vector>

#include "lists/list_row.h"
#include "shell/widgets/Form.h"
#include "shell/widgets/grid/SSDBGrid.h"

class QPushButton;

namespace tallymere {

/// What the list windows share: one grid that fills the window, below it Action and Close. Action and a right
/// click pop the list's context menu; Insert and Delete do what it says of new and delete; Enter does what a
/// double click does.
///
/// A window gives its columns and the menu's name and implements Make_List(), chosen() and, if some commands
/// do not suit every row, disabled().
class ListForm : public Form {
  Q_OBJECT

 public:
  void load() override;
  QSize sizeHint() const override;

 protected:
  /// The context menu of the list, and which of its items the Insert and Delete keys stand for.
  struct Menu {
    const char* name;
    const char* insert;
    const char* remove;
  };
  ListForm(Shell& shell_of_frame, const char* name, const char* grid_name, const Menu& menu);

  /// Fills the grid. Rows are told apart by the text of `id_column_`.
  virtual void Make_List() = 0;
  /// Does what an item of the context menu says, for the current row.
  virtual void chosen(const std::string& item) = 0;
  /// The items that do not suit the current row; with no row all but the one for a new row.
  virtual std::vector<std::string> disabled() const { return {}; }

  /// Make_List, with the current row kept, or the one that New has just made.
  void make_list_again();
  bool has_row() const { return grid_->Row() >= 0 && grid_->Row() < grid_->rows(); }
  /// Lays the window out; `above_buttons` stands between the grid and the buttons at their left.
  void build(std::vector<GridColumn> columns, int id_column, QWidget* beside_buttons = nullptr);

  /// The row with this id becomes the current one, if it is in the list.
  void go_to_row(const std::string& id);
  /// Runs the form of a new row, and goes to it.
  void new_row(const char* form);
  /// Runs the form on a row; one that another user deleted leaves the list instead.
  void edit_row(const char* form, const RowList& rows, const std::string& key);

  void keyPressEvent(QKeyEvent* event) override;

  static constexpr const char* dormant_style = "Dormant";  ///< of rows that are shown on request only
  SSDBGrid* grid_;
  QPushButton *cmdAction, *cmdClose;

 private:
  void cmdAction_Click();
  bool run(const std::string& item);  ///< unless it is disabled now
  void do_item(const std::string& item);
  std::set<std::string> ids() const;
  int row_of(const std::string& id) const;  ///< rows(): there is none

  Menu menu_;
  int id_column_ = 0;
  bool making_ = false;  ///< New is at work: the row it makes is to be the current one
};

}  // namespace tallymere
