#include <QApplication>
#include <QBuffer>
#include <QCommandLineParser>
#include <QMessageBox>
#include <QTimer>
#include <filesystem>

#include "app/desktop.h"
#include "app/windows.h"
#include "core/backup/whole_file.h"
#include "core/company/company.h"
#include "core/company/folder.h"
#include "core/company/program_folder.h"
#include "payroll/taxtables/update.h"
#include "shell/frmMain.h"
#include "shell/http_fetch.h"
#include "shell/start/frmSplash.h"
#include "shell/widgets/Form.h"
#include "shell/widgets/window_memory.h"

/// The desktop program.
namespace tallymere {

namespace {

namespace fs = std::filesystem;

struct Arguments {
  std::string company;     ///< a company file to open at once
  std::string screenshot;  ///< where to draw the frame, and end
  fs::path folder;         ///< the program's folder, when it is not to be found by itself
};

Arguments read_arguments(const QApplication& app) {
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Accounting and payroll for a small business."));
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addPositionalArgument(QStringLiteral("company"), QStringLiteral("Company file (.cmf) to open."),
                               QStringLiteral("[company-file]"));
  const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                      QStringLiteral("Draw the main window into FILE (.png) and exit."),
                                      QStringLiteral("FILE"));
  const QCommandLineOption folder(
      QStringLiteral("folder"), QStringLiteral("Keep databases, log and new companies in DIR."), QStringLiteral("DIR"));
  parser.addOptions({screenshot, folder});
  parser.process(app);
  return {utf8(parser.positionalArguments().value(0)), utf8(parser.value(screenshot)), utf8(parser.value(folder))};
}

bool write_picture(const QPixmap& picture, const std::string& file) {
  try {
    QBuffer drawn;
    picture.save(&drawn, "PNG");
    Write_Whole(file, [&](std::ostream& out) { out.write(drawn.data().constData(), drawn.data().size()); });
    return true;
  } catch (const std::exception& fault) {
    qWarning("%s", fault.what());
    return false;
  }
}

/// Draws the frame once it has settled. Nobody is there to answer what comes up on the way.
void draw_and_exit(frmMain& frame, const std::string& file, bool opened) {
  QTimer::singleShot(600, &frame, [&frame, file, opened] {
    const bool drawn = write_picture(frame.grab(), file);
    QApplication::exit(drawn && opened ? 0 : 1);
  });
}

void answer_for_nobody(frmMain& frame) {
  auto* nobody = new QTimer(&frame);
  QObject::connect(nobody, &QTimer::timeout, nobody, [] {
    if (QWidget* modal = QApplication::activeModalWidget()) modal->close();
  });
  nobody->start(50);
}

void start(frmMain& frame, const Arguments& arguments) {
  if (!arguments.screenshot.empty()) answer_for_nobody(frame);
  bool opened = true;
  if (arguments.company.empty())
    frame.Start();
  else
    opened = frame.Start_With(fs::absolute(arguments.company).string());
  if (!arguments.screenshot.empty()) draw_and_exit(frame, arguments.screenshot, opened);
}

/// The splash stands until the frame comes up; nobody waits for it to look at a company or a picture.
void start_behind_splash(frmMain& frame, const Arguments& arguments) {
  if (!arguments.company.empty() || !arguments.screenshot.empty()) return start(frame, arguments);
  auto* splash = new frmSplash(frame);
  splash->setAttribute(Qt::WA_DeleteOnClose);
  QObject::connect(splash, &frmSplash::done, &frame, [&frame, arguments] { start(frame, arguments); });
  splash->show_centred();
}

int run(QApplication& app) {
  const Arguments arguments = read_arguments(app);
  const fs::path folder = arguments.folder.empty() ? Program_Folder() : fs::absolute(arguments.folder);
  const fs::path data = Shipped_Data();
  fs::create_directories(folder);
  Prepare_Folder(folder, data);
  DesktopPrompts prompts(data / "sounds");
  Session session(folder, Clock::system(), prompts);
  Main(session);
  const auto frame = Make_Frame(session);
  prompts.set_frame(frame.get(), frame.get());
  frame->Check_Updates = [&session] { Update_Tax_Tables(session, Http_Fetch()); };
  if (arguments.screenshot.empty()) Check_Updates(session, Http_Fetch());
  frame->remembers_place = arguments.screenshot.empty();
  window_memory::set_enabled(frame->remembers_place);
  start_behind_splash(*frame, arguments);
  return QApplication::exec();
}

}  // namespace

}  // namespace tallymere

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  tallymere::Prepare_Application(app);
  try {
    return tallymere::run(app);
  } catch (const std::exception& fault) {
    // Without its folder and its databases the program cannot begin; say why instead of going on without
    // them.
    qCritical("%s", fault.what());
    QMessageBox::critical(nullptr, QStringLiteral("Error"), QString::fromUtf8(fault.what()));
    return 1;
  }
}
