#include "shell/widgets/mnemonics.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTabWidget>

namespace tallymere {

namespace {

bool answers(const QWidget& control, const QString& text, const QKeySequence& keys) {
  return control.isVisible() && control.isEnabled() && QKeySequence::mnemonic(text) == keys;
}

void show_page(QTabWidget* tabs, int page) {
  tabs->setCurrentIndex(page);
  tabs->currentWidget()->setFocus(Qt::ShortcutFocusReason);
}

QList<QAbstractButton*> answering_buttons(const QWidget& window, const QKeySequence& keys) {
  QList<QAbstractButton*> buttons = window.findChildren<QAbstractButton*>();
  buttons.removeIf([&](QAbstractButton* button) { return !answers(*button, button->text(), keys); });
  return buttons;
}

/// One button is pressed; where several share a letter, each press of it goes on to the next.
void press_or_go_on(const QList<QAbstractButton*>& buttons, const QWidget* focus) {
  qsizetype at = 0;
  while (at < buttons.size() && buttons[at] != focus) ++at;
  QAbstractButton* next = buttons[at < buttons.size() ? (at + 1) % buttons.size() : 0];
  next->setFocus(Qt::ShortcutFocusReason);
  if (buttons.size() == 1) next->click();
}

}  // namespace

std::function<void()> Mnemonic_Of(QWidget& window, const QKeySequence& keys) {
  if (const auto buttons = answering_buttons(window, keys); !buttons.isEmpty())
    return [buttons, &window] { press_or_go_on(buttons, window.focusWidget()); };
  for (QLabel* label : window.findChildren<QLabel*>())
    if (QWidget* field = label->buddy(); field && field->isEnabled() && answers(*label, label->text(), keys))
      return [field] { field->setFocus(Qt::ShortcutFocusReason); };
  for (QTabWidget* tabs : window.findChildren<QTabWidget*>())
    for (int page = 0; page < tabs->count(); ++page)
      if (tabs->isTabEnabled(page) && answers(*tabs, tabs->tabText(page), keys))
        return [tabs, page] { show_page(tabs, page); };
  return {};
}

}  // namespace tallymere
