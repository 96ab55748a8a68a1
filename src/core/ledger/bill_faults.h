#pragma once

#include <string>
#include <vector>

#include "core/store/database.h"

namespace tallymere {

/// What is wrong with bills, credits and receipts: each has one row in accounts payable, its first. What paid a bill is
/// a check, a card's entry or a credit of the same vendor, and took at least as much off accounts payable as its bills
/// were paid by it.
std::vector<std::string> Bill_Faults(store::Database& company);

}  // namespace tallymere
