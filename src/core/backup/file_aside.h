#pragma once

#include <filesystem>

/// Files on the way to others.
namespace tallymere {

/// Who may read a file that was not there before; one that is replaced keeps the mode it had.
enum class FileMode { Private, Usual };  ///< 0600, or what the person's umask leaves

/// A file that only exists on the way to another, in the folder where that one belongs. It is made exclusively, under
/// a name that carries its own proof, and locked while it lives: a sweep knows what a killed program left from what is
/// in use, and from any file of the user's. Gone with its scope unless it took its place.
class FileAside {
 public:
  /// Empty, for the caller to write. A `note` in that folder leads the sweep there to this file, for places that no
  /// start of the program looks at. store::Error when the folder takes no file.
  explicit FileAside(const std::filesystem::path& folder, FileMode mode = FileMode::Private,
                     const std::filesystem::path& note = {});
  ~FileAside();
  FileAside(FileAside&& other) noexcept;
  FileAside& operator=(FileAside&&) = delete;

  const std::filesystem::path& path() const { return path_; }

  /// Waits until the bytes are on the disk, then takes the place of the file there, whose mode it keeps. What was
  /// there stays on any store::Error.
  void replace(const std::filesystem::path& place);
  /// The same where no file is. false: there is one by now, which stays as it is.
  bool take_free(const std::filesystem::path& place);

 private:
  void remove();
  [[noreturn]] void fail(const std::filesystem::path& folder, int reason);
  void leave_note(const std::filesystem::path& folder);
  void make_lasting(const std::filesystem::path& place);
  void has_moved(const std::filesystem::path& place);
  std::filesystem::path path_, note_;
  int lock_ = -1;
};

/// Removes what killed programs left in this folder, and nothing else.
void Sweep_Asides(const std::filesystem::path& folder);

/// The engine's journal of a database file. One that an interrupted program left would be played into
/// whatever file takes the database's place.
std::filesystem::path Journal_Of(std::filesystem::path database);

/// "'/books/a.pdf' cannot be written: No space left on device."; 3026 when that is why, else 3044.
[[noreturn]] void Cannot_Write(const std::filesystem::path& place, int reason);

/// The folder a file stands in, "." for a plain name.
std::filesystem::path Folder_Of(const std::filesystem::path& file);

}  // namespace tallymere
