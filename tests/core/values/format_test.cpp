#include "core/values/format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace tallymere {
namespace {

TEST(Format, ShowsAmountsUnderTheProgramsMasks) {
  struct Case {
    const char* amount;
    const char* mask;
    const char* text;
  };
  for (const auto& [amount, mask, text] :
       std::vector<Case>{{"1234.5", "0.00", "1234.50"},
                         {"-1", "$0.00", "-$1.00"},
                         {"0.005", "0.00", "0.01"},
                         {"-0.005", "0.00", "-0.01"},
                         {"0.0049", "0.00", "0.00"},
                         {"-0.0049", "$0.00", "$0.00"},
                         {"99.995", "0.00", "100.00"},
                         {"-12.3", "$0.00;($0.00)", "($12.30)"},
                         {"12.3", "$0.00;($0.00)", "$12.30"},
                         {"-0.001", "$0.00;($0.00)", "$0.00"},
                         {"0", "$0.00;($0.00);\"none\"", "none"},
                         {"-0.001", "0.00;(0.00);-", "-"},
                         {"-5", "0.00;;none", "-5.00"},
                         {"0", "0.00;(0.00);", "0.00"},
                         {"1234567.891", "###,###,###.00", "1,234,567.89"},
                         {"1234567890", "###,###,###.00", "1,234,567,890.00"},
                         {"999.995", "###,###,###.00", "1,000.00"},
                         {"-100", "###,###,###.00", "-100.00"},
                         {"0.5", "###,###,###.00", ".50"},
                         {"0", "###,###,###.00", ".00"},
                         {"1234.5", "$###,###,###.00", "$1,234.50"},
                         {"-1234567", "$#,###,###.00;($#,###,###.00)", "($1,234,567.00)"},
                         {"5", "#,##0", "5"},
                         {"5", "0,000", "0,005"},
                         {"7", "0000", "0007"},
                         {"12345", "000", "12345"},
                         {"2.5", "0", "3"},
                         {"1.5", "0.0###", "1.5"},
                         {"0.0725", "0.0%", "7.3%"},
                         {"0.5", "0%", "50%"},
                         {"3", "0 \"00;\"", "3 00;"},
                         {"3", "\\#0", "#3"},
                         {"922337203685477.5807", "0.00", "922337203685477.58"},
                         {"-922337203685477.5808", "0.0000", "-922337203685477.5808"},
                         {"922337203685477.5807", "0.0%", "92233720368547758.1%"}})
    EXPECT_EQ(Format(Money::parse(amount).value(), mask), text) << amount << " under " << mask;
}

TEST(Format, RoundsDoublesAsWritten) {
  struct Case {
    double value;
    const char* mask;
    const char* text;
  };
  for (const auto& [value, mask, text] : std::vector<Case>{{1.005, "0.00", "1.01"},
                                                           {-1.005, "0.00", "-1.01"},
                                                           {2.675, "0.00", "2.68"},
                                                           {0.285, "0%", "29%"},
                                                           {0.0725, "0.00%", "7.25%"},
                                                           {1e22, "#,##0", "10,000,000,000,000,000,000,000"},
                                                           {1e-320, "0.00", "0.00"},
                                                           {-1e-9, "0.00", "0.00"},
                                                           {-0.0, "0.00", "0.00"},
                                                           {0.05, "0.0", "0.1"},
                                                           {0.04, "0.0", "0.0"},
                                                           {0.009, "0.0", "0.0"},
                                                           {9.99, "0.0", "10.0"},
                                                           {std::nan(""), "0.00", "nan"},
                                                           {-std::numeric_limits<double>::infinity(), "0.00", "-inf"}})
    EXPECT_EQ(Format(value, mask), text) << value << " under " << mask;
}

TEST(Format, ShowsDates) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"m/d/yy", "3/5/06"},         {"m/d/yyyy", "3/5/2006"}, {"mm/dd/yyyy", "03/05/2006"},
      {"yyyy-mm-dd", "2006-03-05"}, {"yyyymmdd", "20060305"}, {"mmmm d, yyyy", "March 5, 2006"},
      {"mmm yyyy", "Mar 2006"},     {"\"day\" d", "day 5"},   {"\\dd", "d5"},
      {"ddd, m/d", "Sun, 3/5"},     {"dddd", "Sunday"}};
  for (const auto& [mask, text] : cases) EXPECT_EQ(Format(Date(2006, 3, 5), mask), text) << mask;
  EXPECT_EQ(Format(Date(100, 12, 31), "mm/dd/yyyy"), "12/31/0100");
  EXPECT_EQ(Format(Date(2026, 6, 15), long_date_mask), "Monday, June 15, 2026");
}

TEST(Format, AmountsShowCentsAndOneMinus) {
  EXPECT_EQ(Money_Text(Money::from_units(2246671499)), "224,667.15");
  EXPECT_EQ(Money_Text(Money::from_units(-50)), "-0.01");
  EXPECT_EQ(Money_Text(Money::from_units(-49)), "0.00");
  EXPECT_EQ(Dollar_Text(Money::dollars(-1234, 50)), "-$1,234.50");
  EXPECT_EQ(Format(Money::from_units(125), price_mask), "0.0125");
}

}  // namespace
}  // namespace tallymere
