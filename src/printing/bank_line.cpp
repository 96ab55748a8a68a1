#include "printing/bank_line.h"

#include <algorithm>

#include "core/company/preferences.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

constexpr const char* on_us = "\u2448";
constexpr const char* transit = "\u2446";
constexpr const char* dash = "\u2449";
constexpr size_t account_places = 17;  // the 31st to the 15th
constexpr size_t number_places = 6;    // at least

std::string Key(const std::string& BankID) { return "BankLine " + BankID; }

bool Is_Digits(const std::string& text) { return text.find_first_not_of("0123456789") == std::string::npos; }

/// Every routing number proves itself: its digits, weighted 3, 7 and 1, come to a whole number of tens.
bool Is_Routing(const std::string& text) {
  if (text.size() != 9 || !Is_Digits(text)) return false;
  int sum = 0;
  for (size_t at = 0; at < text.size(); ++at) sum += (text[at] - '0') * (at % 3 == 0 ? 3 : at % 3 == 1 ? 7 : 1);
  return sum % 10 == 0 && sum > 0;
}

Fault No_Number(const char* text, const char* control) { return {{text, "Bank Line", Icon::Information}, control}; }

}  // namespace

BankLine Read_Bank_Line(store::Database& company, const std::string& BankID) {
  const std::string kept = Preference(company, Key(BankID));
  const size_t blank = kept.find(' ');
  if (blank == std::string::npos) return {};
  return {kept.substr(0, blank), kept.substr(blank + 1)};
}

std::optional<Fault> Bank_Line_Fault(const BankLine& line) {
  if (line.routing.empty() && line.account.empty()) return std::nullopt;
  if (!Is_Routing(line.routing))
    return No_Number("This is no routing number: it has nine digits, and one of these is wrong.", "txtRouting");
  if (line.account.find_first_of("0123456789") == std::string::npos || line.account.size() > account_places ||
      line.account.find_first_not_of("0123456789 -") != std::string::npos)
    return No_Number("An account number has digits, blanks and dashes, seventeen at most.", "txtAccount");
  return std::nullopt;
}

void Keep_Bank_Line(Session& session, const std::string& BankID, const BankLine& line) {
  store::Transaction tx(*session.dbCompany, "Line for machines on the checks of a bank");
  Set_Preference(*session.dbCompany, Key(BankID), line.is_set() ? line.routing + " " + line.account : "");
  tx.commit();
}

std::string Bank_Line_Text(const BankLine& line, const std::string& number) {
  std::string check;
  if (!number.empty() && Is_Digits(number)) {
    const std::string zeros(number_places - std::min(number_places, number.size()), '0');
    check = on_us + zeros + number + on_us + " ";
  }
  const std::string rest(account_places - std::min(account_places, line.account.size()), ' ');
  return check + transit + line.routing + transit + " " + replace_all(line.account, "-", dash) + on_us + rest;
}

}  // namespace tallymere
