#include "lists/items/items.h"

#include <gtest/gtest.h>

#include "core/ledger/item_rate.h"
#include "core/stock/stock.h"
#include "lists/items/item_groups.h"
#include "lists/named_rows.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;
using Names = std::vector<std::string>;

TEST(ItemRate, KeepsWhatIsTypedExactlyAndReadsItBack) {
  const ItemRate tax = *Parse_Rate(" 6.875 %");
  EXPECT_EQ(tax.PriceRate, Money::from_units(688));
  EXPECT_EQ(tax.of(Money::dollars(1000)), Money::dollars(68, 75)) << "not 68.80";
  EXPECT_EQ(Rate_Text(tax, "Sales Tax"), "6.875%");
  EXPECT_EQ(Parse_Rate("6.5%")->PriceRate, Money::from_units(650));
  EXPECT_EQ(Parse_Rate("6.5")->of(Money::dollars(100)), Money::dollars(650)) << "without the sign it is 650 %";
  EXPECT_EQ(Rate_Text(*Parse_Rate("6.5"), "Sales Tax"), "650%");
  EXPECT_EQ(Rate_Text(*Parse_Rate("-10%"), "Discount"), "-10%");
  EXPECT_EQ(Rate_Text(*Parse_Rate("1,250"), "Service"), "1,250.00");
  EXPECT_EQ(Rate_Text(*Parse_Rate(".0125"), "Service"), "0.0125") << "a price of parts of a cent";
  EXPECT_TRUE(Parse_Rate("")->blank());
  for (const char* typed :
       {"%", "six", "6%%", "6..5%", "-", "--1%", "1e3%", "1e400", "nan%", "12 apples", "99999999999999%"})
    EXPECT_FALSE(Parse_Rate(typed)) << typed;
  EXPECT_EQ(Rate_Of(Money::from_units(700), 0.06875).factor(), 0.07) << "another program changed the price alone";
}

struct Items : ::testing::Test {
  TestCompany company;
  Session& session = *company.session;
  Items() {
    company.add_category("1000SS", "Income");
    company.add_category("1001SS", "Cost of Goods Sold");
    company.add_category("1002SS", "Current Asset");
    company.add_category("1003SS", "Current Liability");
  }
  std::string value(const char* sql) { return company.db().value(sql).text(); }
  RowSave make(const ItemForm& form) {
    ListRow row(session, Item_Rows);
    return Save_Item(session, row, form);
  }
  RowSave edit(
      const std::string& name, const std::function<void(ItemForm&)>& change = [](ItemForm&) {}) {
    ListRow row(session, Item_Rows, name);
    ItemForm form = Item_Form(session, row);
    change(form);
    return Save_Item(session, row, form);
  }
  static ItemForm service(const char* name) { return {.ItemName = name, .ItemType = "Service", .ItemCat = "1000SS"}; }
  static ItemForm hose() {
    return {.ItemName = "Hose",
            .ItemType = "Inventory Part",
            .Description = "Garden hose",
            .PriceRate = "19.95",
            .ItemCat = "1000SS",
            .Cost = "11",
            .COGScat = "1001SS",
            .InvAsset = "1002SS",
            .ReorderQty = "5",
            .InitialQty = "12",
            .TotalValue = "132"};
  }
  std::string list(bool dormant) {
    std::string text;
    for (const ItemListRow& row : Make_Items_List(session, dormant))
      text += std::to_string(row.level) + row.ItemName + ";";
    return text;
  }
};

TEST_F(Items, TheFirstMistakeIsNamedAndNothingIsWritten) {
  const auto control = [&](const ItemForm& form) { return make(form).fault->control; };
  EXPECT_EQ(control({.ItemType = "Service"}), "cmbCategory") << "before the name";
  EXPECT_EQ(make({.ItemName = " "}).fault->box.text, "Please enter a Name for this Item.");
  EXPECT_EQ(control({.ItemName = "A"}), "cmbType");
  EXPECT_EQ(control({.ItemName = "A", .ItemType = "Sales Tax"}), "cmbTaxLia");
  EXPECT_EQ(control({.ItemName = "A", .ItemType = "Payment"}), "cmbDeposit");
  ItemForm part = hose();
  part.InvAsset.clear();
  EXPECT_EQ(make(part).fault->box.text,
            "Please input a income category, COGS Category and Asset Category for this Inventroy Part.");
  part = hose();
  part.InitialQty = "a dozen";
  EXPECT_EQ(control(part), "txtInvQty");
  part.InitialQty = "12";
  part.Cost = "1e9x";
  EXPECT_EQ(control(part), "txtInvCost");
  part.Cost.clear();
  part.InvVendor = "Nobody";
  EXPECT_EQ(control(part), "cmbInvVen");
  EXPECT_EQ(value("SELECT COUNT(*) FROM Items"), "0");
  EXPECT_EQ(value("SELECT COUNT(*) FROM History WHERE What LIKE 'item*'"), "0");
}

TEST_F(Items, EveryTypeWritesItsFields) {
  ASSERT_TRUE(make(service("Mowing")).ok());
  EXPECT_EQ(value("SELECT PriceRate || ItemCat FROM Items"), "01000SS") << "no price is 0";
  ASSERT_TRUE(make({.ItemName = "State", .ItemType = "Sales Tax", .PriceRate = "6.875%", .ItemCat = "1003SS"}).ok());
  EXPECT_EQ(value("SELECT PriceRate || '/' || ExactRate FROM Items WHERE ItemName = 'State'"), "688/0.06875");
  ASSERT_TRUE(make({.ItemName = "Paid", .ItemType = "Payment", .PayMethod = "Cash", .PayTo = "UF1"}).ok());
  EXPECT_EQ(value("SELECT PayMethod || PayTo FROM Items WHERE ItemName = 'Paid'"), "CashUF1");
  ASSERT_TRUE(make(hose()).ok());
  EXPECT_EQ(value("SELECT StockQty || '/' || InitialQty || '/' || TotalValue FROM Items WHERE ItemName = 'Hose'"),
            "12.0/12.0/1320000");
  ItemForm part = hose();
  part.ItemName = "Nozzle";
  part.ReorderQty.clear();
  ASSERT_TRUE(make(part).ok());
  EXPECT_EQ(value("SELECT StockQty || '/' || InitialQty FROM Items WHERE ItemName = 'Nozzle'"), "0.0/12.0");
  EXPECT_EQ(Stock_On_Hand(company.db(), "Nozzle"), 12) << "what it began with is there all the same";
}

TEST_F(Items, LookingAndSavingChangesNothing) {
  ASSERT_TRUE(make(hose()).ok());
  ASSERT_TRUE(make(service("Mowing")).ok());
  company.run(
      "INSERT INTO Items (ItemName, ItemType, PriceRate, ItemCat) VALUES ('Old tax', 'Sales Tax', 650, '1003SS')");
  company.run("UPDATE Items SET Cost = NULL, StockQty = 7, PriceRate = NULL WHERE ItemName = 'Hose'");
  const std::string before = value("SELECT COUNT(*) FROM History");
  for (const char* name : {"Hose", "Mowing", "Old tax"}) ASSERT_TRUE(edit(name).ok());
  EXPECT_EQ(value("SELECT COUNT(*) FROM History"), before);
  ASSERT_TRUE(edit("Hose", [](ItemForm& form) {
                form.PriceRate = "21";
                form.InitialQty = "99";
              }).ok());
  EXPECT_EQ(value("SELECT PriceRate || '/' || InitialQty || '/' || StockQty FROM Items WHERE ItemName = 'Hose'"),
            "210000/12.0/7.0")
      << "stock begins once";
}

TEST_F(Items, ParentsAreOfTheTypeAndFoundWithFullStops) {
  ASSERT_TRUE(make(service("Lawn Co. Inc.")).ok());
  ItemForm sub = service("Edging");
  sub.chkSubItem = true;
  sub.ParentItem = "Lawn Co. Inc.";
  ASSERT_TRUE(make(sub).ok());
  ASSERT_TRUE(make(hose()).ok());
  company.run("INSERT INTO Items (ItemName, ItemType, ParentItem) VALUES ('Lost', 'Service', 'gone')");
  EXPECT_EQ(list(false), "0Hose;0Lawn Co. Inc.;1Edging;0Lost;") << "none is lost from sight";
  EXPECT_EQ(Items_To_Be_Parent(session, "Service", "Lawn Co. Inc."), Names{"Lost"});
  EXPECT_EQ(Items_To_Be_Parent(session, "Service", "Lost"), (Names{"Lawn Co. Inc.", "Edging"}));
  EXPECT_EQ(
      edit("Lawn Co. Inc.", [](ItemForm& form) { form.chkSubItem = true, form.ParentItem = "Edging"; }).fault->control,
      "cmbSubITem");
  EXPECT_EQ(edit("Hose", [](ItemForm& form) { form.chkSubItem = true, form.ParentItem = "Lost"; }).fault->control,
            "cmbSubITem");
  company.run("UPDATE Items SET Dormant = True WHERE ItemName = 'Lawn Co. Inc.'");
  EXPECT_EQ(list(false), "0Hose;0Lost;");
  company.run("UPDATE GeneralPrefs SET State = 'Type' WHERE Preference = 'ItemSort'");
  EXPECT_EQ(list(true), "0Hose;0Lawn Co. Inc.;1Edging;0Lost;");
}

TEST_F(Items, TheTypeOfAUsedItemStays) {
  ASSERT_TRUE(make(service("Mowing")).ok());
  const auto to_charge = [](ItemForm& form) { form.ItemType = "Other Charge"; };
  ASSERT_TRUE(edit("Mowing", to_charge).ok());
  company.run("INSERT INTO Transactions (TransNum, Type, Item) VALUES (1, 'Invoice', 'mowing')");
  EXPECT_EQ(edit("Mowing", [](ItemForm& form) { form.ItemType = "Service"; }).fault->box.text,
            "The type of this item stays \"Other Charge\", for it is used in 1 transaction.");
  ASSERT_TRUE(edit("Mowing", [](ItemForm& form) { form.ItemName = "Cutting"; }).ok());
  EXPECT_EQ(value("SELECT Item FROM Transactions"), "Cutting");
}

TEST_F(Items, AGroupKeepsItsLinesWithItselfInOneCommit) {
  ASSERT_TRUE(make(service("Mowing")).ok());
  ASSERT_TRUE(make(service("Edging")).ok());
  ItemForm kit{.ItemName = "Kit", .ItemType = "Group", .lines = {{"Mowing", "Front", 2}, {"Edging", "", {}}}};
  ASSERT_TRUE(make(kit).ok());
  EXPECT_EQ(value("SELECT COUNT(*) FROM History WHERE What LIKE 'item Kit*'"), "1");
  ASSERT_TRUE(edit("Kit", [](ItemForm& form) {
                form.ItemName = "Set";
                form.lines.pop_back();
              }).ok());
  EXPECT_EQ(Group_Lines(session, "Set"), (std::vector<GroupLine>{{"Mowing", "Front", 2}}));
  EXPECT_EQ(Group_Lines(session, "Kit").size(), 0u);
  EXPECT_EQ(edit("Set", [](ItemForm& form) { form.lines.push_back({"set"}); }).fault->control, "grdGroup");
  EXPECT_EQ(edit("Set", [](ItemForm& form) { form.lines.push_back({"Raking"}); }).fault->control, "grdGroup");
  ASSERT_TRUE(make({.ItemName = "Big", .ItemType = "Group", .lines = {{"Set"}}}).ok());
  EXPECT_EQ(edit("Set", [](ItemForm& form) { form.lines.push_back({"Big"}); }).fault->control, "grdGroup");

  ListRow mine(session, Item_Rows, "Set");
  ItemForm form = Item_Form(session, mine);
  company.run("INSERT INTO ItemGroups (GroupName, Item) VALUES ('Set', 'Edging')");  // a colleague
  form.Description = "Only this";
  ASSERT_TRUE(Save_Item(session, mine, form).ok());
  EXPECT_EQ(Group_Lines(session, "Set").size(), 2u) << "lines nobody touched here stay theirs";
  ListRow again(session, Item_Rows, "Set");
  form.lines.clear();
  EXPECT_TRUE(Save_Item(session, again, form).conflict->reload);
  EXPECT_EQ(Group_Lines(session, "Set").size(), 2u);

  company.prompts.answers = {true};
  ASSERT_TRUE(edit("Big", [](ItemForm& big) { big.lines.clear(); }).ok());
  EXPECT_TRUE(Delete_Named_Row(session, Item_Rows, NameList::Items, "Set"));
  EXPECT_EQ(value("SELECT COUNT(*) FROM ItemGroups WHERE GroupName = 'Set'"), "0");
}

TEST_F(Items, TwoPartsBecomeOneWithAllThatIsInStock) {
  ASSERT_TRUE(make(hose()).ok());
  ItemForm other = hose();
  other.ItemName = "Hoses";
  other.InitialQty = "3";
  other.TotalValue = "33";
  ASSERT_TRUE(make(other).ok());
  ASSERT_TRUE(make(service("Mowing")).ok());
  company.run("INSERT INTO Transactions (TransNum, Type, Item, Qty) VALUES (1, 'Bill', 'Hoses', 4)");
  EXPECT_EQ(edit("Hoses", [](ItemForm& form) { form.ItemName = "Mowing"; }).fault->box.title, "Merge Names");
  ASSERT_TRUE(edit("Hoses", [](ItemForm& form) { form.ItemName = "hose"; }).ok());
  EXPECT_EQ(value("SELECT COUNT(*) FROM Items"), "2");
  EXPECT_EQ(Stock_On_Hand(company.db(), "Hose"), 19);
  EXPECT_EQ(company.db().value("SELECT TotalValue FROM Items WHERE ItemName = 'Hose'").money(), Money::dollars(165));
}

}  // namespace
}  // namespace tallymere
