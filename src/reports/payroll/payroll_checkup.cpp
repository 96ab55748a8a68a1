#include "reports/payroll/payroll_checkup.h"

#include <algorithm>

#include "payroll/item_sums.h"
#include "payroll/pay_items.h"
#include "reports/frame/table_parts.h"

namespace tallymere {
namespace {

using Kind = ReportColumn::Kind;

/// The law of 2026. Wages are a year's.
constexpr Money social_security_base = Money::dollars(184500), additional_medicare_from = Money::dollars(200000),
                unemployment_base = Money::dollars(7000);
constexpr double social_security_rate = 0.062, medicare_rate = 0.0145, additional_medicare_rate = 0.009,
                 unemployment_rate = 0.006;

/// A tax as it stands in the paychecks, and as the law has it.
struct Compared {
  Money posted, due;
  Compared& operator+=(const Compared& other) {
    posted += other.posted;
    due += other.due;
    return *this;
  }
};

struct Checked {
  Money wages;
  Compared social_security, medicare, unemployment;
  Checked& operator+=(const Checked& other) {
    wages += other.wages;
    social_security += other.social_security;
    medicare += other.medicare;
    unemployment += other.unemployment;
    return *this;
  }
};

Money Above(Money wages, Money base) { return std::max(wages - base, Money()); }
Money Cents_Of(Money base, double rate) { return base.times(rate).rounded_to_cents(); }

/// An employee's year, added up item by item.
class Year_Of {
 public:
  Year_Of(const PayItems& items, const ItemSums& sums, const std::string& ss_num)
      : items_(items), sums_(sums), ss_num_(ss_num) {}

  Checked checked() const {
    const Money security = wages(fixed_items::social_security_company), medical = wages(fixed_items::medicare_company);
    const Money all = wages("");
    return {all,
            {posted(fixed_items::social_security_employee),
             Cents_Of(std::min(security, social_security_base), social_security_rate)},
            {posted(fixed_items::medicare_employee),
             Cents_Of(medical, medicare_rate) +
                 Cents_Of(Above(medical, additional_medicare_from), additional_medicare_rate)},
            {posted(fixed_items::federal_unemployment), Cents_Of(std::min(all, unemployment_base), unemployment_rate)}};
  }

 private:
  /// What was earned, less the deductions that the tax is not taken of.
  Money wages(std::string_view tax) const {
    Money sum;
    for (const PayItem& item : items_.all()) {
      const bool pay =
          item.type() == ItemType::Wage || item.type() == ItemType::Commision || item.type() == ItemType::Addition;
      const bool off = item.type() == ItemType::Deduction && items_.moves_base(item.Name, tax);
      if (pay) sum += posted(item.Name);
      if (off) sum -= posted(item.Name);
    }
    return sum;
  }
  /// An amount that stands in two rows counts once.
  Money posted(std::string_view name) const {
    const PayItem* item = items_.find(name);
    const Money amount = sums_.of(name, ss_num_).amount;
    return item && item->rows_per_amount() == 2 ? amount.share(Money::dollars(1), Money::dollars(2)) : amount;
  }

  const PayItems& items_;
  const ItemSums& sums_;
  const std::string& ss_num_;
};

void Add_Checked(ReportTable& table, Role role, std::string_view name, const Checked& year) {
  auto row = table.add_row(role);
  row.skip().text(name).money(year.wages);
  for (const Compared& tax : {year.social_security, year.medicare, year.unemployment})
    row.money(tax.posted).money(tax.due).money(tax.posted - tax.due);
}

}  // namespace

ReportTable Build_Payroll_Checkup(Session& session, const ReportRequest& request) {
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.heading.note =
      "By law: Social Security on wages up to 184,500.00, Medicare with 0.9 % more above 200,000.00, federal unemployment "
      "on 7,000.00, as in 2026. A difference is what the calculation of this system does not know.";
  table.columns = {{.kind = Kind::Margin}, {.caption = "Employee"}, {.caption = "Wages", .kind = Kind::Money}};
  for (const std::string tax : {"Social Security", "Medicare", "Federal Unemployment"})
    for (const std::string what : {"", " by Law", " Difference"})
      table.columns.push_back({.caption = tax + what, .kind = Kind::Money});
  store::Database& db = *session.dbCompany;
  const auto items = PayItems::Of(db);
  const ItemSums sums = ItemSums::Read(db, SumFilter::Paid_In({Date(request.to.year(), 1, 1), request.to}));
  Checked all;
  db.each("SELECT SSNum, Name FROM Employees ORDER BY Name", {}, [&](const store::Row& row) {
    const std::string ss_num(row.text(0));
    const Checked year = Year_Of(*items, sums, ss_num).checked();
    if (year.wages.is_zero()) return;
    Add_Checked(table, Role::Detail, row.text(1), year);
    all += year;
  });
  Add_Checked(table, Role::Grand_Total, "TOTAL", all);
  return table;
}

}  // namespace tallymere
