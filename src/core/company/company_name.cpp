#include "core/company/company_name.h"

#include <algorithm>

#include "core/values/control_characters.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

constexpr size_t longest = 200;  // bytes: with ".cmf-journal" behind it, a file system takes no more than 255

/// Names that a file server of another make keeps for itself, whatever follows behind a full stop.
bool Is_Reserved(const std::string& name) {
  std::string first = upper(name.substr(0, name.find('.')));
  while (first.ends_with(' ')) first.pop_back();
  constexpr std::string_view devices[] = {"CON", "PRN", "AUX", "NUL"};
  if (std::find(std::begin(devices), std::end(devices), first) != std::end(devices)) return true;
  return first.size() == 4 && (first.starts_with("COM") || first.starts_with("LPT")) && first[3] >= '1' &&
         first[3] <= '9';
}

/// One byte that opens a letter, and as many that go on with it as it says.
bool Is_Utf8(std::string_view text) {
  while (!text.empty()) {
    const auto first = static_cast<unsigned char>(text[0]);
    const size_t more = first < 0x80   ? 0
                        : first < 0xc2 ? 9
                        : first < 0xe0 ? 1
                        : first < 0xf0 ? 2
                        : first < 0xf5 ? 3
                                       : 9;
    if (text.size() <= more) return false;
    const auto goes_on = [](char c) { return (static_cast<unsigned char>(c) & 0xc0) == 0x80; };
    if (!std::all_of(text.begin() + 1, text.begin() + 1 + static_cast<std::ptrdiff_t>(more), goes_on)) return false;
    text.remove_prefix(more + 1);
  }
  return true;
}

std::string Why_Not(const std::string& name) {
  if (!Is_Utf8(name) || has_control_characters(name)) return "The name holds a character that no file name can have.";
  if (const size_t at = name.find_first_of("/\\:*?\"<>|"); at != std::string::npos)
    return std::string("A company's name is also its file's name, which cannot hold the character ") + name[at] + ".";
  if (name[0] == '.') return "A company's name cannot begin with a full stop.";
  if (name.size() > longest) return "The name is too long for a file.";
  if (Is_Reserved(name)) return "\"" + name + "\" is a name that some computers keep for themselves.";
  return {};
}

}  // namespace

std::optional<Box> Company_Name_Fault(const std::string& name) {
  const std::string meant = trim(name);
  if (meant.empty()) return Box{"Please Enter a Name For the New Company", "No Name", Icon::Information};
  if (std::string why = Why_Not(meant); !why.empty())
    return Box{"This cannot be a company's name.", "No Name", Icon::Information, why};
  return std::nullopt;
}

}  // namespace tallymere
