#include "core/ledger/settlement.h"

#include "core/ledger/undo.h"
#include "core/store/history.h"
#include "support/entry_company.h"

namespace tallymere {
namespace {

using testing::Dollars;
using testing::EntryCompany;
using testing::Rows_Of;

const Date day(2026, 3, 1);

class Settlement : public ::testing::Test {
 protected:
  using Applications = std::vector<Application>;

  int64_t bill(int dollars) { return company.write("Bill", day, "AP1", "40SS", Dollars(dollars), "Acme"); }
  int64_t invoice(int dollars) { return company.write("Invoice", day, "30SS", "AR1", Dollars(dollars), "Jones"); }
  int64_t check(int dollars) { return company.write("Billcheck", day, "0SS", "AP1", Dollars(dollars), "Acme"); }
  int64_t payment(int dollars, const std::string& into = "0SS") {
    return company.write("Payment", day, "AR1", into, Dollars(dollars), "Jones");
  }
  void apply(int64_t payment_number, int64_t document, Money amount) {
    store::Transaction tx(company.db(), "Applied by a test");
    Apply(company.db(), payment_number, document, amount);
    tx.commit();
  }
  /// What both rows of a document tell, when they tell the same.
  std::string state(int64_t document, const std::string& fields = "Paid PaidBy") {
    const std::string rows = Rows_Of(company.db(), document, fields);
    const std::string first = rows.substr(0, rows.find('\n'));
    EXPECT_EQ(rows, first + "\n" + first + "\n");
    return first;
  }
  int64_t fill() {
    store::Transaction tx(company.db(), "Fill");
    const int64_t left = Fill_Applied(company.db());
    tx.commit();
    return left;
  }
  static std::string by(std::initializer_list<int64_t> payers) {
    std::string text;
    for (int64_t payer : payers) text += Paid_By(payer);
    return text;
  }

  EntryCompany company;
};

TEST_F(Settlement, ADocumentIsPaidOnceItsPaymentsReachItsAmountAndEachRowReceivesItsShare) {
  const int64_t sold = invoice(90);
  company.run("UPDATE Transactions SET Amount = ? WHERE TransNum = ? AND Account = '30SS'", {Dollars(30), sold});
  const int64_t first = payment(30), second = payment(60);
  apply(first, sold, Dollars(30));
  EXPECT_EQ(Rows_Of(company.db(), sold, "Paid PaidBy AmountReceived"),
            "False|" + by({first}) + "|10\nFalse|" + by({first}) + "|30\n");
  apply(second, sold, Dollars(60));
  EXPECT_EQ(state(sold), "True|" + by({first, second}));
  apply(first, sold, Dollars(10));  // changed by hand: its place among the payers stays
  EXPECT_EQ(state(sold), "False|" + by({first, second}));
  apply(second, sold, Money());
  EXPECT_EQ(state(sold), "False|" + by({first}));
  EXPECT_EQ(Applied_To(company.db(), sold), (Applications{{first, Dollars(10)}}));

  const int64_t owed = bill(100), paying = check(100);
  apply(paying, owed, Dollars(100));
  EXPECT_EQ(state(owed, "Paid PaidBy AmountReceived"), "True|" + by({paying}) + "|");
}

TEST_F(Settlement, WhatIsDeletedFreesWhatItPaidAndNothingElse) {
  const int64_t one = bill(100), other = bill(50), first = check(150), second = check(50);
  apply(first, one, Dollars(100)), apply(first, other, Dollars(50)), apply(second, other, Dollars(50));
  Delete_Transaction(*company.session, first);
  const int64_t deleted = store::List_Actions(company.db(), 1).at(0).number;
  EXPECT_EQ(state(one), "False|");
  EXPECT_EQ(state(other), "True|" + by({second}));
  EXPECT_GT(check(7), second) << "and nobody adopts it under the same number";
  Undo_Action(*company.session, deleted);
  EXPECT_EQ(state(one), "True|" + by({first}));
  EXPECT_EQ(state(other), "True|" + by({first, second}));
  EXPECT_EQ(Applied_By(company.db(), first), (Applications{{one, Dollars(100)}, {other, Dollars(50)}}));
  Delete_Transaction(*company.session, one);
  EXPECT_EQ(Applied_By(company.db(), first), (Applications{{other, Dollars(50)}})) << "the payment stays as it was";
}

TEST_F(Settlement, ARewrittenDocumentIsSettledByWhatWasPaidOnIt) {
  const int64_t sold = invoice(100), paid = payment(100);
  apply(paid, sold, Dollars(100));
  Transaction_Writer rows(*company.session, {.TransNum = sold, .Type = "Invoice", .Date = day, .Name = "Jones"},
                          Probe::Of(company.db(), sold));
  rows.add({.Account = "AR1", .Category = "30SS", .Debit = Dollars(150), .Amount = Dollars(150)});
  rows.add({.Account = "30SS", .Category = "AR1", .Credit = Dollars(150), .Amount = Dollars(150), .Paid = true});
  rows.commit();
  EXPECT_EQ(state(sold, "Paid PaidBy AmountReceived"), "False|" + by({paid}) + "|100");
  EXPECT_NO_THROW(rows.probe().check(company.db())) << "the window knows the rows as they stand";
}

TEST_F(Settlement, APaymentWaitsForItsDepositUntilAndAfterThatIsDeleted) {
  const int64_t held = payment(80, "UF1");
  const int64_t deposit = company.write("Ledger Entry", day, "UF1", "0SS", Dollars(80));
  apply(deposit, held, Dollars(80));
  EXPECT_EQ(state(held), "True|") << "a payment does not name its deposit";
  Delete_Transaction(*company.session, deposit);
  EXPECT_EQ(state(held), "False|");
}

TEST_F(Settlement, DocumentsOfBeforeAreFilledWhereOneAnswerAloneIsPossible) {
  // 30 + 70 from two payments, the second of which also paid another invoice whole.
  const int64_t shared = invoice(100), whole = invoice(40), first = payment(30), second = payment(110);
  apply(first, shared, Dollars(30)), apply(second, shared, Dollars(70)), apply(second, whole, Dollars(40));
  const int64_t owed = bill(20), twice = check(20), again = check(20);
  apply(twice, owed, Dollars(20)), apply(again, owed, Dollars(20));
  // Two payments on the same two invoices may have split either way.
  const int64_t a = invoice(50), b = invoice(50), x = payment(40), y = payment(60);
  apply(x, a, Dollars(20)), apply(y, a, Dollars(30)), apply(x, b, Dollars(20)), apply(y, b, Dollars(30));
  company.run("DELETE FROM Applied");
  EXPECT_EQ(fill(), 2);
  EXPECT_EQ(Applied_To(company.db(), shared), (Applications{{first, Dollars(30)}, {second, Dollars(70)}}));
  EXPECT_EQ(Applied_To(company.db(), whole), (Applications{{second, Dollars(40)}}));
  EXPECT_EQ(Applied_To(company.db(), owed), (Applications{{twice, Dollars(20)}, {again, Dollars(20)}}));
  EXPECT_EQ(Unrecorded_Documents(company.db()), (std::vector<int64_t>{a, b}));

  // A payment that goes takes back what nobody wrote down: the oldest payment had paid first.
  Delete_Transaction(*company.session, y);
  EXPECT_EQ(state(a, "Paid PaidBy AmountReceived"), "False|" + by({x}) + "|40");
  EXPECT_TRUE(Unrecorded_Documents(company.db()).empty());
}

}  // namespace
}  // namespace tallymere
