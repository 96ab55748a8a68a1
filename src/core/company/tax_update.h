#pragma once

#include "core/company/session.h"

namespace tallymere {

/// The start-up check of the tax tables, at most once a month and in each new year. A new year asks for the balances to
/// be recalculated. Without a configured update host nothing is asked and nothing is said.
void Check_Updates(Session& session);

}  // namespace tallymere
