#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "core/company/folder.h"
#include "core/company/passwords.h"
#include "support/child_process.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace tallymere {
namespace {

/// The command line as a script calls it, in a fresh folder that holds the company Acme.
class CommandLine : public ::testing::Test {
 protected:
  CommandLine() { run("new Acme"); }
  /// Output and error stream together, of a script that calls the program "$cli" in the folder.
  std::string shell(const std::string& script) {
    testing::ChildProcess child(
        {"/bin/sh", "-c",
         "exec 2>&1; cd '" + folder.path().string() + "'; cli='" + testing::cli_program + "'; " + script});
    std::string output = child.rest();
    exit_code = child.wait_for_end();
    return output;
  }
  std::string run(const std::string& words) {
    return shell("\"$cli\" " + words + (words.ends_with("--help") ? "" : " --folder ."));
  }
  std::string content(const std::string& name) {
    std::ifstream in(folder / name);
    return {std::istreambuf_iterator<char>(in), {}};
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
      {"new ../Acme", "cannot hold the character /"},
      {"new '  '", "Please Enter a Name For the New Company"},
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
      {"report PL --company Acme.cmf --format csv --out Model.mdb", "'Model.mdb' holds a database"},
      {"report PL --company Acme.cmf --format pdf --out Acme.cmf", "'Acme.cmf' is a file that Tallymere works on"},
      {"report PL --company Acme.cmf --format xlsx --out ErrorLog.txt",
       "'ErrorLog.txt' is a file that Tallymere works on"},
  };
  for (const Case& c : cases) {
    EXPECT_NE(run(c.words).find(c.said), std::string::npos) << c.words << "\n" << run(c.words);
    EXPECT_EQ(exit_code, 1) << c.words;
  }
  EXPECT_EQ(run("verify --company Acme.cmf"), "All is well.\n");
  EXPECT_EQ(exit_code, 0);
}

/// What the caller gets to read is what is kept, and whoever reads nothing is not told that all went well.
TEST_F(CommandLine, SavedIsSaidOfWhatIsKeptAndAnOutputThatFailsIsAFailure) {
  const std::string enter =
      "\"$cli\" enter --company Acme.cmf --name A --from Checking --to Rent=1 --times 400 --folder .";
  const auto kept = [&] {
    const auto db = Open_Current(folder / "Acme.cmf", store::FileKind::Company);
    return db->value("SELECT COUNT(DISTINCT TransNum) FROM Transactions").integer();
  };
  // The company's file may grow by some kilobytes only.
  const auto blocks = std::to_string(std::filesystem::file_size(folder / "Acme.cmf") / 512 + 60);
  shell("trap '' XFSZ; ulimit -f " + blocks + "; " + enter + " > told");
  EXPECT_EQ(exit_code, 1);
  const std::string told = content("told");
  EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), kept());
  EXPECT_GT(kept(), 3);
  EXPECT_TRUE(told.ends_with("saved " + std::to_string(kept()) + "\n"));

  // A reader that goes: the work stops where nobody hears of it any more.
  shell("(" + enter + "; echo $? > code) | head -n 1 > told");
  EXPECT_EQ(content("code"), "1\n");
  EXPECT_LT(kept(), 400);

  for (const char* words : {"figures $acme", "history $acme", "verify $acme", "report PL $acme", "backup --out a $acme",
                            "report", "schema", "help"})
    for (const char* nowhere : {" > /dev/full", " >&-"}) {
      shell(std::string("acme='--company Acme.cmf --folder .'; \"$cli\" ") + words + nowhere);
      EXPECT_EQ(exit_code, 1) << words << nowhere;
    }
  EXPECT_EQ(content("ErrorLog.txt"), "") << "a closed stream's number went to a file";
  EXPECT_EQ(run("verify --company Acme.cmf"), "All is well.\n");
}

TEST_F(CommandLine, AnOutputDisturbsNoNeighbour) {
  for (const char* name : {"u.pdf.report", "u.pdf.new", "u.csv.part"}) std::ofstream(folder / name) << "mine";
  run("report PL --company Acme.cmf --format pdf --out u.pdf");
  run("report PL --company Acme.cmf --format csv --out u.csv");
  EXPECT_EQ(exit_code, 0);
  for (const char* name : {"u.pdf.report", "u.pdf.new", "u.csv.part"}) EXPECT_EQ(content(name), "mine");
  for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
    EXPECT_FALSE(entry.path().filename().string().starts_with(".")) << entry.path();
}

TEST_F(CommandLine, ACompanyWithAPasswordAsksForIt) {
  const auto write = [&](const char* sql, const std::string& password) {
    const auto db = Open_Current(folder / "Acme.cmf", store::FileKind::Company);
    store::Transaction tx(*db, "Set up by a test");
    db->Execute(sql, {Hash_Password(password)});
    tx.commit();
  };
  std::ofstream(folder / "right") << "Rain 7\nnext line\n";
  std::ofstream(folder / "anns") << "Sun\r\n";
  std::ofstream(folder / "wrong") << "rain 7\n";
  struct Case {
    std::string words, said;
  };
  const auto check = [&](std::initializer_list<Case> cases) {
    for (const Case& c : cases) {
      const std::string said = shell("\"$cli\" verify --company Acme.cmf --folder . " + c.words);
      EXPECT_NE(said.find(c.said), std::string::npos) << c.words << ": " << said;
      EXPECT_EQ(exit_code, c.said == "All is well." ? 0 : 1) << c.words;
    }
  };
  write("UPDATE CompanyInfo SET Password = ?", "Rain 7");
  check({{"< right", "All is well."},
         {"--password-fd 5 5< right < /dev/null", "All is well."},
         {"< wrong", "Incorrect Password"},
         {"< /dev/null", "asks for a password"},
         {"<&-", "asks for a password"},
         {"--password-fd 9", "asks for a password"}});
  write("INSERT INTO Users (UserName, BankCC, Password) VALUES ('Ann', -1, ?)", "Sun");
  write("UPDATE CompanyInfo SET UserMode = 'Multi', Password = ?", "");
  check({{"--user admin < /dev/null", "All is well."},
         {"--user ann < anns", "All is well."},
         {"--user ann < wrong", "Invlaid Login"},
         {"--user ann < /dev/null", "asks for a password"},
         {"--user bob < anns", "Invlaid Login"},
         {"< anns", "Please enter a User name."}});
  run("enter --company Acme.cmf --name A --from Checking --to Rent=1 --user ANN < anns");
  EXPECT_NE(run("history --user Admin --company Acme.cmf").find("\tAnn\tCheck Print, A"), std::string::npos);
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
