#include "payroll/pay_items.h"
#include "reports/reports.h"
#include "support/entry_company.h"

namespace tallymere {
namespace {

using testing::Dollars;

/// Zoe earned more than Social Security reaches and paid it on all; her plan lowers its base. Ann is below every limit.
struct CheckupCompany : testing::EntryCompany {
  CheckupCompany() {
    run("INSERT INTO PayrollItems (Name, Type, ExpenseAcct, TaxPaid) VALUES ('Salary', 'Wage', '68SS', '')");
    run("INSERT INTO PayrollItems (Name, Type, LiabilityAcct, TaxPaid) VALUES ('Plan', 'Deduction', '21SS', '')");
    run("INSERT INTO PreTaxTable (Name, TaxName, Selected) VALUES ('Plan', 'Social Security Company', -1)");
    run("INSERT INTO Employees (SSNum, Name) VALUES ('1', 'Zoe'), ('2', 'Ann'), ('3', 'Idle')");
    posts("1", "Salary", Dollars(250000));
    posts("1", "Plan", Dollars(10000));
    posts("1", "Social Security Employee", Dollars(14880));
    posts("1", "Medicare Employee", Dollars(3625));
    posts("1", "Federal Unemployment", Dollars(42));
    posts("1", "Federal Unemployment", Dollars(42));  // its other side
    posts("2", "Salary", Dollars(5000));
    posts("2", "Social Security Employee", Dollars(310));
    posts("2", "Medicare Employee", Dollars(72, 50));
    posts("2", "Federal Unemployment", Dollars(30));
    posts("2", "Federal Unemployment", Dollars(30));
  }
  void posts(const std::string& ss_num, const std::string& item, Money amount) {
    run("INSERT INTO Transactions (TransNum, Type, Date, SSNum, PayrollItem, Amount) VALUES (1, 'Paycheck', ?, ?, ?, ?)",
        {Date(2026, 3, 13), ss_num, item, amount});
  }
};

TEST(PayrollCheckup, ShowsWhereTheLawHasALimitThatTheCalculationHasNot) {
  CheckupCompany acme;
  ReportRequest request = Default_Request(*acme.session, "PayCheckup");
  const ReportTable table = Build_Report(*acme.session, request);
  const auto line = [&](int row) {
    std::string all;
    for (int column = 1; column < 12; ++column) all += table.text(row, column) + " ";
    return all;
  };
  ASSERT_EQ(table.rows(), 3);
  EXPECT_EQ(line(0), "Ann 5000 310 310 0 72.5 72.5 0 30 30 0 ");
  // 184,500 x 6.2 %; 250,000 x 1.45 % and 50,000 x 0.9 %.
  EXPECT_EQ(line(1), "Zoe 250000 14880 11439 3441 3625 4075 -450 42 42 0 ");
  EXPECT_EQ(line(2), "TOTAL 255000 15190 11749 3441 3697.5 4147.5 -450 72 72 0 ");
  request.to = Date(2026, 1, 31);
  EXPECT_EQ(Build_Report(*acme.session, request).rows(), 1) << "nobody was paid by then";
}

}  // namespace
}  // namespace tallymere
