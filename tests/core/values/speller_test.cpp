#include "core/values/speller.h"

#include <gtest/gtest.h>

#include <fstream>

#include "support/temp_folder.h"

namespace tallymere {
namespace {

/// A dictionary of a few words, one of them with a letter beyond ASCII.
std::unique_ptr<Speller> Small_Dictionary(const std::filesystem::path& folder) {
  std::ofstream(folder / "en_US.aff") << "SET UTF-8\nTRY esiartnolcdu\nWORDCHARS '\n";
  std::ofstream(folder / "en_US.dic") << "5\nsteel\nbolt\nfor\ncafé\ndon't\n";
  return Speller::Open({folder / "nowhere", folder});
}

TEST(Speller, FindsWordsItDoesNotKnowAndLeavesCodesAlone) {
  testing::TempFolder folder;
  const auto speller = Small_Dictionary(folder.path());
  ASSERT_TRUE(speller);
  const std::string text = "Steel blot M8 PVC for 'café', don't 3x5 stel";
  const auto first = speller->next(text, 0);
  ASSERT_TRUE(first);
  EXPECT_EQ(first->text + "@" + std::to_string(first->at), "blot@6");
  const auto second = speller->next(text, first->at + first->text.size());
  ASSERT_TRUE(second);
  EXPECT_EQ(second->text, "stel");
  EXPECT_EQ(speller->suggestions("stel").front(), "steel");
  EXPECT_FALSE(speller->next(text, second->at + 4));
  speller->take("blot");
  EXPECT_EQ(speller->next(text, 0)->text, "stel");
  EXPECT_FALSE(speller->next("", 0));
}

TEST(Speller, WithoutADictionaryThereIsNone) {
  testing::TempFolder folder;
  EXPECT_FALSE(Speller::Open({folder.path(), folder.path() / "nowhere"}));
  std::ofstream(folder.path() / "en_US.aff") << "SET ISO8859-1\n";
  std::ofstream(folder.path() / "en_US.dic") << "1\nsteel\n";
  EXPECT_FALSE(Speller::Open({folder.path()})) << "in letters that are not ours";
}

}  // namespace
}  // namespace tallymere
