#include "payroll/calc/exact.h"

#include "payroll/calc/rates.h"

namespace tallymere {
namespace {

TEST(Exact, HalvesOfACentAreHalves) {
  // 1,922.50 at 6.2 percent and 0.35 at 1.45 percent: as doubles the first is a hair over, the second under.
  EXPECT_EQ((Exact::of(0.062) * Exact(Money::dollars(1922, 50))).cell(), "119.20");
  int ties = 0;
  for (int cents = 1; cents <= 200'000; ++cents) {
    const Money wage = Money::from_units(int64_t{cents} * 100);
    const int64_t tenth_mills = int64_t{cents} * 145;  // of a cent, in ten-thousandths
    const int64_t expected = (tenth_mills + 5000) / 10000;
    ASSERT_EQ(Read_Rate("1.45%").of(wage).cents(), Money::from_units(expected * 100)) << cents;
    ties += tenth_mills % 10000 == 5000;
  }
  EXPECT_GT(ties, 50);
  EXPECT_EQ((-Exact::of(0.005)).cell(), "-0.01");
  EXPECT_EQ((-Exact::of(0.0049)).cell(), "0.00");
  EXPECT_EQ(Exact::of(0.00005).money(), Money());  // half to even
  EXPECT_EQ(Exact::of(0.00015).money(), Money::from_units(2));
}

TEST(Exact, DividesToTheEighteenthDecimal) {
  EXPECT_EQ((Exact(1) / 3).text(), "0.333333333333333333");
  EXPECT_EQ((Exact(2) / 3).text(), "0.666666666666666667");
  EXPECT_EQ((Exact(-50000) / 26).text(4), "-1923.0769");
  EXPECT_EQ((Exact(Money::dollars(612, 34)) / Exact::of(37.5) * Exact::of(37.5)).cell(), "612.34");
  EXPECT_EQ(Exact(0).text(), "0");
  EXPECT_EQ((Exact(1) / 3).text(2), "0.33");
  EXPECT_THROW(Exact(1) / 0, std::domain_error);
  Exact large(INT64_MAX);
  EXPECT_THROW(large * large, std::overflow_error);
}

TEST(Rates, ReadWhatPeopleType) {
  struct Case {
    std::string text;
    Rate::Kind kind;
    std::string value, fraction;
  };
  using enum Rate::Kind;
  for (const auto& [text, kind, value, fraction] : std::vector<Case>{{"4%", Percent, "4", "0.04"},
                                                                     {" 3.35 %", Percent, "3.35", "0.0335"},
                                                                     {"-85", Amount, "-85", "-85"},
                                                                     {"0.006", Amount, "0.006", "0.006"},
                                                                     {"$1,200.50", Amount, "1200.5", "1200.5"},
                                                                     {"-$ .5", Amount, "-0.5", "-0.5"},
                                                                     {"", Empty, "0", "0"},
                                                                     {"  ", Empty, "0", "0"},
                                                                     {"half", Amount, "0", "0"},
                                                                     {"%", Percent, "0", "0"},
                                                                     {"1.2.3", Amount, "1.2", "1.2"},
                                                                     {"85 dollars", Amount, "85", "85"}}) {
    const Rate rate = Read_Rate(text);
    EXPECT_EQ(rate.kind, kind) << text;
    EXPECT_EQ(rate.value.text(), value) << text;
    EXPECT_EQ(rate.fraction().text(), fraction) << text;
  }
  EXPECT_TRUE(Is_Suspicious_Rate("3.35"));
  EXPECT_FALSE(Is_Suspicious_Rate("3.35%"));
  EXPECT_FALSE(Is_Suspicious_Rate("0.0335"));
}

}  // namespace
}  // namespace tallymere
