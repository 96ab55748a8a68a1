#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/company/session.h"

/// The lines of a check's stubs, before they are put on paper.
namespace tallymere {

/// A paid bill, or a line of the check itself.
struct StubLine {
  std::string first = {};   ///< the bill's date, or the category
  std::string second = {};  ///< the bill's number, or the memo
  Money Amount = {};
};
/// What a check of any type but "Paycheck" is for. The lines add up to the check.
std::vector<StubLine> Stub_Lines(Session& session, int64_t TransNum, const std::string& Type);

/// A line of a pay stub; deductions and taxes are negative.
struct PayLine {
  std::string PayrollItem = {};
  Money Amount = {};
  Money year_to_date = {};
  std::optional<double> Hours = {};
  bool earns = false;  ///< adds to the earnings, else to the deductions
};
std::vector<PayLine> Pay_Lines(Session& session, int64_t TransNum);

}  // namespace tallymere
