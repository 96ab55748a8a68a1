#include "app/windows.h"

#include "reports/frmPrintCustom.h"
#include "reports/frmPrintPL2.h"
#include "reports/frmSavedReps.h"
#include "shell/frmMain.h"

namespace tallymere {

/// A window's row: {"frmCheck", Make_Window<frmCheck>}, or {"frmPrintAging", Make_Report<"frmPrintAging">} for a
/// report that is nothing but its rows in the table of reports.
const WindowTable& Windows() {
  static const WindowTable windows = {
      {"frmPrintCustom", Make_Window<frmPrintCustom>},
      {"frmPrintPL2", Make_Window<frmPrintPL2>},
      {"frmPrintPLName", Make_Report<"frmPrintPLName">},
      {"frmSavedReps", Make_Window<frmSavedReps>},
  };
  return windows;
}

std::unique_ptr<frmMain> Make_Frame(Session& session) {
  return std::make_unique<frmMain>(session, Windows());
}

}  // namespace tallymere
