#include "payroll/calc/rates.h"

#include <cctype>
#include <string>

#include "core/values/text.h"

namespace tallymere {
namespace {

bool Is_Digit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

Exact First_Number(std::string_view text) {
  size_t at = 0;
  while (at < text.size() && !Is_Digit(text[at]) &&
         !(text[at] == '.' && at + 1 < text.size() && Is_Digit(text[at + 1])))
    ++at;
  const std::string_view before = text.substr(0, at);
  const size_t sign = before.find_last_not_of(" $\t");
  const bool negative = sign != before.npos && before[sign] == '-';
  std::string digits;
  bool point = false;
  for (; at < text.size(); ++at) {
    if (text[at] == ',' && !point && at + 1 < text.size() && Is_Digit(text[at + 1])) continue;
    if (!Is_Digit(text[at]) && (text[at] != '.' || point)) break;
    point = point || text[at] == '.';
    digits += text[at];
  }
  const Exact number = Exact::of_digits(digits);
  return negative ? -number : number;
}

Rate Read_Rate(std::string_view text) {
  const std::string typed = trim(text);
  if (typed.empty()) return {};
  if (!contains(typed, "%")) return {Rate::Kind::Amount, First_Number(typed)};
  return {Rate::Kind::Percent, First_Number(std::string_view(typed).substr(0, typed.size() - 1))};
}

bool Is_Suspicious_Rate(std::string_view text) {
  const Rate rate = Read_Rate(text);
  return rate.kind == Rate::Kind::Amount && rate.value > 1;
}

}  // namespace tallymere
