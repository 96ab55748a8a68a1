#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "core/backup/backup.h"
#include "core/backup/restore.h"
#include "core/company/company.h"
#include "core/company/folder.h"
#include "support/places.h"
#include "support/silent_prompts.h"
#include "support/temp_folder.h"

namespace tallymere::testing {

/// The company Acme, open, and what a test of backups does with it.
class BackupCompany : public ::testing::Test {
 protected:
  void SetUp() override {
    Prepare_Folder(folder.path(), data_folder);
    Main(session);
    make("Acme");
    open("Acme");
  }
  std::filesystem::path file(const std::string& name) const { return folder / name; }
  void make(const std::string& name) {
    New_Company(session, name);
    Open_Company_File(session, file(name + ".cmf"));
    remember(name + " was here");
  }
  void open(const std::string& name) {
    Open_Company_File(session, file(name + ".cmf"));
    Set_Recordsets(session);
  }
  void run(const std::string& sql, const store::Database::Params& params = {}) {
    store::Transaction tx(*session.dbCompany, "Set up by a test");
    session.dbCompany->Execute(sql, params);
    tx.commit();
  }
  void remember(const std::string& text) { run("UPDATE CompanyInfo SET Memo = ?", {text}); }
  std::string memo() { return session.dbCompany->value("SELECT Memo FROM CompanyInfo").text(); }
  std::filesystem::path backup(const char* name = "acme.cbk") {
    EXPECT_TRUE(Backup_Company(session, file(name)));
    return file(name);
  }
  /// Nobody is there to be asked.
  bool restore(const std::filesystem::path& from, const std::string& target = "Acme.cmf") {
    return Restore_Company(session, {.backup = from, .target = file(target), .ask = false});
  }
  static std::string content(const std::filesystem::path& of) {
    std::ifstream in(of, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  /// Names of what should not have stayed behind.
  std::string leftovers() const {
    std::string names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
      const auto ending = entry.path().extension();
      if (ending != ".cmf" && ending != ".mdb" && ending != ".cbk" && ending != ".txt")
        names += entry.path().filename().string() + " ";
    }
    return names;
  }
  void expect_still_open(const std::string& text) {
    ASSERT_TRUE(session.dbCompany);
    EXPECT_EQ(memo(), text);
    session.sets.CompanyInfo->MoveFirst();
    EXPECT_EQ((*session.sets.CompanyInfo)["Name"].text(), "Acme");
    EXPECT_EQ(session.CompanyFile, "Acme.cmf");
    EXPECT_EQ(leftovers(), "");
  }

  TempFolder folder;
  SilentPrompts prompts;
  Session session{folder.path(), Clock::standing_on(Date(2026, 3, 17)), prompts};
};

}  // namespace tallymere::testing
