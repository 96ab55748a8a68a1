#include "printing/PrintedForm.h"

#include <QPushButton>

#include "printing/frmGoodPrint.h"
#include "shell/widgets/ask_printer.h"

namespace tallymere {

namespace {

using Fill = PrintedDocument (*)(Session&, const Request&);

PrintedDocument Statement(Session& session, const Request& request) {
  const Date date = request.end.value_or(session.today());
  return request.key.empty() ? Print_Statements(session, date) : Print_Statement(session, {request.key}, date);
}

PrintedDocument Order(Session& session, const Request& request) {
  return request.key == "Estimate" ? Print_Estimate(session, request.number)
                                   : Print_Purchase_Order(session, request.number);
}

/// What each viewer shows.
constexpr std::pair<std::string_view, Fill> viewers[] = {
    {"frmPrintCheck", [](Session& session, const Request& request) { return Print_Check(session, request.number); }},
    {"frmPrintInvoice",
     [](Session& session, const Request& request) { return Print_Invoice(session, request.number); }},
    {"frmPrintInvoiceLetter",
     [](Session& session, const Request& request) { return Print_Invoice_Letter(session, request.number); }},
    {"frmPrintStatement", Statement},
    {"frmPrintPO", Order},
    {"frmPrintSlip", [](Session& session, const Request& request) { return Print_Slip(session, request.number); }},
};

}  // namespace

std::unique_ptr<Layout_Shelf> Open_Shelf(Session& session) {
  return std::make_unique<Layout_Shelf>(Layout_Places(session.folder), [&session](const std::string& fault) {
    session.prompts.box({"Your own layout cannot be used. The one that ships with the program prints instead.",
                         "Layout", Icon::Information, fault});
  });
}

PrintedForm::PrintedForm(Shell& shell_of_frame, const char* name) : frmPreview(shell_of_frame, name) {
  setWindowTitle(QStringLiteral("Print Preview"));
  auto* cmdQuickPDF = named("cmdQuickPDF", new QPushButton(QStringLiteral("P&DF")));
  cmdQuickPDF->setToolTip(QStringLiteral("Saves a PDF beside the company, named after the document"));
  add_button(cmdQuickPDF);
  on(cmdQuickPDF, "cmdQuickPDF_AfterClick", [this] {
    if (!document_title_.empty()) save_pdf(Document_File(session, document_title_));
  });
}

void PrintedForm::take(const Request& request) {
  request_ = request;
  const auto viewer = std::ranges::find(viewers, utf8(objectName()), &std::pair<std::string_view, Fill>::first);
  show_document(viewer->second(session, request));
}

void PrintedForm::show_document(PrintedDocument document) {
  const bool empty = document.layouts.empty();
  for (auto* button : findChildren<QPushButton*>())
    button->setEnabled(!empty || button->objectName() == QLatin1String("cmdClose"));
  if (empty) return shell.say("There is nothing to print.");
  document_title_ = document.title;
  auto shelf = Open_Shelf(session);
  const QPageLayout page = Page_Of(shelf->sheet(document.layouts.front().name()));
  const auto layouts = std::make_shared<const std::vector<Layout>>(std::move(document.layouts));
  show_pages(
      qt(document.title),
      [layouts, &drawings = *shelf](const QPageLayout&) { return std::make_unique<Layout_Pages>(*layouts, drawings); },
      page, false);
  shelf_ = std::move(shelf);
}

QPointF PrintedForm::offset_on(const QPrinter& printer) const { return Paper_Offset(printer.printerName()); }

/// A check that came out wrong goes back to the queue; of anything else nothing is kept.
void PrintedForm::printed() {
  if (utf8(objectName()) == "frmPrintCheck")
    if (const auto number =
            session.dbCompany->value("SELECT Number FROM Transactions WHERE TransNum = ?", {request_.number});
        const auto run = Run_Of_One(request_.number, number.text())) {
      frmGoodPrint ask(shell, {*run});
      shell.Run_Modal(ask);
    }
  finish(true);
}

}  // namespace tallymere
