#include "core/company/log.h"

#include "core/values/control_characters.h"
#include "core/values/format.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;

/// No pipe, whose opening would wait for a reader, and nothing else that is no file: then nothing is logged.
fs::path Usable(const fs::path& file) {
  std::error_code fault;
  const auto type = fs::status(file, fault).type();
  return type == fs::file_type::regular || type == fs::file_type::not_found ? file : fs::path();
}

}  // namespace

Log::Log(const fs::path& folder, const Clock& clock)
    : clock_(clock), file_(Usable(folder / "ErrorLog.txt"), std::ios::app) {}

void Log::write(const std::string& object, const std::string& procedure, int number, const std::string& description) {
  std::string line = Format(clock_.today(), "m/d/yy") + " " + clock_.now_time() + " : " + object + " : " + procedure +
                     " : " + std::to_string(number) + " - " + description;
  // One line an error, quoted as data: inner quotes and line ends would break what reads it.
  line = in_one_plain_line(replace_all(replace_all(replace_all(line, "\"", "'"), "\r", ""), "\n", " "));
  file_.clear();  // a disk that was full need not be so now
  file_ << '"' << line << "\"\n" << std::flush;
}

void Log::close() { file_.close(); }

}  // namespace tallymere
