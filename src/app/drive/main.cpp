#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>
#include <QStandardPaths>
#include <array>
#include <iostream>

#include "app/desktop.h"
#include "app/drive/script.h"
#include "shell/widgets/Form.h"

namespace {

using namespace tallymere;
using namespace tallymere::drive;

constexpr int failed = 1, wrong_usage = 2;

void Describe(QCommandLineParser& parser) {
  parser.setApplicationDescription(QStringLiteral("Runs a script on the program's real windows, offscreen."));
  parser.addHelpOption();
  parser.addPositionalArgument(QStringLiteral("script"), QStringLiteral("what to do, in JavaScript"));
  parser.addOptions(
      {{QStringLiteral("folder"), QStringLiteral("the program's folder; an empty one gets databases"),
        QStringLiteral("dir")},
       {QStringLiteral("temp"), QStringLiteral("a fresh folder, removed at the end (the default)")},
       {QStringLiteral("data"), QStringLiteral("what ships beside the program"), QStringLiteral("dir")},
       {QStringLiteral("today"), QStringLiteral("the day the program stands on"), QStringLiteral("m/d/yyyy")},
       {QStringLiteral("shots"), QStringLiteral("where pictures go"), QStringLiteral("dir")},
       {QStringLiteral("patience"), QStringLiteral("how long a step may take"), QStringLiteral("seconds")}});
}

/// The options, or what is wrong with them.
std::string Read(const QCommandLineParser& parser, Options& options) {
  const auto value = [&](const char* name) { return utf8(parser.value(QString::fromLatin1(name))); };
  if (parser.positionalArguments().size() != 1) return "name one script";
  options.script = utf8(parser.positionalArguments().constFirst());
  options.folder = value("folder");
  options.data = value("data");
  options.shots = value("shots");
  if (!options.folder.empty() && parser.isSet(QStringLiteral("temp"))) return "--folder and --temp exclude each other";
  options.today = Date::parse(value("today"));
  if (!options.today && !value("today").empty()) return "--today is not a date: " + value("today");
  if (parser.isSet(QStringLiteral("patience"))) options.patience = std::atoi(value("patience").c_str());
  return options.patience > 0 ? "" : "--patience is not a number of seconds";
}

/// What the offscreen platform cannot do is no news to anybody.
void Pass_On(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  static constexpr std::array known{"This plugin does not support", "QStandardPaths: XDG_RUNTIME_DIR"};
  for (const char* start : known) {
    if (message.startsWith(QLatin1String(start))) return;
  }
  std::cerr << utf8(qFormatLogMessage(type, context, message)) << std::endl;
}

/// Nothing of this machine and its user may show in a script's outcome.
void Stand_Alone() {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(Pass_On);
  QStandardPaths::setTestModeEnabled(true);
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

int Run(const Options& options) {
  Expectations expectations;
  Stage stage(options, expectations);
  Watchdog watchdog(options.patience, [&stage] { stage.remove_temporary_folder(); });
  Script script(options, stage, expectations, watchdog);
  return script.run() ? 0 : failed;
}

}  // namespace

int main(int argc, char** argv) {
  Stand_Alone();
  QApplication app(argc, argv);
  Prepare_Application(app);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setCursorFlashTime(0);
  QCommandLineParser parser;
  Describe(parser);
  Options options;
  std::string wrong = parser.parse(QApplication::arguments()) ? "" : utf8(parser.errorText());
  if (wrong.empty() && parser.isSet(QStringLiteral("help"))) parser.showHelp(0);
  if (wrong.empty()) wrong = Read(parser, options);
  if (!wrong.empty()) {
    std::cerr << "tallymere-drive: " << wrong << "\n" << utf8(parser.helpText());
    return wrong_usage;
  }
  try {
    return Run(options);
  } catch (const std::exception& fault) {
    std::cerr << options.script.string() << ": " << fault.what() << std::endl;
    return failed;
  }
}
