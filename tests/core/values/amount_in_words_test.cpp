#include "core/values/amount_in_words.h"

#include "core/values/text.h"

namespace tallymere {
namespace {

NumberWords English() {
  NumberWords words;
  Load_Number_Words(words);
  return words;
}

std::string Without_Filler(std::string line) {
  while (line.ends_with(" *")) line.resize(line.size() - 2);
  while (line.starts_with("* ")) line.erase(0, 2);
  return line;
}

struct Sample {
  const char* typed;
  const char* words;
};
// Worked out by hand along the digits: scale words bring a blank on both sides, a tens word without a unit
// one behind.
constexpr Sample samples[] = {
    {"0.05", " and 05/100"},
    {"1", "One and 00/100"},
    {"10", "Ten and 00/100"},
    {"19.99", "Nineteen and 99/100"},
    {"20", "Twenty  and 00/100"},
    {"21.10", "Twenty-One and 10/100"},
    {"100", "One hundred  and 00/100"},
    {"101", "One hundred One and 00/100"},
    {"110.5", "One hundred Ten and 50/100"},
    {"340", "Three hundred Forty  and 00/100"},
    {"999.09", "Nine hundred Ninety-Nine and 09/100"},
    {"1000", "One thousand  and 00/100"},
    {"1012", "One thousand Twelve and 00/100"},
    {"12000", "Twelve thousand  and 00/100"},
    {"20000", "Twenty  thousand  and 00/100"},
    {"70305", "Seventy  thousand Three hundred Five and 00/100"},
    {"115000", "One hundred Fifteen thousand  and 00/100"},
    {"100000", "One hundred  thousand  and 00/100"},
    {"1000000", "One million  and 00/100"},
    {"1000100", "One million One hundred  and 00/100"},
    {"11016018", "Eleven million Sixteen thousand Eighteen and 00/100"},
    {"21474836.47", "Twenty-One million Four hundred Seventy-Four thousand Eight hundred Thirty-Six and 47/100"},
};

TEST(AmountInWords, FollowsTheDigitsOnTheCheckAndOnItsWindow) {
  const NumberWords words = English();
  for (const Sample& sample : samples) {
    EXPECT_EQ(Without_Filler(Amount_In_Words(words, *Money::parse(sample.typed))), sample.words) << sample.typed;
    EXPECT_EQ(Without_Filler(Check_Amount_In_Words(words, sample.typed).words), sample.words) << sample.typed;
  }
}

TEST(AmountInWords, FillsThePrintedLineOnTheRightAndTheWindowsOnTheLeft) {
  const NumberWords words = English();
  // 11 characters need 56 pairs; 12 need 56 as well and end one character later.
  EXPECT_EQ(Amount_In_Words(words, Money::dollars(0, 5)).size(), 123u);
  EXPECT_TRUE(Amount_In_Words(words, Money::dollars(0, 5)).starts_with(" and 05/100 * *"));
  EXPECT_TRUE(Check_Amount_In_Words(words, "0.05").words.ends_with("* *  and 05/100"));
  EXPECT_EQ(Check_Amount_In_Words(words, "1").words.size(), 124u);
}

TEST(AmountInWords, PrintsWhatHasNoWordsInFigures) {
  const NumberWords words = English();
  EXPECT_EQ(Without_Filler(Amount_In_Words(words, Money::dollars(999'999'999, 99))),
            "Nine hundred Ninety-Nine million Nine hundred Ninety-Nine thousand Nine hundred Ninety-Nine and "
            "99/100");
  EXPECT_EQ(Without_Filler(Amount_In_Words(words, Money::dollars(1'000'000'000, 7))), "1,000,000,000 and 07/100");
}

TEST(AmountInWords, TidiesWhatWasTyped) {
  const NumberWords words = English();
  const std::pair<const char*, const char*> cases[] = {{"5", "5.00"},
                                                       {"5.5", "5.50"},
                                                       {".5", ".50"},
                                                       {"999.99", "999.99"},
                                                       {"1000", "1,000.00"},
                                                       {"1,234.5", "1,234.50"},
                                                       {"123456", "123,456.00"},
                                                       {"$1,234,567.8", "1,234,567.80"},
                                                       {" 12345678 ", "12,345,678.00"},
                                                       {"-1500", "-1500.00"}};
  for (const auto& [typed, tidied] : cases) {
    auto amount = Check_Amount_In_Words(words, typed);
    EXPECT_FALSE(amount.fault) << typed;
    EXPECT_EQ(amount.text, tidied);
    EXPECT_EQ(amount.value, Money::parse(typed));
  }
  auto empty = Check_Amount_In_Words(words, "");
  EXPECT_TRUE(empty.text.empty() && empty.words.empty() && !empty.fault);
}

TEST(AmountInWords, RefusesWhatTheWindowCannotHold) {
  const NumberWords words = English();
  const Box decimals{"Max number of decimal places is 2", "To many Decimals", Icon::Information};
  const Box large{"Number is to large to compute", "Number to large", Icon::Critical};
  const std::pair<const char*, Box> cases[] = {
      {"1.005", decimals}, {"99999999999.125", decimals}, {"21474836.48", large},         {"21,474,837", large},
      {"twelve", large},   {"1.2.3", decimals},           {"99999999999999999999", large}};
  for (const auto& [typed, box] : cases) {
    auto amount = Check_Amount_In_Words(words, typed);
    ASSERT_TRUE(amount.fault) << typed;
    EXPECT_EQ(amount.fault->box.text, box.text) << typed;
    EXPECT_EQ(amount.fault->box.title, box.title);
    EXPECT_EQ(amount.fault->box.icon, box.icon);
    EXPECT_TRUE(amount.text.empty() && amount.words.empty());
  }
}

}  // namespace
}  // namespace tallymere
