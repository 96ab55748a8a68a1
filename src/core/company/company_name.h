#pragma once

#include <optional>
#include <string>

#include "core/company/prompts.h"

namespace tallymere {

/// Why no company can have this name, as the box that says so; nothing: one can. Blanks around it do not count.
std::optional<Box> Company_Name_Fault(const std::string& name);

}  // namespace tallymere
