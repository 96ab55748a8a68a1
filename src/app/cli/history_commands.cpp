#include <iostream>

#include "app/cli/commands.h"
#include "core/ledger/undo.h"
#include "core/store/history.h"
#include "core/values/control_characters.h"

namespace tallymere::cli {
namespace {

const char* Word_For(store::RowChange::Kind kind) {
  switch (kind) {
    case store::RowChange::Kind::Added:
      return "added";
    case store::RowChange::Kind::Changed:
      return "changed";
    case store::RowChange::Kind::Deleted:
      return "deleted";
  }
  return "";
}

void Show_Action(const store::Action& action) {
  std::cout << action.number << "\t" << in_one_plain_line(action.at) << "\t" << in_one_plain_line(action.user) << "\t"
            << in_one_plain_line(action.what) << (action.undoable ? "" : "\t(cannot be taken back)") << "\n";
}

}  // namespace

int History(Arguments& arguments) {
  CliSession cli(arguments);
  cli.open(arguments);
  auto number = arguments.maybe_number_word("history");
  int64_t limit = arguments.number("limit").value_or(50);
  arguments.finish();
  auto& db = *cli.session.dbCompany;
  if (!number) {
    for (const auto& action : store::List_Actions(db, limit)) Show_Action(action);
    return 0;
  }
  Show_Action(store::Find_Action(db, *number));
  for (const auto& change : store::Changes_Of(db, *number)) {
    std::cout << "  " << Word_For(change.kind) << " in " << in_one_plain_line(change.table) << "\n";
    for (const auto& cell : change.cells)
      std::cout << "    " << cell.field << ": " << in_one_plain_line(cell.before.text()) << " -> "
                << in_one_plain_line(cell.after.text()) << "\n";
  }
  return 0;
}

int Undo(Arguments& arguments) {
  CliSession cli(arguments);
  cli.open(arguments);
  auto number = arguments.maybe_number_word("undo");
  if (!number) throw Usage("missing: the number of an action (see history)");
  arguments.finish();
  Undo_Action(cli.session, *number);
  Show_Action(store::List_Actions(*cli.session.dbCompany, 1).at(0));
  return 0;
}

}  // namespace tallymere::cli
