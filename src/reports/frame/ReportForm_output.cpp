#include <QApplication>
#include <QClipboard>
#include <QPushButton>

#include "core/backup/whole_file.h"
#include "reports/frame/ReportForm.h"
#include "reports/frame/renderers.h"
#include "reports/frame/report_paint.h"
#include "reports/graph/graph_paint.h"
#include "shell/widgets/frmPreview.h"
#include "shell/widgets/grid/SSDBGrid.h"

/// What becomes of a report on show: a jump from a row, paper, files.
namespace tallymere {

void ReportForm::cmdGoto_AfterClick() {
  const int row = grdPL->Row();
  if (row < 0 || row >= table_.rows()) return;
  const RowKey key = table_.key(row);
  if (key.leads() && key.report.empty()) return shell.Go_To_Transaction(std::string(key.text), key.number);
  if (const auto request = Go_To_Request(key, request_))
    shell.Show_Custom_Report({.window = {},
                              .key = request->key,
                              .parent = std::string(key.text),
                              .columns = request->option(report_option::fields),
                              .start = request->from,
                              .end = request->to});
}

// --- paper

/// What is on show: the graph or the rows.
Lay_Out ReportForm::pages_to_print() {
  if (cmdGraph->isChecked())
    return [this](const QPageLayout& page) { return std::make_unique<Graph_Pages>(graph_, page); };
  return [this](const QPageLayout& page) { return std::make_unique<Report_Pages>(table_, page); };
}

QPageLayout ReportForm::page_to_print() {
  return cmdGraph->isChecked() ? Letter_Page(QPageLayout::Landscape) : Page_For(table_);
}

void ReportForm::cmdPrint_AfterClick() {
  frmPreview preview(shell, qt(table_.heading.title), pages_to_print(), page_to_print());
  shell.Run_Modal(preview);
}

// --- export

void ReportForm::cmdExport_AfterClick() {
  shell.Popup("mnuExport", *cmdExport, {}, [this](const std::string& item) { chosen(item); });
}

void ReportForm::chosen(const std::string& item) {
  static const std::map<std::string, void (ReportForm::*)()> handlers = {{"mnuExportPDF", &ReportForm::export_pdf},
                                                                         {"mnuExportSheet", &ReportForm::export_sheet},
                                                                         {"mnuExportCSV", &ReportForm::export_csv},
                                                                         {"mnuExportCopy", &ReportForm::copy}};
  guard((item + "_Click").c_str(), [&] { (this->*handlers.at(item))(); });
}

/// Empty: the user thought better of it.
std::string ReportForm::ask_file(const char* kind, const char* suffix) {
  const std::string pattern = std::string("*.") + suffix;
  const std::string name = table_.heading.title + "." + suffix;
  return session.prompts.save_file(std::string(kind) + " (" + pattern + ")|" + pattern, name);
}

void ReportForm::export_pdf() {
  const std::string file = ask_file("PDF Files", "pdf");
  if (file.empty()) return;
  const Hourglass hourglass(session.prompts);
  ProgressBar bar(session.prompts, "Save PDF");
  if (Write_Pdf(*pages_to_print()(page_to_print()), file, qt(table_.heading.title), Told_By(bar)))
    shell.say("Saved as " + file + ".");
}

void ReportForm::export_sheet() {
  const std::string file = ask_file("Spreadsheets", "xlsx");
  if (file.empty()) return;
  const Hourglass hourglass(session.prompts);
  Write_Xlsx(table_, file);
  shell.say("Saved as " + file + ".");
}

void ReportForm::export_csv() {
  const std::string file = ask_file("CSV Files", "csv");
  if (file.empty()) return;
  Write_Whole(file, [this](std::ostream& out) { Write_Csv(table_, out); });
  shell.say("Saved as " + file + ".");
}

/// The rows the user marked, or all of them when it is one or none.
void ReportForm::copy() {
  std::vector<int> rows = grdPL->selected_rows();
  if (rows.size() < 2) rows.clear();
  QApplication::clipboard()->setText(qt(Tab_Separated(table_, rows)));
  shell.say(rows.empty() ? "The report is on the clipboard."
                         : std::to_string(rows.size()) + " rows are on the clipboard.");
}

}  // namespace tallymere
