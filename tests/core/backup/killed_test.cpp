#include <chrono>
#include <cstdlib>
#include <random>
#include <thread>

#include "core/ledger/verify.h"
#include "support/backup_company.h"
#include "support/child_process.h"

namespace tallymere {
namespace {

namespace fs = std::filesystem;
using Clock_Of_Machine = std::chrono::steady_clock;

/// tallymere-cli at work on Acme, killed at some moment. TALLYMERE_KILLS says how often, for a longer night.
class KilledTest : public testing::BackupCompany {
 protected:
  testing::ChildProcess program(const std::string& words) {
    return testing::ChildProcess(
        {"/bin/sh", "-c",
         "exec '" + testing::cli_program + "' " + words + " --folder '" + folder.path().string() + "' 2>/dev/null"});
  }
  std::string named(const char* name) { return "'" + file(name).string() + "'"; }
  void kill_within(const std::string& words) {
    const auto longest = whole_run(words);
    std::uniform_int_distribution<int64_t> moment(longest.count() / 4, longest.count());
    auto child = program(words);
    std::this_thread::sleep_for(std::chrono::microseconds(moment(random_)));
    child.kill_now();
  }
  static int times() {
    const char* wanted = std::getenv("TALLYMERE_KILLS");
    return wanted ? std::atoi(wanted) : 8;
  }
  /// The next start: what is left goes, but for the engine's journal, by which it takes back what was half done.
  void start_again() {
    Main(session);
    const std::string left = leftovers();
    EXPECT_TRUE(left.empty() || left == "Acme.cmf-journal ") << left;
  }

 private:
  std::chrono::microseconds whole_run(const std::string& words) {
    if (longest_.count() > 0) return longest_;
    const auto began = Clock_Of_Machine::now();
    auto child = program(words);
    EXPECT_EQ(child.wait_for_end(), 0);
    return longest_ = std::chrono::duration_cast<std::chrono::microseconds>(Clock_Of_Machine::now() - began);
  }
  std::mt19937 random_{7};
  std::chrono::microseconds longest_{};
};

TEST_F(KilledTest, ARestoreLeavesTheOldCompanyOrTheNewOne) {
  backup("old.cbk");
  Leave_Company(session);
  for (int time = 0; time < times(); ++time) {
    open("Acme");
    remember("newer");
    Leave_Company(session);
    kill_within("restore --backup " + named("old.cbk") + " --company " + named("Acme.cmf"));
    start_again();
    open("Acme");
    EXPECT_TRUE(memo() == "newer" || memo() == "Acme was here") << memo();
    EXPECT_TRUE(Verify_Company(*session.dbCompany).empty());
    Leave_Company(session);
  }
}

/// Where none was or none that can be read, there is still none, or the whole one.
TEST_F(KilledTest, ARestoreToAFreeOrADamagedPlaceIsWholeOrNotThere) {
  backup("old.cbk");
  Leave_Company(session);
  const std::string damaged = content(file("Acme.cmf")).substr(0, 5000);
  for (int time = 0; time < times(); ++time) {
    fs::remove(file("Beta.cmf"));
    if (time % 2) std::ofstream(file("Beta.cmf"), std::ios::binary) << damaged;
    kill_within("restore --backup " + named("old.cbk") + " --company " + named("Beta.cmf"));
    start_again();
    const std::string found = content(file("Beta.cmf"));
    if (found == (time % 2 ? damaged : "")) continue;
    open("Beta");
    EXPECT_EQ(memo(), "Acme was here");
    Leave_Company(session);
  }
}

TEST_F(KilledTest, ABackupLeavesTheEarlierOneOrTheNextWherever) {
  const testing::TempFolder away;
  const fs::path there = away / "acme.cbk";
  ASSERT_TRUE(Backup_Company(session, there));
  const auto memo_in = [&] {
    EXPECT_TRUE(restore(there, "Proof.cmf"));
    return memo();
  };
  for (int time = 0; time < times(); ++time) {
    const std::string earlier = memo_in();
    open("Acme");
    remember("memo " + std::to_string(time));
    Leave_Company(session);
    kill_within("backup --company " + named("Acme.cmf") + " --out '" + there.string() + "'");
    start_again();
    EXPECT_EQ(std::distance(fs::directory_iterator(away.path()), fs::directory_iterator()), 1);
    const std::string now = memo_in();
    EXPECT_TRUE(now == earlier || now == "memo " + std::to_string(time)) << now;
  }
}

}  // namespace
}  // namespace tallymere
