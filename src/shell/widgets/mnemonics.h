#pragma once

#include <QKeySequence>
#include <functional>

class QWidget;

namespace tallymere {

/// What Alt and a letter does inside a window: presses the button, goes to the field or page whose underlined
/// letter it is. Empty when none shows that letter.
std::function<void()> Mnemonic_Of(QWidget& window, const QKeySequence& keys);

}  // namespace tallymere
