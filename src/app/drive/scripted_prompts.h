#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "app/drive/expectations.h"
#include "core/company/prompts.h"

namespace tallymere::drive {

/// Answers what the program says and asks from the script's expectations.
class ScriptedPrompts : public Prompts {
 public:
  ScriptedPrompts(Expectations& expectations, std::filesystem::path folder)
      : expectations_(expectations), folder_(std::move(folder)) {}

  void box(const Box& box) override;
  bool ask(const Box& box, Buttons buttons) override;
  std::optional<bool> ask_or_stay(const Box& box) override;
  std::optional<std::string> input(const std::string& title, const std::string& prompt) override;
  std::string open_file(const std::string& filter, const std::string& folder) override;
  std::string save_file(const std::string& filter, const std::string& name) override;
  bool progress(const std::string&, int64_t, int64_t) override { return !std::exchange(stop_, false); }
  void progress_done() override {}
  void hourglass(bool) override {}
  void sound(const std::string& file) override { sounds_.push_back(file); }

  void stop_next() { stop_ = true; }  ///< the next long work is stopped at its first step

  const std::vector<std::string>& sounds() const { return sounds_; }

 private:
  std::optional<Expectations::Expected> meet(const Box& box);
  std::string answer(const Box& box, const std::vector<std::string>& words, const std::string& usual,
                     const std::string& stay);
  std::string file(const std::string& filter);

  Expectations& expectations_;
  std::filesystem::path folder_;  ///< what a script's relative paths start from
  std::vector<std::string> sounds_;
  bool stop_ = false;
};

}  // namespace tallymere::drive
