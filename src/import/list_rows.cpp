#include "import/list_rows.h"

#include "core/company/schema.h"
#include "core/store/error.h"
#include "core/store/recordset.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

using store::FieldType;
using store::Value;

bool Is_Yes(std::string_view text) { return same_text(text, "Y") || same_text(text, "Yes") || same_text(text, "True"); }

std::string Index_On(std::string_view table, std::string_view field) {
  const TableDef* definition = find_table(table);
  for (const IndexDef& index : definition->indexes)
    if (index.field == field) return std::string(index.name);
  throw std::logic_error("no index on " + std::string(table) + "." + std::string(field));
}

/// A cell of an export as a field holds it; nothing where it is none of its kind.
std::optional<Value> Read_As(FieldType type, const std::string& text) {
  switch (type) {
    case FieldType::Text:
    case FieldType::Memo:
      return Value(text);
    case FieldType::Flag:
      return Value(Is_Yes(text));
    case FieldType::Date:
      if (const auto day = Date::parse(text)) return Value(*day);
      return std::nullopt;
    case FieldType::Double:
      if (is_numeric(text)) return Value(std::strtod(text.c_str(), nullptr));
      [[fallthrough]];
    default:
      try {
        if (const auto number = Money::parse(text)) return Value(*number).as(type);
      } catch (const store::Error&) {  // a fraction where whole numbers stand
      }
      return std::nullopt;
  }
}

}  // namespace

store::Table& ListRows::at(std::string_view table, const Cell& key) {
  auto& rows = tables_[std::string(table) + "." + std::string(key.field)];
  if (!rows) {
    rows = db_.OpenTable(table);
    rows->Index(Index_On(table, key.field));
  }
  return *rows;
}

/// Where several fields make the key, the rows of the first are walked.
bool ListRows::find(store::Table& rows, const std::vector<Cell>& key) {
  const Value first(key[0].text);
  if (!rows.Seek(first)) return false;
  for (; !rows.Eof() && same_text(rows[key[0].field].text(), key[0].text); rows.MoveNext()) {
    bool all = true;
    for (const Cell& part : key) all = all && same_text(rows[part.field].text(), part.text);
    if (all) return true;
  }
  return false;
}

Value ListRows::value_of(store::Table& rows, const Cell& cell) {
  for (const store::Field& field : rows.Fields()) {
    if (!same_text(field.name, cell.field)) continue;
    if (const auto value = Read_As(field.type, cell.text)) return *value;
    left_out_ += (left_out_.empty() ? "" : ", ") + field.name + " \"" + cell.text + "\"";
    return {};
  }
  throw std::logic_error("no field " + std::string(cell.field));
}

ImportDid ListRows::put(std::string_view table, const std::vector<Cell>& key, const std::vector<Cell>& cells) {
  left_out_.clear();
  store::Table& rows = at(table, key[0]);
  const bool stands = find(rows, key);
  std::vector<std::pair<std::string_view, Value>> changes;
  for (const Cell& cell : cells) {
    if (cell.text.empty()) continue;
    Value value = value_of(rows, cell);
    if (!value.is_null() && (!stands || rows[cell.field].value() != value)) changes.emplace_back(cell.field, value);
  }
  if (stands && changes.empty()) return ImportDid::Same;
  if (stands) {
    rows.Edit();
  } else {
    rows.AddNew();
    for (const Cell& part : key) rows[part.field] = value_of(rows, part);
  }
  for (const auto& [field, value] : changes) rows[field] = value;
  rows.Update();
  return stands ? ImportDid::Changed : ImportDid::Added;
}

std::string ListRows::look_up(std::string_view table, const Cell& key, std::string_view field) {
  store::Table& rows = at(table, key);
  return rows.Seek(Value(key.text)) ? rows[field].text() : "";
}

bool ListRows::has(std::string_view table, const Cell& key) { return at(table, key).Seek(Value(key.text)); }

}  // namespace tallymere
