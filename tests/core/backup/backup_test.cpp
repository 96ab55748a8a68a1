#include "core/backup/backup.h"

#include <fstream>

#include "core/backup/clsHuffman.h"
#include "core/backup/whole_file.h"
#include "core/company/company.h"
#include "core/company/folder.h"
#include "support/places.h"
#include "support/silent_prompts.h"
#include "support/temp_folder.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;

TEST(BackupName, LosesPointsAndCommasInTheWholePathWithoutCbk) {
  EXPECT_EQ(Backup_File_Name("Acme, Inc."), "Acme Inc.cbk");
  EXPECT_EQ(Backup_File_Name("Acme, Inc..cbk"), "Acme, Inc..cbk");
  EXPECT_EQ(Backup_File_Name("2026.01.cbk.old"), "2026.01.cbk.old");

  const testing::TempFolder folder;
  fs::create_directories(folder / "v1.5/keep");
  fs::create_directories(folder / "v15");
  EXPECT_EQ(Backup_File_Name(folder / "v1.5" / "A.B"), folder / "v15" / "AB.cbk");
  EXPECT_EQ(Backup_File_Name(folder / "v1.5/keep" / "A.B"), folder / "v1.5/keep" / "AB.cbk");
}

class BackupTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Prepare_Folder(folder.path(), testing::data_folder);
    Main(session);
    make("Acme");
    open("Acme");
  }
  void make(const std::string& name) {
    New_Company(session, name);
    Open_Company_File(session, folder / (name + ".cmf"));
    remember(name + " was here");
  }
  void open(const std::string& name) {
    Open_Company_File(session, folder / (name + ".cmf"));
    Set_Recordsets(session);
  }
  void remember(const std::string& text) {
    store::Transaction tx(*session.dbCompany, "memo");
    session.dbCompany->Execute("UPDATE CompanyInfo SET Memo = ?", {text});
    tx.commit();
  }
  std::string memo() { return session.dbCompany->value("SELECT Memo FROM CompanyInfo").text(); }
  fs::path backup(const char* name = "acme.cbk") {
    EXPECT_TRUE(Backup_Company(session, folder / name));
    return folder / name;
  }
  void damage(const fs::path& file, std::streamoff from_end) {
    std::fstream bytes(file, std::ios::in | std::ios::out | std::ios::binary);
    bytes.seekg(-from_end, std::ios::end);
    const int byte = bytes.get();
    bytes.seekp(-from_end, std::ios::end);
    bytes.put(static_cast<char>(byte ^ 0x55));
  }
  /// Names of what should not have stayed behind.
  std::string leftovers() {
    std::string names;
    for (const auto& entry : fs::directory_iterator(folder.path())) {
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

  testing::TempFolder folder;
  testing::SilentPrompts prompts;
  Session session{folder.path(), Clock::standing_on(Date(2026, 3, 17)), prompts};
};

TEST_F(BackupTest, WhatIsRestoredIsTheMomentOfTheBackup) {
  const auto file = backup();
  EXPECT_EQ(prompts.labels, std::vector<std::string>{"Backup"});
  remember("after the backup");
  int went = 0;
  ASSERT_TRUE(Restore_Company(session, file, folder / "Acme.cmf", [&] { return ++went, true; }));
  EXPECT_EQ(went, 1);
  EXPECT_EQ(memo(), "Acme was here");
  EXPECT_EQ(prompts.boxes.front().text, "Backup Successful.");
  EXPECT_EQ(prompts.boxes.back().text, "Restore Successful.");
  EXPECT_EQ(prompts.finished, 2);
  EXPECT_EQ(leftovers(), "");

  ASSERT_TRUE(Restore_Company(session, file, folder / "Copy.cmf"));
  EXPECT_EQ(session.CompanyFile, "Copy.cmf");
  EXPECT_EQ(memo(), "Acme was here");
}

TEST_F(BackupTest, AnUnsoundBackupLeavesTheCompanyOpenAsItWas) {
  const auto wrong_checksum = backup("checksum.cbk");
  damage(wrong_checksum, 2000);
  std::ofstream(folder / "words.cbk") << "This was never a backup, only some words in a file.";
  std::ofstream(folder / "empty.cbk");
  // Sound as a compressed file, but what it holds is no company.
  clsHuffman().EncodeFile(folder / "Model.mdb", folder / "model.cbk");
  clsHuffman().EncodeFile(folder / "ErrorLog.txt", folder / "log.cbk");

  // Stored as it is, without any checksum: cut short, and with a page of nothing in it.
  std::string file = "HE0\r";
  {
    std::ifstream in(folder / "Acme.cmf", std::ios::binary);
    file.append(std::istreambuf_iterator<char>(in), {});
  }
  std::ofstream(folder / "cut.cbk", std::ios::binary) << file.substr(0, file.size() - 3000);
  std::ofstream(folder / "page.cbk", std::ios::binary) << file.replace(4 + 2 * 4096, 4096, 4096, '\0');

  for (const char* name :
       {"cut.cbk", "page.cbk", "checksum.cbk", "words.cbk", "empty.cbk", "model.cbk", "log.cbk", "missing.cbk"}) {
    EXPECT_THROW(Restore_Company(session, folder / name, folder / "Acme.cmf"), std::exception) << name;
    expect_still_open("Acme was here");
  }
}

TEST_F(BackupTest, AFailureWhileReplacingPutsTheOldFileBack) {
  const auto file = backup();
  remember("newer than the backup");
  Close_Company_File(session);
  fs::copy_file(folder / "Model.mdb", folder / "Damaged.cmf");
  fs::resize_file(folder / "Damaged.cmf", 5000);
  for (const char* target : {"Acme.cmf", "Damaged.cmf", "New.cmf"}) {
    const auto expanded = FileAside::Adopt(Expand_Backup(file, folder / target));
    const auto refuse = [] { throw store::Error(3051, "cannot open"); };
    EXPECT_THROW(Replace_Company(expanded.path(), folder / target, refuse), store::Error) << target;
  }
  EXPECT_EQ(fs::file_size(folder / "Damaged.cmf"), 5000u);
  EXPECT_FALSE(fs::exists(folder / "New.cmf"));
  open("Acme");
  expect_still_open("newer than the backup");
}

TEST_F(BackupTest, ColleaguesGoOnWithTheRestoredCompany) {
  const auto file = backup();
  remember("after the backup");
  Session colleague{folder.path(), Clock::standing_on(Date(2026, 3, 17)), prompts};
  Main(colleague);
  Open_Company_File(colleague, folder / "Acme.cmf");
  Set_Recordsets(colleague);
  auto stale = colleague.dbCompany->OpenTable("CompanyInfo");
  {
    store::Transaction busy(*colleague.dbCompany, "a long save");
    EXPECT_THROW(Restore_Company(session, file, folder / "Acme.cmf"), store::Error);
    expect_still_open("after the backup");
  }
  ASSERT_TRUE(Restore_Company(session, file, folder / "Acme.cmf"));
  EXPECT_EQ(colleague.dbCompany->value("SELECT Memo FROM CompanyInfo").text(), "Acme was here");
  {
    store::Transaction tx(*colleague.dbCompany, "what was on their screen");
    stale->Edit();
    (*stale)["Memo"] = "old";
    EXPECT_THROW(stale->Update(), store::Error) << "they look at a company that is gone";
  }
  store::Transaction tx(*colleague.dbCompany, "next");
  colleague.dbCompany->Execute("UPDATE CompanyInfo SET Memo = 'from the other desk'");
  tx.commit();
  EXPECT_EQ(memo(), "from the other desk");
  EXPECT_EQ(leftovers(), "");
}

TEST_F(BackupTest, ADamagedCompanyAndItsJournalGiveWay) {
  const auto file = backup();
  Close_Company_File(session);
  for (const char* damaged : {"no database at all", ""}) {
    std::ofstream(folder / "Acme.cmf", std::ios::trunc) << damaged;
    fs::copy_file(folder / "Accounts.mdb", folder / "Acme.cmf-journal", fs::copy_options::overwrite_existing);
    ASSERT_TRUE(Restore_Company(session, file, folder / "Acme.cmf")) << damaged;
    EXPECT_EQ(memo(), "Acme was here");
    Close_Company_File(session);
    EXPECT_EQ(leftovers(), "");
  }
  fs::remove(folder / "Acme.cmf");
  std::ofstream(folder / "Acme.cmf-journal") << "left behind";
  ASSERT_TRUE(Restore_Company(session, file, folder / "Acme.cmf"));
  EXPECT_EQ(memo(), "Acme was here");
  EXPECT_EQ(leftovers(), "");
}

TEST_F(BackupTest, StoppingLeavesNothingBehind) {
  const auto file = backup();
  remember("later");
  prompts.stop_at = 5;
  EXPECT_FALSE(Backup_Company(session, folder / "second.cbk"));
  EXPECT_FALSE(fs::exists(folder / "second.cbk"));
  EXPECT_FALSE(Restore_Company(session, file, folder / "Acme.cmf"));
  prompts.stop_at = 1000;
  EXPECT_FALSE(Restore_Company(session, file, folder / "Acme.cmf", [] { return false; }));
  expect_still_open("later");
}

TEST_F(BackupTest, AFailedBackupLeavesTheEarlierOne) {
  const auto file = backup();
  const auto size = fs::file_size(file);
  fs::create_directory(folder / "in the way.cbk");
  std::ofstream(folder / "in the way.cbk/x");
  EXPECT_THROW(Backup_Company(session, folder / "in the way.cbk"), std::exception);
  EXPECT_THROW(Backup_Company(session, folder / "no such folder/acme.cbk"), std::exception);
  EXPECT_EQ(fs::file_size(file), size);
  expect_still_open("Acme was here");
  fs::remove_all(folder / "in the way.cbk");

  EXPECT_FALSE(Backup_Company(session, ""));
  EXPECT_EQ(prompts.boxes.back().title, "Name To Long");
}

}  // namespace
}  // namespace tallymere
