#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <ostream>

#include "core/backup/file_aside.h"

/// Every output of the program comes into the world here: backups, reports, sheets, pictures.
namespace tallymere {

/// Throws store::Error 3044, with why and what to do, where an output must not go: over a file that this program has
/// open or that holds a database, by whatever name; through a link; into a folder's place, a disk's, or a file that
/// is kept from writing; under a name with control characters.
void Refuse_Output(const std::filesystem::path& place);

/// An output that appears whole or not at all: it is written aside, made lasting, then moved to its place. What is no
/// file, such as a device or a pipe, is written as it goes.
class WholeFile {
 public:
  /// Refuse_Output is asked first. `note`: see FileAside.
  explicit WholeFile(std::filesystem::path place, FileMode mode = FileMode::Usual,
                     const std::filesystem::path& note = {});
  const std::filesystem::path& path() const { return aside_ ? aside_->path() : place_; }  ///< where to write it now
  void finish();  ///< puts it into its place; without this, nothing has happened

 private:
  std::filesystem::path place_;
  std::optional<FileAside> aside_;
};

/// Writes a whole document. When writing fails, what stood there stays; store::Error 3026 or 3044.
void Write_Whole(const std::filesystem::path& place, const std::function<void(std::ostream&)>& write);
/// The same for a writer that opens the file by its name.
void Write_Whole_By_Name(const std::filesystem::path& place,
                         const std::function<void(const std::filesystem::path&)>& write);
/// Opens, writes and closes a file as it stands; store::Error, naming what it is to become, when not every byte went.
void Write_Bytes(const std::filesystem::path& file, const std::filesystem::path& becomes,
                 const std::function<void(std::ostream&)>& write);

/// Whether two names lead to one file.
bool Is_Same_File(const std::filesystem::path& one, const std::filesystem::path& other);
/// Whether this program has the file open, by whatever name.
bool Is_Open_Here(const std::filesystem::path& file);
/// Whether a file begins as databases do. Not to be asked of one that is open here: closing a file lets go of all of
/// a program's locks on it.
bool Holds_Database(const std::filesystem::path& file);

}  // namespace tallymere
