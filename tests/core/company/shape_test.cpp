#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>

#include "core/backup/clsHuffman.h"
#include "core/ledger/category_list.h"
#include "core/ledger/category_tree.h"
#include "support/backup_company.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;

/// A company file that somebody else had in hand.
class Shape : public testing::BackupCompany {
 protected:
  /// As any SQLite tool may change it, the company being closed.
  static void change(const fs::path& company, const std::string& sql) {
    sqlite3* raw = nullptr;
    ASSERT_EQ(sqlite3_open(company.c_str(), &raw), SQLITE_OK);
    char* words = nullptr;
    sqlite3_exec(raw, sql.c_str(), nullptr, nullptr, &words);
    EXPECT_EQ(words, nullptr) << sql << ": " << words;
    sqlite3_free(words);
    sqlite3_close(raw);
  }
  static std::string why_not(const std::function<void()>& work) {
    try {
      work();
      return "done";
    } catch (const store::Error& fault) {
      EXPECT_EQ(std::string(fault.what()).find_first_of("\n\x1b"), std::string::npos);
      return fault.what();
    } catch (const std::exception& fault) {
      ADD_FAILURE() << "words of a programmer: " << fault.what();
      return fault.what();
    }
  }
  std::string opening(const std::string& name) {
    return why_not([&] { Open_Company_File(session, file(name)), Set_Recordsets(session); });
  }
};

TEST_F(Shape, WhatNoCompanyHoldsIsRefusedAtTheDoorInOnePlainLine) {
  const std::pair<const char*, const char*> cases[] = {
      {"CREATE TRIGGER t AFTER INSERT ON Transactions BEGIN DELETE FROM Accounts; END", "a trigger"},
      {"CREATE VIEW \"x\ny\" AS SELECT 1", "query of another program, \"x\\ny\""},
      {"CREATE VIEW Items_decimal2 AS SELECT 1", "query of another program"},
      {"DROP VIEW Items_decimal; CREATE VIEW Items_decimal AS SELECT 1", "query of another program"},
      {"DROP VIEW VENandCustList; CREATE VIEW VENandCustList AS SELECT 'x' AS Name", "query of another program"},
      {"CREATE VIRTUAL TABLE v USING fts5(a)", "a virtual table"},
      {"DROP TABLE Transactions", "asks for what is not there"},
      {"DROP VIEW Transactions_decimal; DROP TABLE Transactions", "table Transactions is missing"},
      {"DROP VIEW Transactions_decimal; DROP TABLE Transactions; CREATE VIEW Transactions AS SELECT 1 AS TransNum",
       "Transactions"},
      {"DROP TABLE StorePassword", "table StorePassword is missing"},
      {"DROP TABLE StorePassword; CREATE VIEW StorePassword AS WITH RECURSIVE n(Salt, Hash) AS (SELECT 1, 2 UNION ALL"
       " SELECT Salt + 1, 2 FROM n) SELECT Salt, Hash FROM n WHERE Salt < 0",
       "table StorePassword"},
      {"DROP TABLE History", "table History is missing"},
      {"ALTER TABLE Terms RENAME COLUMN Days TO Weeks", "field Days of its table Terms is missing"},
      {"DROP TABLE Terms; CREATE TABLE Terms (RowKey INTEGER PRIMARY KEY, Term TEXT, Days TEXT)", "of another kind"},
      {"DROP TABLE Terms; CREATE TABLE Terms (RowKey INTEGER PRIMARY KEY, Term TEXT, Days SHORT INTEGER AS (Term))",
       "of another kind"},
      {"DROP TABLE Terms; CREATE TABLE Terms (Term TEXT PRIMARY KEY, Days SHORT INTEGER) WITHOUT ROWID", "Terms"},
      {"CREATE TABLE Time20260105 (RowKey INTEGER PRIMARY KEY, SSNum BLOB)", "table Time20260105"},
      {"DELETE FROM CompanyInfo", "one company"},
  };
  Leave_Company(session);
  for (const auto& [sql, words] : cases) {
    fs::copy_file(file("Acme.cmf"), file("Evil.cmf"), fs::copy_options::overwrite_existing);
    change(file("Evil.cmf"), sql);
    EXPECT_NE(opening("Evil.cmf").find(words), std::string::npos) << sql << "\n" << opening("Evil.cmf");
    clsHuffman().EncodeFile(file("Evil.cmf"), file("evil.cbk"));
    const std::string said = why_not([&] { restore(file("evil.cbk"), "New.cmf"); });
    EXPECT_NE(said.find("evil.cbk"), std::string::npos) << sql << "\n" << said;
    EXPECT_FALSE(fs::exists(file("New.cmf"))) << sql;
    change(file("Evil.cmf"), "PRAGMA user_version = 1");  // an older one is looked at before it is converted
    if (std::string(sql).find("VIEW Transactions AS") != std::string::npos) {
      EXPECT_NE(opening("Evil.cmf").find(words), std::string::npos) << opening("Evil.cmf");
    }
  }
  EXPECT_EQ(opening("Acme.cmf"), "done");
}

TEST_F(Shape, WhatIsNoFileOrOfNoLettersOfOursIsRefusedWithoutWaiting) {
  Leave_Company(session);
  ASSERT_EQ(mkfifo(file("pipe.cmf").c_str(), 0600), 0);
  fs::create_symlink("loop.cmf", file("loop.cmf"));
  fs::create_directory(file("folder.cmf"));
  change(file("wide.cmf"), "PRAGMA encoding = 'UTF-16'; PRAGMA application_id = 0x544C5943; CREATE TABLE t (a)");
  const std::pair<const char*, const char*> cases[] = {{"pipe.cmf", "is no file"},
                                                       {"loop.cmf", "Could not find file"},
                                                       {"folder.cmf", "is no file"},
                                                       {"wide.cmf", "not UTF-8"}};
  for (const auto& [name, words] : cases) EXPECT_NE(opening(name).find(words), std::string::npos) << opening(name);
}

TEST_F(Shape, ATextWithoutEndIsToldAndFillsNoMemory) {
  Leave_Company(session);
  change(file("Acme.cmf"), "UPDATE CompanyInfo SET Name = printf('%.*c', 70000000, 'x')");
  EXPECT_EQ(opening("Acme.cmf"), "A text is too long.");
}

/// A chain of a hundred thousand, a circle, one that is its own parent, and ids that stand for several.
TEST_F(Shape, CategoriesOfAnyDepthOrInACircleEndEveryWalk) {
  Leave_Company(session);
  change(
      file("Acme.cmf"),
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 100000)"
      " INSERT INTO Accounts (CatID, AccountName, AccountType, ParentAccount)"
      " SELECT 'd' || i, 'Deep ' || i, 'Bank', CASE i WHEN 1 THEN NULL ELSE 'd' || (i - 1) END FROM n;"
      "INSERT INTO Accounts (CatID, AccountName, AccountType, ParentAccount) VALUES"
      " ('c1', 'One', 'Bank', 'c2'), ('c2', 'Two', 'Bank', 'c1'), ('s', 'Self', 'Bank', 's'),"
      " ('X', 'Many', 'Bank', NULL), ('X', 'Many', 'Bank', 'X'), ('x', 'Many', 'Bank', 'X'), ('X', 'More', 'Bank', 'X')");
  open("Acme");
  const auto tree = CategoryTree::Load(*session.dbCompany);
  EXPECT_EQ(tree.descendants("d1").size(), 99999u);
  EXPECT_EQ(tree.descendants("c1").size(), 1u);
  EXPECT_EQ(tree.descendants("s").size(), 0u);
  EXPECT_EQ(tree.children("X").size(), 0u);
  int shown = 0;
  for (const CategoryRow& row : Make_Category_List(*session.dbCompany, true)) shown += row.AccountName == "Many";
  EXPECT_EQ(shown, 3);
}

}  // namespace
}  // namespace tallymere
