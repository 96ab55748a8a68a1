#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/store/changeset.h"
#include "core/store/database.h"

/// The company's memory: every commit left who, when, what and its changeset.
namespace tallymere::store {

struct Action {
  int64_t number = 0;
  std::string at;  ///< "yyyy-mm-dd hh:mm:ss"
  std::string user;
  std::string what;
  int64_t undoes = 0;     ///< the action this one took back, or 0
  bool undoable = false;  ///< a bulk load keeps no rows
};

/// A change of one row, in the file's own names.
struct Change {
  struct Cell {
    std::string field;
    Value before, after;
  };
  std::string table;
  RowChange::Kind kind;
  int64_t key;  ///< the hidden key of the row
  std::vector<Cell> cells;
};

/// The newest `limit` actions, newest first.
std::vector<Action> List_Actions(Database& db, int64_t limit);
/// Error 3021 when there is no such action.
Action Find_Action(Database& db, int64_t number);
std::vector<Change> Changes_Of(Database& db, int64_t number);
/// The same of a changeset that is not kept yet. Error 3049 when the bytes are none.
std::vector<Change> Named_Changes(Database& db, std::string_view changeset);

/// Takes an action back inside the caller's Transaction. Error 3350 with the tables named when later work stands on it.
void Revert_Changes(Database& db, int64_t number);

}  // namespace tallymere::store
