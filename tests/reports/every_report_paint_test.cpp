#include <fstream>
#include <regex>
#include <sstream>

#include "reports/frame/renderers.h"
#include "reports/frame/report_file.h"
#include "support/child_process.h"
#include "support/pdf_text.h"
#include "support/places.h"
#include "support/random_books.h"

// What holds for every report of the table of reports, also for the next one.
namespace tallymere {
namespace {

using testing::Books;
using testing::ChildProcess;
using testing::RandomBooks;
using Strings = std::vector<std::string>;

std::string Written(const ReportTable& table, void (*write)(const ReportTable&, std::ostream&)) {
  std::ostringstream out;
  write(table, out);
  return out.str();
}

/// The records of a CSV file, read by its rules alone.
std::vector<Strings> Read_Csv(const std::string& text) {
  std::vector<Strings> records(1, Strings(1));
  bool quoted = false;
  for (size_t at = 0; at < text.size(); ++at) {
    const char c = text[at];
    std::string& cell = records.back().back();
    if (quoted && c == '"' && at + 1 < text.size() && text[at + 1] == '"')
      cell += text[at++];
    else if (c == '"')
      quoted = !quoted;
    else if (!quoted && c == ',')
      records.back().emplace_back();
    else if (!quoted && c == '\n')
      records.emplace_back(1);
    else if (quoted || c != '\r')
      cell += c;
  }
  records.pop_back();
  return records;
}

std::string Unescaped(std::string text) {
  for (const auto& [escape, letter] : std::map<std::string, std::string>{{"&lt;", "<"},
                                                                         {"&gt;", ">"},
                                                                         {"&quot;", "\""},
                                                                         {"&apos;", "'"},
                                                                         {"&#39;", "'"},
                                                                         {"&amp;", "&"},
                                                                         {"ﬁ", "fi"},
                                                                         {"ﬂ", "fl"}})
    text = replace_all(text, escape, letter);
  return text;
}

/// The cells of a workbook's rows, left to right; dates are numbers of days, flags 0 or 1.
std::vector<Strings> Read_Sheet(const std::filesystem::path& file, size_t columns) {
  ChildProcess unzip({"/usr/bin/unzip", "-p", file.string(), "xl/worksheets/sheet1.xml"});
  const std::string sheet = unzip.rest();
  static const std::regex form(
      R"re(<c r="([A-Z]+)([0-9]+)"[^>]*?(?:/>|>(?:<v>([^<]*)</v>|<is><t[^>]*>([^<]*)</t></is>)</c>))re");
  std::vector<Strings> rows;
  for (std::sregex_iterator at(sheet.begin(), sheet.end(), form), end; at != end; ++at) {
    size_t column = 0;
    for (const char letter : (*at)[1].str()) column = column * 26 + static_cast<size_t>(letter - 'A' + 1);
    const size_t row = std::stoul((*at)[2]);
    if (rows.size() < row) rows.resize(row, Strings(columns));
    if (column <= columns) rows[row - 1][column - 1] = (*at)[3].matched ? (*at)[3].str() : Unescaped((*at)[4]);
  }
  return rows;
}

std::string In_Sheet(const store::Value& value) {
  if (const auto* day = std::get_if<Date>(&value.content()))
    return std::to_string(days_between(Date(1899, 12, 30), *day));
  if (std::holds_alternative<bool>(value.content())) return value.flag() ? "1" : "0";
  return value.text();
}

bool Same_Cell(const std::string& one, const std::string& other) {
  if (one == other) return true;
  return is_numeric(one) && is_numeric(other) && std::abs(std::stod(one) - std::stod(other)) < 1e-9;
}

std::map<std::string, int> Words_Of_Rows(const ReportTable& table) {
  std::map<std::string, int> words;
  for (int row = 0; row < table.rows(); ++row)
    for (int column = 0; column < static_cast<int>(table.columns.size()); ++column) {
      std::istringstream text(table.for_the_eye(row, column));
      for (std::string word; text >> word;) ++words[word];
    }
  return words;
}

/// A small company in which every report has something to show.
struct Full_Books : Books {
  explicit Full_Books(unsigned seed) {
    RandomBooks(seed).write(*this);
    for (int month = 1; month <= 12; ++month)
      run("INSERT INTO Budget (Category, Year, Month, Amount) VALUES ('RE1', 2026, ?, ?)",
          {month, Money::dollars(month)});
  }
  ReportTable build(const ReportDef& report) {
    ReportRequest wanted = request(std::string(report.key), Date(2025, 6, 1), Date(2026, 6, 15));
    wanted.options.clear();
    return Build_Report(*session, wanted);
  }
};

TEST(EveryReport, SaysTheSameInCsvSheetAndPdf) {
  int cells = 0, words = 0;
  for (const unsigned seed : {3u, 8u}) {
    Full_Books books(seed);
    const auto xlsx = books.folder.path() / "out.xlsx", pdf = books.folder.path() / "out.pdf";
    const auto handed = books.folder.path() / "table";
    for (const ReportDef& report : Reports()) {
      SCOPED_TRACE(std::string(report.key) + ", seed " + std::to_string(seed));
      const ReportTable table = books.build(report);
      std::vector<int> shown;
      for (int column = 0; column < static_cast<int>(table.columns.size()); ++column)
        if (table.columns[static_cast<size_t>(column)].kind != ReportColumn::Kind::Margin) shown.push_back(column);
      const std::vector<Strings> csv = Read_Csv(Written(table, Write_Csv));
      Write_Xlsx(table, xlsx);
      const std::vector<Strings> sheet = Read_Sheet(xlsx, shown.size());
      ASSERT_EQ(csv.size(), static_cast<size_t>(table.rows()) + 1);
      for (int row = 0; row < table.rows(); ++row)
        for (size_t at = 0; at < shown.size(); ++at) {
          const std::string text = table.text(row, shown[at]);
          const std::string& in_csv = csv[static_cast<size_t>(row) + 1].at(at);
          EXPECT_TRUE(in_csv == text || in_csv == "'" + text) << in_csv << " for " << text;
          const size_t in_sheet = static_cast<size_t>(row) + 2;  // below heading and captions
          const std::string expected = table.is_spacer(row) ? "" : In_Sheet(table.value(row, shown[at]));
          EXPECT_TRUE(expected.empty() || Same_Cell(sheet.at(in_sheet)[at], expected))
              << sheet[in_sheet][at] << " for " << text << " in row " << row;
          cells += !text.empty();
        }
      std::ofstream(handed, std::ios::binary) << Written(table, Write_Report_File);
      const auto painter = std::filesystem::path(testing::cli_program).parent_path() / "tallymere-paint";
      ASSERT_EQ(ChildProcess({painter.string(), handed.string(), pdf.string()}).wait_for_end(), 0);
      std::map<std::string, int> on_paper;
      for (const auto& word : testing::Pdf_Words(pdf)) ++on_paper[Unescaped(word.text)];
      for (const auto& [word, count] : Words_Of_Rows(table)) {
        EXPECT_GE(on_paper[word], count) << word;
        words += count;
      }
    }
  }
  EXPECT_GT(cells, 3000);
  EXPECT_GT(words, 3000);
}

}  // namespace
}  // namespace tallymere
