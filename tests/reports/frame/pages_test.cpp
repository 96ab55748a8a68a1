#include <cmath>

#include "core/values/text.h"
#include "reports/frame/page_breaks.h"
#include "reports/frame/squeeze.h"
#include "reports/frame/wrapped_text.h"
#include "support/report_books.h"

namespace tallymere {
namespace {

using Strings = std::vector<std::string>;

/// Rows by their roles' letters: h head, d detail, t total, T grand total, - spacer.
ReportTable Rows(std::string_view roles) {
  ReportTable table;
  table.columns = {{.caption = "Name"}};
  int name = 0;
  for (char c : roles)
    if (c == '-')
      table.add_spacer();
    else
      table.add_row(c == 'h'   ? Role::Head
                    : c == 't' ? Role::Total
                    : c == 'T' ? Role::Grand_Total
                               : Role::Detail)
          .text(c == 'h' ? "N" + std::to_string(++name) : "row");
  return table;
}

/// Where pages of so many rows begin: "0", "5 N1 (continued)".
Strings Starts(std::string_view roles, double rows, double continued = 0) {
  const ReportTable table = Rows(roles);
  Strings starts;
  for (const Page_Start& start : Page_Breaks(table, std::vector<double>(roles.size(), 1), {rows, rows, continued}))
    starts.push_back(trim(std::to_string(start.row) + " " + start.continued));
  return starts;
}

TEST(PageBreaks, HeadsAndTotalsKeepToTheirRows) {
  EXPECT_EQ(Starts("", 4), (Strings{"0"}));
  EXPECT_EQ(Starts("ddhddd", 3), (Strings{"0", "2", "5 N1 (continued)"}));
  EXPECT_EQ(Starts("hdddt", 4), (Strings{"0", "3 N1 (continued)"})) << "the last row goes with its total";
  EXPECT_EQ(Starts("hddd-T", 5), (Strings{"0", "3 N1 (continued)"}));
  EXPECT_EQ(Starts("hdddt-hd", 5), (Strings{"0", "6"})) << "no blank row at the top";
  EXPECT_EQ(Starts("hdddt-", 5), (Strings{"0"})) << "no page for a blank row";
  EXPECT_EQ(Starts("hddddddd", 4, 1), (Strings{"0", "4 N1 (continued)", "7 N1 (continued)"}));
  EXPECT_EQ(Starts(std::string(200, 'h'), 50).size(), 4U) << "heads without rows fill their pages";
  EXPECT_EQ(Starts("dd", 0.5), (Strings{"0", "1"})) << "what is higher than a page ends too";
}

TEST(PageBreaks, SayAllTheHeadsAPageGoesOnWith) {
  ReportTable table;
  table.columns = {{.caption = "Name"}};
  table.add_row(Role::Head).text("Expense");
  table.add_row(Role::Group).text("     Rent");
  for (int row = 0; row < 3; ++row) table.add_row().text("Check");
  const auto pages = Page_Breaks(table, std::vector<double>(5, 1), {3, 3, 0});
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_EQ(pages[1].continued, "Expense: Rent (continued)");
}

TEST(WrappedText, BreaksBetweenWordsAndSaysWhatItCuts) {
  const auto letters = [](std::string_view text) {
    return static_cast<double>(std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
  };
  const auto wrapped = [&](std::string_view text, double room, size_t most = 9) {
    return join(Wrapped(text, room, most, letters), "|");
  };
  EXPECT_EQ(wrapped("river rock and mulch", 10), "river rock|and mulch");
  EXPECT_EQ(wrapped("to <-Break Down-> or so", 15), "to|<-Break Down->|or so");
  EXPECT_EQ(wrapped("1 Elm St\r\nRockford, IL", 20), "1 Elm St|Rockford, IL");
  EXPECT_EQ(wrapped("a\n\nb", 9), "a||b") << "a blank line is one";
  EXPECT_EQ(wrapped("     Small Tools and Supplies", 12), "     Small|     Tools|     and|     Supplie|     s");
  EXPECT_EQ(wrapped("Dvořákova", 4), "Dvoř|ákov|a");
  EXPECT_EQ(wrapped("one two three four", 5, 2), "one|two…");
  EXPECT_EQ(wrapped("a\nb\nc", 5, 2), "a|b…");
  EXPECT_EQ(wrapped("exact", 5, 1), "exact");
  EXPECT_EQ(wrapped(std::string(100000, 'x'), 10, 3), "xxxxxxxxxx|xxxxxxxxxx|xxxxxxxxx…");
  EXPECT_EQ(wrapped("", 5), "");
}

TEST(Squeeze, NarrowsWhereTheFewestLinesAreAdded) {
  const std::vector<double> mostly_short = {900, 100, 100, 100, 100, 100, 100, 100};
  const std::vector<double> all_long(8, 900.0);
  const auto squeezed = Squeeze({{900, 100, mostly_short}, {900, 100, all_long}, {300, 300, {}}}, 900 + 300 + 150);
  EXPECT_LT(squeezed.widths[0], 200) << "one text wraps there";
  EXPECT_GE(squeezed.widths[1], 890);
  EXPECT_EQ(squeezed.widths[2], 300) << "figures never give way";
  EXPECT_NEAR(squeezed.widths[0] + squeezed.widths[1], 900 + 150, 1e-6) << "no more than there must be";

  const auto roomy = Squeeze({{900, 100, all_long}}, 1000);
  EXPECT_EQ(roomy.widths[0], 900);
  EXPECT_EQ(roomy.more_lines, 0);
  EXPECT_EQ(Squeeze({{900, 100, all_long}}, 10).widths[0], 100) << "not below the least";
}

}  // namespace
}  // namespace tallymere
