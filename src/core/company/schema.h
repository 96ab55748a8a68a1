#pragma once

#include <span>
#include <string_view>

#include "core/store/value.h"

// The one place that names every table, field, type and index. Databases, docs/schema.md, the shipped rows
// and the whole-book checks derive from it.
namespace tallymere {

using store::FieldType;

struct FieldDef {
  std::string_view name;
  FieldType type;
  std::string_view meaning;
  bool cache = false;  // worked out, never booked: worth neither a conflict nor a line of the history
};

// A named index of a table-type set: what Seek looks up.
struct IndexDef {
  std::string_view name;
  std::string_view field;
};

struct TableDef {
  std::string_view name;
  std::string_view meaning;
  std::span<const FieldDef> fields;
  std::span<const IndexDef> indexes;
  bool on_demand = false;  // made when first needed, under its name and a date: Time20260104

  // The field of that name in any letter case, or null.
  const FieldDef* find_field(std::string_view field) const;
};

// An index that only makes reading fast; no procedure selects it by name.
struct ReadingIndex {
  std::string_view name;
  std::string_view table;
  std::string_view columns;  // comma-separated, SQL
  std::string_view where;    // partial index: its condition, else empty
};

// Of a PaidBy: that it names several payments, or is written in any way but the ledger's own. The condition of an
// index, so whoever asks for such rows asks in these words.
inline constexpr std::string_view not_one_payment = "PaidBy <> CAST(CAST(PaidBy AS INTEGER) AS TEXT) || ';'";

struct StoredQuery {
  std::string_view name;
  std::string_view sql;
};

// What points at what. A blank from_field points nowhere and is always sound.
struct Reference {
  std::string_view from_table;
  std::string_view from_field;
  std::string_view to_table;
  std::string_view to_field;
  std::string_view condition = {};  // SQL over from_table: only these rows point; empty means all
  bool or_words = false;            // may hold words as well: it keeps what it names, but is never broken
};

// Raised with every change of a table, field or index; stored in each file as its user_version.
inline constexpr int schema_version = 8;

std::span<const TableDef> company_tables();   // Model.mdb and every company file
std::span<const TableDef> accounts_tables();  // Accounts.mdb
std::span<const ReadingIndex> reading_indexes();
std::span<const StoredQuery> stored_queries();
std::span<const Reference> references();

// The table of that name in any letter case, in either kind of file; a dated Time table finds Time. Null if
// unknown.
const TableDef* find_table(std::string_view name);

// "Text", "Money", ... as docs/schema.md prints them.
std::string_view Type_Name(FieldType type);

}  // namespace tallymere
