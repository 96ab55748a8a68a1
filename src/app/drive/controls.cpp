#include "app/drive/controls.h"

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTabWidget>
#include <QTextEdit>
#include <algorithm>
#include <array>

#include "app/drive/failed.h"
#include "app/drive/hands.h"
#include "app/drive/lookup.h"
#include "shell/widgets/Form.h"
#include "shell/widgets/grid/SSDBCombo.h"

namespace tallymere::drive::controls {

namespace {

using Reader = QString (*)(const QObject&);

/// The reader for controls of class T; nothing for others.
template <typename T, QString (*Read)(const T&)>
QString Read_As(const QObject& object) {
  const auto* control = qobject_cast<const T*>(&object);
  return control ? Read(*control) : QString();
}

QString Button_Text(const QAbstractButton& button) { return button.text(); }
QString Combo_Text(const QComboBox& combo) { return combo.currentText(); }
QString Group_Text(const QGroupBox& group) { return group.title(); }
QString Label_Text(const QLabel& label) { return label.text(); }
QString Line_Text(const QLineEdit& line) { return line.text(); }
QString List_Text(const QListWidget& list) { return list.currentItem() ? list.currentItem()->text() : QString(); }
QString Plain_Text(const QPlainTextEdit& edit) { return edit.toPlainText(); }
QString Progress_Text(const QProgressBar& bar) { return QString::number(bar.value()); }
QString Rich_Text(const QTextEdit& edit) { return edit.toPlainText(); }
QString Tab_Text(const QTabWidget& tabs) { return tabs.tabText(tabs.currentIndex()); }
QString Chosen_Option(const QButtonGroup& group) { return QString::number(group.checkedId()); }

constexpr std::array<Reader, 11> readers{
    Read_As<QAbstractButton, Button_Text>, Read_As<QComboBox, Combo_Text>,       Read_As<QGroupBox, Group_Text>,
    Read_As<QLabel, Label_Text>,           Read_As<QLineEdit, Line_Text>,        Read_As<QListWidget, List_Text>,
    Read_As<QPlainTextEdit, Plain_Text>,   Read_As<QProgressBar, Progress_Text>, Read_As<QTextEdit, Rich_Text>,
    Read_As<QTabWidget, Tab_Text>,         Read_As<QButtonGroup, Chosen_Option>};

QWidget& Widget(QObject& control) {
  auto* widget = qobject_cast<QWidget*>(&control);
  if (!widget) throw Failed{control.objectName().toStdString() + " is a group of options", "option(group, index)"};
  hands::Reach(*widget, widget->objectName());
  return *widget;
}

/// A list may have a thousand items; a report needs a few.
std::string Some_Of(const QStringList& items) {
  constexpr qsizetype most = 30;
  std::string some = items.mid(0, most).join(QLatin1String(", ")).toStdString();
  return items.size() > most ? some + " and " + std::to_string(items.size() - most) + " more" : some;
}

[[noreturn]] void Not_In_List(const QObject& control, const QString& text) {
  throw Failed{"no " + Shown(text.toStdString()) + " in " + control.objectName().toStdString(),
               {},
               "items: " + Some_Of(Items_Of(control))};
}

/// A name in a list, with or without the blanks that indent it.
int Place_Of(const QObject& control, const QString& text) {
  const QStringList items = Items_Of(control);
  const auto same = [&](const QString& item) { return item == text || item.trimmed() == text; };
  const auto found = std::ranges::find_if(items, same);
  if (found == items.end()) Not_In_List(control, text);
  return static_cast<int>(found - items.begin());
}

void Pick_In_Combo(QComboBox& combo, int place) {
  hands::Take_Focus(combo);
  if (auto* list = qobject_cast<SSDBCombo*>(&combo)) {
    list->pick(place);
  } else {
    combo.setCurrentIndex(place);
    QMetaObject::invokeMethod(&combo, "textActivated", Q_ARG(QString, combo.currentText()));
    QMetaObject::invokeMethod(&combo, "activated", Q_ARG(int, place));
  }
}

/// Where to press a button: a check box or option answers on its mark, however wide it is.
QPoint Spot(const QWidget& widget) {
  constexpr int mark = 8;
  const bool marked = widget.inherits("QCheckBox") || widget.inherits("QRadioButton");
  const QPoint middle = widget.rect().center();
  return marked ? QPoint(mark, middle.y()) : middle;
}

/// A command is enabled when a person can reach it: with every menu above it.
QVariant Property_Of_Command(const QAction& command, const QString& word) {
  if (word == QLatin1String("visible")) return command.isVisible();
  if (word == QLatin1String("checked")) return command.isChecked();
  if (word == QLatin1String("caption") || word == QLatin1String("value")) return command.text();
  if (word != QLatin1String("enabled")) return {};
  try {
    lookup::Require_Usable(command);
    return true;
  } catch (const Failed&) {
    return false;
  }
}

}  // namespace

QString Text_Of(const QObject& control) {
  for (const Reader read : readers) {
    if (const QString text = read(control); !text.isNull()) return text;
  }
  const auto* widget = qobject_cast<const QWidget*>(&control);
  return widget ? widget->windowTitle() : QString();
}

QStringList Items_Of(const QObject& control) {
  QStringList items;
  if (const auto* grid_list = qobject_cast<const SSDBCombo*>(&control)) {
    for (int row = 0; row < grid_list->list().rows(); ++row) items << qt(grid_list->list().name(row));
  } else if (const auto* combo = qobject_cast<const QComboBox*>(&control)) {
    for (int row = 0; row < combo->count(); ++row) items << combo->itemText(row);
  } else if (const auto* list = qobject_cast<const QListWidget*>(&control)) {
    for (int row = 0; row < list->count(); ++row) items << list->item(row)->text();
  } else if (const auto* tabs = qobject_cast<const QTabWidget*>(&control)) {
    for (int page = 0; page < tabs->count(); ++page) items << tabs->tabText(page);
  } else if (const auto* group = qobject_cast<const QButtonGroup*>(&control)) {
    for (const QAbstractButton* button : group->buttons()) items << button->text();
  }
  return items;
}

QVariant Property_Of(const QObject& control, const QString& word) {
  if (const auto* command = qobject_cast<const QAction*>(&control)) return Property_Of_Command(*command, word);
  const auto* widget = qobject_cast<const QWidget*>(&control);
  if (word == QLatin1String("value")) return Text_Of(control);
  if (word == QLatin1String("items")) return Items_Of(control);
  if (!widget) return {};
  if (word == QLatin1String("enabled")) return widget->isEnabled();
  if (word == QLatin1String("visible")) return widget->isVisible();
  if (word == QLatin1String("caption"))
    return widget->isWindow() || widget->windowTitle().size() ? widget->windowTitle() : Text_Of(control);
  if (word == QLatin1String("focused")) {
    const QWidget* focus = QApplication::focusWidget();
    return focus && (focus == widget || widget->isAncestorOf(focus));
  }
  if (word == QLatin1String("coloured")) {
    const auto* button = qobject_cast<const QPushButton*>(widget);
    return button && button->isDefault() && button->isEnabled();
  }
  if (word == QLatin1String("checked")) {
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    const auto* group = qobject_cast<const QGroupBox*>(widget);
    if (button) return button->isChecked();
    if (group && group->isCheckable()) return group->isChecked();
  }
  return {};
}

void Type(QObject& control, const QString& text) {
  QWidget& widget = Widget(control);
  hands::Take_Focus(widget);
  const auto* line = qobject_cast<const QLineEdit*>(&control);
  if (line && line->isReadOnly()) throw Failed{control.objectName().toStdString() + " cannot be written in"};
  hands::Press(Qt::Key_A, Qt::ControlModifier);
  if (text.isEmpty()) hands::Press(Qt::Key_Delete);
  hands::Type(text);
  hands::Leave(widget);
}

void Pick(QObject& control, const QString& text) {
  QWidget& widget = Widget(control);
  const int place = Place_Of(control, text);
  if (auto* combo = qobject_cast<QComboBox*>(&control)) {
    Pick_In_Combo(*combo, place);
  } else if (auto* tabs = qobject_cast<QTabWidget*>(&control)) {
    if (!tabs->isTabEnabled(place) || !tabs->isTabVisible(place)) throw Failed{"that page is out of reach"};
    tabs->setCurrentIndex(place);
  } else if (auto* list = qobject_cast<QListWidget*>(&control)) {
    hands::Take_Focus(widget);
    hands::Click(*list->viewport(), list->visualItemRect(list->item(place)).center());
  } else {
    throw Failed{control.objectName().toStdString() + " has nothing to pick from"};
  }
  hands::Settle();
}

void Click(QObject& control) {
  QWidget& widget = Widget(control);
  hands::Click(widget, Spot(widget));
  hands::Settle();
}

void Check(QObject& control, bool on) {
  const QVariant is = Property_Of(control, QStringLiteral("checked"));
  if (!is.isValid()) throw Failed{control.objectName().toStdString() + " is no check box"};
  if (is.toBool() != on) {
    Click(control);
  } else {
    Widget(control);
  }
}

void Option(QObject& group, int index) { Click(lookup::Option(group, index)); }

void Key(QObject& control, const QString& key) {
  QWidget& widget = Widget(control);
  if (widget.focusPolicy() == Qt::NoFocus) {  // a window: the key goes to where its focus is
    hands::Bring_Forward(widget);
  } else {
    hands::Take_Focus(widget);
  }
  hands::Press(key);
  hands::Settle();
}

}  // namespace tallymere::drive::controls
