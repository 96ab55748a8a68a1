#include "core/stock/stock.h"

#include <gtest/gtest.h>

#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;

struct Stock : ::testing::Test {
  TestCompany company;

  void part(const std::string& name, double initial) {
    company.run("INSERT INTO Items (ItemName, ItemType, InitialQty) VALUES (?, 'Inventory Part', ?)", {name, initial});
  }
  void row(int64_t number, const char* type, Date date, const char* item, double qty, Money debit, Money credit = {},
           const char* source = nullptr) {
    company.run(
        "INSERT INTO Transactions (TransNum, Type, Date, Item, Qty, Debit, Credit, Amount, SourceName)"
        " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)",
        {number, type, date, item, qty, debit, credit, debit + credit,
         source ? store::Value(source) : store::Value(nullptr)});
  }
};

TEST_F(Stock, CountsEachMovementOnceAndUpToADay) {
  part("Hose", 10);
  part("Rake", 4.5);
  company.run("INSERT INTO Items (ItemName, ItemType) VALUES ('Mowing', 'Service')");
  row(1, "Bill", Date(2026, 1, 5), "hose", 5, Money::dollars(50));
  // One sale: three rows, marked but for the first. A second line of the same part in it counts as well.
  for (const char* source : {"Product", "Inventory Part", "Inventory Part"})
    row(2, "Invoice", Date(2026, 2, 5), "Hose", -3, {}, Money::dollars(60), source);
  row(2, "Invoice", Date(2026, 2, 5), "Hose", -1, {}, Money::dollars(20), "Service");
  row(3, "Inv Adjust", Date(2026, 3, 5), "Hose", 0.25, Money::dollars(1), {}, "");
  row(4, "Invoice", Date(2026, 3, 5), "Mowing", -2, {}, Money::dollars(1));

  EXPECT_DOUBLE_EQ(Stock_On_Hand(company.db(), "HOSE"), 11.25);
  EXPECT_DOUBLE_EQ(Stock_On_Hand(company.db(), "Hose", Date(2026, 2, 4)), 15);
  EXPECT_DOUBLE_EQ(Stock_On_Hand(company.db(), "Hose", Date(2026, 2, 5)), 11);
  EXPECT_DOUBLE_EQ(Stock_On_Hand(company.db(), "Rake", Date(1999, 1, 1)), 4.5);
  EXPECT_DOUBLE_EQ(Stock_On_Hand(company.db(), "Mowing"), 0);
  const auto all = Stock_On_Hand(company.db());
  EXPECT_EQ(all.size(), 2u);
  EXPECT_DOUBLE_EQ(all.at("hose"), 11.25);
}

TEST_F(Stock, AverageCostIsWhatPurchasesAndAdjustmentsLeaveInTheLedger) {
  part("Hose", 100);  // costs nothing anybody knows of
  part("Sold", 0);
  part("Even", 0);
  row(1, "Bill", Date(2026, 1, 5), "Hose", 10, Money::dollars(50));
  row(2, "Check", Date(2026, 2, 5), "Hose", 2, Money::dollars(16));
  row(3, "Inv Adjust", Date(2026, 3, 5), "Hose", -4, {}, Money::dollars(22));  // two thirds left, at the same price
  row(4, "Item Receipt", Date(2026, 3, 5), "Hose", 7, Money::dollars(7000));   // not billed yet
  row(5, "Invoice", Date(2026, 3, 5), "Sold", -7, {}, Money::dollars(70));
  row(6, "Bill", Date(2026, 3, 5), "Even", 0.3, Money::dollars(5));
  row(7, "Inv Adjust", Date(2026, 3, 6), "Even", -0.1, {}, Money::dollars(1));
  row(8, "Inv Adjust", Date(2026, 3, 6), "Even", -0.2, {}, Money::dollars(1));

  EXPECT_EQ(Average_Cost(company.db(), "hose", Date(2026, 1, 5)).average(), Money::dollars(5));
  EXPECT_EQ(Average_Cost(company.db(), "Hose", Date(2026, 2, 5)).average(), Money::dollars(5, 50));
  const auto all = Average_Cost(company.db());
  EXPECT_EQ(all.at("Hose").average(), Money::dollars(5, 50));
  EXPECT_EQ(all.at("Hose").value(3), Money::dollars(16, 50));
  EXPECT_EQ(all.count("Sold"), 0u);
  EXPECT_EQ(all.at("Even").average(), Money());
}

TEST(PartCost, AValueIsRoundedOnce) {
  const PartCost third{Money::dollars(10), 3};
  EXPECT_EQ(third.average().to_text(), "3.3333");
  EXPECT_EQ(third.value(3), Money::dollars(10));
}

}  // namespace
}  // namespace tallymere
