#pragma once

#include "reports/frame/ReportForm.h"

namespace tallymere {

/// The summary of what is owed by age, of customers or of vendors: both menus open it at the customers, and the window
/// offers either to whoever has the right.
class frmPrintAging : public ReportForm {
  Q_OBJECT

 public:
  explicit frmPrintAging(Shell& shell_of_frame);

  void take(const Request& asked) override;

 private:
  void optParty_Click(int party);

  QButtonGroup* optParty;
};

}  // namespace tallymere
