#include "core/values/control_characters.h"

namespace tallymere {
namespace {

/// How many bytes of control character the text begins with: C0 and DEL, C1 in its two bytes, U+2028 and U+2029.
size_t Control_At(std::string_view text) {
  const auto byte = [&](size_t at) { return at < text.size() ? static_cast<unsigned char>(text[at]) : 0U; };
  if (byte(0) < 0x20 || byte(0) == 0x7f) return 1;
  if (byte(0) == 0xc2 && byte(1) >= 0x80 && byte(1) < 0xa0) return 2;
  return byte(0) == 0xe2 && byte(1) == 0x80 && (byte(2) == 0xa8 || byte(2) == 0xa9) ? 3 : 0;
}

std::string Escaped(std::string_view control) {
  if (control == "\n") return "\\n";
  if (control == "\r") return "\\r";
  if (control == "\t") return "\\t";
  constexpr std::string_view digits = "0123456789abcdef";
  std::string escaped;
  for (const char c : control) {
    const auto byte = static_cast<unsigned char>(c);
    escaped += {'\\', 'x', digits[byte >> 4], digits[byte & 15]};
  }
  return escaped;
}

}  // namespace

bool has_control_characters(std::string_view text) {
  for (; !text.empty(); text.remove_prefix(1))
    if (Control_At(text) > 0) return true;
  return false;
}

std::string in_one_plain_line(std::string_view text) {
  std::string line;
  while (!text.empty()) {
    const size_t control = Control_At(text);
    line += control > 0 ? Escaped(text.substr(0, control)) : std::string(1, text[0]);
    text.remove_prefix(control > 0 ? control : 1);
  }
  return line;
}

}  // namespace tallymere
