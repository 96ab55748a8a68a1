#include "shell/widgets/window_memory.h"

#include <QSettings>

namespace tallymere::window_memory {

namespace {

bool enabled = false;

QString key(const QString& window) { return QStringLiteral("windows/%1/size").arg(window); }

}  // namespace

void set_enabled(bool on) { enabled = on; }

std::optional<QSize> size_of(const QString& window) {
  if (!enabled) return std::nullopt;
  const QSize size = QSettings().value(key(window)).toSize();
  return size.isEmpty() ? std::nullopt : std::optional(size);
}

void remember(const QString& window, QSize size) {
  if (enabled && !size.isEmpty()) QSettings().setValue(key(window), size);
}

int column_width(const QString& key) {
  return enabled && !key.isEmpty() ? QSettings().value(QStringLiteral("columns/") + key).toInt() : 0;
}

void remember_column(const QString& key, int width) {
  if (enabled && !key.isEmpty()) QSettings().setValue(QStringLiteral("columns/") + key, width);
}

}  // namespace tallymere::window_memory
