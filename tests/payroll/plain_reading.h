#pragma once

#include <array>
#include <cstdint>
#include <fstream>
#include <map>
#include <numeric>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/places.h"

/// The rules of a paycheck once more, read plainly and slowly: fractions in place of decimals, the shipped rows as they
/// lie in their files, one long walk per check. It shares no code with the program; where the two differ, one is wrong.
namespace tallymere::testing::plain {

__extension__ using Wide = __int128;

struct Fraction {
  Wide top = 0, bottom = 1;

  Fraction(int64_t whole = 0) : top(whole) {}
  Fraction(Wide t, Wide b) : top(t), bottom(b) {
    Wide x = top < 0 ? -top : top, y = bottom;
    while (y != 0) std::swap(x %= y, y);
    if (x > 1) top /= x, bottom /= x;
  }
  static Wide product(Wide a, Wide b) {
    Wide result;
    if (__builtin_mul_overflow(a, b, &result)) throw std::overflow_error("the plain reading ran out of digits");
    return result;
  }
  Fraction operator-() const { return {-top, bottom}; }
  friend Fraction operator*(Fraction a, Fraction b) {
    const Fraction x(a.top, b.bottom), y(b.top, a.bottom);
    return {product(x.top, y.top), product(x.bottom, y.bottom)};
  }
  friend Fraction operator/(Fraction a, Fraction b) {
    return b.top < 0 ? a * Fraction(-b.bottom, -b.top) : a * Fraction(b.bottom, b.top);
  }
  friend Fraction operator+(Fraction a, Fraction b) {
    const Wide shared = Fraction(a.bottom, b.bottom).bottom;  // b.bottom less what both have in common
    return {product(a.top, shared) + product(b.top, product(a.bottom, shared) / b.bottom), product(a.bottom, shared)};
  }
  friend Fraction operator-(Fraction a, Fraction b) { return a + -b; }
  friend bool operator<(Fraction a, Fraction b) { return (a - b).top < 0; }
  friend bool operator>(Fraction a, Fraction b) { return b < a; }
  Fraction magnitude() const { return {top < 0 ? -top : top, bottom}; }
};

/// "-1234.5" and the like; "" is 0.
inline Fraction Number(const std::string& text) {
  Wide top = 0, bottom = 1;
  bool point = false;
  for (char c : text) {
    if (c == '.') point = true;
    if (c < '0' || c > '9') continue;
    top = top * 10 + (c - '0');
    if (point) bottom *= 10;
  }
  return {text.starts_with('-') ? -top : top, bottom};
}

/// Rounded to one part in `parts`: half away from zero, or half to the even one.
inline Fraction Rounded(Fraction value, int64_t parts, bool half_even) {
  const bool negative = value.top < 0;
  const Fraction scaled = value.magnitude() * Fraction(parts);
  Wide whole = scaled.top / scaled.bottom;
  const Wide twice = 2 * (scaled.top % scaled.bottom);
  if (twice > scaled.bottom || (twice == scaled.bottom && (!half_even || whole % 2 == 1))) ++whole;
  return {negative ? -whole : whole, parts};
}
inline Fraction As_Money(Fraction value) { return Rounded(value, 10000, true); }

inline std::string Cell(Fraction value) {
  const Fraction cents = Rounded(value, 100, false) * Fraction(100);
  const auto count = static_cast<int64_t>(cents.top < 0 ? -cents.top : cents.top);
  const std::string rest = std::to_string(count % 100);
  return (cents.top < 0 ? "-" : "") + std::to_string(count / 100) + "." + (rest.size() < 2 ? "0" : "") + rest;
}

using Rows = std::vector<std::vector<std::string>>;

/// A shipped table without its first line.
inline const Rows& Table(const std::string& name) {
  static std::map<std::string, Rows> tables;
  if (tables.contains(name)) return tables[name];
  Rows rows;
  std::ifstream file(data_folder / "accounts" / (name + ".tsv"));
  std::string line, cell;
  std::getline(file, line);
  while (std::getline(file, line)) {
    rows.emplace_back(1);
    for (char c : line) c == '\t' ? void(rows.back().emplace_back()) : rows.back().back().push_back(c);
  }
  return tables[name] = rows;
}

struct Item {
  std::string type, pay_cal;
  bool by_quantity = false;
  std::set<std::string> ticked;
};
struct Wage {
  bool salary;
  std::string rate, hours;
};
struct Line {
  std::string item, rate, quantity;
};
struct Case {
  int period = 1;  // of the eight, in order of length
  std::string status = "Single", state, state_status = "Single";
  int allowances = 0, state_allowances = 0;
  std::string extra = "0", state_extra = "0", year = "0";
  bool unemployment = false;
  bool balanced = false;
  std::vector<Wage> wages;
  std::vector<Line> lines;
  std::map<std::string, Item> items;
};
struct Answer {
  std::vector<std::pair<std::string, std::string>> employee, company;
  std::string total;
};

class Reading {
 public:
  explicit Reading(const Case& paid) : paid_(paid) {}

  Answer read() {
    wages();
    lines(true);
    federal();
    shared("Social Security", "6.2");
    shared("Medicare", "1.45");
    federal_unemployment();
    state();
    state_unemployment();
    lines(false);
    Fraction total;
    for (const auto& [name, cell] : answer_.employee) total = total + Number(cell);
    answer_.total = Cell(total);
    return answer_;
  }

 private:
  static bool percent(const std::string& rate) { return rate.find('%') != rate.npos; }
  static Fraction hundredth(const std::string& rate) { return Number(rate) / Fraction(100); }

  void wages() {
    Fraction sum;
    for (const Wage& wage : paid_.wages) {
      Fraction amount = Number(wage.rate);
      if (!wage.salary && !wage.hours.empty()) amount = amount * Number(wage.hours);
      answer_.employee.emplace_back(wage.salary ? "Salary" : "Hourly", Cell(amount));
      sum = sum + amount;
    }
    gross_ = net_ = running_ = As_Money(sum);
  }

  void lines(bool first) {
    if (!(gross_ > Fraction(0))) return;
    for (const Line& line : paid_.lines) {
      const Item& item = paid_.items.at(line.item);
      const bool deduction = item.type == "Deduction";
      const bool gross = item.type == "Addition" || (deduction && item.pay_cal != "Net");
      if (gross != first) continue;
      auto& grid = item.type == "Company Contribution" && paid_.balanced ? answer_.company : answer_.employee;
      Fraction amount;
      const bool quantity = item.by_quantity && !line.quantity.empty();
      if (quantity)
        amount = Number(line.rate) * Number(line.quantity) * (first ? Fraction(1) : net_);
      else if (line.rate.empty()) {
        grid.emplace_back(line.item, "");
        continue;
      } else if (percent(line.rate))
        amount = (first ? running_ : net_) * hundredth(line.rate);
      else
        amount = Number(line.rate);
      amount = amount.magnitude();
      grid.emplace_back(line.item, Cell(deduction ? -amount : amount));
      if (first) running_ = running_ + (deduction && !quantity ? -amount : amount);
    }
    running_ = As_Money(running_);
  }

  Fraction base(const std::string& tax) const {
    Fraction value = gross_;
    if (!(gross_ > Fraction(0))) return value;
    for (const Line& line : paid_.lines) {
      const Item& item = paid_.items.at(line.item);
      if (item.pay_cal == "Net" || !item.ticked.contains(tax)) continue;
      if (item.type == "Addition")
        value = percent(line.rate) ? value * (Fraction(1) - hundredth(line.rate)) : value + Number(line.rate);
      else
        value = value - (percent(line.rate) ? value * hundredth(line.rate) : Number(line.rate)).magnitude();
    }
    return value;
  }

  static Fraction periods(int period) { return Number(Table("FedWithholdAllowance")[static_cast<size_t>(period)][2]); }

  void federal() {
    static const std::array<std::string, 8> tables = {"FedDaily",   "FedWeekly",    "FedBiWeekly",   "FedSemiMonthly",
                                                      "FedMonthly", "FedQuarterly", "FedSemiAnnual", "FedAnnual"};
    const auto at = static_cast<size_t>(paid_.period);
    const Fraction one = Number(Table("FedWithholdAllowance")[at][1]);
    const Fraction wage = base("Federal Withholding") - Fraction(paid_.allowances) * one;
    const std::vector<std::string>* row = nullptr;
    for (const auto& candidate : Table(tables[at])) {
      if (candidate[0] != paid_.status) continue;
      if (!row || wage > Number(candidate[1])) row = &candidate;  // the last one whose bottom is exceeded
    }
    fed_ = -((wage - Number((*row)[1])) * Number((*row)[4]) + Number((*row)[3]) + Number(paid_.extra));
    answer_.employee.emplace_back("Federal Withholding", Cell(fed_));
    net_ = net_ + fed_;
  }

  void shared(const std::string& name, const std::string& rate) {
    const Fraction tax = As_Money(-(base(name + " Company") * hundredth(rate)));
    answer_.company.emplace_back(name + " Company", Cell(tax));
    answer_.employee.emplace_back(name + " Employee", Cell(tax));
    net_ = net_ + tax;
  }

  void federal_unemployment() {
    const Fraction year = Number(paid_.year), limit(7000), rate = Number("0.006");
    Fraction tax;
    if (year > limit)
      tax = Fraction(0);
    else if (year + running_ > limit)
      tax = -((limit - year) * rate);
    else
      tax = -(running_ * rate);
    answer_.company.emplace_back("Federal Unemployment", Cell(tax));
  }

  void state_unemployment() {
    if (!paid_.unemployment || paid_.state != "MN" || Number(paid_.year) > Fraction(44000)) return;
    answer_.company.emplace_back("MN Unemployment", Cell(-(base("MN Unemployment") * hundredth("1.696"))));
  }

  void state() {
    const Fraction times = periods(paid_.period), extra = Number(paid_.state_extra), allow(paid_.state_allowances);
    const Fraction wage = base(paid_.state + " Withholding");
    const std::string married = paid_.state_status == "Head" ? "Married" : paid_.state_status;
    Fraction tax, moves;
    if (paid_.state == "MN") {
      Fraction annual = wage * times - allow * Number(of_status("MNWithhold", married).front()[4]);
      if (annual < Fraction(0)) annual = Fraction(0);
      const auto row = bottom_below("MNWithhold", married, annual);
      tax = -(((annual - Number(row[1])) * Number(row[3]) + Number(row[2])) / times + extra);
    } else if (paid_.state == "WI") {
      const auto row = bottom_below("WIWithhold", married, wage * times);
      tax = -(((wage * times - Number(row[1])) * Number(row[3]) + Number(row[2]) - allow * Number(row[4])) / times +
              extra / times);
    } else if (paid_.state == "MO") {
      return missouri(wage, times, extra / times);
    } else if (paid_.state == "IN") {
      tax = indiana(wage, married, extra / times);
    } else if (paid_.state == "IL") {
      const auto& row = Table("ILWithHold").front();
      const Fraction exempt = (Number(row[1]) + Number(row[2])) * allow / times;
      tax = -((wage - exempt) * Number(row[0]) + extra / times);
    } else {
      return;
    }
    answer_.employee.emplace_back(paid_.state + " Withholding", Cell(tax));
    net_ = net_ + tax;
  }

  static Rows of_status(const std::string& table, const std::string& status) {
    Rows rows;
    for (const auto& row : Table(table))
      if (row[0] == status) rows.push_back(row);
    return rows;
  }
  /// The last row whose bottom the wage exceeds, or the first one.
  static std::vector<std::string> bottom_below(const std::string& table, const std::string& status, Fraction wage) {
    const Rows rows = of_status(table, status);
    std::vector<std::string> best = rows.front();
    for (const auto& row : rows)
      if (wage > Number(row[1])) best = row;
    return best;
  }

  void missouri(Fraction wage, Fraction times, Fraction extra) {
    const Rows rows = of_status("MOWithhold", paid_.state_status);
    Fraction deducted = fed_ * times;
    if (!(deducted > Fraction(-5000))) deducted = Fraction(-5000);
    Fraction annual =
        wage * times - Number(rows[0][5]) - Number(rows[0][4]) * Fraction(paid_.state_allowances) + deducted;
    Fraction tax;
    size_t at = 0;
    for (; annual > Number(rows[at][2]); ++at)
      tax = As_Money(tax + (Number(rows[at][2]) - Number(rows[at][1])) * Number(rows[at][3]));
    annual = annual - Number(rows[at][1]);
    tax = As_Money(As_Money(As_Money(tax + annual * Number(rows[at][3])) / times) + extra);
    answer_.employee.emplace_back("MO Withholding", Cell(-tax));
    net_ = net_ + annual;
  }

  Fraction indiana(Fraction wage, const std::string& married, Fraction extra) const {
    const auto at = static_cast<size_t>(paid_.period);
    for (const auto& row : Table("INWithHoldB"))
      if (row[0] == married) wage = wage - Number(row[1 + at]);
    Fraction rate = Number(Table("INWithHoldA").front()[1]);
    for (const auto& row : Table("INWithHoldA"))
      if (row[0] == std::to_string(paid_.state_allowances)) wage = wage - Number(row[2 + at]), rate = Number(row[1]);
    return -(wage * rate + extra);
  }

  const Case& paid_;
  Answer answer_;
  Fraction gross_, net_, running_, fed_;
};

}  // namespace tallymere::testing::plain
