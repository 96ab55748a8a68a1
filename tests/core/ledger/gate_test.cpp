#include "core/ledger/gate.h"

#include "core/company/preferences.h"
#include "core/ledger/ledger.h"
#include "core/ledger/transaction_writer.h"
#include "core/ledger/undo.h"
#include "core/store/history.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;

class Gate : public ::testing::Test {
 protected:
  void SetUp() override {
    company.add_category("bank", "Bank");
    company.add_category("rent", "Expense");
  }
  /// Whether the gate refused it; anything else it throws is a fault of the test.
  template <typename Act>
  static bool refused(Act act) {
    try {
      act();
      return false;
    } catch (const store::Error& fault) {
      EXPECT_EQ(fault.number, store::errors::not_allowed) << fault.what();
      return true;
    }
  }
  int64_t post(Session& session, Date date, const std::string& Type = "Check") {
    Transaction_Writer rows(session, {.Type = Type, .Date = date, .Name = "Acme Supply"});
    rows.add({.Account = "bank", .Category = "rent", .Credit = Money::dollars(5)});
    rows.add({.Account = "rent", .Category = "bank", .Debit = Money::dollars(5)});
    const int64_t number = rows.number();
    rows.commit();
    return number;
  }
  void close(Session& session, const std::string& day) {
    store::Transaction tx(*session.dbCompany, "Close");
    Set_Preference(*session.dbCompany, preference::ClosingDate, day);
    tx.commit();
  }
  void log_in(Session& session, const std::string& user) {
    session.MultiUser = true;
    session.CurrentUser = user;
  }
  int64_t rows() { return company.db().value("SELECT COUNT(*) FROM Transactions").integer(); }
  int64_t last() { return store::List_Actions(company.db(), 1).at(0).number; }

  TestCompany company;
};

TEST_F(Gate, NothingMovesOnOrBeforeTheClosingDate) {
  Session& session = *company.session;
  const int64_t old = post(session, Date(2025, 12, 31));
  const int64_t posting = last();
  const int64_t current = post(session, Date(2026, 1, 1));
  close(session, "2025-12-31");
  EXPECT_TRUE(refused([&] { post(session, Date(2025, 12, 31)); }));
  EXPECT_TRUE(refused([&] { Delete_Transaction(session, old); }));
  EXPECT_TRUE(refused([&] { Undo_Action(session, posting); }));
  EXPECT_TRUE(refused([&] { company.run("UPDATE Transactions SET Debit = 9 WHERE TransNum = ?", {old}); }));
  EXPECT_TRUE(refused([&] {  // out of the open year into the closed one
    company.run("UPDATE Transactions SET Date = ? WHERE TransNum = ?", {Date(2025, 6, 1), current});
  }));
  EXPECT_EQ(rows(), 4);
  // What a later day says of an earlier document, and the open year.
  EXPECT_FALSE(refused([&] {
    company.run("UPDATE Transactions SET Cleared = ?, Paid = ?, Number = '7' WHERE TransNum = ?", {true, true, old});
  }));
  EXPECT_FALSE(refused([&] { Delete_Transaction(session, current); }));
  close(session, "");
  EXPECT_FALSE(refused([&] { Delete_Transaction(session, old); }));
}

TEST_F(Gate, OnlyTheAdministratorClosesAndOpensTheBooks) {
  company.run("INSERT INTO Users (UserName, BankCC) VALUES ('Ann', ?)", {true});
  log_in(*company.session, "Ann");
  EXPECT_TRUE(refused([&] { close(*company.session, "2025-12-31"); }));
  log_in(*company.session, "Admin");
  EXPECT_FALSE(refused([&] { close(*company.session, "2025-12-31"); }));
  log_in(*company.session, "Ann");
  EXPECT_TRUE(refused([&] { close(*company.session, ""); }));
  EXPECT_TRUE(refused([&] { company.run("DELETE FROM GeneralPrefs WHERE Preference = 'ClosingDate'"); }));
  EXPECT_EQ(Closing_Date(company.db()), Date(2025, 12, 31));
}

TEST_F(Gate, AUserWritesWhatHisCommandsLeadTo) {
  Session& session = *company.session;
  company.run("INSERT INTO Users (UserName, BankCC) VALUES ('Ann', ?)", {true});
  log_in(session, "Ann");
  const Date day(2026, 6, 1);
  for (const char* Type : {"Check", "Deposit", "Payment", "Billcheck", "Ledger Entry"})
    EXPECT_FALSE(refused([&] { post(session, day, Type); })) << Type;
  for (const char* Type : {"Invoice", "Bill", "Credit", "Paycheck", "Inv Adjust", "Liability Adjust", "of no kind"})
    EXPECT_TRUE(refused([&] { post(session, day, Type); })) << Type;
  {
    const Unattended repeats(session);
    EXPECT_FALSE(refused([&] { post(session, day, "Invoice"); }));
  }
  // A payment marks an invoice as paid, whoever enters it; its amounts are out of reach, and so is taking it back.
  EXPECT_FALSE(refused([&] { company.run("UPDATE Transactions SET Paid = ? WHERE Type = 'Invoice'", {true}); }));
  EXPECT_TRUE(refused([&] { company.run("UPDATE Transactions SET Amount = 1 WHERE Type = 'Invoice'"); }));
  EXPECT_TRUE(refused([&] { company.run("DELETE FROM Transactions WHERE Type = 'Invoice'"); }));
  EXPECT_TRUE(refused([&] { post(session, day, "Liabilitycheck"); }));
  company.run("UPDATE Users SET Inventory = ? WHERE UserName = 'Ann'", {true});
  EXPECT_FALSE(refused([&] { post(session, day, "Liabilitycheck"); })) << "sales tax is paid so";
  company.run("UPDATE Users SET BankCC = ? WHERE UserName = 'Ann'", {false});
  EXPECT_TRUE(refused([&] { post(session, day, "Check"); })) << "switched off acts at once";
}

}  // namespace
}  // namespace tallymere
