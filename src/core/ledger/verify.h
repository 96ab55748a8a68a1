#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/store/database.h"

namespace tallymere {

/// Something wrong in the books, in words a bookkeeper can act on.
struct Finding {
  std::string check;  ///< the name of the whole-book check
  std::string what;
};

/// Runs every whole-book check on a company: the file is sound, every transaction balances or is of a kind known not
/// to, the rows of one number are one document, every link resolves. No findings: all is well.
std::vector<Finding> Verify_Company(store::Database& company);

/// What does not balance by the rule "Sale" of inventory (docs/bookkeeping.md), in one sentence; "" where nothing does.
std::string Sold_Parts_Note(store::Database& company);

}  // namespace tallymere
