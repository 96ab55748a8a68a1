#pragma once

#include "core/company/session.h"

namespace tallymere {

/// Whether the tax tables are to be checked: once a month, and in each new year.
bool Is_Tax_Check_Due(Session& session);

}  // namespace tallymere
