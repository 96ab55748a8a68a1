#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/store/recordset.h"

namespace tallymere {

/// What a window remembers of the rows it shows, to find out at saving whether another user touched them since. Take it
/// before reading the rows to show: a change in between is then noticed too.
class Probe {
 public:
  Probe() = default;                   ///< a new entry: nothing was loaded
  explicit Probe(store::RowSet& row);  ///< the current row of a set of Transactions, as it was read
  /// All rows of a transaction.
  static Probe Of(store::Database& db, int64_t TransNum);
  /// All rows of a table with this value in a field: a list's row by its key, the lines of a paper by its Index. Rows
  /// that come later count as a change.
  static Probe Of(store::Database& db, std::string_view table, std::string_view field, const store::Value& value);

  bool is_new() const { return rows_.empty(); }
  /// Error 3197 when a remembered row was changed or is gone, or when other rows have come.
  void check(store::Database& db) const;

 private:
  struct Remembered {
    int64_t key;
    std::vector<store::Value> values;
    friend bool operator==(const Remembered&, const Remembered&) = default;
  };
  static Remembered remember(store::RowSet& row);
  static std::vector<Remembered> read(store::Database& db, const std::string& select, const store::Value& value);

  std::vector<Remembered> rows_;
  std::string select_;  ///< what brings these rows again
  store::Value value_;
};

/// The probes of a save that changes other documents as well: the bills that a payment settles, the papers that an
/// invoice takes up.
class Probes {
 public:
  /// A transaction or a list's row that this save is going to change; remembered once.
  void add(store::Database& db, int64_t TransNum);
  void add(store::Database& db, std::string_view table, std::string_view field, const store::Value& value);
  void clear() { probes_.clear(); }

  /// Error 3197 when any of them was touched. Call it inside the save's store transaction, before the first change.
  void check(store::Database& db) const;

 private:
  struct Kept {
    std::string of;
    Probe probe;
    bool was_there;
  };
  void keep(const std::string& of, Probe probe);

  std::vector<Kept> probes_;
};

}  // namespace tallymere
