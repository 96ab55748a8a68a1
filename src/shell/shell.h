#pragma once

#include <cstdint>
#include <string>

#include "core/session.h"

namespace tallymere {

class Form;

/// What one window asks of another: by name, never by including it.
struct Request {
  std::string window;      ///< "frmPrintPL2"
  std::string key;         ///< a report's key, a mode, the name of a list row; empty: none
  int64_t number = 0;      ///< a TransNum or another number; 0: none
  bool new_instance = false;  ///< frmRegister and frmPrintCustom may stand several times
};

/// What windows know of the frame they stand in. frmMain is one; tests may bring their own.
class Shell {
 public:
  explicit Shell(Session& running) : session(running) {}
  virtual ~Shell() = default;

  /// Shows a window (the open one again, or a new instance) and hands it the request. nullptr when there is no such
  /// window yet; the status bar then says so.
  virtual Form* Show_Window(const Request& request) = 0;
  virtual bool has_window(const std::string& name) const = 0;
  virtual Form* find_window(const std::string& name) const = 0;  ///< an open one, or nullptr
  /// Runs a window modally; true when it was accepted. The caller owns it and reads its answer afterwards.
  virtual bool Run_Modal(Form& form) = 0;
  /// Opens the entry window that belongs to a transaction's type.
  virtual void Go_To_Transaction(const std::string& type, int64_t number) = 0;
  /// A line in the status bar, gone after a while.
  virtual void say(const std::string& text) = 0;
  /// Tells the open windows that something changed: a table's name, or "Transactions".
  virtual void changed(const std::string& table) = 0;

  Session& session;
};

}  // namespace tallymere
