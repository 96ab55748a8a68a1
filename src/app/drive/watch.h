#pragma once

#include <QObject>
#include <QSet>
#include <QWidget>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

#include "app/drive/expectations.h"

namespace tallymere::drive {

/// Sees windows come up: numbers them in the order they are shown, and hands those that run modally to the
/// script.
class Watch : public QObject {
  Q_OBJECT

 public:
  /// `act` works a modal window as an expectation says.
  Watch(Expectations& expectations, std::function<void(QWidget&, QJSValue)> act);

  bool eventFilter(QObject* watched, QEvent* event) override;
  /// Modal windows go at once and unasked: the script is over.
  void put_away() { putting_away_ = true; }

 private:
  void look();
  void meet(QWidget& modal);
  static void close(QWidget& modal);

  Expectations& expectations_;
  std::function<void(QWidget&, QJSValue)> act_;
  QSet<QWidget*> in_hand_;
  int shown_ = 0;
  bool putting_away_ = false;
};

/// Ends the program when a step takes too long, saying which: a hanging script must not hang its runner.
class Watchdog {
 public:
  Watchdog(int seconds, std::function<void()> last_words);
  ~Watchdog();
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;
  void step(const std::string& where);

 private:
  void run();

  const int seconds_;
  std::function<void()> last_words_;
  std::mutex mutex_;
  std::condition_variable wake_;
  std::string where_;
  bool stepped_ = false, over_ = false;
  std::thread thread_;
};

}  // namespace tallymere::drive
