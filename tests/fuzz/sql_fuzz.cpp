// The translation of SQL: a text in quotes stays that text, whatever stands in it, and no statement breaks the translator.

#include <cstdlib>
#include <utility>

#include "core/store/engine.h"
#include "core/store/error.h"
#include "core/store/sql.h"
#include "core/values/text.h"

using namespace tallymere;

namespace {

store::Connection& Books() {
  static store::Connection books(":memory:", store::Connection::Mode::Create);
  static bool made = false;
  if (!std::exchange(made, true))
    books.execute("CREATE TABLE T (Name TEXT COLLATE NOCASE); INSERT INTO T VALUES ('Acme'), (NULL), ('')");
  return books;
}

int64_t Count(const std::string& sql, const std::vector<store::Value>& params) {
  auto row = Books().prepare(store::Translate(sql, params));
  row.bind_all(params);
  return row.step() ? row.integer(0) : -1;
}

/// Spliced into a query, as windows do, a name finds what it finds as a parameter.
void Splice(const std::string& name) {
  const std::string quoted = "'" + doubled_quotes(name) + "'";
  for (const std::string comparison : {"=", "<>", "LIKE"}) {
    if (comparison == "LIKE" && name.find_first_of("*?%_\\") != name.npos) continue;
    const std::string query = "SELECT COUNT(*) FROM T WHERE Name " + comparison + " ";
    if (Count(query + quoted, {}) != Count(query + "?", {name})) std::abort();
  }
  auto row = Books().prepare(store::Translate("SELECT " + quoted));
  if (!row.step() || row.text(0) != name) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string text(reinterpret_cast<const char*>(data), size);
  try {
    const std::string translated = store::Translate(text, std::vector<store::Value>{"", "x", 1, "y"});
    store::Split_Query(translated);
  } catch (const store::Error&) {
  }
  std::erase(text, '\0');
  Splice(text);
  return 0;
}
