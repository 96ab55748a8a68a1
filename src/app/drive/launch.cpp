#include "app/drive/launch.h"

#include "app/windows.h"
#include "core/company/company.h"
#include "shell/frmMain.h"
#include "shell/widgets/ask_printer.h"

namespace tallymere::drive {

namespace {

class Desktop_Program : public Program {
 public:
  explicit Desktop_Program(Session& session) : frame_(Make_Frame(session)) { frame_->Start(); }

 private:
  std::unique_ptr<frmMain> frame_;
};

/// The print dialog as a script answers it: file("Printer", "out.pdf"), or null to cancel.
bool Print_To_File(Session& session, QPrinter& printer) {
  const std::string file = session.prompts.save_file("Printer", "");
  if (file.empty()) return false;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QString::fromStdString(file));
  return true;
}

}  // namespace

std::unique_ptr<Program> Launch(Session& session) {
  Main(session);
  Answer_For_Printer([&session](QPrinter& printer) { return Print_To_File(session, printer); });
  return std::make_unique<Desktop_Program>(session);
}

}  // namespace tallymere::drive
