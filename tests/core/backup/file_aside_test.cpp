#include "core/backup/file_aside.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>

#include "core/store/error.h"
#include "support/forked.h"
#include "support/temp_folder.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;
using testing::Forked;
using testing::TempFolder;

std::string content(const fs::path& file) {
  std::ifstream in(file);
  return {std::istreambuf_iterator<char>(in), {}};
}
int files_in(const fs::path& folder) {
  return static_cast<int>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}
int mode_of(const fs::path& file) {
  struct stat now {};
  return stat(file.c_str(), &now) == 0 ? static_cast<int>(now.st_mode & 0777) : -1;
}

TEST(FileAside, APlaceThatSomebodyTookMeanwhileStaysTheirs) {
  const TempFolder folder;
  FileAside mine(folder.path());
  std::ofstream(mine.path()) << "mine";
  std::ofstream(folder / "Acme.cmf") << "theirs";
  EXPECT_FALSE(mine.take_free(folder / "Acme.cmf"));
  EXPECT_EQ(content(folder / "Acme.cmf"), "theirs");
  fs::create_symlink(folder / "nowhere", folder / "Link.cmf");
  EXPECT_FALSE(mine.take_free(folder / "Link.cmf"));
  EXPECT_THROW(mine.take_free(folder / "no folder" / "Acme.cmf"), store::Error);

  std::ofstream(Journal_Of(folder / "Beta.cmf")) << "of a file that is gone";
  EXPECT_TRUE(mine.take_free(folder / "Beta.cmf"));
  EXPECT_EQ(content(folder / "Beta.cmf"), "mine");
  EXPECT_FALSE(fs::exists(Journal_Of(folder / "Beta.cmf")));
  EXPECT_EQ(files_in(folder.path()), 3);
}

TEST(FileAside, WhatIsReplacedKeepsItsModeAndWhatIsNewIsPrivate) {
  const TempFolder folder;
  std::ofstream(folder / "old.cbk") << "old";
  chmod((folder / "old.cbk").c_str(), 0640);
  for (const char* name : {"old.cbk", "new.cbk"}) {
    FileAside aside(folder.path());
    std::ofstream(aside.path()) << "now";
    aside.replace(folder / name);
    EXPECT_EQ(content(folder / name), "now");
  }
  EXPECT_EQ(mode_of(folder / "old.cbk"), 0640);
  EXPECT_EQ(mode_of(folder / "new.cbk"), 0600);
  fs::create_directory(folder / "in the way");
  std::ofstream(folder / "in the way" / "x");
  {
    FileAside aside(folder.path());
    EXPECT_THROW(aside.replace(folder / "in the way"), store::Error);
  }
  EXPECT_EQ(files_in(folder.path()), 3);
}

/// What a killed program left goes, wherever it lay; what another one still works on stays.
TEST(FileAside, ASweepKnowsWhatIsInUseFromWhatIsLeft) {
  const TempFolder home, away;
  Forked other([&] {
    static FileAside here(home.path()), there(away.path(), FileMode::Private, home.path());
    for (const auto& path : {here.path(), there.path()}) {
      std::ofstream(path) << "half";
      std::ofstream(Journal_Of(path)) << "half";
    }
  });
  const FileAside mine(home.path());
  Sweep_Asides(home.path());
  EXPECT_EQ(files_in(home.path()), 4) << "a file, its journal, a note of the one away, and mine";
  EXPECT_EQ(files_in(away.path()), 2);
  other.kill_now();
  Sweep_Asides(home.path());
  EXPECT_EQ(files_in(home.path()), 1);
  EXPECT_EQ(files_in(away.path()), 0);
  EXPECT_TRUE(fs::exists(mine.path()));
}

TEST(FileAside, ASweepTouchesNoFileOfTheUsers) {
  const TempFolder folder;
  const char* names[] = {"Acme.cmf.restored", "Acme.cmf.before",  "a.cbk.part",
                         ".tallymere-notes",  ".tallymere-1-2-3", ".tallymere-1-0123456789abcdef-0123456789abcdef",
                         "Acme.cmf-journal",  "-journal"};
  for (const char* name : names) std::ofstream(folder / name) << "the user's";
  fs::create_symlink(folder / "a.cbk.part", folder / ".tallymere-1-0123456789abcdef-fedcba9876543210");
  Sweep_Asides(folder.path());
  EXPECT_EQ(files_in(folder.path()), static_cast<int>(std::size(names)) + 1);
  Sweep_Asides(folder / "no such folder");
}

}  // namespace
}  // namespace tallymere
