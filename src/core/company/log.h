#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include "core/values/clock.h"

namespace tallymere {

/// ErrorLog.txt in the program's folder, open for appending from start to exit.
class Log {
 public:
  Log(const std::filesystem::path& folder, const Clock& clock);
  /// One quoted line: date, time, object, procedure, number, description.
  void write(const std::string& object, const std::string& procedure, int number, const std::string& description);
  void close();

 private:
  Clock clock_;
  std::ofstream file_;
};

}  // namespace tallymere
