#pragma once

#include <filesystem>
#include <functional>
#include <ostream>

#include "core/company/session.h"

namespace tallymere::cli {

/// Hands what `write` writes to tallymere-paint, the program that paints pages, and has it make a PDF of it: this one
/// links nothing that could. Throws when it cannot be painted.
void Paint(Session& session, const std::filesystem::path& out, const std::function<void(std::ostream&)>& write);

}  // namespace tallymere::cli
