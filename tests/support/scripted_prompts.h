#pragma once

#include <deque>
#include <string>
#include <vector>

#include "core/prompts.h"

namespace tallymere::testing {

/// Prompts for a test: remembers all that was said, answers from what the test queued, "No" and "cancelled"
/// otherwise.
class ScriptedPrompts : public Prompts {
 public:
  std::deque<bool> answers;        ///< for ask()
  std::deque<std::string> inputs;  ///< for input()
  std::deque<std::string> files;   ///< for open_file() and save_file()
  std::vector<Box> boxes;          ///< said by box() and ask(), in order
  std::vector<std::string> sounds;
  std::vector<std::string> labels;  ///< of each progress, once per run of the same label
  int open_progress = 0;            ///< progresses shown and not taken away; 0 when all is well

  void box(const Box& box) override { boxes.push_back(box); }
  bool ask(const Box& box, Buttons) override {
    boxes.push_back(box);
    return next(answers).value_or(false);
  }
  std::optional<std::string> input(const std::string&, const std::string&) override { return next(inputs); }
  std::string open_file(const std::string&, const std::string&) override { return next(files).value_or(""); }
  std::string save_file(const std::string&, const std::string&) override { return next(files).value_or(""); }
  bool progress(const std::string& label, int64_t, int64_t) override {
    if (open_progress == 0) labels.push_back(label);
    open_progress = 1;
    return true;
  }
  void progress_done() override { open_progress = 0; }
  void hourglass(bool) override {}
  void sound(const std::string& file) override { sounds.push_back(file); }

 private:
  template <typename T>
  static std::optional<T> next(std::deque<T>& queue) {
    if (queue.empty()) return std::nullopt;
    T first = std::move(queue.front());
    queue.pop_front();
    return first;
  }
};

}  // namespace tallymere::testing
