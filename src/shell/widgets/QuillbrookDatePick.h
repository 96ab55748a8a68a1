#pragma once

#include <QLineEdit>
#include <optional>
#include <string>

#include "core/values/clock.h"
#include "core/values/date.h"

namespace tallymere {

/// The clock of the window a widget stands in; the system's outside of windows.
Clock clock_of(const QWidget* widget);

/// The date control: m/d/yyyy as text, a calendar on its button or Alt+Down. "+" and "-" or Up and Down move
/// a day, t is today, m and h the first and last day of the month, y and r of the year. Text that is no date
/// is marked and, on leaving, gives way to the last good date.
class QuillbrookDatePick : public QLineEdit {
  Q_OBJECT

 public:
  explicit QuillbrookDatePick(QWidget* parent = nullptr);

  Date value() const;                              ///< today when blank
  std::optional<Date> maybe_value() const;         ///< nothing when blank
  void set_value(const std::optional<Date>& day);  ///< by code: no Change
  void allow_blank(bool allowed);                  ///< false at first: an empty field goes back to the last good date

  void show_calendar();

 Q_SIGNALS:
  void Change();     ///< the user gave another date (typed and left, moved by a key, picked)
  void CloseUp();    ///< the calendar closed
  void LostFocus();  ///< the field was left; value() is good by then

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  std::optional<Date> typed() const;  ///< what stands in the field, if it is a date
  void settle();                      ///< on leaving: take the typed date or go back to the last good one
  void move_to(Date day);             ///< as the user's act
  void show_value();
  std::optional<Date> reached_by(int key) const;

  QAction* open_ = nullptr;  ///< the calendar's button
  std::optional<Date> value_;
  bool blank_allowed_ = false;
};

}  // namespace tallymere
