#include "app/cli/console.h"

#include <unistd.h>

#include <iostream>

namespace tallymere::cli {

void Console::box(const Box& box) {
  std::cerr << box.text << "\n";
  if (!box.detail.empty()) std::cerr << box.detail << "\n";
}

bool Console::ask(const Box& box, Buttons) {
  std::cerr << box.text << " No.\n";
  return false;
}

bool Console::progress(const std::string& label, int64_t done, int64_t total) {
  int64_t percent = total > 0 ? done * 100 / total : 100;
  if (percent == percent_ || !isatty(STDERR_FILENO)) return true;
  percent_ = percent;
  std::cerr << '\r' << label << ' ' << percent << "% " << std::flush;
  return true;
}

void Console::progress_done() {
  if (percent_ >= 0) std::cerr << "\r\033[K" << std::flush;
  percent_ = -1;
}

}  // namespace tallymere::cli
