#pragma once

#include <random>
#include <set>
#include <string>
#include <vector>

#include "support/entry_company.h"
#include "support/test_company.h"

namespace tallymere::testing {

/// A company with payroll items of all kinds, and paychecks of chance over two years: rows of its ledger, and the same
/// rows as plain values for a second reading that asks no database.
struct PayBooks : TestCompany {
  struct Item {
    std::string name, type, tax_type = {}, pay_cal = {}, tracking = {}, state = {}, rate = {}, limit = {},
                            unemployment = {}, tax_paid = {};
    bool futa_credit = false;
    std::set<std::string> ticked = {};  ///< taxes whose base it moves
  };
  struct Row {
    std::string type, ssn, item;
    Date date, through;
    int64_t cents;
  };
  std::vector<Item> items;
  std::vector<Row> rows;
  std::vector<std::string> employees;

  explicit PayBooks(unsigned seed = 0) : engine_(seed) {
    run("DELETE FROM PayrollItems");
    run("DELETE FROM PreTaxTable");
    const std::set<std::string> federal{"Federal Withholding"},
        all{"Federal Withholding", "Social Security Company", "Medicare Company", "Federal Unemployment", "MN Tax"};
    add({.name = "Salary", .type = "Wage"});
    add({.name = "Commission", .type = "Commision"});
    add({.name = "Bonus", .type = "Addition", .pay_cal = "Gross", .ticked = all});
    add({.name = "Tips", .type = "Addition", .pay_cal = "Gross", .tracking = "Reported Tips", .ticked = all});
    add({.name = "Plan", .type = "Deduction", .pay_cal = "Gross", .ticked = federal});
    add({.name = "Gift", .type = "Addition", .pay_cal = "Net", .ticked = federal});
    add({.name = "Dues", .type = "Deduction", .pay_cal = "Gross"});
    add({.name = "Federal Withholding", .type = "Federal Tax", .tax_paid = "Employee Paid Tax"});
    for (const char* name : {"Social Security", "Medicare"}) {
      const std::string rate = name == std::string("Medicare") ? "1.45%" : "6.2%";
      add({.name = name + std::string(" Company"),
           .type = "Federal Tax",
           .rate = rate,
           .tax_paid = "Employer Paid Tax"});
      add({.name = name + std::string(" Employee"),
           .type = "Federal Tax",
           .rate = rate,
           .tax_paid = "Employee Paid Tax"});
    }
    add({.name = "Federal Unemployment", .type = "Federal Tax", .tax_paid = "Employer Paid Tax"});
    add({.name = "MN Tax",
         .type = "State Tax",
         .tax_type = "State Withholding",
         .state = "MN",
         .tax_paid = "Employee Paid Tax"});
    add({.name = "MN Fund",
         .type = "State Tax",
         .tax_type = "State Unemployment",
         .state = "MN",
         .limit = "20000",
         .unemployment = "3.35%",
         .tax_paid = "Employer Paid Tax",
         .futa_credit = true});
  }

  int pick(int below) { return static_cast<int>(engine_() % static_cast<unsigned>(below)); }

  void add(Item item) {
    run("INSERT INTO PayrollItems (Name, Type, TaxType, PayCal, TrackingType, SState, DefaultRate, DefaultLimit,"
        " UnempTaxRate, TaxPaid, FUTACredit, LiabilityAcct, ExpenseAcct, LiabilityNumber)"
        " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, '21SS', '69SS', '123')",
        {item.name, item.type, item.tax_type, item.pay_cal, item.tracking, item.state, item.rate,
         Money::parse(item.limit).value_or(Money()), item.unemployment, item.tax_paid, item.futa_credit});
    for (const std::string& tax : item.ticked)
      run("INSERT INTO PreTaxTable (Name, TaxName, Selected) VALUES (?, ?, -1)", {item.name, tax});
    items.push_back(std::move(item));
  }
  const Item& item(const std::string& name) const {
    return *std::find_if(items.begin(), items.end(), [&](const Item& each) { return each.name == name; });
  }
  void hire(int count) {
    for (int at = 1; at <= count; ++at) {
      employees.push_back("30000000" + std::to_string(at));
      run("INSERT INTO Employees (SSNum, Name, AddressOne, City, State, Zip, StateWorked) VALUES"
          " (?, ?, '1 Elm', 'Alton', 'MN', '55101', 'MN')",
          {employees.back(), "Worker" + std::to_string(at)});
    }
  }
  void post(const Row& row, int64_t number) {
    rows.push_back(row);
    run("INSERT INTO Transactions (TransNum, Type, Date, PaidThrough, SSNum, Name, PayrollItem, Account, Category, Amount)"
        " VALUES (?, ?, ?, ?, ?, ?, ?, '0SS', '1SS', ?)",
        {number, row.type, row.date, row.through, row.ssn, "Worker" + row.ssn.substr(8), row.item,
         Money::from_units(row.cents * 100)});
  }
  /// Each check some of the items; what an employer pays stands in two rows.
  void pay(int checks, Date first, int days) {
    store::Transaction tx(db(), "Paychecks");
    for (int number = 1; number <= checks; ++number) {
      const Date date = first.plus_days(pick(days));
      const int kind = pick(10);
      const std::string type = kind == 0 ? "Liabilitycheck" : kind == 1 ? "YTD Adjust" : "Paycheck";
      const std::string ssn = employees[static_cast<size_t>(pick(static_cast<int>(employees.size())))];
      for (const Item& each : items) {
        if (each.name != "Salary" && pick(3) == 0) continue;
        const int64_t cents = pick(each.type == "Wage" ? 400000 : 40000);
        const bool twice = each.tax_paid == "Employer Paid Tax" && type == "Paycheck";
        for (int time = 0; time <= (twice ? 1 : 0); ++time)
          post({type, ssn, each.name, date, date.plus_days(-pick(20)), cents}, number);
      }
    }
    tx.commit();
  }

 private:
  std::mt19937 engine_;
};

}  // namespace tallymere::testing
