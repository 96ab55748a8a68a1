// Whatever stands in a transaction, showing it and saving it as it is shown changes nothing.
#include <random>

#include "entry/checks/check.h"
#include "entry/register/register_entry.h"
#include "support/entry_company.h"

namespace tallymere {
namespace {

using testing::Dollars;
using testing::EntryCompany;

/// Every field of a transaction's rows in writing order, but for the hidden key. No debit is the same as none of it.
std::string All_Fields(store::Database& db, int64_t TransNum) {
  std::string text;
  auto rows = db.OpenRecordset("SELECT * FROM Transactions WHERE TransNum = ? ORDER BY RowKey", {TransNum});
  for (; !rows.Eof(); rows.MoveNext()) {
    for (const store::Field& field : rows.Fields()) {
      const std::string value = rows[field.name].text();
      if (!value.empty()) text += std::string(field.name) + "=" + value + " ";
    }
    text += "\n";
  }
  return text;
}

/// Transactions as windows, registers, imports and people at work on both leave them.
class AnyTransactions {
 public:
  AnyTransactions(EntryCompany& company, unsigned seed) : company_(company), random_(seed) {}

  /// A check of any lines: expenses and items, negative, zero and blank ones, each with fields of its own.
  int64_t check(bool with_items) {
    std::vector<LedgerRow> lines;
    Money total;
    const int count = one_of(1, 5);
    for (int line = 0; line < count; ++line) {
      lines.push_back(this->line(with_items && line >= count / 2));
      total += lines.back().Debit - lines.back().Credit;
    }
    LedgerRow bank = fields();
    bank.Account = "0SS";
    const bool single = count == 1 && lines.front().Item.empty();
    bank.Category = single ? lines.front().Account : break_down;
    Post(bank, LineSide::Credit, total);
    return write("Check", bank, lines);
  }

  /// An entry of two rows, either of which may come first.
  int64_t entry() {
    LedgerRow here = fields(), there = fields();
    here.Account = there.Category = "0SS";
    there.Account = here.Category = maybe() ? "1SS" : "40SS";
    const Money amount = maybe() ? Dollars(one_of(1, 99), one_of(0, 99)) : -Dollars(one_of(1, 99));
    Post(here, LineSide::Credit, amount);
    Post(there, LineSide::Debit, amount);
    return maybe() ? write("Ledger Entry", here, {there}) : write("Ledger Entry", there, {here});
  }

 private:
  int one_of(int least, int most) { return std::uniform_int_distribution<int>(least, most)(random_); }
  bool maybe() { return one_of(0, 1) == 1; }
  std::string text(const char* word) { return maybe() ? word + std::to_string(one_of(0, 9)) : ""; }
  std::optional<std::string> own(const char* word) {
    return one_of(0, 3) > 0 ? std::nullopt : std::optional(text(word));
  }

  LedgerRow fields() {
    return {.Memo = text("memo"),
            .SourceName = text("customer"),
            .Class = text("class"),
            .Taxable = maybe(),
            .Cleared = maybe(),
            .PaidBy = text("7;"),
            .Number = own("number"),
            .Name = own("name"),
            .Address = own("street"),
            .PONum = text("po"),
            .Hours = maybe() ? std::optional(1.25) : std::nullopt};
  }

  LedgerRow line(bool item) {
    constexpr const char* accounts[] = {"40SS", "46SS", "24SS", "3SS"};
    LedgerRow row = fields();
    row.Account = accounts[one_of(0, 3)];
    row.Category = "0SS";
    const Money amount = Money::from_units(one_of(-99999, 999999));
    Post(row, LineSide::Debit, one_of(0, 5) == 0 ? std::nullopt : std::optional(one_of(0, 5) == 0 ? Money() : amount));
    if (!item) return row;
    row.Item = "item" + std::to_string(one_of(0, 9));
    row.ItemDescription = text("description");
    if (maybe()) row.Qty = one_of(-30, 30) / 8.0;
    if (maybe()) row.SalePrice = Money::from_units(one_of(0, 99999));
    return row;
  }

  int64_t write(const char* type, LedgerRow head, const std::vector<LedgerRow>& lines) {
    head.Number = head.Name = head.Address = std::nullopt;
    Transaction_Writer rows(*company_.session, {.Type = type,
                                                .Date = Date(2026, 1, 1).plus_days(one_of(0, 300)),
                                                .Number = text("no"),
                                                .Name = "Acme",
                                                .Address = text("road")});
    rows.add(head);
    for (const LedgerRow& row : lines) rows.add(row);
    rows.commit();
    return rows.number();
  }

  EntryCompany& company_;
  std::mt19937 random_;
};

/// Records every line that a register shows of a transaction as it stands; how many it took.
int Record_As_Shown(Session& session, const std::string& account, int64_t TransNum) {
  Register reg(session, account);
  reg.Fill(0, reg.count());
  int taken = 0;
  for (int64_t row = 0; row < reg.count(); ++row) {
    const RegisterLine line = reg.line(row);
    if (line.TransNum != TransNum) continue;
    RegisterEntry entry = *Open_Entry(session, reg, line);
    const RecordResult result = Record(session, reg, entry);
    EXPECT_FALSE(result.conflict || result.notice);
    taken += !result.fault;
  }
  return taken;
}

TEST(ViewAndSave, ACheckOfAnyLinesStaysAsItIs) {
  EntryCompany company;
  Session& session = *company.session;
  for (unsigned seed = 0; seed < 300; ++seed) {
    const int64_t number = AnyTransactions(company, seed).check(seed % 2 == 0);
    const std::string before = All_Fields(company.db(), number);
    Check check = *Load_Check(session, number);
    ASSERT_FALSE(Enter_Check(session, check).written) << seed << ": seen, not changed";
    const std::string Memo = check.Memo;
    for (const std::string& typed : {Memo + " typed", Memo}) {  // there and back again
      check = *Load_Check(session, number);
      check.Memo = typed;
      const SaveResult result = Enter_Check(session, check);
      ASSERT_TRUE(result.written) << seed << ": " << (result.fault ? result.fault->box.text : "") << "\n" << before;
    }
    ASSERT_EQ(All_Fields(company.db(), number), before) << seed;
  }
}

TEST(ViewAndSave, ARegisterChangesNothingThatWasNotTyped) {
  EntryCompany company;
  Session& session = *company.session;
  int taken = 0;
  for (unsigned seed = 0; seed < 150; ++seed) {
    AnyTransactions any(company, seed);
    const int64_t number = seed % 2 == 0 ? any.entry() : any.check(seed % 10 == 1);
    const std::string before = All_Fields(company.db(), number);
    for (const char* account : {"0SS", "1SS", "3SS", "24SS", "40SS"}) {
      taken += Record_As_Shown(session, account, number);
      ASSERT_EQ(All_Fields(company.db(), number), before) << seed << " in " << account;
    }
  }
  EXPECT_GT(taken, 150) << "most are recorded, not refused";
}

TEST(ViewAndSave, ALineStaysWhereItIsWhenItsCategoryGetsChildren) {
  EntryCompany company;
  Session& session = *company.session;
  const int64_t number = company.write("Check", Date(2026, 3, 1), "0SS", "40SS", Dollars(30));
  company.add_category("901SS", "Expense", "40SS");
  const std::string before = All_Fields(company.db(), number);
  const std::string Number = Load_Check(session, number)->Number;
  for (const std::string& typed : {std::string("77"), Number}) {  // there and back again
    Check check = *Load_Check(session, number);
    check.Number = typed;
    ASSERT_TRUE(Enter_Check(session, check).written);
  }
  Record_As_Shown(session, "0SS", number);
  Record_As_Shown(session, "40SS", number);
  EXPECT_EQ(All_Fields(company.db(), number), before);
}

/// A line that is negative in one place is negative in the other, and both balance.
TEST(ViewAndSave, NegativeLinesComeBackBothWaysRound) {
  EntryCompany company;
  Session& session = *company.session;
  Check check = New_Check(session);
  check.Name = "Acme";
  for (const Money amount : {Dollars(100), -Dollars(100)}) {
    Check written = check;
    written.Amount = amount;
    written.expenses = {{.Category = "a", .Amount = amount + Dollars(20), .CatID = "40SS"},
                        {.Category = "b", .Amount = -Dollars(20), .CatID = "46SS"}};
    ASSERT_TRUE(Enter_Check(session, written).written);
    Register reg(session, "0SS");
    RegisterEntry entry = *Open_Entry(session, reg, reg.line(reg.Row_Of(written.TransNum)));
    const Money sign = amount.is_negative() ? -Dollars(1) : Dollars(1);
    EXPECT_EQ(entry.breakdown[0].Amount, (amount + Dollars(20)).share(sign, Dollars(1)));
    EXPECT_EQ(entry.breakdown[1].Amount, (-Dollars(20)).share(sign, Dollars(1)));
    entry.Memo = "seen";
    ASSERT_TRUE(Record(session, reg, entry).stapler);
    const Check again = *Load_Check(session, written.TransNum);
    EXPECT_EQ(again.BankID, "0SS");
    EXPECT_EQ(again.Amount, amount);
    EXPECT_EQ(again.expenses[0].Amount, amount + Dollars(20));
    EXPECT_EQ(again.expenses[1].Amount, -Dollars(20));
  }
}

TEST(ViewAndSave, ACheckTurnedInARegisterOpensWithItsBank) {
  EntryCompany company;
  Session& session = *company.session;
  const int64_t number = company.write("Check", Date(2026, 3, 1), "0SS", "1SS", Dollars(30));
  for (const char* account : {"0SS", "1SS"}) {  // from either bank's register
    Register reg(session, account);
    RegisterEntry entry = *Open_Entry(session, reg, reg.line(0));
    std::swap(entry.Credit, entry.Debit);
    ASSERT_TRUE(Record(session, reg, entry).stapler);
    const Check turned = *Load_Check(session, number);
    EXPECT_EQ(turned.BankID, "0SS") << account;
    EXPECT_EQ(turned.Amount, account == std::string("0SS") ? -Dollars(30) : Dollars(30));
    EXPECT_EQ(turned.expenses[0].Amount, turned.Amount);
  }
  Register reg(session, "0SS");
  RegisterEntry entry = New_Entry(reg);
  entry.Category = "Savings";
  entry.CatID = "1SS";
  entry.Credit = -Dollars(7);
  ASSERT_TRUE(Record(session, reg, entry).stapler);
  EXPECT_EQ(testing::Rows_Of(company.db(), entry.TransNum, "Account Debit Credit Amount"), "0SS|7|0|7\n1SS|0|7|7\n")
      << "typed with a minus it comes in";
}

}  // namespace
}  // namespace tallymere
