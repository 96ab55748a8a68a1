#include "entry/document/document.h"

#include "support/entry_company.h"

namespace tallymere {
namespace {

using testing::Dollars;
using testing::EntryCompany;

TEST(Documents, AWalkWithoutABandReachesTheWholeLedger) {
  EntryCompany company;
  Session& session = *company.session;
  constexpr std::string_view types[] = {"Bill", "Credit", "Item Receipt"};
  const Walk bills{.types = types, .account = "AP1"};
  EXPECT_TRUE(Walk_From(session, bills, 1, false).bounce) << "nothing to walk through";
  company.write("Bill", Date(2026, 5, 1), "AP1", "40SS", Dollars(1), "", "", 7);
  company.write("Check", Date(2026, 4, 15), "0SS", "AP1", Dollars(1), "", "", 8);
  company.write("Credit", Date(2026, 4, 1), "40SS", "AP1", Dollars(1), "", "", 9000);
  EXPECT_EQ(Walk_From(session, bills, 7, false).TransNum, 9000);
  EXPECT_EQ(Walk_From(session, bills, 9000, true).TransNum, 7);
  EXPECT_EQ(Walk_From(session, bills, 7, true).arrival, Arrival::New);
  EXPECT_EQ(Walk_From(session, bills, 9001, false).TransNum, 7);
}

TEST(Documents, TheRestOfTheAmountIsProposed) {
  std::vector<ExpenseLine> lines = {{.Category = "a", .Amount = Dollars(10)}, {.Category = "b"}};
  EXPECT_EQ(Expense_Remainder(lines, Dollars(25)), Dollars(15));
  EXPECT_EQ(lines.size(), 1u);
  EXPECT_EQ(Expense_Remainder(lines, Dollars(4)), -Dollars(6));
  EXPECT_EQ(Expense_Remainder(lines, Dollars(10)), std::nullopt);
}

TEST(Documents, AnItemLineAmountsToQuantityTimesCost) {
  ItemLine line{.Quantity = 1.5, .Cost = Dollars(10), .Amount = Dollars(7)};
  EXPECT_EQ(Item_Amount(line, "Service"), Dollars(15));
  EXPECT_EQ(Item_Amount(line, "Subtotal"), Dollars(7));
  EXPECT_EQ(Item_Amount(line, "Sales Tax"), Dollars(7));
  line.Quantity.reset();
  EXPECT_EQ(Item_Amount(line, "Service"), Dollars(10));
  line = {.Quantity = 3, .Amount = Dollars(7)};
  EXPECT_EQ(Item_Amount(line, "Service"), std::nullopt);
}

TEST(Documents, OnlyStockPostsToItsAsset) {
  EntryCompany company;
  company.run(
      "INSERT INTO Items (ItemName, ItemType, ItemCat, InvAsset) VALUES ('Bolt', 'Inventory Part', '29SS', "
      "'3SS'), ('Work', 'Service', '30SS', '3SS')");
  EXPECT_EQ(Item_Category(*company.session, "Bolt"), "3SS");
  EXPECT_EQ(Item_Category(*company.session, "work"), "30SS");
  EXPECT_EQ(Item_Category(*company.session, "Nut"), "");
}

}  // namespace
}  // namespace tallymere
