#include "core/store/history.h"

#include <gtest/gtest.h>

#include "core/store/recordset.h"
#include "support/temp_folder.h"

namespace tallymere::store {
namespace {

class HistoryOf : public ::testing::Test {
 protected:
  HistoryOf() {
    db = Database::CreateDatabase(folder / "a.cmf", FileKind::Company);
    db->set_author({[] { return "Ann"; }, [] { return "2026-01-02 10:11:12"; }});
    db->set_caches([](auto&, auto& field) { return field == "Balance"; });
    Transaction make(*db, "make");
    db->CreateTableDef(
        TableDef{"Accounts", {}, {}}.CreateField("Name", FieldType::Text).CreateField("Balance", FieldType::Money));
    make.commit();
  }
  int64_t act(const std::string& what, const std::string& sql) {
    Transaction tx(*db, what);
    db->Execute(sql);
    tx.commit();
    return List_Actions(*db, 1).at(0).number;
  }
  int undo(int64_t number) {
    try {
      Transaction tx(*db, "Undo " + std::to_string(number));
      Revert_Changes(*db, number);
      tx.undoes(number);
      tx.commit();
      return 0;
    } catch (const Error& error) {
      return error.number;
    }
  }
  std::string names() {
    std::string list;
    db->each("SELECT Name FROM Accounts ORDER BY RowKey", {},
             [&](const Row& row) { list += row.text(0), list += ' '; });
    return list;
  }
  tallymere::testing::TempFolder folder;
  std::unique_ptr<Database> db;
};

TEST_F(HistoryOf, EveryCommitTellsWhoWhenWhatAndTheChange) {
  int64_t added = act("Add bank", "INSERT INTO Accounts (Name, Balance) VALUES ('Bank', 125000)");
  int64_t renamed = act("Rename", "UPDATE Accounts SET Name = 'Checking'");
  act("Nothing", "UPDATE Accounts SET Name = 'Checking'");
  auto actions = List_Actions(*db, 10);
  ASSERT_EQ(actions.size(), 2u) << "what changed nothing leaves nothing";
  EXPECT_EQ(actions[0].number, renamed);
  EXPECT_EQ(actions[1].user + " " + actions[1].at + " " + actions[1].what, "Ann 2026-01-02 10:11:12 Add bank");
  auto change = Changes_Of(*db, added).at(0);
  EXPECT_EQ(change.kind, RowChange::Kind::Added);
  EXPECT_EQ(change.cells.at(1).after, Value(Money::dollars(12, 50)));
  change = Changes_Of(*db, renamed).at(0);
  ASSERT_EQ(change.cells.size(), 1u);
  EXPECT_EQ(change.cells[0].before.text() + ">" + change.cells[0].after.text(), "Bank>Checking");
}

TEST_F(HistoryOf, AnyActionIsTakenBackWholeInAnyOrderUnlessLaterWorkStandsOnIt) {
  int64_t one = act("One", "INSERT INTO Accounts (Name) VALUES ('one')");
  int64_t two = act("Two", "INSERT INTO Accounts (Name) VALUES ('two'), ('too')");
  int64_t three = act("Three", "UPDATE Accounts SET Name = 'drei' WHERE Name = 'one'");
  EXPECT_EQ(undo(two), 0);
  EXPECT_EQ(names(), "drei ");
  EXPECT_EQ(undo(one), errors::undo_refused) << "its row was renamed since";
  EXPECT_EQ(names(), "drei ");
  EXPECT_EQ(undo(three), 0);
  EXPECT_EQ(undo(one), 0);
  EXPECT_EQ(names(), "");
  auto undo_of_two = List_Actions(*db, 10).at(2);
  EXPECT_EQ(undo_of_two.undoes, two);
  EXPECT_EQ(undo(undo_of_two.number), 0) << "an undo is an action like any other";
  EXPECT_EQ(names(), "two too ");
  EXPECT_EQ(undo(two), 0);
  EXPECT_EQ(undo(two), errors::undo_refused) << "twice is once too often";
}

/// What is rolled back on the way, fails, or comes to nothing is no part of the action.
TEST_F(HistoryOf, OnlyTheNetOfAnActionIsKept) {
  act("Before", "INSERT INTO Accounts (Name, Balance) VALUES ('kept', 10000), ('changed', 20000), ('gone', 30000)");
  {
    Transaction tx(*db, "Mixed");
    db->Execute("INSERT INTO Accounts (Name) VALUES ('come and gone')");
    db->Execute("UPDATE Accounts SET Name = 'wandered' WHERE Name = 'kept'");
    {
      Transaction inner(*db, "given up");
      db->Execute("DELETE FROM Accounts");
    }
    db->Execute("UPDATE Accounts SET Name = 'kept' WHERE Name = 'wandered'");
    EXPECT_THROW(db->Execute("INSERT INTO Accounts (RowKey, Name) VALUES (77, 'half'), (1, 'taken')"), Error);
    db->Execute("UPDATE Accounts SET Balance = ? WHERE Name = 'changed'", {Money::dollars(-3)});
    db->Execute("UPDATE Accounts SET Name = NULL, Balance = NULL WHERE Name = 'changed'");
    db->Execute("DELETE FROM Accounts WHERE Name IN ('gone', 'come and gone')");
    tx.commit();
  }
  int64_t mixed = List_Actions(*db, 1).at(0).number;
  auto changes = Changes_Of(*db, mixed);
  ASSERT_EQ(changes.size(), 2u);
  ASSERT_EQ(changes[0].cells.size(), 1u) << "a cache is no part of it";
  EXPECT_EQ(changes[0].cells[0].before.text(), "changed");
  EXPECT_EQ(changes[1].kind, RowChange::Kind::Deleted);
  EXPECT_EQ(undo(mixed), 0);
  EXPECT_EQ(names(), "kept changed gone ");
  EXPECT_TRUE(db->value("SELECT Balance FROM Accounts WHERE Name = 'changed'").is_null())
      << "a cache is worked out anew";
  EXPECT_EQ(db->value("SELECT Balance FROM Accounts WHERE Name = 'gone'").money(), Money::dollars(3));
  act("Worked out", "UPDATE Accounts SET Balance = 40000");
  EXPECT_NE(List_Actions(*db, 1).at(0).what, "Worked out") << "caches alone are no action";
}

TEST_F(HistoryOf, LongTextsAndEveryKindOfValueComeBackWhole) {
  {
    Transaction tx(*db, "more fields");
    db->add_field("Accounts", {"Notes", FieldType::Memo});
    db->add_field("Accounts", {"Rate", FieldType::Double});
    db->add_field("Accounts", {"Since", FieldType::Date});
    tx.commit();
  }
  std::string story(70000, 'x');
  story += "ende\xC3\xA9";
  auto fill = [&](const std::string& notes, double rate) {
    Transaction tx(*db, "fill");
    db->Execute("DELETE FROM Accounts");
    db->Execute("INSERT INTO Accounts (Name, Balance, Notes, Rate, Since) VALUES ('', -1, ?, ?, ?)",
                {notes, rate, Date(1999, 12, 31)});
    tx.commit();
  };
  fill(story, 2.0);
  fill(std::string(200, 'y'), -0.1);
  EXPECT_EQ(undo(List_Actions(*db, 1).at(0).number), 0);
  auto row = db->OpenRecordset("SELECT * FROM Accounts");
  EXPECT_EQ(row["Notes"].text(), story);
  EXPECT_EQ(row["Rate"].number(), 2.0);
  EXPECT_EQ(row["Since"].date(), Date(1999, 12, 31));
  EXPECT_EQ(row["Balance"].money().units(), -1);
}

TEST_F(HistoryOf, ARefreshedBalanceIsNoLaterWork) {
  int64_t added = act("Add", "INSERT INTO Accounts (Name, Balance) VALUES ('Bank', 0)");
  act("Updating Categories", "UPDATE Accounts SET Balance = 990000");
  auto open_in_a_window = db->OpenRecordset("SELECT * FROM Accounts");
  open_in_a_window.Edit();
  open_in_a_window["Name"] = "Checking";
  act("Updating Categories", "UPDATE Accounts SET Balance = 1");
  Transaction rename(*db, "Rename");
  EXPECT_NO_THROW(open_in_a_window.Update());
  EXPECT_EQ(names(), "Checking ");
  rename.commit();
  EXPECT_EQ(undo(added), errors::undo_refused);
  EXPECT_EQ(undo(List_Actions(*db, 1).at(0).number), 0);
  EXPECT_EQ(undo(added), 0);
  EXPECT_EQ(names(), "");
}

TEST_F(HistoryOf, AWholeQuantityIsTheSameNumberHoweverItIsKept) {
  {
    Transaction tx(*db, "more");
    db->add_field("Accounts", {"Qty", FieldType::Double});
    tx.commit();
  }
  int64_t added = act("Add", "INSERT INTO Accounts (Name, Qty, Balance) VALUES ('Bolt', 5.0, 0)");
  {
    Transaction same(*db, "Nothing");
    auto row = db->OpenRecordset("SELECT * FROM Accounts");
    row.Edit();
    row["Qty"] = 5;
    row.Update();
    same.commit();
  }
  act("Nothing", "UPDATE Accounts SET Qty = 5");
  EXPECT_EQ(List_Actions(*db, 1).at(0).number, added) << "what changed nothing leaves nothing";
  act("Refresh", "UPDATE Accounts SET Balance = 990000");
  EXPECT_EQ(undo(added), 0);
  EXPECT_EQ(undo(List_Actions(*db, 1).at(0).number), 0);
  EXPECT_EQ(db->value("SELECT Qty FROM Accounts"), Value(5.0));
}

/// What the file holds in a change's place may be anything. It is read or refused, and taken back whole or not at all.
TEST_F(HistoryOf, ADamagedChangeIsRefusedInWords) {
  act("Before", "INSERT INTO Accounts (Name, Balance) VALUES ('kept', 1), ('changed', 2), ('gone', 3)");
  Transaction mixed(*db, "Mixed");
  db->Execute("UPDATE Accounts SET Name = 'other', Balance = NULL WHERE Name = 'changed'");
  db->Execute("DELETE FROM Accounts WHERE Name = 'gone'");
  db->Execute("INSERT INTO Accounts (Name, Balance) VALUES ('new', 1.5)");
  mixed.commit();
  const int64_t number = List_Actions(*db, 1).at(0).number;
  auto row = db->connection().prepare("SELECT Changes FROM History ORDER BY RowKey DESC");
  ASSERT_TRUE(row.step());
  const std::string sound = row.bytes(0);
  std::vector<std::string> damaged = {std::string("T\0", 2),
                                      "T",
                                      "T\x7F",
                                      std::string("T\x01\x01History\0\x12\0\x01", 13),
                                      "T\xFF\xFF\xFF\xFF\x7F",
                                      std::string("T\x01\x01x\0\x12\0\x03\xFF\xFF\xFF\x7F", 12),
                                      "x"};
  for (size_t at = 0; at < sound.size(); ++at) {
    damaged.push_back(sound.substr(0, at));
    for (int bit = 0; bit < 8; ++bit) {
      std::string& flipped = damaged.emplace_back(sound);
      flipped[at] = static_cast<char>(flipped[at] ^ 1 << bit);
    }
  }
  const auto before = names();
  int read = 0, refused = 0;
  for (const std::string& bytes : damaged) {
    Transaction damage(*db, "Damage");
    db->connection()
        .prepare("UPDATE History SET Changes = ? WHERE RowKey = ?")
        .bind_bytes(1, bytes)
        .bind(2, number)
        .run();
    try {
      Changes_Of(*db, number);
      ++read;
      Revert_Changes(*db, number);
    } catch (const Error& error) {
      EXPECT_TRUE(error.number == errors::file_damaged || error.number == errors::undo_refused) << error.what();
      EXPECT_EQ(names(), before) << "half of it";
      ++refused;
    }
  }
  EXPECT_GT(read, 100) << "a change of a letter is a change of a letter";
  EXPECT_GT(refused, 500);
  EXPECT_EQ(undo(number), 0);
  EXPECT_EQ(names(), "kept changed gone ");
}

TEST_F(HistoryOf, ABulkLoadIsOneLineThatCannotBeTakenBack) {
  {
    Transaction load(*db, "Import", Transaction::History::Summary);
    db->Execute("INSERT INTO Accounts (Name) VALUES ('a'), ('b')");
    load.commit();
  }
  auto action = List_Actions(*db, 1).at(0);
  EXPECT_EQ(action.what, "Import");
  EXPECT_FALSE(action.undoable);
  EXPECT_EQ(undo(action.number), errors::undo_refused);
  EXPECT_EQ(undo(99), errors::no_current_record);
}

}  // namespace
}  // namespace tallymere::store
