#pragma once

#include "reports/saved/saved_reports.h"
#include "shell/widgets/Form.h"

class QPushButton;

namespace tallymere {

class SSDBGrid;

/// The transaction reports kept under a name.
class frmSavedReps : public Form {
  Q_OBJECT

 public:
  explicit frmSavedReps(Shell& shell_of_frame);

  void load() override;
  void on_changed(const std::string& table) override;

 private:
  void fill();
  void show_menu();
  /// The report of the selected row; without one, this box. Nothing, too, where another user deleted it.
  std::optional<SavedReport> selected(const char* otherwise);
  void chosen(const std::string& item);
  void mnuEditSaveRep_Click();
  void mnuDelSavRep_Click();
  void mnuShowSaveRep_Click();

  SSDBGrid* grdCustomers;
  QPushButton *cmdAction, *cmdClose;
};

}  // namespace tallymere
