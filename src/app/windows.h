#pragma once

#include <memory>

#include "core/company/session.h"
#include "shell/window_table.h"

namespace tallymere {

class frmMain;

/// Every window of this version by its name.
const WindowTable& Windows();

/// The frame with every window and the procedures that run behind them, not yet shown.
std::unique_ptr<frmMain> Make_Frame(Session& session);

}  // namespace tallymere
