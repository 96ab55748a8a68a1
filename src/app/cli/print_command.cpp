#include <algorithm>
#include <iostream>

#include "app/cli/commands.h"
#include "app/cli/painter.h"
#include "core/backup/whole_file.h"
#include "core/values/text.h"
#include "printing/documents.h"

namespace tallymere::cli {

namespace {

/// What can be printed by its number: how its key is found, and how it is filled.
struct PrintKind {
  std::string_view name;
  const char* keys;  ///< the keys of the documents that bear a number
  PrintedDocument (*fill)(Session&, int64_t);
};
constexpr PrintKind kinds[] = {
    {"check",
     "SELECT DISTINCT TransNum FROM Transactions WHERE Number = ? AND Type IN ('Check', 'Liabilitycheck', 'Paycheck', "
     "'Billcheck')",
     Print_Check},
    {"invoice", "SELECT DISTINCT TransNum FROM Transactions WHERE Number = ? AND Type = 'Invoice'", nullptr},
    {"po", "SELECT Index FROM POs WHERE PONumber = ?", Print_Purchase_Order},
    {"estimate", "SELECT Index FROM Estimates WHERE EstimateNumber = ?", Print_Estimate},
    {"slip", "SELECT Index FROM PSlips WHERE PONumber = ?", Print_Slip},
};

/// On the paper that the company's preference chooses.
PrintedDocument Chosen_Invoice(Session& session, int64_t TransNum) {
  return Invoice_Viewer(session) == "frmPrintInvoiceLetter" ? Print_Invoice_Letter(session, TransNum)
                                                            : Print_Invoice(session, TransNum);
}

/// The key of the one document that bears a number.
int64_t Key_Of(Session& session, const PrintKind& kind, const std::string& number) {
  std::vector<std::string> keys;
  session.dbCompany->each(kind.keys, {number},
                          [&](const store::Row& row) { keys.push_back(std::to_string(row.integer(0))); });
  if (keys.empty()) throw std::runtime_error("there is no " + std::string(kind.name) + " " + number);
  if (keys.size() > 1)
    throw std::runtime_error("several bear the number " + number + ": name one by --key " + join(keys, ", --key "));
  return std::stoll(keys.front());
}

PrintedDocument One_Document(Session& session, const PrintKind& kind, int64_t key) {
  PrintedDocument document = (kind.fill ? kind.fill : Chosen_Invoice)(session, key);
  if (document.layouts.empty())
    throw std::runtime_error("there is no " + std::string(kind.name) + " under the key " + std::to_string(key));
  return document;
}

PrintedDocument Statements(Session& session, const std::string& customer) {
  PrintedDocument document = customer.empty() ? Print_Statements(session, session.today())
                                              : Print_Statement(session, {customer}, session.today());
  if (document.layouts.empty()) throw std::runtime_error("no customer owes anything");
  return document;
}

int List_Layouts(const LayoutPlaces& places) {
  for (const LayoutDef& layout : Layout_Defs()) {
    std::string line(layout.name);
    line.resize(std::max<size_t>(line.size() + 2, 20), ' ');
    line += layout.caption;
    if (std::filesystem::exists(places.own_file(layout.name))) line += "  (your own is used)";
    std::cout << line << "\n";
  }
  return 0;
}

}  // namespace

int Print(Arguments& arguments) {
  const std::string word = arguments.word("what to print");
  const auto kind = std::ranges::find(kinds, word, &PrintKind::name);
  const bool statement = word == "statement";
  if (kind == std::end(kinds) && !statement)
    throw Usage("no such document: " + word + " (check, invoice, statement, po, estimate, slip)");
  CliSession cli(arguments);
  const std::string out = arguments.option("out");
  const std::string customer = statement ? arguments.option("name", "") : "";
  const int64_t key = statement ? -1 : arguments.number("key").value_or(-1);
  const std::string number = statement || key >= 0 ? "" : arguments.option("number");
  cli.open(arguments);
  Refuse_Output(out);
  arguments.finish();
  PrintedDocument document =
      statement ? Statements(cli.session, customer)
                : One_Document(cli.session, *kind, key >= 0 ? key : Key_Of(cli.session, *kind, number));
  LayoutFile file{std::move(document.title), Layout_Places(cli.session.folder), std::move(document.layouts)};
  Paint(cli.session, out, [&](std::ostream& handed) { Write_Layout_File(file, handed); });
  return 0;
}

int Write_Out(Arguments& arguments) {
  const auto name = arguments.maybe_word();
  const LayoutPlaces places = Layout_Places(Folder_Of(arguments));
  arguments.finish();
  if (!name) return List_Layouts(places);
  const auto file = Write_Out_Layout(places, *name);
  std::cout << file.string() << "\n";
  return 0;
}

}  // namespace tallymere::cli
