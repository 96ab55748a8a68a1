#pragma once

#include <QObject>
#include <string>
#include <string_view>

class QWidget;

/// What stands in a control, whatever control it is, as a text: for windows whose fields are a table.
namespace tallymere {

/// The control of a window with this name on the screen; every window of a table has it.
QObject& Control_Of(const QWidget& window, std::string_view name);

/// A tick is "1" or "0", of an option group it is the first button's; a combo's text comes without blanks around it.
std::string Text_In(const QObject& control);
/// Shows such a text; one that a combo's own list lacks is added there, so that it can be chosen again.
void Show_Text(QObject& control, const std::string& text);

}  // namespace tallymere
