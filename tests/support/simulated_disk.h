#pragma once

#include <sqlite3.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>
#include <random>
#include <string>

namespace tallymere::testing {

/// A disk in memory that fails as it is told. While it lives the engine keeps every file on it. What was not synced is
/// kept apart, so that a power cut can lose any of it: sectors of files, names given and names taken away.
class SimulatedDisk {
 public:
  enum class Fault {
    None,
    Killed,    ///< the program ends before the call; what it wrote before stays
    Torn,      ///< the program ends in the midst of the write
    PowerCut,  ///< the machine ends; of what was not synced each piece is there or not
    Failing,   ///< the call fails, once
    Full       ///< no file grows any more
  };

  SimulatedDisk() : real_(sqlite3_vfs_find(nullptr)), vfs_(*real_) {
    vfs_.iVersion = 1;
    vfs_.szOsFile = sizeof(Handle);
    vfs_.zName = "simulated";
    vfs_.pNext = nullptr;
    vfs_.pAppData = this;
    vfs_.xOpen = Open;
    vfs_.xDelete = Delete;
    vfs_.xAccess = Access;
    sqlite3_vfs_register(&vfs_, 1);
  }
  ~SimulatedDisk() {
    sqlite3_vfs_unregister(&vfs_);
    sqlite3_vfs_register(real_, 1);
  }
  SimulatedDisk(const SimulatedDisk&) = delete;
  SimulatedDisk& operator=(const SimulatedDisk&) = delete;

  /// The fault comes with the writing call of that number, counted from 1 and from now.
  void arm(Fault fault, int call) { fault_ = fault, calls_ = 0, at_ = call; }
  int calls() const { return calls_; }
  bool struck() const { return at_ > 0 && calls_ >= at_; }
  bool is_dead() const { return dead_; }

  /// The program starts again, after a power cut on what chance left.
  void revive(unsigned chance) {
    if (dead_ && fault_ == Fault::PowerCut) lose_unsynced(chance);
    fault_ = Fault::None, dead_ = full_ = false, at_ = 0;
  }

  struct Content {
    std::map<std::string, std::string> files;
  };
  Content content() const {
    Content all;
    for (const auto& [name, file] : names_) all.files[name] = file->bytes;
    return all;
  }
  void set_content(const Content& all) {
    names_.clear();
    for (const auto& [name, bytes] : all.files) names_[name] = std::make_shared<File>(File{bytes, bytes});
    synced_names_ = names_;
    revive(0);
  }

 private:
  struct File {
    std::string bytes, synced;
  };
  using Names = std::map<std::string, std::shared_ptr<File>>;
  struct Handle {
    sqlite3_file base;
    SimulatedDisk* disk;
    std::shared_ptr<File>* file;
    std::string* name;
    bool ends_with_closing;
  };
  static constexpr size_t sector = 512;

  static SimulatedDisk& of(sqlite3_vfs* vfs) { return *static_cast<SimulatedDisk*>(vfs->pAppData); }
  static Handle& of(sqlite3_file* file) { return *reinterpret_cast<Handle*>(file); }

  /// Counts a writing call. SQLITE_OK: it may be done.
  int writing(bool grows = false) {
    if (dead_) return SQLITE_IOERR;
    if (++calls_ != at_) return full_ && grows ? SQLITE_FULL : SQLITE_OK;
    if (fault_ == Fault::None) return SQLITE_OK;
    if (fault_ == Fault::Failing) return SQLITE_IOERR;
    full_ = fault_ == Fault::Full;
    if (full_) return grows ? SQLITE_FULL : SQLITE_OK;
    dead_ = true;
    return SQLITE_IOERR;
  }

  void lose_unsynced(unsigned chance) {
    std::mt19937 random(chance);
    const auto coin = [&] { return random() % 2 == 0; };
    Names all = names_;
    all.insert(synced_names_.begin(), synced_names_.end());
    Names left;
    for (const auto& entry : all) {
      const std::string& name = entry.first;
      const Names& from = coin() ? names_ : synced_names_;
      if (auto found = from.find(name); found != from.end()) left.insert(*found);
    }
    for (auto& [name, file] : left) {
      std::string bytes = coin() ? file->synced : file->bytes;  // its length
      const std::string &then = file->synced, &now = file->bytes;
      for (size_t start = 0; start < bytes.size(); start += sector) {
        const std::string& side = coin() ? then : now;
        for (size_t at = start; at < std::min(bytes.size(), start + sector); ++at)
          bytes[at] = at < side.size() ? side[at] : 0;
      }
      file->bytes = file->synced = bytes;
    }
    names_ = synced_names_ = left;
  }

  static int Open(sqlite3_vfs* vfs, const char* path, sqlite3_file* base, int flags, int* out_flags) {
    SimulatedDisk& disk = of(vfs);
    Handle& handle = of(base);
    handle.base.pMethods = nullptr;
    const std::string name = path ? path : "";
    auto found = disk.names_.find(name);
    if (disk.dead_) return SQLITE_IOERR;
    if (path && found == disk.names_.end()) {
      if (!(flags & SQLITE_OPEN_CREATE)) return SQLITE_CANTOPEN;
      if (const int code = disk.writing(); code != SQLITE_OK) return code == SQLITE_IOERR ? SQLITE_CANTOPEN : code;
      found = disk.names_.emplace(name, std::make_shared<File>()).first;
    }
    handle.base.pMethods = Methods();
    handle.disk = &disk;
    handle.file = new std::shared_ptr<File>(path ? found->second : std::make_shared<File>());
    handle.name = new std::string(name);
    if (out_flags) *out_flags = flags;
    return SQLITE_OK;
  }
  static int Close(sqlite3_file* base) {
    delete of(base).file;
    delete of(base).name;
    return SQLITE_OK;
  }
  static int Delete(sqlite3_vfs* vfs, const char* path, int sync_names) {
    SimulatedDisk& disk = of(vfs);
    if (const int code = disk.writing(); code != SQLITE_OK) return code;
    disk.names_.erase(path);
    if (sync_names) disk.synced_names_.erase(path);
    return SQLITE_OK;
  }
  static int Access(sqlite3_vfs* vfs, const char* path, int, int* result) {
    *result = of(vfs).names_.contains(path);
    return of(vfs).dead_ ? SQLITE_IOERR : SQLITE_OK;
  }
  static int Read(sqlite3_file* base, void* to, int count, sqlite3_int64 from) {
    if (of(base).disk->dead_) return SQLITE_IOERR_READ;
    const std::string& bytes = (*of(base).file)->bytes;
    const size_t start = std::min(static_cast<size_t>(from), bytes.size());
    const size_t there = std::min(static_cast<size_t>(count), bytes.size() - start);
    std::memcpy(to, bytes.data() + start, there);
    std::memset(static_cast<char*>(to) + there, 0, static_cast<size_t>(count) - there);
    return there == static_cast<size_t>(count) ? SQLITE_OK : SQLITE_IOERR_SHORT_READ;
  }
  static int Write(sqlite3_file* base, const void* from, int count, sqlite3_int64 to) {
    SimulatedDisk& disk = *of(base).disk;
    std::string& bytes = (*of(base).file)->bytes;
    size_t length = static_cast<size_t>(count);
    const size_t start = static_cast<size_t>(to);
    const int code = disk.writing(start + length > bytes.size());
    const bool torn = code != SQLITE_OK && disk.fault_ == Fault::Torn && disk.calls_ == disk.at_;
    if (code != SQLITE_OK && !torn) return code;
    if (torn) length /= 2;
    if (start + length > bytes.size()) bytes.resize(start + length);
    std::memcpy(bytes.data() + start, from, length);
    return code;
  }
  static int Truncate(sqlite3_file* base, sqlite3_int64 size) {
    if (const int code = of(base).disk->writing(); code != SQLITE_OK) return code;
    (*of(base).file)->bytes.resize(static_cast<size_t>(size));
    return SQLITE_OK;
  }
  static int Sync(sqlite3_file* base, int) {
    SimulatedDisk& disk = *of(base).disk;
    if (const int code = disk.writing(); code != SQLITE_OK) return code;
    File& file = **of(base).file;
    file.synced = file.bytes;
    const auto named = disk.names_.find(*of(base).name);  // with the first sync of a new file its name is synced too
    if (named != disk.names_.end() && named->second == *of(base).file) disk.synced_names_[named->first] = named->second;
    return SQLITE_OK;
  }
  static int Size(sqlite3_file* base, sqlite3_int64* size) {
    *size = static_cast<sqlite3_int64>((*of(base).file)->bytes.size());
    return of(base).disk->dead_ ? SQLITE_IOERR : SQLITE_OK;
  }
  static int Lock(sqlite3_file*, int) { return SQLITE_OK; }  // there is one program
  static int Reserved(sqlite3_file*, int* result) { return *result = 0, SQLITE_OK; }
  static int Control(sqlite3_file*, int, void*) { return SQLITE_NOTFOUND; }
  static int Sector_Size(sqlite3_file*) { return sector; }
  static int Characteristics(sqlite3_file*) { return SQLITE_IOCAP_POWERSAFE_OVERWRITE; }

  static const sqlite3_io_methods* Methods() {
    static const sqlite3_io_methods methods = {
        1,           Close,           Read,    Write,   Truncate, Sync,    Size,    Lock,   Lock, Reserved, Control,
        Sector_Size, Characteristics, nullptr, nullptr, nullptr,  nullptr, nullptr, nullptr};
    return &methods;
  }

  sqlite3_vfs* real_;
  sqlite3_vfs vfs_;
  Names names_, synced_names_;
  Fault fault_ = Fault::None;
  int calls_ = 0, at_ = 0;
  bool dead_ = false, full_ = false;
};

}  // namespace tallymere::testing
