#include "core/company/recent.h"

#include <fstream>

#include "support/temp_folder.h"

namespace tallymere {

namespace fs = std::filesystem;

TEST(RecentCompanies, TheNewestComesFirstOnceAndWhatIsGoneDoesNot) {
  const testing::TempFolder folder;
  const auto company = [&](const std::string& name) {
    std::ofstream(folder / name) << "x";
    return folder / name;
  };
  const auto names = [&] {
    std::string all;
    for (const fs::path& path : Recent_Companies(folder.path())) all += path.stem().string() + " ";
    return all;
  };
  EXPECT_EQ(names(), "");
  for (const char* name : {"a.cmf", "École.cmf", "a.cmf", "b.cmf"}) Note_Recent_Company(folder.path(), company(name));
  EXPECT_EQ(names(), "b a École ");
  fs::remove(folder / "a.cmf");
  EXPECT_EQ(names(), "b École ");
  for (int i = 0; i < 20; ++i) Note_Recent_Company(folder.path(), company("c" + std::to_string(i) + ".cmf"));
  EXPECT_EQ(Recent_Companies(folder.path()).size(), 6u);
  EXPECT_EQ(Recent_Companies(folder.path())[0].stem(), "c19");
}

TEST(RecentCompanies, AFolderThatCannotBeWrittenOrAStrangeFileStopsNobody) {
  const testing::TempFolder folder;
  Note_Recent_Company(folder / "nowhere", folder / "a.cmf");
  fs::create_directory(folder / "Recent.txt");
  EXPECT_TRUE(Recent_Companies(folder.path()).empty());
  Note_Recent_Company(folder.path(), folder / "a.cmf");
  EXPECT_TRUE(Recent_Companies(folder.path()).empty());
}

}  // namespace tallymere
