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

}  // namespace

std::function<void()> Mnemonic_Of(QWidget& window, const QKeySequence& keys) {
  for (QAbstractButton* button : window.findChildren<QAbstractButton*>())
    if (answers(*button, button->text(), keys))
      return [button] {
        button->setFocus(Qt::ShortcutFocusReason);
        button->click();
      };
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
