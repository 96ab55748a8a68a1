#include "entry/stock/adjustment.h"

#include "core/stock/stock.h"
#include "support/entry_company.h"

namespace tallymere {
namespace {

using testing::Dollars;
using testing::EntryCompany;
using testing::Rows_Of;

/// Three parts: ten bolts and what was bought and sold of them, nuts for half a dollar, washers for nothing.
class StockAdjustment : public ::testing::Test {
 protected:
  StockAdjustment() {
    part("Bolt", 10, Dollars(2));
    part("Nut", 4, Dollars(0, 50));
    part("Washer", 0, Money());
    company.run("INSERT INTO Items (ItemName, ItemType) VALUES ('Labor', 'Service')");
    move("Bill", "Bolt", 5);
    move("Invoice", "Bolt", -3);
  }
  void part(const char* name, double initial, Money cost) {
    company.run(
        "INSERT INTO Items (ItemName, Description, ItemType, InitialQty, Cost, InvAsset) VALUES (?, ?, 'Inventory "
        "Part', ?, ?, '3SS')",
        {name, std::string("Steel ") + name, initial, cost});
  }
  void move(const char* type, const char* item, double qty) {
    Transaction_Writer rows(session, {.Type = type, .Date = Date(2026, 6, 1)});
    rows.add({.Account = "3SS", .Item = item, .Qty = qty});
    rows.commit();
  }
  Adjustment listed() { return {.Date = Date(2026, 6, 15), .CatID = "40SS", .parts = Stock_Counts(session)}; }
  int64_t last() { return company.db().value("SELECT MAX(TransNum) FROM Transactions").integer(); }

  EntryCompany company;
  Session& session = *company.session;
  static constexpr int bolt = 0, nut = 1, washer = 2;
};

TEST_F(StockAdjustment, PartsAreListedWithWhatIsInStock) {
  const auto parts = Stock_Counts(session);
  ASSERT_EQ(parts.size(), 3u);
  EXPECT_EQ(parts[bolt].Item + parts[bolt].Description + parts[bolt].InvAsset, "BoltSteel Bolt3SS");
  EXPECT_EQ(parts[bolt].Current, 12);
  EXPECT_EQ(parts[nut].Price, Dollars(0, 50));
}

TEST_F(StockAdjustment, TheSideFollowsTheSignOfTheProduct) {
  Adjustment made = listed();
  made.parts[bolt].New = 9;    // three are missing: -6.00
  made.parts[nut].New = 5;     // one more: 0.50, less than a dollar and a debit all the same
  made.parts[washer].New = 0;  // as it was: written with nothing
  EXPECT_EQ(made.Value(), -Dollars(5, 50));
  ASSERT_TRUE(Enter_Adjustment(session, made).written);
  EXPECT_EQ(
      Rows_Of(company.db(), last(), "Type Account Category Debit Credit Amount Item ItemDescription Qty SalePrice"),
      "Inv Adjust|40SS|<-Break Down->|5.5|0|5.5||||\n"
      "Inv Adjust|3SS|40SS|0|6|6|Bolt|Steel Bolt|-3|2\n"
      "Inv Adjust|3SS|40SS|0.5|0|0.5|Nut|Steel Nut|1|0.5\n"
      "Inv Adjust|3SS|40SS|0|0|0|Washer|Steel Washer|0|0\n");
  EXPECT_EQ(Stock_On_Hand(company.db(), "Bolt"), 9);
  EXPECT_EQ(Stock_On_Hand(company.db(), "Nut"), 5);
  made = listed();
  made.CatID = "41SS";  // a category with children
  made.parts[bolt].New = 9.3;
  made.parts[bolt].Price = Dollars(1, 25);
  ASSERT_TRUE(Enter_Adjustment(session, made).written);
  const auto child = company.db().value("SELECT CatID FROM Accounts WHERE AccountName = 'Automobile - Other'").text();
  EXPECT_EQ(Rows_Of(company.db(), last(), "Account Category Debit Credit Qty"),
            child + "|<-Break Down->|0|0.375|\n3SS|" + child + "|0.375|0|0.3\n");
}

TEST_F(StockAdjustment, WithoutACategoryNothingIsWrittenNorWithoutACount) {
  Adjustment made = listed();
  const int64_t rows = company.count();
  EXPECT_TRUE(Enter_Adjustment(session, made).ok()) << "nothing was counted";
  made.CatID = "";
  const SaveResult result = Enter_Adjustment(session, made);
  ASSERT_TRUE(result.fault);
  EXPECT_EQ(result.fault->box.text + result.fault->box.title, "Please Select a Category to Adjust From.No Category");
  EXPECT_EQ(company.count(), rows);
}

TEST_F(StockAdjustment, StockThatMovedWhileItWasCountedIsTold) {
  Adjustment made = listed();
  made.parts[bolt].New = 12;
  move("Invoice", "Nut", -1);  // not counted: no matter
  move("Invoice", "Bolt", -2);
  const int64_t rows = company.count();
  const SaveResult result = Enter_Adjustment(session, made);
  ASSERT_TRUE(result.conflict && result.conflict->reload);
  EXPECT_EQ(company.count(), rows);
  Read_Stock_Again(session, made);
  EXPECT_EQ(made.parts[bolt].Current, 10);
  EXPECT_EQ(made.parts[bolt].Difference(), 2.0);
  ASSERT_TRUE(Enter_Adjustment(session, made).written);
  EXPECT_EQ(Stock_On_Hand(company.db(), "Bolt"), 12);
  made = listed();
  made.parts[bolt].New = 1;
  company.run("DELETE FROM Items WHERE ItemName = 'Bolt'");
  EXPECT_TRUE(Enter_Adjustment(session, made).conflict) << "the part is gone";
}

}  // namespace
}  // namespace tallymere
