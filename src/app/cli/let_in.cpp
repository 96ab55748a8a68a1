#include "app/cli/let_in.h"

#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <iostream>

#include "core/company/login.h"

namespace tallymere::cli {
namespace {

/// What is typed is not shown, while this lives.
class Unseen {
 public:
  explicit Unseen(int terminal) : terminal_(terminal) {
    tcgetattr(terminal_, &before_);
    termios quiet = before_;
    quiet.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    tcsetattr(terminal_, TCSAFLUSH, &quiet);
    std::cerr << "Password: " << std::flush;
  }
  ~Unseen() {
    tcsetattr(terminal_, TCSAFLUSH, &before_);
    std::cerr << "\n";
  }
  Unseen(const Unseen&) = delete;
  Unseen& operator=(const Unseen&) = delete;

 private:
  int terminal_;
  termios before_{};
};

/// Byte by byte: what follows the line is not ours.
std::optional<std::string> First_Line(int from) {
  constexpr size_t longest = 4096;
  std::string line;
  for (char c = 0; line.size() < longest;) {
    const ssize_t got = read(from, &c, 1);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0 || (got == 0 && line.empty())) return std::nullopt;
    if (got == 0 || c == '\n') break;
    line += c;
  }
  if (line.ends_with('\r')) line.pop_back();
  return line;
}

std::string Password(int from) {
  std::optional<Unseen> unseen;
  if (isatty(from)) unseen.emplace(from);
  if (auto line = First_Line(from)) return *line;
  throw std::runtime_error("the company asks for a password: give it on standard input, or with --password-fd");
}

}  // namespace

void Let_In(Session& session, Arguments& arguments) {
  const std::string user = arguments.option("user", "");
  const int from = static_cast<int>(arguments.number("password-fd").value_or(STDIN_FILENO));
  store::Database& company = *session.dbCompany;
  const Entrance entrance = Entrance_Of(company);
  if (entrance == Entrance::Free) return;
  if (entrance == Entrance::Password) {
    if (!Is_Company_Password(company, Password(from))) throw std::runtime_error("Incorrect Password");
    return;
  }
  if (user.empty()) throw std::runtime_error("Please enter a User name. (--user NAME)");
  auto accepted = Accepted_User(company, user, "");  // one without a password is not asked for it
  if (!accepted) accepted = Accepted_User(company, user, Password(from));
  if (!accepted) throw std::runtime_error("Invlaid Login");
  Enter_As(session, accepted);
}

}  // namespace tallymere::cli
