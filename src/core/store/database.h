#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <typeindex>
#include <unordered_map>
#include <vector>

#include "core/store/engine.h"
#include "core/store/error.h"
#include "core/store/value.h"

namespace tallymere::store {

class Recordset;
class Table;

/// The hidden key that every table has first; it is never listed among a set's Fields and never used again.
inline constexpr std::string_view hidden_key = "RowKey";

struct Field {
  std::string name;
  FieldType type = FieldType::Text;
  friend bool operator==(const Field&, const Field&) = default;
};

struct Index {
  std::string name;
  std::string field;
};

/// A table as the file defines it, without the hidden key.
struct TableDef {
  std::string name;
  std::vector<Field> fields;
  std::vector<Index> indexes;

  TableDef& CreateField(std::string field, FieldType type);
  TableDef& CreateIndex(std::string index, std::string field);
  const Field* find(std::string_view field) const;  ///< ignoring case; nullptr when there is none
};

struct QueryDef {
  std::string name;
  std::string sql;
};

/// What kind of file this is, kept in the file itself and checked at open.
enum class FileKind : int32_t { Company = 0x544C5943, Shared = 0x544C5953, Model = 0x544C594D };

/// One row of a forward reading. Columns count from 0 in the order of the query; nothing is copied but what is asked for.
class Row {
 public:
  explicit Row(const Statement& statement) : statement_(statement) {}
  bool is_null(int column) const { return statement_.is_null(column); }
  Money money(int column) const { return Money::from_units(statement_.integer(column)); }
  int64_t integer(int column) const { return statement_.integer(column); }
  double number(int column) const { return statement_.number(column); }
  bool flag(int column) const { return statement_.integer(column) != 0; }
  std::string_view text(int column) const { return statement_.text(column); }  ///< valid until the next row
  std::optional<Date> date(int column) const { return Date::from_iso(statement_.text(column)); }

 private:
  const Statement& statement_;
};

/// Who writes, and when: stamped on each row of the history.
struct Author {
  std::function<std::string()> user;
  std::function<std::string()> now;  ///< "yyyy-mm-dd hh:mm:ss"
};

/// Whether a field is only a cache, recomputed from other rows: no change of it counts as another user's work, or
/// stands in the history.
using IsCache = std::function<bool(const std::string& table, const std::string& field)>;

/// A scope of writing, for those who must know later whether what was written in it came to stay.
struct WritingScope {
  std::shared_ptr<const WritingScope> outer;
  bool undone = false;
  bool is_undone() const { return undone || (outer && outer->is_undone()); }
};

/// A database file. Queries take `?` parameters; they may also be written with the program's own points of SQL
/// (`#m/d/yyyy#`, `True`, `LIKE 'a*'`, any column name). Amounts in query text travel as parameters only. An empty field
/// compared with a text is an empty text, null or not.
class Database {
 public:
  using Params = std::vector<Value>;

  /// Error 3204 when the file exists and is not empty, 3044 when it cannot be made.
  static std::unique_ptr<Database> CreateDatabase(const std::filesystem::path& path, FileKind kind);
  /// `connect` is "MS Access;pwd=...;". Errors: 3024 not found, 3343 not such a database, 3049 damaged,
  /// or of a shape that no file of ours has, 3031 wrong password, 3349 made by a newer version. `version` is the newest schema this program knows.
  static std::unique_ptr<Database> OpenDatabase(const std::filesystem::path& path, FileKind kind,
                                                std::string_view connect, int version);
  ~Database();

  const std::filesystem::path& path() const { return path_; }
  void NewPassword(std::string_view old_password, std::string_view new_password);
  int version() const;
  void set_version(int version);  ///< inside a Transaction

  std::vector<TableDef> TableDefs() const;  ///< in the order they were made, without the store's own tables
  const TableDef* find_table(std::string_view name) const;
  void CreateTableDef(const TableDef& definition);  ///< inside a Transaction
  void add_field(const std::string& table, const Field& field);
  void create_reading_index(const std::string& name, const std::string& table, const std::string& columns,
                            const std::string& where);
  /// For a bulk load: takes a table's indexes away and returns the statements that create_indexes makes them from again,
  /// inside the same Transaction.
  std::vector<std::string> drop_indexes(const std::string& table);
  void create_indexes(const std::vector<std::string>& statements);
  void rebuild_indexes();                   ///< inside a Transaction: for files whose texts stood in another order
  std::vector<QueryDef> QueryDefs() const;  ///< without the views for the eye that every table with amounts has
  void CreateQueryDef(const QueryDef& query);

  std::unique_ptr<Table> OpenTable(
      std::string_view name);  ///< a table-type set; Error 3078 when there is no such table
  Recordset OpenRecordset(std::string_view sql, const Params& params = {});  ///< a dynaset

  /// Runs an action statement; the number of rows changed. Only inside a Transaction.
  int64_t Execute(std::string_view sql, const Params& params = {});
  /// Forward reading, for anything that sums: fn(const Row&).
  template <typename Fn>
  void each(std::string_view sql, const Params& params, Fn&& fn) {
    Statement statement = query(sql, params);
    while (statement.step()) fn(Row(statement));
  }
  /// The first column of the first row, or null when there is no row. Typed by the column it comes from.
  Value value(std::string_view sql, const Params& params = {});

  void set_author(Author author) { author_ = std::move(author); }
  const Author& author() const { return author_; }
  /// Sees what a writing scope changed before it is committed, and throws to refuse it whole. A bulk load is not shown.
  using CommitGuard = std::function<void(Database& db, std::string_view changeset)>;
  void set_guard(CommitGuard guard) { guard_ = std::move(guard); }
  void set_caches(IsCache caches) { caches_ = std::move(caches); }
  bool is_cache(const std::string& table, const std::string& field) const { return caches_ && caches_(table, field); }
  /// The same by the column in the file, where the hidden key is column 0.
  bool is_cache_column(const std::string& table, int column) const;
  bool keeps_history() const { return keeps_history_; }
  /// A bug when no Transaction is open; Error 3034 when the engine undid it by itself after an earlier
  /// failure.
  void require_transaction() const;
  const std::shared_ptr<WritingScope>& writing_scope() const { return scope_; }  ///< nullptr outside a Transaction
  Connection& connection() { return connection_; }

  ChangeStamp change_stamp() { return connection_.change_stamp(); }
  /// What somebody worked out from this file and keeps beside it while it is open; made empty at the first call.
  /// Whoever keeps it compares the change_stamp() of its making before believing it.
  template <typename T>
  T& kept() {
    auto& place = kept_[typeid(T)];
    if (!place) place = std::make_shared<T>();
    return *static_cast<T*>(place.get());
  }

  Statement query(std::string_view sql, const Params& params);                ///< translated, bound, not yet stepped
  const std::string& translated(std::string_view sql, const Params& params);  ///< valid until the next call

 private:
  friend class Transaction;
  Database(const std::filesystem::path& path, Connection::Mode mode);
  void read_definitions() const;
  const TableDef* known_table(std::string_view name) const;
  bool is_decimal_view(std::string_view name, std::string_view sql) const;

  std::filesystem::path path_;
  mutable Connection connection_;
  Author author_;
  IsCache caches_;
  CommitGuard guard_;
  bool keeps_history_ = false;
  int depth_ = 0;
  std::shared_ptr<WritingScope> scope_;
  mutable std::optional<std::vector<TableDef>> tables_;
  mutable int64_t definitions_read_at_ = 0;
  std::unordered_map<std::string, std::string> translations_;
  std::map<std::type_index, std::shared_ptr<void>> kept_;
};

/// A scope in which all that is read is of one moment, whatever others write meanwhile. Inside a Transaction it is
/// part of that; none may begin within it.
class Snapshot {
 public:
  explicit Snapshot(Database& db);
  ~Snapshot();
  Snapshot(const Snapshot&) = delete;
  Snapshot& operator=(const Snapshot&) = delete;

 private:
  Connection* connection_;  ///< nullptr when an outer scope sees to it
};

/// A scope in which a database is written. The destructor undoes; commit is explicit and may fail (3218, 3026), after
/// which the scope still undoes. A transaction inside another is a savepoint. The outermost one of a company leaves a
/// row of history with who, when, what and the change itself, in the same commit.
class Transaction {
 public:
  enum class History { Rows, Summary };  ///< Summary: a bulk load, one line that cannot be taken back

  Transaction(Database& db, std::string what, History history = History::Rows);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  void commit();
  void undoes(int64_t action) { undoes_ = action; }  ///< marks the history row as taking back an earlier one

 private:
  void write_history();
  void leave();
  Database& db_;
  std::string what_;
  History history_;
  int level_;
  std::shared_ptr<WritingScope> outer_;
  int64_t undoes_ = 0;
  bool open_ = true;
};

/// The type a declared column has in a file ("MONEY INTEGER" and so on); Text for anything else.
FieldType Type_Of_Declaration(std::string_view declared);
std::string_view Declaration_Of_Type(FieldType type);
/// What the engine holds, read as a field of this type.
Value Typed(const Value& raw, FieldType type);

}  // namespace tallymere::store
