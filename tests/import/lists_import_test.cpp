#include "import/lists_import.h"

#include <gtest/gtest.h>

#include "core/ledger/transaction_writer.h"
#include "core/ledger/undo.h"
#include "core/ledger/verify.h"
#include "core/store/history.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;

/// "a|b|c" as a line of fields.
std::string Lines(std::initializer_list<std::string> lines) {
  std::string text;
  for (std::string line : lines) {
    std::ranges::replace(line, '|', '\t');
    text += line + "\r\n";
  }
  return text;
}

class ListsImport : public ::testing::Test {
 protected:
  ImportReport import(const std::string& text, bool keep = true, bool release_2003 = false) {
    return Import_Lists(*company.session, Read_Iif(text), {.release_2003 = release_2003, .keep = keep});
  }
  std::string value(const std::string& sql, const store::Database::Params& params = {}) {
    return company.db().value(sql, params).text();
  }
  std::string content() {
    std::string all;
    for (const char* table : {"Accounts", "Items", "ItemGroups", "Customers", "Vendors", "Employees", "PayrollItems"})
      company.db().each("SELECT * FROM " + std::string(table), {}, [&](const store::Row& row) {
        for (int at = 0; at < 5; ++at) all += std::string(row.text(at)) + "|";
      });
    return all;
  }

  TestCompany company;
};

const std::string chart =
    Lines({"!ACCNT|NAME|REFNUM|TIMESTAMP|ACCNTTYPE|OBAMOUNT|DESC|ACCNUM|SCD|BANKNUM|EXTRA|HIDDEN",
           "ACCNT|Town Bank|1|0|BANK|0|\"Main, with\ttab\"|1000||||N", "ACCNT|Auto|2|0|EXP|0||||||N",
           "ACCNT|Auto:Premiums|3|0|EXP|0|line\\nbreak|||||N", "ACCNT|Health|4|0|EXP|0||||||N",
           "ACCNT|Health:Premiums|5|0|EXP|0||||||Y", "ACCNT|Owed to us|6|0|AR|0||||||N",
           "ACCNT|Purchase Orders|7|0|NONPOSTING|0||||||N", "ACCNT|Retained Earnings|8|0|EQUITY|0|theirs|||||N",
           "ACCNT|Odd|9|0|WHAT|0||||||N", "ACCNT|No:Parent|10|0|EXP|0||||||N"});

TEST_F(ListsImport, CategoriesGoByTheirWholePathAndASecondTimeNothingChanges) {
  const std::string retained = value("SELECT Description FROM Accounts WHERE CatID = 'RE1'");
  const ImportReport first = import(chart);
  EXPECT_EQ(first.count(ImportDid::Added), 5);
  EXPECT_EQ(first.count(ImportDid::Skipped), 4) << "receivables, non-posting, a strange type, a missing parent";
  EXPECT_EQ(value("SELECT COUNT(*) FROM Accounts WHERE AccountName = 'Premiums'"), "2");
  EXPECT_EQ(value("SELECT a.AccountName FROM Accounts i JOIN Accounts a ON a.CatID = i.ParentAccount "
                  "WHERE i.Description = ?",
                  {"line\r\nbreak"}),
            "Auto");
  EXPECT_EQ(value("SELECT Description FROM Accounts WHERE AccountName = 'Town Bank'"), "Main, with\ttab");
  EXPECT_EQ(value("SELECT Dormant FROM Accounts WHERE ParentAccount <> '' AND Dormant <> 0"), "True");
  EXPECT_EQ(value("SELECT Description FROM Accounts WHERE CatID = 'RE1'"), retained);
  const int64_t actions = store::List_Actions(company.db(), 1).at(0).number;
  const ImportReport second = import(chart);
  EXPECT_EQ(second.count(ImportDid::Added) + second.count(ImportDid::Changed), 0);
  EXPECT_EQ(store::List_Actions(company.db(), 1).at(0).number, actions) << "nothing was written";
}

TEST_F(ListsImport, WhatWouldBeIsShownWithoutBeingDoneAndTheWholeIsTakenBackAsOne) {
  const std::string before = content();
  const ImportReport shown = import(chart, false);
  EXPECT_EQ(content(), before);
  const ImportReport done = import(chart);
  EXPECT_EQ(shown.count(ImportDid::Added), done.count(ImportDid::Added));
  Undo_Action(*company.session, store::List_Actions(company.db(), 1).at(0).number);
  EXPECT_EQ(content(), before);
}

TEST_F(ListsImport, ItemsTakeTheirCategoriesPlacesAndRatesAndKeepStockThatMoved) {
  const std::string items =
      chart +
      Lines(
          {"INVITEM|Tax|0|0|COMPTAX|County||Owed taxes|||0||-6.875%|0|N||||",
           "INVITEM|Bolt|0|0|INVENTORY|A bolt|Bought|Sales|Stock on shelves|Cost of bolts|40||1,250.00|3|Y|Cash|||Acme|5",
           "INVITEM|Set|0|0|GRP|A set|||||||||||", "INVITEM|Bolt|1||x|Two of it||2", "ENDGRP"});
  EXPECT_EQ(import(items).count(ListKind::Items, ImportDid::Added), 3);
  EXPECT_EQ(value("SELECT ExactRate FROM Items WHERE ItemName = 'Tax'"), "0.06875");
  EXPECT_EQ(value("SELECT PriceRate FROM Items WHERE ItemName = 'Bolt'"), "1250");
  EXPECT_EQ(value("SELECT ItemCat FROM Items WHERE ItemName = 'Bolt'"), "OE1") << "there is no such category";
  EXPECT_EQ(
      value("SELECT AccountType FROM Accounts WHERE CatID = (SELECT InvAsset FROM Items WHERE ItemName = 'Bolt')"),
      "Current Asset");
  EXPECT_EQ(value("SELECT Item FROM ItemGroups WHERE GroupName = 'Set'"), "Bolt");
  company.add_category("x", "Expense");
  {
    Transaction_Writer rows(*company.session, {.Type = "Inv Adjust", .Date = Date(2026, 6, 1)});
    rows.add({.Account = "x", .Category = "x", .Debit = Money::dollars(1), .Item = "Bolt"});
    rows.commit();
  }
  company.run("UPDATE Items SET StockQty = 7 WHERE ItemName = 'Bolt'");
  EXPECT_EQ(import(items).count(ListKind::Items, ImportDid::Same), 3);
  EXPECT_EQ(value("SELECT StockQty FROM Items WHERE ItemName = 'Bolt'"), "7");
}

TEST_F(ListsImport, PeopleKeepWhatTheFileLeavesEmptyAndNamesOfOthers) {
  company.run("INSERT INTO Customers (Name, Phone, Contact) VALUES ('Baker', '555', 'Ann')");
  const ImportReport report =
      import(Lines({"CUST|BAKER|0|0|Baker & Co|1 Road||Town|||||||555-1|||17||Bob|", "CUST|Baker:Roof|0|0|Site",
                    "CUST|Mill:Roof|0|0", "VEND|Acme|0|0|Acme Inc|Acme|2 Street|Town",
                    "EMP|Mr. Karl Karlson|0|0|3 Lane||||Lindsborg, KS 67456||509-12-3456", "EMP|Nobody|0|0|",
                    "CLASS|East|", "TERMS|Net 9|0|0||9", "MYSTERY|x|", "MYSTERY|y|"}));
  EXPECT_EQ(value("SELECT Phone FROM Customers WHERE Name = 'Baker'"), "555-1");
  EXPECT_EQ(value("SELECT Contact FROM Customers WHERE Name = 'Baker'"), "Bob");
  EXPECT_EQ(value("SELECT BillingAddress FROM Customers WHERE Name = 'Baker'"), "Baker & Co\r\n1 Road\r\nTown");
  EXPECT_EQ(value("SELECT ParentName FROM Customers WHERE Name = 'Roof'"), "Baker") << "Mill's roof is not Baker's";
  EXPECT_EQ(value("SELECT ShippingAddress FROM Vendors WHERE Name = 'Acme'"), "2 Street\r\nTown");
  EXPECT_EQ(value("SELECT Zip FROM Employees WHERE Name = 'Karl Karlson'"), "67456");
  ASSERT_EQ(report.told.size(), 1u);
  EXPECT_EQ(report.told[0].text, "Nobody does not have a Social Security Number. Nobody will not be added.");
  EXPECT_EQ(value("SELECT Days FROM Terms WHERE Term = 'Net 9'"), "9");
  EXPECT_EQ(report.unknown.at("MYSTERY"), 2);
}

TEST_F(ListsImport, NothingIsLeftThatPointsAtWhatIsNotThere) {
  const ImportReport report = import(chart + Lines({"ACCNT|Auto:Fares|11|0|INC|0", "CUST|Lost:Child|1|0",
                                                    "INVITEM|Nowhere:Bolt|0|0|SERV|x", "INVITEM|Set|0|0|GRP|x",
                                                    "INVITEM|Ghost|1||x|y||2", "ENDGRP"}));
  EXPECT_EQ(report.count(ListKind::Customers, ImportDid::Skipped), 1);
  EXPECT_EQ(report.count(ListKind::Items, ImportDid::Skipped), 1);
  EXPECT_EQ(report.lines.back().why, "there is no item Ghost");
  EXPECT_EQ(value("SELECT COUNT(*) FROM Accounts WHERE AccountName = 'Fares'"), "0") << "income below an expense";
  EXPECT_TRUE(Verify_Company(company.db()).empty());
}

TEST_F(ListsImport, ASecondPayrollItemOfOneNameInAFileIsAnother) {
  const std::string text =
      Lines({"PAYITEM|Bonus|0|0|0|ADD|5%", "PAYITEM|Bonus|0|0|0|DEDUCT|2", "PAYITEM|FIT|0|0|0|FEDTAX|",
             "PAYITEMTAX|Bonus|Local Income Tax", "PAYITEMTAX|Bonus|Advance Earned Income Credit"});
  const ImportReport first = import(text);
  EXPECT_EQ(first.count(ListKind::PayrollItems, ImportDid::Added), 2);
  EXPECT_EQ(value("SELECT Type FROM PayrollItems WHERE Name = 'Bonus'"), "Addition");
  EXPECT_EQ(value("SELECT Type FROM PayrollItems WHERE Name = 'Bonus (2)'"), "Deduction");
  EXPECT_EQ(value("SELECT TaxName FROM PreTaxTable WHERE Name = 'Bonus'"), "Loc 1 Income Tax");
  EXPECT_EQ(import(text).count(ListKind::PayrollItems, ImportDid::Same), 2);
}

TEST(IifFiles, AreReadInEveryEncodingAndRefusedWithoutTabs) {
  const auto name = [](const std::string& bytes) { return Read_Iif(bytes).records.at(0).fields.at(1); };
  EXPECT_EQ(name("CUST\tCaf\xC3\xA9\n"), "Caf\xC3\xA9");
  EXPECT_EQ(name("CUST\tCaf\xE9 \x80\n"), "Caf\xC3\xA9 \xE2\x82\xAC");
  EXPECT_EQ(name(std::string("\xFF\xFE"
                             "C\0U\0S\0T\0\t\0\xE9\0\n\0",
                             16)),
            "\xC3\xA9");
  EXPECT_EQ(name("CUST\t\"a \"\"b\"\"\tc\"\tx"), "a \"b\"\tc");
  EXPECT_EQ(name("CUST\t\"3/4 bolt\tx"), "\"3/4 bolt") << "a quote that nothing closes is an inch";
  EXPECT_THROW(Read_Iif("CUST,Baker,1\nCUST,Mill,2\n"), ImportError);
  EXPECT_THROW(Read_Iif(""), ImportError);
}

}  // namespace
}  // namespace tallymere
