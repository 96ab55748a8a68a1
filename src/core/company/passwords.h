#pragma once

#include <string>

namespace tallymere {

/// What CompanyInfo.Password and Users.Password keep: a salted Argon2id hash; "" stays "".
std::string Hash_Password(const std::string& password);
/// Exact: case and blanks count. Nothing kept is matched by nothing typed.
bool Password_Matches(const std::string& kept, const std::string& typed);

/// What stands in the two boxes of a form. Boxes that nobody touched leave the password as it is kept.
struct NewPassword {
  bool touched = false;
  std::string once, again;
};

}  // namespace tallymere
