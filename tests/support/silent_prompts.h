#pragma once

#include <string>
#include <vector>

#include "core/company/prompts.h"

namespace tallymere::testing {

/// Says nothing, cancels every question, and remembers what would have been said.
class SilentPrompts : public Prompts {
 public:
  void box(const Box& box) override { boxes.push_back(box); }
  bool ask(const Box& box, Buttons) override { return boxes.push_back(box), false; }
  std::optional<std::string> input(const std::string&, const std::string&) override { return std::nullopt; }
  std::string open_file(const std::string&, const std::string&) override { return {}; }
  std::string save_file(const std::string&, const std::string&) override { return {}; }
  bool progress(const std::string& label, int64_t done, int64_t) override {
    if (labels.empty() || labels.back() != label) labels.push_back(label);
    return done < stop_at;
  }
  void progress_done() override { ++finished; }
  void hourglass(bool) override {}
  void sound(const std::string&) override {}

  std::vector<Box> boxes;
  std::vector<std::string> labels;  ///< of the progress windows shown
  int finished = 0;                 ///< how many of them went
  int64_t stop_at = 1000;           ///< asks to stop from here on
};

}  // namespace tallymere::testing
