#include "core/ledger/undo.h"
#include "core/ledger/verify.h"
#include "core/store/history.h"
#include "payroll/liabilities.h"
#include "payroll/payroll_company.h"
#include "support/forked.h"

namespace tallymere {
namespace {

using testing::Dollars;
using testing::Forked;
using testing::PayrollCompany;

/// What a run leaves: the ledger, whose period is paid, and what is owed.
std::string Books_Of(PayrollCompany& acme) {
  std::string books;
  acme.db().each(
      "SELECT TransNum, Account, Category, Debit, Credit, PayrollItem, Hours, Memo, Class, Date, PayPeriod FROM Transactions"
      " ORDER BY TransNum, RowKey",
      {}, [&](const store::Row& row) {
        for (int column = 0; column < 11; ++column) books += std::string(row.text(column)) + "|";
        books += "\n";
      });
  acme.db().each("SELECT Employee, Paid FROM PayHistory ORDER BY RowKey", {}, [&](const store::Row& row) {
    books += std::string(row.text(0)) + " " + std::string(row.text(1)) + "\n";
  });
  for (const OwedItem& item : Load_List(acme.db(), Date(2026, 12, 31)))
    books += item.PayrollItem + " " + item.Amount.to_text() + "\n";
  return books;
}

/// As the window does it for everybody of the run; who could not be paid.
std::vector<std::string> Pay_All(PayrollCompany& acme, Session& session) {
  std::vector<std::string> failed;
  const PayRunHead run{Date(2026, 6, 7), Date(2026, 6, 12), "0SS"};
  for (const PayRunRow& row : Pay_Run(acme.db(), run.pay_end)) {
    try {
      auto entry = New_Paycheck(session, run, row).entry;
      Calculate(entry->check, entry->facts);
      EXPECT_TRUE(Post_Paycheck(session, *entry).ok());
    } catch (const store::Error&) {
      failed.push_back(row.Employee);
    }
  }
  return failed;
}

std::string Number(int at) { return (at < 10 ? "0" : "") + std::to_string(at); }

void Hire_Fifty(PayrollCompany& acme) {
  for (int at = 10; at < 58; ++at) {
    acme.add_employee(Number(at), "Worker " + Number(at));
    acme.earns(Number(at), at % 2 ? "Salary" : "Hourly", Dollars(at % 2 ? 30000 + at : at));
  }
}

TEST(PayRun, FiftyAreAllPaidButTheOneWhoCannotBe) {
  PayrollCompany acme;
  Hire_Fifty(acme);
  acme.run("UPDATE EmployeeEarnings SET Wage = 'gone' WHERE SSNum = '27'");
  EXPECT_EQ(Pay_All(acme, *acme.session), std::vector<std::string>{"Worker 27"});
  EXPECT_EQ(acme.db().value("SELECT COUNT(*) FROM PayHistory WHERE Paid = 'Yes'").integer(), 49);
  EXPECT_EQ(acme.paid("Worker 27"), "No");
  EXPECT_EQ(acme.db().value("SELECT COUNT(DISTINCT TransNum) || ' ' || MAX(TransNum) FROM Transactions").text(),
            "49 49");
  EXPECT_EQ(acme.found_off_balance(), 0);
  acme.run("UPDATE EmployeeEarnings SET Wage = 'Salary' WHERE SSNum = '27'");
  for (const PayRunRow& row : Pay_Run(acme.db(), Date(2026, 6, 7)))
    EXPECT_EQ(row.Paid, row.Employee != "Worker 27") << row.Employee;
}

TEST(PayRun, EveryStepTakenBackIsTheStepBefore) {
  PayrollCompany acme;
  std::vector<std::string> books = {Books_Of(acme)};
  std::vector<int64_t> actions;
  auto step = [&] {
    actions.push_back(store::List_Actions(acme.db(), 1).front().number);
    books.push_back(Books_Of(acme));
    EXPECT_NE(books.back(), books[books.size() - 2]);
  };
  acme.pay("Ann"), step();
  acme.pay("Bob"), step();
  auto reopened = Open_Paycheck(*acme.session, 1);
  reopened->check.grdEarnings[0].Rate = "1500";
  Calculate(reopened->check, reopened->facts);
  ASSERT_TRUE(Post_Paycheck(*acme.session, *reopened).ok());
  step();
  Delete_Transaction(*acme.session, 2), step();
  Delete_Transaction(*acme.session, 1), step();
  std::vector<int64_t> undone;
  for (size_t at = actions.size(); at-- > 0;) {
    Undo_Action(*acme.session, actions[at]);
    EXPECT_EQ(Books_Of(acme), books[at]) << "step " << at << " taken back";
    undone.push_back(store::List_Actions(acme.db(), 1).front().number);
  }
  for (size_t at = 1; at < books.size(); ++at) {
    Undo_Action(*acme.session, undone[undone.size() - at]);
    EXPECT_EQ(Books_Of(acme), books[at]) << "step " << at << " done again";
  }
}

TEST(PayRun, AKilledRunLeavesWholeChecksAndPaysNobodyElse) {
  PayrollCompany acme;
  Hire_Fifty(acme);
  Close_Company_File(*acme.session);
  Forked run([&] {
    static auto theirs = acme.another_user();
    acme.session->dbCompany = std::move(theirs->dbCompany);
    acme.pay("Worker 11"), acme.pay("Worker 12");
    static store::Transaction half(acme.db(), "killed");
    acme.pay("Worker 13");
  });
  run.kill_now();
  acme.open(*acme.session);
  EXPECT_EQ(acme.paid("Worker 11") + acme.paid("Worker 12") + acme.paid("Worker 13"), "YesYesNo");
  EXPECT_EQ(acme.db().value("SELECT COUNT(DISTINCT TransNum) FROM Transactions").integer(), 2);
  EXPECT_EQ(acme.found_off_balance(), 0);
  EXPECT_EQ(acme.pay("Worker 13"), 3);
}

}  // namespace
}  // namespace tallymere
