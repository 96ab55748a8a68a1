#pragma once

#include <string>
#include <vector>

#include "core/company/session.h"

/// Brings the cached balances up to date with the ledger. A pass reads the whole ledger in one grouped reading, so
/// that what it writes is true whatever was done before it. Never at posting: when a list comes up, and when a list
/// that is open hears of a save. Only rows whose figures change are written, in one store transaction that leaves no
/// line of history.
namespace tallymere {

enum class Categories { All, Bank };
enum class Progress { Told, Silent };

/// Balance and LastYearEndBal, the balance before the first row of the current calendar year, of all categories in
/// use but the profit-and-loss ones. A parent holds all its descendants, dormant ones too. `Bank` is the quick pass
/// of the check window: banks only, and silent.
void Update_Accounts(Session& session, Categories which = Categories::All, Progress progress = Progress::Told);

/// Recomputes LastYearEndBal of every category, in use or not, but the profit-and-loss ones. Balance is not
/// touched.
void Fix_Accounts(Session& session);

/// Balance of each customer in use: invoices and statements less payments, 0 without any.
void Update_Customers(Session& session);
/// The same for one customer, read from the ledger as it stands now; nothing is written.
Money Customer_Balance(Session& session, const std::string& name);

/// Balance of each vendor in use: its unpaid bills less what was paid on them, 0 without any.
void Update_Vendors(Session& session);

/// Cached balances that differ from the ledger although nothing was done since they were worked out, in words:
/// "Checking: 0, but -100 in the ledger". None where a pass is due.
std::vector<std::string> False_Balances(store::Database& db);

}  // namespace tallymere
