#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/company/session.h"

namespace tallymere {

/// What frmSetupYTD shows: an employee's totals of the time before the books, or a correction of them.
struct YtdSetup {
  struct Line {
    std::string Item = {};
    std::optional<Money> Amount = {};
  };
  std::string SSNum = {}, Employee = {};
  Date date;
  bool to_bank = false;  ///< against the bank; else against "Opening Balance Equity", and no bank changes
  std::string BankID = {};
  std::vector<Line> lines = {};
};

/// Writes it as one transaction of type "YTD Adjust"; the fault, when a line is not complete, nobody is chosen or the bank is missing.
std::optional<Fault> Set_Up_Year_To_Date(Session& session, const YtdSetup& setup);

}  // namespace tallymere
