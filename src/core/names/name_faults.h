#pragma once

#include <string>
#include <vector>

#include "core/store/database.h"

namespace tallymere {

/// What is wrong with the names of a company's lists: two rows of one name, and rows that stand below themselves.
std::vector<std::string> Name_Faults(store::Database& company);

}  // namespace tallymere
