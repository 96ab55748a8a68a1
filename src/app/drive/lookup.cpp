#include "app/drive/lookup.h"

#include <QApplication>
#include <QButtonGroup>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <algorithm>

#include "app/drive/failed.h"
#include "shell/widgets/Form.h"

namespace tallymere::drive::lookup {

namespace {

constexpr qsizetype near_names = 5;

/// How many letters apart two names are.
qsizetype Distance(const QString& one, const QString& two) {
  std::vector<qsizetype> row(static_cast<size_t>(two.size()) + 1);
  for (size_t i = 0; i < row.size(); ++i) row[i] = static_cast<qsizetype>(i);
  for (qsizetype i = 0; i < one.size(); ++i) {
    qsizetype diagonal = row[0]++;
    for (size_t j = 1; j < row.size(); ++j) {
      const bool same = one[i].toLower() == two[static_cast<qsizetype>(j) - 1].toLower();
      const qsizetype replaced = diagonal + (same ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
    }
  }
  return row.back();
}

bool Is_Window(const QWidget& widget) {
  if (!widget.isVisible() || widget.objectName().isEmpty()) return false;
  if (qobject_cast<const Form*>(&widget)) return true;
  const Qt::WindowType type = widget.windowType();
  return widget.isWindow() && (type == Qt::Window || type == Qt::Dialog) && !widget.inherits("QMenu");
}

bool Is_Control(const QObject& object) {
  if (object.objectName().isEmpty() || object.objectName().startsWith(QLatin1String("qt_"))) return false;
  return object.isWidgetType() || qobject_cast<const QButtonGroup*>(&object) || qobject_cast<const QAction*>(&object);
}

/// Of two with the same name the command stands before its menu, the one on show before the hidden one.
bool Comes_First(const QObject& object) {
  const auto* widget = qobject_cast<const QWidget*>(&object);
  return !widget || widget->isVisible();
}

/// A submenu is named on its action or on the menu itself.
QString Name_Of(const QAction& action) {
  return action.objectName().isEmpty() && action.menu() ? action.menu()->objectName() : action.objectName();
}

QStringList Names_Of(const QList<QAction*>& actions) {
  QStringList names;
  for (const QAction* action : actions) names << Name_Of(*action);
  return names;
}

void Collect(const QList<QAction*>& actions, QList<QAction*>& all) {
  for (QAction* action : actions) {
    all << action;
    if (action->menu()) Collect(action->menu()->actions(), all);
  }
}

QAction& Named(const QList<QAction*>& actions, const QString& name, const std::string& where) {
  for (QAction* action : actions) {
    if (Name_Of(*action) == name) return *action;
  }
  throw Failed{"no command " + name.toStdString() + " in " + where, {}, Near_Names(name, Names_Of(actions))};
}

}  // namespace

QMainWindow* Find_Frame() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* frame = qobject_cast<QMainWindow*>(widget);
    if (frame && frame->isVisible()) return frame;
  }
  return nullptr;
}

QMainWindow& Frame() {
  QMainWindow* frame = Find_Frame();
  if (!frame) throw Failed{"frmMain is not open", "start() before"};
  return *frame;
}

std::vector<QWidget*> Windows() {
  std::vector<QWidget*> found;
  for (QWidget* widget : QApplication::allWidgets()) {
    if (Is_Window(*widget)) found.push_back(widget);
  }
  std::ranges::sort(found, {}, [](const QWidget* window) { return window->property(shown_number).toInt(); });
  return found;
}

std::vector<QWidget*> Windows(const QString& name) {
  std::vector<QWidget*> found = Windows();
  std::erase_if(found, [&](const QWidget* window) { return window->objectName() != name; });
  return found;
}

QWidget& Window(const QString& name) {
  const std::vector<QWidget*> found = Windows(name);
  if (!found.empty()) return *found.back();
  QStringList open;
  for (const QWidget* window : Windows()) open << window->objectName();
  throw Failed{name.toStdString() + " is not open", {}, "open: " + open.join(QLatin1String(", ")).toStdString()};
}

QObject& Control(QWidget& window, const QString& name) {
  QObject* found = nullptr;
  QStringList names;
  for (QObject* child : window.findChildren<QObject*>()) {
    if (!Is_Control(*child)) continue;
    names << child->objectName();
    if (child->objectName() == name && (!found || (!Comes_First(*found) && Comes_First(*child)))) found = child;
  }
  if (auto* menu = qobject_cast<QMenu*>(found)) return *menu->menuAction();
  if (found) return *found;
  for (const QString& other : names) {
    if (other.compare(name, Qt::CaseInsensitive) == 0) return Control(window, other);
  }
  for (const QString& form : {QStringLiteral("%1_0"), QStringLiteral("%1(0)"), QStringLiteral("%10")}) {
    if (QObject* first = window.findChild<QAbstractButton*>(form.arg(name))) return *first;
  }
  throw Failed{
      "no control " + name.toStdString() + " in " + window.objectName().toStdString(), {}, Near_Names(name, names)};
}

QAbstractButton& Option(QObject& group, int index) {
  QAbstractButton* button = nullptr;
  if (const auto* buttons = qobject_cast<QButtonGroup*>(&group)) {
    button = buttons->button(index);
  } else if (auto* one = qobject_cast<QAbstractButton*>(&group); one && group.objectName().contains(u'0')) {
    QString name = group.objectName();
    name.replace(name.lastIndexOf(u'0'), 1, QString::number(index));
    button = one->window()->findChild<QAbstractButton*>(name);
  } else {
    const auto inside = group.findChildren<QAbstractButton*>();
    if (index >= 0 && index < inside.size()) button = inside[index];
  }
  if (button) return *button;
  throw Failed{group.objectName().toStdString() + " has no option " + std::to_string(index)};
}

QAction& Menu_Command(const QString& name) {
  QList<QAction*> all;
  Collect(Frame().menuBar()->actions(), all);
  return Named(all, name, "the menus");
}

QAction& Tool_Command(const QString& name) {
  QList<QAction*> all;
  for (const QToolBar* bar : Frame().findChildren<QToolBar*>()) all << bar->actions();
  return Named(all, name, "the toolbar");
}

QAction& Item_Of(const QWidget& menu, const QString& name) { return Named(menu.actions(), name, "the context menu"); }

void Require_Usable(const QAction& command) {
  const std::string name = Name_Of(command).toStdString();
  if (!command.isVisible()) throw Failed{name + " is hidden"};
  if (!command.isEnabled()) throw Failed{name + " is disabled"};
  for (const QObject* place : command.associatedObjects()) {
    const auto* bar = qobject_cast<const QToolBar*>(place);
    if (bar && !bar->isEnabled()) throw Failed{"the toolbar of " + name + " is disabled"};
    if (bar && !bar->isVisible()) throw Failed{"the toolbar of " + name + " is hidden"};
    const auto* menu = qobject_cast<const QMenu*>(place);
    if (menu && !menu->menuAction()->associatedObjects().isEmpty()) Require_Usable(*menu->menuAction());
  }
}

std::string Near_Names(const QString& wanted, QStringList names) {
  names.removeAll(QString());
  names.removeDuplicates();
  std::ranges::stable_sort(names, {}, [&](const QString& name) { return Distance(wanted, name); });
  return "near: " + names.mid(0, near_names).join(QLatin1String(", ")).toStdString();
}

}  // namespace tallymere::drive::lookup
