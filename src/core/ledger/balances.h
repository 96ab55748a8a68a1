#pragma once

#include "core/company/session.h"

/// Brings the cached balances up to date with the ledger. Each is called when a list comes up, never at
/// posting. Only rows whose figures change are written, in one store transaction.
namespace tallymere {

enum class Categories { All, Bank };

/// Recalculates Balance and, after RecalcAll, LastYearEndBal, the balance before the first row of the current
/// calendar year, of all categories in use but the profit-and-loss ones; then clears RecalcAll. A parent
/// holds all its descendants, dormant ones too. `Bank` is the quick pass of the check window: banks only,
/// without their sub-categories, without a word about progress.
void Update_Accounts(Session& session, Categories which = Categories::All);

/// Recomputes LastYearEndBal of every category, in use or not, but the profit-and-loss ones. Balance is not
/// touched.
void Fix_Accounts(Session& session);

/// Balance of each customer in use: invoices less payments, 0 without any.
void Update_Customers(Session& session);

/// Balance of each vendor in use: the debits of its unpaid bills. Without unpaid bills the last figure stays,
/// as it does for a vendor with an apostrophe in its name.
void Update_Vendors(Session& session);

}  // namespace tallymere
