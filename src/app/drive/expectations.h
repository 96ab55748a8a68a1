#pragma once

#include <QJSValue>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "app/drive/failed.h"

namespace tallymere::drive {

/// What the script says will be asked next, in order, and what it found out of order.
class Expectations {
 public:
  enum class Kind { Box, Input, File, Modal };

  struct Expected {
    Kind kind;
    std::optional<std::string> title;        ///< nothing: any
    std::optional<std::string> text;         ///< nothing: any
    std::optional<std::string> answer;       ///< nothing: cancelled, or no answer given
    QJSValue act;                            ///< what to do in a modal window
    std::optional<std::string> detail = {};  ///< words that the line below a box's text holds; nothing: any
    std::string where = {};                  ///< the line that expects it
  };

  /// "SCRIPT.js:LINE", of the step that runs now.
  void at(const std::string& where) { where_ = where; }
  const std::string& where() const { return where_; }

  void add(Expected expected);
  void add_first(Expected expected);
  /// The next expectation, if this is what it expects; otherwise a failure is noted. Nothing once the script
  /// is over.
  std::optional<Expected> meet(Kind kind, const std::string& title, const std::string& text);

  void fail(const Failed& failed) { fail_at(where_, failed); }
  void fail_at(const std::string& where, const Failed& failed);
  /// Notes what was expected and never came.
  void finish();
  /// From here on everything is answered quietly: the program is only being put away.
  void be_quiet() { quiet_ = true; }

  bool failed() const { return !failures_.empty(); }
  const std::vector<std::string>& failures() const { return failures_; }  ///< "SCRIPT.js:LINE: ..."

 private:
  std::deque<Expected> queue_;
  std::vector<std::string> failures_;
  std::string where_;
  bool quiet_ = false;
};

}  // namespace tallymere::drive
