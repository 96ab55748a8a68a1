#include "core/company/schema_doc.h"

#include "core/company/schema.h"

namespace tallymere {
namespace {

std::string code(std::string_view text) { return "`" + std::string(text) + "`"; }

// The meaning as a sentence of its own.
std::string sentence(std::string_view text) {
  std::string result(text);
  if (result[0] >= 'a' && result[0] <= 'z') result[0] = static_cast<char>(result[0] - 'a' + 'A');
  return result + ".";
}

// A bar would end the cell.
std::string cell(std::string_view text) {
  std::string escaped;
  for (const char c : text) escaped += c == '|' ? std::string("\\|") : std::string(1, c);
  return escaped;
}

std::string index_text(const IndexDef& index) { return code(index.name) + " on " + code(index.field); }

std::string table_text(const TableDef& table) {
  std::string text = "### " + std::string(table.name) + "\n\n" + sentence(table.meaning);
  if (table.on_demand) text += " Made on demand.";
  text += "\n\n| Field | Type | Meaning |\n|---|---|---|\n";
  for (const FieldDef& field : table.fields) {
    text += "| " + code(field.name) + " | " + std::string(Type_Name(field.type)) +
            (field.cache ? ", recomputed | " : " | ") + cell(field.meaning) + " |\n";
  }
  std::string indexes;
  for (const IndexDef& index : table.indexes) indexes += (indexes.empty() ? "" : "; ") + index_text(index);
  return text + (indexes.empty() ? "" : "\nIndexes: " + indexes + ".\n") + "\n";
}

std::string tables_text(std::string_view heading, std::span<const TableDef> tables) {
  std::string text = "## " + std::string(heading) + "\n\n";
  for (const TableDef& table : tables) text += table_text(table);
  return text;
}

std::string reading_text() {
  std::string text = "## Indexes for reading\n\n| Index | Table | Columns | Only rows with |\n|---|---|---|---|\n";
  for (const ReadingIndex& index : reading_indexes()) {
    text += "| " + code(index.name) + " | " + code(index.table) + " | " + std::string(index.columns) + " | " +
            std::string(index.where) + " |\n";
  }
  return text + "\n";
}

std::string queries_text() {
  std::string text = "## Stored queries\n\n";
  for (const StoredQuery& query : stored_queries()) {
    text += code(query.name) + ": " + code(query.sql) + "\n\n";
  }
  return text;
}

std::string references_text() {
  std::string text = "## What points at what\n\n| From | To | Only rows with |\n|---|---|---|\n";
  for (const Reference& link : references()) {
    text += "| " + code(std::string(link.from_table) + "." + std::string(link.from_field)) + " | " +
            code(std::string(link.to_table) + "." + std::string(link.to_field)) + " | " + std::string(link.condition) +
            " |\n";
  }
  return text;
}

constexpr std::string_view introduction =
    "# Schema\n\n"
    "Made from `src/core/company/schema*.cpp` by `Schema_Document()`; change it there.\n\n"
    "Version VERSION. Every table also has a hidden whole-number key. Money is stored as whole "
    "ten-thousandths, a date\n"
    "as ISO text, a flag as 0 or -1; text compares without case, and null and empty text read alike. A field "
    "marked\n"
    "*recomputed* is a balance worked out from the ledger, never booked.\n\n";

}  // namespace

std::string Schema_Document() {
  std::string text(introduction);
  constexpr std::string_view mark = "VERSION";
  text.replace(text.find(mark), mark.size(), std::to_string(schema_version));
  return text + tables_text("Company files and Model.mdb", company_tables()) +
         tables_text("Accounts.mdb", accounts_tables()) + reading_text() + queries_text() + references_text();
}

}  // namespace tallymere
