#pragma once

#include <QAbstractButton>
#include <QPointer>
#include <QPushButton>
#include <QWidget>
#include <functional>
#include <type_traits>

#include "shell/shell.h"

namespace tallymere {

/// The base of every window: caption, hourglass, Enter to the next field, one error box at the edge, closing
/// that asks. Controls are members with the screen's names and the same objectName, built in the constructor
/// with layouts.
class Form : public QWidget {
  Q_OBJECT

 public:
  enum class Place { Inside, Above };  ///< inside the frame, or above it as a dialog

  Form(Shell& shell_of_frame, const char* name, Place place = Place::Inside);
  ~Form() override;

  Place place() const { return place_; }
  QString caption() const { return windowTitle(); }

  /// Called once after construction, before the window shows: read what it shows.
  virtual void load() {}
  /// Called each time the window is asked for, after load.
  virtual void take(const Request&) {}
  /// Called before closing; false keeps the window open.
  virtual bool may_close() { return true; }
  /// Called when the window goes.
  virtual void unloading() {}
  /// Something in the company changed elsewhere: a table's name.
  virtual void on_changed(const std::string& /*table*/) {}
  /// Control+Enter anywhere in the window: entry windows save and go on, dialogs do what their main button says.
  /// false: nothing done.
  virtual bool control_enter();

  /// Runs a procedure of this window: a fault of the store shows the program's error box, writes the log line
  /// with window and procedure and leaves the window as it is. false when it failed.
  bool guard(const char* procedure, const std::function<void()>& work);

  /// The first faulty entry's box, then the focus on its control with its text selected.
  void show_fault(const Fault& fault);
  /// Goes to a control, bringing its tab page to the front and selecting its text.
  void go_to(QWidget* control);

  /// Ends a modal run with an answer for the caller, or closes.
  void finish(bool accepted, const std::string& answer = {});
  bool accepted() const { return accepted_; }
  const std::string& answer() const { return answer_; }
  const Clock& clock() const { return session.clock; }
  QSize sizeHint() const override;  ///< as the user last left it, where sizes are remembered

 Q_SIGNALS:
  void finished();

 protected:
  /// Connects a signal to a handler under guard; the procedure is named as in the log ("cmdOk_AfterClick").
  template <typename Sender, typename Signal, typename Handler>
  void on(Sender* sender, Signal signal, const char* procedure, Handler handler) {
    connect(sender, signal, this,
            [this, procedure, handler](auto&&... args) { guard(procedure, [&] { call(handler, args...); }); });
  }
  template <typename Handler>
  void on(QAbstractButton* button, const char* procedure, Handler handler) {
    on(button, &QAbstractButton::clicked, procedure, [handler] { handler(); });
  }
  /// Names a control as the screen names it: objectName now, and the name tools and tests find it by.
  template <typename Control>
  Control* named(const char* name, Control* control) {
    control->setObjectName(QString::fromLatin1(name));
    return control;
  }

  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;  ///< what the controls left over; docs/keyboard.md
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

  Shell& shell;
  Session& session;

 private:
  /// A handler may take all of a signal's arguments, the first one, or none.
  template <typename Handler>
  static void call(Handler& handler) {
    handler();
  }
  template <typename Handler, typename First, typename... Rest>
  static void call(Handler& handler, First& first, Rest&... rest) {
    if constexpr (std::is_invocable_v<Handler&, First&, Rest&...>)
      handler(first, rest...);
    else if constexpr (std::is_invocable_v<Handler&, First&>)
      handler(first);
    else
      handler();
  }
  void enter_pressed();
  QPushButton* enter_button() const;  ///< what Enter would press now; nullptr: it goes on to the next field
  void press(QPushButton& button);
  void show_enter_button();
  bool claims(const QKeyEvent& key);
  std::function<void()> meaning_of(const QKeyEvent& key);
  void name_controls();
  void prepare_controls();

  Place place_;
  bool accepted_ = false;
  std::string answer_;
  std::function<void()> mnemonic_;  ///< what the Alt key that is being pressed does here
  QPointer<QWidget> pressed_on_;    ///< where that key arrives
  bool prepared_ = false;
  QPointer<QPushButton> main_button_;  ///< a dialog's, as it was built
};

/// std::string is UTF-8 everywhere; these are the two doors to Qt.
inline QString qt(const std::string& text) { return QString::fromStdString(text); }
inline std::string utf8(const QString& text) { return text.toStdString(); }

}  // namespace tallymere
