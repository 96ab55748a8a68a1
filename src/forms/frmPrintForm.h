#pragma once

#include "forms/tax_form.h"
#include "printing/layout_paint.h"
#include "shell/widgets/frmPreview.h"

namespace tallymere {

/// The viewer of a filled form: it shows the sheets, prints them and writes a PDF.
class frmPrintForm : public frmPreview {
  Q_OBJECT

 public:
  /// `name` is the viewer's own: "frmPrint941".
  frmPrintForm(Shell& shell_of_frame, const char* name, FormPaper paper);

 private:
  Layout_Shelf shelf_;
};

/// Shows a form until the viewer is closed.
void Show_Paper(Shell& shell, const char* viewer, FormPaper paper);
/// Asks for a place and writes the figures there as CSV.
void Save_Paper_Csv(Shell& shell, const FormPaper& paper);

}  // namespace tallymere
