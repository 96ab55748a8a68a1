#include <iostream>

#include "app/cli/commands.h"
#include "core/backup/restore.h"
#include "core/company/company.h"
#include "core/ledger/balances.h"
#include "core/ledger/verify.h"
#include "core/values/control_characters.h"
#include "core/values/format.h"

namespace tallymere::cli {

namespace fs = std::filesystem;

namespace {

void Refresh_Balances(Session& session) {
  Update_Accounts(session);
  Update_Customers(session);
  Update_Vendors(session);
}

}  // namespace

int New(Arguments& arguments) {
  CliSession cli(arguments);
  std::string name = arguments.word("a company name");
  arguments.finish();
  New_Company(cli.session, name);
  if (cli.session.LastCompanyError != 0) return 1;
  std::cout << Company_Path(cli.session, name).string() << "\n";
  return 0;
}

int Verify(Arguments& arguments) {
  CliSession cli(arguments);
  cli.open(arguments);
  arguments.finish();
  auto findings = Verify_Company(*cli.session.dbCompany);
  for (const Finding& finding : findings) std::cout << in_one_plain_line(finding.check + ": " + finding.what) << "\n";
  if (const std::string note = Sold_Parts_Note(*cli.session.dbCompany); !note.empty()) std::cout << note << "\n";
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
  db.each(
      "SELECT AccountType, AccountName, Balance FROM Accounts WHERE Balance <> 0 AND Dormant = False"
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
  // Who names the company has been asked; what stands there now need not open any more.
  Restore_Company(cli.session, {.backup = backup, .target = company, .ask = false});
  std::cout << company.string() << "\n";
  return 0;
}

}  // namespace tallymere::cli
