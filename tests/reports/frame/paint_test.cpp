#include <filesystem>
#include <fstream>
#include <sstream>

#include "reports/frame/report_file.h"
#include "support/child_process.h"
#include "support/places.h"
#include "support/report_books.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;
using testing::ChildProcess;
using testing::D;
using Kind = ReportColumn::Kind;

/// tallymere-paint as the command line calls it.
struct Painter {
  testing::TempFolder folder;
  fs::path table = folder.path() / "table", pdf = folder.path() / "out.pdf";

  int paint(const fs::path& to) {
    const fs::path program = fs::path(testing::cli_program).parent_path() / "tallymere-paint";
    ChildProcess child({program.string(), table.string(), to.string()});
    return child.wait_for_end();
  }
  void hand_over(const std::string& text) { std::ofstream(table, std::ios::binary) << text; }
  /// The pages of this table; -1 when it came to nothing.
  int pages_of(const ReportTable& report) {
    std::ostringstream text;
    Write_Report_File(report, text);
    hand_over(text.str());
    if (paint(pdf) != 0) return -1;
    std::ostringstream painted;
    painted << std::ifstream(pdf, std::ios::binary).rdbuf();
    const std::string bytes = painted.str();
    int pages = 0;
    for (size_t at = 0; (at = bytes.find("/Type /Page\n", at)) != std::string::npos; ++at) ++pages;
    return pages;
  }
};

ReportTable Table(int rows, int text_columns, const std::string& text) {
  ReportTable table;
  table.heading = {"List", "Acme", "1/1/2026 - 6/15/2026"};
  table.columns = {{.kind = Kind::Margin}};
  for (int column = 0; column < text_columns; ++column) table.columns.push_back({.caption = "Name"});
  table.columns.push_back({.caption = "Amount", .kind = Kind::Money});
  for (int row = 0; row < rows; ++row) {
    auto line = table.add_row().skip();
    for (int column = 0; column < text_columns; ++column) line.text(text);
    line.money(D(row));
  }
  return table;
}

TEST(Paint, LongWideAndEmptyTablesFindTheirPages) {
  Painter painter;
  EXPECT_EQ(painter.pages_of(ReportTable()), 1);
  EXPECT_EQ(painter.pages_of(Table(3, 1, "short")), 1);
  const int upright = painter.pages_of(Table(400, 1, "short"));
  EXPECT_GT(upright, 7);
  EXPECT_LT(upright, 12);
  EXPECT_GT(painter.pages_of(Table(400, 3, "a memo of many words that wraps to several lines on any page")), upright);
  EXPECT_GT(painter.pages_of(Table(3, 30, "nothing shrinks so far")), 2);
  EXPECT_EQ(painter.pages_of(Table(1, 1, std::string(20000, 'x'))), 1);  // taller than a page, but it ends
}

TEST(Paint, NamesWithoutRowsTakeNoPageEach) {
  ReportTable table;
  table.heading = {"List", "Acme", "2026", "Cash basis", "How it counts."};
  table.columns = {{.caption = "Name"}, {.caption = "Amount", .kind = Kind::Money}};
  for (int name = 0; name < 200; ++name) table.add_row(Role::Head).text("Name " + std::to_string(name));
  table.add_row(Role::Grand_Total).text("TOTAL").money(D(0));
  Painter painter;
  EXPECT_LE(painter.pages_of(table), 8);
}

TEST(Paint, ALineBreakInATextIsOneOnPaperToo) {
  Painter painter;
  const int joined = painter.pages_of(Table(400, 1, "Oak, IL"));
  EXPECT_GT(painter.pages_of(Table(400, 1, "Oak\r\nIL")), joined * 3 / 2);
}

TEST(Paint, RefusesWhatItCannotReadOrWriteAndLeavesNothing) {
  Painter painter;
  painter.hand_over("tallymere-report 2\nheading\tA\tB\tC\n");
  EXPECT_EQ(painter.paint(painter.pdf), 1);
  EXPECT_FALSE(fs::exists(painter.pdf));
  ASSERT_EQ(painter.pages_of(Table(3, 1, "short")), 1);
  EXPECT_EQ(painter.paint(painter.folder.path() / "no" / "such.pdf"), 1);
}

}  // namespace
}  // namespace tallymere
