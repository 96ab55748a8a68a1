#pragma once

namespace tallymere::drive {

/// The script's side of the vocabulary: a function of the driver (`drive`) that makes the global names.
extern const char* const prelude;

}  // namespace tallymere::drive
