#pragma once

#include <string>
#include <string_view>

#include "core/company/session.h"

namespace tallymere {

/// A Social Security number as a list or a report shows it: whole to the administrator and where there are no users,
/// "***-**-6789" to all others.
std::string Shown_SSNum(const Session& session, std::string_view number);

}  // namespace tallymere
