#include "reports/transactions/frmPrintCustom.h"

#include <QComboBox>
#include <QPushButton>

#include "core/values/date_range.h"
#include "reports/frame/table_parts.h"
#include "reports/saved/frmModSaveReport.h"
#include "reports/saved/saved_reports.h"
#include "shell/widgets/grid/SSDBGrid.h"

namespace tallymere {

frmPrintCustom::frmPrintCustom(Shell& shell_of_frame) : ReportForm(shell_of_frame, "frmPrintCustom") {
  cmdSave = named("cmdSave", new QPushButton(QStringLiteral("&Save")));
  add_button(cmdSave);
  grdPL->set_keeps_sum(true);
  on(cmdSave, "cmdSave_AfterClick", [this] { cmdSave_AfterClick(); });
}

std::vector<std::string> frmPrintCustom::shown_columns() const {
  std::vector<std::string> names;
  for (const ReportColumn& column : table().columns)
    if (!column.id().empty()) names.push_back(column.id());
  return names;
}

void frmPrintCustom::cmdSave_AfterClick() {
  const ReportRequest& request = report_request();
  SavedReport saved;
  saved.Parent = report().key;
  saved.Fields = request.option(report_option::fields);
  if (saved.Fields.empty()) saved.Fields = Column_List(shown_columns());
  saved.Item = request.option(report().subject);
  const std::string shown = utf8(cmbDate->currentText());
  if (std::find(Date_Range_Names.begin(), Date_Range_Names.end(), shown) != Date_Range_Names.end())
    saved.DateRange = shown;
  frmModSaveReport dialog(shell, saved);
  if (shell.Run_Modal(dialog)) shell.changed("SavedReports");
}

}  // namespace tallymere
