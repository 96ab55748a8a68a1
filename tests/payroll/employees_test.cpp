#include "payroll/employees.h"

#include <gtest/gtest.h>

#include "payroll/time_sheet.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using testing::TestCompany;

struct Employees : ::testing::Test {
  TestCompany company;
  Session& session = *company.session;
  const Date week{2026, 6, 14};

  EmployeeForm filled(const char* number, const char* name) {
    EmployeeForm form = New_Employee(session);
    form["SSNum"] = number;
    form["Name"] = name;
    for (const char* zero : {"FedAllow", "FedWithHolding", "StateAllow", "StateWithHolding", "MaxSick",
                             "SickHoursStart", "SickHoursPerPeriod", "MaxVac", "VacHoursStart", "VacHoursPerPeriod"})
      form[zero] = "0";
    form["StateLived"] = form["StateWorked"] = "IL";
    form.lines[0] = {{0, "Hourly", "18.5", ""}};
    return form;
  }
  RowSave hire(const char* number, const char* name) {
    ListRow row(session, Employee_Rows);
    return Save_Employee(session, row, filled(number, name));
  }
  /// Opens the form on somebody, changes it, saves it.
  template <typename Change>
  RowSave edit(const char* number, Change change) {
    ListRow row(session, Employee_Rows, number);
    EmployeeForm form = Employee_Form(session, row);
    change(form);
    return Save_Employee(session, row, form);
  }
  void pay(const char* number, const char* name, int64_t TransNum = 1) {
    company.run("INSERT INTO Transactions (TransNum, Type, Name, SSNum) VALUES (?, 'Paycheck', ?, ?)",
                {TransNum, name, number});
  }
  void period(const char* name, const char* day, const char* paid) {
    company.run(
        "INSERT INTO PayHistory (Employee, PayPeriod, PayEndDate, PayCheckDate, Paid) VALUES (?, 'BiWeekly', ?, ?, ?)",
        {name, *Date::parse(day), *Date::parse(day), paid});
  }
  std::string text(const char* sql) { return company.db().value(sql).text(); }
  std::string all(const char* table, const char* field) {
    std::string found;
    company.db().each(std::string("SELECT ") + field + " FROM " + table + " ORDER BY RowKey", {},
                      [&](const store::Row& row) { found += std::string(row.text(0)) + ";"; });
    return found;
  }
};

TEST_F(Employees, ANewOneIsInEveryPayPeriodOpenedAndAnUntouchedOneIsNotWritten) {
  period("Ann", "5/15/2026", "Yes");
  period("Ann", "5/29/2026", "No");
  period("Bob", "5/29/2026", "No");
  ListRow row(session, Employee_Rows);
  EmployeeForm form = filled(" 111 ", "Cy");
  form["FedWithHolding"] = "$1,012.5";
  form["EICHold"] = "1";
  form.lines[1] = {{0, "401k", "4%", "24500"}, {0, "Match", "", ""}};
  ASSERT_TRUE(Save_Employee(session, row, form).ok());
  EXPECT_EQ(text("SELECT SSNum || FedWithHolding || SSHold || EICHold || PayPeriod || HireDate FROM Employees"),
            "11110125000-1-1BiWeekly2026-06-15");
  EXPECT_EQ(text("SELECT COUNT(*) FROM Employees WHERE ReleaseDate IS NULL AND SickDateStart IS NULL"), "1");
  EXPECT_EQ(text("SELECT GROUP_CONCAT(PayEndDate || Paid) FROM PayHistory WHERE Employee = 'Cy'"),
            "2026-05-15No,2026-05-29No");
  EXPECT_EQ(text("SELECT COUNT(*) FROM EmployeeAdjustments WHERE SSNum = '111' AND AmountRate IS NOT NULL"), "2");
  company.run("UPDATE Employees SET HireDate = NULL, EICHold = NULL, AccurPayPeriodSick = -1");
  const std::string before = text("SELECT COUNT(*) FROM History");
  ASSERT_TRUE(edit("111", [](EmployeeForm&) {}).ok());
  EXPECT_EQ(text("SELECT COUNT(*) FROM History"), before) << "viewing and saving is no action";
  ASSERT_TRUE(edit("111", [](EmployeeForm& seen) {
                seen.ReleaseDate = Date(2026, 6, 1);
                seen["PayPeriod"] = "Weekly";
                std::swap(seen.lines[1][0].rate, seen.lines[1][1].rate);
                seen.lines[1].push_back({0, "Bonus", "5", ""});
                seen.lines[0].push_back({0, "Sick", "9", ""});
                seen.lines[0].erase(seen.lines[0].begin());
              }).ok());
  EXPECT_EQ(text("SELECT COUNT(*) FROM History"), std::to_string(std::stoi(before) + 1)) << "one save, one line";
  EXPECT_EQ(all("EmployeeEarnings", "Wage || Rate"), "Sick90000;");
  EXPECT_EQ(all("EmployeeAdjustments", "Adjustment || COALESCE(AmountRate, '-')"), "401k;Match4%;Bonus5;");
  EXPECT_EQ(text("SELECT COUNT(*) FROM PayHistory WHERE PayPeriod = 'Weekly'"), "2") << "of Cy alone";
  EXPECT_EQ(Make_Employee_List(session, false).size(), 0u);
  EXPECT_TRUE(Make_Employee_List(session, true).at(0).released);
}

TEST_F(Employees, MistakesAreFoundInTheScreensOrder) {
  ASSERT_TRUE(hire("222", "Bob").ok());
  ListRow row(session, Employee_Rows);
  EmployeeForm form = filled("222", "Ann");
  for (std::string& typed : form.texts)
    if (typed == "0" || typed == "IL") typed.clear();
  for (const EmployeeField& field : Employee_Fields)
    if (field.holds == EmployeeField::Holds::Flag) form[field.field] = "0";
  form.lines[0] = {};
  const auto faulty = [&](const char* control, const char* said) {
    const RowSave save = Save_Employee(session, row, form);
    ASSERT_TRUE(save.fault) << said;
    EXPECT_EQ(save.fault->control, control);
    EXPECT_EQ(save.fault->box.text, said);
  };
  form["SSNum"] = "  ";
  faulty("txtSSNum", "Please fill in a Social Security Number");
  for (const char* taken : {"222", "000"}) {  // 000 stands for the template's lines
    form["SSNum"] = taken;
    faulty("txtSSNum", "Social Security Number already exists. Try Again.");
  }
  form["SSNum"] = "111";
  const char* no_data = "Please enter values for Allowances and Withholdings for State and Federal Taxes";
  faulty("txtFedAllow", no_data);
  form["FedAllow"] = "1.5";
  faulty("txtFedAllow", no_data);
  form["FedAllow"] = form["FedWithHolding"] = form["StateAllow"] = "1";
  form["StateWithHolding"] = "some";
  faulty("txtSWithHold", no_data);
  form["StateWithHolding"] = "0";
  faulty("cmbStateLive", "Please Enter a State");
  form["StateLived"] = "IL";
  faulty("cmbStateWorked", "Please Enter a State");
  form["StateWorked"] = "IL";
  for (const auto& [field, control] :
       {std::pair("MaxSick", "txtSickMax"), std::pair("SickHoursStart", "txtSickStart"),
        std::pair("SickHoursPerPeriod", "txtSickRecur"), std::pair("MaxVac", "txtVacMax"),
        std::pair("VacHoursPerPeriod", "txtVacRecur"), std::pair("VacHoursStart", "txtVacStart")}) {
    faulty(control, "Value needed");
    form[field] = "1.5";
  }
  faulty("grdEarnings", "Enter an Earning");
  form.lines[0] = {{0, "Hourly", "x", ""}, {0, "", "9", ""}};
  faulty("grdEarnings", "Enter a Wage Type for each Earning");
  form.lines[0].pop_back();
  faulty("grdEarnings", "This needs to be a numeric value");
  form.lines[0][0].rate.clear();
  EXPECT_TRUE(Save_Employee(session, row, form).ok());
  EXPECT_EQ(text("SELECT COUNT(*) FROM EmployeeEarnings WHERE Rate IS NULL"), "1");
}

TEST_F(Employees, AnotherNumberGoesWhereverTheOldOneStandsAndMergesNobody) {
  ASSERT_TRUE(hire("111", "Ann").ok());
  ASSERT_TRUE(hire("222", "Bob").ok());
  pay("111", "Ann");
  Save_Time_Row(session, week, "111", {}, {.PayrollItem = "Hourly"});
  company.run("INSERT INTO EmployeeTaxes (SSNum, Tax) VALUES ('333', 'left behind')");
  EXPECT_EQ(edit("111", [](EmployeeForm& form) { form["SSNum"] = "222"; }).fault->box.title, "No Entry");
  ASSERT_TRUE(edit("111", [](EmployeeForm& form) {
                form["SSNum"] = "333";
                form.lines[2] = {{0, "Training", "0.1%", ""}};
              }).ok());
  EXPECT_EQ(all("Employees", "SSNum") + all("EmployeeEarnings", "SSNum") + all("Transactions", "SSNum") +
                all("Time20260614", "SSNum") + all("EmployeeTaxes", "SSNum || Tax"),
            "333;222;333;222;333;333;333Training;");
}

TEST_F(Employees, AnotherNameGoesToPaychecksAndPayPeriodsOfThisOneOnly) {
  ASSERT_TRUE(hire("111", "Jo").ok());
  ASSERT_TRUE(hire("222", "Jo").ok());
  pay("111", "Jo", 1);
  pay("222", "Jo", 2);
  period("Jo", "5/15/2026", "Yes");
  period("Jo", "5/15/2026", "No");
  ASSERT_TRUE(edit("111", [](EmployeeForm& form) { form["Name"] = "Jo Fox"; }).ok());
  EXPECT_EQ(all("Transactions", "Name"), "Jo Fox;Jo;");
  EXPECT_EQ(all("PayHistory", "Employee || Paid"), "JoYes;JoNo;Jo FoxYes;") << "never unpaid again by a new name";
  ASSERT_TRUE(edit("222", [](EmployeeForm& form) { form["Name"] = "Jo Day"; }).ok());
  EXPECT_EQ(all("PayHistory", "Employee"), "Jo Day;Jo Day;Jo Fox;");
}

TEST_F(Employees, AnotherUsersLinesAndNumberAreNotOverwritten) {
  ASSERT_TRUE(hire("111", "Ann").ok());
  const auto refused = edit("111", [&](EmployeeForm& form) {
    form.lines[0].clear();
    form.lines[0].push_back({0, "Salary", "50000", ""});
    company.run("UPDATE EmployeeEarnings SET Rate = 990000");
  });
  ASSERT_TRUE(refused.conflict && refused.conflict->reload);
  EXPECT_EQ(all("EmployeeEarnings", "Wage || Rate"), "Hourly990000;");
  const auto gone = edit("111", [&](EmployeeForm& form) {
    form["Phone"] = "555";
    company.run("DELETE FROM Employees");
  });
  EXPECT_TRUE(gone.conflict);
  EXPECT_EQ(text("SELECT COUNT(*) FROM Employees"), "0");
}

TEST_F(Employees, OneWhoWasPaidStaysAndTheLinesOfOneWhoGoesGoAlong) {
  ASSERT_TRUE(hire("111", "Ann").ok());
  ASSERT_TRUE(hire("222", "Ann").ok());
  period("Ann", "5/15/2026", "No");
  pay("111", "Ann");
  EXPECT_FALSE(Delete_Employee(session, "111", "Ann"));
  EXPECT_EQ(company.prompts.boxes.back().text,
            "Cannot delete employee, Transactions have been applied to this employee");
  Save_Time_Row(session, week, "222", {}, {.PayrollItem = "Hourly"});
  company.prompts.answers = {false};
  EXPECT_FALSE(Delete_Employee(session, "222", "Ann"));
  EXPECT_EQ(company.prompts.boxes.back().detail, "1 time sheet line will be deleted as well.");
  company.prompts.answers = {true};
  EXPECT_TRUE(Delete_Employee(session, "222", "Ann"));
  EXPECT_EQ(all("Employees", "SSNum") + all("EmployeeEarnings", "SSNum") + all("Time20260614", "SSNum"), "111;111;");
  EXPECT_EQ(all("PayHistory", "Employee"), "Ann;") << "the other Ann's";
  company.run("DELETE FROM Transactions");
  company.prompts.boxes.clear();
  EXPECT_TRUE(Delete_Employee(session, "111", "Ann"));
  EXPECT_TRUE(company.prompts.boxes.empty());
  EXPECT_EQ(all("PayHistory", "Employee") + all("EmployeeEarnings", "SSNum"), "");
}

}  // namespace
}  // namespace tallymere
