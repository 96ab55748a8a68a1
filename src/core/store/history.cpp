#include "core/store/history.h"

#include "core/store/error.h"
#include "core/store/sql.h"
#include "core/values/text.h"

namespace tallymere::store {
namespace {

constexpr std::string_view columns = "SELECT RowKey, At, User, What, Undoes, Changes IS NOT NULL FROM History";

Action Read_Action(const Statement& row) {
  return {row.integer(0),           std::string(row.text(1)), std::string(row.text(2)),
          std::string(row.text(3)), row.integer(4),           row.integer(5) != 0};
}

std::string Changeset_Of(Database& db, int64_t number) {
  auto row = db.connection().prepare("SELECT Changes FROM History WHERE RowKey = ? AND Changes IS NOT NULL");
  row.bind(1, number);
  if (!row.step())
    throw Error(errors::undo_refused, "Action " + std::to_string(number) + " kept no rows; it cannot be taken back.");
  return row.bytes(0);
}

/// Field by its column in the file, where the hidden key is column 0.
const Field* Field_At(Database& db, const std::string& table, int column) {
  const TableDef* definition = db.find_table(table);
  if (!definition || column < 1 || column > static_cast<int>(definition->fields.size())) return nullptr;
  return &definition->fields[static_cast<size_t>(column) - 1];
}

Change Named(Database& db, const RowChange& raw) {
  Change change{raw.table, raw.kind, 0, {}};
  for (const auto& cell : raw.cells) {
    if (cell.column == 0) change.key = (cell.before.is_null() ? cell.after : cell.before).integer();
    const Field* field = Field_At(db, raw.table, cell.column);
    if (!field) continue;
    Value before = Typed(cell.before, field->type), after = Typed(cell.after, field->type);
    if (!before.is_null() || !after.is_null()) change.cells.push_back({field->name, before, after});
  }
  return change;
}

}  // namespace

std::vector<Action> List_Actions(Database& db, int64_t limit) {
  std::vector<Action> actions;
  auto rows = db.connection().prepare(std::string(columns) + " ORDER BY RowKey DESC LIMIT ?");
  rows.bind(1, limit);
  while (rows.step()) actions.push_back(Read_Action(rows));
  return actions;
}

Action Find_Action(Database& db, int64_t number) {
  auto row = db.connection().prepare(std::string(columns) + " WHERE RowKey = ?");
  row.bind(1, number);
  if (!row.step()) throw Error(errors::no_current_record, "There is no action " + std::to_string(number) + ".");
  return Read_Action(row);
}

std::vector<Change> Changes_Of(Database& db, int64_t number) {
  Find_Action(db, number);
  return Named_Changes(db, Changeset_Of(db, number));
}

std::vector<Change> Named_Changes(Database& db, std::string_view changeset) {
  std::vector<Change> changes;
  for (const RowChange& raw : Read_Changeset(changeset)) changes.push_back(Named(db, raw));
  return changes;
}

void Revert_Changes(Database& db, int64_t number) {
  Action action = Find_Action(db, number);
  auto refused = Apply_Inverse(db.connection(), Changeset_Of(db, number),
                               [&](const std::string& table, int column) { return db.is_cache_column(table, column); });
  if (refused.empty()) return;
  throw Error(errors::undo_refused, "Action " + std::to_string(number) + " (" + action.what +
                                        ") cannot be taken back: later work stands on it in " + join(refused, ", ") +
                                        ".");
}

}  // namespace tallymere::store
