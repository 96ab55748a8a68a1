#include "core/company/login.h"

#include "core/company/passwords.h"
#include "core/store/recordset.h"

namespace tallymere {

Entrance Entrance_Of(store::Database& company) {
  const auto info = company.OpenTable("CompanyInfo");
  info->MoveFirst();
  if ((*info)["UserMode"].text() != "Single") return Entrance::User;
  return (*info)["Password"].text().empty() ? Entrance::Free : Entrance::Password;
}

bool Is_Company_Password(store::Database& company, const std::string& typed) {
  return Password_Matches(company.value("SELECT Password FROM CompanyInfo ORDER BY RowKey").text(), typed);
}

std::optional<std::string> Accepted_User(store::Database& company, const std::string& user, const std::string& typed) {
  const auto users = company.OpenTable("Users");
  users->Index("UserName");
  if (!users->Seek(user)) return std::nullopt;
  if (!Password_Matches((*users)["Password"].text(), typed)) return std::nullopt;
  return (*users)["UserName"].text();
}

void Enter_As(Session& session, const std::optional<std::string>& user) {
  session.MultiUser = user.has_value();
  session.CurrentUser = user.value_or("");
}

}  // namespace tallymere
