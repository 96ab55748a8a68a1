#pragma once

#include <optional>
#include <set>
#include <string_view>
#include <vector>

#include "core/company/rights.h"
#include "core/company/session.h"
#include "core/store/history.h"

/// Whose history is whose: what a user may not open he may not look at, and not take back.
namespace tallymere {

/// Whether one of these commands leads to what a row of this table (and, in the ledger, of this type) belongs to. What
/// nobody else has a command for is the administrator's.
bool Reaches(const std::vector<CommandRight>& rights, std::string_view table, std::string_view Type);

/// Whether these commands reach everything that an action changed. `rights` as of Apply_User_Rights.
bool Reaches(store::Database& db, const std::vector<CommandRight>& rights, const std::vector<store::Change>& changes);

std::vector<CommandRight> Rights_Of(Session& session);                  ///< of who is logged in
std::string Type_Of(store::Database& db, const store::Change& change);  ///< of a changed row of the ledger

/// Balances brought up to date, and nothing else.
bool Is_Upkeep(const std::vector<store::Change>& changes);
/// Users, preferences and the company's own row are changed in their windows, and not taken back.
bool Is_Setting(const std::vector<store::Change>& changes);

/// The action that Undo takes back: the newest of the acting user that stands, wrote in the ledger, is no undo itself
/// and kept its rows.
std::optional<store::Action> Last_To_Undo(Session& session);

Box Undo_Question(const store::Action& action);

/// Takes an action back, brings the balances up to date and gives the tables that changed; a box says why where it
/// cannot be, and then there are none.
std::set<std::string> Take_Back(Session& session, int64_t number);

}  // namespace tallymere
