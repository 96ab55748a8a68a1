#include "core/ledger/marks.h"

namespace tallymere {

int64_t Mark(store::Database& db, std::string_view name) {
  return db.value("SELECT MAX(Value) FROM Marks WHERE Name = ?", {name}).integer();
}

void Set_Mark(store::Database& db, std::string_view name, int64_t value) {
  if (db.Execute("UPDATE Marks SET Value = ? WHERE Name = ?", {value, name}) == 0)
    db.Execute("INSERT INTO Marks (Name, Value) VALUES (?, ?)", {name, value});
}

void Raise_Mark(store::Database& db, std::string_view name, int64_t value) {
  if (value > Mark(db, name)) Set_Mark(db, name, value);
}

}  // namespace tallymere
