#pragma once

#include <memory>
#include <string>

#include "core/company.h"
#include "core/folder.h"
#include "core/store/recordset.h"
#include "support/scripted_prompts.h"
#include "support/temp_folder.h"

namespace tallymere::testing {

/// A person at work: a session of their own on a company, with prompts that a test can script.
struct TestUser {
  TestUser(const std::filesystem::path& folder, Date today, const std::string& company)
      : session(folder, Clock::standing_on(today), prompts) {
    session.dbAccounts = Open_Current(folder / "Accounts.mdb", store::FileKind::Shared);
    Open_Company_File(session, folder / (company + ".cmf"));
    Set_Recordsets(session);
  }
  ScriptedPrompts prompts;
  Session session;
};

/// A fresh company from the shipped rows in a folder of its own, and the person who opened it.
///
///     TestCompany company;                      // today is 6/15/2026
///     company.session() ... company.db() ...
///     auto other = company.another_user();      // a second session on the same file
class TestCompany {
 public:
  explicit TestCompany(Date today = Date(2026, 6, 15)) : today_(today) {
    Prepare_Folder(folder.path(), DATA_DIR);
    ScriptedPrompts prompts;
    Session founder(folder.path(), Clock::standing_on(today), prompts);
    New_Company(founder, "Acme");
    user_ = another_user();
  }

  std::unique_ptr<TestUser> another_user() {
    return std::make_unique<TestUser>(folder.path(), today_, "Acme");
  }
  Session& session() { return user_->session; }
  ScriptedPrompts& prompts() { return user_->prompts; }
  store::Database& db() { return *user_->session.dbCompany; }

  /// Writes as any program would: company.run("UPDATE Accounts SET ...", {...}).
  void run(std::string_view sql, const store::Database::Params& params = {}) {
    store::Transaction tx(db(), "Set up by a test");
    db().Execute(sql, params);
    tx.commit();
  }
  void add_category(const std::string& id, const std::string& type, const std::string& parent = "",
                    bool dormant = false) {
    run("INSERT INTO Accounts (CatID, AccountName, AccountType, ParentAccount, Dormant) VALUES (?, ?, ?, ?, "
        "?)",
        {id, "Name of " + id, type, parent, dormant});
  }

  TempFolder folder;

 private:
  Date today_;
  std::unique_ptr<TestUser> user_;
};

}  // namespace tallymere::testing
