#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;

namespace tallymere::store {

/// Whether a column of a table, counted with the hidden key as 0, is only a cache.
using CacheColumn = std::function<bool(const std::string& table, int column)>;

/// Notes every row that a connection adds, changes or deletes, and writes them down as one changeset, in the form that the
/// engine's session extension has too. The extension's own recorder asks the schema and reads each row again at every
/// commit, which costs a save a third of its time; this one keeps what passes by. changeset.h reads it and takes it back.
class ChangeRecorder {
 public:
  explicit ChangeRecorder(sqlite3* connection) : connection_(connection) {}
  ~ChangeRecorder() { stop(); }
  ChangeRecorder(const ChangeRecorder&) = delete;
  ChangeRecorder& operator=(const ChangeRecorder&) = delete;

  /// Begins anew. Tables that `leave_out` knows are not noted; all others begin with their key.
  void start(bool (*leave_out)(std::string_view table));
  void stop();

  size_t mark() const { return log_.size(); }
  void forget_since(size_t mark);  ///< after what was written since has been rolled back

  /// The net of all changes but those of columns that are only caches; empty when there is none.
  std::string changeset(const CacheColumn& is_cache) const;

 private:
  using Record = std::vector<std::string>;  ///< one cell each, in the changeset's form
  struct Change {
    size_t table;
    int64_t key;
    std::optional<Record> before, after;
  };
  struct Net;

  static void on_change(void* self, sqlite3*, int operation, const char* database, const char* table, long long old_key,
                        long long new_key);
  void note(int operation, std::string_view table, int64_t key);
  std::optional<size_t> number_of(std::string_view table);
  Record read(bool old_values) const;

  sqlite3* connection_;
  bool (*leave_out_)(std::string_view) = nullptr;
  std::vector<std::string> tables_;
  std::vector<Change> log_;
};

}  // namespace tallymere::store
