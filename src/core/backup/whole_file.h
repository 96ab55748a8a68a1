#pragma once

#include <filesystem>
#include <functional>
#include <ostream>
#include <utility>

/// Files that appear whole or not at all: written aside, made lasting, then moved to where they belong.
namespace tallymere {

/// A file that only exists on the way to another; gone with its scope unless it was handed on.
class FileAside {
 public:
  FileAside(const std::filesystem::path& beside, const char* ending);
  static FileAside Adopt(std::filesystem::path existing) { return FileAside(std::move(existing)); }
  ~FileAside() { remove(); }
  FileAside(const FileAside&) = delete;
  FileAside& operator=(const FileAside&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path hand_on();

 private:
  explicit FileAside(std::filesystem::path existing) : path_(std::move(existing)) {}
  void remove();
  std::filesystem::path path_;
};

/// Waits until the file's bytes are on the disk, so that a power cut after its move finds them there. false:
/// the disk refuses.
bool Make_Lasting(const std::filesystem::path& file);

/// Moves a database to a place where no file is. false: there is one by now, which stays as it is.
/// filesystem_error when it cannot be moved.
bool Move_To_Free_Place(const std::filesystem::path& aside, const std::filesystem::path& place);

/// Writes a document over whatever stands there. When writing fails, what stood there stays; Error 3044.
/// What is no file, such as a device or a pipe, is written as it goes.
void Write_Whole(const std::filesystem::path& place, const std::function<void(std::ostream&)>& write);
/// The same for a writer that opens the file by its name.
void Write_Whole_By_Name(const std::filesystem::path& place,
                         const std::function<void(const std::filesystem::path&)>& write);

/// The engine's journal of a database file. One that an interrupted program left would be played into
/// whatever file takes the database's place.
std::filesystem::path Journal_Of(std::filesystem::path database);

}  // namespace tallymere
