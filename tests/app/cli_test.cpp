#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "support/child_process.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace tallymere {
namespace {

/// The command line as a script calls it, in a fresh folder that holds the company Acme.
class CommandLine : public ::testing::Test {
 protected:
  CommandLine() { run("new Acme"); }
  /// Output and error stream together.
  std::string run(const std::string& words) {
    testing::ChildProcess child({"/bin/sh", "-c",
                                 "cd '" + folder.path().string() + "' && '" + testing::cli_program + "' " + words +
                                     (words.ends_with("--help") ? "" : " --folder .") + " 2>&1"});
    std::string output = child.rest();
    exit_code = child.wait_for_end();
    return output;
  }
  testing::TempFolder folder;
  int exit_code = -1;
};

TEST_F(CommandLine, WhatIsWrongWithACallIsSaidAndExits2) {
  const std::string company = " --company Acme.cmf";
  const std::string enter = "enter" + company + " --name A --from Checking --to ";
  struct Case {
    std::string words, said;
  };
  const Case cases[] = {
      {"nonsense", "no such command: nonsense"},
      {"new", "missing: a company name"},
      {"new A B", "not understood: B"},
      {"verify", "missing: --company"},
      {"verify --company --backup x", "--company needs a value"},
      {"verify" + company + company, "--company stands twice"},
      {"figures --color red" + company, "not understood: --color"},
      {"history soon" + company, "takes a whole number, not \"soon\""},
      {"history --limit -3" + company, "takes a whole number, not \"-3\""},
      {"undo" + company, "missing: the number of an action"},
      {"undo 1x" + company, "takes a whole number, not \"1x\""},
      {"demo D --years 4294967297", "--years: from 1 to 50"},
      {"demo D --today 2/30/2026", "takes a date like 3/15/2026, not \"2/30/2026\""},
      {enter + "Rent", "a line reads CATEGORY=AMOUNT, not \"Rent\""},
      {enter + "Rent=-5", "an amount is more than nothing"},
  };
  for (const Case& c : cases) {
    EXPECT_NE(run(c.words).find(c.said), std::string::npos) << c.words << "\n" << run(c.words);
    EXPECT_EQ(exit_code, 2) << c.words;
  }
  EXPECT_NE(run("undo --help").find("usage: tallymere-cli undo NUMBER"), std::string::npos);
  EXPECT_EQ(exit_code, 0);
}

TEST_F(CommandLine, WhatCannotBeDoneIsSaidAndExits1) {
  std::ofstream(folder / "words.cmf") << "no database";
  std::ofstream(folder / "empty.cmf");
  std::filesystem::create_directory(folder / "folder.cmf");
  struct Case {
    std::string words, said;
  };
  const Case cases[] = {
      {"new Acme", "Company name already exisits."},
      {"new ../Acme", "error 3044"},
      {"verify --company gone.cmf", "error 3024"},
      {"verify --company folder.cmf", "error 3051"},
      {"verify --company words.cmf",
       "error 3343: Unrecognized database format '" + (folder / "words.cmf").string() + "'"},
      {"verify --company empty.cmf", "error 3343"},
      {"verify --company Model.mdb", "error 3343"},
      {"history 99 --company Acme.cmf", "error 3021"},
      {"enter --company Acme.cmf --name A --from Nowhere --to Rent=1", "there is no category \"Nowhere\""},
      {"restore --backup gone.cbk --company Acme.cmf", "Source file does not exist"},
      {"backup --company Acme.cmf --out nowhere/acme", "nowhere/acme.cbk"},
  };
  for (const Case& c : cases) {
    EXPECT_NE(run(c.words).find(c.said), std::string::npos) << c.words << "\n" << run(c.words);
    EXPECT_EQ(exit_code, 1) << c.words;
  }
  EXPECT_EQ(run("verify --company Acme.cmf"), "All is well.\n");
  EXPECT_EQ(exit_code, 0);
}

TEST_F(CommandLine, ARestoreReplacesWhatNobodyCanOpen) {
  run("enter --company Acme.cmf --name A --from Checking --to Rent=12.50");
  run("backup --company Acme.cmf --out acme");
  ASSERT_EQ(exit_code, 0);
  std::filesystem::resize_file(folder / "Acme.cmf", 5000);
  run("verify --company Acme.cmf");
  ASSERT_EQ(exit_code, 1);
  run("restore --backup acme.cbk --company Acme.cmf");
  EXPECT_EQ(exit_code, 0);
  EXPECT_EQ(run("verify --company Acme.cmf"), "All is well.\n");
  EXPECT_NE(run("history --company Acme.cmf").find("Check Print, A"), std::string::npos);
}

}  // namespace
}  // namespace tallymere
