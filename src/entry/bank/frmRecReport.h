#pragma once

#include "entry/bank/reconcile_report.h"
#include "shell/widgets/Form.h"

class QButtonGroup;
class QPushButton;

namespace tallymere {

class QuillbrookDatePick;

/// Prints what was reconciled, in full or in summary, as often as wanted.
class frmRecReport : public Form {
  Q_OBJECT

 public:
  frmRecReport(Shell& shell_of_frame, const Reconciled& reconciled);

 private:
  void build();
  void cmdOk_AfterClick();

  const Reconciled& reconciled_;
  QButtonGroup* optType;
  QuillbrookDatePick* dteCloseDate;
  QPushButton *cmdOk, *cmdCancel;
};

}  // namespace tallymere
