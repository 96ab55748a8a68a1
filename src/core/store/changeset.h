#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/store/engine.h"

/// What an action changed, as ChangeRecorder wrote it down: read, and taken back. A file from elsewhere may hold anything
/// in its place, so every byte is checked here and the engine itself gets only values.
namespace tallymere::store {

/// One row's change inside a changeset.
struct RowChange {
  enum class Kind { Added, Changed, Deleted };
  struct Cell {
    int column;
    Value before, after;  ///< as the engine holds them
  };
  std::string table;
  int columns;  ///< that the table had
  Kind kind;
  std::vector<Cell> cells;  ///< the hidden key first; for Changed only what changed besides
};

/// Error 3049 when the bytes are no changeset of ours.
std::vector<RowChange> Read_Changeset(std::string_view changeset);

/// Applies the inverse of a changeset as a whole. `is_cache(table, column)` names columns that are worked out from other
/// rows: they may differ and are left as they are. Returns the tables on which later work stands, or which are not what
/// they were; when not empty nothing was applied.
std::vector<std::string> Apply_Inverse(Connection& connection, std::string_view changeset,
                                       const std::function<bool(const std::string&, int)>& is_cache);

}  // namespace tallymere::store
