#pragma once

#include <optional>
#include <string>

#include "core/company/session.h"

/// The line at the foot of a check that banks read by machine. Printed on blank stock only; pre-printed stock has it.
namespace tallymere {

struct BankLine {
  std::string routing = {};  ///< nine digits
  std::string account = {};  ///< digits, blanks and dashes as on the bank's own checks

  bool is_set() const { return !routing.empty(); }
  friend bool operator==(const BankLine&, const BankLine&) = default;
};

/// Of a bank's checks; not set: they go on pre-printed stock.
BankLine Read_Bank_Line(store::Database& company, const std::string& BankID);
/// What cannot be a bank's numbers; both empty is right.
std::optional<Fault> Bank_Line_Fault(const BankLine& line);
void Keep_Bank_Line(Session& session, const std::string& BankID, const BankLine& line);

/// The line as characters of one width: the check's number unless it has letters, the bank's, the account's, between ⑈ ("on us"), ⑆ ("transit")
/// and ⑉ (a dash), with blanks at the end so that the right edge of the last is that of the place banks count as the 14th.
std::string Bank_Line_Text(const BankLine& line, const std::string& number);

}  // namespace tallymere
