#pragma once

#include "app/cli/arguments.h"
#include "core/company/session.h"

namespace tallymere::cli {

/// The steps between opening a company and working in it: --user NAME where it has users, and its password where it
/// keeps one, from the first line of standard input or of the descriptor --password-fd N, never from the call's own
/// words, which everybody on the machine can read. runtime_error with the program's words for who is not let in.
void Let_In(Session& session, Arguments& arguments);

}  // namespace tallymere::cli
