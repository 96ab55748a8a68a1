#include "reports/saved/frmSavedReps.h"

#include <QPushButton>
#include <map>

#include "reports/saved/frmModSaveReport.h"
#include "shell/widgets/grid/SSDBGrid.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

enum { NameColumn, KeyColumn };

}  // namespace

frmSavedReps::frmSavedReps(Shell& shell_of_frame) : Form(shell_of_frame, "frmSavedReps") {
  setWindowTitle(QStringLiteral("Saved Reports"));
  grdCustomers = named("grdCustomers", new SSDBGrid);
  grdCustomers->setAccessibleName(QStringLiteral("Saved Reports"));
  grdCustomers->set_columns({{.name = QStringLiteral("Report Name")}, {.name = {}, .kind = Kind::hidden}});
  grdCustomers->set_sorting(true);
  grdCustomers->set_empty_hint(QStringLiteral("Save a transaction report, and it stands here."));
  cmdAction = named("cmdAction", new QPushButton(QStringLiteral("&Action")));
  cmdClose = named("cmdClose", new QPushButton(QStringLiteral("&Close")));
  auto* column = column_layout(this);
  column->addWidget(grdCustomers, 1);
  column->addLayout(plain_button_row({cmdAction}, {cmdClose}));
  setMinimumWidth(44 * theme::unit);
  on(cmdAction, "cmdAction_AfterClick", [this] { show_menu(); });
  on(cmdClose, "cmdClose_AfterClick", [this] { finish(false); });
  on(grdCustomers, &SSDBGrid::DblClick, "grdCustomers_DblClick", [this] { mnuShowSaveRep_Click(); });
  on(grdCustomers, &SSDBGrid::MenuRequested, "grdCustomers_MouseUp",
     [this] { shell.Popup("mnuSaveReps", *grdCustomers, {}, [this](const std::string& item) { chosen(item); }); });
}

void frmSavedReps::load() { fill(); }

void frmSavedReps::on_changed(const std::string& table) {
  if (table == "SavedReports") fill();
}

void frmSavedReps::fill() {
  const std::string here = grdCustomers->text(grdCustomers->Row(), KeyColumn);
  int row = -1;
  {
    const SSDBGrid::Fill filling(*grdCustomers);
    grdCustomers->RemoveAll();
    for (const SavedReport& report : Saved_Reports(session)) {
      if (std::to_string(report.key) == here) row = grdCustomers->rows();
      grdCustomers->AddItem(report.ReportName + "\t" + std::to_string(report.key));
    }
  }
  if (row >= 0) grdCustomers->set_Row(row);
}

void frmSavedReps::show_menu() {
  shell.Popup("mnuSaveReps", *cmdAction, {}, [this](const std::string& item) { chosen(item); });
}

std::optional<SavedReport> frmSavedReps::selected(const char* otherwise) {
  const int row = grdCustomers->Row();
  if (row < 0) {
    session.prompts.box({otherwise, "No Selection", Icon::Information});
    return std::nullopt;
  }
  const auto report = Find_Saved_Report(session, grdCustomers->value(row, KeyColumn).integer());
  if (!report) {
    fill();
    shell.say("Another user has deleted this report.");
  }
  return report;
}

void frmSavedReps::chosen(const std::string& item) {
  static const std::map<std::string, void (frmSavedReps::*)()> handlers = {
      {"mnuEditSaveRep", &frmSavedReps::mnuEditSaveRep_Click},
      {"mnuDelSavRep", &frmSavedReps::mnuDelSavRep_Click},
      {"mnuShowSaveRep", &frmSavedReps::mnuShowSaveRep_Click}};
  guard((item + "_Click").c_str(), [&] { (this->*handlers.at(item))(); });
}

void frmSavedReps::mnuEditSaveRep_Click() {
  const auto report = selected("Please Select a Report to edit");
  if (!report) return;
  frmModSaveReport dialog(shell, *report);
  if (shell.Run_Modal(dialog)) shell.changed("SavedReports");
}

void frmSavedReps::mnuDelSavRep_Click() {
  const auto report = selected("Please Select a Report to delete");
  if (!report) return;
  const std::string question = "Are you sure you want to delete \"" + report->ReportName + "\"";
  if (!session.prompts.ask({question, "Confirm Delete", Icon::Critical}, Buttons::YesNoDefaultNo)) return;
  Delete_Saved_Report(session, *report);
  shell.changed("SavedReports");
}

void frmSavedReps::mnuShowSaveRep_Click() {
  const auto report = selected("Please Select a Report to Show");
  if (!report) return;
  const ReportRequest request = Request_Of(session, *report);
  shell.Show_Custom_Report({.window = {},
                            .key = request.key,
                            .parent = report->Item,
                            .columns = report->Fields,
                            .start = request.from,
                            .end = request.to});
}

}  // namespace tallymere
