#include "printing/layout.h"
#include "support/entry_company.h"
#include "support/pdf_text.h"

namespace tallymere {
namespace {

/// A company that the command line then opens as another program.
struct PrintCommand : ::testing::Test {
  testing::EntryCompany company;
  int exit_code = -1;

  std::string run(const std::string& words) {
    testing::ChildProcess child({"/bin/sh", "-c",
                                 "exec 2>&1; cd '" + company.folder.path().string() + "'; '" + testing::cli_program +
                                     "' " + words + " --folder . --company Acme.cmf"});
    std::string output = child.rest();
    exit_code = child.wait_for_end();
    return output;
  }
};

TEST_F(PrintCommand, ADocumentIsPrintedByItsNumber) {
  const int64_t check =
      company.write("Check", Date(2026, 6, 1), "0SS", "66SS", Money::parse("1234.5").value(), "Northern Power", "1001");
  EXPECT_EQ(run("print check --number 1001 --out c.pdf"), "");
  const std::string text = testing::Pdf_Text(company.folder / "c.pdf");
  EXPECT_NE(text.find("One thousand Two hundred Thirty-Four and 50/100 *"), std::string::npos) << text;
  EXPECT_NE(text.find("Northern Power 1,234.50"), std::string::npos) << text;
  company.write("Check", Date(2026, 6, 2), "0SS", "66SS", Money::dollars(1), "Ann", "1001");
  EXPECT_NE(run("print check --number 1001 --out d.pdf").find("name one by --key " + std::to_string(check) + ","),
            std::string::npos);
  EXPECT_EQ(exit_code, 1);
  EXPECT_EQ(run("print check --key " + std::to_string(check) + " --out d.pdf"), "");
  EXPECT_NE(run("print invoice --number 9 --out e.pdf").find("there is no invoice 9"), std::string::npos);
  EXPECT_NE(run("print statement --out e.pdf").find("no customer owes anything"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(company.folder / "e.pdf"));
  EXPECT_NE(run("print letter --out e.pdf").find("no such document"), std::string::npos);
  EXPECT_EQ(exit_code, 2);
}

TEST_F(PrintCommand, EveryPaperSaysItsWordsAndAmounts) {
  company.run("UPDATE CompanyInfo SET Name = 'Acme Widgets', Address = '9 Main St'");
  company.run("INSERT INTO Customers (Name, BillingAddress, Dormant) VALUES ('Ann Oak', 'Ann Oak, 1 Mill Rd', 0)");
  Transaction_Writer rows(*company.session,
                          {.Type = "Invoice", .Date = Date(2026, 6, 1), .Number = "1042", .Name = "Ann Oak"});
  rows.add({.Account = "AR1",
            .Category = "66SS",
            .Debit = Money::dollars(1234, 50),
            .Amount = Money::dollars(1234, 50),
            .Memo = "Thank you",
            .SourceName = "Service"});
  LedgerRow line{
      .Account = "66SS", .Category = "AR1", .Credit = Money::dollars(1234, 50), .Amount = Money::dollars(1234, 50)};
  line.Item = "Work";
  line.ItemDescription = "Planing boards";
  line.Qty = -3;
  rows.add(line);
  rows.commit();
  for (const auto& [heads, fields] : {std::pair{"POs", "Vendor, PONumber"},
                                      {"Estimates", "Customer, EstimateNumber"},
                                      {"PSlips", "Vendor, PONumber"}})
    company.run("INSERT INTO " + std::string(heads) + " (Index, " + fields + ", Total) VALUES (1, 'Mill', '7', ?)",
                {Money::dollars(88)});
  for (const auto& [lines, link] :
       {std::pair{"POItems", "POIndex"}, {"EstItems", "EstimateIndex"}, {"PSlipItems", "POIndex"}})
    company.run(
        "INSERT INTO " + std::string(lines) + " (" + link + ", Item, Qty, Rate, Amount) VALUES (1, 'Bolt', 4, ?, ?)",
        {Money::dollars(22), Money::dollars(88)});
  struct Paper {
    std::string words;
    std::vector<std::string> said, not_said;
  };
  const Paper papers[] = {
      {"invoice --number 1042",
       {"Acme Widgets", "1042", "Ann Oak, 1 Mill Rd", "Planing boards", "1,234.50", "$1234.50", "Thank you"},
       {"Ship Via"}},
      {"statement --name 'Ann Oak'",
       {"Statement", "Ann Oak, 1 Mill Rd", "6/1/2026 1042", "$1234.50"},
       {"Finance charges"}},
      {"statement", {"Ann Oak, 1 Mill Rd", "$1234.50"}, {}},
      {"po --number 7", {"Purchase Order", "Mill", "Bolt", "22.00", "88.00"}, {}},
      {"estimate --number 7", {"Estimate", "Mill", "Bolt", "22.00", "88.00"}, {"Purchase"}},
      {"slip --number 7", {"Mill", "Bolt", "4"}, {"22.00", "88.00"}},
  };
  for (const Paper& paper : papers) {
    EXPECT_EQ(run("print " + paper.words + " --out x.pdf"), "") << paper.words;
    const std::string text = testing::Pdf_Text(company.folder / "x.pdf");
    for (const std::string& words : paper.said)
      EXPECT_NE(text.find(words), std::string::npos) << words << " in " << text;
    for (const std::string& words : paper.not_said)
      EXPECT_EQ(text.find(words), std::string::npos) << words << " in " << text;
    std::filesystem::remove(company.folder / "x.pdf");
  }
}

TEST_F(PrintCommand, AnOrderOnALayoutThatWasWrittenOut) {
  company.run("INSERT INTO POs (Index, Vendor, PONumber, Total) VALUES (1, 'Mill', '7', 5)");
  Write_Out_Layout({company.folder / "layouts", testing::data_folder / "layouts"}, "crpPO");
  EXPECT_EQ(run("print po --number 7 --out p.pdf"), "");
  EXPECT_NE(testing::Pdf_Text(company.folder / "p.pdf").find("Purchase Order"), std::string::npos);
}

}  // namespace
}  // namespace tallymere
