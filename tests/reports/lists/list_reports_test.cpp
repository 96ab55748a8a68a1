#include "support/report_books.h"

namespace tallymere {
namespace {

using Strings = std::vector<std::string>;

TEST(ListReports, CategoriesAsTheyStandToday) {
  testing::Books books;
  books.add("Rent", "Expense");
  books.add("Bank", "Bank");
  books.run("UPDATE Accounts SET AccountNum = '1010', Balance = ? WHERE CatID = 'Bank'", {Money::from_units(123456)});
  ReportRequest request = Default_Request(*books.session, "ListCat");
  ReportTable table = Build_Report(*books.session, request);
  EXPECT_EQ(table.heading.period, "Monday, June 15, 2026");
  EXPECT_EQ(testing::Lines(table), (Strings{"Bank|Bank|1010|12.3456", "Rent|Expense"}));
  EXPECT_EQ(table.for_the_eye(0, 4), "12.35");
  EXPECT_EQ(table.columns[3].caption, "Acct #");

  request.options["fields"] = "Balance,";
  EXPECT_EQ(testing::Lines(Build_Report(*books.session, request)), (Strings{"Bank|12.3456", "Rent"}));
}

}  // namespace
}  // namespace tallymere
