#pragma once

#include <QJSValue>
#include <QObject>
#include <QPointer>
#include <string>
#include <vector>

#include "shell/widgets/grid/SSDBGrid.h"

namespace tallymere::drive {

/// Windows and controls as a script holds them: by number, so that one that is gone is noticed.
class Handles {
 public:
  int number_of(QObject& object);
  QObject& object(int number) const;  ///< Failed when it is gone

 private:
  struct Held {
    QPointer<QObject> object;
    std::string name;
  };
  std::vector<Held> held_;
};

/// What a script passed to a verb. A wrong or missing argument is Failed.
class Args {
 public:
  Args(const QJSValue& list, const Handles& handles) : list_(list), handles_(handles) {}

  int count() const { return list_.property(QStringLiteral("length")).toInt(); }
  QJSValue value(int at) const { return list_.property(static_cast<quint32>(at)); }
  QString text(int at) const;
  std::optional<std::string> maybe_text(int at) const;  ///< nothing for null or when left out
  int number(int at) const;
  bool flag(int at) const { return value(at).toBool(); }
  std::vector<QJSValue> from(int at) const;
  QObject& control(int at) const;
  QWidget& window(int at) const;
  SSDBGrid& grid(int at) const;

 private:
  const QJSValue& list_;
  const Handles& handles_;
};

}  // namespace tallymere::drive
