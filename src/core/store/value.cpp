#include "core/store/value.h"

#include <charconv>
#include <cmath>

#include "core/store/error.h"
#include "core/values/text.h"

namespace tallymere::store {
namespace {

[[noreturn]] void Refuse(const std::string& text) {
  throw Error(errors::conversion, "Data type conversion error: \"" + text + "\".");
}

std::string Plain_Number(double number) {
  char buffer[32];
  auto end = std::to_chars(buffer, buffer + sizeof buffer, number).ptr;
  return {buffer, end};
}

double Parse_Number(const std::string& typed) {
  std::string text = trim(typed);
  double number = 0;
  auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  bool whole = fault == std::errc() && end == text.data() + text.size();
  if (whole && std::isfinite(number)) return number;
  if (auto amount = Money::parse(text)) return amount->to_double();
  Refuse(typed);
}

int64_t Whole(double number) {
  if (!(std::abs(number) < 9.2e18)) Refuse(Plain_Number(number));
  return static_cast<int64_t>(std::nearbyint(number));
}

bool Parse_Flag(const std::string& text) {
  if (same_text(text, "True") || same_text(text, "Yes")) return true;
  if (same_text(text, "False") || same_text(text, "No")) return false;
  return Parse_Number(text) != 0;
}

}  // namespace

bool Value::blank() const {
  auto text = get<std::string>();
  return is_null() || (text && text->empty());
}

std::string Value::text() const {
  if (auto t = get<std::string>()) return *t;
  if (auto n = get<int64_t>()) return std::to_string(*n);
  if (auto d = get<double>()) return Plain_Number(*d);
  if (auto m = get<Money>()) return m->to_text();
  if (auto day = get<Date>()) return day->to_text();
  if (auto flag = get<bool>()) return *flag ? "True" : "False";
  return {};
}

Money Value::money() const {
  if (auto m = get<Money>()) return *m;
  if (blank()) return {};
  if (auto n = get<int64_t>()) return Money::dollars(*n);
  if (auto d = get<double>()) return Money::from_double(*d);
  if (auto t = get<std::string>()) {
    if (auto amount = Money::parse(*t)) return *amount;
  }
  Refuse(text());
}

int64_t Value::integer() const {
  if (auto n = get<int64_t>()) return *n;
  if (auto flag = get<bool>()) return *flag ? -1 : 0;
  return blank() ? 0 : Whole(number());
}

double Value::number() const {
  if (auto d = get<double>()) return *d;
  if (auto n = get<int64_t>()) return static_cast<double>(*n);
  if (auto m = get<Money>()) return m->to_double();
  if (auto flag = get<bool>()) return *flag ? -1 : 0;
  if (blank()) return 0;
  if (auto t = get<std::string>()) return Parse_Number(*t);
  Refuse(text());
}

bool Value::flag() const {
  if (auto flag = get<bool>()) return *flag;
  if (auto t = get<std::string>()) return !t->empty() && Parse_Flag(*t);
  return !blank() && number() != 0;
}

Date Value::date() const {
  if (auto day = maybe_date()) return *day;
  Refuse(text());
}

std::optional<Date> Value::maybe_date() const {
  if (auto day = get<Date>()) return *day;
  auto t = get<std::string>();
  if (blank()) return std::nullopt;
  if (t) {
    if (auto day = Date::from_iso(*t)) return day;
    if (auto day = Date::parse(*t)) return day;
  }
  Refuse(text());
}

Value Value::as(FieldType type) const {
  if (is_null()) return {};
  if (blank() && type != FieldType::Text && type != FieldType::Memo) return {};
  switch (type) {
    case FieldType::Text:
    case FieldType::Memo:
      return text();
    case FieldType::Long:
    case FieldType::Integer:
      return integer();
    case FieldType::Money:
      return money();
    case FieldType::Double:
      return number();
    case FieldType::Date:
      return date();
    case FieldType::Flag:
      return flag();
  }
  return {};
}

}  // namespace tallymere::store
