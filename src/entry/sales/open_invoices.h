#pragma once

#include <string>
#include <vector>

#include "core/company/session.h"
#include "core/store/recordset.h"

namespace tallymere {

/// The receivable rows of a customer's unpaid invoices and credit memos, the oldest first.
store::Recordset Open_Invoices(Session& session, const std::string& customer);

/// The customers whose open invoices less credit memos and what was received come to anything, by name.
std::vector<std::string> Customers_Who_Owe(Session& session);

/// What a customer has not paid of finance charges entered before.
Money Open_Finance_Charges(Session& session, const std::string& customer);

}  // namespace tallymere
