#pragma once

#include "lists/small_lists.h"
#include "shell/widgets/Form.h"
#include "shell/widgets/grid/SSDBGrid.h"

class QPushButton;

namespace tallymere {

/// A list of names that its grid edits in place: a new one is typed in the last row, leaving a row writes it.
class SmallListForm : public Form {
  Q_OBJECT

 public:
  void load() override;
  bool may_close() override;

 protected:
  SmallListForm(Shell& shell_of_frame, const char* name, const char* grid_name, const SmallList& list);

 private:
  void build();
  void read_list();
  SmallListRow row_at(int row) const;
  void row_left(int row);
  void row_goes(int row, bool& cancel);
  void cmdAction_Click();

  SmallList list_;
  SSDBGrid* grid_;
  QPushButton *cmdAction, *cmdClose;
};

}  // namespace tallymere
