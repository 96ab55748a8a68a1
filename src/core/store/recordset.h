#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/store/database.h"

namespace tallymere::store {

class RowSet;

/// One field of the current row: reads it, and between Edit or AddNew and Update sets it.
class FieldRef {
 public:
  FieldRef(RowSet& set, size_t position) : set_(set), position_(position) {}
  const Value& value() const;
  bool blank() const { return value().blank(); }
  std::string text() const { return value().text(); }
  Money money() const { return value().money(); }
  int64_t integer() const { return value().integer(); }
  double number() const { return value().number(); }
  bool flag() const { return value().flag(); }
  Date date() const { return value().date(); }
  std::optional<Date> maybe_date() const { return value().maybe_date(); }
  FieldRef& operator=(const Value& value);
  FieldRef& operator=(const FieldRef& other) { return *this = other.value(); }

 private:
  RowSet& set_;
  size_t position_;
};

/// What table-type sets and dynasets share: a current row, its fields, and optimistic editing. Update compares the row
/// as it was read with the row as it stands; changed or gone is Error 3197. All writing happens inside a Transaction.
class RowSet {
 public:
  virtual ~RowSet() = default;
  const std::vector<Field>& Fields() const { return fields_; }
  bool has_field(std::string_view name) const;
  FieldRef operator[](std::string_view name);  ///< Error 3265: no such field. Error 3021 on reading without a row.
  FieldRef operator[](size_t position);
  bool has_row() const { return row_.has_value(); }
  int64_t key() const;  ///< the hidden key of the current row

  void AddNew();
  void Edit();    ///< Error 3021 without a current row
  void Update();  ///< after AddNew the current row stays where it was
  void CancelUpdate() { mode_ = Mode::Reading; }
  void Delete();
  int64_t last_added() const { return last_added_; }  ///< the hidden key of the row AddNew made last

 protected:
  explicit RowSet(Database& db) : db_(&db) {}
  RowSet(RowSet&&) = default;
  RowSet& operator=(RowSet&&) = default;
  void open_on(std::string table, std::vector<Field> fields);
  void load(int64_t key);  ///< makes that row current; no row when it is gone
  void set_row(std::vector<Value> row) { row_ = std::move(row), key_ = 0; }
  void no_row() { row_.reset(), mode_ = Mode::Reading; }
  virtual void added(int64_t) {}

  Database* db_;
  std::string table_;  ///< empty: a set over several tables, which cannot be changed

 private:
  friend class FieldRef;
  enum class Mode { Reading, Editing, Adding };
  size_t position_of(std::string_view name) const;
  void require_row() const;
  void take_back_undone();
  std::string where_unchanged(std::vector<Value>& params) const;
  void insert_row();
  void update_row();

  std::vector<Field> fields_;
  std::string select_by_key_;
  std::optional<std::vector<Value>> row_;
  std::vector<Value> buffer_;
  std::vector<bool> touched_;
  struct Written {
    std::shared_ptr<const WritingScope> scope;
    std::vector<Value> before;
  };
  std::vector<Written> written_;  ///< what the current row was before Update, by scope: it is that again when undone
  int64_t key_ = 0;
  int64_t last_added_ = 0;
  Mode mode_ = Mode::Reading;
};

/// A table-type set: live, ordered by the selected index (by entry without one), found by Seek.
class Table : public RowSet {
 public:
  Table(Database& db, std::string_view name);
  const std::string& name() const { return table_; }

  void Index(std::string_view name);  ///< Error 3265 when the table has no such index
  bool Seek(const Value& key);        ///< the first row whose index field equals key; else NoMatch and no row
  bool Seek(std::string_view comparison, const Value& key);  ///< comparison is "="
  bool NoMatch() const { return no_match_; }
  bool BOF() const { return at_ == At::Before; }
  bool Eof() const { return at_ == At::After; }
  void MoveFirst();  ///< on an empty table: Eof
  void MoveLast();
  void MoveNext();
  void MovePrevious();
  int64_t RecordCount() const;  ///< exact

 private:
  enum class At { Before, Row, After };
  void land(std::string_view condition, bool forward, const Database::Params& params);
  void step(bool forward);
  std::string field_;  ///< the index field; empty: entry order
  At at_ = At::Before;
  bool no_match_ = false;
};

/// A dynaset: the keys of a query's rows as of its opening, each row read when visited, editable when the query reads
/// one table. Rows deleted since by anybody are passed over.
class Recordset : public RowSet {
 public:
  Recordset(Database& db, std::string_view sql, const Database::Params& params);

  bool BOF() const { return position_ < 0; }
  bool Eof() const { return position_ >= count(); }
  bool empty() const { return count() == 0; }
  int64_t RecordCount() const { return count(); }
  void MoveFirst();
  void MoveLast();
  void MoveNext();
  void MovePrevious();
  /// The first row, in the set's order, that meets a condition written as SQL; else NoMatch and the row stays.
  bool FindFirst(std::string_view condition, const Database::Params& params = {});
  bool NoMatch() const { return no_match_; }
  int64_t position() const { return position_; }

 private:
  int64_t count() const { return static_cast<int64_t>(table_.empty() ? rows_.size() : keys_.size()); }
  void arrive(int64_t position, int step);
  void added(int64_t key) override { keys_.push_back(key); }

  std::vector<int64_t> keys_;
  std::vector<std::vector<Value>> rows_;  ///< for a set that cannot be changed
  int64_t position_ = 0;
  bool no_match_ = false;
};

}  // namespace tallymere::store
