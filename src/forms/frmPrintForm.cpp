#include "forms/frmPrintForm.h"

#include "core/backup/whole_file.h"
#include "reports/frame/renderers.h"

namespace tallymere {

frmPrintForm::frmPrintForm(Shell& shell_of_frame, const char* name, FormPaper paper)
    : frmPreview(shell_of_frame, name), shelf_(Layout_Places(session.folder), [this](const std::string& fault) {
        session.prompts.box({"Your own layout cannot be used. The one that ships with the program prints instead.",
                             "Layout", Icon::Information, fault});
      }) {
  const QPageLayout page = Page_Of(shelf_.sheet(paper.layouts.front().name()));
  const auto layouts = std::make_shared<const std::vector<Layout>>(std::move(paper.layouts));
  show_pages(
      qt(paper.title), [this, layouts](const QPageLayout&) { return std::make_unique<Layout_Pages>(*layouts, shelf_); },
      page, false);
}

void Show_Paper(Shell& shell, const char* viewer, FormPaper paper) {
  frmPrintForm form(shell, viewer, std::move(paper));
  shell.Run_Modal(form);
}

void Save_Paper_Csv(Shell& shell, const FormPaper& paper) {
  const std::string file = shell.session.prompts.save_file("CSV Files (*.csv)|*.csv", paper.title + ".csv");
  if (file.empty()) return;
  Write_Whole(file, [&](std::ostream& out) { Write_Csv(paper.table, out); });
  shell.say("Saved as " + file + ".");
}

}  // namespace tallymere
