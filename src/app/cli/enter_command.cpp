#include <iostream>

#include "app/cli/commands.h"
#include "core/ledger/ledger.h"
#include "core/ledger/transaction_writer.h"
#include "core/values/text.h"

namespace tallymere::cli {
namespace {

struct Line {
  std::string category;
  Money amount;
};

/// A category by its id or by its name.
std::string Category_Of(Session& session, const std::string& named) {
  auto id = session.dbCompany->value(
      "SELECT CatID FROM Accounts WHERE CatID = ? OR AccountName = ? ORDER BY CatID = ? DESC", {named, named, named});
  if (id.blank()) throw std::runtime_error("there is no category \"" + named + "\"");
  return id.text();
}

/// "Rent=100,Office Supplies=25.50"
std::vector<Line> Lines_Of(Session& session, const std::string& text) {
  std::vector<Line> lines;
  for (const std::string& part : split(text, ",")) {
    size_t at = part.find('=');
    auto amount = at == std::string::npos ? std::nullopt : Money::parse(part.substr(at + 1));
    if (!amount) throw Usage("a line reads CATEGORY=AMOUNT, not \"" + part + "\"");
    if (*amount <= Money()) throw Usage("an amount is more than nothing, not \"" + part + "\"");
    lines.push_back({Category_Of(session, trim(part.substr(0, at))), *amount});
  }
  return lines;
}

int64_t Enter_One(Session& session, const TransactionHead& head, const std::string& bank,
                  const std::vector<Line>& lines, const std::string& memo) {
  Transaction_Writer rows(session, head);
  Money total;
  for (const Line& line : lines) total += line.amount;
  std::vector<std::string> postable;
  for (const Line& line : lines) postable.push_back(Get_Postable_Category(session, line.category));
  rows.add({.Account = bank,
            .Category = lines.size() > 1 ? std::string(break_down) : postable[0],
            .Credit = total,
            .Amount = total,
            .Memo = memo});
  for (size_t at = 0; at < lines.size(); ++at)
    rows.add({.Account = postable[at], .Category = bank, .Debit = lines[at].amount, .Amount = lines[at].amount});
  rows.commit();
  return rows.number();
}

/// Not a letter of it before it is safe, for a save that fails must not look like one; and none goes untold.
void Tell_Saved(int64_t number) {
  std::cout << "saved " << number << std::endl;
  if (!std::cout)
    throw std::runtime_error("transaction " + std::to_string(number) + " is saved, but that cannot be told");
}

}  // namespace

int Enter(Arguments& arguments) {
  CliSession cli(arguments);
  cli.open(arguments);
  Session& session = cli.session;
  TransactionHead head{.Type = "Check", .Date = arguments.date("date").value_or(session.today())};
  head.Name = arguments.option("name");
  head.Number = arguments.option("number", "Print");
  std::string memo = arguments.option("memo", "");
  std::string bank = Category_Of(session, arguments.option("from"));
  auto lines = Lines_Of(session, arguments.option("to"));
  int64_t times = arguments.number("times").value_or(1);
  arguments.finish();
  for (int64_t done = 0; done < times; ++done) Tell_Saved(Enter_One(session, head, bank, lines, memo));
  return 0;
}

}  // namespace tallymere::cli
