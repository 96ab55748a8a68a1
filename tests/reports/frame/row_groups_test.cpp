#include "reports/frame/row_groups.h"

#include "support/report_books.h"

namespace tallymere {
namespace {

using testing::D;
using Kind = ReportColumn::Kind;
using Strings = std::vector<std::string>;

/// A table of rows written as role letter, label and amount: "h Income", "d      Rent|5", "T Total|0", "- ".
ReportTable Table(const Strings& rows) {
  ReportTable table;
  table.columns = {{.kind = Kind::Margin}, {}, {.caption = "Amount", .kind = Kind::Money}};
  const std::map<char, Role> roles = {{'d', Role::Detail},   {'h', Role::Head},  {'g', Role::Group},
                                      {'s', Role::Subtotal}, {'t', Role::Total}, {'T', Role::Grand_Total},
                                      {'x', Role::Detail}};
  for (const std::string& row : rows) {
    if (row[0] == '-') {
      table.add_spacer();
      continue;
    }
    const size_t bar = std::min(row.find('|'), row.size());
    const RowKey key = row[0] == 'x' ? To_Transaction("Check", 7) : RowKey{};
    auto line = table.add_row(roles.at(row[0]), key).skip().text(row.substr(2, bar - 2));
    if (bar < row.size()) line.money(D(std::stoi(row.substr(bar + 1))));
  }
  return table;
}

TEST(RowGroups, RowsStandUnderTheHeadsThatAreOpen) {
  EXPECT_EQ(Heads_Over(Table({"h Assets", "h      Cash", "d           Bank|5", "t      Total Cash|5", "d      Other|1",
                              "t Total Assets|6", "-", "t Gross|6", "h Ann", "x Check|1", "h Bob", "x Check|1", "-",
                              "T TOTAL|2"})),
            (std::vector<int>{-1, 0, 1, 1, 0, 0, -1, -1, -1, 8, -1, 10, 10, -1}));
}

TEST(RowGroups, WhatShowsNothingGoesWithItsTotalAndItsBlankRow) {
  const auto left = [](const Strings& rows) { return testing::Lines(Without_Empty_Groups(Table(rows))); };
  EXPECT_EQ(
      left({"h Income", "d      Sales|0", "d           Repairs|5", "d           Parts|0", "d      Fees|0",
            "t Total Income|5", "-", "h Other", "d      Interest|0", "t Total Other|0", "-", "t Gross|5", "T Net|5"}),
      (Strings{"Income", "     Sales|0", "          Repairs|5", "Total Income|5", "", "Gross|5", "Net|5"}))
      << "a parent stays with its child, a total that closes no section always";
  EXPECT_EQ(left({"h Ann", "h Bob", "x Check|0", "h Eve", "-", "T TOTAL|0"}),
            (Strings{"Bob", "Check|0", "", "TOTAL|0"}))
      << "a check over nothing is a row of the ledger";
  EXPECT_EQ(left({"h Cost", "g      Fuel", "s      Fuel|0", "g      Rent", "x Check|9", "s      Rent|9", "g      Tips",
                  "s      Tips|3", "-", "t Total Cost|12"}),
            (Strings{"Cost", "     Rent", "Check|9", "     Rent|9", "     Tips", "     Tips|3", "", "Total Cost|12"}));
  EXPECT_EQ(
      left({"h Assets", "h      Cash", "d           Bank|0", "t      Total Cash|0", "t Total Assets|0", "T Net|0"}),
      (Strings{"Net|0"}));
  EXPECT_EQ(left({"d Ann|0", "d Bob|4"}), (Strings{"Bob|4"}));
}

TEST(RowGroups, OfManyColumnsAlikeTheIdleOnesGo) {
  ReportTable table;
  table.columns = {{.kind = Kind::Margin}, {}};
  for (auto name : {"Ann", "Bob", "Total"}) table.columns.push_back({.caption = name, .kind = Kind::Money});
  table.columns[2].may_go = table.columns[3].may_go = true;
  table.add_row().skip().text("Sales").money(D(5)).money(D(0)).money(D(5));
  EXPECT_TRUE(Has_Empty_Groups(table));
  table = Without_Empty_Groups(table);
  EXPECT_EQ(testing::Lines(table), (Strings{"Sales|5|5"}));
  EXPECT_EQ(table.columns[3].caption, "Total");
  EXPECT_FALSE(Has_Empty_Groups(table));
}

}  // namespace
}  // namespace tallymere
