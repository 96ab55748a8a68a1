#include <gtest/gtest.h>

#include "reports/reports.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;

struct PayrollReports : ::testing::Test {
  TestCompany company;
  int64_t next = 1;

  PayrollReports() {
    company.run("DELETE FROM PayrollItems");
    item("Hourly", "Wage", "Employee Paid Tax", "", "60SS");
    item("Health", "Deduction", "Employee Paid Tax", "20SS", "", "Net");
    item("Plan", "Deduction", "Employee Paid Tax", "20SS", "", "Gross");
    item("Mileage", "Addition", "Employee Paid Tax", "", "60SS", "Net");
    item("Withholding", "Federal Tax", "Employee Paid Tax", "15SS");
    item("Company", "Federal Tax", "Employer Paid Tax", "16SS", "69SS");
    item("Never", "Wage", "Employee Paid Tax", "", "60SS");
    for (const auto& [name, number] : {std::pair("Bo", "222"), std::pair("Ann", "111"), std::pair("Cy", "333")})
      company.run("INSERT INTO Employees (Name, SSNum) VALUES (?, ?)", {name, number});
  }
  void item(const char* name, const char* type, const char* paid, const char* liability, const char* expense = "",
            const char* cal = "") {
    company.run(
        "INSERT INTO PayrollItems (Name, Type, TaxPaid, LiabilityAcct, ExpenseAcct, PayCal) VALUES (?, ?, ?, ?, ?, ?)",
        {name, type, paid, liability, expense, cal});
  }
  void row(const char* type, const char* name, const char* number, const char* what, const char* account, int debit,
           int credit, double hours = 0, const char* day = "6/5/2026") {
    company.run(
        "INSERT INTO Transactions (TransNum, Type, Date, Name, SSNum, PayrollItem, Account, Debit, Credit, Amount,"
        " Hours) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        {next, type, *Date::parse(day), name, number, what, account, Money::dollars(debit), Money::dollars(credit),
         Money::dollars(debit + credit), hours == 0 ? store::Value() : store::Value(hours)});
  }
  /// A check of 40 hours: each withholding, and the employer's tax in its two rows.
  void pay(const char* name, const char* number, int wage) {
    ++next;
    row("Paycheck", name, number, "Hourly", "60SS", wage, 0, 40);
    row("Paycheck", name, number, "Plan", "20SS", 0, 20);
    row("Paycheck", name, number, "Withholding", "15SS", 0, 100);
    row("Paycheck", name, number, "Health", "20SS", 0, 30);
    row("Paycheck", name, number, "Mileage", "60SS", 5, 0);
    row("Paycheck", name, number, "Company", "69SS", 60, 0);
    row("Paycheck", name, number, "Company", "16SS", 0, 60);
  }
  ReportTable build(const char* key, const char* fields = nullptr) {
    ReportRequest request = Default_Request(*company.session, key);
    request.from = Date(2026, 6, 1);
    request.to = Date(2026, 6, 30);
    if (fields) request.options[std::string(report_option::fields)] = fields;
    return Build_Report(*company.session, request);
  }
  static std::string shown(const ReportTable& table) {
    std::string all;
    for (int at = 0; at < table.rows(); ++at) {
      if (table.is_spacer(at)) continue;
      for (int column = 1; column < static_cast<int>(table.columns.size()); ++column)
        all += (column > 1 ? "|" : "") + table.text(at, column);
      all += "\n";
    }
    return all;
  }
};

TEST_F(PayrollReports, TheSummaryCountsEachAmountOnceOnItsOwnSide) {
  pay("Ann", "111", 800);
  pay("Bo", "222", 1000);
  row("YTD Adjust", "Bo", "222", "Hourly", "60SS", 200, 0);
  row("Paycheck", "Bo", "222", "Withholding", "15SS", 10, 0);  // given back
  row("Liabilitycheck", "Treasury", "", "Withholding", "15SS", 90, 0);
  row("Paycheck", "Cy", "333", "Hourly", "60SS", 9, 0, 1, "5/31/2026");
  const ReportTable table = build("PaySum", "TOTAL,");
  ASSERT_EQ(table.groups.size(), 3u) << "who was not paid has no columns";
  EXPECT_EQ(table.groups[0].caption + table.groups[1].caption + table.groups[2].caption, "AnnBoTotal");
  EXPECT_EQ(shown(table),
            "     Hourly|800|1200|2000\n"
            "Gross Pay|800|1200|2000\n"
            "     Plan|-20|-20|-40\n"
            "     Withholding|-100|-90|-190\n"
            "     Health|-30|-30|-60\n"
            "     Mileage|5|5|10\n"
            "Net Pay|655|1065|1720\n"
            "Company Taxes and Contributions|||\n"
            "     Company|60|60|120\n"
            "Total Company Taxes and Contributions|60|60|120\n");
  const ReportTable all = build("PaySum");
  EXPECT_EQ(all.columns.size(), 11u);
  EXPECT_EQ(all.text(0, 2) + " " + all.text(0, 3) + " " + all.text(0, 4), "40 20 800");
  EXPECT_EQ(all.text(1, 2) + " " + all.text(1, 3) + " " + all.text(1, 4), "40  800") << "no average of a sum";
  EXPECT_EQ(build("PaySum", "Hours,Avg Rate,").columns.size(), 8u) << "TOTAL may go";
  EXPECT_EQ(all.offered.size(), 3u);
}

TEST_F(PayrollReports, APeriodWithoutPaychecksShowsTheLinesAlone) {
  EXPECT_EQ(shown(build("PaySum", "TOTAL,")),
            "Gross Pay|0\nNet Pay|0\nCompany Taxes and Contributions|\nTotal Company Taxes and Contributions|0\n");
  EXPECT_EQ(shown(build("PayLia")), "Health|0\nPlan|0\nWithholding|0\nCompany|0\nTotal|0\n");
  EXPECT_EQ(build("PayDetail").rows(), 0);
}

TEST_F(PayrollReports, EarningsLiabilitiesAndDetail) {
  pay("Ann", "111", 800);
  pay("Bo", "222", 1000);
  ++next;
  row("Liabilitycheck", "Treasury", "", "Withholding", "15SS", 90, 0);
  EXPECT_EQ(shown(build("EmpSum")),
            "Ann|800|30|20|5|100|60\nBo|1000|30|20|5|100|60\nCy|0|0|0|0|0|0\nTotal|1800|60|40|10|200|120\n");
  EXPECT_EQ(shown(build("PayLia")), "Health|60\nPlan|40\nWithholding|110\nCompany|120\nTotal|330\n");
  const ReportTable detail = build("PayDetail");
  EXPECT_EQ(detail.rows(), 15);
  EXPECT_EQ(detail.text(0, 4) + detail.text(0, 5), "Company60");
  EXPECT_EQ(detail.key(0).number, 2);
  EXPECT_EQ(detail.key(0).text, "Paycheck");
}

}  // namespace
}  // namespace tallymere
