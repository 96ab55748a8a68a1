#include "reports/transactions/frmPrintCustom.h"

#include <QComboBox>
#include <QPushButton>

#include "core/values/date_range.h"
#include "core/values/text.h"
#include "reports/frame/frmSelectFields.h"
#include "reports/saved/frmModSaveReport.h"
#include "reports/saved/saved_reports.h"
#include "reports/transactions/transaction_reports.h"
#include "shell/widgets/grid/SSDBGrid.h"

namespace tallymere {

namespace {

constexpr std::string_view balance = "Balance";

}  // namespace

frmPrintCustom::frmPrintCustom(Shell& shell_of_frame) : ReportForm(shell_of_frame, "frmPrintCustom") {
  cmdSave = named("cmdSave", new QPushButton(QStringLiteral("&Save")));
  add_button(cmdSave);
  grdPL->set_keeps_sum(true);
  on(cmdSave, "cmdSave_AfterClick", [this] { cmdSave_AfterClick(); });
}

/// A category's report has a running balance besides what the ledger holds.
std::vector<std::string> frmPrintCustom::offered_fields() const {
  std::vector<std::string> fields = Pickable_Fields(*session.dbCompany);
  if (report().takes(report_option::category)) fields.emplace_back(balance);
  return fields;
}

void frmPrintCustom::cmdPick_AfterClick() {
  const std::vector<std::string> picked = Column_Names(report_request().option(report_option::fields));
  std::vector<FieldChoice> choices;
  for (const std::string& field : offered_fields()) {
    const bool selected =
        picked.empty() ? field != balance : std::find(picked.begin(), picked.end(), field) != picked.end();
    choices.push_back({field, std::string(Caption_Of_Field(field)), selected});
  }
  frmSelectFields dialog(shell, choices);
  if (!shell.Run_Modal(dialog)) return;
  std::string list;
  for (const FieldChoice& choice : dialog.choices())
    if (choice.selected) list += choice.name + ",";
  report_request().options.insert_or_assign(std::string(report_option::fields), list);
  Load_Standard();
}

void frmPrintCustom::cmdSave_AfterClick() {
  const ReportRequest& request = report_request();
  SavedReport saved;
  saved.Parent = report().key;
  saved.Fields = request.option(report_option::fields);
  if (saved.Fields.empty())
    for (const std::string& field : Pickable_Fields(*session.dbCompany)) saved.Fields += field + ",";
  saved.Item = request.option(Subject_Option(report()));
  const std::string shown = utf8(cmbDate->currentText());
  if (std::find(Date_Range_Names.begin(), Date_Range_Names.end(), shown) != Date_Range_Names.end())
    saved.DateRange = shown;
  frmModSaveReport dialog(shell, saved);
  if (shell.Run_Modal(dialog)) shell.changed("SavedReports");
}

}  // namespace tallymere
