#include "core/store/change_recorder.h"

#define SQLITE_ENABLE_PREUPDATE_HOOK 1
#include <sqlite3.h>

#include <algorithm>
#include <bit>
#include <unordered_map>

namespace tallymere::store {
namespace {

// Cells of a changeset: a type byte, then the content; whole numbers and doubles in eight bytes, highest first.
constexpr char undefined_cell = '\x00';
constexpr char null_cell = '\x05';

void Append_Number(std::string& out, uint64_t number) {
  for (int shift = 56; shift >= 0; shift -= 8) out += static_cast<char>(number >> shift);
}

void Append_Length(std::string& out, uint32_t length) {
  char groups[5];
  int count = 0;
  do groups[count++] = static_cast<char>(length & 0x7f);
  while (length >>= 7);
  while (count > 1) out += static_cast<char>(groups[--count] | 0x80);
  out += groups[0];
}

std::string Cell(sqlite3_value* value) {
  int type = value ? sqlite3_value_type(value) : SQLITE_NULL;
  std::string cell(1, static_cast<char>(type));  // the engine's type numbers are the changeset's
  if (type == SQLITE_INTEGER) {
    Append_Number(cell, static_cast<uint64_t>(sqlite3_value_int64(value)));
  } else if (type == SQLITE_FLOAT) {
    Append_Number(cell, std::bit_cast<uint64_t>(sqlite3_value_double(value)));
  } else if (type != SQLITE_NULL) {
    const void* bytes = type == SQLITE_TEXT ? sqlite3_value_text(value) : sqlite3_value_blob(value);
    int length = sqlite3_value_bytes(value);
    Append_Length(cell, static_cast<uint32_t>(length));
    cell.append(static_cast<const char*>(bytes), static_cast<size_t>(length));
  }
  return cell;
}

void Append_Record(std::string& out, const std::vector<std::string>& record) {
  for (const std::string& cell : record) out += cell;
}

/// Of a changed row: the key and what changed as it was, then what changed as it is.
void Append_Update(std::string& out, const std::vector<std::string>& before, const std::vector<std::string>& after,
                   const std::vector<bool>& caches) {
  const auto changed = [&](size_t at) { return !caches[at] && before[at] != after[at]; };
  for (size_t at = 0; at < before.size(); ++at) at == 0 || changed(at) ? out += before[at] : out += undefined_cell;
  for (size_t at = 0; at < after.size(); ++at) changed(at) ? out += after[at] : out += undefined_cell;
}

}  // namespace

/// What became of one row from the first change to the last.
struct ChangeRecorder::Net {
  const std::optional<Record>* before;
  const std::optional<Record>* after;

  bool nothing(const std::vector<bool>& caches) const {
    for (size_t at = 1; at < caches.size(); ++at) {
      if (caches[at]) continue;
      if (!before->has_value() || !after->has_value() || (**before)[at] != (**after)[at]) return false;
    }
    return true;
  }
  void append_to(std::string& out, const std::vector<bool>& caches) const {
    bool added = !before->has_value(), deleted = !after->has_value();
    out += static_cast<char>(added ? SQLITE_INSERT : deleted ? SQLITE_DELETE : SQLITE_UPDATE);
    out += '\0';  // not the work of a trigger
    if (added)
      Append_Record(out, **after);
    else if (deleted)
      Append_Record(out, **before);
    else
      Append_Update(out, **before, **after, caches);
  }
  size_t columns() const { return before->has_value() ? (*before)->size() : (*after)->size(); }
};

void ChangeRecorder::start(bool (*leave_out)(std::string_view table)) {
  leave_out_ = leave_out;
  tables_.clear();
  log_.clear();
  sqlite3_preupdate_hook(connection_, on_change, this);
}

void ChangeRecorder::stop() {
  sqlite3_preupdate_hook(connection_, nullptr, nullptr);
  log_.clear();
}

void ChangeRecorder::forget_since(size_t mark) {
  if (mark < log_.size()) log_.resize(mark);
}

void ChangeRecorder::on_change(void* self, sqlite3*, int operation, const char*, const char* table, long long old_key,
                               long long new_key) {
  static_cast<ChangeRecorder*>(self)->note(operation, table, operation == SQLITE_INSERT ? new_key : old_key);
}

void ChangeRecorder::note(int operation, std::string_view table, int64_t key) {
  auto number = number_of(table);
  if (!number) return;
  Change change{*number, key, {}, {}};
  if (operation != SQLITE_INSERT) change.before = read(true);
  if (operation != SQLITE_DELETE) change.after = read(false);
  log_.push_back(std::move(change));
}

std::optional<size_t> ChangeRecorder::number_of(std::string_view table) {
  auto found = std::find(tables_.begin(), tables_.end(), table);
  if (found != tables_.end()) return static_cast<size_t>(found - tables_.begin());
  if (leave_out_(table)) return std::nullopt;
  tables_.emplace_back(table);
  return tables_.size() - 1;
}

ChangeRecorder::Record ChangeRecorder::read(bool old_values) const {
  Record record;
  int columns = sqlite3_preupdate_count(connection_);
  record.reserve(static_cast<size_t>(columns));
  for (int column = 0; column < columns; ++column) {
    sqlite3_value* value = nullptr;
    old_values ? sqlite3_preupdate_old(connection_, column, &value)
               : sqlite3_preupdate_new(connection_, column, &value);
    record.push_back(Cell(value));
  }
  return record;
}

std::string ChangeRecorder::changeset(const CacheColumn& is_cache) const {
  std::string out;
  for (size_t table = 0; table < tables_.size(); ++table) {
    std::vector<Net> rows;
    std::unordered_map<int64_t, size_t> row_of_key;
    for (const Change& change : log_) {
      if (change.table != table) continue;
      auto [found, is_new] = row_of_key.emplace(change.key, rows.size());
      if (is_new) rows.push_back({&change.before, &change.after});
      rows[found->second].after = &change.after;
    }
    std::erase_if(rows, [](const Net& row) { return !row.before->has_value() && !row.after->has_value(); });
    if (rows.empty()) continue;
    std::vector<bool> caches(rows[0].columns());
    for (size_t at = 1; at < caches.size(); ++at)
      caches[at] = is_cache && is_cache(tables_[table], static_cast<int>(at));
    std::erase_if(rows, [&](const Net& row) { return row.nothing(caches); });
    if (rows.empty()) continue;
    out += 'T';
    Append_Length(out, static_cast<uint32_t>(rows[0].columns()));
    out += '\x01';  // the hidden key comes first and is the key
    out.append(rows[0].columns() - 1, '\0');
    out += tables_[table] + '\0';
    for (const Net& row : rows) row.append_to(out, caches);
  }
  return out;
}

}  // namespace tallymere::store
