#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "core/ledger/verify.h"
#include "support/child_process.h"
#include "support/test_company.h"

namespace tallymere {
namespace {

using tallymere::testing::ChildProcess;
using tallymere::testing::TestCompany;

/// Several programs on one company: what a power cut and a second desk do.
class Processes : public ::testing::Test {
 protected:
  Processes() {
    Close_Company_File(*acme.session);  // this test looks only when the others are gone
  }
  std::unique_ptr<ChildProcess> writer(const std::string& payee, int times) {
    return std::make_unique<ChildProcess>(std::vector<std::string>{
        testing::cli_program, "enter", "--folder", acme.folder.path().string(), "--company", path(), "--name", payee,
        "--from", "Checking", "--to", "Rent=100,Office Supplies=25.50", "--times", std::to_string(times)});
  }
  std::string path() { return (acme.folder / "Acme.cmf").string(); }
  store::Database& opened() {
    acme.open(*acme.session);
    return acme.db();
  }
  static std::vector<int64_t> told(const std::string& output) {
    std::vector<int64_t> numbers;
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);)
      if (line.starts_with("saved ") && !lines.eof()) numbers.push_back(std::stoll(line.substr(6)));
    return numbers;
  }
  TestCompany acme;
};

TEST_F(Processes, AKilledWriterLeavesNoHalfDocumentAndLosesNoneItToldOf) {
  std::mt19937 random(20260115);
  std::vector<int64_t> safe;
  for (int round = 0; round < 25; ++round) {
    auto child = writer("Round " + std::to_string(round), 1000000);
    std::string output = child->first_words();
    ASSERT_FALSE(output.empty()) << "the writer never wrote";
    usleep(random() % 30000);
    child->kill_now();
    output += child->rest();
    for (int64_t number : told(output)) safe.push_back(number);
  }
  auto& db = opened();
  for (const Finding& finding : Verify_Company(db)) ADD_FAILURE() << finding.check << ": " << finding.what;
  EXPECT_EQ(
      db.value("SELECT COUNT(*) FROM (SELECT 1 FROM Transactions GROUP BY TransNum HAVING COUNT(*) <> 3)").integer(),
      0);
  for (int64_t number : safe)
    EXPECT_EQ(db.value("SELECT COUNT(*) FROM Transactions WHERE TransNum = ?", {number}).integer(), 3) << number;
  EXPECT_GE(safe.size(), 25u);
}

TEST_F(Processes, EightDesksSaveIntoOneFileAndNoneStarvesMergesOrDisappears) {
  constexpr int desks = 8, each = 60;
  std::vector<std::unique_ptr<ChildProcess>> writers;
  for (int desk = 0; desk < desks; ++desk) writers.push_back(writer("Desk " + std::to_string(desk), each));
  for (auto& desk : writers) {
    EXPECT_EQ(told(desk->rest()).size(), size_t{each});
    EXPECT_EQ(desk->wait_for_end(), 0);
  }
  auto& db = opened();
  EXPECT_TRUE(Verify_Company(db).empty());
  EXPECT_EQ(db.value("SELECT COUNT(DISTINCT TransNum) FROM Transactions").integer(), desks * each);
  EXPECT_EQ(db.value("SELECT COUNT(*) FROM (SELECT 1 FROM Transactions GROUP BY TransNum"
                     " HAVING COUNT(*) <> 3 OR MIN(Name) <> MAX(Name))")
                .integer(),
            0);
}

}  // namespace
}  // namespace tallymere
