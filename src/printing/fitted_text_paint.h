#pragma once

#include <QPainter>

#include "printing/layout_sheet_paint.h"

/// Texts in the rooms a drawing gives them.
namespace tallymere {

qreal Line_Height(const QFont& font);

/// A text's lines as broken to the width of its room, at the size the drawing says.
QStringList Broken_Lines(const Layout_Sheet::Text& text, const QString& content);

/// Writes a text into its room: filling stars at its end give way first, then it is broken where there is height for a
/// second line, then it shrinks, to six tenths of its size and no further; what still does not go in ends with dots.
void Paint_Fitted(QPainter& painter, const Layout_Sheet::Text& text, const QString& content);

/// Writes broken lines, moved by `moved`; a single one that is too wide shrinks. None goes lower than `height` below the
/// first.
void Paint_Lines(QPainter& painter, const Layout_Sheet::Text& text, const QStringList& lines, QPointF moved,
                 qreal height);

}  // namespace tallymere
