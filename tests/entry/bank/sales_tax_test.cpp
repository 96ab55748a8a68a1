#include "entry/bank/sales_tax.h"

#include <gtest/gtest.h>

#include "support/entry_company.h"

namespace tallymere {
namespace {

using testing::Dollars;
using testing::EntryCompany;
using testing::Rows_Of;

struct SalesTax : ::testing::Test {
  SalesTax() {
    store::Transaction tx(company.db(), "two taxes of one agency, one of another");
    for (const auto& [item, vendor] :
         {std::pair{"State", "Revenue Dept"}, {"City", "revenue dept"}, {"County", "County Clerk"}})
      company.db().Execute(
          "INSERT INTO Items (ItemName, ItemType, ItemCat, TaxVendor) VALUES (?, 'Sales Tax', '21SS', ?)",
          {std::string(item), std::string(vendor)});
    company.db().Execute("UPDATE GeneralPrefs SET State = 'Accural' WHERE Preference = 'SalesBase'");
    tx.commit();
  }
  /// A taxed sale: only its tax row matters here.
  void sold(const char* item, Date date, Money tax, bool paid) {
    Transaction_Writer rows(*company.session, {.Type = "Invoice", .Date = date});
    rows.add({.Account = "AR1", .Category = "<-Break Down->", .Debit = tax, .Amount = tax});
    rows.add({.Account = "21SS", .Category = "AR1", .Credit = tax, .Amount = tax, .Item = item, .Paid = paid});
    rows.commit();
  }
  std::string owed(Date as_of) {
    std::string text;
    for (const SalesTaxLine& line : Sales_Tax_Owed(*company.session, as_of))
      text += line.Item + "=" + line.Amount.to_text() + " ";
    return text;
  }
  SalesTaxPayment selected(std::initializer_list<const char*> items) {
    SalesTaxPayment payment = New_Sales_Tax_Payment(*company.session);
    for (SalesTaxLine& line : payment.lines)
      line.Select = std::ranges::find_if(items, [&](const char* item) { return line.Item == item; }) != items.end();
    return payment;
  }
  EntryCompany company;
};

TEST_F(SalesTax, ProposesTheEndOfTheMonthBeforeButNeverThe29thOfFebruary) {
  EXPECT_EQ(Liability_Date(Date(2028, 3, 10)), Date(2028, 2, 28));
  EXPECT_EQ(Liability_Date(Date(2026, 1, 1)), Date(2025, 12, 31));
  EXPECT_EQ(Liability_Date(Date(2026, 5, 31)), Date(2026, 4, 30));
}

TEST_F(SalesTax, CashBasisOwesOnlyWhatWasPaidAndPaymentsCountWhateverTheirDay) {
  sold("State", Date(2026, 5, 31), Dollars(60), true);
  sold("State", Date(2026, 5, 1), Dollars(40), false);
  sold("State", Date(2026, 6, 1), Dollars(7), true);
  EXPECT_EQ(owed(Date(2026, 5, 31)), "State=100 City=0 County=0 ");
  EXPECT_EQ(Pay_Sales_Tax(*company.session, selected({"State"})).written.size(), 1u);  // dated June 15
  EXPECT_EQ(owed(Date(2026, 5, 31)), "State=0 City=0 County=0 ");
  store::Transaction tx(company.db(), "on cash basis");
  company.db().Execute("UPDATE GeneralPrefs SET State = 'Cash' WHERE Preference = 'SalesBase'");
  tx.commit();
  EXPECT_EQ(owed(Date(2026, 5, 31)), "State=-40 City=0 County=0 ");
}

TEST_F(SalesTax, OneCheckPerAgencyWithARowPerTax) {
  sold("State", Date(2026, 5, 1), Dollars(60), false);
  sold("City", Date(2026, 5, 2), Dollars(15), false);
  sold("County", Date(2026, 5, 2), Dollars(5), false);
  const auto result = Pay_Sales_Tax(*company.session, selected({"State", "City", "County"}));
  ASSERT_EQ(result.written, (std::vector<int64_t>{4, 5}));
  EXPECT_EQ(Rows_Of(company.db(), 4, "Type Number Name Account Category Debit Credit Amount Item PaidThrough"),
            "Liabilitycheck|Print|Revenue Dept|0SS|<-Break Down->|0|75|75||5/31/2026\n"
            "Liabilitycheck|Print|Revenue Dept|21SS|0SS|60|0|60|State|5/31/2026\n"
            "Liabilitycheck|Print|Revenue Dept|21SS|0SS|15|0|15|City|5/31/2026\n");
  EXPECT_EQ(Rows_Of(company.db(), 5, "Name Amount"), "County Clerk|5\nCounty Clerk|5\n");
}

TEST_F(SalesTax, WhatCannotBePaidIsSaidAndNothingIsWritten) {
  sold("State", Date(2026, 5, 1), Dollars(60), false);
  EXPECT_EQ(Pay_Sales_Tax(*company.session, selected({"State", "County"})).fault->box.title, "Nothing to Pay");
  SalesTaxPayment nowhere = selected({"State"});
  nowhere.BankID = "";
  EXPECT_EQ(Pay_Sales_Tax(*company.session, nowhere).fault->control, "cmbBankAcct");
  const auto none = Pay_Sales_Tax(*company.session, selected({}));
  EXPECT_TRUE(!none.fault && none.written.empty());
  EXPECT_EQ(company.count(), 2);
}

TEST_F(SalesTax, AChangedCheckKeepsItsNumbersAndIsNotWrittenOverAnothersWork) {
  sold("State", Date(2026, 5, 1), Dollars(60), false);
  sold("City", Date(2026, 5, 2), Dollars(15), false);
  const int64_t number = Pay_Sales_Tax(*company.session, selected({"State", "City"})).written.front();
  Rewrite_Fields(*company.session, number, {{"Number", "1042"}, {"Cleared", true}});
  const std::string before = Rows_Of(company.db(), number, "Number Cleared Account Debit Credit Item PaidThrough");
  auto payment = Edit_Sales_Tax_Payment(*company.session, number);
  ASSERT_TRUE(payment);
  Pay_Sales_Tax(*company.session, *payment);
  EXPECT_EQ(Rows_Of(company.db(), number, "Number Cleared Account Debit Credit Item PaidThrough"), before);
  payment = Edit_Sales_Tax_Payment(*company.session, number);
  for (SalesTaxLine& line : payment->lines) line.Select = line.Item == "City";
  Rewrite_Fields(*company.session, number, {{"Number", "1043"}});
  EXPECT_TRUE(Pay_Sales_Tax(*company.session, *payment).conflict);
  payment->probe = Probe::Of(company.db(), number);
  EXPECT_EQ(Pay_Sales_Tax(*company.session, *payment).written, std::vector{number});
  EXPECT_EQ(Rows_Of(company.db(), number, "Amount Number"), "15|1042\n15|1042\n");
  EXPECT_FALSE(Edit_Sales_Tax_Payment(*company.session, 1)) << "an invoice";
}

}  // namespace
}  // namespace tallymere
