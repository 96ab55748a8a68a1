#include "core/undo.h"

#include "core/schema.h"
#include "core/store/history.h"
#include "core/store/sql.h"
#include "core/text.h"

namespace tallymere {
namespace {

using store::Change;
using store::Database;

std::string Refusal(const store::Action& action, const std::string& why) {
  return "Action " + std::to_string(action.number) + " (" + action.what + ") cannot be taken back: " + why;
}

bool Points_At(Database& db, const Reference& link, const store::Value& key) {
  std::string condition = link.condition.empty() ? "" : " AND (" + std::string(link.condition) + ")";
  return !db.value("SELECT 1 FROM " + store::Quoted(link.from_table) + " WHERE " + store::Quoted(link.from_field) +
                       " = ?" + condition + " LIMIT 1",
                   {key})
              .is_null();
}

bool Still_There(Database& db, const Reference& link, const store::Value& key) {
  return !db.value("SELECT 1 FROM " + store::Quoted(link.to_table) + " WHERE " + store::Quoted(link.to_field) +
                       " = ? LIMIT 1",
                   {key})
              .is_null();
}

/// A row that is gone now must not be what others point at.
void Refuse_If_Pointed_At(Database& db, const store::Action& action, const Change& removed) {
  for (const Reference& link : references()) {
    if (!same_text(link.to_table, removed.table) || !db.find_table(link.from_table)) continue;
    for (const auto& cell : removed.cells) {
      if (!same_text(cell.field, link.to_field) || cell.after.blank()) continue;
      if (!Still_There(db, link, cell.after) && Points_At(db, link, cell.after))
        throw store::Error(store::errors::undo_refused,
                           Refusal(action, std::string(link.from_table) + "." + std::string(link.from_field) +
                                               " points at " + cell.after.text() + "."));
    }
  }
}

}  // namespace

void Undo_Action(Database& company, int64_t number) {
  store::Action action = store::Find_Action(company, number);
  store::Transaction undo(company, "Undo " + std::to_string(number) + ": " + action.what);
  store::Revert_Changes(company, number);
  for (const Change& change : store::Changes_Of(company, number))
    if (change.kind == store::RowChange::Kind::Added) Refuse_If_Pointed_At(company, action, change);
  undo.undoes(number);
  undo.commit();
}

}  // namespace tallymere
