#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <thread>

#include "core/store/recordset.h"
#include "support/temp_folder.h"

namespace tallymere::store {
namespace {

using tallymere::testing::TempFolder;

int Number_Of(const std::function<void()>& work) {
  try {
    work();
  } catch (const Error& error) {
    return error.number;
  }
  return 0;
}

/// A company file with one small table, and as many users of it as a test wants.
class Store : public ::testing::Test {
 protected:
  Store() {
    db = Database::CreateDatabase(folder / "a.cmf", FileKind::Company);
    Transaction make(*db, "make");
    db->CreateTableDef(TableDef{"Bills", {}, {}}
                           .CreateField("Name", FieldType::Text)
                           .CreateField("Amount", FieldType::Money)
                           .CreateField("Due", FieldType::Date)
                           .CreateField("Paid", FieldType::Flag)
                           .CreateField("Qty", FieldType::Double)
                           .CreateIndex("ByName", "Name"));
    make.commit();
  }
  void add(const std::string& name, Money amount) {
    Transaction tx(*db, "add " + name);
    auto table = db->OpenTable("Bills");
    table->AddNew();
    (*table)["Name"] = name;
    (*table)["Amount"] = amount;
    table->Update();
    tx.commit();
  }
  std::unique_ptr<Database> second_user() { return Database::OpenDatabase(folder / "a.cmf", FileKind::Company, "", 0); }

  TempFolder folder;
  std::unique_ptr<Database> db;
};

TEST_F(Store, FieldsComeBackAsTheyWereTyped) {
  Transaction tx(*db, "types");
  auto bills = db->OpenTable("Bills");
  bills->AddNew();
  (*bills)["Name"] = "Ünï'code";
  (*bills)["Amount"] = "$1,234.5678";
  (*bills)["Due"] = "2/29/2024";
  (*bills)["Paid"] = true;
  (*bills)["Qty"] = 0.1;
  bills->Update();
  bills->MoveFirst();
  EXPECT_EQ((*bills)["name"].text(), "Ünï'code");
  EXPECT_EQ((*bills)["Amount"].money(), Money::from_units(12345678));
  EXPECT_EQ((*bills)["Due"].date(), Date(2024, 2, 29));
  EXPECT_TRUE((*bills)["Paid"].flag());
  EXPECT_EQ((*bills)["Qty"].number(), 0.1);
  EXPECT_EQ(bills->Fields().size(), 5u) << "the hidden key is not a field";
  EXPECT_EQ(db->value("SELECT Paid FROM Bills WHERE Due = #2/29/2024# AND Name LIKE 'ÜNÏ*' OR Paid = False").text(),
            "True");
  EXPECT_EQ(db->value("SELECT Amount FROM Bills WHERE Paid = True").money(), Money::from_units(12345678));
  EXPECT_EQ(Number_Of([&] { (*bills)["Nmae"]; }), errors::no_such_field);
  bills->Edit();
  EXPECT_EQ(Number_Of([&] { (*bills)["Amount"] = "twelve"; }), errors::conversion);
  EXPECT_EQ(Number_Of([&] { (*bills)["Due"] = "2/30/2024"; }), errors::conversion);
}

TEST_F(Store, ATableIsWalkedInTheOrderOfItsIndexAndSoughtWithoutCase) {
  for (auto name : {"delta", "Alpha", "charlie", "", "Alpha"}) add(name, Money::dollars(1));
  {
    Transaction tx(*db, "a bill without a name");
    db->Execute("INSERT INTO Bills (Amount) VALUES (?)", {Money::dollars(9)});
    tx.commit();
  }
  auto bills = db->OpenTable("Bills");
  bills->Index("byname");
  std::vector<std::string> forth, back;
  for (bills->MoveFirst(); !bills->Eof(); bills->MoveNext()) forth.push_back((*bills)["Name"].text());
  for (bills->MoveLast(); !bills->BOF(); bills->MovePrevious()) back.push_back((*bills)["Name"].text());
  EXPECT_EQ(forth, (std::vector<std::string>{"", "", "Alpha", "Alpha", "charlie", "delta"}));
  std::reverse(back.begin(), back.end());
  EXPECT_EQ(back, forth);

  EXPECT_TRUE(bills->Seek("=", "ALPHA"));
  bills->MoveNext();
  EXPECT_EQ((*bills)["Name"].text(), "Alpha") << "the second of two equal keys follows the first";
  bills->MoveNext();
  EXPECT_EQ((*bills)["Name"].text(), "charlie");
  EXPECT_FALSE(bills->Seek("bravo"));
  EXPECT_TRUE(bills->NoMatch());
  EXPECT_EQ(Number_Of([&] { (*bills)["Name"].text(); }), errors::no_current_record);
  EXPECT_EQ(bills->RecordCount(), 6);
}

TEST_F(Store, AChangeByAnotherUserIsNeverWrittenOver) {
  add("Acme", Money::dollars(10));
  add("Bolt", Money::dollars(20));
  auto other = second_user();
  auto mine = db->OpenRecordset("SELECT * FROM Bills ORDER BY Name");
  auto theirs = other->OpenRecordset("SELECT * FROM Bills WHERE Name = ?", {"ACME"});
  {
    Transaction tx(*other, "theirs");
    theirs.Edit();
    theirs["Name"] = "ACME";  // only the case differs, and that too is a change
    theirs.Update();
    tx.commit();
  }
  {
    Transaction tx(*db, "mine");
    mine.Edit();
    EXPECT_EQ(Number_Of([&] { mine.Update(); }), errors::data_changed) << "an Edit without change asks all the same";
    EXPECT_EQ(Number_Of([&] { mine.Delete(); }), errors::data_changed);
  }
  Transaction tx(*db, "mine again");
  mine.MoveFirst();
  mine.Edit();
  mine["Amount"] = Money::dollars(11);
  mine.Update();
  tx.commit();
  EXPECT_EQ(other->value("SELECT Amount FROM Bills WHERE Name = 'Acme'").money(), Money::dollars(11));
}

TEST_F(Store, ALockThatStaysIs3218AndNothingIsWritten) {
  auto other = second_user();
  Transaction theirs(*other, "long work");
  const auto patience = std::exchange(Connection::lock_patience, std::chrono::milliseconds(300));
  auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(Number_Of([&] { Transaction mine(*db, "mine"); }), errors::locked);
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::exchange(Connection::lock_patience, patience));
  EXPECT_FALSE(db->writing_scope());
}

TEST_F(Store, ARowWithoutATextIsFoundWhereAnEmptyOneIs) {
  add("Rent", Money::dollars(1));
  add("", Money::dollars(2));
  {
    Transaction tx(*db, "a bill without a name");
    db->Execute("INSERT INTO Bills (Amount) VALUES (?)", {Money::dollars(4)});
    tx.commit();
  }
  const auto sum = [&](const std::string& condition, const Database::Params& params = {}) {
    return db->value("SELECT SUM(Amount) FROM Bills WHERE " + condition, params).integer() / 10000;
  };
  EXPECT_EQ(sum("Name <> 'rent'"), 6);
  EXPECT_EQ(sum("Name <> ?", {"RENT"}), 6);
  EXPECT_EQ(sum("Name NOT IN ('RENT', 'x')"), 6);
  EXPECT_EQ(sum("Name = ''"), 6);
  EXPECT_EQ(sum("Name = ?", {""}), 6);
  EXPECT_EQ(sum("Name <> ''"), 1);
  EXPECT_EQ(sum("Name LIKE '*'"), 7);
  EXPECT_EQ(sum("Name NOT LIKE 'R*'"), 6);
  EXPECT_EQ(sum("Name LIKE 'x*'"), 0);
  auto set = db->OpenRecordset("SELECT * FROM Bills WHERE Name = ? ORDER BY Amount DESC", {""});
  EXPECT_EQ(set["Amount"].money(), Money::dollars(4));
  EXPECT_TRUE(set.FindFirst("Name <> 'Rent' AND Amount < 30000"));
  std::string steps;
  db->each("EXPLAIN QUERY PLAN SELECT Amount FROM Bills WHERE Name = ?", {""},
           [&](const Row& row) { steps += row.text(3), steps += ' '; });
  EXPECT_THAT(steps, ::testing::Not(::testing::HasSubstr("SCAN"))) << steps;
}

TEST_F(Store, ADynasetKeepsItsOrderFindsAndPassesOverTheDeleted) {
  for (int i = 1; i <= 5; ++i) add("Bill " + std::to_string(i), Money::dollars(i));
  auto set =
      db->OpenRecordset("SELECT Name, Amount FROM Bills WHERE Amount > ? ORDER BY Amount DESC", {Money::dollars(1)});
  EXPECT_EQ(set.RecordCount(), 4);
  EXPECT_TRUE(set.FindFirst("Name = ?", {"bill 3"}));
  EXPECT_EQ(set["Amount"].money(), Money::dollars(3));
  EXPECT_FALSE(set.FindFirst("Name = 'Bill 1'")) << "that row is not in the set";
  EXPECT_EQ(set["Amount"].money(), Money::dollars(3)) << "a failed find stays where it was";
  {
    Transaction tx(*db, "delete");
    db->Execute("DELETE FROM Bills WHERE Name = 'Bill 4'");
    tx.commit();
  }
  set.MovePrevious();
  EXPECT_EQ(set["Name"].text(), "Bill 5");
  set.MovePrevious();
  EXPECT_TRUE(set.BOF());
  set.MoveFirst();
  set.MoveNext();
  EXPECT_EQ(set["Name"].text(), "Bill 3");

  auto sums = db->OpenRecordset("SELECT Paid, COUNT(*) FROM Bills GROUP BY Paid");
  EXPECT_EQ(Number_Of([&] { sums.Edit(); }), errors::read_only);
  auto empty = db->OpenRecordset("SELECT * FROM Bills WHERE Name = 'nobody'");
  EXPECT_TRUE(empty.Eof() && empty.empty());
}

TEST_F(Store, ATransactionIsAllOrNothing) {
  {
    Transaction tx(*db, "undone");
    db->Execute("INSERT INTO Bills (Name) VALUES ('lost')");
  }
  {
    Transaction outer(*db, "kept");
    db->Execute("INSERT INTO Bills (Name) VALUES ('kept')");
    {
      Transaction inner(*db, "inner undone");
      db->Execute("INSERT INTO Bills (Name) VALUES ('inner')");
    }
    Transaction inner(*db, "inner kept");
    db->Execute("INSERT INTO Bills (Name) VALUES ('also')");
    inner.commit();
    outer.commit();
  }
  std::string names;
  db->each("SELECT Name FROM Bills ORDER BY RowKey", {}, [&](const Row& row) { names += row.text(0), names += ' '; });
  EXPECT_EQ(names, "kept also ");
  EXPECT_THROW(db->Execute("DELETE FROM Bills"), std::logic_error) << "one door: only a transaction writes";
}

TEST_F(Store, WhatWasUndoneCanBeSavedAgain) {
  add("Rent", Money::dollars(1));
  auto set = db->OpenRecordset("SELECT * FROM Bills");
  auto write = [&](Money amount) {
    set.Edit();
    set["Amount"] = amount;
    set.Update();
  };
  {
    Transaction kept(*db, "kept");
    write(Money::dollars(2));
    {
      Transaction undone(*db, "undone");
      write(Money::dollars(3));
      write(Money::dollars(4));
    }
    write(Money::dollars(5));
    kept.commit();
  }
  {
    Transaction undone(*db, "undone"), inner(*db, "inner");
    write(Money::dollars(6)), inner.commit();
  }
  auto other = second_user();
  Transaction again(*db, "again");
  EXPECT_NO_THROW(write(Money::dollars(7)));
  again.commit();
  Transaction theirs(*other, "theirs");
  other->Execute("UPDATE Bills SET Amount = ?", {Money::dollars(8)});
  theirs.commit();
  Transaction late(*db, "late");
  EXPECT_EQ(Number_Of([&] { write(Money::dollars(9)); }), errors::data_changed) << "another user's work still counts";
}

TEST_F(Store, NothingIsWrittenOnceTheEngineUndidTheWholeByItself) {
  add("Rent", Money::dollars(1));
  {
    Transaction tx(*db, "cut short");
    db->connection().execute("ROLLBACK");  // what it does itself on some failures of the disk
    EXPECT_EQ(Number_Of([&] { db->Execute("DELETE FROM Bills"); }), errors::no_transaction);
    EXPECT_EQ(Number_Of([&] { Transaction inner(*db, "inner"); }), errors::no_transaction);
    EXPECT_NE(Number_Of([&] { tx.commit(); }), 0);
  }
  EXPECT_EQ(db->value("SELECT COUNT(*) FROM Bills").integer(), 1);
  add("Next", Money::dollars(2));
}

TEST_F(Store, InASnapshotNothingChangesUntilItEnds) {
  add("Rent", Money::dollars(10));
  auto other = second_user();
  const auto sum = [&] { return db->value("SELECT SUM(Amount) FROM Bills").integer() / 10000; };
  const ChangeStamp before = db->change_stamp();
  std::thread writer;
  {
    const Snapshot moment(*db);
    EXPECT_EQ(sum(), 10);
    writer = std::thread([&] {
      Transaction tx(*other, "meanwhile");
      other->Execute("UPDATE Bills SET Amount = 990000");
      tx.commit();
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    const Snapshot inner(*db);
    EXPECT_EQ(sum(), 10);
    EXPECT_EQ(db->change_stamp(), before);
  }
  writer.join();
  EXPECT_EQ(sum(), 99);
  EXPECT_NE(db->change_stamp(), before);
  add("Phone", Money::dollars(1));  // writing goes on as ever
}

TEST_F(Store, WhatOtherProgramsDoToTheFileIsSeen) {
  add("Rent", Money::dollars(1));
  auto other = second_user();
  ASSERT_EQ(db->find_table("Time"), nullptr);
  {
    Transaction tx(*other, "time sheet");
    other->CreateTableDef(TableDef{"Time", {}, {}}.CreateField("SSNum", FieldType::Text));
    other->Execute("UPDATE Bills SET Paid = 1");  // True as most tools write it
    tx.commit();
  }
  EXPECT_TRUE(db->OpenTable("Time")->Eof());
  Transaction tx(*db, "edit");
  auto bills = db->OpenTable("Bills");
  bills->Edit();
  (*bills)["Amount"] = Money::dollars(2);
  EXPECT_NO_THROW(bills->Update());
}

TEST_F(Store, WrongFilesGetAClearErrorAndStayUntouched) {
  db->NewPassword("", "secret");
  auto open = [&](const std::string& name, FileKind kind, std::string_view connect, int version = 0) {
    return Number_Of([&] { Database::OpenDatabase(folder / name, kind, connect, version); });
  };
  EXPECT_EQ(open("a.cmf", FileKind::Company, "MS Access;pwd=secret;"), 0);
  EXPECT_EQ(open("a.cmf", FileKind::Company, "MS Access;pwd=Secret;"), errors::wrong_password);
  EXPECT_EQ(open("a.cmf", FileKind::Company, ""), errors::wrong_password);
  EXPECT_EQ(open("a.cmf", FileKind::Model, "MS Access;pwd=secret;"), errors::not_a_database);
  EXPECT_EQ(open("missing.cmf", FileKind::Company, ""), errors::file_not_found);
  EXPECT_FALSE(std::filesystem::exists(folder / "missing.cmf"));
  {
    Transaction tx(*db, "newer");
    db->set_version(7);
    tx.commit();
  }
  EXPECT_EQ(open("a.cmf", FileKind::Company, "MS Access;pwd=secret;", 6), errors::newer_file);

  std::ofstream(folder / "text.cmf") << std::string(5000, 'x');
  std::ofstream(folder / "empty.cmf");
  EXPECT_EQ(open("text.cmf", FileKind::Company, ""), errors::not_a_database);
  EXPECT_EQ(open("empty.cmf", FileKind::Company, ""), errors::not_a_database);
  EXPECT_EQ(Number_Of([&] { Database::CreateDatabase(folder / "text.cmf", FileKind::Company); }),
            errors::database_exists);
  EXPECT_EQ(Number_Of([&] { Database::CreateDatabase(folder / "no/such/a.cmf", FileKind::Company); }),
            errors::bad_path);
}

TEST_F(Store, DefinitionsReadBackAsTheyWereMade) {
  Transaction tx(*db, "more");
  db->add_field("Bills", {"1099Cat", FieldType::Memo});
  db->CreateQueryDef({"Names", "SELECT Name FROM Bills WHERE Paid = False"});
  db->create_reading_index("fast", "Bills", "Due, Amount", "Due IS NOT NULL");
  tx.commit();
  auto again = second_user();
  const TableDef* bills = again->find_table("bills");
  ASSERT_TRUE(bills);
  EXPECT_EQ(again->TableDefs().size(), 1u) << "the store's own tables stay hidden";
  EXPECT_EQ(bills->fields.back(), (Field{"1099Cat", FieldType::Memo}));
  ASSERT_EQ(bills->indexes.size(), 1u) << "a reading index is nothing to select";
  EXPECT_EQ(bills->indexes[0].name, "ByName");
  ASSERT_EQ(again->QueryDefs().size(), 1u) << "views for the eye are not stored queries";
  EXPECT_EQ(again->QueryDefs()[0].sql, "SELECT Name FROM Bills WHERE Paid = 0");
  EXPECT_EQ(again->value("SELECT COUNT(*) FROM Bills_decimal").integer(), 0);
}

}  // namespace
}  // namespace tallymere::store
