#include "core/backup/restore.h"

#include "core/backup/clsHuffman.h"
#include "core/store/recordset.h"
#include "support/backup_company.h"
#include "support/full_disk.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;

class RestoreTest : public testing::BackupCompany {
 protected:
  void write(const std::string& name, const std::string& text) { std::ofstream(file(name), std::ios::binary) << text; }
  std::string why_not(const fs::path& from, const std::string& target) {
    try {
      restore(from, target);
      return "restored";
    } catch (const std::exception& fault) {
      return fault.what();
    }
  }
};

TEST_F(RestoreTest, WhatIsRestoredIsTheMomentOfTheBackup) {
  const auto made = backup();
  EXPECT_EQ(prompts.labels, std::vector<std::string>{"Backup"});
  remember("after the backup");
  int went = 0;
  ASSERT_TRUE(Restore_Company(
      session, {.backup = made, .target = file("Acme.cmf"), .ask = false, .let_go = [&] { return ++went, true; }}));
  EXPECT_EQ(went, 1);
  EXPECT_EQ(memo(), "Acme was here");
  EXPECT_EQ(prompts.boxes.front().text, "Backup Successful.");
  EXPECT_EQ(prompts.boxes.back().text, "Restore Successful.");
  EXPECT_EQ(prompts.boxes.back().detail, "");
  EXPECT_EQ(prompts.finished, 2);
  EXPECT_EQ(leftovers(), "");

  ASSERT_TRUE(restore(made, "Copy.cmf"));
  EXPECT_EQ(session.CompanyFile, "Copy.cmf");
  EXPECT_EQ(Main_Title(session), "Copy - Main Display");
  EXPECT_EQ(memo(), "Acme was here");
  EXPECT_FALSE(session.dbCompany->value("SELECT 1 FROM sqlite_schema WHERE name = 'StoreSeal'").integer());
}

/// The answer is No: nobody said that the company may go. Where none is, nothing is asked.
TEST_F(RestoreTest, ACompanyIsReplacedOnlyWhenThatIsAgreed) {
  const auto made = backup();
  remember("after the backup");
  bool went = false;
  const auto let_go = [&] { return went = true; };
  EXPECT_FALSE(Restore_Company(session, {.backup = made, .target = file("Acme.cmf"), .let_go = let_go}));
  EXPECT_FALSE(went);
  EXPECT_EQ(prompts.boxes.back().text, "Replace \"Acme\" by the backup?");
  EXPECT_NE(prompts.boxes.back().detail.find("3/17/2026 holds Acme."), std::string::npos)
      << prompts.boxes.back().detail;
  expect_still_open("after the backup");
  make("Beta");
  Leave_Company(session);
  EXPECT_FALSE(Restore_Company(session, {.backup = made, .target = file("Beta.cmf")}));
  EXPECT_FALSE(session.company_open());
  write("empty.cmf", "");
  EXPECT_TRUE(Restore_Company(session, {.backup = made, .target = file("empty.cmf")}));
  EXPECT_TRUE(Restore_Company(session, {.backup = made, .target = file("new.cmf")}));
}

TEST_F(RestoreTest, ABackupWithoutASealIsRestoredWithThatSaid) {
  clsHuffman().EncodeFile(file("Acme.cmf"), file("bare.cbk"));
  remember("later");
  ASSERT_TRUE(restore(file("bare.cbk")));
  EXPECT_EQ(memo(), "Acme was here");
  EXPECT_NE(prompts.boxes.back().detail.find("no seal"), std::string::npos);
  EXPECT_FALSE(Restore_Company(session, {.backup = file("bare.cbk"), .target = file("Acme.cmf")}));
  EXPECT_NE(prompts.boxes.back().detail.find("no seal"), std::string::npos);
}

TEST_F(RestoreTest, AnUnsoundBackupLeavesTheCompanyOpenAsItWas) {
  auto bytes = content(backup("checksum.cbk"));
  bytes[bytes.size() - 2000] = static_cast<char>(bytes[bytes.size() - 2000] ^ 0x55);
  write("checksum.cbk", bytes);
  write("words.cbk", "This was never a backup, only some words in a file.");
  write("empty.cbk", "");
  write("nothing.cbk", "HE0\r");
  write("sqlite.cbk", std::string("HE0\rSQLite format 3\0", 20));
  // Sound as a compressed file, but what it holds is no company.
  clsHuffman().EncodeFile(file("Model.mdb"), file("model.cbk"));
  clsHuffman().EncodeFile(file("ErrorLog.txt"), file("log.cbk"));
  // Stored as it is, without any checksum or seal: cut short, and with a page of nothing in it.
  std::string stored = "HE0\r" + content(file("Acme.cmf"));
  write("cut.cbk", stored.substr(0, stored.size() - 3000));
  write("page.cbk", stored.replace(4 + 2 * 4096, 4096, 4096, '\0'));

  for (const char* name : {"cut.cbk", "page.cbk", "checksum.cbk", "words.cbk", "empty.cbk", "nothing.cbk", "sqlite.cbk",
                           "model.cbk", "log.cbk", "missing.cbk"}) {
    EXPECT_THROW(restore(file(name)), std::exception) << name;
    expect_still_open("Acme was here");
  }
}

TEST_F(RestoreTest, AFailureWhileReplacingPutsTheOldFileBack) {
  const auto made = backup();
  remember("newer than the backup");
  Leave_Company(session);
  fs::copy_file(file("Acme.cmf"), file("Damaged.cmf"));
  fs::resize_file(file("Damaged.cmf"), 5000);
  const auto refuse = [] { throw store::Error(3051, "cannot open"); };
  for (const char* target : {"Acme.cmf", "Damaged.cmf", "New.cmf"}) {
    auto proven = Prove_Backup(made, file(target));
    ASSERT_TRUE(proven);
    EXPECT_THROW(Replace_Company(proven->file, file(target), refuse), store::Error) << target;
  }
  EXPECT_EQ(fs::file_size(file("Damaged.cmf")), 5000u);
  EXPECT_FALSE(fs::exists(file("New.cmf")));
  open("Acme");
  for (const rlim_t room : {0, 100'000, 420'000}) {
    const testing::FullDisk full(room);
    EXPECT_THROW(restore(made), std::exception) << room;
  }
  expect_still_open("newer than the backup");
}

/// Neither is left half open: not the one that was there, nor the one that was to come.
TEST_F(RestoreTest, WhereTheOldCompanyCannotBeOpenedAgainNoneIsOpen) {
  const auto made = backup();
  const auto spoil = [&] {
    Close_Company_File(session);
    fs::resize_file(file("Acme.cmf"), 5000);
    fs::create_directory(Journal_Of(file("Beta.cmf")));  // so that nothing can be put there
    write("Beta.cmf", "");
    return true;
  };
  EXPECT_THROW(Restore_Company(session, {.backup = made, .target = file("Beta.cmf"), .let_go = spoil}), store::Error);
  EXPECT_FALSE(session.company_open());
  EXPECT_FALSE(session.dbCompany);
  EXPECT_EQ(Main_Title(session), "Main Display");
}

TEST_F(RestoreTest, ColleaguesGoOnWithTheRestoredCompany) {
  const auto made = backup();
  remember("after the backup");
  Session colleague{folder.path(), Clock::standing_on(Date(2026, 3, 17)), prompts};
  Main(colleague);
  Open_Company_File(colleague, file("Acme.cmf"));
  Set_Recordsets(colleague);
  auto stale = colleague.dbCompany->OpenTable("CompanyInfo");
  {
    store::Transaction busy(*colleague.dbCompany, "a long save");
    const auto patience = std::exchange(store::Connection::lock_patience, std::chrono::milliseconds(100));
    EXPECT_THROW(restore(made), store::Error);
    store::Connection::lock_patience = patience;
    expect_still_open("after the backup");
  }
  ASSERT_TRUE(restore(made));
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

/// Empty, cut short, its first page gone: with the journal that belongs to it.
TEST_F(RestoreTest, ADamagedCompanyAndItsJournalGiveWay) {
  const auto made = backup();
  Leave_Company(session);
  const std::string whole = content(file("Acme.cmf"));
  const std::string damages[] = {"", std::string(8192, '\0'), whole.substr(0, 5000), whole.substr(0, 100),
                                 std::string(4096, '?') + whole.substr(4096)};
  for (const std::string& damaged : damages) {
    write("Acme.cmf", damaged);
    fs::copy_file(file("Accounts.mdb"), file("Acme.cmf-journal"), fs::copy_options::overwrite_existing);
    ASSERT_EQ(why_not(made, "Acme.cmf"), "restored") << damaged.size();
    EXPECT_EQ(memo(), "Acme was here");
    Leave_Company(session);
    EXPECT_EQ(leftovers(), "");
  }
  fs::remove(file("Acme.cmf"));
  write("Acme.cmf-journal", "left behind");
  ASSERT_TRUE(restore(made));
  EXPECT_EQ(memo(), "Acme was here");
  EXPECT_EQ(leftovers(), "");
}

TEST_F(RestoreTest, NothingThatIsNoCompanyGivesWay) {
  const auto made = backup();
  make("Beta");
  open("Acme");
  write("notes.txt", "not a company at all, only words, and more of them than any header has: no, no, no, no.");
  { store::Connection(file("other.db.txt"), store::Connection::Mode::Create).execute("CREATE TABLE a (b)"); }
  fs::create_symlink("Beta.cmf", file("link.txt"));
  fs::create_directory(file("folder.txt"));
  const std::pair<const char*, const char*> cases[] = {{"notes.txt", "no company"},
                                                       {"other.db.txt", "no company"},
                                                       {"Accounts.mdb", "Tallymere itself needs"},
                                                       {"Model.mdb", "itself needs"},
                                                       {"ErrorLog.txt", "itself needs"},
                                                       {"link.txt", "is a link"},
                                                       {"folder.txt", "is no file"},
                                                       {"acme.cbk", "the file to restore from"},
                                                       {"nowhere/A.cmf", "no such folder"}};
  for (const auto& [target, why] : cases) {
    const bool is_file = fs::is_regular_file(file(target));
    const std::string before = is_file ? content(file(target)) : "", said = why_not(made, target);
    EXPECT_NE(said.find(why), std::string::npos) << target << ": " << said;
    EXPECT_EQ(is_file ? content(file(target)) : "", before) << target;
  }
  fs::create_hard_link(made, file("again.cbk"));
  EXPECT_NE(why_not(made, "again.cbk").find("the file to restore from"), std::string::npos);
  EXPECT_NE(why_not(file("Acme.cmf"), "Acme.cmf").find("the file to restore from"), std::string::npos);
  EXPECT_NE(why_not(file("Acme.cmf"), "Beta.cmf").find("no backup"), std::string::npos);
  EXPECT_EQ(why_not(made, "Beta.cmf"), "restored");
}

TEST_F(RestoreTest, StoppingLeavesNothingBehind) {
  const auto made = backup();
  remember("later");
  prompts.stop_at = 5;
  EXPECT_FALSE(Backup_Company(session, file("second.cbk")));
  EXPECT_FALSE(fs::exists(file("second.cbk")));
  EXPECT_FALSE(restore(made));
  prompts.stop_at = 1000;
  EXPECT_FALSE(Restore_Company(
      session, {.backup = made, .target = file("Acme.cmf"), .ask = false, .let_go = [] { return false; }}));
  expect_still_open("later");
}

}  // namespace
}  // namespace tallymere
