#include "shell/widgets/sounds.h"

#include <QApplication>
#include <QProcess>
#include <QStandardPaths>

namespace tallymere {

namespace {

std::function<void(const std::string&)>& hook() {
  static std::function<void(const std::string&)> installed;
  return installed;
}

/// The desktop's player of wave files, or empty.
const QString& player() {
  static const QString found = [] {
    for (const char* name : {"pw-play", "paplay", "aplay"})
      if (const QString path = QStandardPaths::findExecutable(QString::fromLatin1(name)); !path.isEmpty()) return path;
    return QString();
  }();
  return found;
}

}  // namespace

void Set_Sound_Hook(std::function<void(const std::string& file)> taker) { hook() = std::move(taker); }

void Play_Sound(const std::filesystem::path& folder, const std::string& file) {
  if (hook()) return hook()(file);
  std::error_code missing;
  const std::filesystem::path wave = folder / file;
  const bool playable = !player().isEmpty() && std::filesystem::exists(wave, missing);
  if (!playable || !QProcess::startDetached(player(), {QString::fromStdString(wave.string())})) QApplication::beep();
}

}  // namespace tallymere
