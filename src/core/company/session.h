#pragma once

#include <array>
#include <filesystem>
#include <memory>
#include <string>

#include "core/company/log.h"
#include "core/company/prompts.h"
#include "core/company/record_sets.h"
#include "core/store/database.h"
#include "core/values/clock.h"
#include "core/values/number_words.h"

namespace tallymere {

/// What holds for the running program. Passed by reference; a test may hold two sessions on one company: two users.
struct Session {
  Session(std::filesystem::path program_folder, Clock session_clock, Prompts& session_prompts);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  Date today() const { return clock.today(); }
  bool company_open() const { return !CompanyPath.empty(); }
  std::string acting_user() const;  ///< CurrentUser, or who is logged in to the machine: the history's "who"

  const std::filesystem::path folder;  ///< "the program's folder": databases, log, new companies
  Clock clock;
  Prompts& prompts;
  Log log;

  std::unique_ptr<store::Database> dbAccounts;  ///< Accounts.mdb, from the first moment to the last
  std::unique_ptr<store::Database> dbCompany;   ///< the current company, or nothing
  std::string CompanyPath;                      ///< empty while no company is open; every test of it is made here
  std::string CompanyFile;                      ///< file name with ".cmf"
  bool MultiUser = false;
  std::string CurrentUser;   ///< empty in single-user mode
  bool unattended = false;   ///< the program itself is at work, for everybody: a user's rights do not count
  int LastCompanyError = 0;  ///< what New_Company last met
  RecordSets sets;
  NumberWords words;

 private:
  std::string logged_in_person_;
};

}  // namespace tallymere
