#include "core/ledger/transaction_writer.h"

#include "core/ledger/ledger.h"
#include "core/store/history.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;

const Date today(2026, 6, 15);

/// A check over one expense, as its window would write it.
int64_t Write_Check(Session& session, int64_t number, int dollars, const Probe& probe = {}, bool cleared = false) {
  Transaction_Writer rows(
      session,
      {.TransNum = number, .Type = "Check", .Date = today, .Number = "1042", .Name = "Acme Supply", .Cleared = cleared},
      probe);
  Money total = Money::dollars(dollars);
  rows.add({.Account = "0SS", .Category = "9SS", .Credit = total, .Amount = total, .Memo = "Paper"});
  rows.add({.Account = "9SS", .Category = "0SS", .Debit = total, .Amount = total, .Class = "Office"});
  rows.commit();
  return rows.number();
}

/// "account debit credit cleared;" for each row of a transaction, in writing order.
std::string Ledger_Of(store::Database& db, int64_t number) {
  std::string text;
  db.each("SELECT Account, Debit, Credit, Cleared FROM Transactions WHERE TransNum = ? ORDER BY RowKey", {number},
          [&](const store::Row& row) {
            text += std::string(row.text(0)) + " " + row.money(1).to_text() + " " + row.money(2).to_text() +
                    (row.flag(3) ? " cleared;" : ";");
          });
  return text;
}

TEST(TransactionWriter, RepeatsTheHeadAndFillsOneSide) {
  TestCompany company;
  Write_Check(*company.session, 1, 25);
  auto rows = company.db().OpenRecordset("SELECT * FROM Transactions WHERE TransNum = 1 ORDER BY RowKey");
  ASSERT_EQ(rows.RecordCount(), 2);
  for (; !rows.Eof(); rows.MoveNext()) {
    EXPECT_EQ(rows["Type"].text() + rows["Number"].text() + rows["Name"].text(), "Check1042Acme Supply");
    EXPECT_EQ(rows["Date"].date(), today);
    EXPECT_EQ(rows["Amount"].money(), Money::dollars(25));
    EXPECT_TRUE(rows["Item"].value().is_null());
    EXPECT_TRUE(rows["AmountReceived"].value().is_null());
    EXPECT_TRUE(rows["DueDate"].value().is_null());
  }
  // The side that is not filled reads as 0 in queries, and flags nobody set as false.
  EXPECT_EQ(company.db()
                .OpenRecordset("SELECT * FROM Transactions WHERE Debit = 0 AND Cleared = False AND Paid = 0")
                .RecordCount(),
            1);
  EXPECT_EQ(store::List_Actions(company.db(), 1).front().what, "Check 1042, Acme Supply");
}

TEST(TransactionWriter, EveryFieldOfALedgerRowReachesItsColumn) {
  TestCompany company;
  company.add_category("e", "Bank");
  Transaction_Writer rows(*company.session,
                          {.TransNum = 3, .Type = "a", .Date = today, .Number = "b", .Name = "c", .Address = "d"});
  rows.add({.Account = "e",
            .Category = "f",
            .Debit = Money::dollars(1),
            .Credit = Money::dollars(2),
            .Amount = Money::dollars(3),
            .Memo = "g",
            .SourceName = "h",
            .Class = "i",
            .Item = "j",
            .ItemDescription = "k",
            .Qty = 4.5,
            .SalePrice = Money::dollars(5),
            .ExactRate = 0.06875,
            .Taxable = true,
            .Cleared = true,
            .Paid = true,
            .PaidBy = "l",
            .AmountReceived = Money::dollars(6),
            .Name = "m",
            .ShippingAddress = "n",
            .Terms = "o",
            .DueDate = Date(2026, 1, 2),
            .PONum = "p",
            .ShipDate = Date(2026, 1, 3),
            .FOB = "q",
            .Via = "r",
            .Rep = "s",
            .PayMethod = "t",
            .PaidThrough = Date(2026, 1, 4),
            .SSNum = "u",
            .PayrollItem = "v",
            .PayPeriod = "w",
            .Hours = 7.5});
  rows.commit();
  auto row = company.db().OpenRecordset("SELECT * FROM Transactions WHERE TransNum = 3");
  std::string all;
  for (const auto& field : row.Fields()) all += field.name + "=" + row[field.name].text() + " ";
  EXPECT_EQ(
      all,
      "TransNum=3 Type=a Date=6/15/2026 Number=b Name=m Address=d ShippingAddress=n Memo=g Account=e "
      "Category=f "
      "Debit=1 Credit=2 Amount=3 Class=i Cleared=True Paid=True PaidBy=l AmountReceived=6 SourceName=h "
      "Item=j "
      "ItemDescription=k Qty=4.5 SalePrice=5 ExactRate=0.06875 Taxable=True Terms=o DueDate=1/2/2026 PONum=p ShipDate=1/3/2026 "
      "FOB=q Via=r Rep=s PayMethod=t PaidThrough=1/4/2026 SSNum=u PayrollItem=v PayPeriod=w Hours=7.5 ");
}

TEST(TransactionWriter, ReplacesAllRowsAndKeepsThemCleared) {
  TestCompany company;
  Write_Check(*company.session, 5, 25);
  Write_Check(*company.session, 6, 40);
  EXPECT_EQ(Write_Check(*company.session, 5, 30, Probe::Of(company.db(), 5), true), 5);
  EXPECT_EQ(Ledger_Of(company.db(), 5), "0SS 0 30 cleared;9SS 30 0 cleared;");
  EXPECT_EQ(Ledger_Of(company.db(), 6), "0SS 0 40;9SS 40 0;");
}

TEST(TransactionWriter, ATakenNumberGivesTheNextFreeOne) {
  TestCompany company;
  auto other = company.another_user();
  int64_t mine = Next_TransNum(company.db()), theirs = Next_TransNum(*other->dbCompany);
  ASSERT_EQ(mine, theirs);
  EXPECT_EQ(Write_Check(*other, theirs, 10), 1);
  EXPECT_EQ(Write_Check(*company.session, mine, 20), 2);
  EXPECT_EQ(Write_Check(*company.session, 0, 30), 3) << "a batch asks for the next number";
  EXPECT_EQ(Ledger_Of(company.db(), 1), "0SS 0 10;9SS 10 0;");
  EXPECT_EQ(Ledger_Of(company.db(), 2), "0SS 0 20;9SS 20 0;");
}

TEST(TransactionWriter, ANumberThatWasDeletedMeanwhileIsNotTakenAgain) {
  TestCompany company;
  auto other = company.another_user();
  const int64_t mine = Next_TransNum(company.db());
  ASSERT_EQ(Write_Check(*other, mine, 10), mine);
  Delete_Transaction(*other, mine);
  EXPECT_EQ(Write_Check(*company.session, mine, 20), mine + 1);
}

TEST(TransactionWriter, NothingIsStoredSigned) {
  TestCompany company;
  Transaction_Writer rows(*company.session, {.TransNum = 1, .Type = "Check", .Date = today});
  rows.add({.Account = "0SS", .Credit = Money::dollars(-15), .Amount = Money::dollars(-15)});
  rows.add({.Account = "9SS", .Debit = Money::dollars(-20), .Amount = Money::dollars(-20)});
  rows.add({.Account = "8SS", .Debit = Money::dollars(5), .Amount = Money::dollars(5)});
  rows.commit();
  EXPECT_EQ(Ledger_Of(company.db(), 1), "0SS 15 0;9SS 0 20;8SS 5 0;");
  auto row = company.db().OpenRecordset("SELECT * FROM Transactions WHERE Account = '9SS'");
  EXPECT_EQ(row["Amount"].money(), Money::dollars(20));
}

TEST(TransactionWriter, NoRowOnACategoryThatIsNotThere) {
  TestCompany company;
  Write_Check(*company.session, 1, 25);
  const Probe loaded = Probe::Of(company.db(), 1);
  auto other = company.another_user();
  {
    store::Transaction tx(*other->dbCompany, "Behind the window");
    other->dbCompany->Execute("DELETE FROM Accounts WHERE CatID = '8SS'");
    tx.commit();
  }
  for (const char* account : {"8SS", ""}) {
    auto conflict = Save_Or_Conflict([&] {
      Transaction_Writer rows(*company.session, {.TransNum = 1, .Type = "Check", .Date = today}, loaded);
      rows.add({.Account = account, .Debit = Money::dollars(9)});
      rows.commit();
    });
    ASSERT_TRUE(conflict) << account;
    EXPECT_FALSE(conflict->reload) << "what was typed stays";
    EXPECT_EQ(conflict->box.title, "Invalid Category");
    EXPECT_EQ(Ledger_Of(company.db(), 1), "0SS 0 25;9SS 25 0;");
  }
  Transaction_Writer rows(*company.session, {.Type = "Invoice", .Date = today});
  EXPECT_NO_THROW(rows.add({.Item = "Subtotal"})) << "a line that posts nothing";
}

TEST(TransactionWriter, SavingTwiceFromOneWindowIsOneTransaction) {
  TestCompany company;
  Transaction_Writer first(*company.session, {.TransNum = 1, .Type = "Check", .Date = today});
  first.add({.Account = "0SS", .Credit = Money::dollars(1)});
  first.commit();
  EXPECT_EQ(Write_Check(*company.session, first.number(), 9, first.probe()), 1);
  EXPECT_EQ(Next_TransNum(company.db()), 2);
}

/// What another user may do to a check between its loading and its saving.
struct Meddling {
  const char* what;
  const char* sql;
};
TEST(TransactionWriter, AnotherUsersChangeIsAConflictThatLosesNothing) {
  const Meddling meddlings[] = {
      {"a field of the second row", "UPDATE Transactions SET Memo = 'x' WHERE Account = '9SS'"},
      {"letter case only", "UPDATE Transactions SET Memo = 'PAPER' WHERE Account = '0SS'"},
      {"reconciled", "UPDATE Transactions SET Cleared = True WHERE Account = '0SS'"},
      {"a row more", "INSERT INTO Transactions (TransNum, Account) VALUES (1, '8SS')"},
      {"deleted", "DELETE FROM Transactions WHERE TransNum = 1"}};
  for (const Meddling& meddling : meddlings) {
    TestCompany company;
    Write_Check(*company.session, 1, 25);
    Probe loaded = Probe::Of(company.db(), 1);
    auto other = company.another_user();
    {
      store::Transaction tx(*other->dbCompany, "Meddling");
      other->dbCompany->Execute(meddling.sql);
      tx.commit();
    }
    std::string before = Ledger_Of(company.db(), 1);
    auto conflict = Save_Or_Conflict([&] { Write_Check(*company.session, 1, 99, loaded); });
    ASSERT_TRUE(conflict) << meddling.what;
    EXPECT_TRUE(conflict->reload);
    EXPECT_EQ(conflict->box.title, "Data has changed");
    EXPECT_EQ(conflict->box.icon, Icon::Information);
    EXPECT_EQ(Ledger_Of(company.db(), 1), before) << meddling.what;
  }
}

TEST(TransactionWriter, TheRowOfASetIsAProbeToo) {
  TestCompany company;
  Write_Check(*company.session, 1, 25);
  auto shown = company.db().OpenRecordset("SELECT * FROM Transactions WHERE TransNum = 1 ORDER BY RowKey");
  Probe probe(shown);
  EXPECT_EQ(Write_Check(*company.session, 1, 26, probe), 1);
  EXPECT_TRUE(Save_Or_Conflict([&] { Write_Check(*company.session, 1, 27, probe); })) << "those rows are gone";
  EXPECT_EQ(Ledger_Of(company.db(), 1), "0SS 0 26;9SS 26 0;");
}

TEST(TransactionWriter, ALockedFileSaysTryAgainLater) {
  auto conflict =
      Save_Or_Conflict([] { throw store::Error(store::errors::locked, "Could not update; currently locked."); });
  ASSERT_TRUE(conflict);
  EXPECT_FALSE(conflict->reload);
  EXPECT_EQ(conflict->box.text, "Could not update; currently locked. Try Again later.");
  EXPECT_EQ(conflict->box.title, "");
  EXPECT_EQ(conflict->box.icon, Icon::None);
}

TEST(TransactionWriter, AFailureInTheMiddleLeavesTheOldRows) {
  TestCompany company;
  Write_Check(*company.session, 1, 25);
  EXPECT_THROW(
      {
        Transaction_Writer rows(*company.session, {.TransNum = 1, .Type = "Check", .Date = today},
                                Probe::Of(company.db(), 1));
        rows.add({.Account = "0SS", .Credit = Money::dollars(99)});
        company.db().Execute("INSERT INTO NoSuchTable VALUES (1)");
      },
      store::Error);
  EXPECT_EQ(Ledger_Of(company.db(), 1), "0SS 0 25;9SS 25 0;");
  {
    Transaction_Writer forgotten(*company.session, {.TransNum = 1, .Type = "Check", .Date = today},
                                 Probe::Of(company.db(), 1));
  }
  EXPECT_EQ(Ledger_Of(company.db(), 1), "0SS 0 25;9SS 25 0;") << "without commit nothing has happened";
  EXPECT_THROW(Save_Or_Conflict([&] { company.db().OpenRecordset("SELECT * FROM NoSuchTable"); }), store::Error)
      << "other faults are not conflicts";
}

TEST(TransactionWriter, RewritesAFewFieldsOfAllRows) {
  TestCompany company;
  Write_Check(*company.session, 1, 25);
  Write_Check(*company.session, 2, 40);
  EXPECT_EQ(Rewrite_Fields(*company.session, 1, {{"Number", "77"}, {"Date", "6/14/2026"}}), 2);
  EXPECT_EQ(company.db()
                .OpenRecordset("SELECT * FROM Transactions WHERE TransNum = 1 AND Number = '77' AND Date = #6/14/2026#")
                .RecordCount(),
            2);
  EXPECT_EQ(company.db().OpenRecordset("SELECT * FROM Transactions WHERE Number = '1042'").RecordCount(), 2);
}

TEST(TransactionWriter, DeletesWholeTransactionsAndCanTakeItBack) {
  TestCompany company;
  Write_Check(*company.session, 1, 25);
  Write_Check(*company.session, 2, 40);
  EXPECT_EQ(Delete_Transaction(*company.session, 1), 2);
  EXPECT_EQ(Ledger_Of(company.db(), 1), "");
  EXPECT_EQ(Ledger_Of(company.db(), 2), "0SS 0 40;9SS 40 0;");
  auto action = store::List_Actions(company.db(), 1).front();
  EXPECT_EQ(action.what, "Deleted Check 1042, Acme Supply");
  store::Transaction back(company.db(), "Back");
  store::Revert_Changes(company.db(), action.number);
  back.commit();
  EXPECT_EQ(Ledger_Of(company.db(), 1), "0SS 0 25;9SS 25 0;");
}

}  // namespace
}  // namespace tallymere
