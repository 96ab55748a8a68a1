#include "printing/bank_line.h"

#include "printing/check_layout.h"
#include "support/entry_company.h"

namespace tallymere {
namespace {

TEST(BankLine, NumbersThatCannotBeABanksAreRefused) {
  struct Case {
    const char *routing, *account, *control;
  };
  const Case cases[] = {
      {"", "", nullptr},
      {"091000022", "1234-567 8", nullptr},
      {"091000022", "12345678901234567", nullptr},
      {"091000023", "1234", "txtRouting"},  // its check digit is wrong
      {"09100002", "1234", "txtRouting"},   // one digit short
      {"000000000", "1234", "txtRouting"},
      {"09100002x", "1234", "txtRouting"},
      {"", "1234", "txtRouting"},
      {"091000022", "", "txtAccount"},
      {"091000022", "--", "txtAccount"},
      {"091000022", "12a4", "txtAccount"},
      {"091000022", "123456789012345678", "txtAccount"},
  };
  for (const Case& c : cases) {
    const auto fault = Bank_Line_Fault({c.routing, c.account});
    EXPECT_EQ(fault ? fault->control : "", c.control ? c.control : "") << c.routing << " " << c.account;
  }
}

TEST(BankLine, EachFieldStandsInItsPlaces) {
  const BankLine line{"091000022", "123-45"};
  EXPECT_EQ(Bank_Line_Text(line, "1001"), "⑈001001⑈ ⑆091000022⑆ 123⑉45⑈           ");
  EXPECT_EQ(Bank_Line_Text(line, "12345678"), "⑈12345678⑈ ⑆091000022⑆ 123⑉45⑈           ");
  EXPECT_EQ(Bank_Line_Text(line, "1002a"), "⑆091000022⑆ 123⑉45⑈           ");  // no number for a machine
}

TEST(BankLine, OnlyChecksOfThatBankGoOnBlankStock) {
  testing::EntryCompany company;
  company.add_category("B2", "Bank");
  Keep_Bank_Line(*company.session, "B2", {"091000022", "777 8"});
  EXPECT_EQ(Read_Bank_Line(company.db(), "B2"), (BankLine{"091000022", "777 8"}));
  company.run("UPDATE CompanyInfo SET Name = 'Acme Widgets'");
  const auto check = [&](const char* bank) {
    const int64_t number = company.write("Check", Date(2026, 6, 1), bank, "66SS", Money::dollars(5), "Ann", "Print");
    return Print_it(*company.session, number, "1001").at(0);
  };
  const Layout plain = check("0SS"), blank = check("B2");
  EXPECT_TRUE(plain.is_hidden("BlankStock"));
  EXPECT_EQ(plain.text("Number"), "");  // the stock has it
  EXPECT_FALSE(blank.is_hidden("BlankStock"));
  EXPECT_EQ(blank.text("Number"), "1001");
  EXPECT_EQ(blank.text("PayerName"), "Acme Widgets");
  EXPECT_EQ(blank.text("BankName"), "Name of B2");
  EXPECT_EQ(blank.text("BankLine"), "⑈001001⑈ ⑆091000022⑆ 777 8⑈            ");
  Keep_Bank_Line(*company.session, "B2", {});
  EXPECT_TRUE(check("B2").is_hidden("BlankStock"));
}

}  // namespace
}  // namespace tallymere
