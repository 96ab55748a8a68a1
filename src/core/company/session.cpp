#include "core/company/session.h"

#include <pwd.h>
#include <unistd.h>

namespace tallymere {
namespace {

std::string Logged_In_Person() {
  const passwd* entry = getpwuid(getuid());
  return entry ? entry->pw_name : "";
}

}  // namespace

Session::Session(std::filesystem::path program_folder, Clock session_clock, Prompts& session_prompts)
    : folder(std::move(program_folder)),
      clock(session_clock),
      prompts(session_prompts),
      log(folder, clock),
      logged_in_person_(Logged_In_Person()) {}

Session::~Session() = default;

std::string Session::acting_user() const { return CurrentUser.empty() ? logged_in_person_ : CurrentUser; }

}  // namespace tallymere
