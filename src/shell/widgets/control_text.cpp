#include "shell/widgets/control_text.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "core/values/text.h"
#include "shell/widgets/QuillbrookDatePick.h"
#include "shell/widgets/grid/SSDBCombo.h"

namespace tallymere {

QObject& Control_Of(const QWidget& window, std::string_view name) {
  return *window.findChild<QObject*>(QString::fromStdString(std::string(name)));
}

std::string Text_In(const QObject& control) {
  if (const auto* combo = qobject_cast<const SSDBCombo*>(&control)) return trim(combo->text());
  if (const auto* day = qobject_cast<const QuillbrookDatePick*>(&control)) {
    const auto value = day->maybe_value();
    return value ? value->to_text() : "";
  }
  if (const auto* line = qobject_cast<const QLineEdit*>(&control)) return line->text().toStdString();
  if (const auto* box = qobject_cast<const QPlainTextEdit*>(&control)) return box->toPlainText().toStdString();
  if (const auto* check = qobject_cast<const QCheckBox*>(&control)) return check->isChecked() ? "1" : "0";
  return static_cast<const QButtonGroup&>(control).checkedId() == 0 ? "1" : "0";
}

void Show_Text(QObject& control, const std::string& text) {
  if (auto* combo = qobject_cast<SSDBCombo*>(&control)) {
    const bool own_list = combo->list().parent() == combo;
    if (own_list && !text.empty() && combo->list().find(text) < 0) combo->AddItem(text);
    combo->set_text(text);
  } else if (auto* day = qobject_cast<QuillbrookDatePick*>(&control)) {
    day->set_value(Date::parse(text));
  } else if (auto* line = qobject_cast<QLineEdit*>(&control)) {
    line->setText(QString::fromStdString(text));
    line->home(false);
  } else if (auto* box = qobject_cast<QPlainTextEdit*>(&control)) {
    box->setPlainText(QString::fromStdString(text));
  } else if (auto* check = qobject_cast<QCheckBox*>(&control)) {
    check->setChecked(text == "1");
  } else {
    static_cast<QButtonGroup&>(control).button(text == "1" ? 0 : 1)->setChecked(true);
  }
}

}  // namespace tallymere
