#include "core/values/reckon.h"

#include <gtest/gtest.h>

namespace tallymere {
namespace {

TEST(Reckon, SmallReckoningsAreAmountsAndAllElseIsNot) {
  struct Case {
    const char* typed;
    const char* amount;  ///< "": none
  };
  for (const Case& c : {Case{"12+8", "20"},
                        {" 12 + 8 ", "20"},
                        {"$1,200.50-0.25", "1200.25"},
                        {"3*19.95", "59.85"},
                        {"10/3", "3.33"},
                        {"2+3*4", "14"},
                        {"-5+3", "-2"},
                        {"12--3", "15"},
                        {"0.0001+0.0002", "0.0003"},
                        {"(12)", "-12"},
                        {"7", "7"},
                        {"12+", ""},
                        {"+", ""},
                        {"", ""},
                        {"a+1", ""},
                        {"12+eight", ""},
                        {"1/0", ""},
                        {"1**2", ""},
                        {"1e9+1", ""},
                        {"900000000000000*900000000000000", ""},
                        {"3/15/2026", "0"}})
    EXPECT_EQ(Reckon(c.typed) ? Reckon(c.typed)->to_text() : "", c.amount) << c.typed;
}

}  // namespace
}  // namespace tallymere
