#include "shell/widgets/Form.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTextEdit>

#include "core/company/error_box.h"
#include "shell/widgets/mnemonics.h"
#include "shell/widgets/window_memory.h"

namespace tallymere {

namespace {

void select_all(QWidget* control) {
  if (auto* line = qobject_cast<QLineEdit*>(control)) line->selectAll();
  if (auto* combo = qobject_cast<QComboBox*>(control); combo && combo->lineEdit()) combo->lineEdit()->selectAll();
  if (auto* spin = qobject_cast<QAbstractSpinBox*>(control)) spin->selectAll();
  if (auto* plain = qobject_cast<QPlainTextEdit*>(control)) plain->selectAll();
  if (auto* rich = qobject_cast<QTextEdit*>(control)) rich->selectAll();
}

/// Text that is no longer being written stands in its usual colours.
void select_nothing(QWidget* control) {
  const auto drop = [](auto* box) {
    if (!box) return;
    QTextCursor cursor = box->textCursor();
    cursor.clearSelection();
    box->setTextCursor(cursor);
  };
  drop(qobject_cast<QPlainTextEdit*>(control));
  drop(qobject_cast<QTextEdit*>(control));
}

/// Brings the tab page or stacked page to the front on which a control stands.
void show_pages_of(QWidget* control) {
  for (QWidget* inner = control; inner && !inner->isWindow(); inner = inner->parentWidget())
    if (auto* stack = qobject_cast<QStackedWidget*>(inner->parentWidget())) {
      auto* tabs = qobject_cast<QTabWidget*>(stack->parentWidget());
      tabs ? tabs->setCurrentWidget(inner) : stack->setCurrentWidget(inner);
    }
}

/// Where Tab would go from here, inside the window; nullptr when nowhere.
QWidget* next_field(const QWidget* window, QWidget* from) {
  for (QWidget* next = from->nextInFocusChain(); next && next != from; next = next->nextInFocusChain()) {
    const bool takes_tab = (next->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
    const bool inside_field = from->isAncestorOf(next) || next->focusProxy();
    if (takes_tab && !inside_field && next->isEnabled() && next->isVisible() && window->isAncestorOf(next)) return next;
  }
  return nullptr;
}

/// Grids and boxes of several lines know what to do with Enter.
bool takes_enter(const QWidget* field) { return qobject_cast<const QAbstractScrollArea*>(field); }

bool can_be_pressed(const QPushButton* button) { return button && button->isEnabled() && button->isVisible(); }

}  // namespace

Form::Form(Shell& shell_of_frame, const char* name, Place place)
    : shell(shell_of_frame), session(shell_of_frame.session), place_(place) {
  setObjectName(QString::fromLatin1(name));
}

/// Children that go with the window may still lose the focus; nothing of it is for a window half gone.
Form::~Form() { disconnect(qApp, nullptr, this, nullptr); }

QSize Form::sizeHint() const { return window_memory::size_of(objectName()).value_or(QWidget::sizeHint()); }

bool Form::guard(const char* procedure, const std::function<void()>& work) {
  try {
    work();
    return true;
  } catch (const std::exception& fault) {
    Error_Box(session, utf8(objectName()), procedure, fault);
    return false;
  }
}

void Form::show_fault(const Fault& fault) {
  session.prompts.box(fault.box);
  if (fault.control.empty()) return;
  if (auto* control = findChild<QWidget*>(qt(fault.control))) go_to(control);
}

void Form::go_to(QWidget* control) {
  show_pages_of(control);
  control->setFocus(Qt::OtherFocusReason);
  select_all(control);
}

void Form::finish(bool accepted, const std::string& answer) {
  accepted_ = accepted;
  answer_ = answer;
  auto* frame = qobject_cast<QMdiSubWindow*>(parentWidget());
  frame ? frame->close() : close();
}

void Form::closeEvent(QCloseEvent* event) {
  bool leave = false;
  guard("Form_QueryUnload", [&] { leave = may_close(); });
  if (!leave) {
    accepted_ = false;
    return event->ignore();
  }
  guard("Form_Unload", [this] { unloading(); });
  if (!isMaximized() && !(parentWidget() && parentWidget()->isMaximized()))
    window_memory::remember(objectName(), size());
  event->accept();
  Q_EMIT finished();
}

void Form::showEvent(QShowEvent* event) {
  if (!prepared_) prepare_controls();
  prepared_ = true;
  QWidget::showEvent(event);
  show_enter_button();
}

/// A control goes by the words of its label; what has none is named where it is made.
void Form::name_controls() {
  for (QLabel* label : findChildren<QLabel*>())
    if (QWidget* control = label->buddy(); control && control->accessibleName().isEmpty())
      control->setAccessibleName(label->text().remove(QLatin1Char('&')));
}

void Form::prepare_controls() {
  name_controls();
  for (QPlainTextEdit* box : findChildren<QPlainTextEdit*>()) box->setTabChangesFocus(true);
  for (QTextEdit* box : findChildren<QTextEdit*>()) box->setTabChangesFocus(true);
  for (QPushButton* button : findChildren<QPushButton*>())
    if (button->isDefault()) main_button_ = button;
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* left, QWidget* now) {
    if (left && now && isAncestorOf(left)) select_nothing(left);
    show_enter_button();
  });
  if (const auto size = window_memory::size_of(objectName()); size && isWindow()) resize(*size);
}

// --- keys ----------------------------------------------------------------------------------------

void Form::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && event->modifiers() & Qt::ControlModifier) {
    bool done = false;
    guard("Form_KeyDown", [&] { done = control_enter(); });
    return event->setAccepted(done);
  }
  if (enter && !(event->modifiers() & ~Qt::KeypadModifier)) return enter_pressed();
  if (event->key() == Qt::Key_Escape) return finish(false);
  QWidget::keyPressEvent(event);
}

bool Form::control_enter() {
  if (place_ != Place::Above || !can_be_pressed(main_button_)) return false;
  press(*main_button_);
  return true;
}

/// A letter underlined in this window is its own, also where the frame's menu bar has it too; Ctrl+W closes this
/// window and none behind it.
std::function<void()> Form::meaning_of(const QKeyEvent& key) {
  const auto modifiers = key.modifiers() & ~Qt::KeypadModifier;
  if (key.key() == Qt::Key_W && modifiers == Qt::ControlModifier) return [this] { finish(false); };
  if (modifiers != Qt::AltModifier) return {};
  return Mnemonic_Of(*this, QKeySequence(QKeyCombination(Qt::AltModifier, Qt::Key(key.key()))));
}

/// The press itself comes next, to whatever has the focus. It is caught there and no sooner: the menu bar must see
/// that Alt was not pressed alone, or letting go of it would open the menus.
bool Form::claims(const QKeyEvent& key) {
  mnemonic_ = meaning_of(key);
  if (!mnemonic_) return false;
  pressed_on_ = QApplication::focusWidget() ? QApplication::focusWidget() : this;
  pressed_on_->installEventFilter(this);
  return true;
}

bool Form::event(QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride) return QWidget::event(event);
  const bool mine = claims(*static_cast<QKeyEvent*>(event));
  event->setAccepted(mine);
  return mine;
}

bool Form::eventFilter(QObject* watched, QEvent* event) {
  if (!mnemonic_ || watched != pressed_on_ || event->type() != QEvent::KeyPress)
    return QWidget::eventFilter(watched, event);
  watched->removeEventFilter(this);
  const auto press = std::exchange(mnemonic_, {});
  if (!(static_cast<QKeyEvent*>(event)->modifiers() & (Qt::AltModifier | Qt::ControlModifier))) return false;
  press();
  return true;
}

QPushButton* Form::enter_button() const {
  QWidget* here = focusWidget();
  QPushButton* main = can_be_pressed(main_button_) ? main_button_.data() : nullptr;
  if (!here || here == this) return main;
  if (auto* button = qobject_cast<QPushButton*>(here)) return button;
  if (place_ != Place::Above || takes_enter(here)) return nullptr;
  QWidget* next = next_field(this, here);
  return !next || qobject_cast<QPushButton*>(next) ? main : nullptr;
}

/// The coloured button is the one that Enter would press now.
void Form::show_enter_button() {
  QPushButton* coloured = enter_button();
  for (QPushButton* button : findChildren<QPushButton*>()) button->setDefault(button == coloured);
}

/// The field is left first, as by hand: its lost-focus work runs, and may keep the focus.
void Form::press(QPushButton& button) {
  button.setFocus(Qt::TabFocusReason);
  if (button.hasFocus() || focusWidget() == &button) button.click();
}

void Form::enter_pressed() {
  if (QPushButton* button = enter_button()) return press(*button);
  QWidget* here = focusWidget();
  if (QWidget* next = here ? next_field(this, here) : nullptr) next->setFocus(Qt::TabFocusReason);
}

}  // namespace tallymere
