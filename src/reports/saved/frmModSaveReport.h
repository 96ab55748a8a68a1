#pragma once

#include "reports/saved/saved_reports.h"
#include "shell/widgets/Form.h"

class QLineEdit;
class QPushButton;

namespace tallymere {

class SSDBCombo;

/// Gives a transaction report a name and the dates to show, or changes them.
class frmModSaveReport : public Form {
  Q_OBJECT

 public:
  /// A report without a key is a new one.
  frmModSaveReport(Shell& shell_of_frame, SavedReport report);

  void load() override;

 private:
  void cmdOk_AfterClick();
  bool is_item_report() const { return report_.Parent == "ItemRep"; }

  SavedReport report_;
  QLineEdit* txtName;
  SSDBCombo *cmbDate, *cmbClass, *cmbItem;
  QPushButton *cmdOk, *cmdCancel;
};

}  // namespace tallymere
