#pragma once

#include "reports/frame/ReportForm.h"

namespace tallymere {

/// Rows of the ledger in columns that the user picks, several reports side by side, kept under a name if
/// wanted.
class frmPrintCustom : public ReportForm {
  Q_OBJECT

 public:
  explicit frmPrintCustom(Shell& shell_of_frame);

 private:
  std::vector<std::string> shown_columns() const;
  void cmdSave_AfterClick();

  QPushButton* cmdSave;
};

}  // namespace tallymere
