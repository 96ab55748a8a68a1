#pragma once

#include <cstdint>

#include "core/company/session.h"

namespace tallymere {

/// Takes an action of the history back, whole, as an action of its own that can be taken back in turn.
/// Error 3350 in plain words when later work stands on it: rows it wrote were changed since,
/// something made since points at what would go or took the name or number of what would come back, or what
/// came back would post to a category that is gone.
void Undo_Action(Session& session, int64_t number);

}  // namespace tallymere
