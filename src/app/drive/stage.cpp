#include "app/drive/stage.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QPixmap>
#include <QTimer>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

#include "app/drive/hands.h"
#include "app/drive/lookup.h"
#include "core/company/folder.h"
#include "shell/widgets/Form.h"
#include "shell/widgets/sounds.h"

namespace tallymere::drive {

namespace fs = std::filesystem;

namespace {

constexpr int company_wait_ms = 3000;

fs::path Temporary_Folder() {
  std::string name = (fs::temp_directory_path() / "tallymere-drive-XXXXXX").string();
  if (!mkdtemp(name.data())) throw std::runtime_error("no temporary folder can be made");
  return name;
}

fs::path Prepared(const fs::path& folder) {
  fs::create_directories(folder);
  return fs::canonical(folder);
}

/// The shipped rows, beside the program or above its build folder.
fs::path Shipped_Data() {
  fs::path at = QApplication::applicationDirPath().toStdString();
  for (; at != at.root_path(); at = at.parent_path()) {
    if (fs::is_directory(at / "data" / "model")) return at / "data";
  }
  throw std::runtime_error("no shipped data beside the program; name it with --data");
}

/// After a quit() the toolkit runs no inner loop until its outermost one has run and ended.
void Forget_Quit() {
  QTimer::singleShot(0, qApp, &QCoreApplication::quit);
  QApplication::exec();
}

}  // namespace

Stage::Stage(const Options& options, Expectations& expectations)
    : options_(options),
      folder_(options.folder.empty() ? Temporary_Folder() : Prepared(options.folder)),
      prompts_(expectations, folder_) {
  Set_Sound_Hook([this](const std::string& file) { prompts_.sound(file); });
}

Stage::~Stage() {
  program_.reset();
  session_.reset();
  Set_Sound_Hook({});
  remove_temporary_folder();
}

void Stage::start() {
  if (lookup::Find_Frame()) throw Failed{"the program runs already"};
  if (session_) Forget_Quit();
  program_.reset();
  session_.reset();
  Prepare_Folder(folder_, options_.data.empty() ? Shipped_Data() : options_.data);
  const Clock clock = options_.today ? Clock::standing_on(*options_.today) : Clock::system();
  session_ = std::make_unique<Session>(folder_, clock, prompts_);
  program_ = Launch(*session_);
}

void Stage::wait_for_company() {
  const auto* timer = lookup::Frame().findChild<QTimer*>(QStringLiteral("Timer1"));
  QElapsedTimer waited;
  waited.start();
  while (timer && timer->isActive() && waited.elapsed() < company_wait_ms) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  hands::Settle();
}

void Stage::note_company() {
  if (session_ && !session_->CompanyPath.empty()) company_ = session_->CompanyPath;
}

std::vector<std::string> Stage::log_lines() const {
  std::vector<std::string> lines;
  std::ifstream file(folder_ / "ErrorLog.txt");
  for (std::string line; std::getline(file, line);) {
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

void Stage::shot(QWidget& widget, const std::string& name) const {
  if (options_.shots.empty()) return;
  fs::create_directories(options_.shots);
  const QString path = qt((options_.shots / (name + ".png")).string());
  if (!widget.grab().save(path)) throw Failed{"the picture cannot be written", utf8(path)};
}

void Stage::remove_temporary_folder() const {
  std::error_code ignored;
  if (options_.folder.empty()) fs::remove_all(folder_, ignored);
}

}  // namespace tallymere::drive
