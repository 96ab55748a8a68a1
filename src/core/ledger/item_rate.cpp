#include "core/ledger/item_rate.h"

#include <charconv>
#include <cmath>

#include "core/values/format.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

constexpr double largest_percentage = 1e9;

/// "6.875" percent as 0.06875: the point moves in the decimal, so that nothing is rounded but once.
std::optional<double> Parse_Percentage(std::string_view digits) {
  std::string plain;
  for (const char c : digits)
    if (c != ',' && c != ' ' && c != '$') plain += c;
  if (plain.find_first_not_of("+-.0123456789") != std::string::npos) return std::nullopt;
  plain += "e-2";
  const char* begin = plain.data() + (plain.front() == '+' ? 1 : 0);
  double rate = 0;
  const auto [end, error] = std::from_chars(begin, plain.data() + plain.size(), rate);
  const bool whole = error == std::errc() && end == plain.data() + plain.size();
  return whole && std::abs(rate) <= largest_percentage ? std::optional(rate) : std::nullopt;
}

/// "6.875%"; the mask's point does not stand alone: "10%".
std::string Percentage_Text(double rate) {
  std::string text = Format(rate, "0.########%");
  if (const size_t end = text.size(); text[end - 2] == '.') text.erase(end - 2, 1);
  return text;
}

bool Is_Percentage(const ItemRate& rate, std::string_view ItemType) {
  return rate.ExactRate || ItemType == "Sales Tax" ||
         (ItemType == "Discount" && !rate.PriceRate->is_zero() && rate.PriceRate->abs() < Money::dollars(1));
}

}  // namespace

ItemRate Rate_Of(const store::Value& PriceRate, const store::Value& ExactRate) {
  ItemRate rate;
  if (!PriceRate.blank()) rate.PriceRate = PriceRate.money();
  if (!ExactRate.blank() && rate.PriceRate == Money::from_double(ExactRate.number()))
    rate.ExactRate = ExactRate.number();
  return rate;
}

std::optional<ItemRate> Parse_Rate(std::string_view typed) {
  const std::string text = trim(typed);
  if (text.empty()) return ItemRate{};
  if (text.back() == '%') {
    const auto rate = Parse_Percentage(text.substr(0, text.size() - 1));
    return rate ? std::optional(ItemRate{Money::from_double(*rate), rate}) : std::nullopt;
  }
  const auto amount = Money::parse(text);
  return amount ? std::optional(ItemRate{amount, std::nullopt}) : std::nullopt;
}

std::string Rate_Text(const ItemRate& rate, std::string_view ItemType) {
  if (rate.blank()) return {};
  return Is_Percentage(rate, ItemType) ? Percentage_Text(rate.factor()) : Format(*rate.PriceRate, price_mask);
}

}  // namespace tallymere
