// What people type: amounts, dates, names. What was read and written again reads the same.

#include <cstdlib>

#include "core/values/control_characters.h"
#include "core/values/date.h"
#include "core/values/format.h"
#include "core/values/letters.h"
#include "core/values/money.h"
#include "core/values/text.h"

using namespace tallymere;

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

void Amounts(std::string_view text) {
  const auto amount = Money::parse(text);
  if (!amount) return;
  Require(Money::parse(amount->to_text()) == amount);
  Format(*amount, "###,###,##0.00");
}

void Dates(std::string_view text) {
  for (const auto& day : {Date::parse(text), Date::from_iso(text)})
    if (day) Require(Date::parse(day->to_text()) == day && Date::from_iso(day->to_iso()) == day);
}

void Names(std::string_view text) {
  const std::string one(text.substr(0, text.size() / 2)), other(text.substr(text.size() / 2));
  Require(compare_same_text(one, other) == -compare_same_text(other, one));
  Require(same_text(one, folded(one)) && (folded(one) == folded(other)) == same_text(one, other));
  if (const auto start = same_text_start(one, other)) Require(same_text(one.substr(0, *start), other));
  like_text(one.substr(0, 40), other.substr(0, 400), '\\');
  Require(!has_control_characters(in_one_plain_line(text)));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  Amounts(text);
  Dates(text);
  Names(text);
  is_numeric(text);
  return 0;
}
