#pragma once

#include <QWidget>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/drive/expectations.h"
#include "app/drive/launch.h"
#include "app/drive/scripted_prompts.h"
#include "core/company/session.h"

namespace tallymere::drive {

struct Options {
  std::filesystem::path script;
  std::filesystem::path folder;  ///< the program's folder; empty: a temporary one, removed at the end
  std::filesystem::path data;    ///< what ships beside the program; empty: found beside it
  std::filesystem::path shots;   ///< empty: no pictures
  std::optional<Date> today;
  int patience = 60;  ///< seconds a step may take
};

/// The program on its stage: its folder, its session, its frame.
class Stage {
 public:
  Stage(const Options& options, Expectations& expectations);
  ~Stage();
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  /// Starts the program as a person does, without splash and update check; again after an exit.
  void start();
  /// Waits for what the frame does a moment after a company came up.
  void wait_for_company();
  /// Notes which company is open, so that its books can be read after the program's end.
  void note_company();

  std::filesystem::path company() const { return company_; }
  const std::filesystem::path& folder() const { return folder_; }
  const std::vector<std::string>& sounds() const { return prompts_.sounds(); }
  void stop_next_work() { prompts_.stop_next(); }
  std::vector<std::string> log_lines() const;
  void shot(QWidget& widget, const std::string& name) const;
  void remove_temporary_folder() const;

 private:
  const Options& options_;
  std::filesystem::path folder_;
  ScriptedPrompts prompts_;
  std::unique_ptr<Session> session_;
  std::unique_ptr<Program> program_;
  std::filesystem::path company_;
};

}  // namespace tallymere::drive
