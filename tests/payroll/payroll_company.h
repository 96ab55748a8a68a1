#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "core/ledger/verify.h"
#include "payroll/posting.h"
#include "support/entry_company.h"

namespace tallymere::testing {

/// Ann has a salary with a plan, its match and an unemployment tax, Bob is paid by the hour.
struct PayrollCompany : TestCompany {
  PayrollCompany() {
    add_item("Salary", "Wage", "68SS", "", "PayType, PayStyle", "'Salary', 'Regular'");
    add_item("Hourly", "Wage", "68SS", "", "PayType, PayStyle", "'Hourly', 'Regular'");
    add_item("Plan", "Deduction", "", "21SS", "PayCal, LiabilityNumber", "'Gross', 'P-1'");
    add_item("Match", "Company Contribution", "70SS", "21SS", "PayCal", "''");
    add_item("IL Tax", "State Tax", "", "19SS", "TaxType, SState", "'State Withholding', 'IL'");
    add_item("IL Fund", "State Tax", "69SS", "20SS", "TaxType, SState, UnempTaxRate, DefaultLimit",
             "'State Unemployment', 'IL', '3.35%', 142500000");
    run("UPDATE PayrollItems SET TaxPaid = 'Employer Paid Tax' WHERE Name = 'IL Fund'");
    run("INSERT INTO PreTaxTable (Name, TaxName, Selected) VALUES ('Plan', 'Federal Withholding', -1)");
    add_employee("1", "Ann");
    add_employee("2", "Bob");
    earns("1", "Salary", Dollars(52000));
    earns("2", "Hourly", Dollars(18, 50));
    run("INSERT INTO EmployeeAdjustments (SSNum, Adjustment, AmountRate) VALUES ('1', 'Plan', '4%'), ('1', 'Match', '2%')");
  }
  void add_item(const std::string& name, const std::string& type, const std::string& expense,
                const std::string& liability, const std::string& fields, const std::string& values) {
    run("INSERT INTO PayrollItems (Name, Type, ExpenseAcct, LiabilityAcct, TaxPaid, " + fields +
            ") VALUES (?, ?, ?, ?, 'Employee Paid Tax', " + values + ")",
        {name, type, expense, liability});
  }
  void add_employee(const std::string& ss_num, const std::string& name) {
    run("INSERT INTO Employees (SSNum, Name, AddressOne, City, State, Zip, PayPeriod, FedStatus, StateStatus,"
        " StateWorked, SUIHold) VALUES (?, ?, '1 Elm', 'Alton', 'IL', '62002', 'BiWeekly', 'Single', 'Single', 'IL', -1)",
        {ss_num, name});
  }
  void earns(const std::string& ss_num, const std::string& wage, Money rate) {
    run("INSERT INTO EmployeeEarnings (SSNum, Wage, Rate) VALUES (?, ?, ?)", {ss_num, wage, rate});
  }
  void rule(const std::string& name) {
    run("UPDATE GeneralPrefs SET State = ? WHERE Preference = 'PayrollPosting'", {name});
  }

  PaycheckEntry opened(const std::string& name, Date pay_end = Date(2026, 6, 7)) {
    for (const PayRunRow& row : Pay_Run(db(), pay_end))
      if (row.Employee == name) return *New_Paycheck(*session, {pay_end, Date(2026, 6, 12), "0SS"}, row).entry;
    throw std::logic_error("not in the run");
  }
  /// As a person does it: leaves the earnings, then "Create".
  int64_t pay(const std::string& name) {
    PaycheckEntry entry = opened(name);
    Calculate(entry.check, entry.facts);
    EXPECT_TRUE(Post_Paycheck(*session, entry).ok());
    return entry.TransNum;
  }
  std::string paid(const std::string& name) {
    return db().value("SELECT Paid FROM PayHistory WHERE Employee = ?", {name}).text();
  }
  Money off_balance(int64_t TransNum) {
    return Money::from_units(
        db().value("SELECT SUM(Debit) - SUM(Credit) + 0 FROM Transactions WHERE TransNum = ?", {TransNum}).integer());
  }
  int64_t found_off_balance() { return std::ranges::count(Verify_Company(db()), "balance", &Finding::check); }
};

}  // namespace tallymere::testing
