#pragma once

#include <QPainter>
#include <QString>

namespace tallymere {

/// The family of an installed font that banks' machines read ("MICR", "E-13B"); "" when this machine has none.
QString Bank_Font();

/// Paints a line for banks' machines in twips, eight characters to the inch, the last one's right edge and foot at `end`.
/// In an installed font made for it, else in shapes of our own.
void Paint_Bank_Line(QPainter& painter, QPointF end, const QString& line);

}  // namespace tallymere
