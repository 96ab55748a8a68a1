#include "core/values/format.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

#include "core/values/decimal.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

constexpr std::array<std::string_view, 12> month_names = {"January",   "February", "March",    "April",
                                                          "May",       "June",     "July",     "August",
                                                          "September", "October",  "November", "December"};
constexpr std::array<std::string_view, 7> day_names = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                       "Thursday", "Friday", "Saturday"};

// One character of a mask; quotes and the backslash are gone, having made it a literal.
struct Mark {
  char c;
  bool literal;
};

std::vector<Mark> marks_of(std::string_view mask) {
  std::vector<Mark> marks;
  bool quoted = false;
  for (std::size_t i = 0; i < mask.size(); ++i) {
    if (mask[i] == '"') {
      quoted = !quoted;
    } else if (!quoted && mask[i] == '\\' && i + 1 < mask.size()) {
      marks.push_back({mask[++i], true});
    } else {
      marks.push_back({mask[i], quoted});
    }
  }
  return marks;
}

// What one section of a number mask asks for. Places of zero and '#' are counted on both sides of the point.
struct Section {
  bool empty = true;
  std::string before, after;
  bool has_digits = false, has_point = false, grouped = false;
  std::size_t least_whole = 0, least_fraction = 0, most_fraction = 0;
  int percents = 0;

  void digit_place(bool zero) {
    has_digits = true;
    if (!has_point) {
      if (zero || least_whole > 0) ++least_whole;  // a "#" right of a "0" shows its digit as well
    } else {
      ++most_fraction;
      if (zero) least_fraction = most_fraction;
    }
  }

  void add(Mark mark) {
    empty = false;
    if (!mark.literal) {
      if (mark.c == '0' || mark.c == '#') return digit_place(mark.c == '0');
      if (mark.c == '.' && !has_point) {
        has_point = true;
        return;
      }
      if (mark.c == ',' && has_digits && !has_point) {
        grouped = true;
        return;
      }
      if (mark.c == '%') ++percents;
    }
    (has_digits || has_point ? after : before) += mark.c;
  }
};

std::vector<Section> sections_of(std::string_view mask) {
  std::vector<Section> sections(1);
  for (const Mark mark : marks_of(mask)) {
    if (mark.c == ';' && !mark.literal)
      sections.emplace_back();
    else
      sections.back().add(mark);
  }
  return sections;
}

// The digits of the value with exactly `places` of them behind the point, half away from zero.
std::string rounded_digits(const Decimal& value, std::size_t places, int percents) {
  std::string digits = value.digits == 0 ? "" : std::to_string(value.digits);
  const int shift = value.exponent + 2 * percents + static_cast<int>(places);
  if (shift >= 0) return digits.empty() ? digits : digits.append(static_cast<std::size_t>(shift), '0');
  const auto drop = static_cast<std::size_t>(-shift);
  if (drop > digits.size()) return "";
  const bool up = !digits.empty() && digits[digits.size() - drop] >= '5';
  digits.resize(digits.size() - drop);
  if (!up) return digits;
  const auto last = digits.find_last_not_of('9');
  if (last == digits.npos) return "1" + std::string(digits.size(), '0');
  ++digits[last];
  std::fill(digits.begin() + static_cast<std::ptrdiff_t>(last) + 1, digits.end(), '0');
  return digits;
}

std::string grouped_by_threes(std::string whole) {
  for (std::size_t at = whole.size(); at > 3; at -= 3) whole.insert(at - 3, ",");
  return whole;
}

std::string shown(const Section& section, std::string digits) {
  if (!section.has_digits) return section.before + section.after;
  const std::size_t least = section.least_whole + section.most_fraction;
  if (digits.size() < least) digits.insert(0, least - digits.size(), '0');
  std::string whole = digits.substr(0, digits.size() - std::min(digits.size(), section.most_fraction));
  std::string fraction = digits.substr(whole.size());
  while (fraction.size() > section.least_fraction && fraction.back() == '0') fraction.pop_back();
  if (section.grouped) whole = grouped_by_threes(std::move(whole));
  return section.before + whole + (section.has_point ? "." : "") + fraction + section.after;
}

std::string formatted(const Decimal& value, std::string_view mask) {
  const auto sections = sections_of(mask);
  const auto own = [&](std::size_t kind) { return kind < sections.size() && !sections[kind].empty; };
  const bool own_negative = value.negative && own(1);
  const Section& section = sections[own_negative ? 1 : 0];
  std::string digits = rounded_digits(value, section.most_fraction, section.percents);
  if (digits.empty() && (section.has_digits || value.digits == 0)) return shown(sections[own(2) ? 2 : 0], "");
  const bool minus = value.negative && !own_negative;
  return (minus ? "-" : "") + shown(section, std::move(digits));
}

std::string padded(unsigned number, std::size_t width) {
  const std::string text = std::to_string(number);
  return text.size() < width ? std::string(width - text.size(), '0') + text : text;
}

// A run of one letter in a date mask; empty if it means nothing.
std::string date_part(Date date, char letter, std::size_t count) {
  const auto name = month_names[date.month() - 1];
  const auto weekday = day_names[static_cast<std::size_t>(date.weekday()) - 1];
  if (letter == 'd' && count <= 2) return padded(date.day(), count);
  if (letter == 'd' && count == 3) return std::string(weekday.substr(0, 3));
  if (letter == 'd' && count == 4) return std::string(weekday);
  if (letter == 'm' && count <= 2) return padded(date.month(), count);
  if (letter == 'm' && count == 3) return std::string(name.substr(0, 3));
  if (letter == 'm' && count == 4) return std::string(name);
  if (letter == 'y' && count == 2) return padded(static_cast<unsigned>(date.year() % 100), 2);
  if (letter == 'y' && count == 4) return padded(static_cast<unsigned>(date.year()), 4);
  return {};
}

}  // namespace

std::string Format(Money value, std::string_view mask) {
  const auto units = static_cast<std::uint64_t>(value.units());
  return formatted({value.is_negative(), value.is_negative() ? 0 - units : units, -4}, mask);
}

std::string Format(double value, std::string_view mask) {
  if (const auto decimal = shortest_decimal(value)) return formatted(*decimal, mask);
  if (std::isnan(value)) return "nan";
  return value < 0 ? "-inf" : "inf";
}

std::string Format(Date value, std::string_view mask) {
  const auto marks = marks_of(mask);
  std::string text;
  for (std::size_t i = 0; i < marks.size();) {
    std::size_t end = i + 1;
    while (end < marks.size() && marks[end].c == marks[i].c && marks[end].literal == marks[i].literal) ++end;
    const std::string part = marks[i].literal ? "" : date_part(value, marks[i].c, end - i);
    text += part.empty() ? std::string(end - i, marks[i].c) : part;
    i = end;
  }
  return text;
}

}  // namespace tallymere
