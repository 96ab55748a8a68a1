#include "app/cli/commands.h"

#include <iostream>

#include "app/cli/let_in.h"
#include "core/company/company.h"
#include "core/company/folder.h"
#include "core/company/program_folder.h"
#include "core/company/schema_doc.h"

namespace tallymere::cli {
namespace {

namespace fs = std::filesystem;

Clock Clock_Of(Arguments& arguments) {
  auto today = arguments.date("today");
  return today ? Clock::standing_on(*today) : Clock::system();
}

fs::path Prepared(const fs::path& folder) {
  Prepare_Folder(folder, Shipped_Data());
  return folder;
}

int Schema(Arguments& arguments) {
  arguments.finish();
  std::cout << Schema_Document();
  return 0;
}

constexpr Command commands[] = {
    {"new", "new NAME [--folder DIR]", "makes a new company in the program's folder", New},
    {"demo", "demo NAME [--years N] [--transactions N] [--seed N] [--today m/d/yyyy]",
     "makes a company with years of business in it, as small or large as told", Demo},
    {"enter",
     "enter --company FILE --name PAYEE --from BANK --to CATEGORY=AMOUNT[,...] [--number N] [--date m/d/yyyy]"
     " [--memo TEXT] [--times N]",
     "writes a check, or the same one several times; each number is told once it is safely kept", Enter},
    {"verify", "verify --company FILE", "checks the whole of the books and the file; exit 1 with what is wrong",
     Verify},
    {"figures", "figures --company FILE", "the balances of the company's categories", Figures},
    {"report",
     "report [KEY --company FILE [--range NAME] [--from m/d/yyyy] [--to m/d/yyyy] [--basis cash|accrual] [--title TEXT]"
     " [--fields LIST] [--empty hide] [--category ID] [--name NAME] [--item NAME] [--format text|csv|xlsx|pdf] [--out FILE]]",
     "a report of the company's books; without a key, the keys there are", Report},
    {"form", "form [KEY --company FILE --year Y [--quarter N] [--out FILE.pdf|FILE.csv]]",
     "a tax form as the company's books make it; without a key, the forms there are", Form},
    {"print",
     "print KIND --company FILE --number N --out FILE.pdf  (or --key N; for statement, --name CUSTOMER or all who owe)",
     "a check, invoice, statement, po, estimate or slip as it is printed", Print},
    {"layout", "layout [NAME]",
     "puts the drawing of a printed layout into the program folder's layouts, to be changed with any drawing program;"
     " without a name, the layouts there are",
     Write_Out},
    {"paycheck", "paycheck --cases FILE.tsv [--items FILE.tsv] [--company FILE]",
     "calculates paychecks on paper: one case a line, every row of every grid comes out", Paycheck_Cases},
    {"taxtables", "taxtables --load DIR", "replaces tax tables by DIR/Table.tsv, all of them or none", Tax_Tables},
    {"import", "import FILE.iif --company FILE [--dry-run] [--2003]",
     "brings the lists of another program's export in, all or nothing, and says what became of every line", Import},
    {"backup", "backup --company FILE --out FILE.cbk", "writes a backup of the company as it stands", Back_Up},
    {"restore", "restore --backup FILE.cbk --company FILE",
     "puts a backup in a company's place, once it has proved sound", Restore},
    {"history", "history [NUMBER] --company FILE [--limit N]",
     "who did what and when, newest first; with a number its rows before and after", History},
    {"undo", "undo NUMBER --company FILE", "takes an action back whole, or says what later work stands on it", Undo},
    {"schema", "schema", "the tables, fields and indexes of a company, as docs/schema.md shows them", Schema},
};

}  // namespace

fs::path Folder_Of(Arguments& arguments) {
  fs::path folder = arguments.option("folder", "");
  return folder.empty() ? Program_Folder() : fs::absolute(folder);
}

std::span<const Command> Commands() { return commands; }

CliSession::CliSession(Arguments& arguments) : session(Prepared(Folder_Of(arguments)), Clock_Of(arguments), console) {
  Main(session);
}

void CliSession::open(Arguments& arguments) {
  Open_Company_File(session, fs::absolute(arguments.option("company")));
  Let_In(session, arguments);
  Set_Recordsets(session);
}

void CliSession::open(const fs::path& company) {
  Open_Company_File(session, company);
  Set_Recordsets(session);
}

}  // namespace tallymere::cli
