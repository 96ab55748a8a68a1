#include "forms/form_941.h"

#include <gmock/gmock.h>

#include "forms/pay_books.h"

namespace tallymere {
namespace {

using testing::Dollars;
using ::testing::HasSubstr;
using testing::PayBooks;

Money Cents(int64_t cents) { return Money::from_units(cents * 100); }
int64_t Half_Up(int64_t value, int64_t by) { return (value + by / 2) / by; }  // amounts here are not negative

bool In_Quarter(Date date, int year, unsigned quarter) {
  return date.year() == year && (date.month() + 2) / 3 == quarter;
}

/// The form once more, row by row, in whole cents.
struct Plain941 {
  int64_t wages = 0, social = 0, tips = 0, medicare = 0, withheld = 0, paid = 0, months[3] = {};  // months: half cents

  Plain941(const PayBooks& books, int year, unsigned quarter) {
    for (const PayBooks::Row& row : books.rows) {
      const PayBooks::Item& item = books.item(row.item);
      const bool federal = item.type == "Federal Tax" && item.name != "Federal Unemployment";
      if (row.type == "Liabilitycheck" && federal && In_Quarter(row.through, year, quarter)) paid += row.cents;
      if (row.type != "Paycheck" || !In_Quarter(row.date, year, quarter)) continue;
      if (item.name == "Federal Withholding") withheld += row.cents;
      if (federal) months[(row.date.month() - 1) % 3] += row.cents * (item.tax_paid == "Employee Paid Tax" ? 2 : 1);
      const bool pay = item.type == "Wage" || item.type == "Commision";
      const auto counts = [&](const char* tax) {
        if (pay) return row.cents;
        if (item.pay_cal != "Gross" || !item.ticked.contains(tax)) return int64_t{0};
        return item.type == "Addition" ? row.cents : item.type == "Deduction" ? -row.cents : 0;
      };
      wages += counts("Federal Withholding");
      medicare += counts("Medicare Company");
      (item.tracking == "Reported Tips" ? tips : social) += counts("Social Security Company");
    }
  }
  int64_t social_tax() const { return Half_Up(social * 124, 1000); }
  int64_t tips_tax() const { return Half_Up(tips * 124, 1000); }
  int64_t medicare_tax() const { return Half_Up(medicare * 29, 1000); }
  int64_t net() const { return social_tax() + tips_tax() + medicare_tax() + withheld; }
};

TEST(Form941, AgreesWithAPlainReadingOfTheSameRows) {
  for (unsigned seed = 1; seed <= 6; ++seed) {
    PayBooks books(seed);
    books.hire(4);
    books.pay(120, Date(2025, 11, 1), 400);
    for (unsigned quarter = 1; quarter <= 4; ++quarter) {
      const Entry941 entry{.dteEnd = Quarter_Of(2026, static_cast<int>(quarter)).end};
      const TaxForm form = Reckon_941(*books.session, entry);
      const Plain941 plain(books, 2026, quarter);
      const auto say = "seed " + std::to_string(seed) + ", quarter " + std::to_string(quarter);
      EXPECT_EQ(form["txtWages"], Cents(plain.wages)) << say;
      EXPECT_EQ(form["txtSocWage"], Cents(plain.social)) << say;
      EXPECT_EQ(form["txtSocTip"], Cents(plain.tips)) << say;
      EXPECT_EQ(form["txtMedWT"], Cents(plain.medicare)) << say;
      EXPECT_EQ(form["lblTotalTax"], Cents(plain.social_tax() + plain.tips_tax() + plain.medicare_tax())) << say;
      EXPECT_EQ(form["txtNetTaxes"], Cents(plain.net())) << say;
      EXPECT_EQ(form["txtDeposits"], Cents(plain.paid)) << say;
      EXPECT_EQ(form["txtBalance"], Cents(std::max<int64_t>(plain.net() - plain.paid, 0))) << say;
      EXPECT_EQ(form["txtOverpay"], Cents(std::max<int64_t>(plain.paid - plain.net(), 0))) << say;
      EXPECT_EQ(form["txtSecond"], Cents(Half_Up(plain.months[1], 2))) << say;
      EXPECT_EQ(form["lblTotalLia"], form["txtFirst"] + form["txtSecond"] + form["txtThird"]) << say;
      for (const FormLine& line : form.lines()) {  // what made a line adds up to it
        Money traced;
        for (const TracedRow& row : Trace(books.db(), line.sources)) traced += row.counted;
        if (!line.sources.empty()) {
          EXPECT_EQ(traced.rounded_to_cents(), line.amount) << say << ", " << line.def.number;
        }
      }
    }
  }
}

TEST(Form941, CorrectionsCarryOnAndLine12DoesNot) {
  PayBooks books;
  books.hire(1);
  books.post({"Paycheck", books.employees[0], "Salary", Date(2026, 2, 6), Date(2026, 2, 6), 100000}, 1);
  books.post({"Paycheck", books.employees[0], "Federal Withholding", Date(2026, 2, 6), Date(2026, 2, 6), 9000}, 1);
  Entry941 entry{.dteEnd = Date(2026, 3, 31)};
  EXPECT_EQ(Reckon_941(*books.session, entry)["txtNetTaxes"], Dollars(243));  // 90 + 12.4 % + 2.9 % of 1,000
  entry.typed = {{"txtWithheld", Dollars(100)}, {"txtAdjustTaxes", Dollars(-1, 50)}, {"txtEIC", Dollars(40)}};
  const TaxForm form = Reckon_941(*books.session, entry);
  EXPECT_EQ(form["txtTotalWithheld"], Dollars(100));
  EXPECT_EQ(form["txtTotalAdjust"], Dollars(151, 50));
  EXPECT_EQ(form["txtNetTaxes"], Dollars(251, 50));
  EXPECT_EQ(form.find("txtWithheld")->reckoned, Dollars(90));
}

TEST(Form941, AQuarterWithoutPaychecksIsNothingAndADeletedItemIsNamed) {
  PayBooks books;
  for (const FormLine& line : Reckon_941(*books.session, {.dteEnd = Date(2026, 12, 31)}).lines())
    EXPECT_EQ(Form_Money(line.amount), "$0.00") << line.def.number;
  books.run("DELETE FROM PayrollItems WHERE Name = 'Social Security Employee'");
  EXPECT_THROW(Reckon_941(*books.session, {.dteEnd = Date(2026, 12, 31)}), store::Error);
}

TEST(Form941, EmployeesOfThe12thAreThoseWhosePeriodHoldsIt) {
  PayBooks books;
  books.hire(3);
  const auto paid = [&](int number, size_t who, Date date, const char* period) {
    books.run("INSERT INTO Transactions (TransNum, Type, Date, SSNum, PayPeriod) VALUES (?, 'Paycheck', ?, ?, ?)",
              {number, date, books.employees[who], period});
  };
  paid(1, 0, Date(2026, 3, 20), "03/02/2026 - 03/15/2026");
  paid(2, 0, Date(2026, 3, 20), "03/12/2026 - 03/12/2026");  // the same person again
  paid(3, 1, Date(2026, 3, 27), "03/13/2026 - 03/26/2026");
  paid(4, 2, Date(2026, 4, 5), "03/01/2026 - 03/31/2026");  // paid in the next quarter
  EXPECT_EQ(Employees_On_The_12th(books.db(), Date(2026, 3, 31)), 2);
}

TEST(ScheduleB, DaysStandInTheMonthThatTheQuartersEndLessMonthsGives) {
  PayBooks books;
  books.hire(1);
  int64_t number = 0;
  const auto withheld = [&](Date date, const char* item, int64_t cents) {
    books.post({"Paycheck", books.employees[0], item, date, date, cents}, ++number);
  };
  withheld(Date(2026, 3, 30), "Federal Withholding", 100);
  withheld(Date(2026, 3, 31), "Federal Withholding", 200);  // in the second quarter's first month
  withheld(Date(2026, 4, 1), "Medicare Company", 500);      // two rows, half each
  withheld(Date(2026, 4, 1), "Medicare Company", 500);
  withheld(Date(2026, 5, 31), "Medicare Employee", 700);
  withheld(Date(2026, 6, 30), "MN Tax", 900);
  const ScheduleB june = Reckon_Schedule_B(books.db(), Date(2026, 6, 30));
  EXPECT_EQ(june.days[0][30], Dollars(2));
  EXPECT_EQ(june.days[0][0], Dollars(5));
  EXPECT_EQ(june.days[2][30], Dollars(7));
  EXPECT_EQ(june.months[1], Money());
  EXPECT_EQ(june.total, Dollars(14));
  EXPECT_EQ(Reckon_Schedule_B(books.db(), Date(2026, 3, 31)).total, Dollars(3));
  EXPECT_EQ(Schedule_B_Words(june, Dollars(12)), "Schedule B: $14.00, which is $2.00 more than line 13.");
  const FormPaper paper = Paper_Schedule_B(*books.session, {.dteEnd = Date(2026, 6, 30)});
  EXPECT_EQ(paper.layouts.at(0).text("Text152"), "$2.00");
  EXPECT_EQ(paper.layouts.at(0).text("Text217"), "$7.00");
  EXPECT_EQ(paper.layouts.at(0).text("Text222"), "$14.00");
}

}  // namespace
}  // namespace tallymere
