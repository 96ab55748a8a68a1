#pragma once

#include <QSize>
#include <QString>
#include <optional>

namespace tallymere::window_memory {

/// Off until the desktop program turns it on: tests and the driver see every window at its own size.
void set_enabled(bool enabled);
std::optional<QSize> size_of(const QString& window);
void remember(const QString& window, QSize size);
/// The width a user gave a column, in pixels; 0: none. The key names window, grid and column; empty: nothing is kept.
int column_width(const QString& key);
void remember_column(const QString& key, int width);

}  // namespace tallymere::window_memory
