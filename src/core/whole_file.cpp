#include "core/whole_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>
#include <utility>

namespace tallymere {

namespace fs = std::filesystem;

FileAside::FileAside(const fs::path& beside, const char* ending) : path_(beside) {
  path_ += "." + std::to_string(getpid()) + ending;
  remove();
}

fs::path FileAside::hand_on() {
  return std::exchange(path_, {});
}

void FileAside::remove() {
  std::error_code ignored;
  if (path_.empty()) return;
  fs::remove(path_, ignored);
  fs::remove(Journal_Of(path_), ignored);
}

bool Make_Lasting(const fs::path& file) {
  const int handle = open(file.c_str(), O_RDONLY | O_CLOEXEC);
  const bool lasting = handle >= 0 && fsync(handle) == 0;
  if (handle >= 0) close(handle);
  return lasting;
}

bool Move_To_Free_Place(const fs::path& aside, const fs::path& place) {
  std::error_code ignored;
  if (fs::exists(fs::symlink_status(place, ignored))) return false;
  fs::remove(Journal_Of(place), ignored);
  if (!Make_Lasting(aside))
    throw fs::filesystem_error("cannot write", aside, std::make_error_code(std::errc::io_error));
  if (renameat2(AT_FDCWD, aside.c_str(), AT_FDCWD, place.c_str(), RENAME_NOREPLACE) == 0) return true;
  if (errno == EEXIST) return false;
  fs::rename(aside, place);  // a file system that cannot move without replacing
  return true;
}

fs::path Journal_Of(fs::path database) {
  database += "-journal";
  return database;
}

}  // namespace tallymere
