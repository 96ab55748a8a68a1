#include "core/backup/whole_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

#include "core/store/error.h"
#include "core/values/control_characters.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;
using namespace std::string_view_literals;

constexpr std::string_view database_begins = "SQLite format 3\0"sv;

[[noreturn]] void Refuse(const fs::path& place, const std::string& why) {
  throw store::Error(store::errors::bad_path, "'" + place.string() + "' " + why);
}

void Refuse_Name(const fs::path& place) {
  const std::string name = place.filename();
  if (name.empty() || name == "." || name == "..") Refuse(place, "names no file.");
  if (has_control_characters(name))
    throw store::Error(store::errors::bad_path, "The name of a file cannot hold control characters or line ends.");
}

/// A link to a device or a pipe is another name of it; a link to a file stands for somebody's decision to keep that
/// file elsewhere.
void Refuse_Link(const fs::path& place, fs::file_type leads_to) {
  if (leads_to != fs::file_type::regular && leads_to != fs::file_type::not_found) return;
  std::error_code ignored;
  Refuse(place, "is a link to '" + fs::read_symlink(place, ignored).string() + "'. Name that file itself, or another.");
}

void Refuse_File(const fs::path& place) {
  if (Is_Open_Here(place)) Refuse(place, "is a file that Tallymere works on. Choose another name.");
  if (Holds_Database(place)) Refuse(place, "holds a database, which is not written over. Choose another name.");
  if (access(place.c_str(), W_OK) != 0) Refuse(place, "is kept from writing. Choose another name.");
}

}  // namespace

bool Is_Same_File(const fs::path& one, const fs::path& other) {
  std::error_code fault;
  return fs::equivalent(one, other, fault) && !fault;
}

bool Is_Open_Here(const fs::path& file) {
  struct stat wanted {
  }, open{};
  if (stat(file.c_str(), &wanted) != 0) return false;
  std::error_code fault;
  for (fs::directory_iterator at("/proc/self/fd", fault), end; !fault && at != end; at.increment(fault))
    if (stat(at->path().c_str(), &open) == 0 && open.st_dev == wanted.st_dev && open.st_ino == wanted.st_ino)
      return true;
  return false;
}

bool Holds_Database(const fs::path& file) {
  std::array<char, database_begins.size()> first{};
  std::ifstream in(file, std::ios::binary);
  return in.read(first.data(), first.size()) && std::string_view(first.data(), first.size()) == database_begins;
}

void Refuse_Output(const fs::path& place) {
  Refuse_Name(place);
  std::error_code ignored;
  const auto type = fs::status(place, ignored).type();
  if (fs::is_symlink(fs::symlink_status(place, ignored))) Refuse_Link(place, type);
  if (type == fs::file_type::directory) Refuse(place, "is a folder. Choose another name.");
  if (type == fs::file_type::block) Refuse(place, "is a disk. Choose another name.");
  if (type == fs::file_type::regular) Refuse_File(place);
  if (type == fs::file_type::not_found && !fs::is_directory(Folder_Of(place), ignored))
    Refuse(place, "cannot be written: there is no such folder.");
}

WholeFile::WholeFile(fs::path place, FileMode mode, const fs::path& note) : place_(std::move(place)) {
  Refuse_Output(place_);
  std::error_code ignored;
  const auto type = fs::status(place_, ignored).type();
  if (type != fs::file_type::regular && type != fs::file_type::not_found) return;
  Sweep_Asides(Folder_Of(place_));
  aside_.emplace(Folder_Of(place_), mode, note);
}

void WholeFile::finish() {
  if (aside_) aside_->replace(place_);
}

void Write_Bytes(const fs::path& file, const fs::path& becomes, const std::function<void(std::ostream&)>& write) {
  errno = 0;
  std::ofstream out(file, std::ios::binary);
  if (out) write(out);
  if (!out || !out.flush()) Cannot_Write(becomes, errno != 0 ? errno : EIO);
}

void Write_Whole_By_Name(const fs::path& place, const std::function<void(const fs::path&)>& write) {
  WholeFile file(place);
  write(file.path());
  file.finish();
}

void Write_Whole(const fs::path& place, const std::function<void(std::ostream&)>& write) {
  WholeFile file(place);
  Write_Bytes(file.path(), place, write);
  file.finish();
}

}  // namespace tallymere
