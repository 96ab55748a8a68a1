#include <fstream>
#include <iostream>

#include "app/cli/commands.h"
#include "core/company/folder.h"
#include "payroll/pay_cases.h"
#include "payroll/taxtables/replies.h"

namespace tallymere::cli {
namespace {

std::string Text_Of(const std::string& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + file);
  return {std::istreambuf_iterator<char>(in), {}};
}

PayItems Items_Of(CliSession& cli, Arguments& arguments) {
  if (!arguments.option("company", "").empty()) {
    cli.open(arguments);
    return PayItems::Read(*cli.session.dbCompany);
  }
  return Standard_Items(*Open_Current(cli.session.folder / "Model.mdb", store::FileKind::Model));
}

}  // namespace

int Paycheck_Cases(Arguments& arguments) {
  CliSession cli(arguments);
  const std::string cases = arguments.option("cases"), extra = arguments.option("items", "");
  PayItems items = Items_Of(cli, arguments);
  arguments.finish();
  if (!extra.empty()) Add_Items(items, Text_Of(extra), extra);
  PayCaseBooks books{std::make_shared<const PayItems>(std::move(items)), TaxTables::Of(*cli.session.dbAccounts)};
  if (cli.session.dbCompany) books.rule = Posting_Rule(*cli.session.dbCompany);
  std::cout << Calculate_Cases(Text_Of(cases), cases, books);
  return 0;
}

int Tax_Tables(Arguments& arguments) {
  CliSession cli(arguments);
  const std::string folder = arguments.option("load");
  arguments.finish();
  const auto loaded = Load_Tax_Folder(*cli.session.dbAccounts, folder, cli.session.today());
  if (loaded.empty()) throw std::runtime_error("there are no tax tables in " + folder);
  for (const std::string& table : loaded) std::cout << "loaded " << table << "\n";
  return 0;
}

}  // namespace tallymere::cli
