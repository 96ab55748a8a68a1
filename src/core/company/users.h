#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/company/passwords.h"
#include "core/company/rights.h"
#include "core/company/session.h"

/// The users of a company: who may log in, and to which parts.
namespace tallymere {

struct UserRow {
  std::string UserName;
  bool has_password = false;
};

/// What the form of a user shows and gives back.
struct UserForm {
  std::string UserName;
  NewPassword password = {};
  UserFlags flags{false, false, false, false, false};
};

std::vector<UserRow> User_List(store::Database& company);  ///< by name
/// What a user may do; nothing at all when there is no such user any more.
UserFlags Flags_Of(store::Database& company, const std::string& UserName);

/// Whether the user at work may use a command of the menus; in single-user mode everybody may.
bool May_Use(Session& session, std::string_view command);

/// The form of a user; nothing when another user has deleted it meanwhile.
std::optional<UserForm> Edit_User(Session& session, const std::string& UserName);
/// Writes the form of the user `editing`, or of a new one when that is empty. The administrator keeps its name; names are not
/// empty and not taken, whatever their case. Error 3197 when the user is gone.
std::optional<Fault> Save_User(Session& session, const std::string& editing, const UserForm& form);
/// Asks first. false: it stays.
bool Delete_User(Session& session, const std::string& UserName);

}  // namespace tallymere
