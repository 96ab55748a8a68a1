#pragma once

#include <span>
#include <string_view>

#include "app/cli/arguments.h"
#include "app/cli/console.h"
#include "core/company/session.h"

namespace tallymere::cli {

struct Command {
  std::string_view name;
  std::string_view usage;
  std::string_view what;
  int (*run)(Arguments&);
};

/// Every command of the command line, in the order of the help.
std::span<const Command> Commands();

/// The program's folder: --folder, or where it normally is.
std::filesystem::path Folder_Of(Arguments& arguments);

/// A session of the command line on the program's folder (--folder), on today or --today.
struct CliSession {
  explicit CliSession(Arguments& arguments);
  /// Makes --company the current company, with its sets, once who calls has shown to be let in.
  void open(Arguments& arguments);
  /// One that was just made and asks nobody.
  void open(const std::filesystem::path& company);

  Console console;
  Session session;
};

// The commands themselves, by what they are about.
int New(Arguments& arguments);
int Demo(Arguments& arguments);
int Verify(Arguments& arguments);
int Figures(Arguments& arguments);
int Back_Up(Arguments& arguments);
int Restore(Arguments& arguments);
int Enter(Arguments& arguments);
int History(Arguments& arguments);
int Undo(Arguments& arguments);
int Report(Arguments& arguments);
int Form(Arguments& arguments);
int Print(Arguments& arguments);
int Write_Out(Arguments& arguments);
int Paycheck_Cases(Arguments& arguments);
int Tax_Tables(Arguments& arguments);
int Import(Arguments& arguments);

}  // namespace tallymere::cli
