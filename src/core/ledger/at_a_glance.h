#pragma once

#include <string>
#include <vector>

#include "core/company/session.h"

/// What a person asks first in the morning.
namespace tallymere {

struct BankBalance {
  std::string AccountName;
  Money Balance;
};

struct Due {
  int64_t bills = 0;
  Money Amount;
};

/// The banks in use with their balances as last brought up to date, in the order of their names.
std::vector<BankBalance> Bank_Balances(Session& session);
/// What customers owe: the balance of accounts receivable.
Money Customers_Owe(Session& session);
/// Unpaid bills whose due date lies before a week from today, those overdue included.
Due Due_This_Week(Session& session);

}  // namespace tallymere
