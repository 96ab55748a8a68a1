#include "core/company/company.h"

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>

#include <fstream>

#include "core/company/company_name.h"
#include "core/company/passwords.h"
#include "core/ledger/numbers.h"
#include "core/store/recordset.h"
#include "support/full_disk.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;
using tallymere::testing::ScriptedPrompts;
using tallymere::testing::TempFolder;
using tallymere::testing::TestCompany;

TEST(Company, ANewOneHoldsTheModelsRowsAndNoOthers) {
  TestCompany acme;
  auto& sets = acme.session->sets;
  for (auto id : {"AR1", "AP1", "UF1", "RE1", "OE1"}) {
    ASSERT_TRUE(sets.Accounts->Seek("=", id)) << id;
    EXPECT_EQ((*sets.Accounts)["OpeningDate"].date(), Date(2026, 6, 15));
  }
  EXPECT_TRUE(sets.GeneralPrefs->Seek("=", "DefaultBank"));
  EXPECT_EQ(sets.PayrollItems->RecordCount(), 6);
  sets.CompanyInfo->MoveFirst();
  EXPECT_EQ((*sets.CompanyInfo)["Name"].text() + (*sets.CompanyInfo)["UserMode"].text(), "AcmeSingle");
  for (auto table : {"Transactions", "Customers", "Terms", "Employees", "Items"})
    EXPECT_EQ(acme.db().value("SELECT COUNT(*) FROM " + std::string(table)).integer(), 0) << table;
  EXPECT_EQ(acme.db().QueryDefs().at(0).name, "VENandCustList");
  EXPECT_EQ(sets.Threshold->RecordCount() > 10, true) << "the shared sets are open too";
  EXPECT_EQ(Main_Title(*acme.session), "Acme - Main Display");
}

TEST(Company, EveryFieldCanBeNamedInAQueryAsItStands) {
  TestCompany company;
  for (const TableDef& table : company_tables()) {
    if (!company.db().find_table(table.name)) continue;
    for (const FieldDef& field : table.fields) {
      std::string name(field.name), from(table.name);
      auto rows = company.db().OpenRecordset("SELECT " + name + " FROM " + from + " WHERE " + name +
                                             " IS NOT NULL AND " + name + " <> '' ORDER BY " + name);
      EXPECT_TRUE(rows.has_field(name)) << from;
      company.run("UPDATE " + from + " SET " + name + " = " + name + " WHERE " + from + "." + name + " = ?", {""});
    }
  }
}

TEST(Company, ATakenNameIsRefusedAndNothingReplaced) {
  TestCompany acme;
  New_Company(*acme.session, "Acme");
  EXPECT_EQ(acme.session->LastCompanyError, 3204);
  ASSERT_EQ(acme.prompts.boxes.size(), 1u);
  EXPECT_EQ(acme.prompts.boxes[0].text, "Company name already exisits.");
  EXPECT_EQ(acme.db().value("SELECT Name FROM CompanyInfo").text(), "Acme");
  for (auto name : {"", "../up", "a/b", "con:", ".hidden"})
    EXPECT_THROW(New_Company(*acme.session, name), store::Error) << name;
}

TEST(Company, ANameIsOneThatAFileCanHave) {
  TestCompany acme;
  const std::string good[] = {"Acme Supply, Inc.",  "O'Brien & Söhne", "2026", "Console", "COM10", "a..b",
                              std::string(200, 'x')};
  for (const std::string& name : good) EXPECT_FALSE(Company_Name_Fault(name)) << name;
  const std::string bad[] = {"",
                             "  ",
                             "a/b",
                             "a\\b",
                             "a:b",
                             "..",
                             ".",
                             ".Acme",
                             "a\nb",
                             "a\tb",
                             "\x7f",
                             "con",
                             "NUL.x",
                             "Com1",
                             "lpt9 .a",
                             "a\u0085b",
                             "\xff",
                             "\xc3",
                             "a?",
                             "a*",
                             "a\"b",
                             "<a>",
                             "a|b",
                             std::string(201, 'x'),
                             std::string("a\0b", 3)};
  for (const std::string& name : bad) {
    const auto fault = Company_Name_Fault(name);
    ASSERT_TRUE(fault) << name;
    EXPECT_EQ(fault->title, "No Name");
    EXPECT_THROW(New_Company(*acme.session, name), store::Error) << name;
  }
  New_Company(*acme.session, " Beta ");
  Open_Company_File(*acme.session, acme.folder / "Beta.cmf");
  EXPECT_EQ(acme.db().value("SELECT Name FROM CompanyInfo").text(), "Beta");
}

TEST(Company, AFullDiskCostsNothingAndALogThatIsNoFileNoTime) {
  TestCompany acme;
  for (const rlim_t room : {0, 100'000, 300'000}) {
    const testing::FullDisk full(room);
    EXPECT_THROW(New_Company(*acme.session, "Beta"), store::Error) << room;
  }
  int files = 0;
  for (const auto& entry : fs::directory_iterator(acme.folder.path())) files += entry.is_regular_file();
  EXPECT_EQ(files, 4) << "Acme, two databases and the log";
  New_Company(*acme.session, "Beta");
  EXPECT_TRUE(fs::exists(acme.folder / "Beta.cmf"));

  fs::remove(acme.folder / "ErrorLog.txt");
  ASSERT_EQ(mkfifo((acme.folder / "ErrorLog.txt").c_str(), 0600), 0);
  acme.user()->log.write("frmMain", "Form_Load", 5, "nobody reads this");
}

TEST(Company, AFailedOpeningLeavesTheCurrentCompanyCurrent) {
  TestCompany acme;
  std::ofstream(acme.folder / "bad.cmf") << "not a database at all, only text of some length";
  EXPECT_THROW(Open_Company_File(*acme.session, acme.folder / "bad.cmf"), store::Error);
  EXPECT_THROW(Open_Company_File(*acme.session, acme.folder / "Model.mdb"), store::Error);
  EXPECT_EQ(acme.session->CompanyFile, "Acme.cmf");
  EXPECT_TRUE(acme.session->sets.Accounts->Seek("AR1"));
  Close_Sets(*acme.session);
  Set_Recordsets(*acme.session);
  Leave_Company(*acme.session);
  EXPECT_FALSE(acme.session->dbCompany || acme.session->company_open());
}

/// An older file lacks a table, fields and indexes: all come on opening, and what was there stays.
TEST(Company, AnOlderFileIsBroughtUpToDateOnOpening) {
  TestCompany acme;
  {
    store::Transaction tx(acme.db(), "make it old");
    acme.db().connection().execute(
        "DROP VIEW Transactions_decimal; DROP TABLE SavedReports; DROP INDEX Transactions_Account; DROP VIEW VENandCustList;"
        "DROP VIEW Applied_decimal; DROP TABLE Applied; DROP TABLE Marks;"
        "DROP INDEX Transactions_Item; CREATE INDEX Transactions_Item ON Transactions (Item) WHERE Item IS NOT NULL;"
        "ALTER TABLE Transactions DROP COLUMN Rep; PRAGMA user_version = 0;"
        "INSERT INTO Transactions (TransNum, Amount, Debit, PaidBy) VALUES (7, -70000, -70000, '31;')");
    tx.commit();
  }
  acme.open(*acme.session);
  EXPECT_EQ(acme.db().version(), schema_version);
  EXPECT_TRUE(acme.db().find_table("Transactions")->find("Rep"));
  EXPECT_TRUE(acme.db().find_table("SavedReports"));
  EXPECT_EQ(acme.db().QueryDefs().size(), 1u);
  for (const char* field : {"Amount", "Credit"})  // what stood signed is on the other side
    EXPECT_EQ(acme.db().value("SELECT " + std::string(field) + " FROM Transactions").money(), Money::dollars(7));
  EXPECT_EQ(Next_TransNum(acme.db()), 32) << "31 is named, so it was given";
  EXPECT_EQ(acme.db().value("SELECT COUNT(*) FROM pragma_index_info('Transactions_Account')").integer(), 7);
  EXPECT_EQ(acme.db().value("SELECT COUNT(*) FROM pragma_index_info('Transactions_Item')").integer(), 12);
  EXPECT_EQ(acme.db().value("SELECT At FROM History ORDER BY RowKey DESC").text().substr(0, 10), "2026-06-15");
}

/// Where names beyond ASCII stood in an index in another order, a search would pass them by.
TEST(Company, NamesOfAnOlderFileAreFoundWhateverTheirCase) {
  TestCompany acme;
  for (auto name : {"École", "eclair", "Zebra", "Ärzte", "ärmel", "Žižek", "ÿ", "Étude"})
    acme.run("INSERT INTO Customers (Name) VALUES (?)", {name});
  Close_Company_File(*acme.session);
  sqlite3* plain = nullptr;  // as a program that folds ASCII alone has it
  ASSERT_EQ(sqlite3_open((acme.folder / "Acme.cmf").c_str(), &plain), SQLITE_OK);
  EXPECT_EQ(sqlite3_exec(plain, "REINDEX; PRAGMA user_version = 2", nullptr, nullptr, nullptr), SQLITE_OK);
  sqlite3_close(plain);
  acme.open(*acme.session);
  auto& customers = *acme.session->sets.Customers;
  for (auto name : {"éCOLE", "ECLAIR", "zebra", "ärzte", "ÄRMEL", "žIŽEK", "Ÿ", "étude"})
    EXPECT_TRUE(customers.Seek(name)) << name;
  EXPECT_FALSE(customers.Seek("ecole"));
  EXPECT_EQ(acme.db().value("SELECT COUNT(*) FROM Customers WHERE Name LIKE 'É*'").integer(), 2);
  EXPECT_EQ(acme.db().value("SELECT COUNT(DISTINCT Name) FROM Customers WHERE Name IN ('ärzte', 'ÄRZTE')").integer(),
            1);
  EXPECT_TRUE(acme.db().connection().integrity_faults().empty());
}

TEST(Company, StepsOfAnUpgradeRunOnceInOrderAndAllOrNothing) {
  static std::string ran;
  ran.clear();
  TestCompany acme;
  const UpgradeStep steps[] = {{1, [](store::Database&) { ran += "1"; }},
                               {schema_version + 1, [](store::Database&) { ran += "a"; }},
                               {schema_version + 2, [](store::Database& db) {
                                  ran += "b";
                                  db.Execute("DELETE FROM Accounts");
                                  if (ran == "ab") throw store::Error(3026, "The disk is full.");
                                }}};
  auto upgrade = [&] { Upgrade(acme.db(), store::FileKind::Company, steps, schema_version + 2); };
  EXPECT_THROW(upgrade(), store::Error);
  EXPECT_EQ(acme.db().version(), schema_version);
  EXPECT_GT(acme.session->sets.Accounts->RecordCount(), 0);
  upgrade();
  upgrade();
  EXPECT_EQ(ran, "abab");
}

TEST(Company, TheProgramsFolderIsPreparedOnceAndAMissingShipmentIsSaidPlainly) {
  TempFolder folder;
  EXPECT_THROW(Prepare_Folder(folder.path(), folder / "nowhere"), store::Error);
  EXPECT_TRUE(fs::is_empty(folder.path()));
  Prepare_Folder(folder.path(), testing::data_folder);
  auto made = fs::last_write_time(folder / "Model.mdb");
  Prepare_Folder(folder.path(), testing::data_folder);
  EXPECT_EQ(fs::last_write_time(folder / "Model.mdb"), made);
}

TEST(Passwords, AreSaltedHashesComparedExactly) {
  std::string kept = Hash_Password("Secret");
  EXPECT_EQ(kept.find("Secret"), std::string::npos);
  EXPECT_NE(kept, Hash_Password("Secret"));
  EXPECT_TRUE(Password_Matches(kept, "Secret"));
  for (auto wrong : {"secret", "Secret ", "", "Secre"}) EXPECT_FALSE(Password_Matches(kept, wrong)) << wrong;
  EXPECT_TRUE(Password_Matches(Hash_Password(""), ""));
  EXPECT_FALSE(Password_Matches("", "x"));
}

}  // namespace
}  // namespace tallymere
