#pragma once

#include "core/ledger/transaction_writer.h"

/// Rows read so that they can be written again as they were.
namespace tallymere {

/// The current row of a set of Transactions, as it was written. What the head says of all rows is in it too.
LedgerRow Stored_Row(store::RowSet& row);

/// Leaves to the head what a row says as the head's own row does: it follows when the head is changed.
void Follow_Head(LedgerRow& row, const LedgerRow& head);

}  // namespace tallymere
