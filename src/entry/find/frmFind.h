#pragma once

#include "entry/find/find.h"
#include "shell/widgets/Form.h"

class QButtonGroup;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;

namespace tallymere {

class DropDowns;
class QuillbrookDatePick;
class SSDBCombo;
class SSDBGrid;

/// Find Transaction: by name, date, amount, number or memo, each with the one input that fits; the found rows below, and
/// from a row to its transaction.
class frmFind : public Form {
  Q_OBJECT

 public:
  explicit frmFind(Shell& shell_of_frame);

  void load() override;
  void take(const Request& request) override;
  void on_changed(const std::string& table) override;

 private:
  void build();
  QWidget* name_input();
  QWidget* date_input();
  QWidget* text_input();
  void optFind_Click();
  void cmdFind_AfterClick();
  void cmdGoto_AfterClick();
  FindRequest request() const;
  void show_found(const std::vector<FoundRow>& found);

  std::optional<FindRequest> found_by_;  ///< what the list shows
  DropDowns* lists_;
  QButtonGroup* optFind;
  QStackedWidget* inputs_;
  SSDBCombo* cmbVen;
  QuillbrookDatePick *QuillbrookDatePick1, *QuillbrookDatePick2;
  QLineEdit *txtNumber, *txtNumberTo;
  QLabel* to_;  ///< before txtNumberTo, where there is a range
  SSDBGrid* SSDBGrid1;
  QPushButton *cmdFind, *cmdGoto, *cmdExit;
};

}  // namespace tallymere
