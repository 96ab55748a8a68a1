#include <iostream>

#include "app/cli/commands.h"
#include "printing/layout.h"

namespace tallymere::cli {

namespace {

int List_Layouts(const LayoutPlaces& places) {
  for (const LayoutDef& layout : Layout_Defs()) {
    std::string line(layout.name);
    line.resize(std::max<size_t>(line.size() + 2, 20), ' ');
    line += layout.caption;
    if (std::filesystem::exists(places.own_file(layout.name))) line += "  (your own is used)";
    std::cout << line << "\n";
  }
  return 0;
}

}  // namespace

int Write_Out(Arguments& arguments) {
  const auto name = arguments.maybe_word();
  const LayoutPlaces places = Layout_Places(Folder_Of(arguments));
  arguments.finish();
  if (!name) return List_Layouts(places);
  const auto file = Write_Out_Layout(places, *name);
  std::cout << file.string() << "\n";
  return 0;
}

}  // namespace tallymere::cli
