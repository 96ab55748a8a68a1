#pragma once

#include "entry/bank/reconcile.h"
#include "reports/frame/report_table.h"

/// What is printed of a reconciliation once the bank is balanced.
namespace tallymere {

/// A bank as it was reconciled: kept apart from the window, whose lists go on.
struct Reconciled {
  std::string company, bank;
  Money opening, cleared, ending;
  std::array<std::vector<ReconcileLine>, 2> lines;  ///< by Side; those that were stamped are Cleared
};
Reconciled Record_Of(Session& session, const Reconciliation& reconciliation);

/// Balances and sums: what was cleared, what was open at the closing date, what came after it.
ReportTable Reconcile_Summary(const Reconciled& reconciled, Date closing);
/// Every transaction in three sections, each with its deposits and its payments; a list without rows is left out.
ReportTable Reconcile_Full(const Reconciled& reconciled, Date closing);

}  // namespace tallymere
