#include "app/drive/hands.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <algorithm>

#include "app/drive/failed.h"

// What the toolkit's own test library sends before a key press, so that shortcuts answer.
extern Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* receiver, ulong timestamp, int key,
                                                      Qt::KeyboardModifiers modifiers, const QString& text,
                                                      bool repeated, ushort count);

namespace tallymere::drive::hands {

namespace {

/// A button pressed by its mnemonic goes down, and acts a moment later.
bool A_Button_Is_Down() {
  return std::ranges::any_of(QApplication::allWidgets(), [](const QWidget* widget) {
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    return button && button->isDown() && button->isVisible();
  });
}

bool Holds(const QWidget& control, const QWidget* inner) {
  return inner && (inner == &control || control.isAncestorOf(inner));
}

QWidget* Target() {
  if (QWidget* popup = QApplication::activePopupWidget()) {
    return popup->focusWidget() ? popup->focusWidget() : popup;
  }
  if (QWidget* focus = QApplication::focusWidget()) return focus;
  return QApplication::activeWindow();
}

}  // namespace

void Bring_Forward(QWidget& control) {
  for (QWidget* at = &control; at; at = at->parentWidget()) {
    auto* sub = qobject_cast<QMdiSubWindow*>(at);
    if (sub && sub->mdiArea() && sub->mdiArea()->activeSubWindow() != sub) {
      sub->mdiArea()->setActiveSubWindow(sub);
    }
  }
  if (!control.window()->isActiveWindow()) control.window()->activateWindow();
  QCoreApplication::processEvents();
}

/// A person is slow: what the program does when idle is done before the next step.
static void Wait_Till_Idle() {
  constexpr int patience_ms = 5000;
  QElapsedTimer waited;
  waited.start();
  while (waited.elapsed() < patience_ms && QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) {
  }
}

void Settle() {
  constexpr int rounds = 4;  // a step may post a step that posts a step
  for (int round = 0; round < rounds; ++round) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  Wait_Till_Idle();
}

/// false: a shortcut took it.
static bool Down(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text = {}) {
  const QPointer<QWidget> target = Target();
  if (!target) throw Failed{"nothing has the focus"};
  if (qt_sendShortcutOverrideEvent(target, 0, key, modifiers, text, false, 1)) return false;
  QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
  QApplication::sendEvent(target, &press);
  return true;
}

static void Up(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text = {}) {
  const QPointer<QWidget> now = Target();
  if (!now) return;
  QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
  QApplication::sendEvent(now, &release);
}

void Press(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text) {
  // Alt goes down before the letter, and quick fingers let it go first: the menu bar watches both.
  const bool with_alt = modifiers & Qt::AltModifier;
  if (with_alt) Down(Qt::Key_Alt, Qt::AltModifier);
  const bool down = Down(key, modifiers, text);
  if (with_alt) Up(Qt::Key_Alt, Qt::NoModifier);
  if (down) Up(key, modifiers, text);
}

/// After a mnemonic: until its button came up again.
static void Wait_For_Buttons() {
  constexpr int patience_ms = 1000;
  QElapsedTimer waited;
  waited.start();
  while (A_Button_Is_Down() && waited.elapsed() < patience_ms)
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

void Press(const QString& name) {
  const QKeySequence keys = QKeySequence::fromString(name, QKeySequence::PortableText);
  if (keys.count() != 1 || keys[0].key() == Qt::Key_unknown) {
    throw Failed{"no such key", "a name such as \"Ctrl+Enter\"", Shown(name.toStdString())};
  }
  const Qt::Key named = keys[0].key();
  const Qt::Key key = named == Qt::Key_Enter ? Qt::Key_Return : named;  // the large one
  const bool plain = name.size() == 1;
  const QString text = plain ? name : key == Qt::Key_Return ? QStringLiteral("\r") : QString();
  Press(key, keys[0].keyboardModifiers(), text);
  Wait_For_Buttons();
}

void Type(const QString& text) {
  for (const QChar letter : text) {
    if (letter == QLatin1Char('\n')) {
      Press(Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
      continue;
    }
    const auto key = static_cast<Qt::Key>(letter.toUpper().unicode());
    Press(key, letter.isUpper() ? Qt::ShiftModifier : Qt::NoModifier, QString(letter));
  }
}

void Take_Focus(QWidget& control) {
  Bring_Forward(control);
  if (!Holds(control, QApplication::focusWidget())) control.setFocus(Qt::MouseFocusReason);
  QCoreApplication::processEvents();
  const QWidget* focus = QApplication::focusWidget();
  if (Holds(control, focus) || (focus && focus == control.focusProxy())) return;
  throw Failed{control.objectName().toStdString() + " does not take the focus",
               {},
               focus ? "the focus on " + focus->objectName().toStdString() : "no focus at all"};
}

void Leave(QWidget& control) {
  const QPointer<QWidget> left = &control;
  Press(Qt::Key_Tab, Qt::NoModifier, QStringLiteral("\t"));
  QWidget* focus = QApplication::focusWidget();
  if (left && Holds(*left, focus)) focus->clearFocus();
  Settle();
}

void Click(QWidget& widget, QPoint at, Qt::MouseButton button) {
  const QPointer<QWidget> target = &widget;
  const QPointF global = widget.mapToGlobal(at);
  Bring_Forward(widget);
  if (target && (target->focusPolicy() & Qt::ClickFocus)) target->setFocus(Qt::MouseFocusReason);
  if (!target) return;
  QMouseEvent press(QEvent::MouseButtonPress, at, global, button, button, Qt::NoModifier);
  QApplication::sendEvent(target, &press);
  if (!target) return;
  QMouseEvent release(QEvent::MouseButtonRelease, at, global, button, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(target, &release);
}

void Reach(const QWidget& control, const QString& name) {
  if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) menu->close();
  const std::string which = name.toStdString();
  if (!control.isVisible()) throw Failed{which + " is hidden"};
  if (!control.isEnabled()) throw Failed{which + " is disabled"};
  const QWidget* modal = QApplication::activeModalWidget();
  if (modal && !Holds(*modal, &control)) {
    throw Failed{which + " stands behind a modal window", {}, modal->objectName().toStdString()};
  }
}

}  // namespace tallymere::drive::hands
