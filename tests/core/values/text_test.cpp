#include "core/values/text.h"

#include <gtest/gtest.h>

#include <random>

#include "core/values/letters.h"

namespace tallymere {
namespace {

using Parts = std::vector<std::string>;

TEST(Text, CaseCountsInNoScript) {
  EXPECT_TRUE(same_text("Acme", "aCME"));
  EXPECT_FALSE(same_text("Acme", "Acme "));
  EXPECT_FALSE(same_text("[", "{"));  // 32 apart, as letters are
  EXPECT_TRUE(same_text("École Ÿ Straße Žižek", "éCOLE ÿ STRAẞE žIŽEK"));
  EXPECT_TRUE(same_text("ΑΘΗΝΑΣ МОСКВА", "αθηνας москва"));
  for (auto [one, other] : {std::pair("é", "e"), {"×", "÷"}, {"Þ", "ß"}, {"ā", "ă"}, {"ǆ", "ǅx"}, {"\xC3", "\xE3"}})
    EXPECT_FALSE(same_text(one, other)) << one << other;
  EXPECT_EQ(folded("ACME É Z[@ \xFF"), "acme é z[@ \xFF");
  EXPECT_EQ(upper("acme éz{`"), "ACME éZ{`");
}

TEST(Text, ABeginningIsAsLongAsItStandsThere) {
  EXPECT_TRUE(starts_with_same_text("Acme Supply", "ACME"));
  EXPECT_TRUE(starts_with_same_text("Acme", ""));
  EXPECT_FALSE(starts_with_same_text("Ac", "Acme"));
  EXPECT_EQ(same_text_start("Kelvin", "\u212Ael"), 3u) << "three bytes were typed for one";
  EXPECT_EQ(same_text_start("ÉCOLE", "éc"), 3u);
  EXPECT_EQ(same_text_start("É", "\xC3"), std::nullopt) << "half a letter is none";
}

/// An order that is none would make an index that finds nothing.
TEST(Text, TheOrderOfTextsIsAnOrderWhateverTheirBytes) {
  std::mt19937 random(20260115);
  std::vector<std::string> texts = {"", "a", "A", "é", "É", "z", "ſ", "s", "\xED\xA0\x80", "\xF4\x90\x80\x80"};
  while (texts.size() < 120) {
    std::string& text = texts.emplace_back();
    for (size_t length = random() % 5; text.size() < length;)
      text += "aAzZ\xC3\xA9\x89\xE1\xBA\x9E\xF0\xFF"[random() % 12];
  }
  for (const auto& a : texts)
    for (const auto& b : texts) {
      const int order = compare_same_text(a, b);
      EXPECT_EQ(order, -compare_same_text(b, a));
      EXPECT_EQ(order == 0, folded(a) == folded(b));
      for (const auto& c : texts)
        if (order <= 0 && compare_same_text(b, c) <= 0) {
          ASSERT_LE(compare_same_text(a, c), 0) << a << b << c;
        }
    }
}

TEST(Text, PatternsMatchWholeTexts) {
  for (auto [pattern, text] : {std::pair("%", ""),
                               {"é%", "ÉCOLE"},
                               {"%le", "école"},
                               {"_cole", "École"},
                               {"%a%b", "xaabab"},
                               {"50\\%%", "50% off"},
                               {"\\_", "_"},
                               {"a\\\\", "A\\"}})
    EXPECT_TRUE(like_text(pattern, text, '\\')) << pattern << text;
  for (auto [pattern, text] : {std::pair("", "a"),
                               {"_", ""},
                               {"e%", "École"},
                               {"%a%b", "xab "},
                               {"50\\%", "50x"},
                               {"\\_", "a"},
                               {"a%", "b"},
                               {"__", "é"}})
    EXPECT_FALSE(like_text(pattern, text, '\\')) << pattern << text;
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
