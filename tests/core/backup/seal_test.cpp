#include "core/backup/seal.h"

#include <cstdlib>
#include <random>

#include "core/backup/clsHuffman.h"
#include "core/store/sql.h"
#include "support/backup_company.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;
using store::Connection;
using store::Statement;

std::vector<std::string> Texts(Connection& db, const std::string& sql) {
  std::vector<std::string> texts;
  for (Statement rows = db.prepare(sql); rows.step();) texts.emplace_back(rows.text(0));
  return texts;
}

/// All a file holds, as statements would write it; by another way than the seal goes.
std::string Dump_Of(const fs::path& file) {
  Connection db(file, Connection::Mode::ReadWrite);
  std::string dump;
  for (const char* name : {"application_id", "user_version", "encoding"})
    dump += Texts(db, std::string("PRAGMA ") + name).at(0) + "\n";
  for (const auto& sql : Texts(db, "SELECT type || name || coalesce(sql, '') FROM sqlite_schema ORDER BY 1"))
    dump += sql;
  for (const auto& table : Texts(db, "SELECT name FROM sqlite_schema WHERE type = 'table' ORDER BY name")) {
    std::string cells = "'" + table + "'";
    for (const auto& column : Texts(db, "SELECT name FROM pragma_table_info('" + table + "')"))
      cells += " || ',' || quote(" + store::Quoted(column) + ")";
    for (const auto& row : Texts(db, "SELECT " + cells + " FROM " + store::Quoted(table) + " ORDER BY rowid"))
      dump += row + "\n";
  }
  return dump;
}

class SealTest : public testing::BackupCompany {
 protected:
  void SetUp() override {
    BackupCompany::SetUp();
    for (int64_t n = 1; n <= 60; ++n)
      run("INSERT INTO Transactions (TransNum, Date, Account, Name, Memo, Debit, Qty) VALUES (?, ?, ?, ?, ?, ?, ?)",
          {n, Date(2026, 3, 17), "0SS", "Name " + std::to_string(n), "a memo of some length", Money::dollars(n),
           n / 3.0});
    made_ = backup();
    auto proven = Prove_Backup(made_, file("Proven.cmf"));
    ASSERT_TRUE(proven && proven->made);
    EXPECT_EQ(proven->company, "Acme");
    whole_ = Dump_Of(proven->file.path());
  }
  void write(const fs::path& to, const std::string& bytes) { std::ofstream(to, std::ios::binary) << bytes; }
  /// "" when it is refused, else what it would bring.
  std::string restored(const std::string& bytes) {
    write(file("damaged.cbk"), bytes);
    try {
      auto proven = Prove_Backup(file("damaged.cbk"), file("Proven.cmf"));
      return Dump_Of(proven->file.path());
    } catch (const store::Error&) {
      return {};
    } catch (const HuffmanError&) {
      return {};
    }
  }

  fs::path made_;
  std::string whole_;
};

/// One wound of a kind that disks and transfers make.
void Damage(std::string& bytes, std::mt19937& random) {
  const auto below = [&](size_t end) {
    return end == 0 ? 0 : std::uniform_int_distribution<size_t>(0, end - 1)(random);
  };
  const size_t at = below(bytes.size()), length = std::min(bytes.size() - at, 1 + below(600));
  switch (below(8)) {
    case 0:
    case 1:
      bytes[at] = static_cast<char>(bytes[at] ^ (1 << below(8)));
      break;
    case 2:
      for (size_t i = 0; i < std::min<size_t>(length, 40); ++i) bytes[at + i] = static_cast<char>(below(256));
      break;
    case 3:
      bytes.replace(at, length, length, '\0');
      break;
    case 4:
      bytes.erase(at, length);
      break;
    case 5:
      bytes.insert(at, length, 'x');
      break;
    case 6:
      bytes.replace(at, length, bytes.substr(below(bytes.size() - length + 1), length));
      break;
    default:
      bytes.resize(at);
  }
}

/// TALLYMERE_DAMAGED_BACKUPS says how many, for a longer night.
TEST_F(SealTest, NoDamagedBackupIsRestoredAltered) {
  const char* wanted = std::getenv("TALLYMERE_DAMAGED_BACKUPS");
  const int inputs = wanted ? std::atoi(wanted) : 240;
  const std::string packed = content(made_);
  clsHuffman().DecodeFile(made_, file("decoded.txt"));
  const std::string stored = "HE0\r" + content(file("decoded.txt"));
  ASSERT_EQ(restored(packed), whole_);
  ASSERT_EQ(restored(stored), whole_);
  int refused = 0;
  for (int input = 0; input < inputs; ++input) {
    std::mt19937 random(static_cast<uint32_t>(input));
    std::string bytes = input % 4 == 0 ? packed : stored;
    for (int wounds = 1 + input % 3; wounds > 0 && !bytes.empty(); --wounds) Damage(bytes, random);
    const std::string found = restored(bytes);
    EXPECT_TRUE(found.empty() || found == whole_) << "input " << input;
    refused += found.empty();
  }
  EXPECT_GT(refused, inputs / 2);
  EXPECT_EQ(leftovers(), "");
}

/// Changes that leave the file sound: only the seal can tell.
TEST_F(SealTest, WhateverIsNotAsItWasSealedIsNamed) {
  clsHuffman().DecodeFile(made_, file("decoded.txt"));
  const std::string decoded = content(file("decoded.txt"));
  const std::pair<const char*, const char*> cases[] = {
      {"UPDATE Transactions SET Debit = Debit + 1 WHERE TransNum = 7", "content of Transactions"},
      {"UPDATE Transactions SET Memo = CAST(Memo AS BLOB) WHERE TransNum = 7", "content of Transactions"},
      {"UPDATE Transactions SET Qty = Qty + 1e-15 WHERE TransNum = 1", "content of Transactions"},
      {"DELETE FROM History", "content of History"},
      {"UPDATE sqlite_sequence SET seq = 1 WHERE name = 'Transactions'", "content of sqlite_sequence"},
      {"DROP INDEX Transactions_Account", "Its tables"},
      {"CREATE TABLE More (a)", "Its tables"},
      {"DROP TABLE Colors; DROP VIEW IF EXISTS Colors_decimal", "is damaged"},
      {"PRAGMA user_version = 0", "Its tables"},
      {"UPDATE StoreSeal SET Digest = '2020-01-01 00:00:00' WHERE Name = '*made'", "Its tables"},
      {"DELETE FROM StoreSeal WHERE Name = 'Transactions'", "content of Transactions"},
      {"ALTER TABLE StoreSeal RENAME TO StoreSeam", "Its seal"},
      {"DROP TABLE StoreSeal; CREATE TABLE Colours AS SELECT 'tallymere-seal:' AS a", "Its seal"},
  };
  for (const auto& [change, named] : cases) {
    write(file("changed.txt"), decoded);
    { Connection(file("changed.txt"), Connection::Mode::ReadWrite).execute(change); }
    write(file("changed.cbk"), "HE0\r" + content(file("changed.txt")));
    try {
      Prove_Backup(file("changed.cbk"), file("Proven.cmf"));
      ADD_FAILURE() << change;
    } catch (const store::Error& fault) {
      EXPECT_EQ(fault.number, store::errors::file_damaged) << change;
      EXPECT_NE(std::string(fault.what()).find(named), std::string::npos) << change << ": " << fault.what();
    }
  }
}

/// A backup that was decoded by hand is a company as any other, and is sealed anew.
TEST_F(SealTest, ASealedCompanyCanBeOpenedAndBackedUpAgain) {
  clsHuffman().DecodeFile(made_, file("Hand.cmf"));
  open("Hand");
  remember("later");
  auto proven = Prove_Backup(backup("again.cbk"), file("Proven.cmf"));
  ASSERT_TRUE(proven && proven->made);
  EXPECT_NE(Dump_Of(proven->file.path()).find("'later'"), std::string::npos);
}

}  // namespace
}  // namespace tallymere
