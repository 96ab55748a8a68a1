#include "app/drive/handles.h"

#include "app/drive/failed.h"
#include "shell/widgets/Form.h"

namespace tallymere::drive {

int Handles::number_of(QObject& object) {
  held_.push_back({&object, utf8(object.objectName())});
  return static_cast<int>(held_.size()) - 1;
}

QObject& Handles::object(int number) const {
  const Held& held = held_.at(static_cast<size_t>(number));
  if (!held.object) throw Failed{held.name + " is gone", "a window that is still open"};
  return *held.object;
}

QString Args::text(int at) const {
  const QJSValue given = value(at);
  if (given.isUndefined() || given.isNull())
    throw Failed{"argument " + std::to_string(at + 1) + " is missing", "a text"};
  return given.toString();
}

std::optional<std::string> Args::maybe_text(int at) const {
  const QJSValue given = value(at);
  if (given.isUndefined() || given.isNull()) return std::nullopt;
  return utf8(given.toString());
}

int Args::number(int at) const {
  if (!value(at).isNumber()) throw Failed{"argument " + std::to_string(at + 1), "a number", utf8(value(at).toString())};
  return value(at).toInt();
}

std::vector<QJSValue> Args::from(int at) const {
  std::vector<QJSValue> rest;
  for (int next = at; next < count(); ++next) rest.push_back(value(next));
  return rest;
}

QObject& Args::control(int at) const {
  const QJSValue number = value(at).isObject() ? value(at).property(QStringLiteral("$id")) : QJSValue();
  if (!number.isNumber()) {
    throw Failed{"argument " + std::to_string(at + 1), "a control or window", utf8(value(at).toString())};
  }
  return handles_.object(number.toInt());
}

QWidget& Args::window(int at) const {
  auto* widget = qobject_cast<QWidget*>(&control(at));
  if (!widget) throw Failed{utf8(control(at).objectName()) + " is no window"};
  return *widget;
}

SSDBGrid& Args::grid(int at) const {
  auto* grid = qobject_cast<SSDBGrid*>(&control(at));
  if (!grid) throw Failed{utf8(control(at).objectName()) + " is no grid"};
  return *grid;
}

}  // namespace tallymere::drive
