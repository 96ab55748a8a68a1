#pragma once

#include "core/store/database.h"

namespace tallymere {

/// What a file must be before windows and reports meet it: every table of its kind there, with every field, of its kind,
/// and no query but our own. Of an older file only what is there is looked at. Error 3049 in one plain line.
void Check_Shape(store::Database& db, store::FileKind kind, bool is_older);

}  // namespace tallymere
