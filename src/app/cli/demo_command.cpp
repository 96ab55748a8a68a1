#include <iostream>

#include "app/cli/commands.h"
#include "core/company/company.h"
#include "core/ledger/balances.h"
#include "demo/demo.h"

namespace tallymere::cli {

int Demo(Arguments& arguments) {
  CliSession cli(arguments);
  std::string name = arguments.word("a company name");
  int64_t years = arguments.number("years").value_or(3);
  if (years < 1 || years > 50) throw Usage("--years: from 1 to 50");
  DemoOptions options{.name = name,
                      .years = static_cast<int>(years),
                      .transactions = arguments.number("transactions"),
                      .seed = static_cast<uint32_t>(arguments.number("seed").value_or(1)),
                      .today = cli.session.today()};
  arguments.finish();
  New_Company(cli.session, options.name);
  if (cli.session.LastCompanyError != 0) return 1;
  cli.open(Company_Path(cli.session, options.name));
  Write_Demo_Company(cli.session, options);
  Update_Accounts(cli.session);
  Update_Customers(cli.session);
  Update_Vendors(cli.session);
  std::cout << cli.session.CompanyPath << "\n";
  return 0;
}

}  // namespace tallymere::cli
