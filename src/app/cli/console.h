#pragma once

#include "core/company/prompts.h"

namespace tallymere::cli {

/// Prompts of the command line: says go to the error stream; a question is answered No, since nobody is there to ask.
class Console : public Prompts {
 public:
  void box(const Box& box) override;
  bool ask(const Box& box, Buttons buttons) override;
  std::optional<std::string> input(const std::string&, const std::string&) override { return std::nullopt; }
  std::string open_file(const std::string&, const std::string&) override { return {}; }
  std::string save_file(const std::string&, const std::string&) override { return {}; }
  bool progress(const std::string& label, int64_t done, int64_t total) override;
  void progress_done() override;
  void hourglass(bool) override {}
  void sound(const std::string&) override {}

 private:
  int64_t percent_ = -1;
};

}  // namespace tallymere::cli
