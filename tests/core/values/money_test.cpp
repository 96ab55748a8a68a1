#include "core/values/money.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace tallymere {
namespace {

constexpr auto most = Money::from_units(std::numeric_limits<std::int64_t>::max());
constexpr auto least = Money::from_units(std::numeric_limits<std::int64_t>::min());

TEST(Money, ReadsWhatPeopleType) {
  const std::vector<std::pair<std::string, std::int64_t>> cases = {{"$1,234.50", 12345000},
                                                                   {"(12)", -120000},
                                                                   {" 7 ", 70000},
                                                                   {"-3.5", -35000},
                                                                   {".5", 5000},
                                                                   {"5.", 50000},
                                                                   {"1,234", 12340000},
                                                                   {"0.0001", 1},
                                                                   {"-$2", -20000},
                                                                   {"$-2", -20000},
                                                                   {"+2", 20000},
                                                                   {"( $1,000.25 )", -10002500},
                                                                   {"-0", 0},
                                                                   {"007", 70000},
                                                                   {"12,345,678", 123456780000},
                                                                   {"922337203685477.5807", most.units()},
                                                                   {"-922337203685477.5808", least.units()}};
  for (const auto& [typed, units] : cases) {
    const auto read = Money::parse(typed);
    ASSERT_TRUE(read) << typed;
    EXPECT_EQ(read->units(), units) << typed;
  }
}

TEST(Money, RefusesWhatIsNoAmount) {
  for (const char* typed : {"",
                            "  ",
                            ".",
                            "$",
                            "-",
                            "()",
                            "(-5)",
                            "(8/32)",
                            "12 monkeys",
                            "monkeys 12",
                            "1,23,4",
                            ",123",
                            "1234,567",
                            "1,2345",
                            "1,",
                            "1.2.3",
                            "1.234,5",
                            "--3",
                            "$$3",
                            "-$-3",
                            "3-",
                            "1 2",
                            "1.00005",
                            "1e5",
                            "0x10",
                            "nan",
                            "5%",
                            "(5",
                            "5)",
                            "((5))",
                            "922337203685477.5808",
                            "-922337203685477.5809",
                            "99999999999999999999999",
                            "\xE2\x82\xAC"
                            "5"})
    EXPECT_FALSE(Money::parse(typed)) << typed;
  EXPECT_FALSE(Money::parse(std::string_view("5\0", 2)));
}

TEST(Money, ItsPlainTextReadsBack) {
  const std::vector<std::pair<Money, std::string>> cases = {{Money(), "0"},
                                                            {Money::dollars(1234, 50), "1234.5"},
                                                            {Money::dollars(-100), "-100"},
                                                            {Money::from_units(-1), "-0.0001"},
                                                            {Money::from_units(10203), "1.0203"},
                                                            {most, "922337203685477.5807"},
                                                            {least, "-922337203685477.5808"}};
  for (const auto& [amount, text] : cases) {
    EXPECT_EQ(amount.to_text(), text);
    EXPECT_EQ(Money::parse(text), amount);
  }
}

TEST(Money, DollarsAndCentsShareOneSign) {
  EXPECT_EQ(Money::dollars(3, 50).units(), 35000);
  EXPECT_EQ(Money::dollars(-3, 50).units(), -35000);
  EXPECT_EQ(Money::dollars(0, -5).units(), -500);
  EXPECT_THROW(Money::dollars(3, -50), std::invalid_argument);
  EXPECT_THROW(Money::dollars(std::numeric_limits<std::int64_t>::max() / 100), std::overflow_error);
}

TEST(Money, NeverWrapsAround) {
  const Money unit = Money::from_units(1);
  EXPECT_THROW(most + unit, std::overflow_error);
  EXPECT_THROW(least - unit, std::overflow_error);
  EXPECT_THROW(-least, std::overflow_error);
  EXPECT_THROW(least.abs(), std::overflow_error);
  EXPECT_THROW(most.times(2), std::overflow_error);
  EXPECT_THROW(unit.times(1e19), std::overflow_error);
  EXPECT_THROW(most.share(most, unit), std::overflow_error);
  EXPECT_EQ(most.rounded_to_cents(), most - Money::from_units(7));
  for (const double outside : {922337203685477.7, -922337203685477.7, 1e300, HUGE_VAL, std::nan("")})
    EXPECT_THROW(Money::from_double(outside), std::overflow_error) << outside;
  EXPECT_EQ(least + most, -unit);
  EXPECT_LT(least, most);
}

TEST(Money, ConvertsDoublesHalfToEven) {
  const std::vector<std::pair<double, std::int64_t>> cases = {
      {0.1, 1000},      {-0.1, -1000},    {0.00005, 0}, {0.00015, 2}, {0.00025, 2},      {-0.00015, -2},
      {0.000050001, 1}, {1.00005, 10000}, {1e-300, 0},  {5e-324, 0},  {0.1 + 0.2, 3000}, {1e14, 1000000000000000000},
      {-0.0, 0}};
  for (const auto& [value, units] : cases) EXPECT_EQ(Money::from_double(value).units(), units) << value;
  EXPECT_EQ(Money::dollars(-1234, 56).to_double(), -1234.56);
}

TEST(Money, TimesRoundsOnceHalfToEven) {
  struct Case {
    std::int64_t units;
    double factor;
    std::int64_t product;
  };
  for (const auto& [units, factor, product] :
       std::vector<Case>{{1000, 0.0725, 72},   // 72.5 units: the even one below
                         {3000, 0.0725, 218},  // 217.5: the even one above
                         {-3000, 0.0725, -218},
                         {1, -0.5, 0},
                         {3, 0.5, 2},
                         {1000000, 1e-40, 0},
                         {most.units(), 1, most.units()},
                         {least.units(), 1, least.units()},
                         {least.units(), 0.5, least.units() / 2},
                         {9007199254740993, 3, 27021597764222979},  // no double holds either amount
                         {1, 1e18, 1000000000000000000},
                         {0, 1e300, 0}})
    EXPECT_EQ(Money::from_units(units).times(factor).units(), product) << units << " * " << factor;
  EXPECT_THROW(Money().times(HUGE_VAL), std::overflow_error);
}

TEST(Money, SharesExactlyUntilTheLastStep) {
  struct Case {
    std::int64_t amount, part, whole, share;
  };
  for (const auto& [amount, part, whole, share] :
       std::vector<Case>{{1000000, 1, 3, 333333},
                         {1000000, 2, 3, 666667},
                         {1, 1, 2, 0},
                         {3, 1, 2, 2},
                         {-3, 1, 2, -2},
                         {3, -1, -2, 2},
                         {5, 1, -2, -2},
                         {most.units(), most.units(), most.units(), most.units()},
                         {least.units(), least.units(), least.units(), least.units()}})
    EXPECT_EQ(Money::from_units(amount).share(Money::from_units(part), Money::from_units(whole)).units(), share)
        << amount << " * " << part << " / " << whole;
  EXPECT_THROW(Money::dollars(1).share(Money::dollars(1), Money()), std::domain_error);
}

TEST(Money, RoundsHalfACentAwayFromZero) {
  const std::vector<std::pair<std::int64_t, std::int64_t>> cases = {
      {49, 0}, {50, 100}, {-49, 0}, {-50, -100}, {149, 100}, {250, 300}, {10000, 10000}, {-10050, -10100}};
  for (const auto& [units, cents] : cases)
    EXPECT_EQ(Money::from_units(units).rounded_to_cents().units(), cents) << units;
}

}  // namespace
}  // namespace tallymere
