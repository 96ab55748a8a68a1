#include "app/cli/commands.h"

#include <iostream>

#include "core/backup.h"
#include "core/balances.h"
#include "core/company.h"
#include "core/demo/demo.h"
#include "core/folder.h"
#include "core/format.h"
#include "core/program_folder.h"
#include "core/schema_doc.h"
#include "core/store/history.h"
#include "core/undo.h"
#include "core/verify.h"

namespace tallymere::cli {
namespace {

namespace fs = std::filesystem;

fs::path Folder_Of(Arguments& arguments) {
  fs::path folder = arguments.option("folder", "");
  return folder.empty() ? Program_Folder() : fs::absolute(folder);
}

Clock Clock_Of(Arguments& arguments) {
  auto today = arguments.date("today");
  return today ? Clock::standing_on(*today) : Clock::system();
}

fs::path Prepared(const fs::path& folder) {
  Prepare_Folder(folder, Shipped_Data());
  return folder;
}

void Refresh_Balances(Session& session) {
  session.RecalcAll = true;
  Update_Accounts(session);
  Update_Customers(session);
  Update_Vendors(session);
}

int New(Arguments& arguments) {
  CliSession cli(arguments);
  std::string name = arguments.word("a company name");
  arguments.finish();
  New_Company(cli.session, name);
  if (cli.session.LastCompanyError != 0) return 1;
  std::cout << Company_Path(cli.session, name).string() << "\n";
  return 0;
}

int Demo(Arguments& arguments) {
  CliSession cli(arguments);
  DemoOptions options{.today = cli.session.today()};
  options.name = arguments.maybe_word().value_or(options.name);
  options.years = static_cast<int>(arguments.number("years").value_or(options.years));
  options.transactions = arguments.number("transactions");
  options.seed = static_cast<uint32_t>(arguments.number("seed").value_or(options.seed));
  arguments.finish();
  if (options.years < 1 || options.years > 50) throw Usage("--years takes 1 to 50");
  New_Company(cli.session, options.name);
  if (cli.session.LastCompanyError != 0) return 1;
  cli.open(Company_Path(cli.session, options.name));
  Write_Demo_Company(cli.session, options);
  Refresh_Balances(cli.session);
  auto& db = *cli.session.dbCompany;
  std::cout << cli.session.CompanyPath << ": "
            << db.value("SELECT COUNT(DISTINCT TransNum) FROM Transactions").integer() << " transactions, "
            << db.value("SELECT COUNT(*) FROM Transactions").integer() << " rows\n";
  return 0;
}

int Verify(Arguments& arguments) {
  CliSession cli(arguments);
  cli.open(arguments);
  arguments.finish();
  auto findings = Verify_Company(*cli.session.dbCompany);
  for (const Finding& finding : findings) std::cout << finding.check << ": " << finding.what << "\n";
  if (findings.empty()) std::cout << "All is well.\n";
  return findings.empty() ? 0 : 1;
}

int Figures(Arguments& arguments) {
  CliSession cli(arguments);
  cli.open(arguments);
  arguments.finish();
  Refresh_Balances(cli.session);
  auto& db = *cli.session.dbCompany;
  std::cout << cli.session.CompanyFile << ", " << cli.session.today().to_text() << "\n"
            << db.value("SELECT COUNT(DISTINCT TransNum) FROM Transactions").integer() << " transactions\n\n";
  db.each("SELECT AccountType, AccountName, Balance FROM Accounts WHERE Balance <> 0 AND Dormant = False"
          " ORDER BY AccountType, AccountName",
          {}, [](const store::Row& row) {
            std::string amount = Format(row.money(2), "###,###,##0.00");
            std::cout << amount.insert(0, amount.size() < 16 ? 16 - amount.size() : 0, ' ') << "  " << row.text(1) << " ("
                      << row.text(0) << ")\n";
          });
  return 0;
}

int Back_Up(Arguments& arguments) {
  CliSession cli(arguments);
  cli.open(arguments);
  std::string out = arguments.option("out");
  arguments.finish();
  fs::path file = Backup_File_Name(out);
  Write_Backup(*cli.session.dbCompany, file);
  std::cout << file.string() << "\n";
  return 0;
}

int Restore(Arguments& arguments) {
  CliSession cli(arguments);
  fs::path backup = arguments.option("backup");
  fs::path company = fs::absolute(arguments.option("company"));
  arguments.finish();
  if (fs::exists(company)) cli.open(company);
  Restore_Company(cli.session, backup, company);
  std::cout << company.string() << "\n";
  return 0;
}

const char* Word_For(store::RowChange::Kind kind) {
  switch (kind) {
    case store::RowChange::Kind::Added: return "added";
    case store::RowChange::Kind::Changed: return "changed";
    case store::RowChange::Kind::Deleted: return "deleted";
  }
  return "";
}

void Show_Action(const store::Action& action) {
  std::cout << action.number << "\t" << action.at << "\t" << action.user << "\t" << action.what
            << (action.undoable ? "" : "\t(cannot be taken back)") << "\n";
}

int History(Arguments& arguments) {
  CliSession cli(arguments);
  cli.open(arguments);
  auto number = arguments.maybe_word();
  int64_t limit = arguments.number("limit").value_or(50);
  arguments.finish();
  auto& db = *cli.session.dbCompany;
  if (!number) {
    for (const auto& action : store::List_Actions(db, limit)) Show_Action(action);
    return 0;
  }
  int64_t wanted = store::Value(*number).integer();
  Show_Action(store::Find_Action(db, wanted));
  for (const auto& change : store::Changes_Of(db, wanted)) {
    std::cout << "  " << Word_For(change.kind) << " in " << change.table << "\n";
    for (const auto& cell : change.cells)
      std::cout << "    " << cell.field << ": " << cell.before.text() << " -> " << cell.after.text() << "\n";
  }
  return 0;
}

int Undo(Arguments& arguments) {
  CliSession cli(arguments);
  cli.open(arguments);
  int64_t number = store::Value(arguments.word("the number of an action (see history)")).integer();
  arguments.finish();
  Undo_Action(*cli.session.dbCompany, number);
  Show_Action(store::List_Actions(*cli.session.dbCompany, 1).at(0));
  return 0;
}

int Schema(Arguments& arguments) {
  arguments.finish();
  std::cout << Schema_Document();
  return 0;
}

constexpr Command commands[] = {
    {"new", "new NAME [--folder DIR]", "makes a new company in the program's folder", New},
    {"demo", "demo [NAME] [--years N] [--transactions N] [--seed N] [--today m/d/yyyy] [--folder DIR]",
     "makes a company with years of realistic books; the same words give the same company", Demo},
    {"enter", "enter --company FILE --name PAYEE --from BANK --to CATEGORY=AMOUNT[,...] [--number N] [--date m/d/yyyy]"
     " [--memo TEXT] [--times N]",
     "writes a check, or the same one several times; each number is told once it is safely kept", Enter},
    {"verify", "verify --company FILE", "checks the whole of the books and the file; exit 1 with what is wrong", Verify},
    {"figures", "figures --company FILE", "the balances of the company's categories", Figures},
    {"backup", "backup --company FILE --out FILE.cbk", "writes a backup of the company as it stands", Back_Up},
    {"restore", "restore --backup FILE.cbk --company FILE", "puts a backup in a company's place, once it has proved sound",
     Restore},
    {"history", "history [NUMBER] --company FILE [--limit N]",
     "who did what and when, newest first; with a number its rows before and after", History},
    {"undo", "undo NUMBER --company FILE", "takes an action back whole, or says what later work stands on it", Undo},
    {"schema", "schema", "the tables, fields and indexes of a company, as docs/schema.md shows them", Schema},
};

}  // namespace

std::span<const Command> Commands() { return commands; }

CliSession::CliSession(Arguments& arguments)
    : session(Prepared(Folder_Of(arguments)), Clock_Of(arguments), console) {
  Main(session);
}

void CliSession::open(Arguments& arguments) { open(fs::absolute(arguments.option("company"))); }

void CliSession::open(const fs::path& company) {
  Open_Company_File(session, company);
  Set_Recordsets(session);
}

}  // namespace tallymere::cli
