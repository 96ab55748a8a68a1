#include "app/drive/script.h"

#include <QFile>
#include <QRegularExpression>
#include <iostream>

#include "app/drive/failed.h"
#include "app/drive/prelude.h"
#include "core/store/error.h"
#include "shell/widgets/Form.h"

namespace tallymere::drive {

Script::Script(const Options& options, Stage& stage, Expectations& expectations, Watchdog& watchdog)
    : options_(options),
      stage_(stage),
      expectations_(expectations),
      watchdog_(watchdog),
      watch_(expectations, [this](QWidget& modal, QJSValue what) { act(modal, what); }) {
  engine_.installExtensions(QJSEngine::ConsoleExtension);
  QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
  const QJSValue set_up = engine_.evaluate(QString::fromUtf8(prelude), QStringLiteral("driver"));
  wrap_ = set_up.call({engine_.newQObject(this), engine_.globalObject()});
  if (!wrap_.isCallable()) throw std::logic_error("the prelude fails: " + utf8(wrap_.toString() + set_up.toString()));
}

Script::~Script() { watch_.put_away(); }

bool Script::run() {
  QFile file(qt(options_.script.string()));
  if (file.open(QIODevice::ReadOnly)) {
    evaluate(QString::fromUtf8(file.readAll()));
  } else {
    expectations_.fail_at(options_.script.string(), {"the script cannot be read"});
  }
  expectations_.finish();
  for (const std::string& failure : expectations_.failures()) std::cerr << failure << std::endl;
  const bool good = !expectations_.failed();
  watch_.put_away();
  expectations_.be_quiet();
  return good;
}

void Script::evaluate(const QString& program) {
  const QString name = qt(options_.script.string());
  QStringList trace;
  const QJSValue result = engine_.evaluate(program, name, 1, &trace);
  // What a wrong step left behind is already noted; a second line about the same would only confuse.
  if ((result.isError() || !trace.isEmpty()) && !expectations_.failed()) note(result);
}

/// An uncaught error, at the script's innermost line.
void Script::note(const QJSValue& error) {
  const QString stack = error.property(QStringLiteral("stack")).toString();
  std::string where = place(stack);
  const QJSValue line = error.property(QStringLiteral("lineNumber"));
  if (where == options_.script.string() && line.isNumber()) where += ":" + std::to_string(line.toInt());
  const QJSValue message = error.property(QStringLiteral("message"));
  const bool own = error.property(QStringLiteral("name")).toString() == QLatin1String("Error");
  const std::string said = utf8(own && message.isString() ? message.toString() : error.toString());
  expectations_.fail_at(where, {said});
}

void Script::act(QWidget& modal, QJSValue what) {
  const std::string outer = expectations_.where();
  QJSValue window = handles_.number_of(modal);
  const QJSValue result = what.call({wrap_.call({window})});
  if (result.isError() && !expectations_.failed()) note(result);
  expectations_.at(outer);
}

/// "SCRIPT.js:LINE" of the innermost frame that is the script's own.
std::string Script::place(const QString& stack) const {
  const QString script = qt(options_.script.string());
  static const QRegularExpression ends_in_line(QStringLiteral(":(-?\\d+)(:-?\\d+)?$"));
  for (const QString& frame : stack.split(QLatin1Char('\n'))) {
    if (!frame.contains(script)) continue;
    const auto match = ends_in_line.match(frame);
    if (match.hasMatch()) return utf8(script) + ":" + std::to_string(std::abs(match.captured(1).toInt()));
  }
  return utf8(script);
}

/// Runs a verb; what went wrong, or nothing.
std::string Script::attempt(Verb verb, const Args& args, QJSValue& result) {
  try {
    Toolbox tools{engine_, stage_, expectations_, handles_};
    result = verb(tools, args);
    return {};
  } catch (const Failed& failed) {
    return failed.text();
  } catch (const store::Error& fault) {
    return "store error " + std::to_string(fault.number) + ": " + fault.description();
  } catch (const std::exception& fault) {
    return fault.what();
  }
}

QJSValue Script::call(const QString& verb, const QString& stack, const QJSValue& arguments) {
  const std::string where = place(stack);
  expectations_.at(where);
  watchdog_.step(where);
  QJSValue result;
  std::string wrong;
  if (const Verb found = Find_Verb(verb)) wrong = attempt(found, Args(arguments, handles_), result);
  stage_.note_company();
  expectations_.at(where);
  if (!wrong.empty()) {
    engine_.throwError(QJSValue::GenericError, qt(wrong));
  } else if (expectations_.failed()) {
    engine_.throwError(QJSValue::GenericError, qt(expectations_.failures().back()));
  }
  return result;
}

}  // namespace tallymere::drive
