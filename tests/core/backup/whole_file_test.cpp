#include "core/backup/whole_file.h"

#include <gtest/gtest.h>

#include <fstream>
#include <stdexcept>

#include "core/store/error.h"
#include "support/temp_folder.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;

std::string content(const fs::path& file) {
  std::ifstream in(file);
  return {std::istreambuf_iterator<char>(in), {}};
}

TEST(WholeFile, APlaceThatSomebodyTookMeanwhileStaysTheirs) {
  const testing::TempFolder folder;
  const FileAside mine(folder / "Acme.cmf", ".new");
  std::ofstream(mine.path()) << "mine";
  std::ofstream(folder / "Acme.cmf") << "theirs";
  EXPECT_FALSE(Move_To_Free_Place(mine.path(), folder / "Acme.cmf"));
  EXPECT_EQ(content(folder / "Acme.cmf"), "theirs");
  fs::create_symlink(folder / "nowhere", folder / "Link.cmf");
  EXPECT_FALSE(Move_To_Free_Place(mine.path(), folder / "Link.cmf"));

  std::ofstream(Journal_Of(folder / "Beta.cmf")) << "of a file that is gone";
  EXPECT_TRUE(Move_To_Free_Place(mine.path(), folder / "Beta.cmf"));
  EXPECT_EQ(content(folder / "Beta.cmf"), "mine");
  EXPECT_FALSE(fs::exists(Journal_Of(folder / "Beta.cmf")));
  EXPECT_THROW(Move_To_Free_Place(folder / "missing", folder / "Gamma.cmf"), fs::filesystem_error);
}

TEST(WholeFile, NothingStaysAsideButWhatWasHandedOn) {
  const testing::TempFolder folder;
  fs::path kept;
  {
    FileAside lost(folder / "a.cbk", ".copy"), handed(folder / "b.cbk", ".copy");
    for (const auto* aside : {&lost, &handed}) std::ofstream(aside->path()) << "x";
    std::ofstream(Journal_Of(lost.path())) << "x";
    kept = handed.hand_on();
  }
  EXPECT_TRUE(fs::exists(kept));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 1);
}

TEST(WholeFile, ADocumentIsWrittenOverAnotherOnlyWhenItIsWhole) {
  const testing::TempFolder folder;
  const fs::path report = folder / "report.csv", link = folder / "latest.csv";
  Write_Whole(report, [](std::ostream& out) { out << "old"; });
  fs::create_symlink(report, link);
  EXPECT_THROW(Write_Whole(report,
                           [](std::ostream& out) {
                             out << "half";
                             throw std::runtime_error("no more");
                           }),
               std::runtime_error);
  EXPECT_EQ(content(report), "old");
  Write_Whole(link, [](std::ostream& out) { out << "new"; });
  EXPECT_EQ(content(report), "new");
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_THROW(Write_Whole(folder / "no folder" / "a.csv", [](std::ostream& out) { out << "x"; }), store::Error);
  Write_Whole("/dev/null", [](std::ostream& out) { out << "x"; });
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 2);
}

}  // namespace
}  // namespace tallymere
