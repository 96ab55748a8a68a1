#pragma once

#include <QFrame>
#include <functional>

#include "core/values/date.h"

namespace tallymere {

/// The month that opens below a date field; weeks begin on Sunday. Destroys itself when it closes.
class DateCalendar : public QFrame {
  Q_OBJECT

 public:
  DateCalendar(QWidget* field, Date shown, Date today, std::function<void(Date)> picked);
  void open();

 Q_SIGNALS:
  void closed();

 protected:
  void hideEvent(QHideEvent* event) override;
};

}  // namespace tallymere
