#include "core/backup/whole_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <stdexcept>

#include "core/store/error.h"
#include "support/full_disk.h"
#include "support/temp_folder.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;

std::string content(const fs::path& file) {
  std::ifstream in(file);
  return {std::istreambuf_iterator<char>(in), {}};
}
void write(const fs::path& place, const std::string& text) {
  Write_Whole(place, [&](std::ostream& out) { out << text; });
}
int files_in(const fs::path& folder) {
  return static_cast<int>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

TEST(WholeFile, ADocumentIsWrittenOverAnotherOnlyWhenItIsWhole) {
  const testing::TempFolder folder;
  const fs::path report = folder / "report.csv";
  write(report, "old");
  const auto breaks_off = [](std::ostream& out) {
    out << "half";
    throw std::runtime_error("no more");
  };
  EXPECT_THROW(Write_Whole(report, breaks_off), std::runtime_error);
  {
    const testing::FullDisk full(10'000);
    EXPECT_THROW(write(report, std::string(20'000, 'x')), store::Error);
    EXPECT_THROW(Write_Whole_By_Name(report, [](const fs::path&) { throw std::runtime_error("no"); }),
                 std::runtime_error);
  }
  EXPECT_EQ(content(report), "old");
  chmod(report.c_str(), 0604);
  write(report, "new");
  EXPECT_EQ(content(report), "new");
  struct stat now {};
  EXPECT_TRUE(stat(report.c_str(), &now) == 0 && (now.st_mode & 0777) == 0604);
  write("/dev/null", "x");
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
  EXPECT_EQ(files_in(folder.path()), 1);
}

/// By whatever name: what is refused stays as it was, and the words say why.
TEST(WholeFile, AnOutputGoesOverNothingThatIsNotItsToReplace) {
  const testing::TempFolder folder;
  const std::string database = std::string("SQLite format 3\0", 16) + "another program's";
  const std::pair<const char*, std::string> files[] = {
      {"open.txt", "in use"}, {"other.cmf", database}, {"kept.csv", "kept"}, {"mine.csv", "mine"}};
  for (const auto& [name, text] : files) std::ofstream(folder / name, std::ios::binary) << text;
  const std::ifstream in_use(folder / "open.txt");
  fs::create_hard_link(folder / "open.txt", folder / "also open.csv");
  fs::create_symlink("mine.csv", folder / "link.csv");
  fs::create_symlink("nowhere.csv", folder / "dangling.csv");
  fs::create_directory(folder / "folder.csv");
  chmod((folder / "kept.csv").c_str(), 0444);
  struct Case {
    const char *name, *why;
  };
  const Case cases[] = {{"open.txt", "works on"},
                        {"also open.csv", "works on"},
                        {"other.cmf", "database"},
                        {"link.csv", "is a link to 'mine.csv'"},
                        {"dangling.csv", "is a link"},
                        {"folder.csv", "is a folder"},
                        {"no/such.csv", "no such folder"},
                        {"a\nb.csv", "control characters"},
                        {"\u0085.csv", "control characters"},
                        {"", "names no file"},
                        {"kept.csv", geteuid() == 0 ? nullptr : "kept from writing"}};
  for (const Case& c : cases) {
    if (!c.why) continue;  // the administrator may write everything
    try {
      write(folder / c.name, "a report");
      FAIL() << c.name;
    } catch (const store::Error& fault) {
      EXPECT_EQ(fault.number, store::errors::bad_path) << c.name;
      EXPECT_NE(std::string(fault.what()).find(c.why), std::string::npos) << fault.what();
    }
  }
  for (const auto& [name, text] : files) EXPECT_EQ(content(folder / name), text) << name;
  EXPECT_EQ(files_in(folder.path()), 8);
}

}  // namespace
}  // namespace tallymere
