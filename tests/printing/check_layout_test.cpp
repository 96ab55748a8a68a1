#include "printing/check_layout.h"

#include "core/ledger/settlement.h"
#include "printing/print_queue.h"
#include "support/entry_company.h"

namespace tallymere {
namespace {

Money D(int64_t dollars) { return Money::dollars(dollars); }

struct PrintedChecks : ::testing::Test {
  testing::EntryCompany company;
  Session& session = *company.session;

  void set(const std::string& key, const std::string& state) {
    company.run("UPDATE GeneralPrefs SET State = ? WHERE Preference = ?", {state, key});
  }
  int64_t write(const TransactionHead& head, const std::vector<LedgerRow>& rows) {
    Transaction_Writer writer(session, head);
    for (const LedgerRow& row : rows) writer.add(row);
    writer.commit();
    return writer.number();
  }
  int64_t bill_check(Money amount) {
    return company.write("Billcheck", Date(2026, 6, 15), "0SS", "AP1", amount, "Acme Supply", "Print");
  }
  int64_t bill(const std::string& number, Money amount, const std::string& paid_by) {
    return write(
        {.Type = "Bill", .Date = Date(2026, 5, 2), .Number = number, .Name = "Acme Supply"},
        {{.Account = "AP1", .Category = "66SS", .Credit = amount, .Amount = amount, .Paid = true, .PaidBy = paid_by}});
  }
  /// A paycheck of Jo Park: hourly pay of 1,000, federal tax 100, an employer's tax 62, a health plan of 40 that stands
  /// on it as expense and as liability.
  int64_t paycheck(Date date, const std::string& number = "Print") {
    return write(
        {.Type = "Paycheck", .Date = date, .Number = number, .Name = "Jo Park"},
        {{.Account = "0SS", .Category = "<-Break Down->", .Credit = D(860), .Amount = D(860), .PayPeriod = "June"},
         {.Account = "42SS",
          .Category = "0SS",
          .Debit = D(1000),
          .Amount = D(1000),
          .PayrollItem = "Hourly",
          .Hours = 37.5},
         {.Account = "19SS", .Category = "0SS", .Credit = D(100), .Amount = D(100), .PayrollItem = "Fed"},
         {.Account = "42SS", .Category = "0SS", .Debit = D(62), .Amount = D(62), .PayrollItem = "Employer"},
         {.Account = "42SS", .Category = "0SS", .Debit = D(40), .Amount = D(40), .PayrollItem = "Health"},
         {.Account = "19SS", .Category = "0SS", .Credit = D(40), .Amount = D(40), .PayrollItem = "Health"}});
  }
  void add_items() {
    for (const auto& [name, type, paid] : {std::tuple{"Hourly", "Wage", ""},
                                           {"Fed", "Federal Tax", "Employee Paid Tax"},
                                           {"Employer", "Federal Tax", "Employer Paid Tax"},
                                           {"Health", "Deduction", ""}})
      company.run("INSERT INTO PayrollItems (Name, Type, TaxPaid) VALUES (?, ?, ?)", {name, type, paid});
    company.run(
        "INSERT INTO Employees (SSNum, Name, PrintAs, AddressOne, City, State, Zip) VALUES ('000-00-0001', "
        "'Jo Park', 'Josephine Park', '1 Oak St', 'St. Paul', 'MN', '55101')");
  }
  Money stub_sum(const std::vector<Layout>& sheets, int first, int last) {
    Money sum;
    for (const Layout& sheet : sheets)
      for (int object = first + 2; object <= last; object += 3)
        sum += Money::parse(sheet.text("Text" + std::to_string(object))).value_or(Money());
    return sum;
  }
};

TEST_F(PrintedChecks, ThePayeeIsPrintedAsItsListSays) {
  add_items();
  company.run("INSERT INTO Vendors (Name, CheckPrint) VALUES ('Power', 'Northern Power & Light'), ('Acme Supply', '')");
  EXPECT_EQ(Check_Payee(session, "Paycheck", "Jo Park"), "Josephine Park");
  EXPECT_EQ(Check_Payee(session, "Check", "Jo Park"), "Jo Park");  // paid as anybody else
  EXPECT_EQ(Check_Payee(session, "Billcheck", "Power"), "Northern Power & Light");
  EXPECT_EQ(Check_Payee(session, "Liabilitycheck", "Acme Supply"), "Acme Supply");
  EXPECT_EQ(Check_Payee(session, "Check", "A customer"), "A customer");
}

TEST_F(PrintedChecks, TheFaceAndTheStubsOfAPlainCheck) {
  const int64_t number =
      write({.Type = "Check", .Date = Date(2026, 6, 5), .Number = "Print", .Name = "Ann", .Address = "Ann\r\n1 Rd"},
            {{.Account = "0SS", .Category = "<-Break Down->", .Credit = D(1090), .Amount = D(1090), .Memo = "May"},
             {.Account = "66SS", .Category = "0SS", .Debit = D(1100), .Amount = D(1100), .Memo = "pens"},
             {.Account = "66SS", .Category = "0SS", .Debit = D(-10), .Amount = D(-10)}});
  const auto sheets = Print_it(session, number, "1001");
  ASSERT_EQ(sheets.size(), 1u);
  const Layout& check = sheets[0];
  EXPECT_EQ(check.name(), "crpCheck");
  for (const char* place : {"", "2", "3"}) {
    EXPECT_EQ(check.text(std::string("Amount") + place), "1,090.00");
    EXPECT_EQ(check.text(std::string("Date") + place), "6/5/2026");
    EXPECT_EQ(check.text(std::string("Payee") + place), "Ann");
  }
  EXPECT_TRUE(check.text("AmountInWords").starts_with("One thousand Ninety ")) << check.text("AmountInWords");
  EXPECT_EQ(check.text("Address"), "Ann\r\n1 Rd");
  EXPECT_TRUE(check.is_hidden("PayStub1") && check.is_hidden("PayStub2") && !check.is_hidden("Stub1"));
  EXPECT_EQ(stub_sum(sheets, 24, 86), D(1090));
  EXPECT_EQ(stub_sum(sheets, 112, 171), D(1090));  // both parts of the sheet say what it is for
  set("Style", "Custom");
  EXPECT_EQ(Print_it(session, number, "1001")[0].text("Amount3"), "$1,090.00");
  set("Style", "Original");
  set("Feed", "Continuous Sheets");
  const Layout feed = Print_it(session, number, "1001")[0];
  EXPECT_EQ(feed.name(), "crpFeedCheck");
  EXPECT_TRUE(feed.is_hidden("Stub1") && feed.is_hidden("Stub2"));
}

TEST_F(PrintedChecks, BillsGoOnFromStubToStubAndAddUpToTheCheck) {
  const int64_t check = bill_check(D(4500));
  const std::string paid = std::to_string(check) + ";";
  bill("first", D(10), paid + "999;");
  bill("second", D(20), "888;" + paid);
  bill("other", D(7000), "1" + paid);
  bill("longer", D(7000), std::to_string(check) + "0;");
  for (int n = 0; n < 43; ++n) bill("B" + std::to_string(n), D(n < 42 ? 100 : 270), paid);
  const auto sheets = Print_it(session, check, "1001");
  ASSERT_EQ(sheets.size(), 2u);  // 21 and 20, and four more
  EXPECT_EQ(stub_sum(sheets, 24, 86) + stub_sum(sheets, 112, 171), D(4500));
  EXPECT_FALSE(sheets[0].is_hidden("Face"));
  EXPECT_TRUE(sheets[1].is_hidden("Face"));
  EXPECT_EQ(sheets[1].text("Continued"), "Check 1001, continued");
  EXPECT_EQ(sheets[0].text("Text24"), "5/2/2026");
  EXPECT_EQ(sheets[0].text("Text25"), "first");
  set("Feed", "Continuous Sheets");
  EXPECT_EQ(stub_sum(Print_it(session, check, "1001"), 24, 86) + stub_sum(Print_it(session, check, "1001"), 112, 171),
            D(4500));
}

TEST_F(PrintedChecks, ABillPaidByTwoChecksShowsOnEachWhatItPaid) {
  const int64_t one = bill_check(D(30)), two = bill_check(D(70));
  const int64_t big = bill("big", D(100), "");
  {
    store::Transaction tx(company.db(), "Set up by a test");
    Apply(company.db(), one, big, D(30));
    tx.commit();
  }
  EXPECT_EQ(stub_sum(Print_it(session, one, "1"), 24, 86), D(30));  // not paid whole yet
  {
    store::Transaction tx(company.db(), "Set up by a test");
    Apply(company.db(), two, big, D(70));
    tx.commit();
  }
  EXPECT_EQ(stub_sum(Print_it(session, one, "1"), 24, 86), D(30));
  EXPECT_EQ(stub_sum(Print_it(session, two, "1"), 24, 86), D(70));
}

TEST_F(PrintedChecks, TwentyLinesStandOnBothStubsTwentyOneDoNot) {
  const int64_t check = bill_check(D(20));
  for (int n = 0; n < 20; ++n) bill("B", D(1), std::to_string(check) + ";");
  EXPECT_EQ(stub_sum(Print_it(session, check, "1"), 112, 171), D(20));
  bill("B", D(1), std::to_string(check) + ";");
  EXPECT_EQ(stub_sum(Print_it(session, check, "1"), 24, 86), D(21));
  EXPECT_EQ(stub_sum(Print_it(session, check, "1"), 112, 171), D(0));
}

TEST_F(PrintedChecks, APayStubShowsWhatTheEmployeeEarnsAndPaysWithTheYearToDate) {
  add_items();
  paycheck(Date(2025, 12, 31), "9");
  paycheck(Date(2026, 1, 1), "10");
  const int64_t number = paycheck(Date(2026, 6, 15));
  paycheck(Date(2026, 6, 16), "12");
  const auto sheets = Print_it(session, number, "1001");
  ASSERT_EQ(sheets.size(), 1u);
  const Layout& check = sheets[0];
  EXPECT_EQ(check.text("Payee"), "Josephine Park");
  EXPECT_TRUE(check.is_hidden("Stub1") && check.is_hidden("Stub2") && !check.is_hidden("PayStub1"));
  struct Line {
    const char *item, *hours, *amount, *ytd;
  };
  const Line lines[] = {{"Fed", "", "-100.00", "-200.00"},
                        {"Health", "", "-40.00", "-80.00"},
                        {"Hourly", "37.5", "1,000.00", "2,000.00"}};
  for (int stub : {0, 20})
    for (int at = 0; at < 3; ++at) {
      const std::string n = std::to_string(stub + at + 1);
      EXPECT_EQ(check.text("PayItem" + n), lines[at].item);
      EXPECT_EQ(check.text("PayHours" + n), lines[at].hours);
      EXPECT_EQ(check.text("PayAmount" + n), lines[at].amount);
      EXPECT_EQ(check.text("PayYTD" + n), lines[at].ytd);
      EXPECT_EQ(check.is_hidden("PayHours" + n), at != 2);
    }
  EXPECT_TRUE(check.is_hidden("PayItem4") && check.is_hidden("PayItem24"));
  EXPECT_EQ(check.text("TotalEarnings1"), "1,000.00");
  EXPECT_EQ(check.text("TotalDeductions2"), "-140.00");
  EXPECT_EQ(check.text("TotalHours1"), "37.5");
  EXPECT_EQ(check.text("NetPay1"), "860.00");
  EXPECT_EQ(check.text("City1"), "St. Paul, MN 55101");
  EXPECT_EQ(check.text("PayPeriod2"), "June");
}

// --- the queue -------------------------------------------------------------------------------------------

TEST_F(PrintedChecks, NumbersAreWrittenOnAllRowsOfAllChecksOrNone) {
  const int64_t one = bill_check(D(1)), two = bill_check(D(2)), three = bill_check(D(3));
  EXPECT_EQ(Waiting_Checks(session, "0SS").size(), 3u);
  auto colleague = company.another_user();
  ASSERT_TRUE(Number_Checks(*colleague, {{two, 500}}));
  EXPECT_FALSE(Number_Checks(session, {{one, 1000}, {two, 1001}, {three, 1002}}));
  EXPECT_EQ(testing::Rows_Of(company.db(), one, "Number"), "Print\nPrint\n");
  ASSERT_TRUE(Number_Checks(session, {{three, 1000}, {one, 1001}}));
  EXPECT_EQ(testing::Rows_Of(company.db(), one, "Number"), "1001\n1001\n");
  EXPECT_EQ(testing::Rows_Of(company.db(), three, "Number"), "1000\n1000\n");
  EXPECT_TRUE(Waiting_Checks(session, "0SS").empty());
}

TEST_F(PrintedChecks, OnlyThisRunsChecksGoBackToTheQueue) {
  const int64_t older = company.write("Check", Date(2020, 1, 1), "0SS", "66SS", D(9), "Ann", "1002");
  const int64_t one = bill_check(D(1)), two = bill_check(D(2)), three = bill_check(D(3));
  const std::vector<NumberedCheck> run = {{one, 1000}, {two, 1001}, {three, 1002}};
  ASSERT_TRUE(Number_Checks(session, run));
  EXPECT_EQ(Good_Print(session, run, 1003), 0);
  EXPECT_EQ(Good_Print(session, run, 1001), 2);
  EXPECT_EQ(testing::Rows_Of(company.db(), one, "Number"), "1000\n1000\n");
  EXPECT_EQ(testing::Rows_Of(company.db(), two, "Number"), "Print\nPrint\n");
  EXPECT_EQ(testing::Rows_Of(company.db(), three, "Number"), "Print\nPrint\n");
  EXPECT_EQ(testing::Rows_Of(company.db(), older, "Number"), "1002\n1002\n");
}

TEST_F(PrintedChecks, AnUsedNumberIsFoundOnItsOwnBankOnly) {
  company.write("Check", Date(2020, 1, 1), "0SS", "66SS", D(9), "Ann", "1002");
  company.write("Check", Date(2020, 1, 1), "0SS", "66SS", D(9), "Ann", "1002a");
  company.write("Deposit", Date(2020, 1, 1), "0SS", "66SS", D(9), "Ann", "1000");
  EXPECT_EQ(Used_Number(session, "0SS", 1000, 3), 1002);
  EXPECT_EQ(Used_Number(session, "0SS", 1000, 2), std::nullopt);
  EXPECT_EQ(Used_Number(session, "1SS", 1000, 3), std::nullopt);
}

TEST_F(PrintedChecks, TheFirstNumberIsANumber) {
  EXPECT_EQ(First_Check_Fault(" ")->box.text, "Please enter the first check number to print.");
  for (const char* typed : {"abc", "12.5", "-3", "99999999999", "1e3", "10a"})
    EXPECT_EQ(First_Check_Fault(typed)->box.text, "Please enter a number value for the first check.") << typed;
  EXPECT_FALSE(First_Check_Fault("1,000"));
  EXPECT_EQ(Check_Number("1,000"), 1000);
}

}  // namespace
}  // namespace tallymere
