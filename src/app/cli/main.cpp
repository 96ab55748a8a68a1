// tallymere-cli: the program's logic without windows, for scripts and servers.
// Exit codes: 0 done, 1 refused or failed (the reason is on the error stream), 2 the call's words are off.

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <iostream>

#include "app/cli/commands.h"
#include "core/store/error.h"
#include "core/values/control_characters.h"

namespace {

using namespace tallymere::cli;

int Help(std::ostream& out) {
  out << "tallymere-cli COMMAND ...\n\n";
  for (const Command& command : Commands()) out << "  " << command.usage << "\n      " << command.what << "\n";
  out << "\n--folder DIR names the program's folder (databases, log, new companies); normally it is found.\n"
         "--today m/d/yyyy is the day the program stands on; normally it is today.\n"
         "--user NAME says who works in a company that has users. A password, the company's or the user's, is read\n"
         "from the first line of standard input, or of the descriptor --password-fd N; it is never part of the call.\n";
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
    std::cerr << "error " << fault.number << ": " << tallymere::in_one_plain_line(fault.description()) << "\n";
  } catch (const std::exception& fault) {
    std::cerr << "error: " << tallymere::in_one_plain_line(fault.what()) << "\n";
  }
  return 1;
}

int Run(const std::vector<std::string>& given) {
  if (given.empty()) return Help(std::cerr);
  if (given[0] == "help" || given[0] == "--help") return Help(std::cout);
  for (const Command& command : Commands())
    if (given[0] == command.name) return Run(command, {given.begin() + 1, given.end()});
  std::cerr << "tallymere-cli: no such command: " << given[0] << "\n";
  return 2;
}

/// A standard stream that the caller closed stays unusable: else the next file opened, a company perhaps, would get its
/// number and what is said would be written into it.
void Hold_Standard_Streams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    if (fcntl(stream, F_GETFD) == -1) open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
}

}  // namespace

int main(int count, char** words) {
  Hold_Standard_Streams();
  // A reader that went or a file that may not grow is a fault to tell of, not an end.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  const int done = Run({words + 1, words + count});
  if (std::cout.flush() || done != 0) return done;
  std::cerr << "error: what there is to say could not be written\n";
  return 1;
}
