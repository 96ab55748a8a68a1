#pragma once

#include <QDeadlineTimer>
#include <QPushButton>
#include <QTimer>
#include <algorithm>

namespace tallymere {

/// After three wrong passwords nothing can be tried for a while, longer each time: 2, 4, 8 ... 60 seconds. Counted for the
/// whole run of the program, so that closing the window does not shorten it.
class LoginDelay {
 public:
  static void count(bool right, QPushButton& button) {
    misses = right ? 0 : misses + 1;
    if (misses >= 3) until = QDeadlineTimer(1000 * std::min(60, 1 << std::min(misses - 2, 6)));
    hold(button);
  }
  /// Call it when the window comes up.
  static void hold(QPushButton& button) {
    if (until.hasExpired()) return;
    button.setEnabled(false);
    QTimer::singleShot(static_cast<int>(until.remainingTime()), &button, [&button] { button.setEnabled(true); });
  }

 private:
  static inline int misses = 0;
  static inline QDeadlineTimer until{0};
};

}  // namespace tallymere
