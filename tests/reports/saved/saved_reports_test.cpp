#include "reports/saved/saved_reports.h"

#include "support/report_books.h"

namespace tallymere {
namespace {

using testing::Books;
using testing::D;

TEST(SavedReports, AnotherReportOfTheSameNameIsItsOwn) {
  Books books;
  SavedReport first{0, "Rent", "Last Year", "AcctRep", "Date,Amount,", "", "E1"};
  SavedReport second = first;
  second.Item = "E2";
  Save_Report(*books.session, first);
  Save_Report(*books.session, second);
  ASSERT_NE(first.key, second.key);
  second.DateRange.clear();
  Save_Report(*books.session, second);
  EXPECT_EQ(Find_Saved_Report(*books.session, first.key)->DateRange, "Last Year");
  EXPECT_EQ(Find_Saved_Report(*books.session, second.key)->DateRange, "");
  Delete_Saved_Report(*books.session, first);
  ASSERT_EQ(Saved_Reports(*books.session).size(), 1u);
  EXPECT_EQ(Saved_Reports(*books.session)[0].Item, "E2");
  EXPECT_FALSE(Find_Saved_Report(*books.session, first.key));
  Save_Report(*books.session, first);  // another user deleted it while it was being changed
  EXPECT_EQ(Find_Saved_Report(*books.session, first.key)->Item, "E1");
}

TEST(SavedReports, ShowsWhatItWasSavedFromOnTheDayItIsShown) {
  Books books;
  books.add("E1", "Expense");
  books.post({1, "Check", Date(2025, 3, 1), "E1", D(70)});
  SavedReport rent{0, "Rent", "Last Year", "AcctRep", "Date,Amount,", "", "E1"};
  const ReportRequest request = Request_Of(*books.session, rent);
  EXPECT_EQ(request.from, Date(2025, 1, 1));
  EXPECT_EQ(request.to, Date(2025, 12, 31));
  EXPECT_EQ(testing::Lines(Build_Report(*books.session, request)),
            (std::vector<std::string>{"3/1/2025|70", "", "TOTAL|70"}));
  rent.DateRange = "";
  EXPECT_EQ(Request_Of(*books.session, rent).from, Date(2026, 6, 1));
  EXPECT_EQ(Request_Of(*books.session, rent).to, Date(2026, 6, 15));
  rent.Parent = "ItemRep";
  EXPECT_EQ(Request_Of(*books.session, rent).option(report_option::item), "E1");
}

TEST(SavedReports, OffersActiveItemsWithThoseBelowThem) {
  Books books;
  for (auto [name, parent, dormant] : {std::tuple{"Mr. Green", "", false},
                                       {"Old", "", true},
                                       {"Seed", "Mr Green", true},
                                       {"Ash", "", false},
                                       {"Twig", "Old", false}})
    books.run("INSERT INTO Items (ItemName, ParentItem, Dormant) VALUES (?, ?, ?)", {name, parent, dormant});
  EXPECT_EQ(Items_To_Report(*books.session), (std::vector<std::string>{"Ash", "Mr. Green", "     Seed"}));
}

}  // namespace
}  // namespace tallymere
