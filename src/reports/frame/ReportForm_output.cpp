#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>

#include "core/backup/whole_file.h"
#include "reports/frame/ReportForm.h"
#include "reports/frame/frmChangeTitle.h"
#include "reports/frame/frmSelectFields.h"
#include "reports/frame/renderers.h"
#include "reports/frame/report_paint.h"
#include "reports/frame/widest_texts.h"
#include "shell/widgets/frmPreview.h"
#include "shell/widgets/grid/SSDBGrid.h"

/// What becomes of a report on show: another title, fewer columns, a jump from a row, paper, files.
namespace tallymere {

namespace {

/// The families of reports whose heading is built with their columns: a new title builds them again, and so
/// takes in what was entered meanwhile. On the others the caption alone changes.
struct TitleFamily {
  std::string_view window, family;
};
constexpr TitleFamily built_with_title[] = {
    {"frmPrintPL2", "PL"},
    {"frmPrintPLName", "PLName"},
    {"frmPrintBalSheet", "Bal"},
    {"frmPrintBalances", "BalSum"},
    {"frmPrintInvCount", "InvCount"},
    {"frmPrintInvItem", "InvItem"},
    {"frmPrintInvValue", "InvValue"},
};

bool Is_Built_With_Title(const std::string& window) {
  return std::any_of(std::begin(built_with_title), std::end(built_with_title),
                     [&](const TitleFamily& family) { return family.window == window; });
}

}  // namespace

void ReportForm::cmdLabel_AfterClick() {
  frmChangeTitle dialog(shell, utf8(Label6->text()));
  if (!shell.Run_Modal(dialog)) return;
  request_.title = dialog.title();
  const bool own_again = request_.title.empty();
  if (own_again || Is_Built_With_Title(utf8(objectName()))) return Load_Standard();
  table_.heading.title = request_.title;
  show_heading();
}

void ReportForm::cmdGoto_AfterClick() {
  const int row = grdPL->Row();
  if (row < 0 || row >= table_.rows()) return;
  const RowKey key = table_.key(row);
  if (table_.go_to == ReportTable::GoTo::Transaction && key.number != 0)
    return shell.Go_To_Transaction(std::string(key.text), key.number);
  if (const auto request = Go_To_Request(table_, row, request_))
    shell.Show_Custom_Report({.window = {},
                              .key = request->key,
                              .parent = request->option(report_option::category),
                              .columns = request->option(report_option::fields),
                              .start = request->from,
                              .end = request->to});
}

/// Any report can do without some of its columns, but not without all, nor without what its rows are called.
void ReportForm::cmdPick_AfterClick() {
  std::vector<FieldChoice> choices;
  const ReportTable whole = Build_Report(session, request_);
  for (int at = Label_Column(whole) + 1; at < static_cast<int>(whole.columns.size()); ++at)
    if (const std::string& caption = whole.columns[static_cast<size_t>(at)].caption; !caption.empty())
      choices.push_back({caption, caption, !hidden_.contains(caption)});
  frmSelectFields dialog(shell, choices);
  if (!shell.Run_Modal(dialog)) return;
  hidden_.clear();
  for (const FieldChoice& choice : dialog.choices())
    if (!choice.selected) hidden_.insert(choice.caption);
  if (hidden_.size() == choices.size()) hidden_.clear();
  Load_Standard();
}

// --- paper

Lay_Out ReportForm::pages_to_print() {
  return [this](const QPageLayout& page) { return std::make_unique<Report_Pages>(table_, page); };
}

QPageLayout ReportForm::page_to_print() { return Page_For(table_); }

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
