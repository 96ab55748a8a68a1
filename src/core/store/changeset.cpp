#include "core/store/changeset.h"

#include <bit>
#include <map>
#include <optional>
#include <set>

#include "core/store/database.h"
#include "core/store/shape.h"
#include "core/store/sql.h"

namespace tallymere::store {
namespace {

constexpr int most_columns = 2000;
enum Operation : unsigned char { deleted = 9, added = 18, changed = 23 };
enum CellType : unsigned char { undefined, integer, number, text, bytes, null };

[[noreturn]] void Refuse() { throw Error(errors::file_damaged, "The recorded change cannot be read."); }

/// Takes a changeset apart from the front; what is not there, or not as we write it, is refused.
class Reader {
 public:
  explicit Reader(std::string_view rest) : rest_(rest) {}

  std::vector<RowChange> changes() {
    std::vector<RowChange> all;
    while (!rest_.empty()) rest_[0] == 'T' ? read_table() : all.push_back(read_row());
    return all;
  }

 private:
  using Record = std::vector<std::optional<Value>>;  ///< nothing: undefined

  std::string_view take(size_t count) {
    if (count > rest_.size()) Refuse();
    auto taken = rest_.substr(0, count);
    rest_.remove_prefix(count);
    return taken;
  }
  unsigned char take_byte() { return static_cast<unsigned char>(take(1)[0]); }
  size_t take_length() {
    size_t length = 0;
    for (int group = 0; group < 5; ++group) {
      const unsigned char byte = take_byte();
      length = length << 7 | (byte & 0x7f);
      if (byte < 0x80) return length;
    }
    Refuse();
  }
  uint64_t take_number() {
    uint64_t all = 0;
    for (char byte : take(8)) all = all << 8 | static_cast<unsigned char>(byte);
    return all;
  }

  void read_table() {
    take(1);
    const size_t columns = take_length();
    if (columns < 1 || columns > most_columns) Refuse();
    std::string keys(columns, '\0');
    keys[0] = '\x01';  // the hidden key comes first and is the key
    if (take(columns) != keys) Refuse();
    const size_t end = rest_.find('\0');
    if (end == 0 || end == rest_.npos) Refuse();
    table_ = take(end);
    take(1);
    if (Is_Own_Table(table_)) Refuse();  // of these nothing is ever recorded
    columns_ = static_cast<int>(columns);
  }

  RowChange read_row() {
    if (columns_ == 0) Refuse();
    const unsigned char operation = take_byte();
    if (take_byte() > 1) Refuse();
    if (operation == changed) {
      const Record before = read_record();
      return changed_row(before, read_record());
    }
    if (operation != added && operation != deleted) Refuse();
    RowChange row{table_, columns_, operation == added ? RowChange::Kind::Added : RowChange::Kind::Deleted, {}};
    int column = 0;
    for (auto& cell : read_record()) {
      if (!cell) Refuse();
      operation == added ? row.cells.push_back({column++, {}, std::move(*cell)})
                         : row.cells.push_back({column++, std::move(*cell), {}});
    }
    require_key(operation == added ? row.cells[0].after : row.cells[0].before);
    return row;
  }

  RowChange changed_row(const Record& before, const Record& after) {
    RowChange row{table_, columns_, RowChange::Kind::Changed, {}};
    if (!before[0] || after[0]) Refuse();
    require_key(*before[0]);
    row.cells.push_back({0, *before[0], {}});
    for (size_t at = 1; at < before.size(); ++at) {
      if (before[at].has_value() != after[at].has_value()) Refuse();
      if (before[at]) row.cells.push_back({static_cast<int>(at), *before[at], *after[at]});
    }
    return row;
  }
  static void require_key(const Value& key) {
    if (!std::holds_alternative<int64_t>(key.content())) Refuse();
  }

  Record read_record() {
    Record record;
    for (int column = 0; column < columns_; ++column) record.push_back(read_cell());
    return record;
  }
  std::optional<Value> read_cell() {
    switch (take_byte()) {
      case undefined:
        return std::nullopt;
      case integer:
        return static_cast<int64_t>(take_number());
      case number:
        return std::bit_cast<double>(take_number());
      case text:
      case bytes:
        return std::string(take(take_length()));
      case null:
        return Value();
      default:
        Refuse();
    }
  }

  std::string_view rest_;
  std::string table_;
  int columns_ = 0;
};

/// Takes back row by row, and looks at each whether it still is as the action left it.
class Inverse {
 public:
  Inverse(Connection& connection, const std::function<bool(const std::string&, int)>& is_cache)
      : connection_(connection), is_cache_(is_cache) {}

  bool apply(const RowChange& change) {
    const auto& names = names_of(change.table);
    if (names.size() < static_cast<size_t>(change.columns) || names[0] != hidden_key) return false;
    switch (change.kind) {
      case RowChange::Kind::Added:
        return run("DELETE FROM " + Quoted(change.table), change, false);
      case RowChange::Kind::Deleted:
        return insert(change);
      case RowChange::Kind::Changed:
        return update(change);
    }
    return false;
  }

 private:
  const std::vector<std::string>& names_of(const std::string& table) {
    auto [found, is_new] = names_.try_emplace(table);
    if (is_new) {
      auto rows = connection_.prepare("SELECT name FROM pragma_table_info(?) ORDER BY cid");
      for (rows.bind(1, table); rows.step();) found->second.emplace_back(rows.text(0));
    }
    return found->second;
  }

  bool update(const RowChange& change) {
    const auto& names = names_of(change.table);
    std::string assignments;
    for (const auto& cell : change.cells)
      if (cell.column > 0 && !is_cache_(change.table, cell.column))
        assignments +=
            (assignments.empty() ? " SET " : ", ") + Quoted(names[static_cast<size_t>(cell.column)]) + " = ?";
    if (assignments.empty()) return true;  // a cache alone was refreshed
    return run("UPDATE " + Quoted(change.table) + assignments, change, true);
  }

  /// Where the row is as it was left, but for caches; false when it is not.
  bool run(std::string sql, const RowChange& change, bool assigns) {
    std::vector<Value> values, left;
    std::string condition = " WHERE RowKey = ?";
    const auto& key = change.cells[0];
    left.push_back(change.kind == RowChange::Kind::Added ? key.after : key.before);
    for (const auto& cell : change.cells) {
      if (cell.column == 0 || is_cache_(change.table, cell.column)) continue;
      condition += " AND " + Quoted(names_of(change.table)[static_cast<size_t>(cell.column)]) + " IS ? COLLATE BINARY";
      if (assigns) values.push_back(cell.before);
      left.push_back(cell.after);
    }
    values.insert(values.end(), left.begin(), left.end());
    return connection_.prepare(sql += condition).bind_all(values).run() == 1;
  }

  bool insert(const RowChange& change) {
    const auto& names = names_of(change.table);
    std::string columns, marks;
    std::vector<Value> values;
    for (const auto& cell : change.cells) {
      columns += (columns.empty() ? "" : ", ") + Quoted(names[static_cast<size_t>(cell.column)]);
      marks += marks.empty() ? "?" : ", ?";
      values.push_back(cell.before);
    }
    const std::string sql =
        "INSERT OR IGNORE INTO " + Quoted(change.table) + " (" + columns + ") VALUES (" + marks + ")";
    return connection_.prepare(sql).bind_all(values).run() == 1;
  }

  Connection& connection_;
  const std::function<bool(const std::string&, int)>& is_cache_;
  std::map<std::string, std::vector<std::string>> names_;
};

}  // namespace

std::vector<RowChange> Read_Changeset(std::string_view changeset) { return Reader(changeset).changes(); }

std::vector<std::string> Apply_Inverse(Connection& connection, std::string_view changeset,
                                       const std::function<bool(const std::string&, int)>& is_cache) {
  const auto changes = Read_Changeset(changeset);
  std::set<std::string> refused;
  connection.savepoint("inverse");
  try {
    Inverse inverse(connection, is_cache);
    for (const RowChange& change : changes)
      if (!inverse.apply(change)) refused.insert(change.table);
  } catch (...) {
    connection.rollback_to("inverse");
    throw;
  }
  refused.empty() ? connection.release("inverse") : connection.rollback_to("inverse");
  return {refused.begin(), refused.end()};
}

}  // namespace tallymere::store
