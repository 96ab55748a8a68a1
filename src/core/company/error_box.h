#pragma once

#include <exception>
#include <string>

#include "core/company/session.h"

namespace tallymere {

/// The end of a procedure that failed: its line in the log, then the program's box.
void Error_Box(Session& session, const std::string& object, const std::string& procedure, const std::exception& fault);

}  // namespace tallymere
