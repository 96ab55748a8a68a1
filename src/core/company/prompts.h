#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tallymere {

enum class Icon { None, Information, Question, Critical };
enum class Buttons { Ok, YesNo, YesNoDefaultNo };

/// A message box: what it says, its title, its icon.
struct Box {
  std::string text;
  std::string title;
  Icon icon = Icon::Information;
  std::string detail = {};  ///< one plain line below: which document, which file, what to do; or nothing
};

/// Something the user must put right: the box to show and the control to go to.
struct Fault {
  Box box;
  std::string control;  ///< objectName; empty: none
};

/// The few things the program says and asks. The desktop implements it with dialogs, the command line with
/// text, tests with a script. Logic never shows a window; where it must speak on its way it does so here.
class Prompts {
 public:
  virtual ~Prompts() = default;
  virtual void box(const Box& box) = 0;
  virtual bool ask(const Box& box, Buttons buttons = Buttons::YesNo) = 0;  ///< true: Yes
  /// Yes, No, or nothing: go back to where the question came up. Without a way to say so it is Yes or No.
  virtual std::optional<bool> ask_or_stay(const Box& box) { return ask(box, Buttons::YesNo); }
  virtual std::optional<std::string> input(const std::string& title, const std::string& prompt) = 0;
  /// Filters are written "Company Files (*.cmf)|*.cmf". Empty: cancelled.
  virtual std::string open_file(const std::string& filter, const std::string& folder) = 0;
  virtual std::string save_file(const std::string& filter, const std::string& name) = 0;
  /// Long work tells how far it is (done of total). false: the user asked to stop, where stopping is allowed.
  virtual bool progress(const std::string& label, int64_t done, int64_t total) = 0;
  virtual void progress_done() = 0;
  virtual void hourglass(bool on) = 0;
  virtual void sound(const std::string& file) = 0;  ///< "ball_bounce.wav"
};

/// Shows how far long work is, while it lives.
class ProgressBar {
 public:
  ProgressBar(Prompts& prompts, std::string label) : prompts_(prompts), label_(std::move(label)) {}
  ~ProgressBar() { prompts_.progress_done(); }
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  /// false: the user asked to stop.
  bool at(int64_t done, int64_t total) { return prompts_.progress(label_, done, total); }

 private:
  Prompts& prompts_;
  std::string label_;
};

/// Turns the pointer into an hourglass while it lives.
class Hourglass {
 public:
  explicit Hourglass(Prompts& prompts) : prompts_(prompts) { prompts_.hourglass(true); }
  ~Hourglass() { prompts_.hourglass(false); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  Prompts& prompts_;
};

}  // namespace tallymere
