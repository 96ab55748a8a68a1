#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/values/date.h"

namespace tallymere::cli {

/// The call's words are off: exit 2 with what is wrong.
struct Usage : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Words and `--option value` pairs of a call. What a command does not ask for is an error: finish().
class Arguments {
 public:
  explicit Arguments(const std::vector<std::string>& words);

  std::string word(const std::string& what);  ///< the next plain word; Usage when there is none
  std::optional<std::string> maybe_word();
  /// The next plain word as a whole number of 0 or more; Usage, naming the command, for anything else.
  std::optional<int64_t> maybe_number_word(const std::string& command);
  std::string option(const std::string& name);  ///< Usage when it is missing
  std::string option(const std::string& name, const std::string& otherwise);
  bool is_set(const std::string& name);                    ///< an option that has no value
  std::optional<int64_t> number(const std::string& name);  ///< a whole number of 0 or more
  std::optional<Date> date(const std::string& name);
  void finish() const;

 private:
  std::vector<std::string> words_;
  size_t next_ = 0;
  std::map<std::string, std::string> options_;
};

}  // namespace tallymere::cli
