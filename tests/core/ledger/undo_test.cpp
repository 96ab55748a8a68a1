#include "core/ledger/undo.h"

#include "core/ledger/balances.h"
#include "core/ledger/ledger.h"
#include "core/ledger/transaction_writer.h"
#include "core/store/history.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using tallymere::testing::TestCompany;

/// A company whose every step can be named by its number in the history.
class Undo : public ::testing::Test {
 protected:
  int64_t post(const std::string& category, Date date = Date(2026, 3, 1)) {
    Transaction_Writer rows(*company.session, {.Type = "Check", .Date = date, .Name = "Acme Supply"});
    number = rows.number();
    rows.add({.Account = "bank", .Category = category, .Credit = Money::dollars(5)});
    rows.add({.Account = category, .Category = "bank", .Debit = Money::dollars(5)});
    rows.commit();
    return last();
  }
  int64_t remove(int64_t TransNum) {
    Delete_Transaction(*company.session, TransNum);
    return last();
  }
  int64_t did(std::string_view sql, const store::Database::Params& params = {}) {
    company.run(sql, params);
    return last();
  }
  int64_t category(const std::string& id) {
    company.add_category(id, "Bank");
    return last();
  }
  int64_t last() { return store::List_Actions(company.db(), 1).at(0).number; }
  /// "" when it was done, else why not.
  std::string undo(int64_t action) {
    try {
      Undo_Action(*company.session, action);
      return "";
    } catch (const store::Error& refused) {
      EXPECT_EQ(refused.number, store::errors::undo_refused);
      return refused.what();
    }
  }
  int64_t count(const std::string& what) { return company.db().value("SELECT COUNT(*) FROM " + what).integer(); }

  TestCompany company;
  int64_t number = 0;
};

TEST_F(Undo, OfADocumentAndOfItsUndoWhateverTheBalancesDidMeanwhile) {
  category("bank"), category("rent");
  int64_t posted = post("rent");
  Update_Accounts(*company.session);
  EXPECT_EQ(last(), posted) << "a balance that was worked out is no action";
  EXPECT_EQ(undo(posted), "");
  EXPECT_EQ(count("Transactions"), 0);
  int64_t first_undo = last();
  EXPECT_NE(undo(posted).find("action " + std::to_string(first_undo) + " has done it"), std::string::npos);
  EXPECT_EQ(undo(first_undo), "");
  EXPECT_EQ(count("Transactions"), 2);
  EXPECT_EQ(undo(posted), "") << "it stands again, so it can go again";
  EXPECT_EQ(count("Transactions"), 0);
}

/// As files of before have them, and as files from elsewhere may.
TEST_F(Undo, EndsInAWordWhereTheHistoryIsNotOurs) {
  const auto changes = [&](int64_t action) {
    company.db().connection().prepare("SELECT 1").step();
    return "(SELECT Changes FROM History WHERE RowKey = " + std::to_string(action) + ")";
  };
  category("bank"), category("rent");
  const int64_t posted = post("rent");
  const auto write = [&](int64_t undoes, int64_t of) {
    store::Transaction tx(company.db(), "Behind the window");
    company.db().connection().execute("INSERT INTO History (At, User, What, Undoes, Changes) VALUES ('', '', 'Made', " +
                                      std::to_string(undoes) + ", " + changes(of) + ")");
    tx.commit();
    return last();
  };
  const int64_t itself = write(last() + 1, posted);
  EXPECT_NE(undo(itself).find("what came after it"), std::string::npos);
  EXPECT_EQ(undo(posted), "") << "nobody else has taken it back";
  // A chain as long as one likes: each takes back the one before.
  {
    store::Transaction tx(company.db(), "A chain");
    company.db().connection().execute(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 60000) INSERT INTO History (At, User, "
        "What, Undoes, Changes) SELECT '', '', 'Made', (SELECT MAX(RowKey) FROM History) + i - 1, " +
        changes(posted) + " FROM n");
    tx.commit();
  }
  EXPECT_NE(undo(posted), "");
}

TEST_F(Undo, LeavesNothingPointingAtWhatItTookAway) {
  category("bank");
  int64_t made = category("rent"), posted = post("rent");
  EXPECT_NE(undo(made).find("points at what it made"), std::string::npos);
  EXPECT_EQ(count("Accounts WHERE CatID = 'rent'"), 1);
  EXPECT_EQ(count("Transactions"), 2);
  EXPECT_EQ(undo(posted), "");
  EXPECT_EQ(undo(made), "");

  did("INSERT INTO Items (ItemName) VALUES ('Bolt')");
  int64_t renamed = did("UPDATE Items SET ItemName = 'Nut'");
  int64_t used = did("INSERT INTO ItemGroups (GroupName, Item) VALUES ('Nut', '')");
  EXPECT_NE(undo(renamed), "");
  for (int64_t action : {used, renamed}) EXPECT_EQ(undo(action), "");
  EXPECT_EQ(count("Items WHERE ItemName = 'Bolt'"), 1);
}

TEST_F(Undo, BringsNothingBackWhereAnotherStandsOrItsCategoryIsGone) {
  category("bank"), category("rent");
  post("rent");
  int64_t removed = remove(number);
  int64_t next = post("bank");
  int64_t given = did("UPDATE Transactions SET TransNum = 1");  // another program may give the number again
  EXPECT_NE(undo(removed).find("is another one by now"), std::string::npos) << "two documents never merge";
  EXPECT_EQ(count("Transactions"), 2);
  for (int64_t action : {given, next}) EXPECT_EQ(undo(action), "");
  int64_t closed = did("DELETE FROM Accounts WHERE CatID = 'rent'");
  EXPECT_NE(undo(removed).find("a category that is gone"), std::string::npos);
  int64_t again = category("rent");
  EXPECT_NE(undo(closed).find("is another one by now"), std::string::npos) << "the id was given anew";
  for (int64_t action : {again, closed, removed}) EXPECT_EQ(undo(action), "");
  EXPECT_EQ(count("Transactions"), 2);
  EXPECT_EQ(count("Accounts WHERE CatID = 'rent'"), 1);
}

TEST_F(Undo, OfAnEditPutsTheEarlierRowsBack) {
  category("bank"), category("rent"), category("food");
  post("rent");
  const Probe probe = Probe::Of(company.db(), number);
  {
    Transaction_Writer rows(*company.session, {.TransNum = number, .Type = "Check", .Date = Date(2026, 3, 2)}, probe);
    rows.add({.Account = "food", .Debit = Money::dollars(9)});
    rows.commit();
  }
  EXPECT_EQ(undo(last()), "");
  EXPECT_NO_THROW(probe.check(company.db()));
}

}  // namespace
}  // namespace tallymere
