#include "core/company/program_folder.h"

#include <unistd.h>

#include <cstdlib>

#include "core/store/error.h"

namespace tallymere {

namespace fs = std::filesystem;

fs::path Program_File() { return fs::read_symlink("/proc/self/exe"); }

fs::path Program_Folder() {
  fs::path beside = Program_File().parent_path();
  bool system_folder = beside.string().starts_with("/usr/") || beside == "/bin";  // even where root may write there
  if (!system_folder && access(beside.c_str(), W_OK) == 0) return beside;
  const char* data = std::getenv("XDG_DATA_HOME");
  const char* home = std::getenv("HOME");
  fs::path user = data && *data ? fs::path(data) : fs::path(home ? home : ".") / ".local" / "share";
  fs::create_directories(user / "Tallymere");
  return user / "Tallymere";
}

fs::path Shipped_Data() {
  fs::path beside = Program_File().parent_path();
  for (const fs::path& place : {beside / "data", beside.parent_path() / "share" / "tallymere"})
    if (fs::is_directory(place / "model")) return place;
  throw store::Error(store::errors::bad_path, "The folder \"data\" that ships with the program is missing beside it.");
}

}  // namespace tallymere
