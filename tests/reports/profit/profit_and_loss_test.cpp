#include "reports/profit/profit_and_loss.h"

#include "support/report_books.h"

namespace tallymere {
namespace {

using testing::Books;
using testing::D;
using testing::Line_Of;
using testing::Lines;
using Strings = std::vector<std::string>;

const Date new_year(2026, 1, 1), may(2026, 5, 1), may_end(2026, 5, 31), june(2026, 6, 10), last_may(2025, 5, 20);

/// Sales with two levels below it, and one category for each other section.
struct PLBooks : Books {
  PLBooks() {
    add("Sales", "Income");
    add("Shop", "Income", "Sales");
    add("Web", "Income", "Shop");
    add("Interest", "Other Income");
    add("Goods", "Cost of Goods Sold");
    add("Rent", "Expense");
    add("Fines", "Other Expense");
    add("Bank", "Bank");
  }
  void post_all(Date day, int times = 1) {
    post({1, "Deposit", day, "Sales", {}, D(100 * times)});
    post({2, "Deposit", day, "Shop", {}, D(20 * times)});
    post({3, "Deposit", day, "Web", {}, D(3 * times)});
    post({4, "Deposit", day, "Interest", {}, D(7 * times)});
    post({5, "Check", day, "Goods", D(40 * times)});
    post({6, "Check", day, "Rent", D(50 * times)});
    post({7, "Check", day, "Fines", D(1 * times)});
    post({7, "Check", day, "Bank", {}, D(1000)});
  }
};

TEST(ProfitAndLoss, SectionsRollUpAndNetIncomeFollows) {
  PLBooks books;
  books.post_all(may);
  books.post_all(may_end);
  books.post_all(june, 1000);
  books.post({8, "Deposit", may, "Shop", D(5)});       // taken back
  books.post({9, "Check", may, "Rent", {}, D(4)});     // a refund
  books.post({10, "Check", may, "Rent", D(9), D(2)});  // both sides: the credit counts
  ReportTable table = books.report("PL", may, may_end);
  EXPECT_EQ(Lines(table), (Strings{"Income",
                                   "     Sales|241",
                                   "          Shop|41",
                                   "               Web|6",
                                   "Total Income|241",
                                   "",
                                   "Other Income",
                                   "     Interest|14",
                                   "Total Other Income|14",
                                   "",
                                   "Cost of Goods Sold",
                                   "     Goods|80",
                                   "Total Cost of Goods Sold|80",
                                   "",
                                   "Gross Profit|175",
                                   "Expense",
                                   "     Rent|94",
                                   "Total Expense|94",
                                   "",
                                   "Other Expense",
                                   "     Fines|2",
                                   "Total Other Expense|2",
                                   "",
                                   "Net Income|79"}));
  EXPECT_EQ(table.heading.caption(), "Profit And Loss\r\nAcme\r\n5/1/2026 - 5/31/2026");
  for (int row = 0; row < table.rows(); ++row) {
    std::string label = table.text(row, 1);
    bool plain = label.starts_with(" ") || table.is_spacer(row);
    EXPECT_EQ(table.style(row), plain ? "" : "sBold") << label;
    EXPECT_EQ(table.key(row).text, plain ? label.substr(std::min(label.size(), label.find_first_not_of(' '))) : "");
  }
}

TEST(ProfitAndLoss, AnEmptyPeriodShowsEveryCategoryWithZero) {
  PLBooks books;
  ReportTable table = books.report("PL", may, may_end, Basis::Cash);
  EXPECT_EQ(table.rows(), 24);
  EXPECT_EQ(Line_Of(table, "Web"), "Web|0");
  EXPECT_EQ(Line_Of(table, "Net Income"), "Net Income|0");
}

TEST(ProfitAndLoss, ComparisonTotalsCountSubCategoriesAgain) {
  PLBooks books;
  books.post_all(Date(2026, 2, 2));
  books.post_all(may);
  ReportTable ytd = books.report("PLYTD", may, may_end);
  EXPECT_EQ(ytd.columns[2].caption, "5/1/2026 - 5/31/2026");
  EXPECT_EQ(ytd.columns[3].caption, "Year-To-Date");
  EXPECT_EQ(Line_Of(ytd, "Sales"), "Sales|123|246");
  EXPECT_EQ(Line_Of(ytd, "Shop"), "Shop|23|46");
  EXPECT_EQ(Line_Of(ytd, "Total Income"), "Total Income|123|298");  // 246 + 46 + 6
  EXPECT_EQ(Line_Of(ytd, "Gross Profit"), "Gross Profit|90|232");   // 298 + 14 - 80
  EXPECT_EQ(Line_Of(ytd, "Net Income"), "Net Income|39|130");       // 232 - 100 - 2

  books.post_all(last_may);
  books.post_all(Date(2025, 6, 2), 1000);
  ReportTable before = books.report("PLPrev", may, may_end);
  EXPECT_EQ(before.columns[3].caption, "1/1/2025 -5/31/2025");
  EXPECT_EQ(Line_Of(before, "Total Income"), "Total Income|123|149");
  EXPECT_EQ(Line_Of(before, "Net Income"), "Net Income|39|65");
}

TEST(ProfitAndLoss, CustomerAndClassColumnsCountTwiceTheirTotalOnce) {
  PLBooks books;
  for (auto name : {"Zoe", "O'Hara", "Abel"}) books.add_customer(name);
  books.run("INSERT INTO Class (Class) VALUES ('East')");
  books.post({1, "Deposit", may, "Web", {}, D(10), "O'HARA"});
  books.post({2, "Deposit", may, "Sales", {}, D(5), "Zoe", "", false, "east"});
  books.post({3, "Deposit", may, "Web", {}, D(2), "nobody"});
  books.post({4, "Check", may, "Rent", D(1), {}, "Zoe", "", false, "East"});
  ReportTable table = books.report("PLCus", may, may_end);
  EXPECT_EQ(table.columns[2].caption + table.columns[3].caption + table.columns[4].caption + table.columns[5].caption,
            "AbelO'HaraZoeTotal");
  EXPECT_EQ(Line_Of(table, "Sales"), "Sales|0|10|5|17");
  EXPECT_EQ(Line_Of(table, "Total Income"), "Total Income|0|30|5|17");
  EXPECT_EQ(Line_Of(table, "Total Expense"), "Total Expense|0|0|1|1");
  EXPECT_EQ(Line_Of(table, "Net Income"), "Net Income|0|30|4|16");
  ReportTable by_class = books.report("PLClass", may, may_end);
  EXPECT_EQ(Line_Of(by_class, "Total Income"), "Total Income|5|17");
  EXPECT_EQ(Line_Of(by_class, "Net Income"), "Net Income|4|16");
  books.run("DELETE FROM Class");
  EXPECT_EQ(books.report("PLClass", may, may_end).columns.size(), 3u);  // margin, label, "Total"
}

TEST(ProfitAndLoss, DetailListsTheRowsOfEachCategoryWithAllBelow) {
  PLBooks books;
  books.post({1, "Invoice", june, "Shop", {}, D(20), "Zoe", "", false, "East", "Bank", "late"});
  books.post({1, "Invoice", may, "Web", {}, D(3), "Abel", "", false, "", "<-Break Down->"});
  books.post({2, "Deposit", may, "Web", D(1)});
  ReportTable table = books.report("PLDetail", may, june);
  EXPECT_FALSE(table.leads_on());
  Strings lines = Lines(table);
  EXPECT_EQ(
      Strings(lines.begin(), lines.begin() + 15),
      (Strings{"Income", "     Sales", "Invoice|5/1/2026||Abel|||<-Break Down->|3", "Deposit|5/1/2026||||||1",
               "Invoice|6/10/2026||Zoe|late|East|Bank|20", "     Sales|||||||22", "          Shop",
               "Invoice|5/1/2026||Abel|||<-Break Down->|3", "Deposit|5/1/2026||||||1",
               "Invoice|6/10/2026||Zoe|late|East|Bank|20", "          Shop|||||||22", "               Web",
               "Invoice|5/1/2026||Abel|||<-Break Down->|3", "Deposit|5/1/2026||||||1", "               Web|||||||2"}));
  EXPECT_EQ(Line_Of(table, "Total Income"), "Total Income|||||||22");
  EXPECT_EQ(Line_Of(table, "Net Income"), "Net Income|||||||22");
}

TEST(ProfitAndLoss, GoToOpensTheCategoryFromNewYearToTheReportsEnd) {
  PLBooks books;
  auto opened_from = books.request("PL", Date(2025, 3, 1), Date(2025, 3, 31));
  ReportTable table = Build_Report(*books.session, opened_from);
  EXPECT_FALSE(Go_To_Request(table.key(0), opened_from));  // the section's head
  auto request = Go_To_Request(table.key(1), opened_from);
  ASSERT_TRUE(request);
  EXPECT_EQ(request->key + request->option("category"), "PrintAcctRepSales");
  EXPECT_EQ(Period_Text(request->from, request->to), "1/1/2025 - 3/31/2025");
  EXPECT_EQ(Build_Report(*books.session, *request).heading.title, "Category Report: Sales");
}

TEST(ProfitAndLoss, GraphAgreesWithTheReport) {
  PLBooks books;
  books.post_all(Date(2026, 2, 2));
  books.post_all(may, 2);
  books.post_all(last_may, 1000);
  const auto graph_of = [&](Date from, Date to) { return Build_Graph(*books.session, books.request("PL", from, to)); };
  const auto months_of = [&](Date from, Date to) {
    return std::get<Graph_Months>(graph_of(from, to).parts[0]).months.size();
  };
  const Graph graph = graph_of(new_year, may_end);
  const auto& months = std::get<Graph_Months>(graph.parts[0]).months;
  ASSERT_EQ(months.size(), 5u);
  EXPECT_EQ(months[1].amounts, (std::vector{D(130), D(91)}));
  EXPECT_EQ(months[2].amounts, (std::vector{D(0), D(0)}));
  EXPECT_EQ(months[4].first_day, may);
  EXPECT_EQ(months[4].amounts[0] - months[4].amounts[1], D(78));
  const auto& expenses = std::get<Graph_Bars>(graph.parts[1]).bars;
  ASSERT_EQ(expenses.size(), 3u);
  EXPECT_EQ(expenses[0].label + expenses[1].label + expenses[2].label, "RentGoodsFines");
  EXPECT_EQ(expenses[2].amount, D(3));
  EXPECT_EQ(months_of(Date(9999, 11, 30), Date(9999, 12, 31)), 2u) << "no month follows the last";
  EXPECT_EQ(months_of(may, new_year), 0u) << "dates the wrong way round";
}

// --- cash basis ----------------------------------------------------------------------------------

/// An invoice to one customer, its receivable and its income row, and what pays it.
struct CashBooks : Books {
  CashBooks() {
    add("AR1", "Accounts Receivable");
    add("AP1", "Accounts Payable");
    add("Sales", "Income");
    add("Rent", "Expense");
  }
  void invoice(int64_t number, Money total, Money income, const std::string& PaidBy, bool Paid) {
    post({number, "Invoice", may, "AR1", total, {}, "Abel", PaidBy, Paid});
    post({number, "Invoice", may, "Sales", {}, income, "Abel", PaidBy, Paid});
  }
  void payment(int64_t number, Date day, Money amount) {
    post({number, "Payment", day, "Bank", amount, {}, "Abel"});
    post({number, "Payment", day, "AR1", {}, amount, "Abel"});
  }
  void bill(int64_t number, const std::string& PaidBy, bool Paid, Money amount = D(60)) {
    post({number, "Bill", may, "Rent", amount, {}, "Landlord", PaidBy, Paid});
    post({number, "Bill", may, "AP1", {}, amount, "Landlord", PaidBy, Paid});
  }
  std::string figure(const std::string& label, Date from, Date to, Basis basis = Basis::Cash) {
    return Line_Of(report("PL", from, to, basis), label);
  }
};

TEST(CashIncome, CountsInTheProportionOfWhatWasPaidInThePeriod) {
  struct Case {
    const char* what;
    Money total, income, paid;
    std::string cash;
  };
  for (const Case& c :
       {Case{"in part", D(1000), D(1000), D(400), "400"},
        Case{"in part, with tax on top", D(1100), D(1000), D(550), "500"},
        Case{"whole", D(1000), D(1000), D(1000), "1000"}, Case{"more than whole", D(1000), D(1000), D(3000), "1000"},
        Case{"rounded to the ten-thousandth", D(3), D(1), D(1), "0.3333"}}) {
    CashBooks books;
    books.invoice(1, c.total, c.income, "2;", false);
    books.payment(2, june, c.paid);
    EXPECT_EQ(books.figure("Sales", june, june), "Sales|" + c.cash) << c.what;
    EXPECT_EQ(books.figure("Sales", may, may_end), "Sales|0") << c.what << ": nothing was paid in May";
    EXPECT_EQ(books.figure("Sales", may, may_end, Basis::Accrual), "Sales|" + c.income.to_text()) << c.what;
  }
}

TEST(CashIncome, WalksEveryPaymentAndPassesOverWhatIsGone) {
  CashBooks books;
  books.invoice(1, D(100), D(100), "2;99;3;4", true);  // 99 was deleted; 4 isn't closed
  books.payment(2, june, D(30));
  books.payment(3, may, D(70));
  books.payment(4, june, D(100));
  EXPECT_EQ(books.figure("Sales", june, june), "Sales|30");
  EXPECT_EQ(books.figure("Sales", may, june), "Sales|100");
  books.post({5, "Invoice", may, "Sales", {}, D(8), "Abel", "2;", true});  // without a receivable: whole
  EXPECT_EQ(books.figure("Sales", june, june), "Sales|38");
  books.post({6, "Invoice", may, "Sales", D(3), {}, "Abel", "2;", true});  // a discount lowers
  EXPECT_EQ(books.figure("Sales", june, june), "Sales|35");
}

TEST(CashIncome, TheInvoicesTotalDecidesThoughALinePostsToReceivablesToo) {
  for (const char* of_first_row : {"2;", ""}) {  // saved again after a payment, only the lines keep it
    CashBooks books;
    books.post({1, "Invoice", may, "AR1", D(800), {}, "Abel", of_first_row});
    books.post({1, "Invoice", may, "Sales", {}, D(1000), "Abel", "2;"});
    books.post({1, "Invoice", may, "AR1", D(200), {}, "Abel", "2;"});  // a retainer, set off
    books.payment(2, june, D(400));
    EXPECT_EQ(books.figure("Sales", june, june), "Sales|500");
    EXPECT_EQ(books.figure("Sales", may, june), "Sales|500");
  }
}

TEST(CashIncome, OtherRowsCountByTheirOwnDateUnlessMarkedPaid) {
  CashBooks books;
  books.post({1, "Deposit", june, "Sales", {}, D(10)});
  books.post({2, "Check", june, "Sales", D(4)});
  books.post({3, "Deposit", june, "Sales", {}, D(1000), "", "", true});  // paid, by nothing
  books.post({4, "Deposit", may, "Sales", {}, D(500)});
  books.post({5, "Deposit", june, "Sales", {}, D(7), "", "", false, "", "", "", D(-2)});  // Amount decides, absolute
  EXPECT_EQ(books.figure("Sales", june, june), "Sales|8");
  books.invoice(6, D(70), D(70), "", false);
  EXPECT_EQ(books.figure("Sales", may, may_end), "Sales|500");
}

TEST(CashExpense, CountsABillPaidByThePeriodsEnd) {
  struct Case {
    const char* what;
    std::string PaidBy;
    bool Paid;
    Date paid_on;
    std::string in_may;
  };
  for (const Case& c :
       {Case{"unpaid", "", false, may, "0"}, Case{"paid in the period", "2;", true, may_end, "60"},
        Case{"paid after it", "2;", true, june, "0"}, Case{"the first payment decides", "2;3;", true, may_end, "60"},
        Case{"the payment is gone", "99;", true, may, "60"}, Case{"no payment is named", "", true, may, "60"}}) {
    CashBooks books;
    books.bill(1, c.PaidBy, c.Paid);
    books.post({2, "Billcheck", c.paid_on, "AP1", D(60)});
    books.post({3, "Billcheck", june, "AP1", D(60)});
    EXPECT_EQ(books.figure("Rent", may, may_end), "Rent|" + c.in_may) << c.what;
    EXPECT_EQ(books.figure("Rent", june, june), "Rent|0") << c.what << ": the bill is dated before the start";
    EXPECT_EQ(books.figure("Rent", may, may_end, Basis::Accrual), "Rent|60") << c.what;
  }
}

TEST(CashExpense, ALateBillIsFoundFromEitherSide) {
  CashBooks books;  // long ago, many days since; and yesterday, few days since
  books.bill(1, "2;", true);
  books.post({2, "Billcheck", june, "AP1", D(60)});
  books.post({3, "Check", Date(2030, 1, 1), "Bank", {}, D(1)});
  EXPECT_EQ(books.figure("Rent", may, may_end), "Rent|0");
  EXPECT_EQ(books.figure("Rent", Date(2000, 1, 1), may_end), "Rent|0");
  EXPECT_EQ(books.figure("Rent", Date(2000, 1, 1), june), "Rent|60");
}

TEST(CashBasis, ComparisonColumnsUseTheOrdinaryRule) {
  CashBooks books;
  books.add_customer("Abel");
  books.invoice(1, D(100), D(100), "2;", false);
  books.payment(2, june, D(40));
  EXPECT_EQ(Line_Of(books.report("PLYTD", may, june, Basis::Cash), "Sales"), "Sales|40|0");
  EXPECT_EQ(Line_Of(books.report("PLCus", may, june, Basis::Cash), "Sales"), "Sales|0|0");
  books.run("UPDATE Transactions SET Paid = True WHERE TransNum = 1");
  EXPECT_EQ(Line_Of(books.report("PLYTD", may, june, Basis::Cash), "Sales"), "Sales|40|100");
  EXPECT_EQ(Line_Of(books.report("PLCus", may, june, Basis::Cash), "Sales"), "Sales|100|100");
}

TEST(CashBasis, DetailListsUncountedRowsButIncomeOfItsOwnRuleNone) {
  CashBooks books;
  books.invoice(1, D(100), D(100), "2;", true);
  books.payment(2, june, D(100));
  books.bill(3, "", false);
  books.bill(4, "5;", true, D(5));
  books.post({5, "Billcheck", june, "AP1", D(5)});
  Strings lines = Lines(books.report("PLDetail", may, may_end, Basis::Cash));
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "Bill|5/1/2026||Landlord||||60"), 1);
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "Bill|5/1/2026||Landlord||||5"), 1);
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "     Rent|||||||0"), 1);
  for (const std::string& line : lines) EXPECT_FALSE(line.starts_with("Invoice")) << line;
}

}  // namespace
}  // namespace tallymere
