#include "core/ledger/probe.h"

#include <algorithm>

#include "core/store/error.h"
#include "core/store/sql.h"

namespace tallymere {
namespace {

std::string Select(std::string_view table, std::string_view field) {
  return "SELECT * FROM " + store::Quoted(table) + " WHERE " + store::Quoted(field) + " = ? ORDER BY RowKey";
}

}  // namespace

Probe::Probe(store::RowSet& row) {
  if (!row.has_row()) return;
  rows_.push_back(remember(row));
  select_ = Select("Transactions", "RowKey");
  value_ = row.key();
}

Probe Probe::Of(store::Database& db, int64_t TransNum) { return Of(db, "Transactions", "TransNum", TransNum); }

Probe Probe::Of(store::Database& db, std::string_view table, std::string_view field, const store::Value& value) {
  Probe probe;
  probe.select_ = Select(table, field);
  probe.value_ = value;
  probe.rows_ = read(db, probe.select_, value);
  return probe;
}

Probe::Remembered Probe::remember(store::RowSet& row) {
  Remembered remembered{row.key(), {}};
  for (size_t at = 0; at < row.Fields().size(); ++at) remembered.values.push_back(row[at].value());
  return remembered;
}

std::vector<Probe::Remembered> Probe::read(store::Database& db, const std::string& select, const store::Value& value) {
  std::vector<Remembered> found;
  auto rows = db.OpenRecordset(select, {value});
  for (; !rows.Eof(); rows.MoveNext()) found.push_back(remember(rows));
  return found;
}

void Probe::check(store::Database& db) const {
  if (is_new() || read(db, select_, value_) == rows_) return;
  throw store::Error(store::errors::data_changed, "The data has been changed; operation stopped.");
}

// --- Probes ----------------------------------------------------------------------------------------------

void Probes::keep(const std::string& of, Probe probe) {
  if (std::ranges::find(probes_, of, &Kept::of) != probes_.end()) return;
  const bool was_there = !probe.is_new();
  probes_.push_back({of, std::move(probe), was_there});
}

void Probes::add(store::Database& db, int64_t TransNum) { keep(std::to_string(TransNum), Probe::Of(db, TransNum)); }

void Probes::add(store::Database& db, std::string_view table, std::string_view field, const store::Value& value) {
  keep(std::string(table) + " " + std::string(field) + " " + value.text(), Probe::Of(db, table, field, value));
}

void Probes::check(store::Database& db) const {
  for (const Kept& kept : probes_) {
    if (!kept.was_there) throw store::Error(store::errors::data_changed, "What this entry changes is not there.");
    kept.probe.check(db);
  }
}

}  // namespace tallymere
