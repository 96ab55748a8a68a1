#include "payroll/liabilities.h"

#include <algorithm>

#include "core/ledger/verify.h"
#include "payroll/ytd_setup.h"
#include "support/entry_company.h"

namespace tallymere {
namespace {

using testing::Dollars;
using testing::Rows_Of;

/// Two federal items of one agency, a deduction of another, and what paychecks of two quarters owe.
struct Owing : testing::EntryCompany {
  Owing() {
    run("UPDATE PayrollItems SET LiabilityAgency = 'Treasury', LiabilityNumber = 'N-1'");
    run("INSERT INTO PayrollItems (Name, Type, LiabilityAcct, LiabilityAgency, LiabilityNumber, TaxPaid) VALUES"
        " ('Plan', 'Deduction', '21SS', 'Fund', 'P-7', 'Employee Paid Tax')");
    run("INSERT INTO Vendors (Name, Address, ShippingAddress) VALUES ('Treasury', 'Ogden', 'Ogden UT')");
    run("INSERT INTO Employees (SSNum, Name) VALUES ('9', 'Ann')");
    run("UPDATE CompanyInfo SET FedID = '12-3'");
    owes("Federal Withholding", "15SS", Dollars(100), Date(2026, 3, 13));
    owes("Social Security Employee", "16SS", Dollars(60), Date(2026, 3, 13));
    owes("Plan", "21SS", Dollars(40), Date(2026, 3, 13));
    owes("Federal Withholding", "15SS", Dollars(11), Date(2026, 4, 10));
  }
  void owes(const std::string& item, const std::string& account, Money amount, Date day) {
    Transaction_Writer rows(*session, {.Type = "Paycheck", .Date = day, .Name = "Ann"});
    rows.add({.Account = "68SS", .Debit = amount, .Amount = amount});
    rows.add({.Account = account, .Credit = amount, .Amount = amount, .PayrollItem = item});
    rows.commit();
  }
  std::string owed(Date as_of) {
    std::string list;
    for (const OwedItem& item : Load_List(db(), as_of))
      list += item.PayrollItem.substr(0, 4) + " " + item.Amount.to_text() + "; ";
    return list;
  }
  LiabilityPayment payment() {
    LiabilityPayment paying = New_Liability_Payment(*session);
    paying.QtrDate = Date(2026, 3, 31);
    paying.items = Load_List(db(), paying.QtrDate);
    for (OwedItem& item : paying.items) item.Select = true;
    return paying;
  }
};

TEST(Liabilities, OneCheckAnAgencyClearsWhatWasOwedAsOfADay) {
  Owing acme;
  EXPECT_EQ(acme.owed(Date(2026, 3, 31)), "Plan 40; Fede 100; Soci 60; ");
  EXPECT_EQ(acme.owed(Date(2026, 6, 15)), "Plan 40; Fede 111; Soci 60; ");
  EXPECT_EQ(acme.owed(Date(2026, 1, 1)), "Plan 0; Fede 0; Soci 0; ") << "what nets to nothing stays";
  const LiabilityResult paid = Pay_Liabilities(*acme.session, acme.payment());
  ASSERT_EQ(paid.numbers, (std::vector<int64_t>{5, 6}));
  EXPECT_EQ(Rows_Of(acme.db(), 6, "Name Number PaidThrough Account Category Debit Credit PayrollItem Memo Address"),
            "Treasury|Print|3/31/2026|0SS|<-Break Down->|0|160||N-1|Ogden\n"
            "Treasury|Print|3/31/2026|15SS|0SS|100|0|Federal Withholding|12-3|Ogden\n"
            "Treasury|Print|3/31/2026|16SS|0SS|60|0|Social Security Employee|12-3|Ogden\n");
  // The check is of June and still counts in March.
  EXPECT_EQ(acme.owed(Date(2026, 3, 31)), "Plan 0; Fede 0; Soci 0; ");
  EXPECT_EQ(acme.owed(Date(2026, 6, 15)), "Plan 0; Fede 11; Soci 0; ");
}

TEST(Liabilities, AChangedPaymentKeepsItsNumber) {
  Owing acme;
  Pay_Liabilities(*acme.session, acme.payment());
  auto edited = Edit_Liability_Payment(*acme.session, 6);
  ASSERT_TRUE(edited);
  edited->Number = "2001";
  const std::string fields = "TransNum Account Debit Credit PayrollItem PaidThrough";
  const std::string before = Rows_Of(acme.db(), 6, fields);
  auto stale = Edit_Liability_Payment(*acme.session, 6);
  EXPECT_EQ(Pay_Liabilities(*acme.session, *edited).numbers, std::vector<int64_t>{6});
  EXPECT_EQ(Rows_Of(acme.db(), 6, fields), before);
  EXPECT_TRUE(Pay_Liabilities(*acme.session, *stale).conflict);
  EXPECT_FALSE(Edit_Liability_Payment(*acme.session, 1)) << "a paycheck";
}

TEST(Liabilities, WhatIsWrongIsSaidAndNothingWritten) {
  Owing acme;
  LiabilityPayment paying = acme.payment();
  paying.BankID = "";
  EXPECT_EQ(Pay_Liabilities(*acme.session, paying).fault->box.text, "Please select a Bank to Pay Liabilities from.");
  paying.BankID = "0SS";
  paying.items[0].Amount = Dollars(-3);
  EXPECT_EQ(Pay_Liabilities(*acme.session, paying).fault->box.title, "Nothing to Pay");
  paying.items[0].PayTo = "";
  EXPECT_EQ(Pay_Liabilities(*acme.session, paying).fault->box.title, "No Agency");
  EXPECT_EQ(Adjust_Liabilities(*acme.session, Date(2026, 6, 1), {{"Plan", Dollars(1), ""}}).fault->box.title,
            "No Employee");
  EXPECT_EQ(
      Adjust_Liabilities(*acme.session, Date(2026, 6, 1), {{"Medicare Company", Dollars(1), "Ann"}}).fault->box.title,
      "Employee is not Needed");
  EXPECT_EQ(
      Refund_Liabilities(*acme.session, {Date(2026, 6, 1), Date(2026, 3, 31), "Fund", "0SS", {}}).fault->box.title,
      "No Items");
  acme.run("UPDATE PayrollItems SET LiabilityAcct = '' WHERE Name = 'Plan'");
  EXPECT_EQ(Adjust_Liabilities(*acme.session, Date(2026, 6, 1), {{"Plan", Dollars(1), "Ann"}}).fault->box.title,
            "No Category")
      << "there is nothing to post it to";
  EXPECT_EQ(
      Refund_Liabilities(*acme.session, {Date(2026, 6, 1), Date(2026, 3, 31), "Fund", "0SS", {{"Plan", Dollars(1)}}})
          .fault->box.title,
      "No Category");
  EXPECT_EQ(acme.db().value("SELECT MAX(TransNum) FROM Transactions").integer(), 4);
}

TEST(Liabilities, CorrectionsAndRefundsBalance) {
  Owing acme;
  const auto corrected = Adjust_Liabilities(*acme.session, Date(2026, 6, 1),
                                            {{"Plan", Dollars(5), "Ann"}, {"Medicare Company", Dollars(-7), ""}});
  EXPECT_EQ(Rows_Of(acme.db(), corrected.numbers.at(0), "Account Debit Credit Amount PayrollItem Name SSNum"),
            "21SS|5|0|5|Plan|Ann|9\n"
            "OE1|0|5|5||Ann|9\n"
            "17SS|0|7|7|Medicare Company||\n"
            "69SS|7|0|7|Medicare Company||\n");
  EXPECT_EQ(acme.owed(Date(2026, 6, 15)), "Plan 35; Fede 111; Soci 60; Medi 7; ") << "a positive one lowers it";
  const auto refunded =
      Refund_Liabilities(*acme.session, {Date(2026, 6, 2), Date(2026, 3, 31), "Fund", "0SS", {{"Plan", Dollars(6)}}});
  EXPECT_EQ(Rows_Of(acme.db(), refunded.numbers.at(0), "Account Category Debit Credit PayrollItem PaidThrough Memo"),
            "0SS|<-Break Down->|6|0||3/31/2026|Payroll Liability Refund\n"
            "21SS|0SS|0|6|Plan|3/31/2026|Payroll Liability Refund\n");
  acme.run("DELETE FROM GeneralPrefs WHERE Preference = 'PayrollPosting'");
  const auto plain = Adjust_Liabilities(*acme.session, Date(2026, 6, 1), {{"Plan", Dollars(5), "Ann"}});
  EXPECT_EQ(Rows_Of(acme.db(), plain.numbers.at(0), "Account Debit Credit"), "21SS|5|0\n") << "the old pattern";
  EXPECT_EQ(std::ranges::count(Verify_Company(acme.db()), "balance", &Finding::check), 0) << "which has a name";
}

TEST(YearToDateSetup, WritesTotalsAgainstOpeningEquityOrTheBank) {
  Owing acme;
  acme.run("INSERT INTO PayrollItems (Name, Type, ExpenseAcct, TaxPaid) VALUES ('Wage', 'Wage', '68SS', '')");
  YtdSetup setup{.SSNum = "9", .Employee = "Ann", .date = Date(2026, 1, 1)};
  setup.lines = {{"Wage", Dollars(1000)},
                 {"Federal Withholding", Dollars(90)},
                 {"Medicare Company", Dollars(14, 50)},
                 {"Plan", std::nullopt}};
  EXPECT_EQ(Set_Up_Year_To_Date(*acme.session, setup)->box.title, "Invalid Data");
  setup.lines.back().Amount = Dollars(-10);  // given back
  EXPECT_FALSE(Set_Up_Year_To_Date(*acme.session, setup));
  EXPECT_EQ(Rows_Of(acme.db(), 5, "Account Category Debit Credit Amount PayrollItem SSNum"),
            "68SS|OE1|1000|0|1000|Wage|9\n"
            "15SS|OE1|0|90|90|Federal Withholding|9\n"
            "69SS|OE1|14.5|0|14.5|Medicare Company|9\n"
            "17SS|OE1|0|14.5|14.5|Medicare Company|9\n"
            "21SS|OE1|10|0|10|Plan|9\n"
            "OE1|<-Break Down->|0|920|920||9\n");
  setup.to_bank = true;
  EXPECT_EQ(Set_Up_Year_To_Date(*acme.session, setup)->control, "cmbBank");
  setup.BankID = "0SS";
  EXPECT_FALSE(Set_Up_Year_To_Date(*acme.session, setup));
  EXPECT_EQ(acme.db().value("SELECT SUM(Debit) - SUM(Credit) + 0 FROM Transactions").integer(), 0);
  EXPECT_EQ(acme.db().value("SELECT Account FROM Transactions ORDER BY RowKey DESC").text(), "0SS");
}

}  // namespace
}  // namespace tallymere
