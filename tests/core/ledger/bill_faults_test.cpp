#include "core/ledger/bill_faults.h"

#include "core/ledger/settlement.h"
#include "support/entry_company.h"

namespace tallymere {
namespace {

using testing::Dollars;
using testing::EntryCompany;
using Faults = std::vector<std::string>;

TEST(BillFaults, EachIsFoundAndABillDeletedBesideItsPaymentIsNone) {
  EntryCompany company;
  const auto bill = [&](const char* vendor) {
    return company.write("Bill", Date(2026, 6, 1), "AP1", "40SS", Dollars(25), vendor);
  };
  const int64_t one = bill("Acme"), two = bill("Acme"), three = bill("Acme");
  const int64_t check = company.write("Billcheck", Date(2026, 6, 2), "0SS", "AP1", Dollars(75), "Acme");
  {
    store::Transaction tx(company.db(), "Paid");
    for (const int64_t paid : {one, two, three}) Apply(company.db(), check, paid, Dollars(25));
    tx.commit();
  }
  Delete_Transaction(*company.session, three);
  EXPECT_EQ(Bill_Faults(company.db()), Faults());

  const std::string number = std::to_string(one), payer = std::to_string(check);
  company.run("UPDATE Transactions SET Name = 'Baker' WHERE TransNum = ?", {one});
  EXPECT_EQ(Bill_Faults(company.db()),
            Faults{"bill " + number + " of Baker was paid by Billcheck " + payer + " of Acme"});
  company.run("UPDATE Transactions SET Name = 'Acme' WHERE TransNum = ?", {one});
  company.run("UPDATE Transactions SET Debit = 40 * 10000 WHERE TransNum = ? AND Account = 'AP1'", {check});
  EXPECT_EQ(Bill_Faults(company.db()),
            Faults{"transaction " + payer + " paid bills for 50 and takes 40 off accounts payable"});
  company.run("UPDATE Transactions SET Debit = 50 * 10000 WHERE TransNum = ? AND Account = 'AP1'", {check});
  company.run("UPDATE Transactions SET Account = 'AP1' WHERE TransNum = ? AND Account = '40SS'", {two});
  EXPECT_EQ(Bill_Faults(company.db()), Faults{"Bill " + std::to_string(two) + " has 2 rows in accounts payable"});
  company.run("UPDATE Transactions SET Account = '40SS' WHERE TransNum = ? AND Category = 'AP1'", {two});
  company.run("UPDATE Transactions SET RowKey = RowKey + 1000 WHERE TransNum = ? AND Account = 'AP1'", {two});
  EXPECT_EQ(Bill_Faults(company.db()),
            Faults{"Bill " + std::to_string(two) + ": its row in accounts payable is not the first"});
}

}  // namespace
}  // namespace tallymere
