#pragma once

#include "payroll/paychecks.h"

/// Paychecks into the ledger. Delete_Transaction takes them out and opens their period again.
namespace tallymere {

struct PostResult {
  std::optional<Fault> fault = {};        ///< nothing to pay; nothing was written
  std::optional<Conflict> conflict = {};  ///< another user's work; nothing was written
  bool ok() const { return !fault && !conflict; }
};

/// Writes the check as its grids stand: the bank's row, then the rows of each amount, and that the period is paid, all in
/// one store transaction. A check opened again keeps its number, and amounts nobody changed keep their rows. Afterwards
/// the entry has the number and probe for the next save.
PostResult Post_Paycheck(Session& session, PaycheckEntry& entry);

/// What of this check will make debits and credits differ, in words; empty when it balances.
std::vector<std::string> Off_Balance_Lines(const PaycheckEntry& entry);

}  // namespace tallymere
