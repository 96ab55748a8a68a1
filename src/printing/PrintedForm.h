#pragma once

#include <algorithm>
#include <memory>

#include "printing/documents.h"
#include "printing/layout_paint.h"
#include "shell/widgets/frmPreview.h"

namespace tallymere {

/// The viewer of printed documents: it shows the pages, prints them and writes a PDF named after the document. Which
/// document comes with the request: `number` a TransNum or an Index, `key` a kind or a name.
class PrintedForm : public frmPreview {
  Q_OBJECT

 public:
  PrintedForm(Shell& shell_of_frame, const char* name);

  void take(const Request& request) override;
  void show_document(PrintedDocument document);

 protected:
  QPointF offset_on(const QPrinter& printer) const override;
  void printed() override;

 private:
  Request request_;
  std::string document_title_;  ///< of what is on show
  std::unique_ptr<Layout_Shelf> shelf_;
};

/// The shelf of the running program: a drawing of people's own that cannot serve is told of in a box.
std::unique_ptr<Layout_Shelf> Open_Shelf(Session& session);

/// A window's name as a template's argument.
template <size_t size>
struct DocumentName {
  constexpr DocumentName(const char (&text)[size]) { std::copy_n(text, size, name); }
  char name[size];
};

/// A row of the table of windows: {"frmPrintInvoice", Make_Document<"frmPrintInvoice">}.
template <DocumentName window>
Form* Make_Document(Shell& shell) {
  return new PrintedForm(shell, window.name);
}

}  // namespace tallymere
