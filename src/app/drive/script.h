#pragma once

#include <QJSEngine>
#include <QObject>
#include <string>

#include "app/drive/vocabulary.h"
#include "app/drive/watch.h"

namespace tallymere::drive {

/// A script and the engine it runs in.
class Script : public QObject {
  Q_OBJECT

 public:
  Script(const Options& options, Stage& stage, Expectations& expectations, Watchdog& watchdog);
  ~Script() override;

  /// true when nothing failed; else each failure was printed as "SCRIPT.js:LINE: ...".
  bool run();

  Q_INVOKABLE QJSValue call(const QString& verb, const QString& stack, const QJSValue& arguments);
  Q_INVOKABLE QStringList verbs() const { return Verb_Names(); }

 private:
  void evaluate(const QString& program);
  void act(QWidget& modal, QJSValue what);
  void note(const QJSValue& error);
  std::string place(const QString& stack) const;
  std::string attempt(Verb verb, const Args& args, QJSValue& result);

  const Options& options_;
  Stage& stage_;
  Expectations& expectations_;
  Watchdog& watchdog_;
  QJSEngine engine_;
  Handles handles_;
  Watch watch_;
  QJSValue wrap_;
};

}  // namespace tallymere::drive
