#include "core/backup/file_aside.h"

#include <fcntl.h>
#include <sodium.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "core/store/error.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view first_part = ".tallymere-";
constexpr std::string_view journal_ending = "-journal";
constexpr size_t digits = 16;

std::string Hex(const unsigned char* bytes) {
  std::string text(digits + 1, '\0');
  sodium_bin2hex(text.data(), text.size(), bytes, digits / 2);
  text.pop_back();
  return text;
}

/// What ends a name of ours: nobody types it by chance.
std::string Proof_Of(std::string_view name) {
  std::array<unsigned char, crypto_generichash_BYTES> hash{};
  crypto_generichash(hash.data(), hash.size(), reinterpret_cast<const unsigned char*>(name.data()), name.size(),
                     nullptr, 0);
  return Hex(hash.data());
}

std::string Name_Of_This_Program() { return std::string(first_part) + std::to_string(getpid()) + "-"; }

std::string New_Name() {
  std::array<unsigned char, digits / 2> random{};
  randombytes_buf(random.data(), random.size());
  const std::string name = Name_Of_This_Program() + Hex(random.data()) + "-";
  return name + Proof_Of(name);
}

bool Is_Of_Ours(std::string_view name) {
  if (!name.starts_with(first_part) || name.size() < first_part.size() + 2 * digits + 3) return false;
  const size_t proof_at = name.size() - digits;
  return name.substr(proof_at) == Proof_Of(name.substr(0, proof_at));
}

bool Is_Gone(int handle) {
  struct stat now {};
  return fstat(handle, &now) != 0 || now.st_nlink == 0;
}

void Remove_If_Nobodys(const fs::path& file) {
  const int handle = open(file.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (handle < 0) return;
  struct stat now {};
  if (fstat(handle, &now) == 0 && S_ISREG(now.st_mode) && flock(handle, LOCK_EX | LOCK_NB) == 0) {
    unlink(file.c_str());
    unlink(Journal_Of(file).c_str());
  }
  close(handle);
}

void Sweep_File(const fs::path& file);

void Sweep_Note(const fs::path& note) {
  std::error_code fault;
  const fs::path noted = fs::read_symlink(note, fault);
  if (fault || !Is_Of_Ours(noted.filename().native())) return;
  Remove_If_Nobodys(noted);
  if (!fs::exists(noted, fault)) fs::remove(note, fault);
}

void Sweep_File(const fs::path& file) {
  std::string name = file.filename();
  std::error_code fault;
  if (name.starts_with(Name_Of_This_Program())) return;  // one in use here
  if (Is_Of_Ours(name)) return fs::is_symlink(file, fault) ? Sweep_Note(file) : Remove_If_Nobodys(file);
  if (!name.ends_with(journal_ending)) return;
  name.resize(name.size() - journal_ending.size());
  if (Is_Of_Ours(name) && !fs::exists(file.parent_path() / name, fault)) fs::remove(file, fault);
}

/// So that after a power cut the folder, too, knows the file.
void Make_Folder_Lasting(const fs::path& folder) {
  const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle < 0) return;
  fsync(handle);
  close(handle);
}

}  // namespace

fs::path Folder_Of(const fs::path& file) {
  const fs::path folder = file.parent_path();
  return folder.empty() ? "." : folder;
}

fs::path Journal_Of(fs::path database) {
  database += journal_ending;
  return database;
}

void Cannot_Write(const fs::path& place, int reason) {
  throw store::Error(reason == ENOSPC || reason == EDQUOT ? store::errors::disk_full : store::errors::bad_path,
                     "'" + place.string() + "' cannot be written: " + std::generic_category().message(reason) + ".");
}

FileAside::FileAside(const fs::path& folder, FileMode mode, const fs::path& note) {
  do {
    remove();
    path_ = folder / New_Name();
    if (!note.empty()) leave_note(note);  // first: a kill between the two would leave a file that nobody looks for
    lock_ = open(path_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode == FileMode::Private ? 0600 : 0666);
    if (lock_ < 0) fail(folder, errno);
    while (flock(lock_, LOCK_EX) != 0 && errno == EINTR) {
    }
  } while (Is_Gone(lock_));  // a sweep was between the two
}

FileAside::FileAside(FileAside&& other) noexcept
    : path_(std::exchange(other.path_, {})),
      note_(std::exchange(other.note_, {})),
      lock_(std::exchange(other.lock_, -1)) {}

FileAside::~FileAside() { remove(); }

/// A place that keeps no links keeps no notes either; then a killed program's file waits for the next output there.
void FileAside::leave_note(const fs::path& folder) {
  std::error_code fault;
  note_ = folder / New_Name();
  fs::create_symlink(fs::absolute(path_), note_, fault);
  if (fault) note_.clear();
}

void FileAside::fail(const fs::path& folder, int reason) {
  path_.clear();
  remove();
  Cannot_Write(folder, reason);
}

void FileAside::remove() {
  std::error_code ignored;
  if (!path_.empty()) {
    fs::remove(path_, ignored);
    fs::remove(Journal_Of(path_), ignored);
  }
  if (!note_.empty()) fs::remove(note_, ignored);
  if (lock_ >= 0) close(std::exchange(lock_, -1));
}

/// By its name: who wrote it may have put another file under it.
void FileAside::make_lasting(const fs::path& place) {
  const int handle = open(path_.c_str(), O_RDONLY | O_CLOEXEC);
  const int reason = handle < 0 || fsync(handle) != 0 ? errno : 0;
  if (handle >= 0) close(handle);
  if (reason != 0) Cannot_Write(place, reason);
}

void FileAside::has_moved(const fs::path& place) {
  path_.clear();
  remove();
  Make_Folder_Lasting(Folder_Of(place));
}

void FileAside::replace(const fs::path& place) {
  struct stat before {};
  if (stat(place.c_str(), &before) == 0) chmod(path_.c_str(), before.st_mode & 0777);
  make_lasting(place);
  if (rename(path_.c_str(), place.c_str()) != 0) Cannot_Write(place, errno);
  has_moved(place);
}

bool FileAside::take_free(const fs::path& place) {
  std::error_code ignored;
  if (fs::exists(fs::symlink_status(place, ignored))) return false;
  make_lasting(place);
  fs::remove(Journal_Of(place), ignored);
  if (renameat2(AT_FDCWD, path_.c_str(), AT_FDCWD, place.c_str(), RENAME_NOREPLACE) == 0) return has_moved(place), true;
  if (errno == EEXIST) return false;
  // A file system that cannot move without replacing: the place is taken first.
  const int taken = open(place.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
  if (taken < 0 && errno == EEXIST) return false;
  if (taken < 0) Cannot_Write(place, errno);
  close(taken);
  if (rename(path_.c_str(), place.c_str()) != 0) {
    const int reason = errno;
    unlink(place.c_str());
    Cannot_Write(place, reason);
  }
  return has_moved(place), true;
}

void Sweep_Asides(const fs::path& folder) {
  std::error_code fault;
  for (fs::directory_iterator at(folder, fault), end; !fault && at != end; at.increment(fault)) Sweep_File(at->path());
}

}  // namespace tallymere
