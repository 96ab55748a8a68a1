#include "core/values/amount_in_words.h"

#include <array>
#include <cstdint>
#include <limits>

#include "core/values/format.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

constexpr size_t line_length = 123;
constexpr int64_t units_per_dollar = 10000, units_per_cent = 100;
constexpr int64_t highest_with_words = 999'999'999;

using Word = std::string NumberWords::*;
constexpr std::array<Word, 10> ones = {nullptr,
                                       &NumberWords::One,
                                       &NumberWords::Two,
                                       &NumberWords::Three,
                                       &NumberWords::Four,
                                       &NumberWords::Five,
                                       &NumberWords::Six,
                                       &NumberWords::Seven,
                                       &NumberWords::Eight,
                                       &NumberWords::Nine};
constexpr std::array<Word, 10> teens = {&NumberWords::Ten,      &NumberWords::Eleven,    &NumberWords::Twelve,
                                        &NumberWords::Thirteen, &NumberWords::Fourteen,  &NumberWords::Fifteen,
                                        &NumberWords::Sixteen,  &NumberWords::Seventeen, &NumberWords::Eighteen,
                                        &NumberWords::Nineteen};
constexpr std::array<Word, 10> tens = {nullptr,
                                       nullptr,
                                       &NumberWords::Twenty,
                                       &NumberWords::Thirty,
                                       &NumberWords::Forty,
                                       &NumberWords::Fifty,
                                       &NumberWords::Sixty,
                                       &NumberWords::Seventy,
                                       &NumberWords::Eighty,
                                       &NumberWords::Ninety};

std::string Hundredths(int64_t cents) { return (cents < 10 ? "0" : "") + std::to_string(cents) + "/100"; }

/// What stands behind the digit at a position counted from the right; `rest` begins with that digit.
std::string_view Scale_Word(int position, int64_t rest) {
  switch (position) {
    case 6:
      return " million ";
    case 3:
      return rest % 1000 != 0 ? " thousand " : "";
    case 2:
    case 5:
    case 8:
      return rest % 10 != 0 ? " hundred " : "";
    default:
      return "";
  }
}

/// Words in front of " and 05/100", digit by digit from the right. Blanks double where a scale word, or a
/// tens word without a unit, meets " and ": printed checks have always looked so.
std::string Words_Of(const NumberWords& words, int64_t rest, int64_t cents) {
  std::string line = " and " + Hundredths(cents);
  bool no_unit = false;
  for (int position = 0; rest > 0;) {
    auto two = static_cast<size_t>(rest % 100), one = static_cast<size_t>(rest % 10);
    line.insert(0, Scale_Word(position, rest));
    if (position % 3 == 0 && two >= 10 && two <= 19) {
      line.insert(0, words.*teens[two - 10]);
      position += 2, rest /= 100;
      continue;
    }
    if (position % 3 == 1) {
      if (one >= 2) line.insert(0, words.*tens[one] + (no_unit ? " " : "-"));
    } else {
      no_unit = one == 0;
      if (one != 0) line.insert(0, words.*ones[one]);
    }
    ++position, rest /= 10;
  }
  return line;
}

CheckAmount Refusal(Box box) {
  CheckAmount refused;
  refused.fault = Fault{std::move(box), ""};
  return refused;
}

/// "1234.5" to "1,234.50", from what was typed: a leading zero that is not there stays away.
std::string Tidied(std::string_view typed, Money value) {
  std::string text = replace_all(trim(typed), ",", "");
  if (text.find_first_not_of("0123456789.") != std::string::npos) text = value.to_text();
  size_t point = text.find('.');
  if (point == std::string::npos) {
    point = text.size();
    text += ".00";
  } else {
    text.resize(point + 3, '0');
  }
  if (value >= Money::dollars(1000)) text.insert(point - 3, ",");
  if (value >= Money::dollars(1'000'000)) text.insert(point - 6, ",");
  return text;
}

}  // namespace

std::string Amount_In_Words(const NumberWords& words, Money amount) {
  int64_t total = amount.abs().rounded_to_cents().units() / units_per_cent;
  int64_t whole = total / 100, cents = total % 100;
  std::string line = whole > highest_with_words
                         ? Format(Money::dollars(whole), "###,###,###,###,##0") + " and " + Hundredths(cents)
                         : Words_Of(words, whole, cents);
  while (line.size() < line_length) line += " *";
  return line;
}

CheckAmount Check_Amount_In_Words(const NumberWords& words, std::string_view typed) {
  std::string text = trim(typed);
  if (text.empty()) return {};
  size_t point = text.find('.');
  if (point != std::string::npos && text.size() - point - 1 > 2)
    return Refusal({"Max number of decimal places is 2", "To many Decimals", Icon::Information});
  auto value = Money::parse(text);
  int64_t cents = value ? value->units() / units_per_cent : 0;
  if (!value || cents > std::numeric_limits<int32_t>::max() || cents < std::numeric_limits<int32_t>::min())
    return Refusal({"Number is to large to compute", "Number to large", Icon::Critical});
  int64_t whole = value->units() / units_per_dollar;
  CheckAmount amount{Tidied(text, *value), Words_Of(words, whole, std::abs(cents % 100)), value, std::nullopt};
  while (amount.words.size() < line_length) amount.words.insert(0, "* ");
  return amount;
}

}  // namespace tallymere
