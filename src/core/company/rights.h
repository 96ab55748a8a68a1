#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Who may see which command. Access by screen only: the company file is open to all of its users.
namespace tallymere {

inline constexpr std::string_view Administrator = "Admin";

/// The user's row in Users; all set in single-user mode.
struct UserFlags {
  bool AR = true, AP = true, BankCC = true, Inventory = true, Payroll = true;
};

/// What is to happen to one menu or toolbar button of frmMain.
struct CommandRight {
  enum class Property { Visible, Enabled };
  std::string_view name;
  Property property;
  bool granted;
};

/// The commands of a user, in the order of the groups. Without MultiUser everything is granted and the user
/// and the flags count for nothing.
std::vector<CommandRight> Apply_User_Rights(bool MultiUser, std::string_view CurrentUser, const UserFlags& flags);

/// Whether one command of the table is granted; other commands are everybody's.
bool Is_Granted(std::string_view command, std::string_view CurrentUser, const UserFlags& flags);

}  // namespace tallymere
