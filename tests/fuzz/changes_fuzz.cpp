// Recorded changes: any bytes in their place are read or refused, and taken back whole or not at all.

#include <cstdlib>
#include <utility>

#include "core/store/changeset.h"
#include "core/store/error.h"

using namespace tallymere::store;

namespace {

std::string Rows(Connection& books) {
  std::string all;
  for (auto row = books.prepare("SELECT * FROM Accounts ORDER BY 1"); row.step();)
    for (int column = 0; column < row.columns(); ++column) all += row.bytes(column) + '|';
  return all;
}

Connection& Books() {
  static Connection books(":memory:", Connection::Mode::Create);
  static bool made = false;
  if (!std::exchange(made, true))
    books.execute(
        "CREATE TABLE Accounts (RowKey INTEGER PRIMARY KEY, Name TEXT COLLATE NOCASE, Balance MONEY INTEGER);"
        "INSERT INTO Accounts VALUES (1, 'one', 10), (2, 'two', NULL), (3, NULL, 2.5)");
  return books;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view changes(reinterpret_cast<const char*>(data), size);
  Connection& books = Books();
  const std::string before = Rows(books);
  books.begin();
  try {
    if (!Apply_Inverse(books, changes, [](auto&, int column) { return column == 2; }).empty() && Rows(books) != before)
      std::abort();
  } catch (const Error& error) {
    if (error.number == errors::bad_statement || Rows(books) != before) std::abort();
  }
  books.rollback();
  return 0;
}
