#include "reports/frame/renderers.h"

#include <fstream>
#include <sstream>

#include "core/store/error.h"
#include "reports/frame/report_file.h"
#include "support/child_process.h"
#include "support/places.h"
#include "support/report_books.h"

namespace tallymere {
namespace {

using testing::ChildProcess;
using testing::D;
using testing::TempFolder;
using Kind = ReportColumn::Kind;

/// One cell of every kind, and texts that a careless renderer breaks.
ReportTable Motley() {
  ReportTable table;
  table.heading = {"A \"Report\"", "Acme\tCo \\ Sons", "1/1/2026 - 6/15/2026"};
  table.columns = {{.kind = Kind::Margin},
                   {.caption = "Name"},
                   {.caption = "Date", .kind = Kind::Date},
                   {.caption = "Qty", .kind = Kind::Number},
                   {.caption = "Amount", .kind = Kind::Money, .mask = "$0.00"}};
  table.groups = {{"Jan 2026", 3, 2}};
  table.looks = Looks::List;
  table.add_row(Role::Head, To_Report("PrintAcctRep", "1SS")).skip().text("Müller, \"Bob\"\r\nLine 2");
  table.add_row(Role::Detail, To_Transaction("Bill", 12))
      .skip()
      .text("a\\tb<&>")
      .value(Date(2026, 3, 5))
      .value(2.5)
      .money(Money::from_units(-12345));
  table.add_row().skip(3).value(int64_t{4}).money(D(1000));
  table.add_row().skip().value(true);
  table.add_spacer();
  table.set_cell_style(2, 4, "Underline");
  return table;
}

template <typename Write>
std::string Written(const ReportTable& table, Write write) {
  std::ostringstream out;
  write(table, out);
  return out.str();
}

TEST(Renderers, TextLinesUpWhatTheEyeSees) {
  EXPECT_EQ(Written(Motley(), Write_Text),
            "A \"Report\"\nAcme\tCo \\ Sons\n1/1/2026 - 6/15/2026\n\n"
            "Name                   Date      Jan 2026 Qty  Jan 2026 Amount\n"
            "Müller, \"Bob\"  Line 2\n"
            "a\\tb<&>                3/5/2026           2.5           -$1.23\n"
            "                                            4         $1000.00\n"
            "True\n"
            "\n");
}

TEST(Renderers, CsvQuotesAndKeepsPlainValues) {
  EXPECT_EQ(Written(Motley(), Write_Csv),
            "Name,Date,Jan 2026 Qty,Jan 2026 Amount\r\n"
            "\"Müller, \"\"Bob\"\"\r\nLine 2\",,,\r\n"
            "a\\tb<&>,3/5/2026,2.5,-1.2345\r\n"
            ",,4,1000\r\n"
            "True,,,\r\n"
            ",,,\r\n");
}

TEST(Renderers, WhatASpreadsheetWouldComputeStaysText) {
  ReportTable table;
  table.columns = {{.caption = "Name"}};
  for (auto text : {"=1+1", "  +A1", "@SUM(A1)", "-x\"", "+1 (555) 010-2000", "-12.50", "-3.5%", "a=b"})
    table.add_row().text(text);
  EXPECT_EQ(Written(table, Write_Csv),
            "Name\r\n'=1+1\r\n'  +A1\r\n'@SUM(A1)\r\n\"'-x\"\"\"\r\n'+1 (555) 010-2000\r\n-12.50\r\n-3.5%\r\na=b\r\n");
  EXPECT_EQ(Tab_Separated(table, {0, 5}), "'=1+1\r\n-12.50\r\n");
}

TEST(Renderers, TheClipboardTakesAllOrTheChosenRows) {
  EXPECT_EQ(Tab_Separated(Motley(), {1, 2}), "a\\tb<&>\t3/5/2026\t2.5\t-1.2345\r\n\t\t4\t1000\r\n");
  EXPECT_TRUE(
      Tab_Separated(Motley()).starts_with("Name\tDate\tJan 2026 Qty\tJan 2026 Amount\r\nMüller, \"Bob\"  Line 2\t"));
}

TEST(ReportFile, IsReadBackAsItWas) {
  const std::string written = Written(Motley(), Write_Report_File);
  std::istringstream in(written);
  ReportTable back = Read_Report_File(in);
  EXPECT_EQ(Written(back, Write_Report_File), written);
  EXPECT_EQ(Written(back, Write_Csv), Written(Motley(), Write_Csv));
  EXPECT_EQ(back.heading.company, "Acme\tCo \\ Sons");
  EXPECT_EQ(back.style(2, 4), "Underline");
  EXPECT_EQ(back.role(0), Role::Head);
  EXPECT_EQ(back.looks, Looks::List);
  EXPECT_EQ(back.columns[4].mask, "$0.00");
}

TEST(ReportFile, WhatIsCutShortOrForeignIsRefused) {
  const std::string written = Written(Motley(), Write_Report_File);
  for (const std::string& bad :
       {std::string(), written.substr(0, written.size() - 4), "tallymere-report 1\nend\n" + written,
        std::string("tallymere-report 2\nrow\thed\nend\n"), std::string("tallymere-report 2\nrow\tdetail\tq1\nend\n"),
        std::string("tallymere-report 2\ncolumn\tmoney\nend\n"),
        std::string("tallymere-report 2\nrow\tdetail\tt\\\nend\n"),
        std::string("tallymere-report 2\nrow\tdetail\ty2026-02-30\nend\n")}) {
    std::istringstream in(bad);
    EXPECT_THROW(Read_Report_File(in), store::Error) << bad;
  }
}

/// A member of a workbook, as any unpacker gives it.
std::string Unzipped(const std::filesystem::path& file, const std::string& member) {
  ChildProcess unzip({"/usr/bin/unzip", "-p", file.string(), member});
  return unzip.rest();
}

TEST(Xlsx, HasRealNumbersAndDates) {
  TempFolder folder;
  const auto file = folder.path() / "report.xlsx";
  Write_Xlsx(Motley(), file);
  const std::string sheet = Unzipped(file, "xl/worksheets/sheet1.xml");
  for (auto expected : {"<v>-1.2345</v>", "<v>46086</v>", "<v>2.5</v>", "a\\tb&lt;&amp;&gt;", "Müller, \"Bob\"",
                        "A \"Report\"", ">Jan 2026<", "t=\"b\""})
    EXPECT_NE(sheet.find(expected), std::string::npos) << expected << " in " << sheet;
  const std::string styles = Unzipped(file, "xl/styles.xml");
  for (auto expected : {"formatCode=\"$0.00\"", "m/d/yyyy", "<u/>"})
    EXPECT_NE(styles.find(expected), std::string::npos) << expected;
}

TEST(Xlsx, GroupsStandInTheFirstRowCaptionsInTheSecondAndTheHeadingOnEveryPage) {
  TempFolder folder;
  const auto file = folder.path() / "report.xlsx";
  const auto sheet_of = [&](const ReportTable& table) {
    Write_Xlsx(table, file);
    return Unzipped(file, "xl/worksheets/sheet1.xml");
  };
  ReportTable plain;
  plain.heading = {"Profit & Loss", "Acme", "2026", "Cash basis"};
  plain.columns = {{.caption = "Name"}, {.caption = "Qty"}};
  plain.add_row().text("Bolt").value(int64_t{7});
  plain.add_row().text("Bolt _x0041_");
  const std::string sheet = sheet_of(plain);
  for (auto expected :
       {"<mergeCell ref=\"A1:B1\"/>", "Profit &amp; Loss\nAcme\n2026", "<c r=\"B3\"><v>7</v>",
        "&amp;CProfit &amp;&amp; Loss   Acme   2026<", "&amp;LCash basis&amp;R", ">Bolt _x005F_x0041_<"})
    EXPECT_NE(sheet.find(expected), std::string::npos) << expected << " in " << sheet;
  EXPECT_NE(sheet_of(Motley()).find("<mergeCell ref=\"C1:D1\"/>"), std::string::npos);

  plain.heading.title = "Profit And Loss Previous Year Comparioson";
  EXPECT_NE(sheet_of(plain).find(">&amp;C" + plain.heading.title + "   Acme   2026<"), std::string::npos);
  plain.heading.company = std::string(500, '&');
  EXPECT_NE(sheet_of(plain).find("&amp;&amp;   2026<"), std::string::npos) << "shortened, it is not left out";
}

TEST(Xlsx, WhereItCannotBeWrittenNothingIsLeft) {
  TempFolder folder;
  EXPECT_THROW(Write_Xlsx(Motley(), folder.path() / "no such folder" / "a.xlsx"), store::Error);
  std::filesystem::create_directory(folder.path() / "taken.xlsx");
  EXPECT_THROW(Write_Xlsx(Motley(), folder.path() / "taken.xlsx"), store::Error);
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "taken.xlsx.new"));
  ReportTable wide;
  wide.columns.resize(16385);  // a spreadsheet ends one column before; none is left out unsaid
  EXPECT_THROW(Write_Xlsx(wide, folder.path() / "wide.xlsx"), store::Error);
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "wide.xlsx"));
}

TEST(ReportTable, KeepsValuesTextsAndLooksApart) {
  ReportTable table = Motley();
  EXPECT_EQ(table.text(1, 4), "-1.2345");
  EXPECT_EQ(table.for_the_eye(1, 4), "-$1.23");
  EXPECT_EQ(table.value(1, 4), store::Value(Money::from_units(-12345)));
  EXPECT_TRUE(table.value(0, 4).is_null());
  EXPECT_TRUE(table.value(3, 9).is_null());
  table.columns[4].mask.clear();
  EXPECT_EQ(table.for_the_eye(1, 4), "-1.23");
  EXPECT_EQ(table.for_the_eye(2, 4), "1,000.00");
  EXPECT_EQ(table.style(2, 3), "Small");
  ReportTable copy = table;
  table = ReportTable();
  EXPECT_EQ(copy.text(0, 1), "Müller, \"Bob\"\r\nLine 2");
}

TEST(ReportTable, FindsItsCellsHoweverWideAndEmptyItsRowsAre) {
  ReportTable table;
  for (int row = 0; row < 130; ++row) {
    auto line = table.add_row();
    line.skip(row).value(int64_t{row}).skip(63).text("far").text("");
  }
  table.add_row();
  for (int row = 0; row < 130; ++row)
    for (int column = 0; column < 200; ++column) {
      const std::string expected = column == row ? std::to_string(row) : column == row + 64 ? "far" : "";
      ASSERT_EQ(table.text(row, column), expected) << row << ", " << column;
    }
  EXPECT_TRUE(table.value(130, 0).is_null());
}

TEST(ReportCommand, PrintsWhatTheBuilderBuilds) {
  testing::Books books;
  books.add("Sales", "Income");
  books.post({1, "Deposit", Date(2025, 5, 1), "Sales", {}, D(12)});
  auto run = [&](std::vector<std::string> words) {
    words.insert(words.begin(), {testing::cli_program, "report"});
    for (auto word : {"--company", books.session->CompanyPath.c_str(), "--folder", books.folder.path().c_str()})
      words.push_back(word);
    ChildProcess child(words);
    std::string said = child.rest();
    return std::to_string(child.wait_for_end()) + ":" + said;
  };
  EXPECT_TRUE(run({"pl", "--range", "Last Year", "--today", "6/15/2026", "--format", "csv"})
                  .starts_with("0:,Amount\r\nIncome,\r\n     Sales,12\r\nTotal Income,12\r\n"));
  EXPECT_NE(
      run({"AcctRep", "--category", "sales", "--from", "1/1/2025", "--title", "Ours"}).find("0:Ours\nAcme\n1/1/2025"),
      std::string::npos);
  EXPECT_EQ(run({"AcctRep", "--category", "none"}), "2:");
  EXPECT_EQ(run({"PL", "--range", "Someday"}), "2:");
  EXPECT_EQ(run({"PL", "--name", "Zoe"}), "2:");  // no option of this report
  EXPECT_EQ(run({"PL", "--format", "xlsx"}), "2:");
  const auto out = books.folder.path() / "out.xlsx";
  EXPECT_EQ(run({"PL", "--range", "Last Year", "--today", "6/15/2026", "--format", "xlsx", "--out", out.string()}),
            "0:");
  EXPECT_NE(Unzipped(out, "xl/worksheets/sheet1.xml").find("<v>12</v>"), std::string::npos);
}

}  // namespace
}  // namespace tallymere
