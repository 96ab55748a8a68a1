#include "core/backup/backup.h"

#include <sys/stat.h>

#include "support/backup_company.h"
#include "support/full_disk.h"

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

class BackupTest : public testing::BackupCompany {};

TEST_F(BackupTest, ItsNameIsProposedWithTheDayAndTheBoxSaysWhereItWent) {
  EXPECT_EQ(Proposed_Backup_Name(session), "Acme 2026-03-17.cbk");
  run("UPDATE CompanyInfo SET Name = ?", {"Smith/Jones, \"Inc.\"\n"});
  EXPECT_EQ(Backup_File_Name(Proposed_Backup_Name(session)), "SmithJones, Inc.n 2026-03-17.cbk");
  run("UPDATE CompanyInfo SET Name = ?", {std::string(99, 'x') + "\u00e9" + std::string(999, 'x')});
  EXPECT_EQ(Proposed_Backup_Name(session), std::string(99, 'x') + " 2026-03-17.cbk");

  const auto made = backup();
  EXPECT_EQ(prompts.boxes.back().text, "Backup Successful.");
  EXPECT_NE(prompts.boxes.back().detail.find(made.string()), std::string::npos);
  struct stat now {};
  EXPECT_TRUE(stat(made.c_str(), &now) == 0 && (now.st_mode & 0777) == 0600);
  EXPECT_TRUE(stat(file("Acme.cmf").c_str(), &now) == 0 && (now.st_mode & 0777) == 0600);
}

TEST_F(BackupTest, AFailedBackupLeavesTheEarlierOne) {
  const auto made = backup();
  const auto before = content(made);
  remember("later");
  fs::create_directory(file("in the way.cbk"));
  EXPECT_THROW(Backup_Company(session, file("in the way.cbk")), store::Error);
  EXPECT_THROW(Backup_Company(session, file("no such folder/acme.cbk")), store::Error);
  fs::remove_all(file("in the way.cbk"));
  for (const rlim_t room : {0, 20'000, 300'000}) {
    const testing::FullDisk full(room);
    EXPECT_THROW(Backup_Company(session, made), store::Error) << room;
  }
  EXPECT_EQ(content(made), before);
  expect_still_open("later");

  EXPECT_FALSE(Backup_Company(session, ""));
  EXPECT_EQ(prompts.boxes.back().title, "Name To Long");
}

/// The user was asked about the name that was typed, not about the one it became.
TEST_F(BackupTest, ACleanedNameThatIsTakenIsAskedAbout) {
  const auto taken = backup("Acme v10.cbk");
  const auto before = content(taken);
  remember("later");
  EXPECT_FALSE(Backup_Company(session, file("Acme, v1.0")));
  EXPECT_EQ(prompts.boxes.back().detail, taken);
  EXPECT_EQ(content(taken), before);
}

/// Under any of its names: a backup over the company would be all that is left of it.
TEST_F(BackupTest, ACompanyIsNotReplacedByItsOwnBackup) {
  fs::create_hard_link(file("Acme.cmf"), file("twin.cbk"));
  fs::create_symlink("Acme.cmf", file("link.cbk"));
  fs::create_symlink(folder.path(), file("here.cbk"));
  for (const char* name : {"twin.cbk", "link.cbk", "here.cbk/Acme.cmf"})
    EXPECT_THROW(Backup_Company(session, file(name)), store::Error) << name;
  EXPECT_THROW(Write_Backup(*session.dbCompany, file("Acme.cmf")), store::Error);
  EXPECT_THROW(Write_Backup(*session.dbCompany, file("Accounts.mdb")), store::Error);
  EXPECT_THROW(Write_Backup(*session.dbCompany, file("Model.mdb")), store::Error);
  fs::remove(file("here.cbk"));
  expect_still_open("Acme was here");
}

}  // namespace
}  // namespace tallymere
