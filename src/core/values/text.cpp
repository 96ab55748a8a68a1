#include "core/values/text.h"

#include <algorithm>

#include "core/values/letters.h"

namespace tallymere {
namespace {

constexpr std::string_view blanks = " \t\r\n\f\v";

bool is_digit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

std::string folded(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (Letters letters(text); !letters.at_end();) append_letter(result, letters.next_folded());
  return result;
}

std::string upper(std::string_view text) {
  std::string result(text);
  for (char& c : result)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - ('a' - 'A'));
  return result;
}

bool same_text(std::string_view a, std::string_view b) { return compare_same_text(a, b) == 0; }

std::optional<size_t> same_text_start(std::string_view text, std::string_view start) {
  Letters letters(text);
  for (Letters wanted(start); !wanted.at_end();)
    if (letters.at_end() || letters.next_folded() != wanted.next_folded()) return std::nullopt;
  return letters.position();
}

bool starts_with_same_text(std::string_view text, std::string_view start) {
  return same_text_start(text, start).has_value();
}

bool contains(std::string_view text, std::string_view part) { return text.find(part) != text.npos; }

std::string trim(std::string_view text) { return ltrim(text.substr(0, text.find_last_not_of(blanks) + 1)); }

std::string ltrim(std::string_view text) {
  return std::string(text.substr(std::min(text.find_first_not_of(blanks), text.size())));
}

std::vector<std::string> split(std::string_view text, std::string_view separator) {
  std::vector<std::string> parts;
  auto end = separator.empty() ? text.npos : text.find(separator);
  for (; end != text.npos; end = text.find(separator)) {
    parts.emplace_back(text.substr(0, end));
    text.remove_prefix(end + separator.size());
  }
  parts.emplace_back(text);
  return parts;
}

std::string join(const std::vector<std::string>& parts, std::string_view separator) {
  std::string text;
  for (const auto& part : parts) {
    if (&part != &parts.front()) text += separator;
    text += part;
  }
  return text;
}

std::string replace_all(std::string_view text, std::string_view from, std::string_view to) {
  return join(split(text, from), to);
}

std::string doubled_quotes(std::string_view text) { return replace_all(text, "'", "''"); }

bool is_numeric(std::string_view text) {
  const std::string trimmed = trim(text);
  bool sign = false, dollar = false, digit = false, point = false;
  for (const char c : trimmed) {
    if (is_digit(c)) {
      digit = true;
    } else if (c == '.' && !point) {
      point = true;
    } else if ((c == '+' || c == '-') && !sign && !digit && !point) {
      sign = true;
    } else if (c == '$' && !dollar && !digit && !point) {
      dollar = true;
    } else if (c != ',' || !digit || point) {
      return false;
    }
  }
  return digit;
}

}  // namespace tallymere
