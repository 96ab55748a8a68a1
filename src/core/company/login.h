#pragma once

#include <optional>
#include <string>

#include "core/company/session.h"

/// Who may come in to the company that has just been opened.
namespace tallymere {

enum class Entrance { Free, Password, User };  ///< single-user without and with a password; named users

/// What the open company asks; Error 3021 when it does not know itself.
Entrance Entrance_Of(store::Database& company);

bool Is_Company_Password(store::Database& company, const std::string& typed);

/// The user's name as the company spells it, when the password is right.
std::optional<std::string> Accepted_User(store::Database& company, const std::string& user, const std::string& typed);

/// From here on the session works as this user; nobody: in single-user mode.
void Enter_As(Session& session, const std::optional<std::string>& user);

}  // namespace tallymere
