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

QPushButton* default_button(const QWidget* window) {
  for (QPushButton* button : window->findChildren<QPushButton*>())
    if (button->isDefault() && button->isEnabled() && button->isVisible()) return button;
  return nullptr;
}

}  // namespace

Form::Form(Shell& shell_of_frame, const char* name, Place place)
    : shell(shell_of_frame), session(shell_of_frame.session), place_(place) {
  setObjectName(QString::fromLatin1(name));
}

Form::~Form() = default;

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
}

void Form::prepare_controls() {
  for (QLabel* label : findChildren<QLabel*>())
    if (QWidget* control = label->buddy(); control && control->accessibleName().isEmpty())
      control->setAccessibleName(label->text().remove(QLatin1Char('&')));
  for (QWidget* control : findChildren<QWidget*>())
    if (control->accessibleName().isEmpty() && control->objectName().size() > 3 &&
        control->focusPolicy() != Qt::NoFocus && !control->objectName().startsWith(QStringLiteral("qt_")) &&
        !qobject_cast<QAbstractButton*>(control))
      control->setAccessibleName(control->objectName().mid(3));
  for (QPlainTextEdit* box : findChildren<QPlainTextEdit*>()) box->setTabChangesFocus(true);
  for (QTextEdit* box : findChildren<QTextEdit*>()) box->setTabChangesFocus(true);
  if (const auto size = window_memory::size_of(objectName()); size && isWindow()) resize(*size);
}

void Form::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && event->modifiers() & Qt::ControlModifier) {
    bool done = false;
    guard("Form_KeyDown", [&] { done = control_enter(); });
    return event->setAccepted(done);
  }
  if (enter && !(event->modifiers() & ~Qt::KeypadModifier)) return enter_pressed();
  if (event->key() == Qt::Key_Escape && place_ == Place::Above) return finish(false);
  QWidget::keyPressEvent(event);
}

/// A letter underlined in this window is its own, also where the frame's menu bar has it too.
bool Form::claims(const QKeyEvent& key) {
  if ((key.modifiers() & ~Qt::KeypadModifier) != Qt::AltModifier) return false;
  mnemonic_ = Mnemonic_Of(*this, QKeySequence(QKeyCombination(Qt::AltModifier, Qt::Key(key.key()))));
  if (mnemonic_) qApp->installEventFilter(this);  // the press itself comes next, to whatever has the focus
  return mnemonic_ != nullptr;
}

bool Form::event(QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride) return QWidget::event(event);
  const bool mine = claims(*static_cast<QKeyEvent*>(event));
  event->setAccepted(mine);
  return mine;
}

bool Form::eventFilter(QObject* watched, QEvent* event) {
  if (!mnemonic_ || event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  qApp->removeEventFilter(this);
  const auto press = std::exchange(mnemonic_, {});
  if (!(static_cast<QKeyEvent*>(event)->modifiers() & Qt::AltModifier)) return false;
  press();
  return true;
}

void Form::enter_pressed() {
  QWidget* here = focusWidget();
  if (!here || here == this) {
    if (auto* button = default_button(this)) button->click();
    return;
  }
  if (auto* button = qobject_cast<QPushButton*>(here)) return button->click();
  QWidget* next = next_field(this, here);
  auto* button = qobject_cast<QPushButton*>(next);
  QPushButton* ok = default_button(this);
  if (place_ == Place::Above && ok && (!next || button)) {
    ok->setFocus(Qt::TabFocusReason);  // the field is left first, as by hand: its lost-focus work runs
    if (ok->hasFocus() || focusWidget() == ok) ok->click();
    return;
  }
  if (next) next->setFocus(Qt::TabFocusReason);
}

}  // namespace tallymere
