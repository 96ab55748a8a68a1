#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "core/store/history.h"
#include "core/store/recordset.h"
#include "support/simulated_disk.h"
#include "support/temp_folder.h"

namespace tallymere::store {
namespace {

using testing::SimulatedDisk;
using Fault = SimulatedDisk::Fault;

/// A writer that saves documents of three rows on a disk that fails at one writing call after the other. What it was told
/// is saved must be there, and nothing by halves, whatever the call, whatever the fault.
class Faults : public ::testing::Test {
 protected:
  Faults() {
    std::ofstream(file).close();  // the name is a real one, the content is on the simulated disk
    auto db = Database::CreateDatabase(file, FileKind::Company);
    Transaction make(*db, "make");
    db->CreateTableDef(TableDef{"Ledger", {}, {}}
                           .CreateField("Number", FieldType::Long)
                           .CreateField("Memo", FieldType::Text)
                           .CreateIndex("Number", "Number"));
    db->CreateTableDef(TableDef{"Sums", {}, {}}.CreateField("Count", FieldType::Long));
    db->Execute("INSERT INTO Sums (Count) VALUES (0)");
    make.commit();
    for (int number = -40; number < 0; ++number) save(*db, number);
    told.clear();
    db.reset();
    start = disk.content();
  }

  static bool save(Database& db, int number) try {
    Transaction tx(db, "Document " + std::to_string(number));
    for (int row = 0; row < 3; ++row)
      db.Execute("INSERT INTO Ledger (Number, Memo) VALUES (?, ?)",
                 {number, std::string(static_cast<size_t>(300 * (row + number % 5 + 5)), 'm')});
    db.Execute("DELETE FROM Ledger WHERE Number = ?", {number - 30});
    db.Execute("UPDATE Sums SET Count = Count + 1");
    tx.commit();
    return true;
  } catch (const Error& error) {
    EXPECT_NE(error.number, errors::bad_statement) << error.what();
    return false;
  }

  /// Saves a few documents, goes on after a failure while the program lives, and comes to know which were told.
  void work(int first = 1) {
    std::unique_ptr<Database> db;
    try {
      db = Database::OpenDatabase(file, FileKind::Company, "", 0);
      for (int number = first; number < first + documents && !disk.is_dead(); ++number)
        if (save(*db, number)) told.insert(number);
    } catch (const Error& error) {
      EXPECT_NE(error.number, errors::bad_statement) << error.what();
    }
  }

  void expect_whole(const std::string& when) {
    auto db = Database::OpenDatabase(file, FileKind::Company, "", 0);
    ASSERT_TRUE(db->connection().integrity_faults().empty()) << when << ": " << db->connection().integrity_faults()[0];
    std::set<int> found;
    db->each("SELECT Number, COUNT(*) FROM Ledger WHERE Number > 0 GROUP BY Number", {}, [&](const Row& row) {
      found.insert(static_cast<int>(row.integer(0)));
      EXPECT_EQ(row.integer(1), 3) << when;
    });
    for (int number : told) EXPECT_TRUE(found.contains(number)) << when << ": told and lost " << number;
    EXPECT_EQ(db->value("SELECT Count FROM Sums").integer() - 40, std::ssize(found)) << when;
    EXPECT_EQ(db->value("SELECT COUNT(*) FROM History WHERE What LIKE 'Document*'").integer() - 40, std::ssize(found));
    EXPECT_TRUE(save(*db, 99)) << when;
  }

  /// Every writing call in turn, until the work ends without meeting the fault.
  void strike(Fault fault, unsigned chances = 1) {
    int call = 0;
    for (bool met = true; met && !HasFailure(); ++call) {
      for (unsigned chance = 0; chance < chances; ++chance) {
        disk.set_content(start);
        told.clear();
        disk.arm(fault, call + 1);
        work();
        met = disk.struck();
        disk.revive(chance);
        expect_whole("at call " + std::to_string(call + 1) + ", chance " + std::to_string(chance));
      }
    }
    EXPECT_GT(call, 60);
  }

  static constexpr int documents = 3;
  testing::TempFolder folder;
  std::filesystem::path file = folder / "a.cmf";
  SimulatedDisk disk;
  SimulatedDisk::Content start;
  std::set<int> told;
};

TEST_F(Faults, AProgramKilledAtAnyWriteLeavesNothingByHalves) { strike(Fault::Killed); }
TEST_F(Faults, AWriteTornInTheMidstLeavesNothingByHalves) { strike(Fault::Torn); }
TEST_F(Faults, APowerCutLosesNothingThatWasTold) { strike(Fault::PowerCut, 8); }
TEST_F(Faults, AWriteThatFailsOnceIsToldAndTheNextSaveHolds) { strike(Fault::Failing); }
TEST_F(Faults, OnAFullDiskWhatWasToldIsKept) { strike(Fault::Full); }

TEST_F(Faults, APowerCutWhileTheLastOneIsMendedLosesNothing) {
  for (int call = 5; call < 60; call += 3)
    for (int second = 1; second < 12; ++second) {
      disk.set_content(start);
      told.clear();
      disk.arm(Fault::PowerCut, call);
      work();
      disk.revive(static_cast<unsigned>(second));
      disk.arm(Fault::PowerCut, second);
      work(1 + documents);
      disk.revive(static_cast<unsigned>(call));
      expect_whole("at call " + std::to_string(call) + " and " + std::to_string(second));
    }
}

}  // namespace
}  // namespace tallymere::store
