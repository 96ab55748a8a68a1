#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "shell/widgets/Form.h"
#include "shell/widgets/grid/SSDBGrid.h"

class QPushButton;

namespace tallymere {

/// A window that is asked for some of the rows it lists: open orders, receipts, payments. It hands back their numbers,
/// in the order of the list; Cancel hands back nothing. Enter and a double click take the current row.
///
/// A window gives its columns and fills the grid in take().
class PickForm : public Form {
  Q_OBJECT

 protected:
  enum class Picks { One, Several };
  PickForm(Shell& shell_of_frame, const char* name, const char* grid_name, std::vector<GridColumn> columns, Picks picks,
           const QString& empty_hint);

  /// A row as its columns show it, and the number it stands for.
  void add_row(std::vector<store::Value> values, int64_t number);

  SSDBGrid* grid_;
  QPushButton *cmdOk, *cmdCancel;

 private:
  void showEvent(QShowEvent* event) override;
  void cmdOk_AfterClick();

  int number_column_;
};

/// The numbers in its answer, "7;12;".
std::vector<int64_t> Numbers_In(const std::string& answer);
/// Asks a window of the table for numbers; nothing when it was not accepted.
std::optional<std::vector<int64_t>> Ask_Numbers(Shell& shell, const Request& request);

}  // namespace tallymere
