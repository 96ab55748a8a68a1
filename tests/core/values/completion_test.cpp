#include "core/values/completion.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tallymere {
namespace {

const std::vector<std::string> names = {"Auto Expense", "     Fuel", "     fuel, Diesel", "Office Supplies", "Off-site",
                                        "Café Rent",    ""};

std::string_view at(int row) { return names[static_cast<size_t>(row)]; }
Completion complete(std::string_view typed) { return Complete(typed, static_cast<int>(names.size()), at); }
int find(std::string_view text) { return Find_Whole(text, static_cast<int>(names.size()), at); }

TEST(Completion, TakesTheFirstNameInListOrderWhateverItsCaseOrIndentation) {
  struct Case {
    const char* typed;
    int row;
    const char* text;
    const char* proposed;
  };
  for (const Case& c : {Case{"off", 3, "Office Supplies", "ice Supplies"}, Case{"OFF-", 4, "Off-site", "site"},
                        Case{"fuel", 1, "Fuel", ""}, Case{"Fuel,", 2, "fuel, Diesel", " Diesel"},
                        Case{"  fu", 1, "Fuel", "el"}, Case{"CAFÉ", 5, "Café Rent", " Rent"}}) {
    const Completion found = complete(c.typed);
    EXPECT_EQ(found.row, c.row) << c.typed;
    EXPECT_EQ(found.text, c.text);
    EXPECT_EQ(found.text.substr(found.typed), c.proposed);
  }
}

TEST(Completion, LeavesAloneWhatBeginsNoName) {
  for (const char* typed : {"", "   ", "xyz", "uel", "Office Supplies and more"}) {
    const Completion found = complete(typed);
    EXPECT_FALSE(found.found()) << typed;
    EXPECT_EQ(found.text, typed);
    EXPECT_EQ(found.text.substr(found.typed), "");
  }
}

TEST(Completion, FindsAWholeNameOnly) {
  EXPECT_EQ(find("FUEL"), 1);
  EXPECT_EQ(find("     Fuel"), 1);
  EXPECT_EQ(find("fuel, diesel"), 2);
  EXPECT_EQ(find("Offic"), -1);
  EXPECT_EQ(find(""), -1);
}

}  // namespace
}  // namespace tallymere
