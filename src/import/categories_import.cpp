#include "import/categories_import.h"

#include <algorithm>

#include "core/ledger/numbers.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

constexpr IifColumn Name{"NAME", 1}, Type{"ACCNTTYPE", 4}, Description{"DESC", 6}, Number{"ACCNUM", 7},
    Marker{"EXTRA", 10}, Hidden{"HIDDEN", 11};

constexpr std::array<std::pair<std::string_view, std::string_view>, 13> types = {{{"BANK", "Bank"},
                                                                                  {"OCASSET", "Current Asset"},
                                                                                  {"OASSET", "Current Asset"},
                                                                                  {"FIXASSET", "Fixed Asset"},
                                                                                  {"OCLIAB", "Current Liability"},
                                                                                  {"LTLIAB", "Long Term Liability"},
                                                                                  {"INC", "Income"},
                                                                                  {"EXP", "Expense"},
                                                                                  {"COGS", "Cost of Goods Sold"},
                                                                                  {"CCARD", "Credit Card"},
                                                                                  {"EXINC", "Other Income"},
                                                                                  {"EXEXP", "Other Expense"},
                                                                                  {"EQUITY", "Equity"}}};

std::string Type_Of(std::string_view given) {
  for (const auto& [theirs, ours] : types)
    if (same_text(theirs, given)) return std::string(ours);
  return "";
}

/// Every category's path, however deep, and whatever circles a file may hold.
std::map<std::string, std::string> Paths(store::Database& db) {
  struct Row {
    std::string name, parent;
  };
  std::map<std::string, Row> rows;
  db.each("SELECT CatID, AccountName, ParentAccount FROM Accounts", {}, [&](const store::Row& row) {
    rows[std::string(row.text(0))] = {std::string(row.text(1)), std::string(row.text(2))};
  });
  std::map<std::string, std::string> paths;
  for (const auto& [CatID, own] : rows) {
    std::string path = own.name;
    auto above = rows.find(own.parent);
    for (size_t deep = 0; above != rows.end() && deep < rows.size(); ++deep, above = rows.find(above->second.parent))
      path.insert(0, above->second.name + ":");
    paths.try_emplace(folded(path), CatID);
  }
  return paths;
}

}  // namespace

CategoryImport::CategoryImport(store::Database& company, ListRows& rows)
    : db_(company), rows_(rows), by_path_(Paths(company)) {}

std::string CategoryImport::find(const std::string& path) const {
  const auto found = by_path_.find(folded(path));
  return found == by_path_.end() ? "" : found->second;
}

/// "SS" before a number that no category ever had.
std::string CategoryImport::make(const std::string& path, const std::string& name) {
  const std::string id = Unused_CatID(db_);
  Note_CatID(db_, id);
  const std::string CatID = "SS" + id.substr(0, id.size() - 2);
  rows_.put("Accounts", {{"CatID", CatID}}, {{"AccountName", name}});
  by_path_[folded(path)] = CatID;
  return CatID;
}

CategoryImport::Done CategoryImport::put(const IifRecord& record, bool release_2003) {
  const auto cell = [&](const IifColumn& column) { return record.at(column, release_2003); };
  const std::string path = cell(Name), type = cell(Type), marker = cell(Marker);
  if (path.empty()) return {ImportDid::Skipped, "it has no name"};
  if (same_text(type, "AR")) receivable_.insert(folded(path));
  if (same_text(type, "AP")) payable_.insert(folded(path));
  if (same_text(marker, "UNDEPOSIT")) undeposited_.insert(folded(path));
  for (const char* own : {"OPENBAL", "INVENTORYASSET", "UNDEPOSIT"})
    if (same_text(marker, own)) return {ImportDid::Skipped, "every company has one of its own"};
  if (same_text(type, "AR") || same_text(type, "AP")) return {ImportDid::Skipped, "every company has one of its own"};
  if (same_text(type, "NONPOSTING")) return {ImportDid::Skipped, "nothing is posted to it"};
  const std::string AccountType = Type_Of(type);
  if (AccountType.empty()) return {ImportDid::Skipped, "there is no type \"" + type + "\""};
  if (same_text(path, "Retained Earnings")) return {ImportDid::Same};

  const size_t colon = path.rfind(':');
  const std::string parent_path = colon == std::string::npos ? "" : path.substr(0, colon);
  const std::string name = trim(colon == std::string::npos ? path : path.substr(colon + 1));
  const std::string parent = parent_path.empty() ? "" : find(parent_path);
  if (!parent_path.empty() && parent.empty()) return {ImportDid::Skipped, "there is no category " + parent_path};
  if (!parent.empty() && !same_text(rows_.look_up("Accounts", {"CatID", parent}, "AccountType"), AccountType))
    return {ImportDid::Skipped, "it is of another type than " + parent_path};
  std::string CatID = find(path);
  const bool stands = !CatID.empty();
  if (!stands) CatID = make(path, name);
  const std::string hidden = cell(Hidden);
  const ImportDid did = rows_.put("Accounts", {{"CatID", CatID}},
                                  {{"AccountName", name},
                                   {"ParentAccount", parent},
                                   {"AccountType", AccountType},
                                   {"Description", replace_all(cell(Description), "\\n", "\r\n")},
                                   {"AccountNum", cell(Number)},
                                   {"Dormant", hidden}});
  return {stands ? did : ImportDid::Added};
}

std::string CategoryImport::Map_Category(const std::string& name) {
  if (name.empty()) return "";
  for (const std::string& text : {name, replace_all(name, ".", "")}) {
    if (const std::string CatID = find(text); !CatID.empty()) return CatID;
    if (const std::string CatID = rows_.look_up("Accounts", {"AccountName", text}, "CatID"); !CatID.empty())
      return CatID;
  }
  const std::string asked = folded(name);
  if (payable_.contains(asked)) return "AP1";
  if (receivable_.contains(asked)) return "AR1";
  return undeposited_.contains(asked) ? "UF1" : "OE1";
}

std::string CategoryImport::Asset_Category(const std::string& name) {
  const std::string CatID = Map_Category(name);
  if (CatID != "OE1") return CatID;
  const std::string made = make(name, name);
  rows_.put("Accounts", {{"CatID", made}}, {{"AccountType", "Current Asset"}});
  return made;
}

}  // namespace tallymere
