#pragma once

#include "reports/sums/ledger_sums.h"

namespace tallymere {

/// What the ledger shows month by month, as a budget is compared with it: Amount counts positive on either side. Of
/// each category its own rows; whole months, from that of the first day to that of the last.
struct Monthly_Amounts {
  Date first_month;
  size_t months;
  ColumnFigures own;

  Date month(size_t at) const { return first_month.add_months(static_cast<int>(at)); }
};
Monthly_Amounts Get_Actual(store::Database& db, const CatIDs& categories, DateRange days);

}  // namespace tallymere
