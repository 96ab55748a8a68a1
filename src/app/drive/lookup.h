#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QMainWindow>
#include <QStringList>
#include <QWidget>
#include <vector>

/// Finding windows, controls and commands by the names the screen gives them. What is not there is Failed,
/// with the names that come near.
namespace tallymere::drive::lookup {

QMainWindow* Find_Frame();  ///< nullptr before start() and after exit
QMainWindow& Frame();

/// Shown windows, in the order they were opened (see Watch, which numbers them).
std::vector<QWidget*> Windows();
std::vector<QWidget*> Windows(const QString& name);
QWidget& Window(const QString& name);  ///< the newest of that name
inline constexpr char shown_number[] = "drive_shown";

/// A control, a group of option buttons or a command of a window.
QObject& Control(QWidget& window, const QString& name);
/// Button `index` of a group: by the group's id, by the index behind its name, or by its place in the frame.
QAbstractButton& Option(QObject& group, int index);

QAction& Menu_Command(const QString& name);
QAction& Tool_Command(const QString& name);
QAction& Item_Of(const QWidget& menu, const QString& name);
/// Failed when the command, or a menu on the way to it, is disabled or hidden.
void Require_Usable(const QAction& command);

/// The few of these names that come nearest to what was asked for.
std::string Near_Names(const QString& wanted, QStringList names);

}  // namespace tallymere::drive::lookup
