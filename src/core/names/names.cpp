#include "core/names/names.h"

#include <algorithm>
#include <array>

#include "core/company/schema.h"
#include "core/names/name_links.h"
#include "core/store/sql.h"
#include "core/values/caseless.h"
#include "core/values/format.h"

namespace tallymere {
namespace {

using store::Database;
using store::Quoted;

std::string Where_Named(Session& session, const NameLink& link, const std::string& name) {
  std::string condition = " WHERE " + Quoted(link.field) + " = ?";
  if (!link.condition.empty()) condition += " AND " + std::string(link.condition);
  if (link.payee) condition += Payee_Condition(*session.dbCompany, link.of, name);
  return condition;
}

/// The tables of a link: itself, or of one that is made on demand all there are.
std::vector<std::string> Tables_Of(Database& db, const NameLink& link) {
  const TableDef* schema = find_table(link.table);
  if (!schema->on_demand) return {std::string(link.table)};
  std::vector<std::string> tables;
  for (const store::TableDef& table : db.TableDefs())
    if (find_table(table.name) == schema) tables.push_back(table.name);
  return tables;
}

int64_t Count(Session& session, const NameLink& link, const std::string& name) {
  const bool ledger = link.table == "Transactions";
  int64_t count = 0;
  for (const std::string& table : Tables_Of(*session.dbCompany, link))
    count += session.dbCompany
                 ->value(std::string("SELECT COUNT(") + (ledger ? "DISTINCT TransNum" : "*") + ") FROM " +
                             Quoted(table) + Where_Named(session, link, name),
                         {name})
                 .integer();
  return count;
}

int64_t Rows_Named(Database& db, NameList list, const std::string& name) {
  const NameTable& table = Table_Of(list);
  return db.value("SELECT COUNT(*) FROM " + Quoted(table.table) + " WHERE " + Quoted(table.field) + " = ?", {name})
      .integer();
}

void Carry_Over(Session& session, const NameLink& link, const std::string& from, const std::string& to) {
  Database& db = *session.dbCompany;
  for (const std::string& table : Tables_Of(db, link))
    db.Execute("UPDATE " + Quoted(table) + " SET " + Quoted(link.field) + " = ?" + Where_Named(session, link, from),
               {to, from});
}

void Delete_Own(Database& db, const NameLink& link, const std::string& name) {
  db.Execute("DELETE FROM " + Quoted(link.table) + " WHERE " + Quoted(link.field) + " = ?", {name});
}

Money Balance_Of(Database& db, NameList list, const std::string& name) {
  if (list != NameList::Customers && list != NameList::Vendors) return {};
  return db.value("SELECT Balance FROM " + Quoted(Table_Of(list).table) + " WHERE Name = ?", {name}).money();
}

std::optional<std::string> Why_Not(Session& session, NameList list, const std::string& name) {
  Database& db = *session.dbCompany;
  if (Rows_Named(db, list, name) > 1) return std::nullopt;  // all that names it keeps the other row
  std::string why;
  if (const auto uses = Used_In(session, list, name); !uses.empty()) why = "it is used in " + Spoken(uses);
  const Money balance = Balance_Of(db, list, name);
  if (!balance.is_zero())
    why += (why.empty() ? "it has a balance of " : " and has a balance of ") + Dollar_Text(balance);
  return why.empty() ? std::nullopt : std::optional(why);
}

}  // namespace

std::vector<NameUse> Used_In(Session& session, NameList list, const std::string& name) {
  std::vector<NameUse> uses;
  if (name.empty()) return uses;
  for (const NameLink& link : Name_Links()) {
    if (link.of != list || link.hold == NameLink::Owned) continue;
    const int64_t count = Count(session, link, name);
    if (count == 0) continue;
    const auto same = std::ranges::find(uses, link.word, &NameUse::word);
    same == uses.end() ? uses.push_back({std::string(link.word), count}) : void(same->count += count);
  }
  return uses;
}

std::string Spoken(const std::vector<NameUse>& uses) {
  std::string words;
  for (size_t at = 0; at < uses.size(); ++at) {
    if (at > 0) words += at + 1 == uses.size() ? " and " : ", ";
    words += std::to_string(uses[at].count) + " " + uses[at].word + (uses[at].count == 1 ? "" : "s");
  }
  return words;
}

bool Is_Taken(Session& session, NameList list, const std::string& name, const std::string& own) {
  return Rows_Named(*session.dbCompany, list, name) > (same_text(name, own) ? 1 : 0);
}

void Rename(Session& session, NameList list, const std::string& from, const std::string& to, Carry carry, bool merge) {
  Database& db = *session.dbCompany;
  db.require_transaction();
  if (from.empty() || from == to) return;
  if (!merge && !same_text(from, to) && Is_Taken(session, list, to))
    throw store::Error(store::errors::duplicate_key, "\"" + to + "\" is there already.");
  for (const NameLink& link : Name_Links()) {
    if (link.of != list || (link.hold == NameLink::Entry && carry == Carry::Lists)) continue;
    link.hold == NameLink::Owned&& merge ? Delete_Own(db, link, from) : Carry_Over(session, link, from, to);
  }
}

std::optional<std::string> Delete_Or_Why_Not(Session& session, NameList list, const std::string& name) {
  Database& db = *session.dbCompany;
  const NameTable& table = Table_Of(list);
  store::Transaction tx(db, "Deleted " + std::string(table.word) + " " + name);
  if (auto why = Why_Not(session, list, name)) return why;
  const bool the_only_one = Rows_Named(db, list, name) == 1;
  for (const NameLink& link : Name_Links())
    if (link.of == list && link.hold == NameLink::Owned && the_only_one) Delete_Own(db, link, name);
  const std::string rows = Quoted(table.table) + " WHERE " + Quoted(table.field) + " = ?";
  db.Execute("DELETE FROM " + Quoted(table.table) + " WHERE RowKey = (SELECT MAX(RowKey) FROM " + rows + ")", {name});
  tx.commit();
  return std::nullopt;
}

bool Is_Below_Itself(Session& session, NameList list, const std::string& name, const std::string& parent) {
  const NameTable& table = Table_Of(list);
  if (table.parent.empty() || name.empty()) return false;
  const std::string up =
      "SELECT " + Quoted(table.parent) + " FROM " + Quoted(table.table) + " WHERE " + Quoted(table.field) + " = ?";
  CaselessMap<bool> met;
  for (std::string at = parent; !at.empty() && met.emplace(at, true).second;
       at = session.dbCompany->value(up, {at}).text())
    if (same_text(at, name)) return true;
  return false;
}

}  // namespace tallymere
