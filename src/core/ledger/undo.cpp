#include "core/ledger/undo.h"

#include <optional>

#include "core/company/schema.h"
#include "core/ledger/ledger.h"
#include "core/store/history.h"
#include "core/store/sql.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

using store::Change;
using store::Database;
using store::Value;

[[noreturn]] void Refuse(const store::Action& action, const std::string& why) {
  throw store::Error(store::errors::undo_refused, "Action " + std::to_string(action.number) + " (" + action.what +
                                                      ") cannot be taken back: " + why + ".");
}

std::string Named(std::string_view table, std::string_view field, const Value& value) {
  return std::string(table) + "." + std::string(field) + " \"" + value.text() + "\"";
}

int64_t Count(Database& db, std::string_view table, std::string_view field, const Value& key,
              const std::string& more = {}) {
  return db
      .value("SELECT COUNT(*) FROM " + store::Quoted(table) + " WHERE " + store::Quoted(field) + " = ?" + more, {key})
      .integer();
}

/// The action that took this one back and stands itself.
std::optional<int64_t> Taken_Back_By(Database& db, int64_t number) {
  std::vector<int64_t> undos;
  db.each("SELECT RowKey FROM History WHERE Undoes = ? ORDER BY RowKey", {number},
          [&](const store::Row& row) { undos.push_back(row.integer(0)); });
  for (int64_t undo : undos)
    if (!Taken_Back_By(db, undo)) return undo;
  return std::nullopt;
}

bool Points_At(Database& db, const Reference& link, const Value& key) {
  std::string condition = link.condition.empty() ? "" : " AND (" + std::string(link.condition) + ")";
  return Count(db, link.from_table, link.from_field, key, condition) > 0;
}

/// What is gone now must not be what others point at.
void Refuse_If_Pointed_At(Database& db, const store::Action& action, const Reference& link, const Value& gone) {
  if (gone.blank() || Count(db, link.to_table, link.to_field, gone) > 0 || !Points_At(db, link, gone)) return;
  Refuse(action, Named(link.from_table, link.from_field, gone) + " points at what it made");
}

/// What came back must be alone under its name. Rows of one transaction share their number: there it must not
/// meet rows that were written since.
void Refuse_If_Taken(Database& db, const store::Action& action, const Reference& link, const Value& came,
                     int64_t last_key) {
  bool ledger = link.to_table == "Transactions";
  std::string since = ledger ? " AND RowKey > " + std::to_string(last_key) : "";
  if (came.blank() || Count(db, link.to_table, link.to_field, came, since) <= (ledger ? 0 : 1)) return;
  Refuse(action, Named(link.to_table, link.to_field, came) + " is another one by now");
}

/// Names may stay behind when a list's row is renamed; a category's id never does.
void Refuse_If_Category_Is_Gone(Database& db, const store::Action& action, const Reference& link, const Value& came) {
  if (link.to_table != "Accounts" || came.blank() || !Points_At(db, link, came)) return;
  if (Count(db, link.to_table, link.to_field, came) == 0)
    Refuse(action, Named(link.from_table, link.from_field, came) + " is a category that is gone");
}

void Check_Links(Database& db, const store::Action& action, const Change& change, int64_t last_key) {
  for (const Reference& link : references()) {
    if (!db.find_table(link.from_table)) continue;
    for (const auto& cell : change.cells) {
      if (same_text(link.to_table, change.table) && same_text(link.to_field, cell.field)) {
        Refuse_If_Pointed_At(db, action, link, cell.after);
        Refuse_If_Taken(db, action, link, cell.before, last_key);
      }
      if (same_text(link.from_table, change.table) && same_text(link.from_field, cell.field))
        Refuse_If_Category_Is_Gone(db, action, link, cell.before);
    }
  }
}

int64_t Last_Key(const std::vector<Change>& changes) {
  int64_t last = 0;
  for (const Change& change : changes)
    if (change.table == "Transactions") last = std::max(last, change.key);
  return last;
}

void Set_Recalc(Session& session, const Change& change) {
  if (change.table != "Transactions") return;
  for (const auto& cell : change.cells)
    if (cell.field == "Date")
      for (const Value& day : {cell.before, cell.after})
        if (auto date = day.maybe_date()) Set_Recalc_If_Other_Year(session, *date);
}

}  // namespace

void Undo_Action(Session& session, int64_t number) {
  Database& db = *session.dbCompany;
  const store::Action action = store::Find_Action(db, number);
  store::Transaction undo(db, "Undo " + std::to_string(number) + ": " + action.what);
  if (auto earlier = Taken_Back_By(db, number)) Refuse(action, "action " + std::to_string(*earlier) + " has done it");
  store::Revert_Changes(db, number);
  const auto changes = store::Changes_Of(db, number);
  for (const Change& change : changes) Check_Links(db, action, change, Last_Key(changes));
  undo.undoes(number);
  undo.commit();
  for (const Change& change : changes) Set_Recalc(session, change);
}

}  // namespace tallymere
