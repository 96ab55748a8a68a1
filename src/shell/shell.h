#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/company/session.h"

class QWidget;

namespace tallymere {

class Form;

/// What one window asks of another: by name, never by including it.
struct Request {
  std::string window;         ///< "frmPrintPL2"
  std::string key;            ///< a report's key, a mode, the name of a list row; empty: none
  int64_t number = 0;         ///< a TransNum or another number; 0: none
  bool new_instance = false;  ///< frmRegister and frmPrintCustom may stand several times
  std::string parent = {};    ///< what a transaction report is of: a CatID, an item, a name
  std::string columns = {};   ///< its column list: "Type,Date,Amount,"
  std::optional<Date> start = {}, end = {};
};

/// What windows know of the frame they stand in. frmMain is one; tests may bring their own.
class Shell {
 public:
  explicit Shell(Session& running) : session(running) {}
  virtual ~Shell() = default;

  /// Shows a window (the open one again, or a new instance) and hands it the request. nullptr when there is
  /// no such window yet; the status bar then says so.
  virtual Form* Show_Window(const Request& request) = 0;
  virtual bool has_window(const std::string& name) const = 0;
  virtual Form* find_window(const std::string& name) const = 0;  ///< an open one, or nullptr
  /// Runs a window modally; true when it was accepted. The caller owns it and reads its answer afterwards.
  virtual bool Run_Modal(Form& form) = 0;
  /// Runs a window of the table modally and hands back its answer; nothing when it was not accepted, or when
  /// there is no such window yet.
  virtual std::optional<std::string> Ask_Window(const Request& request) = 0;
  /// Opens the entry window that belongs to a transaction's type; where there is none the status bar says so.
  virtual void Go_To_Transaction(const std::string& type, int64_t number) = 0;
  /// A transaction report beside those that are open, with the columns that belong to its key unless it names
  /// its own.
  Form* Show_Custom_Report(Request request);
  /// Pops a context menu of the table: below the button `from`, where a grid was asked for it (a row or the pointer),
  /// or at the pointer over anything else.
  /// `chosen` gets the item's name; `disabled` names those that cannot be chosen now.
  virtual void Popup(const std::string& menu, QWidget& from, const std::vector<std::string>& disabled,
                     std::function<void(const std::string& item)> chosen) = 0;
  /// A line in the status bar, gone after a while.
  virtual void say(const std::string& text) = 0;
  /// Tells the open windows that something changed: a table's name, or "Transactions".
  virtual void changed(const std::string& table) = 0;

  Session& session;
};

}  // namespace tallymere
