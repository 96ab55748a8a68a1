#include "core/ledger/undo.h"

#include <optional>
#include <unordered_map>

#include "core/company/schema.h"
#include "core/ledger/ledger.h"
#include "core/ledger/links.h"
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
  std::unordered_map<int64_t, int64_t> by;  // from the newest back: an undo that was itself taken back does not count
  db.each("SELECT RowKey, Undoes FROM History WHERE Undoes >= ? AND Undoes < RowKey ORDER BY RowKey DESC", {number},
          [&](const store::Row& row) {
            if (!by.contains(row.integer(0))) by.try_emplace(row.integer(1), row.integer(0));
          });
  const auto found = by.find(number);
  return found == by.end() ? std::nullopt : std::optional(found->second);
}

/// Only what can itself be taken back is taken back: some row must change that is no cache.
void Refuse_If_Nothing_Would_Change(Database& db, const store::Action& action, const std::vector<Change>& changes) {
  for (const Change& change : changes)
    for (const auto& cell : change.cells)
      if (!db.is_cache(change.table, cell.field)) return;
  Refuse(action, "it only worked out balances");
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
  if (link.to_table != "Accounts" || link.or_words || came.blank() || !Points_At(db, link, came)) return;
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

}  // namespace

void Undo_Action(Session& session, int64_t number) {
  Database& db = *session.dbCompany;
  const store::Action action = store::Find_Action(db, number);
  store::Transaction undo(db, "Undo " + std::to_string(number) + ": " + action.what);
  if (action.undoes >= number) Refuse(action, "it says that it took back what came after it");
  if (auto earlier = Taken_Back_By(db, number)) Refuse(action, "action " + std::to_string(*earlier) + " has done it");
  const auto changes = store::Changes_Of(db, number);
  Refuse_If_Nothing_Would_Change(db, action, changes);
  store::Revert_Changes(db, number);
  for (const Change& change : changes) Check_Links(db, action, change, Last_Key(changes));
  undo.undoes(number);
  undo.commit();
}

}  // namespace tallymere
