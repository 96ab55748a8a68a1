#include "printing/check_run_paint.h"

#include <QPdfWriter>
#include <fstream>

#include "support/entry_company.h"
#include "support/pdf_text.h"

namespace tallymere {
namespace {

using testing::Dollars;

struct CheckRuns : ::testing::Test {
  testing::EntryCompany company;
  Session& session = *company.session;
  Layout_Shelf shelf{{company.folder / "layouts", testing::data_folder / "layouts"}, [](const std::string&) {}};
  std::filesystem::path pdf = company.folder / "checks.pdf";
  std::vector<int64_t> waiting;

  void queue(int checks) {
    store::Transaction tx(company.db(), "Set up by a test");
    for (int check = 1; check <= checks; ++check)
      waiting.push_back(company.write("Check", Date(2026, 6, 1), "0SS", "66SS", Dollars(check, 25),
                                      "Payee" + std::to_string(check), "Print"));
    tx.commit();
  }
  CheckRun print(const Keep_Going& keep_going = {}) {
    QPdfWriter writer(QString::fromStdString(pdf.string()));
    writer.setPageLayout(Page_Of(shelf.sheet("crpCheck")));
    writer.setResolution(600);
    return Print_Checks(session, waiting, 1000, writer, {}, shelf, keep_going);
  }
  int64_t still_waiting() {
    return company.db().value("SELECT COUNT(*) FROM Transactions WHERE Number = 'Print'").integer() / 2;
  }
  std::string number_of(size_t check) { return testing::Rows_Of(company.db(), waiting[check], "Number"); }
};

/// In bytes.
int64_t Memory_In_Use() {
  int64_t whole = 0, resident = 0;
  std::ifstream("/proc/self/statm") >> whole >> resident;
  return resident * 4096;
}

TEST_F(CheckRuns, AThousandChecksInOneRun) {
  queue(1000);
  std::vector<int> told;
  int64_t after_hundred = 0;
  const CheckRun run = print([&](int done, int total) {
    EXPECT_EQ(total, 1000);
    told.push_back(done);
    if (done == 100) after_hundred = Memory_In_Use();
    return true;
  });
  [[maybe_unused]] const int64_t grown = Memory_In_Use() - after_hundred;
#ifndef __SANITIZE_ADDRESS__  // which keeps what was freed
  EXPECT_LT(grown, 24 << 20);
#endif
  EXPECT_EQ(told.size(), 1000u);
  EXPECT_EQ(run.printed.size(), 1000u);
  EXPECT_EQ(still_waiting(), 0);
  EXPECT_EQ(number_of(0), "1000\n1000\n");
  EXPECT_EQ(number_of(999), "1999\n1999\n");
  ASSERT_EQ(testing::Pdf_Pages(pdf), 1000);
  const std::string last = testing::Pdf_Text(pdf, 1000);
  EXPECT_NE(last.find("Payee1000"), std::string::npos) << last;
  EXPECT_NE(last.find("1,000.25"), std::string::npos) << last;
  EXPECT_NE(last.find("1999"), std::string::npos) << last;
}

TEST_F(CheckRuns, StoppedItKeepsWhatWasPrintedAndTheRestWaits) {
  queue(8);
  const CheckRun run = print([](int done, int) { return done < 3; });
  EXPECT_EQ(run.printed.size(), 3u);
  EXPECT_EQ(number_of(2), "1002\n1002\n");
  EXPECT_EQ(number_of(3), "Print\nPrint\n");
  EXPECT_EQ(testing::Pdf_Pages(pdf), 3);
}

TEST_F(CheckRuns, ACheckThatCannotBeFilledStopsTheRunThere) {
  queue(5);
  company.run("UPDATE Transactions SET Amount = 'abc' WHERE TransNum = ?", {waiting[2]});
  const CheckRun run = print();
  EXPECT_TRUE(run.fault);
  EXPECT_EQ(run.printed.size(), 2u);
  EXPECT_EQ(still_waiting(), 3);
  EXPECT_EQ(number_of(2), "Print\nPrint\n");
}

TEST_F(CheckRuns, TwoStationsNeverPrintOneCheckTwice) {
  queue(5);
  auto colleague = company.another_user();
  // Before its turn: it is left out, and the numbers close up.
  const CheckRun some = print([&](int done, int) {
    if (done == 0) {
      EXPECT_TRUE(Number_Checks(*colleague, {{waiting[1], 77}}));
    }
    return true;
  });
  EXPECT_EQ(some.gone, 1);
  EXPECT_EQ(some.printed.size(), 4u);
  EXPECT_EQ(number_of(2), "1001\n1001\n");
  // After it was painted, before anything was numbered: nothing goes to the printer.
  Good_Print(session, some.printed, 1000);
  std::erase(waiting, waiting[1]);
  const CheckRun none = print([&](int done, int) {
    if (done == 3) {
      EXPECT_TRUE(Number_Checks(*colleague, {{waiting[0], 78}}));
    }
    return true;
  });
  EXPECT_TRUE(none.taken);
  EXPECT_TRUE(none.printed.empty());
  EXPECT_EQ(still_waiting(), 3);
  EXPECT_EQ(number_of(0), "78\n78\n");
}

}  // namespace
}  // namespace tallymere
