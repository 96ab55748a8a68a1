#pragma once

#include <QColor>
#include <QFont>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <initializer_list>

class QApplication;
class QHBoxLayout;
class QVBoxLayout;

namespace tallymere {

namespace theme {

enum class Scheme { Desktop, Light, Dark };  ///< Desktop: as the desktop's palette is

inline constexpr int unit = 8;  ///< pixels at 100%; every gap is a multiple
inline constexpr int gap = unit;
inline constexpr int margin = 2 * unit;

bool is_dark();
QColor accent();      ///< selections, the default button, links
QColor on_accent();   ///< text on it
QColor quiet_text();  ///< hints, empty grids
QColor faulty();      ///< text that cannot be taken
QColor grid_line();

/// The font in which amounts stand in columns: digits of one width.
QFont tabular(const QFont& base);

}  // namespace theme

/// Fusion with our palette, accent, font and default button.
void apply_theme(QApplication& app, theme::Scheme scheme = theme::Scheme::Desktop);

/// Shows a field's text as one that cannot be taken, or as usual again.
void mark_faulty(QWidget* field, bool faulty);

/// A label that names a control: right-aligned to it, its buddy ("&Name:"), its accessible name.
QLabel* label_for(QWidget* control, const QString& text);

/// Labels right-aligned beside their fields, on the 8-pixel rhythm.
QFormLayout* form_layout();
void add_field(QFormLayout* form, const QString& label, QWidget* control);

QVBoxLayout* column_layout(
    QWidget* owner = nullptr);  ///< top to bottom; with the window's margins when it has an owner
QHBoxLayout* row_layout();

/// Buttons of one height in a row: the first group left, the second at the lower right, its last the default
/// button.
QHBoxLayout* button_row(std::initializer_list<QPushButton*> left, std::initializer_list<QPushButton*> right);
/// The same with no default button (lists and reports, where Enter belongs to the grid).
QHBoxLayout* plain_button_row(std::initializer_list<QPushButton*> left, std::initializer_list<QPushButton*> right);
/// A dialog of plain fields: these from the top, its buttons at the lower right, the last one the default.
void lay_out_dialog(QWidget* dialog, QFormLayout* fields, std::initializer_list<QPushButton*> buttons);

}  // namespace tallymere
