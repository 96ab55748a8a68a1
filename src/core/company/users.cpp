#include "core/company/users.h"

#include "core/store/recordset.h"
#include "core/values/caseless.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

struct FlagField {
  const char* name;
  bool UserFlags::*flag;
};
constexpr FlagField flag_fields[] = {{"AR", &UserFlags::AR},
                                     {"AP", &UserFlags::AP},
                                     {"BankCC", &UserFlags::BankCC},
                                     {"Inventory", &UserFlags::Inventory},
                                     {"Payroll", &UserFlags::Payroll}};

/// The table of users; the row of this one is current if there is one.
std::unique_ptr<store::Table> At_User(store::Database& company, const std::string& UserName) {
  auto users = company.OpenTable("Users");
  users->Index("UserName");
  users->Seek(UserName);
  return users;
}

UserFlags Flags(store::Table& user) {
  UserFlags flags;
  for (const FlagField& field : flag_fields) flags.*field.flag = user[field.name].flag();
  return flags;
}

std::optional<Fault> Check_User(store::Database& company, const std::string& editing, const UserForm& form) {
  if (form.password.once != form.password.again)
    return Fault{{"Your passwords do not match. Please Re-Type your passwords.", "No Match"}, "txtPassword"};
  if (trim(form.UserName).empty()) return Fault{{"Please enter a User name.", "No User"}, "txtUser"};
  if (editing == Administrator && form.UserName != Administrator)
    return Fault{{"You cannot rename the Administrator.", "Access Denied"}, "txtUser"};
  const bool renamed = editing.empty() || !same_text(editing, form.UserName);
  if (renamed && At_User(company, form.UserName)->has_row())
    return Fault{{"User Name already exisits. Try a differenet one.", "Duplicate User Name"}, "txtUser"};
  return {};
}

}  // namespace

std::vector<UserRow> User_List(store::Database& company) {
  std::vector<UserRow> list;
  const auto users = company.OpenTable("Users");
  users->Index("UserName");
  for (users->MoveFirst(); !users->Eof(); users->MoveNext())
    list.push_back({(*users)["UserName"].text(), !(*users)["Password"].blank()});
  return list;
}

UserFlags Flags_Of(store::Database& company, const std::string& UserName) {
  const auto user = At_User(company, UserName);
  return user->has_row() ? Flags(*user) : UserFlags{false, false, false, false, false};
}

bool May_Use(Session& session, std::string_view command) {
  return !session.MultiUser ||
         Is_Granted(command, session.CurrentUser, Flags_Of(*session.dbCompany, session.CurrentUser));
}

std::optional<UserForm> Edit_User(Session& session, const std::string& UserName) {
  const auto user = At_User(*session.dbCompany, UserName);
  if (!user->has_row()) return std::nullopt;
  return UserForm{.UserName = (*user)["UserName"].text(), .password = {}, .flags = Flags(*user)};
}

std::optional<Fault> Save_User(Session& session, const std::string& editing, const UserForm& form) {
  store::Transaction tx(*session.dbCompany, (editing.empty() ? "New User " : "Edit User ") + form.UserName);
  if (const auto fault = Check_User(*session.dbCompany, editing, form)) return fault;
  const auto user = At_User(*session.dbCompany, editing);
  if (!editing.empty() && !user->has_row())
    throw store::Error(store::errors::data_changed, "Another user has deleted this user.");
  editing.empty() ? user->AddNew() : user->Edit();
  (*user)["UserName"] = form.UserName;
  if (editing.empty() || form.password.touched) (*user)["Password"] = Hash_Password(form.password.once);
  for (const FlagField& field : flag_fields) (*user)[field.name] = form.flags.*field.flag;
  user->Update();
  tx.commit();
  if (!editing.empty() && session.CurrentUser == editing) session.CurrentUser = form.UserName;
  return {};
}

bool Delete_User(Session& session, const std::string& UserName) {
  if (UserName.empty()) return session.prompts.box({"Please Select a User to Delete.", "No Selection"}), false;
  if (UserName == Administrator)
    return session.prompts.box({"You cannot delete the Administrator.", "Access Denied"}), false;
  if (!session.prompts.ask({"Are you sure you want to delete \"" + UserName + "\"?", "Confirm Delete", Icon::Question}))
    return false;
  store::Transaction tx(*session.dbCompany, "Delete User " + UserName);
  const auto user = At_User(*session.dbCompany, UserName);
  if (user->has_row()) user->Delete();
  tx.commit();
  return true;
}

}  // namespace tallymere
