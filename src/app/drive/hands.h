#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>

/// What fingers do: real key and mouse events, focus, and waiting until the program has nothing left to do.
namespace tallymere::drive::hands {

/// Lets the program work off what is posted, deferred deletes included.
void Settle();

/// A key to whatever has the focus. Shortcuts, mnemonics and the default button get it as on a desktop.
void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {});
/// "Ctrl+Enter", "F2", "Alt+Down", "a". Failed when there is no such key.
void Press(const QString& name);
void Type(const QString& text);

void Bring_Forward(QWidget& control);  ///< the window it stands in becomes the active one
/// Brings the window of a control to the front and puts the focus on it. Failed when it will not take it.
void Take_Focus(QWidget& control);
/// Leaves a control by Tab, or, where Tab is a character, by the focus going away.
void Leave(QWidget& control);

void Click(QWidget& widget, QPoint at, Qt::MouseButton button = Qt::LeftButton);

/// Reaches for a control, which closes an open context menu. Failed unless a person could work it now: shown,
/// enabled, and no modal window before it.
void Reach(const QWidget& control, const QString& name);

}  // namespace tallymere::drive::hands
