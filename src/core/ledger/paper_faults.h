#pragma once

#include <string>
#include <vector>

#include "core/store/database.h"

namespace tallymere {

/// What is wrong with a company's estimates, orders and package slips: two of one Index, a total that its lines do not
/// make, one taken up by a document of another party, or open and taken up at once.
std::vector<std::string> Paper_Faults(store::Database& db);

}  // namespace tallymere
