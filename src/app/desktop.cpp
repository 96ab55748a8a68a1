#include "app/desktop.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QStandardPaths>

#include "payroll/taxtables/update.h"
#include "shell/frmProgress.h"
#include "shell/frmStatus.h"
#include "shell/widgets/MessageBox.h"
#include "shell/widgets/grid/arrow_pointer.h"
#include "shell/widgets/line_icon.h"
#include "shell/widgets/sounds.h"
#include "shell/widgets/theme.h"

namespace tallymere {

namespace {

constexpr int quick = 250;         // milliseconds: a pass that takes less shows no window
constexpr int between_looks = 40;  // milliseconds between two paintings of a bar

/// "Company Files (*.cmf)|*.cmf" as the toolkit writes it.
QString filter_of(const std::string& filter) {
  const QStringList parts = qt(filter).split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i < parts.size(); i += 2)
    filters << (parts[i].contains(QLatin1Char('(')) || i + 1 >= parts.size()
                    ? parts[i]
                    : QStringLiteral("%1 (%2)").arg(parts[i], parts[i + 1]));
  return filters.join(QStringLiteral(";;"));
}

/// "cbk" of "Backup Files (*.cbk)|*.cbk".
QString suffix_of(const std::string& filter) { return qt(filter).section(QStringLiteral("*."), -1); }

bool is_file_work(const std::string& label) { return label == "Backup" || label == "Restore"; }

/// Work that waits for something else, a printer or a server, and can be stopped.
bool is_waiting(const std::string& label) {
  return label == "Print" || label == "Save PDF" || label == Tax_Update_Label;
}

}  // namespace

void DesktopPrompts::set_frame(Shell* shell, QWidget* frame) {
  shell_ = shell;
  frame_ = frame;
}

QWidget* DesktopPrompts::above() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  QWidget* active = QApplication::activeWindow();
  return active ? active : frame_.data();
}

using Answer = MessageBox::Answer;

void DesktopPrompts::box(const Box& box) { MessageBox(above(), box, {Answer::Ok}, Answer::Ok, Answer::Ok).ask(); }

bool DesktopPrompts::ask(const Box& box, Buttons buttons) {
  const Answer usual = buttons == Buttons::YesNoDefaultNo ? Answer::No : Answer::Yes;
  return MessageBox(above(), box, {Answer::Yes, Answer::No}, usual, Answer::No).ask() == Answer::Yes;
}

std::optional<bool> DesktopPrompts::ask_or_stay(const Box& box) {
  MessageBox asking(above(), box, {Answer::Yes, Answer::No, Answer::Cancel}, Answer::Yes, Answer::Cancel);
  const Answer answer = asking.ask();
  return answer == Answer::Cancel ? std::nullopt : std::optional(answer == Answer::Yes);
}

std::optional<std::string> DesktopPrompts::input(const std::string& title, const std::string& prompt) {
  const ArrowPointer arrow;
  bool answered = false;
  const QString answer = QInputDialog::getText(above(), qt(title), qt(prompt), QLineEdit::Normal, QString(), &answered);
  return answered ? std::optional(utf8(answer)) : std::nullopt;
}

std::string DesktopPrompts::open_file(const std::string& filter, const std::string& folder) {
  const ArrowPointer arrow;
  return utf8(QFileDialog::getOpenFileName(above(), QStringLiteral("Open"), qt(folder), filter_of(filter)));
}

std::string DesktopPrompts::save_file(const std::string& filter, const std::string& name) {
  const ArrowPointer arrow;
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  QFileDialog dialog(above(), QStringLiteral("Save As"), folder, filter_of(filter));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(suffix_of(filter));  // so that the question about replacing names the right file
  dialog.selectFile(qt(name).replace(QLatin1Char('/'), QLatin1Char('-')));
  if (dialog.exec() != QDialog::Accepted) return {};
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);  // long work may follow: no ghost stays
  return utf8(dialog.selectedFiles().value(0));
}

// --- progress ------------------------------------------------------------------------------------

bool DesktopPrompts::progress(const std::string& label, int64_t done, int64_t total) {
  if (!shell_) return true;
  if (!since_start_.isValid()) since_start_.start();
  if (is_file_work(label)) return show_stoppable(label, done, total);
  if (!is_due()) return !progress_ || !progress_->stopped();
  if (is_waiting(label)) return show_stoppable(label, done, total);
  show_status(label, done, total);
  return true;
}

bool DesktopPrompts::is_due() {
  const bool painted_just_now = since_look_.isValid() && since_look_.elapsed() <= between_looks;
  if (since_start_.elapsed() < quick || painted_just_now) return false;
  since_look_.start();
  return true;
}

/// In the middle of what it keeps from the user.
void DesktopPrompts::put_above(QWidget& bar) const {
  bar.setParent(above(), Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
  bar.setWindowModality(Qt::ApplicationModal);
  bar.adjustSize();
  if (above()) bar.move(above()->window()->geometry().center() - bar.rect().center());
}

bool DesktopPrompts::show_stoppable(const std::string& label, int64_t done, int64_t total) {
  if (!progress_) {
    progress_ = new frmProgress(*shell_);
    put_above(*progress_);
  }
  progress_->show_progress(label, done, total);
  progress_->show();
  QApplication::processEvents();
  return !progress_->stopped();
}

void DesktopPrompts::show_status(const std::string& label, int64_t done, int64_t total) {
  if (!status_) {
    status_ = new frmStatus(*shell_);
    put_above(*status_);
  }
  status_->show_progress(label, done, total);
  status_->show();
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void DesktopPrompts::progress_done() {
  delete status_.data();
  delete progress_.data();
  since_start_.invalidate();
  since_look_.invalidate();
}

void DesktopPrompts::hourglass(bool on) {
  on ? QApplication::setOverrideCursor(Qt::WaitCursor) : QApplication::restoreOverrideCursor();
}

void DesktopPrompts::sound(const std::string& file) { Play_Sound(sounds_, file); }

// --- the program ---------------------------------------------------------------------------------

void Prepare_Application(QApplication& app) {
  QApplication::setOrganizationName(QStringLiteral("Quillbrook Software"));
  QApplication::setApplicationName(QStringLiteral("Tallymere"));
  QApplication::setApplicationVersion(QStringLiteral("1.0.0"));
  apply_theme(app);
  QApplication::setWindowIcon(Program_Icon());
}

}  // namespace tallymere
