#include "app/cli/arguments.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace tallymere::cli {
namespace {

/// Options that stand for themselves.
constexpr std::array<std::string_view, 2> switches = {"dry-run", "2003"};

}  // namespace

Arguments::Arguments(const std::vector<std::string>& words) {
  for (size_t at = 0; at < words.size(); ++at) {
    if (!words[at].starts_with("--")) {
      words_.push_back(words[at]);
      continue;
    }
    const std::string name = words[at].substr(2);
    const bool is_switch = std::ranges::find(switches, name) != switches.end();
    const bool no_value = at + 1 == words.size() || words[at + 1].starts_with("--");
    if (no_value && !is_switch) throw Usage(words[at] + " needs a value");
    if (!options_.emplace(name, is_switch ? "" : words[++at]).second) throw Usage("--" + name + " stands twice");
  }
}

std::optional<std::string> Arguments::maybe_word() {
  if (next_ == words_.size()) return std::nullopt;
  return words_[next_++];
}

std::string Arguments::word(const std::string& what) {
  auto found = maybe_word();
  if (!found) throw Usage("missing: " + what);
  return *found;
}

std::string Arguments::option(const std::string& name) {
  auto found = options_.find(name);
  if (found == options_.end()) throw Usage("missing: --" + name);
  std::string value = found->second;
  options_.erase(found);
  return value;
}

std::string Arguments::option(const std::string& name, const std::string& otherwise) {
  return options_.contains(name) ? option(name) : otherwise;
}

namespace {

int64_t Whole_Number(const std::string& text, const std::string& of) {
  int64_t number = 0;
  auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (fault != std::errc() || end != text.data() + text.size() || number < 0)
    throw Usage(of + " takes a whole number, not \"" + text + "\"");
  return number;
}

}  // namespace

std::optional<int64_t> Arguments::maybe_number_word(const std::string& command) {
  auto found = maybe_word();
  return found ? std::optional(Whole_Number(*found, command)) : std::nullopt;
}

bool Arguments::is_set(const std::string& name) { return options_.erase(name) > 0; }

std::optional<int64_t> Arguments::number(const std::string& name) {
  if (!options_.contains(name)) return std::nullopt;
  return Whole_Number(option(name), "--" + name);
}

std::optional<Date> Arguments::date(const std::string& name) {
  if (!options_.contains(name)) return std::nullopt;
  std::string text = option(name);
  auto day = Date::parse(text);
  if (!day) throw Usage("--" + name + " takes a date like 3/15/2026, not \"" + text + "\"");
  return day;
}

void Arguments::finish() const {
  if (next_ < words_.size()) throw Usage("not understood: " + words_[next_]);
  if (!options_.empty()) throw Usage("not understood: --" + options_.begin()->first);
}

}  // namespace tallymere::cli
