#include "lists/small_lists.h"

#include "core/ledger/ledger.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;

std::string Texts(Session& session, const SmallList& list) {
  std::string texts;
  for (const SmallListRow& row : Small_List_Rows(session, list)) texts += row.text + ";";
  return texts;
}

TEST(SmallLists, TheGridEditsTheTableDirectly) {
  TestCompany company;
  Session& session = *company.session;
  SmallListRow north{0, "North"}, south{0, "South"}, empty;
  for (SmallListRow* row : {&south, &north, &empty}) Update_Small_List(session, Class_List, *row);
  EXPECT_EQ(Texts(session, Class_List), "North;South;");
  north.text = "Upper North";
  Update_Small_List(session, Class_List, north);
  Delete_From_Small_List(session, Class_List, south);
  EXPECT_EQ(Texts(session, Class_List), "Upper North;");
}

TEST(SmallLists, AValueTypedTwiceIsAddedOnce) {
  TestCompany company;
  for (const SmallList& list :
       {Class_List, OtherNames_List, Terms_List, PaymentMethod_List, VIA_List, RepNames_List, CustomerMessages_List}) {
    for (const char* typed : {"New value", "new VALUE", ""}) Add_If_New(*company.session, list, typed);
    EXPECT_EQ(Texts(*company.session, list), "New value;") << list.table;
  }
}

TEST(SmallLists, APayeeOfAnyOfTheFourListsIsKnown) {
  TestCompany company;
  Session& session = *company.session;
  company.run("INSERT INTO Employees (SSNum, Name) VALUES ('1', 'Ann O''Neill')");
  company.run("INSERT INTO OtherNames (Name) VALUES ('Landlord')");
  EXPECT_FALSE(Check_New_Payee(session, "Acme"));
  Add_Payee(session, "Acme", PayeeType::Vendor);
  Add_Payee(session, "Jones", PayeeType::Customer);
  for (const char* known : {"acme", "JONES", "Ann O'Neill", "Landlord", ""})
    EXPECT_TRUE(Check_New_Payee(session, known)) << known;
  EXPECT_FALSE(Check_New_Payee(session, "Acm"));
  EXPECT_EQ(VENandCustList(session), (std::vector<std::string>{"Acme", "Ann O'Neill", "Jones", "Landlord"}));
  // A payee made this way must show in lists that leave out what is dormant.
  for (const char* table : {"Vendors", "Customers"})
    EXPECT_EQ(company.db().value("SELECT COUNT(*) FROM " + std::string(table) + " WHERE Dormant = False").integer(), 1);
}

TEST(SmallLists, TheRegisterAsksForCategoriesItDoesNotKnow) {
  TestCompany company;
  Session& session = *company.session;
  EXPECT_FALSE(Check_New_Payee(session, std::string(break_down), 3));
  EXPECT_FALSE(Check_New_Payee(session, "checking", 3));
  const auto unknown = Check_New_Payee(session, "Gifts", 3);
  ASSERT_TRUE(unknown);
  EXPECT_EQ(unknown->AccountName, "Gifts");
  EXPECT_EQ(unknown->row, 3);
}

}  // namespace
}  // namespace tallymere
