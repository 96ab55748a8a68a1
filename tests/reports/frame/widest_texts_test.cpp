#include "reports/frame/widest_texts.h"

#include "reports/frame/table_parts.h"

#include "reports/graph/graph_spans.h"
#include "support/report_books.h"

namespace tallymere {
namespace {

using testing::D;
using Kind = ReportColumn::Kind;

ReportTable Statement(int rows) {
  ReportTable table;
  table.columns = {
      {.kind = Kind::Margin}, {.caption = "Name"}, {.caption = "Memo"}, {.caption = "Amount", .kind = Kind::Money}};
  table.groups = {{"Jan", 1, 2}, {"Feb", 3, 1}};
  table.add_row(Role::Head, To_Transaction("K", 9)).skip().text("A very long section head that stands alone");
  for (int row = 0; row < rows; ++row) table.add_row().skip().text("Ann").text("two words").money(D(row % 7));
  table.add_row(Role::Grand_Total).skip().text("Total").skip().money(D(-98765));
  return table;
}

std::vector<std::string> Texts(const std::vector<StyledText>& styled) {
  std::vector<std::string> texts;
  for (const StyledText& text : styled) texts.push_back(text.style + ":" + text.text + ":" + text.word);
  return texts;
}

TEST(WidestTexts, LabelsRunOnAndTotalsAtTheEndCount) {
  for (int looked_at : {0, 50}) {
    const auto widest = Widest_Texts(Statement(3000), looked_at);
    EXPECT_TRUE(widest[0].empty());
    EXPECT_EQ(Texts(widest[1]), std::vector<std::string>{":Ann:Ann"});
    EXPECT_EQ(Texts(widest[2]), std::vector<std::string>{":two words:words"});
    EXPECT_EQ(Texts(widest[3]),
              (std::vector<std::string>{":6.00:", ":0.00:", "sBold:-98,765.00:", "sBold:-98,765.00:"}));
  }
  const ReportTable table = Statement(1);
  EXPECT_EQ(Label_Span(table, 0), 3);
  EXPECT_EQ(Label_Span(table, 1), 1);
  EXPECT_EQ(Label_Span(table, 2), 2);
}

TEST(WidestTexts, LettersWeighDifferentlyAndALineEndsAWord) {
  ReportTable table;
  table.columns = {{.caption = "Type"}, {.caption = "Class"}, {.caption = "Address"}};
  table.add_row().text("Deposit").text("Design/Build").text("Elm Street 1\r\nRockford");
  table.add_row().text("Payment").text("Maintenance").text("Oak\r\nIL");
  const auto widest = Widest_Texts(table);
  EXPECT_EQ(Texts(widest[0]), std::vector<std::string>{":Payment:Payment"});
  EXPECT_EQ(Texts(widest[1]), std::vector<std::string>{":Maintenance:Maintenance"});
  EXPECT_EQ(widest[2].front().word, "Rockford");
}

TEST(WidestTexts, PickingColumnsKeepsRowsKeysAndGroups) {
  ReportTable table = Statement(1);
  table.set_cell_style(2, 3, "Underline");
  const ReportTable picked = Pick_Columns(table, "Amount,Gone,");
  EXPECT_EQ(testing::Lines(picked),
            (std::vector<std::string>{"A very long section head that stands alone", "Ann|0", "Total|-98765"}));
  EXPECT_EQ(picked.key(0).number, 9);
  EXPECT_EQ(picked.style(2, 2), "Underline");
  EXPECT_TRUE(picked.leads_on());
  EXPECT_EQ(picked.offered.size(), 2u) << "what it is of cannot be taken out";
  EXPECT_EQ(Pick_Columns(table, "Gone,").columns.size(), 4u) << "none of them is all of them";
  ASSERT_EQ(picked.groups.size(), 2u);
  EXPECT_EQ(picked.groups[0].count, 1);
  EXPECT_EQ(picked.groups[1].first, 2);
}

TEST(GraphSpans, MonthsGoTogetherByTheCalendar) {
  Graph_Months graph;
  for (int month = 0; month < 14; ++month)  // from November 2024
    graph.months.push_back({Date(2024, 11, 1).add_months(month), {D(10), D(month)}});
  const auto shown = [&](int months) {
    std::string text;
    for (const Graph_Span& span : Graph_Spans(graph, months))
      text += span.label + "/" + std::to_string(span.year) + "=" +
              Graph_Text(span.amounts[graph.stands], Graph_Scale::Full) + " ";
    return text;
  };
  EXPECT_TRUE(shown(1).starts_with("Nov/2024=10 Dec/2024=10 Jan/2025=10 "));
  EXPECT_EQ(shown(3), "Q4/2024=20 Q1/2025=30 Q2/2025=30 Q3/2025=30 Q4/2025=30 ");
  EXPECT_EQ(shown(12), "2024/0=20 2025/0=120 ");
  EXPECT_EQ(shown(60), "2020-24/0=20 2025-29/0=120 ");
  graph.stands = true;
  EXPECT_EQ(shown(3), "Q4/2024=1 Q1/2025=4 Q2/2025=7 Q3/2025=10 Q4/2025=13 ") << "balances do not add up";
}

TEST(GraphSpans, AxisStepsAndAmountsReadEasily) {
  EXPECT_DOUBLE_EQ(Graph_Step(0, 164518, 4), 50000);
  EXPECT_DOUBLE_EQ(Graph_Step(-300, 900, 5), 500);
  EXPECT_DOUBLE_EQ(Graph_Step(0, 0, 4), 0.5);
  EXPECT_EQ(Graph_Text(D(-12345), Graph_Scale::Full), "-12,345");
  EXPECT_EQ(Graph_Text(D(-12345), Graph_Scale::Thousands), "-12.3k");
  EXPECT_EQ(Graph_Text(D(12345678), Graph_Scale::Millions), "12.3M");
  const std::vector<Graph_Span> small = {{"Jan", 2026, {D(61000), D(0)}}};
  EXPECT_TRUE(Suits(small, Graph_Scale::Thousands));
  EXPECT_FALSE(Suits(small, Graph_Scale::Millions)) << "that would be 0.1M";
}

TEST(GraphSpans, SmallBarsGoTogetherWithoutLoss) {
  const std::vector<Graph_Bars::Bar> bars = {{"Rent", D(50)}, {"Fuel", D(20)}, {"Post", D(5)}, {"Other", D(3)}};
  const auto kept = Largest_Bars(bars, 2);
  ASSERT_EQ(kept.size(), 2u);
  EXPECT_EQ(kept[1].label, "Other");
  EXPECT_EQ(kept[1].amount, D(28));
  EXPECT_EQ(Largest_Bars(bars, 4).size(), 4u);
  EXPECT_TRUE(Largest_Bars(bars, 0).empty());
  auto sorted = bars;
  std::reverse(sorted.begin(), sorted.end());
  Keep_Largest(sorted, 3);
  ASSERT_EQ(sorted.size(), 4u);
  EXPECT_EQ(sorted[0].label + sorted[2].label + sorted[3].label, "RentPostOther");
  EXPECT_EQ(sorted[3].amount, D(3));
}

}  // namespace
}  // namespace tallymere
