#include "core/backup/whole_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <fstream>
#include <string>
#include <system_error>
#include <utility>

#include "core/store/error.h"

namespace tallymere {

namespace fs = std::filesystem;

FileAside::FileAside(const fs::path& beside, const char* ending) : path_(beside) {
  path_ += "." + std::to_string(getpid()) + ending;
  remove();
}

fs::path FileAside::hand_on() { return std::exchange(path_, {}); }

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

void Write_Whole_By_Name(const fs::path& place, const std::function<void(const fs::path&)>& write) {
  std::error_code fault;
  const auto kind = fs::status(place, fault).type();
  if (kind != fs::file_type::regular && kind != fs::file_type::not_found) return write(place);
  const fs::path file = kind == fs::file_type::regular ? fs::canonical(place) : place;  // a link stays a link
  const FileAside aside(file, ".new");
  write(aside.path());
  fs::rename(aside.path(), file, fault);
  if (fault) throw store::Error(store::errors::bad_path, "'" + place.string() + "' cannot be written.");
}

void Write_Whole(const fs::path& place, const std::function<void(std::ostream&)>& write) {
  Write_Whole_By_Name(place, [&](const fs::path& file) {
    std::ofstream out(file, std::ios::binary);
    write(out);
    if (!out.flush()) throw store::Error(store::errors::bad_path, "'" + place.string() + "' cannot be written.");
  });
}

fs::path Journal_Of(fs::path database) {
  database += "-journal";
  return database;
}

}  // namespace tallymere
