#include "support/report_books.h"

namespace tallymere {
namespace {

using testing::Books;
using testing::D;
using testing::Lines;
using Strings = std::vector<std::string>;

const Date may(2026, 5, 1), may_end(2026, 5, 31), june(2026, 6, 10);

struct NameBooks : Books {
  NameBooks() {
    add("AR1", "Accounts Receivable");
    add("Bank", "Bank");
    add("Sales", "Income");
    add("Goods", "Cost of Goods Sold");
    add("Rent", "Expense");
    for (auto name : {"Zoe", "Abel", "Idle"}) add_customer(name);
    add_vendor("Zoe");
  }
};

TEST(ProfitAndLossByName, CountsResultRowsOfThePeriodWithTheDebitAskedFirst) {
  NameBooks books;
  books.post({1, "Invoice", may, "AR1", D(100), {}, "Abel"});
  books.post({1, "Invoice", may, "Sales", {}, D(100), "Abel"});
  books.post({1, "Invoice", may, "Goods", D(30), {}, "Abel"});
  books.post({2, "Check", may, "Rent", D(8), D(2), "Zoe"});  // both sides: the debit counts here
  books.post({3, "Check", may_end, "Rent", {}, D(3), "Zoe"});
  books.post({4, "Check", may, "Bank", {}, D(9), "Idle"});  // rows, but none of a result category
  books.post({5, "Check", june, "Rent", D(1000), {}, "Zoe"});
  EXPECT_EQ(Lines(books.report("PLCusSum", may, may_end)), (Strings{"Abel|70", "Idle|0", "Zoe|-5"}));
  EXPECT_EQ(Lines(books.report("PLVenSum", may, may_end)), (Strings{"Zoe|5"}));
  EXPECT_EQ(Lines(books.report("PLCusSum", may, may_end, Basis::Cash)), (Strings{"Abel|0", "Idle|0", "Zoe|-5"}));
  ReportTable table = books.report("PLCusSum", may, may_end);
  EXPECT_EQ(table.heading.title + "," + table.columns[2].caption, "Customer Income Summary,5/1/2026 - 5/31/2026");
  EXPECT_FALSE(table.leads_on());
}

TEST(ProfitAndLossByName, DetailTurnsRoundTheRowsThatLowerTheTotal) {
  NameBooks books;
  books.post({2, "Invoice", may_end, "Sales", {}, D(100), "Abel", "", false, "", "AR1", "door"});
  books.post({1, "Check", may, "Sales", D(30), {}, "abel", "", false, "", "<-Break Down->"});
  books.post({3, "Invoice", may, "Sales", {}, D(7), "Zoe"});
  books.post({4, "Bill", may, "Rent", D(20), {}, "Zoe"});
  books.post({5, "Bill", may, "Rent", {}, D(5), "Zoe", "", true});
  EXPECT_EQ(
      Lines(books.report("PLCusDetail", may, may_end)),
      (Strings{"Abel", "     Check|5/1/2026|||Sales|<-Break Down->|-30", "     Invoice|5/31/2026||door|Sales|AR1|100",
               "Abel||||||70", "", "Zoe", "     Invoice|5/1/2026|||Sales||7", "     Bill|5/1/2026|||Rent||-20",
               "     Bill|5/1/2026|||Rent||5", "Zoe||||||-8", ""}));
  EXPECT_EQ(Lines(books.report("PLVenDetail", may, may_end, Basis::Cash)),
            (Strings{"Zoe", "     Bill|5/1/2026|||Rent||-5", "Zoe||||||-5", ""}));
}

}  // namespace
}  // namespace tallymere
