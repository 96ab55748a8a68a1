#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/store/change_recorder.h"
#include "core/store/value.h"

struct sqlite3;
struct sqlite3_stmt;

/// Everything that knows which engine stands underneath: statements, pragmas, error codes, locking, order of texts.
/// A server engine would be a second implementation of this header; nothing above it may notice.
namespace tallymere::store {

/// A prepared statement on loan from its connection; handing it back resets it.
class Statement {
 public:
  Statement(Statement&& other) noexcept;
  Statement& operator=(Statement&&) = delete;
  ~Statement();

  Statement& bind(int position, const Value& value);  ///< positions count from 1
  Statement& bind_all(const std::vector<Value>& values);
  Statement& bind_bytes(int position, std::string_view bytes);
  Statement& again();  ///< back before its first step, to be run with other values
  bool step();         ///< true when on a row
  int64_t run();       ///< steps to the end; the number of rows changed
  int parameter_count() const;

  int columns() const;
  std::string column_name(int column) const;
  std::string declared_type(int column) const;  ///< "" for an expression
  bool is_null(int column) const;
  bool is_text(int column) const;
  int64_t integer(int column) const;
  double number(int column) const;
  std::string_view text(int column) const;  ///< valid until the next step
  std::string bytes(int column) const;
  Value raw(int column) const;  ///< as the engine holds it: null, whole number, double or text

 private:
  friend class Connection;
  struct Slot {
    sqlite3_stmt* handle;
    bool on_loan;
    size_t changes_before;  ///< what the recorder had noted when it was lent
  };
  explicit Statement(Slot* slot, class Connection* connection) : slot_(slot), connection_(connection) {}
  Slot* slot_;
  class Connection* connection_;
};

/// How often a file was changed by others and by this connection, undone changes counted too.
struct ChangeStamp {
  int64_t by_others = -1, own = -1;
  friend bool operator==(const ChangeStamp&, const ChangeStamp&) = default;
};

/// An open file. Waits for another process's lock as long as `lock_patience`, then gives Error 3218.
class Connection {
 public:
  enum class Mode { Create, ReadWrite };
  /// Long enough for a queue of colleagues who all save at once, short enough for a person at the window.
  static inline std::chrono::milliseconds lock_patience{12000};
  /// Bytes of one text, or of all changes that one action keeps; more is none of this program's, Error 3163.
  static constexpr size_t longest_text = 64 << 20;
  Connection(const std::filesystem::path& path, Mode mode);
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  Statement prepare(std::string_view sql);  ///< cached by its text
  void execute(const std::string& sql);     ///< one or several statements without results
  int64_t last_key() const;
  int64_t changes() const;
  /// Differs from an earlier one once anybody may have changed the file, this connection or another.
  ChangeStamp change_stamp();

  bool in_transaction() const;
  void begin();          ///< takes the writer's lock at once
  void begin_reading();  ///< the first reading fixes the moment; writers wait from then on
  void end_reading();
  void commit();
  void rollback();
  void savepoint(const std::string& name);
  void release(const std::string& name);
  void rollback_to(const std::string& name);

  /// Notes what is written from now on, but for the tables that `leave_out` knows; take_changes() ends it.
  void record_changes(bool (*leave_out)(std::string_view table));
  std::string take_changes(const CacheColumn& is_cache = {});
  void drop_changes() { recorder_.reset(); }

  /// Copies the whole file as it stands, under one read lock, into a new file or over the content of another,
  /// which changes in one commit. Error 3218 when somebody else keeps either of them locked.
  void copy_to(const std::filesystem::path& destination);

  /// What is wrong with the file itself, page by page and index by index; empty: sound.
  std::vector<std::string> integrity_faults();

 private:
  static int wait_for_lock(void* self, int waits_before);
  void check(int code, const std::string& doing);
  sqlite3* handle_ = nullptr;
  std::chrono::steady_clock::time_point waiting_since_;
  std::optional<ChangeRecorder> recorder_;
  std::unordered_map<std::string, size_t> savepoint_marks_;
  std::unordered_map<std::string, std::vector<std::unique_ptr<Statement::Slot>>> statements_;
  friend class Statement;
};

}  // namespace tallymere::store
