// tallymere-cli: the program's logic without windows, for scripts and servers.
// Exit codes: 0 done, 1 refused or failed (the reason is on the error stream), 2 the call's words are off.

#include <iostream>

#include "app/cli/commands.h"
#include "core/store/error.h"

namespace {

using namespace tallymere::cli;

int Help(std::ostream& out) {
  out << "tallymere-cli COMMAND ...\n\n";
  for (const Command& command : Commands()) out << "  " << command.usage << "\n      " << command.what << "\n";
  out << "\n--folder DIR names the program's folder (databases, log, new companies); normally it is found.\n"
         "--today m/d/yyyy is the day the program stands on; normally it is today.\n";
  return &out == &std::cerr ? 2 : 0;
}

int Run(const Command& command, const std::vector<std::string>& words) {
  if (words == std::vector<std::string>{"--help"}) {
    std::cout << "usage: tallymere-cli " << command.usage << "\n    " << command.what << "\n";
    return 0;
  }
  try {
    Arguments arguments(words);
    return command.run(arguments);
  } catch (const Usage& fault) {
    std::cerr << "tallymere-cli " << command.name << ": " << fault.what() << "\nusage: tallymere-cli " << command.usage
              << "\n";
    return 2;
  } catch (const tallymere::store::Error& fault) {
    std::cerr << "error " << fault.number << ": " << fault.what() << "\n";
  } catch (const std::exception& fault) {
    std::cerr << "error: " << fault.what() << "\n";
  }
  return 1;
}

}  // namespace

int main(int count, char** words) {
  std::vector<std::string> given(words + 1, words + count);
  if (given.empty()) return Help(std::cerr);
  if (given[0] == "help" || given[0] == "--help") return Help(std::cout);
  for (const Command& command : Commands())
    if (given[0] == command.name) return Run(command, {given.begin() + 1, given.end()});
  std::cerr << "tallymere-cli: no such command: " << given[0] << "\n";
  return 2;
}
