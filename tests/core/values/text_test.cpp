#include "core/values/text.h"

#include <gtest/gtest.h>

namespace tallymere {
namespace {

using Parts = std::vector<std::string>;

TEST(Text, FoldsOnlyAsciiCase) {
  EXPECT_EQ(lower("ACME \xC3\x89"
                  "Z[@"),
            "acme \xC3\x89z[@");
  EXPECT_EQ(upper("acme \xC3\xA9z{`"), "ACME \xC3\xA9Z{`");
  EXPECT_TRUE(same_text("Acme", "aCME"));
  EXPECT_FALSE(same_text("Acme", "Acme "));
  EXPECT_FALSE(same_text("[", "{"));  // 32 apart, as letters are
  EXPECT_TRUE(starts_with_same_text("Acme Supply", "ACME"));
  EXPECT_TRUE(starts_with_same_text("Acme", ""));
  EXPECT_FALSE(starts_with_same_text("Ac", "Acme"));
}

TEST(Text, TrimsBlanksNotLetters) {
  EXPECT_EQ(trim(" \t a b\r\n"), "a b");
  EXPECT_EQ(trim(" \t "), "");
  EXPECT_EQ(ltrim("  a "), "a ");
  EXPECT_EQ(ltrim("   "), "");
  EXPECT_EQ(trim("\xC2\xA0x"), "\xC2\xA0x");
}

TEST(Text, SplitsAndJoinsWithoutLoss) {
  EXPECT_EQ(split("a\t\tb\t", "\t"), (Parts{"a", "", "b", ""}));
  EXPECT_EQ(split("", ","), Parts{""});
  EXPECT_EQ(split("a--b-c", "--"), (Parts{"a", "b-c"}));
  EXPECT_EQ(split("abc", ""), Parts{"abc"});
  EXPECT_EQ(join({"a", "", "b"}, ", "), "a, , b");
  EXPECT_EQ(join({}, ","), "");
}

TEST(Text, ReplacesEachOnce) {
  EXPECT_EQ(replace_all("aaa", "aa", "a"), "aa");
  EXPECT_EQ(replace_all("a.b", ".", ".."), "a..b");
  EXPECT_EQ(replace_all("abc", "", "x"), "abc");
  EXPECT_EQ(doubled_quotes("O'Brien's"), "O''Brien''s");
  EXPECT_TRUE(contains("Acme", ""));
  EXPECT_FALSE(contains("Acme", "acme"));
}

TEST(Text, KnowsNumbers) {
  for (const char* text : {"0", " 12 ", "-1.5", "+.5", "5.", "$1,234.50", "-$3", "$-3", "1,23,4"})
    EXPECT_TRUE(is_numeric(text)) << text;
  for (const char* text :
       {"", " ", ".", "$", "-", "--1", "$$1", "1-", "1$", "1.2.3", "1.2,3", ",1", "1 2", "12 monkeys", "8/32", ".-5"})
    EXPECT_FALSE(is_numeric(text)) << text;
}

}  // namespace
}  // namespace tallymere
