#include "entry/bills/pay_bills.h"

#include "core/ledger/bill_faults.h"
#include "core/ledger/settlement.h"
#include "entry/checks/check.h"
#include "support/entry_company.h"

namespace tallymere {
namespace {

using testing::Dollars;
using testing::EntryCompany;
using testing::Rows_Of;

/// Bills of three vendors, one of whom is in no list.
class PayBills : public ::testing::Test {
 protected:
  PayBills() {
    company.run("INSERT INTO Vendors (Name, ShippingAddress) VALUES ('Acme Supply', '1 Mill Road')");
    company.run("INSERT INTO Vendors (Name, Address) VALUES ('O''Brien', 'not here')");
    company.add_category("900SS", "Credit Card");
    acme = bill("Acme Supply", Dollars(25), Date(2026, 7, 1));
    obrien = bill("O'Brien", Dollars(40), Date(2026, 6, 20));
    acme2 = bill("ACME supply", Dollars(10), Date(2026, 7, 2));
    nobody = bill("Nobody", Dollars(7), Date(2026, 7, 3));
  }
  int64_t bill(const std::string& vendor, Money amount, Date due, const char* type = "Bill") {
    const int64_t number = company.write(type, Date(2026, 6, 1), "AP1", "40SS", amount, vendor, "n");
    company.run("UPDATE Transactions SET DueDate = ? WHERE TransNum = ?", {due, number});
    return number;
  }
  BillPayment payment(const std::vector<int64_t>& numbers) {
    BillPayment made{.PayDate = Date(2026, 6, 15), .CatID = "0SS"};
    for (const int64_t number : numbers)
      for (const UnpaidBill& listed : listed_)
        if (listed.RefNum == number) made.bills.push_back(listed);
    return made;
  }
  void list() { listed_ = Unpaid_Bills(session, BillOrder::DueDate); }
  std::string paid(int64_t number) { return Rows_Of(company.db(), number, "Paid PaidBy"); }
  std::string by(const std::string& PaidBy) { return "True|" + PaidBy + "\nTrue|" + PaidBy + "\n"; }

  EntryCompany company;
  Session& session = *company.session;
  int64_t acme, obrien, acme2, nobody;
  std::vector<UnpaidBill> listed_;
};

TEST_F(PayBills, AllThatIsOwedIsListedInTheOrderChosen) {
  bill("Acme Supply", Dollars(1), Date(2026, 1, 1), "Credit");
  bill("Acme Supply", Dollars(1), Date(2026, 1, 1), "Item Receipt");
  bill("Acme Supply", Money(), Date(2026, 1, 1));
  const auto order = [&](BillOrder by) {
    std::vector<int64_t> numbers;
    for (const UnpaidBill& each : Unpaid_Bills(session, by)) numbers.push_back(each.RefNum);
    return numbers;
  };
  EXPECT_EQ(order(BillOrder::DueDate), (std::vector{obrien, acme, acme2, nobody}));
  EXPECT_EQ(order(BillOrder::Vendor), (std::vector{acme, acme2, nobody, obrien}));
  EXPECT_EQ(order(BillOrder::AmountDue), (std::vector{nobody, acme2, acme, obrien}));
}

TEST_F(PayBills, OnePaymentAVendorNumberedInTheOrderOfTheSelection) {
  list();
  ASSERT_TRUE(Pay_Bills(session, payment({acme, obrien, acme2, nobody})).written);
  const int64_t first = nobody + 1;
  const char* fields = "Type Number Name Address Account Category Debit Credit Amount";
  EXPECT_EQ(Rows_Of(company.db(), first, fields),
            "Billcheck|Print|Acme Supply|1 Mill Road|0SS|AP1|0|35|35\n"
            "Billcheck|Print|Acme Supply|1 Mill Road|AP1|0SS|35|0|35\n");
  EXPECT_EQ(Rows_Of(company.db(), first + 1, fields),
            "Billcheck|Print|O'Brien||0SS|AP1|0|40|40\nBillcheck|Print|O'Brien||AP1|0SS|40|0|40\n");
  EXPECT_EQ(Rows_Of(company.db(), first + 2, "Name Address Amount"), "Nobody||7\nNobody||7\n");
  EXPECT_EQ(paid(acme), by(Paid_By(first)));
  EXPECT_EQ(paid(acme2), by(Paid_By(first)));
  EXPECT_EQ(paid(obrien), by(Paid_By(first + 1)));
  EXPECT_TRUE(Unpaid_Bills(session, BillOrder::DueDate).empty());
  EXPECT_EQ(company.db().value("SELECT What FROM History ORDER BY RowKey DESC LIMIT 1").text(),
            "Paid bills, 3 vendors, $82.00 by check");
}

TEST_F(PayBills, BillsPaidByCardAreFreeAgainWhenThatEntryGoes) {
  list();
  BillPayment card = payment({acme, obrien});
  card.way = PayBy::CreditCard;
  card.CatID = Paying_Categories(session, PayBy::CreditCard).back().CatID;
  EXPECT_EQ(card.CatID, "900SS");
  ASSERT_TRUE(Pay_Bills(session, card).written);
  const int64_t first = nobody + 1;
  EXPECT_EQ(Rows_Of(company.db(), first, "Type Number Account Category"),
            "Ledger Entry||900SS|AP1\nLedger Entry||AP1|900SS\n");
  Delete_Transaction(session, first);
  EXPECT_EQ(paid(acme), "False|\nFalse|\n");
  EXPECT_EQ(paid(obrien), by(Paid_By(first + 1)));
  list();
  ASSERT_TRUE(Pay_Bills(session, payment({acme})).written);
  EXPECT_EQ(paid(acme), by(Paid_By(first + 2)));
}

TEST_F(PayBills, ABillPaidInPartIsOwedTheRestAndNamesBothPayers) {
  list();
  BillPayment part = payment({acme, acme2});
  part.parts = {{acme, Dollars(15)}};
  ASSERT_TRUE(Pay_Bills(session, part).written);
  const int64_t first = nobody + 1;
  EXPECT_EQ(Rows_Of(company.db(), first, "Amount"), "25\n25\n");
  EXPECT_EQ(paid(acme), "False|" + Paid_By(first) + "\nFalse|" + Paid_By(first) + "\n");
  EXPECT_EQ(paid(acme2), by(Paid_By(first)));
  const auto stub = Load_Check(session, first)->bills;  // what the check says it pays
  ASSERT_EQ(stub.size(), 2u);
  EXPECT_EQ(stub[0].Amount, Dollars(15));
  EXPECT_EQ(stub[1].Amount, Dollars(10));
  list();
  const BillPayment rest = payment({acme});
  ASSERT_EQ(rest.bills.at(0).AmountDue, Dollars(10));
  for (const Money wrong : {Money(), -Dollars(1), Dollars(10, 1)}) {
    BillPayment refused = rest;
    refused.parts = {{acme, wrong}};
    EXPECT_EQ(Pay_Bills(session, refused).fault->control, "txtPart");
  }
  ASSERT_TRUE(Pay_Bills(session, rest).written);
  EXPECT_EQ(Rows_Of(company.db(), first + 1, "Amount"), "10\n10\n");
  EXPECT_EQ(paid(acme), by(Paid_By(first) + Paid_By(first + 1)));
  Delete_Transaction(session, first);
  list();
  EXPECT_EQ(Bill_Faults(company.db()), std::vector<std::string>());
  EXPECT_EQ(payment({acme}).bills.at(0).AmountDue, Dollars(15)) << "as much is owed again as was taken back";
}

TEST_F(PayBills, ASecondUserIsToldAndPaysNothing) {
  list();
  const BillPayment late = payment({obrien, acme, nobody});
  const auto colleague = company.another_user();
  ASSERT_TRUE(Pay_Bills(*colleague, payment({acme})).written);
  const int64_t rows = company.count();
  const SaveResult result = Pay_Bills(session, late);
  ASSERT_TRUE(result.conflict && result.conflict->reload);
  EXPECT_EQ(result.conflict->box.detail, "Bill n, Acme Supply for $25.00 was paid or changed. Nothing was paid now.");
  EXPECT_EQ(company.count(), rows);
  EXPECT_EQ(paid(obrien), "False|\nFalse|\n");
  list();
  EXPECT_TRUE(Pay_Bills(session, payment({obrien, nobody})).written);
}

TEST_F(PayBills, MistakesAndFailuresPayNothing) {
  list();
  BillPayment made = payment({acme, obrien});
  made.CatID = "";
  made.bills.clear();
  EXPECT_EQ(Pay_Bills(session, made).fault->box.text, "Please Select a Place to withdraw from.");
  made.CatID = "0SS";
  EXPECT_EQ(Pay_Bills(session, made).fault->box.text, "Please Select a Bill to Pay.");
  const int64_t rows = company.count();
  made = payment({acme, obrien});
  made.CatID = "gone";  // another user deleted it
  const SaveResult result = Pay_Bills(session, made);
  ASSERT_TRUE(result.conflict);
  EXPECT_FALSE(result.conflict->reload) << "what was selected stays";
  EXPECT_EQ(company.count(), rows);
  EXPECT_EQ(paid(acme) + paid(obrien), "False|\nFalse|\nFalse|\nFalse|\n");
}

/// The table of vendors has no bounds.
TEST_F(PayBills, HundredsOfVendorsArePaidInOneRun) {
  for (int at = 0; at < 150; ++at) bill("Vendor " + std::to_string(at), Dollars(1), Date(2026, 8, 1));
  list();
  BillPayment all{.PayDate = Date(2026, 6, 15), .CatID = "0SS", .bills = listed_};
  const int64_t actions = company.db().value("SELECT COUNT(*) FROM History").integer();
  ASSERT_TRUE(Pay_Bills(session, all).written);
  EXPECT_EQ(company.db().value("SELECT COUNT(DISTINCT TransNum) FROM Transactions WHERE Type = 'Billcheck'").integer(),
            153);
  EXPECT_EQ(company.db().value("SELECT COUNT(*) FROM History").integer(), actions + 1);
}

}  // namespace
}  // namespace tallymere
