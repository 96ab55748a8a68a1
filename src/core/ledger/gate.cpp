#include "core/ledger/gate.h"

#include <algorithm>
#include <array>

#include "core/company/preferences.h"
#include "core/ledger/reach.h"
#include "core/store/error.h"
#include "core/values/format.h"

namespace tallymere {
namespace {

using store::Change;
using store::Database;

/// The fields of a row that say how much was posted, where and when.
constexpr std::array posted = {"TransNum", "Type",   "Date", "Account", "Debit",
                               "Credit",   "Amount", "Qty",  "Hours",   "SalePrice"};

[[noreturn]] void Refuse(const std::string& why) { throw store::Error(store::errors::not_allowed, why); }

bool Posts(const Change& change) {
  return change.table == "Transactions" && std::ranges::any_of(change.cells, [](const Change::Cell& cell) {
           return cell.before != cell.after && std::ranges::find(posted, cell.field) != posted.end();
         });
}

/// The earliest day that a row had or has.
std::optional<Date> First_Day(Database& db, const Change& change) {
  for (const auto& cell : change.cells) {
    if (cell.field != "Date") continue;
    if (cell.before.is_null() || cell.after.is_null())
      return cell.before.is_null() && cell.after.is_null()
                 ? std::nullopt
                 : std::optional((cell.before.is_null() ? cell.after : cell.before).date());
    return std::min(cell.before.date(), cell.after.date());
  }
  const store::Value stands = db.value("SELECT Date FROM Transactions WHERE RowKey = ?", {change.key});
  return stands.is_null() ? std::nullopt : std::optional(stands.date());
}

void Refuse_If_Closed(Database& db, const Change& change, Date closing) {
  const auto day = First_Day(db, change);
  if (!day || *day > closing) return;
  Refuse("The books are closed up to " + Format(closing, "m/d/yyyy") + ": nothing is entered, changed or deleted on " +
         Format(*day, "m/d/yyyy") + ". The administrator can lift the closing date in the preferences.");
}

bool Moves_Closing_Date(Database& db, const Change& change) {
  if (change.table != "GeneralPrefs") return false;
  std::string key = db.value("SELECT Preference FROM GeneralPrefs WHERE RowKey = ?", {change.key}).text();
  for (const auto& cell : change.cells)
    if (cell.field == "Preference" && key.empty()) key = cell.before.text();
  return key == preference::ClosingDate;
}

void Check_Commit(Session& session, Database& db, std::string_view changeset) {
  const auto closing = Closing_Date(db);
  const bool by_rights = session.MultiUser && !session.unattended;
  if (!closing && !by_rights) return;
  const auto rights = by_rights ? Rights_Of(session) : std::vector<CommandRight>{};
  for (const Change& change : store::Named_Changes(db, changeset)) {
    if (!May_Close_Books(session) && Moves_Closing_Date(db, change))
      Refuse("Only the administrator sets or lifts the closing date.");
    if (!Posts(change)) continue;
    if (closing) Refuse_If_Closed(db, change, *closing);
    if (const std::string Type = by_rights ? Type_Of(db, change) : "";
        by_rights && !Reaches(rights, change.table, Type))
      Refuse("You do not have the right to enter, change or delete a transaction of type " + Type + ".");
  }
}

}  // namespace

void Guard_Commits(Session& session) {
  session.dbCompany->set_guard(
      [&session](Database& db, std::string_view changeset) { Check_Commit(session, db, changeset); });
}

std::optional<Date> Closing_Date(Database& company) {
  return Date::from_iso(Preference(company, preference::ClosingDate));
}

bool May_Close_Books(const Session& session) { return !session.MultiUser || session.CurrentUser == Administrator; }

}  // namespace tallymere
