#include "core/store/recordset.h"

#include <algorithm>
#include <unordered_set>

#include "core/store/sql.h"
#include "core/values/text.h"

namespace tallymere::store {
namespace {

std::string Column_List(const std::vector<Field>& fields) {
  std::string list;
  for (const Field& field : fields) list += (list.empty() ? "" : ", ") + Quoted(field.name);
  return list;
}

std::vector<Value> Read_Row(const Statement& statement, const std::vector<Field>& fields, int first = 0) {
  std::vector<Value> row;
  row.reserve(fields.size());
  for (const Field& field : fields) row.push_back(Typed(statement.raw(first++), field.type));
  return row;
}

}  // namespace

// --- FieldRef, RowSet ---------------------------------------------------------------------------------------

const Value& FieldRef::value() const {
  if (set_.mode_ != RowSet::Mode::Reading) return set_.buffer_[position_];
  set_.require_row();
  return (*set_.row_)[position_];
}

FieldRef& FieldRef::operator=(const Value& value) {
  if (set_.mode_ == RowSet::Mode::Reading)
    throw std::logic_error("a field is set only between Edit or AddNew and Update");
  set_.buffer_[position_] = value.as(set_.fields_[position_].type);
  set_.touched_[position_] = true;
  return *this;
}

void RowSet::open_on(std::string table, std::vector<Field> fields) {
  table_ = std::move(table);
  fields_ = std::move(fields);
  select_by_key_ = "SELECT " + Column_List(fields_) + " FROM " + Quoted(table_) + " WHERE RowKey = ?";
}

void RowSet::load(int64_t key) {
  mode_ = Mode::Reading;
  auto statement = db_->connection().prepare(select_by_key_);
  statement.bind(1, key);
  if (!statement.step()) return no_row();
  row_ = Read_Row(statement, fields_);
  written_.clear();
  key_ = key;
}

bool RowSet::has_field(std::string_view name) const {
  return std::any_of(fields_.begin(), fields_.end(), [&](auto& field) { return same_text(field.name, name); });
}

size_t RowSet::position_of(std::string_view name) const {
  for (size_t at = 0; at < fields_.size(); ++at)
    if (fields_[at].name == name) return at;
  for (size_t at = 0; at < fields_.size(); ++at)
    if (same_text(fields_[at].name, name)) return at;
  throw Error(errors::no_such_field, "Item not found in this collection: " + std::string(name) + ".");
}

FieldRef RowSet::operator[](std::string_view name) { return {*this, position_of(name)}; }

FieldRef RowSet::operator[](size_t position) {
  if (position >= fields_.size())
    throw Error(errors::no_such_field, "Item not found in this collection: " + std::to_string(position) + ".");
  return {*this, position};
}

void RowSet::require_row() const {
  if (!row_) throw Error(errors::no_current_record, "No current record.");
}

int64_t RowSet::key() const {
  require_row();
  return key_;
}

void RowSet::AddNew() {
  if (table_.empty()) throw Error(errors::read_only, "Cannot update. Database or object is read-only.");
  mode_ = Mode::Adding;
  buffer_.assign(fields_.size(), Value());
  touched_.assign(fields_.size(), false);
}

void RowSet::Edit() {
  require_row();
  if (table_.empty()) throw Error(errors::read_only, "Cannot update. Database or object is read-only.");
  take_back_undone();
  mode_ = Mode::Editing;
  buffer_ = *row_;
  touched_.assign(fields_.size(), false);
}

void RowSet::Update() {
  if (mode_ == Mode::Reading) throw Error(3020, "Update without AddNew or Edit.");
  db_->require_transaction();
  mode_ == Mode::Adding ? insert_row() : update_row();
  mode_ = Mode::Reading;
}

void RowSet::insert_row() {
  std::string columns, marks;
  std::vector<Value> params;
  for (size_t at = 0; at < fields_.size(); ++at) {
    if (!touched_[at]) continue;
    columns += (columns.empty() ? "" : ", ") + Quoted(fields_[at].name);
    marks += marks.empty() ? "?" : ", ?";
    params.push_back(buffer_[at]);
  }
  auto statement = db_->connection().prepare(columns.empty() ? "INSERT INTO " + Quoted(table_) + " DEFAULT VALUES"
                                                             : "INSERT INTO " + Quoted(table_) + " (" + columns +
                                                                   ") VALUES (" + marks + ")");
  statement.bind_all(params).run();
  last_added_ = db_->connection().last_key();
  added(last_added_);
}

std::string RowSet::where_unchanged(std::vector<Value>& params) const {
  std::string condition = " WHERE RowKey = ?";
  params.push_back(key_);
  for (size_t at = 0; at < fields_.size(); ++at) {
    if (db_->is_cache(table_, fields_[at].name)) continue;
    std::string field = Quoted(fields_[at].name);
    bool is_text = fields_[at].type == FieldType::Text || fields_[at].type == FieldType::Memo;
    bool is_flag = fields_[at].type == FieldType::Flag;  // another tool may write True as 1
    condition += " AND " + (is_flag ? "(" + field + " <> 0) IS (? <> 0)" : field + " IS ?");
    if (is_text) condition += " COLLATE BINARY";
    params.push_back((*row_)[at]);
  }
  return condition;
}

void RowSet::update_row() {
  std::string assignments;
  std::vector<Value> params;
  for (size_t at = 0; at < fields_.size(); ++at) {
    if (!touched_[at] || buffer_[at] == (*row_)[at]) continue;
    assignments += (assignments.empty() ? "" : ", ") + Quoted(fields_[at].name) + " = ?";
    params.push_back(buffer_[at]);
  }
  // Without a change this still asks whether the row stands as it was read.
  if (assignments.empty()) assignments = "RowKey = RowKey";
  std::string condition = where_unchanged(params);
  auto statement = db_->connection().prepare("UPDATE " + Quoted(table_) + " SET " + assignments + condition);
  if (statement.bind_all(params).run() == 0) {
    mode_ = Mode::Reading;
    throw Error(errors::data_changed, "The data has been changed; operation stopped.");
  }
  const auto& scope = db_->writing_scope();
  if (written_.empty() || written_.back().scope != scope) written_.push_back({scope, *row_});
  row_ = buffer_;
}

/// The row is what it was before the scopes that were undone since.
void RowSet::take_back_undone() {
  for (; !written_.empty() && written_.back().scope->is_undone(); written_.pop_back()) row_ = written_.back().before;
}

void RowSet::Delete() {
  require_row();
  if (table_.empty()) throw Error(errors::read_only, "Cannot update. Database or object is read-only.");
  db_->require_transaction();
  take_back_undone();
  std::vector<Value> params;
  std::string condition = where_unchanged(params);
  auto statement = db_->connection().prepare("DELETE FROM " + Quoted(table_) + condition);
  if (statement.bind_all(params).run() == 0)
    throw Error(errors::data_changed, "The data has been changed; operation stopped.");
}

// --- Table --------------------------------------------------------------------------------------------------

Table::Table(Database& db, std::string_view name) : RowSet(db) {
  const TableDef* definition = db.find_table(name);
  if (!definition) throw Error(errors::no_such_table, "Could not find the table '" + std::string(name) + "'.");
  open_on(definition->name, definition->fields);
  MoveFirst();
}

void Table::Index(std::string_view name) {
  for (const auto& index : db_->find_table(table_)->indexes) {
    if (!same_text(index.name, name)) continue;
    field_ = index.field;
    return;
  }
  throw Error(errors::no_such_field, "'" + std::string(name) + "' isn't an index in this table.");
}

void Table::land(std::string_view condition, bool forward, const Database::Params& params) {
  std::string direction = forward ? "" : " DESC";
  std::string order = field_.empty() ? "" : Quoted(field_) + direction + ", ";
  auto statement = db_->connection().prepare("SELECT RowKey FROM " + Quoted(table_) + std::string(condition) +
                                             " ORDER BY " + order + "RowKey" + direction + " LIMIT 1");
  statement.bind_all(params);
  if (statement.step()) {
    load(statement.integer(0));
    at_ = At::Row;
  } else {
    no_row();
    at_ = forward ? At::After : At::Before;
  }
}

void Table::MoveFirst() { land("", true, {}); }
void Table::MoveLast() { land("", false, {}); }
void Table::MoveNext() { step(true); }
void Table::MovePrevious() { step(false); }

void Table::step(bool forward) {
  if (at_ != At::Row) {
    if (at_ == At::Before && forward) return MoveFirst();
    if (at_ == At::After && !forward) return MoveLast();
    return;
  }
  std::string beyond = forward ? " > ?" : " < ?";
  if (field_.empty()) return land(" WHERE RowKey" + beyond, forward, {key()});
  CancelUpdate();  // who moves on without Update leaves the row as it was
  std::string field = Quoted(field_);
  Value here = (*this)[field_].value();
  land(" WHERE " + field + " IS ? AND RowKey" + beyond, forward, {here, key()});
  if (at_ == At::Row) return;
  // Blank keys stand before all others.
  if (here.is_null()) {
    if (forward) land(" WHERE " + field + " IS NOT NULL", true, {});
    return;
  }
  land(" WHERE " + field + beyond, forward, {here});
  if (at_ != At::Row && !forward) land(" WHERE " + field + " IS NULL", false, {});
}

bool Table::Seek(const Value& key) {
  if (field_.empty()) throw Error(errors::no_such_field, "Seek without an index on '" + table_ + "'.");
  const std::string blank = key.blank() ? " OR " + Quoted(field_) + " IS NULL" : "";
  auto statement = db_->connection().prepare("SELECT RowKey FROM " + Quoted(table_) + " WHERE " + Quoted(field_) +
                                             " IS ?" + blank + " ORDER BY RowKey LIMIT 1");
  statement.bind(1, key);
  no_match_ = !statement.step();
  if (no_match_) {
    no_row();
    at_ = At::After;
  } else {
    load(statement.integer(0));
    at_ = At::Row;
  }
  return !no_match_;
}

bool Table::Seek(std::string_view comparison, const Value& key) {
  if (comparison != "=") throw std::logic_error("Seek compares with = only");
  return Seek(key);
}

int64_t Table::RecordCount() const {
  auto statement = db_->connection().prepare("SELECT COUNT(*) FROM " + Quoted(table_));
  return statement.step() ? statement.integer(0) : 0;
}

// --- Recordset ----------------------------------------------------------------------------------------------

Recordset::Recordset(Database& db, std::string_view sql, const Database::Params& params) : RowSet(db) {
  auto split = Split_Query(db.translated(sql, params));
  const TableDef* definition = split.table.empty() ? nullptr : db.find_table(split.table);
  Statement shape = db.query(sql, params);
  std::vector<Field> fields;
  for (int column = 0; column < shape.columns(); ++column)
    if (shape.column_name(column) != hidden_key)
      fields.push_back({shape.column_name(column), Type_Of_Declaration(shape.declared_type(column))});
  bool plain =
      definition && std::all_of(fields.begin(), fields.end(), [&](auto& f) { return definition->find(f.name); });
  if (plain) {
    open_on(definition->name, fields);
    auto keys = db.connection().prepare("SELECT RowKey FROM " + Quoted(split.table) + split.rest);
    keys.bind_all(params);
    while (keys.step()) keys_.push_back(keys.integer(0));
  } else {
    open_on("", fields);
    while (shape.step()) rows_.push_back(Read_Row(shape, fields));
  }
  MoveFirst();
}

void Recordset::arrive(int64_t position, int step) {
  for (position_ = position; position_ >= 0 && position_ < count(); position_ += step) {
    if (table_.empty()) return set_row(rows_[static_cast<size_t>(position_)]);
    load(keys_[static_cast<size_t>(position_)]);
    if (has_row()) return;
  }
  no_row();
  position_ = std::clamp<int64_t>(position_, -1, count());
}

void Recordset::MoveFirst() { arrive(0, 1); }
void Recordset::MoveLast() { arrive(count() - 1, -1); }
void Recordset::MoveNext() {
  if (!Eof()) arrive(position_ + 1, 1);
}
void Recordset::MovePrevious() {
  if (!BOF()) arrive(position_ - 1, -1);
}

bool Recordset::FindFirst(std::string_view condition, const Database::Params& params) {
  if (table_.empty()) throw Error(errors::read_only, "FindFirst needs a set over one table.");
  std::unordered_set<int64_t> meeting;
  auto statement = db_->query("SELECT RowKey FROM " + Quoted(table_) + " WHERE " + std::string(condition), params);
  while (statement.step()) meeting.insert(statement.integer(0));
  for (size_t at = 0; at < keys_.size() && !meeting.empty(); ++at) {
    if (!meeting.contains(keys_[at])) continue;
    arrive(static_cast<int64_t>(at), 1);
    no_match_ = !has_row();
    return !no_match_;
  }
  no_match_ = true;
  return false;
}

}  // namespace tallymere::store
