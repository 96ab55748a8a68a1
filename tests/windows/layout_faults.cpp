#include "layout_faults.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QToolButton>

namespace tallymere::testing {

namespace {

std::string name_of(const QWidget& widget) {
  const QString name = widget.objectName();
  const auto* label = qobject_cast<const QLabel*>(&widget);
  const QString words = label ? QStringLiteral(" \"%1\"").arg(label->text()) : QString();
  return (name.isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : name).toStdString() +
         words.toStdString();
}

std::string size_text(QSize size) { return std::to_string(size.width()) + "x" + std::to_string(size.height()); }

/// What the toolkit builds its own controls of.
bool is_inner(const QWidget& widget, const QWidget& window) {
  if (widget.objectName().startsWith(QLatin1String("qt_")) || qobject_cast<const QScrollBar*>(&widget)) return true;
  if (qobject_cast<const QHeaderView*>(&widget)) return true;
  for (const QWidget* outer = widget.parentWidget(); outer && outer != &window; outer = outer->parentWidget())
    if ((qobject_cast<const QAbstractScrollArea*>(outer) && !qobject_cast<const QScrollArea*>(outer)) ||
        qobject_cast<const QComboBox*>(outer) || qobject_cast<const QLineEdit*>(outer) ||
        qobject_cast<const QTabBar*>(outer))
      return true;
  return false;
}

bool is_viewport(const QWidget& widget) {
  const auto* room = qobject_cast<const QScrollArea*>(widget.parentWidget());
  return room && room->viewport() == &widget;
}

/// Stands in a room that scrolls: it may lie beyond what shows just now.
bool scrolls(const QWidget& widget) {
  for (const QWidget* outer = &widget; outer; outer = outer->parentWidget())
    if (is_viewport(*outer)) return true;
  return false;
}

/// The room its words need; nothing for what may be cut: it scrolls or sets itself smaller.
QSize needed(const QWidget& widget) {
  if (widget.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored) return {};
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    if (label->text().isEmpty()) return {};
    return label->wordWrap() ? QSize(0, label->heightForWidth(label->width())) : label->sizeHint();
  }
  if (qobject_cast<const QAbstractButton*>(&widget)) return widget.sizeHint();
  if (qobject_cast<const QTabBar*>(&widget)) return widget.sizeHint();
  if (qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QLineEdit*>(&widget))
    return {0, widget.minimumSizeHint().height()};
  return {};
}

class Looker {
 public:
  explicit Looker(const QWidget& window) : window_(window) {}

  std::vector<std::string> look() {
    for (const QWidget* widget : window_.findChildren<QWidget*>()) {
      if (is_inner(*widget, window_) || widget->isWindow()) continue;
      if (widget->isVisible()) {
        look_at_room(*widget);
        look_at_neighbours(*widget);
      }
      look_at_name(*widget);
    }
    return std::move(faults_);
  }

 private:
  void fault(const QWidget& widget, const std::string& what) { faults_.push_back(name_of(widget) + " " + what); }

  void look_at_room(const QWidget& widget) {
    const QRect place(widget.mapTo(&window_, QPoint()), widget.size());
    if (!scrolls(widget) && !window_.rect().contains(place) && !place.isEmpty())
      fault(widget, "stands beyond the window's edge");
    const QWidget* parent = widget.parentWidget();
    if (parent != &window_ && !is_viewport(*parent) && !parent->rect().contains(widget.geometry()) &&
        !widget.size().isEmpty())
      fault(widget, "stands beyond the edge of " + name_of(*parent));
    const QSize wanted = needed(widget);
    if (wanted.width() > widget.width() + 1 || wanted.height() > widget.height() + 1)
      fault(widget, "needs " + size_text(wanted) + " and has " + size_text(widget.size()));
  }

  void look_at_neighbours(const QWidget& widget) {
    const auto all = widget.parentWidget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (const QWidget* other : all) {
      if (other <= &widget || !other->isVisible() || other->isWindow() || is_inner(*other, window_)) continue;
      const QRect both = other->geometry().intersected(widget.geometry());
      if (both.width() > 1 && both.height() > 1) fault(widget, "overlaps " + name_of(*other));
    }
  }

  void look_at_name(const QWidget& widget) {
    if (widget.focusPolicy() == Qt::NoFocus || widget.focusProxy()) return;
    const bool worked = qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
                        qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QAbstractScrollArea*>(&widget);
    if (!worked) return;
    auto* spoken = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget));
    if (!spoken || spoken->text(QAccessible::Name).trimmed().isEmpty())
      fault(widget, "has no name for those who listen");
  }

  const QWidget& window_;
  std::vector<std::string> faults_;
};

}  // namespace

std::vector<std::string> Layout_Faults(const QWidget& window) { return Looker(window).look(); }

}  // namespace tallymere::testing
