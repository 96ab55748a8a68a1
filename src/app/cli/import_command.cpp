#include <fstream>
#include <iostream>

#include "app/cli/commands.h"
#include "core/company/users.h"
#include "core/ledger/balances.h"
#include "core/values/control_characters.h"
#include "import/lists_import.h"

namespace tallymere::cli {
namespace {

void Tell(const ImportReport& report) {
  for (const ImportLine& line : report.lines)
    if (!line.why.empty())
      std::cout << "line " << line.line << ": " << Name_Of(line.kind) << ", " << in_one_plain_line(line.name) << ": "
                << in_one_plain_line(line.why) << "\n";
  for (const auto& [key, count] : report.unknown)
    std::cout << count << " lines of kind " << in_one_plain_line(key) << " mean nothing here\n";
  std::cout << "read " << report.lines.size() << " = added " << report.count(ImportDid::Added) << " + changed "
            << report.count(ImportDid::Changed) << " + same " << report.count(ImportDid::Same) << " + skipped "
            << report.count(ImportDid::Skipped) << "\n";
}

}  // namespace

int Import(Arguments& arguments) {
  const std::string file = arguments.word("the file to import");
  const bool dry = arguments.is_set("dry-run"), release_2003 = arguments.is_set("2003");
  CliSession cli(arguments);
  cli.open(arguments);
  arguments.finish();
  if (!May_Use(cli.session, "mnuImport"))
    throw std::runtime_error("An import is not among the rights of " + cli.session.CurrentUser + ".");
  std::ifstream in(file, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + file);
  const IifFile lists = Read_Iif(std::string{std::istreambuf_iterator<char>(in), {}});
  const ImportReport report = Import_Lists(cli.session, lists, {.release_2003 = release_2003, .keep = !dry});
  if (!dry) Update_Accounts(cli.session);
  Tell(report);
  return 0;
}

}  // namespace tallymere::cli
