#pragma once

#include <QColor>

#include "core/company/session.h"

class QWidget;

namespace tallymere {

/// A colour as the company keeps it: red + 256 * green + 65536 * blue; and the way back.
QColor Stored_Color(int64_t value);
int64_t Color_To_Store(const QColor& color);

/// A colour the company chose ("CheckBack"), turned to its dark counterpart on a dark desktop; invalid when
/// it chose none.
QColor Company_Color(Session& session, const std::string& item);

/// Black or white, whichever reads better on a colour.
QColor Text_On(const QColor& paper);

/// Paints a frame, its labels and its fields in one colour, with text that can be read on it. An invalid
/// colour: as the theme has it.
void Paint_Paper(QWidget& frame, const QColor& paper);

}  // namespace tallymere
