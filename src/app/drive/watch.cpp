#include "app/drive/watch.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QPointer>
#include <QTimer>
#include <cstdlib>
#include <iostream>

#include "app/drive/lookup.h"
#include "shell/widgets/Form.h"

namespace tallymere::drive {

namespace {
constexpr int look_every_ms = 5;
}

Watch::Watch(Expectations& expectations, std::function<void(QWidget&, QJSValue)> act)
    : expectations_(expectations), act_(std::move(act)) {
  qApp->installEventFilter(this);
  look();
}

bool Watch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show && watched->isWidgetType()) {
    watched->setProperty(lookup::shown_number, ++shown_);
  }
  return false;
}

void Watch::look() {
  // Armed before anything else: a modal window's own loop must find a look waiting.
  QTimer::singleShot(look_every_ms, this, &Watch::look);
  QWidget* modal = QApplication::activeModalWidget();
  if (modal && !in_hand_.contains(modal)) meet(*modal);
}

void Watch::meet(QWidget& modal) {
  const QPointer<QWidget> window = &modal;
  const std::string name =
      utf8(modal.objectName().isEmpty() ? QString::fromLatin1(modal.metaObject()->className()) : modal.objectName());
  if (putting_away_) return close(modal);
  const auto expected = expectations_.meet(Expectations::Kind::Modal, name, "");
  if (!expected) return close(modal);
  in_hand_.insert(&modal);
  act_(modal, expected->act);
  in_hand_.remove(&modal);
  if (!window || !window->isVisible()) return;
  if (!expectations_.failed()) {
    expectations_.fail_at(expected->where, {name + " was left open", "it to be answered or closed"});
  }
  close(*window);
}

/// Closes it, and against its will if need be: an unexpected window must not hold the script.
void Watch::close(QWidget& modal) {
  const QPointer<QWidget> window = &modal;
  auto* form = qobject_cast<Form*>(&modal);
  auto* dialog = qobject_cast<QDialog*>(&modal);
  if (form) form->finish(false);
  if (dialog) dialog->reject();
  if (window && window->isVisible()) window->hide();
  if (window && form && !window->isVisible()) Q_EMIT form->finished();
}

Watchdog::Watchdog(int seconds, std::function<void()> last_words)
    : seconds_(seconds), last_words_(std::move(last_words)), thread_([this] { run(); }) {}

Watchdog::~Watchdog() {
  {
    const std::lock_guard lock(mutex_);
    over_ = true;
  }
  wake_.notify_one();
  thread_.join();
}

void Watchdog::step(const std::string& where) {
  {
    const std::lock_guard lock(mutex_);
    where_ = where;
    stepped_ = true;
  }
  wake_.notify_one();
}

void Watchdog::run() {
  std::unique_lock lock(mutex_);
  while (!over_) {
    stepped_ = false;
    if (wake_.wait_for(lock, std::chrono::seconds(seconds_), [this] { return stepped_ || over_; })) continue;
    std::cerr << where_ << ": the script hangs / expected this step to end within " << seconds_ << " seconds"
              << std::endl;
    last_words_();
    std::_Exit(1);
  }
}

}  // namespace tallymere::drive
