#pragma once

#include <cstdint>

#include "core/store/database.h"

namespace tallymere {

/// Takes an action of the history back, whole, as an action of its own. Error 3350 in plain words when later work
/// stands on it: rows it wrote were changed since, or something made since points at a row it would remove.
void Undo_Action(store::Database& company, int64_t number);

}  // namespace tallymere
