#include "core/ledger/category_list.h"

#include "core/company/folder.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace tallymere {
namespace {

class CategoryListTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Prepare_Folder(folder.path(), testing::data_folder);
    db = Open_Current(folder / "Model.mdb", store::FileKind::Model);
    store::Transaction clear(*db, "clear");
    db->Execute("DELETE FROM Accounts");
    clear.commit();
  }
  void category(const char* id, const char* name, const char* type, const char* parent = "", bool dormant = false) {
    store::Transaction add(*db, "category");
    db->Execute("INSERT INTO Accounts (CatID, AccountName, AccountType, ParentAccount, Dormant) VALUES (?,?,?,?,?)",
                {id, name, type, parent, dormant});
    add.commit();
  }
  void item(const char* name, const char* type, const char* parent, bool dormant = false) {
    store::Transaction add(*db, "item");
    db->Execute("INSERT INTO Items (ItemName, ItemType, ParentItem, Dormant) VALUES (?,?,?,?)",
                {name, type, parent, dormant});
    add.commit();
  }
  template <typename Rows, typename Name>
  static std::string shown(const Rows& rows, Name name) {
    std::string text;
    for (const auto& row : rows) text += Indented(row.*name, row.level) + "\n";
    return text;
  }
  std::string categories(bool show_dormant) {
    return shown(Make_Category_List(*db, show_dormant), &CategoryRow::AccountName);
  }

  testing::TempFolder folder;
  std::unique_ptr<store::Database> db;
};

TEST_F(CategoryListTest, GroupsByTypeInTheirOrderAndIndentsFiveBlanksPerLevel) {
  category("1SS", "Rent", "Expense");
  category("2SS", "savings", "Bank");
  category("3SS", "Checking", "bank");
  category("4SS", "Payroll", "Bank", "3ss");
  category("5SS", "Tips", "Income", "4SS");
  category("6SS", "Advances", "Bank", "3SS");
  category("7SS", "Stray", "Nonsense");
  category("8SS", "Orphan", "Bank", "99SS");
  EXPECT_EQ(categories(true), "Checking\n     Advances\n     Payroll\n          Tips\nsavings\nRent\n");
}

TEST_F(CategoryListTest, ADormantParentHidesWhatIsBelowIt) {
  category("1SS", "Old Bank", "Bank", "", true);
  category("2SS", "Petty Cash", "Bank", "1SS");
  category("3SS", "Bank", "Bank");
  category("4SS", "Closed", "Bank", "3SS", true);
  EXPECT_EQ(categories(false), "Bank\n");
  EXPECT_EQ(categories(true), "Bank\n     Closed\nOld Bank\n     Petty Cash\n");
}

TEST_F(CategoryListTest, RowsThatNameEachOtherAsParentsEndTheWalk) {
  category("1SS", "A", "Bank", "2SS");
  category("2SS", "B", "Bank", "1SS");
  category("3SS", "C", "Bank", "3SS");
  EXPECT_EQ(categories(true), "");
  category("3SS", "Top", "Bank");  // the same id twice: the walk below it never ends by itself
  EXPECT_EQ(Make_Category_List(*db, true).size(), 2u);
}

TEST_F(CategoryListTest, TheDropDownOrdersTopRowsByTheTextOfTheirType) {
  category("1SS", "Rent", "Expense");
  category("2SS", "Checking", "Bank", "", true);
  category("3SS", "Odd", "A type of its own");
  category("4SS", "Visa", "Credit Card");
  category("5SS", "Fuel", "Expense", "4SS");
  EXPECT_EQ(shown(Make_Expense_List(*db), &CategoryRow::AccountName), "Odd\nChecking\nVisa\n     Fuel\nRent\n");
}

TEST_F(CategoryListTest, ItemsByNameOrByTypeWithTheirSubItems) {
  item("Wall", "Service", "");
  item("O'Brien's", "Service", "Wall");
  item("Deluxe", "Service", "o'brien's");
  item("Bolt", "Part", "");
  item("Gone", "Discount", "", true);
  const auto list = [&](ItemOrder order, bool dormant) {
    return shown(Make_Item_List(*db, order, dormant), &ItemRow::ItemName);
  };
  EXPECT_EQ(list(ItemOrder::Name, true), "Bolt\nGone\nWall\n     O'Brien's\n          Deluxe\n");
  EXPECT_EQ(list(ItemOrder::TypeThenName, true), "Gone\nBolt\nWall\n     O'Brien's\n          Deluxe\n");
  EXPECT_EQ(list(ItemOrder::Name, false), "Bolt\nWall\n     O'Brien's\n          Deluxe\n");
}

}  // namespace
}  // namespace tallymere
