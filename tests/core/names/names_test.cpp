#include "core/names/names.h"

#include <gtest/gtest.h>

#include "core/company/schema.h"
#include "core/ledger/undo.h"
#include "core/names/name_faults.h"
#include "core/names/name_links.h"
#include "core/store/history.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;

struct Names : ::testing::Test {
  TestCompany company;
  Session& session = *company.session;

  void add(const char* table, const char* name, const char* parent = "") {
    const std::string field = std::string(table) == "Items" ? "ItemName" : "Name";
    const std::string up = std::string(table) == "Items" ? "ParentItem" : "ParentName";
    company.run(std::string("INSERT INTO ") + table + " (" + field + (*parent ? ", " + up : "") + ") VALUES (?" +
                    (*parent ? ", ?" : "") + ")",
                *parent ? store::Database::Params{name, parent} : store::Database::Params{name});
  }
  void entry(int64_t number, const char* type, const char* name, const char* source = "", const char* item = "") {
    company.run("INSERT INTO Transactions (TransNum, Type, Name, SourceName, Item) VALUES (?, ?, ?, ?, ?)",
                {number, type, name, source, item});
  }
  void rename(NameList list, const char* from, const char* to, Carry carry = Carry::Everywhere, bool merge = false) {
    store::Transaction tx(company.db(), "Renamed");
    Rename(session, list, from, to, carry, merge);
    tx.commit();
  }
  std::string value(const char* sql) { return company.db().value(sql).text(); }
};

TEST_F(Names, EveryLinkIsAFieldOfTheSchema) {
  for (const NameLink& link : Name_Links()) {
    const TableDef* table = find_table(link.table);
    ASSERT_TRUE(table && table->find_field(link.field)) << link.table << "." << link.field;
  }
}

TEST_F(Names, ANameThatSeveralListsHoldIsCarriedToItsOwnTransactionsOnly) {
  for (const char* table : {"Customers", "Vendors"}) add(table, "Baker");
  entry(1, "Invoice", "baker", "Product");
  entry(2, "Bill", "Baker");
  entry(3, "Check", "Baker", "Baker");  // to the vendor, for work at the customer's
  entry(4, "Ledger Entry", "Baker");
  rename(NameList::Customers, "Baker", "O'Baker");
  EXPECT_EQ(value("SELECT GROUP_CONCAT(Name) FROM (SELECT Name FROM Transactions ORDER BY TransNum)"),
            "O'Baker,Baker,Baker,O'Baker");
  EXPECT_EQ(value("SELECT SourceName FROM Transactions WHERE TransNum = 3"), "O'Baker");
  EXPECT_EQ(value("SELECT SourceName FROM Transactions WHERE TransNum = 1"), "Product");
  EXPECT_EQ(Spoken(Used_In(session, NameList::Vendors, "BAKER")), "2 transactions");

  company.run("DELETE FROM Customers");
  rename(NameList::Vendors, "Baker", "Miller");  // now the only one of that name
  EXPECT_EQ(value("SELECT COUNT(*) FROM Transactions WHERE Name = 'Miller'"), "2");
}

TEST_F(Names, ARenameGoesThroughTreesGroupsPapersAndTimeSheetsAndIsTakenBackWhole) {
  add("Items", "Hose");
  add("Items", "Nozzle", "hose");
  entry(1, "Invoice", "Ann", "Inventory Part", "HOSE");
  company.run("INSERT INTO ItemGroups (GroupName, Item) VALUES ('Kit', 'Hose'), ('Hose', 'Nozzle')");
  company.run("INSERT INTO POItems (POIndex, Item) VALUES (1, 'Hose')");
  {
    store::Transaction tx(company.db(), "Sheet");
    store::TableDef sheet{"Time20260104", {{"SSNum", FieldType::Text}, {"Item", FieldType::Text}}, {}};
    company.db().CreateTableDef(sheet);
    company.db().Execute("INSERT INTO Time20260104 (SSNum, Item) VALUES ('1', 'Hose')");
    tx.commit();
  }
  EXPECT_EQ(Spoken(Used_In(session, NameList::Items, "Hose")),
            "1 transaction, 1 sub-item, 1 group, 1 purchase order line and 1 time sheet line");
  const char* all =
      "SELECT (SELECT Item FROM Transactions) || (SELECT ParentItem FROM Items WHERE ItemName = 'Nozzle') ||"
      " (SELECT GROUP_CONCAT(GroupName || Item) FROM ItemGroups) || (SELECT Item FROM POItems) ||"
      " (SELECT Item FROM Time20260104)";
  const std::string before = value(all);
  rename(NameList::Items, "Hose", "Pipe");
  EXPECT_EQ(value(all), "PipePipeKitPipe,PipeNozzlePipePipe");
  Undo_Action(session, store::List_Actions(company.db(), 1).front().number);
  EXPECT_EQ(value(all), before);

  rename(NameList::Items, "Hose", "Tube", Carry::Lists);
  EXPECT_EQ(value(all), "HOSETubeKitTube,TubeNozzleHoseHose") << "what was entered keeps its name";
}

TEST_F(Names, ATakenNameIsRefusedAndMergedOnlyWhenAsked) {
  add("Vendors", "Acme");
  add("Vendors", "Acme Supply");
  entry(1, "Bill", "Acme");
  EXPECT_TRUE(Is_Taken(session, NameList::Vendors, "ACME supply"));
  EXPECT_FALSE(Is_Taken(session, NameList::Vendors, "ACME", "Acme"));
  EXPECT_THROW(rename(NameList::Vendors, "Acme", "acme supply"), store::Error);
  EXPECT_EQ(value("SELECT Name FROM Transactions"), "Acme");
  rename(NameList::Vendors, "Acme", "Acme Supply", Carry::Everywhere, true);
  EXPECT_EQ(value("SELECT Name FROM Transactions"), "Acme Supply");
  rename(NameList::Vendors, "Acme Supply", "ACME SUPPLY");  // only spelled in another way
  EXPECT_EQ(value("SELECT Name FROM Transactions"), "ACME SUPPLY");
}

TEST_F(Names, OnlyWhatNothingNamesIsDeleted) {
  add("Customers", "Ann");
  add("Customers", "Ann - House", "ann");
  EXPECT_EQ(Delete_Or_Why_Not(session, NameList::Customers, "Ann"), "it is used in 1 job");
  company.run("UPDATE Customers SET Balance = 1255000 WHERE Name = 'Ann - House'");
  EXPECT_EQ(Delete_Or_Why_Not(session, NameList::Customers, "Ann - House"), "it has a balance of $125.50");
  company.run("UPDATE Customers SET Balance = 0");
  EXPECT_EQ(Delete_Or_Why_Not(session, NameList::Customers, "Ann - House"), std::nullopt);
  EXPECT_EQ(Delete_Or_Why_Not(session, NameList::Customers, "Ann"), std::nullopt);
  EXPECT_EQ(value("SELECT COUNT(*) FROM Customers"), "0");

  // A group goes with its lines; of two rows of one name, which older files may have, one may always go.
  add("Items", "Kit");
  company.run("INSERT INTO ItemGroups (GroupName, Item) VALUES ('Kit', 'Hose')");
  EXPECT_EQ(Delete_Or_Why_Not(session, NameList::Items, "kit"), std::nullopt);
  EXPECT_EQ(value("SELECT COUNT(*) FROM ItemGroups"), "0");
  add("Vendors", "Acme");
  add("Vendors", "acme");
  entry(1, "Bill", "Acme");
  EXPECT_EQ(Name_Faults(company.db()), std::vector<std::string>{"2 rows of Vendors are named \"Acme\""});
  EXPECT_EQ(Delete_Or_Why_Not(session, NameList::Vendors, "Acme"), std::nullopt);
  EXPECT_EQ(Delete_Or_Why_Not(session, NameList::Vendors, "Acme"), "it is used in 1 transaction");
}

TEST_F(Names, CirclesAreSeenAndEndEveryWalk) {
  add("Customers", "A", "C");
  add("Customers", "B", "a");
  add("Customers", "D", "B");
  EXPECT_TRUE(Is_Below_Itself(session, NameList::Customers, "A", "d"));
  EXPECT_TRUE(Is_Below_Itself(session, NameList::Customers, "A", "A"));
  EXPECT_FALSE(Is_Below_Itself(session, NameList::Customers, "D", "A"));
  EXPECT_TRUE(Name_Faults(company.db()).empty());
  add("Customers", "C", "B");
  EXPECT_FALSE(Is_Below_Itself(session, NameList::Customers, "D", "C"));
  EXPECT_EQ(Name_Faults(company.db()).size(), 1u);
}

}  // namespace
}  // namespace tallymere
