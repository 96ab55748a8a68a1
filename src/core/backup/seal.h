#pragma once

#include <optional>
#include <string>

#include "core/store/engine.h"

/// How a backup proves itself: a digest of each table's content and of all definitions, kept inside the copy.
namespace tallymere {

/// Writes the seal into a copy that nobody else has open, in place of an older one. `made` is the moment it tells.
void Seal_Copy(store::Connection& copy, const std::string& made);

/// Holds the seal against what a decoded copy holds, and takes it out: the moment it tells, or nothing where there
/// never was one. Error 3049, naming what is not as it was sealed.
std::optional<std::string> Break_Seal(store::Connection& copy);

}  // namespace tallymere
