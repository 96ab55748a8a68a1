#include "printing/layout.h"

#include <algorithm>
#include <charconv>
#include <fstream>

#include "core/backup/whole_file.h"
#include "core/company/program_folder.h"
#include "core/store/error.h"
#include "core/values/text.h"

namespace tallymere {

namespace fs = std::filesystem;

namespace {

/// "Text24" as ("Text", 24); a name without a number at its end has -1.
std::pair<std::string, int> Numbered(std::string_view name) {
  const size_t digits = name.find_last_not_of("0123456789") + 1;
  int number = -1;
  std::from_chars(name.data() + digits, name.data() + name.size(), number);
  return {std::string(name.substr(0, digits)), number};
}

void Add_Numbered(std::vector<std::string>& names, std::string_view first, std::string_view last) {
  const auto [stem, from] = Numbered(first);
  for (int number = from; number <= Numbered(last).second; ++number) names.push_back(stem + std::to_string(number));
}

}  // namespace

std::vector<std::string> Object_Names(std::string_view text) {
  std::vector<std::string> names;
  for (const std::string& part : split(text, " ")) {
    const size_t dots = part.find("..");
    if (dots != std::string::npos)
      Add_Numbered(names, std::string_view(part).substr(0, dots), std::string_view(part).substr(dots + 2));
    else if (!part.empty())
      names.push_back(part);
  }
  return names;
}

const LayoutDef* Find_Layout(std::string_view name) {
  const auto defs = Layout_Defs();
  const auto found = std::ranges::find(defs, name, &LayoutDef::name);
  return found == defs.end() ? nullptr : &*found;
}

const std::string& Layout::text(const std::string& object) const {
  static const std::string none;
  const auto found = texts_.find(object);
  return found == texts_.end() ? none : found->second;
}

// --- where the drawings lie

fs::path LayoutPlaces::own_file(std::string_view name) const { return own / (std::string(name) + ".svg"); }

fs::path LayoutPlaces::shipped_file(std::string_view name) const { return shipped / (std::string(name) + ".svg"); }

LayoutPlaces Layout_Places(const fs::path& program_folder) {
  return {program_folder / "layouts", Shipped_Data() / "layouts"};
}

fs::path Write_Out_Layout(const LayoutPlaces& places, std::string_view name) {
  const fs::path own = places.own_file(name), shipped = places.shipped_file(name);
  if (!Find_Layout(name) || !fs::exists(shipped))
    throw store::Error(store::errors::file_not_found, "There is no layout '" + std::string(name) + "'.");
  if (fs::exists(own))
    throw store::Error(store::errors::database_exists,
                       "'" + own.string() + "' is there already. Move it away to begin again with the shipped one.");
  std::error_code fault;
  fs::create_directories(places.own, fault);
  std::ifstream in(shipped, std::ios::binary);
  Write_Whole(own, [&](std::ostream& out) { out << in.rdbuf(); });
  return own;
}

}  // namespace tallymere
