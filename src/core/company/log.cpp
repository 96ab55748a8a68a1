#include "core/company/log.h"

#include "core/values/format.h"
#include "core/values/text.h"

namespace tallymere {

Log::Log(const std::filesystem::path& folder, const Clock& clock)
    : clock_(clock), file_(folder / "ErrorLog.txt", std::ios::app) {}

void Log::write(const std::string& object, const std::string& procedure, int number, const std::string& description) {
  std::string line = Format(clock_.today(), "m/d/yy") + " " + clock_.now_time() + " : " + object + " : " + procedure +
                     " : " + std::to_string(number) + " - " + description;
  // One line an error, quoted as data: inner quotes and line ends would break what reads it.
  line = replace_all(replace_all(replace_all(line, "\"", "'"), "\r", ""), "\n", " ");
  file_ << '"' << line << "\"\n" << std::flush;
}

void Log::close() { file_.close(); }

}  // namespace tallymere
