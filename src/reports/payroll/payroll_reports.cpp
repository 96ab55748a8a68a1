#include "reports/payroll/payroll_reports.h"

#include "core/values/caseless.h"
#include "payroll/pay_items.h"
#include "reports/frame/table_parts.h"

namespace tallymere {
namespace {

using Kind = ReportColumn::Kind;
constexpr std::string_view hours = "Hours", average = "Avg Rate", total = "TOTAL";

/// In which part of the summary an item stands.
enum class Part { Earnings, Deductions, Taxes, After_Tax, Employers, None };

Part Part_Of_Item(const PayItem& item) {
  switch (item.type()) {
    case ItemType::Wage:
    case ItemType::Commision:
      return Part::Earnings;
    case ItemType::Addition:
      return item.is_net_based() ? Part::After_Tax : Part::Earnings;
    case ItemType::Deduction:
      return item.is_net_based() ? Part::After_Tax : Part::Deductions;
    case ItemType::CompanyContribution:
      return Part::Employers;
    case ItemType::Other:
      return Part::None;
    default:
      return item.paid_by_employer() ? Part::Employers : Part::Taxes;
  }
}

bool Is_Taken(const PayItem& item) {
  return item.type() == ItemType::Deduction || (Is_Tax(item.type()) && !item.paid_by_employer());
}

/// What stands under an item, of one employee.
struct Item_Sum {
  Money amount, debits;  ///< debits: of the amount what stands on the debit side
  double hours = 0;
};

/// An item's amount on the side on which it stands by nature, wherever it was posted: one that stands in two rows counts
/// once, one that was given back is negative.
Money Amount_Of(const PayItem& item, const Item_Sum& sum) {
  const Money credits = sum.amount - sum.debits;
  if (item.rows_per_amount() == 2) return Is_Taken(item) ? credits : sum.debits;
  if (Part_Of_Item(item) == Part::Employers) return sum.amount;
  return Is_Taken(item) ? credits - sum.debits : sum.debits - credits;
}

/// The sums of a period by item, then by number: of many employees in one pass.
class Sums_By_Number {
 public:
  Sums_By_Number(Session& session, const ReportRequest& request) {
    session.dbCompany->each(
        "SELECT PayrollItem, SSNum, SUM(Amount), SUM(CASE WHEN Debit <> 0 THEN Amount ELSE 0 END), TOTAL(Hours)"
        " FROM Transactions WHERE PayrollItem <> '' AND SSNum <> '' AND Date >= ? AND Date <= ?"
        " GROUP BY PayrollItem, SSNum",
        {request.from, request.to}, [this](const store::Row& row) {
          sums_[std::string(row.text(0))][std::string(row.text(1))] = {row.money(2), row.money(3), row.number(4)};
        });
  }

  bool has(const PayItem& item) const { return sums_.contains(item.Name); }
  Item_Sum of(const PayItem& item, const std::string& number) const {
    const auto found = sums_.find(item.Name);
    if (found == sums_.end()) return {};
    const auto own = found->second.find(number);
    return own == found->second.end() ? Item_Sum() : own->second;
  }

 private:
  CaselessMap<CaselessMap<Item_Sum>> sums_;
};

struct Figures {
  Money amount;
  double hours = 0;
  Figures& operator+=(const Figures& other) {
    amount += other.amount;
    hours += other.hours;
    return *this;
  }
};
using Row_Figures = std::vector<Figures>;  ///< of each employee

struct Person {
  std::string Name, SSNum;
};

/// Employees by name; `paid_in`: only those whose name stands on a paycheck of these days.
std::vector<Person> Employees_Of(store::Database& db, const DateRange* paid_in) {
  CaselessMap<bool> paid;
  if (paid_in)
    db.each("SELECT DISTINCT Name FROM Transactions WHERE Type = 'Paycheck' AND Date >= ? AND Date <= ?",
            {paid_in->start, paid_in->end}, [&](const store::Row& row) { paid[std::string(row.text(0))] = true; });
  std::vector<Person> people;
  db.each("SELECT Name, SSNum FROM Employees ORDER BY Name, RowKey", {}, [&](const store::Row& row) {
    if (!paid_in || paid.contains(row.text(0))) people.push_back({std::string(row.text(0)), std::string(row.text(1))});
  });
  return people;
}

// --- the summary ---------------------------------------------------------------------------------

class Summary {
 public:
  Summary(Session& session, const ReportRequest& request)
      : items_(PayItems::Of(*session.dbCompany)), sums_(session, request) {
    const DateRange days = request.days();
    people_ = Employees_Of(*session.dbCompany, &days);
    table.heading = Make_Heading(session, request);
    pick(request.option(report_option::fields));
    add_columns();
    add_parts();
  }

  ReportTable table;

 private:
  void pick(std::string_view list) {
    for (const std::string_view column : {hours, average, total}) {
      table.offered.push_back(column_of(column));
      for (const std::string& wanted : Column_Names(list))
        if (wanted == column) picked_.push_back(column);
    }
    if (picked_.empty()) picked_ = {hours, average, total};
  }

  static ReportColumn column_of(std::string_view name) {
    ReportColumn column{.caption = std::string(name), .kind = name == hours ? Kind::Number : Kind::Money};
    return column;
  }

  void add_columns() {
    table.columns = {{.kind = Kind::Margin}, {.name = "Item"}};
    for (size_t at = 0; at <= people_.size(); ++at) {
      table.groups.push_back({at < people_.size() ? people_[at].Name : "Total", static_cast<int>(table.columns.size()),
                              static_cast<int>(picked_.size())});
      for (const std::string_view column : picked_) table.columns.push_back(column_of(column));
    }
  }

  void add_parts() {
    Row_Figures gross = add_part(Part::Earnings);
    add_line(Role::Total, "Gross Pay", gross);
    table.add_spacer();
    Row_Figures net = gross;
    for (const Part part : {Part::Deductions, Part::Taxes, Part::After_Tax}) {
      const Row_Figures taken = add_part(part);
      for (size_t at = 0; at < net.size(); ++at) net[at].amount += taken[at].amount;
    }
    for (Figures& figures : net) figures.hours = 0;
    add_line(Role::Grand_Total, "Net Pay", net);
    table.add_spacer();
    table.add_row(Role::Head).skip().text("Company Taxes and Contributions");
    const Row_Figures employers = add_part(Part::Employers);
    add_line(Role::Total, "Total Company Taxes and Contributions", employers);
  }

  /// The rows of one part, in the order in which the items were entered, and their sum. What is taken is negative.
  Row_Figures add_part(Part part) {
    Row_Figures sum(people_.size());
    for (const PayItem& item : items_->all()) {
      if (Part_Of_Item(item) != part) continue;
      Row_Figures row;
      bool any = false;
      for (const Person& person : people_) {
        const Item_Sum found = sums_.of(item, person.SSNum);
        const Money amount = Amount_Of(item, found);
        row.push_back({Is_Taken(item) ? -amount : amount, found.hours});
        any = any || !amount.is_zero();
      }
      if (!any) continue;
      for (size_t at = 0; at < sum.size(); ++at) sum[at] += row[at];
      add_line(Role::Detail, "     " + item.Name, row);
    }
    return sum;
  }

  void add_line(Role role, const std::string& label, const Row_Figures& row) {
    auto line = table.add_row(role);
    line.skip().text(label);
    Figures all;
    for (const Figures& figures : row) {
      add_figures(line, role, figures);
      all += figures;
    }
    add_figures(line, role, all);
  }

  void add_figures(ReportTable::Line& line, Role role, const Figures& figures) {
    for (const std::string_view column : picked_) {
      if (column == total)
        line.money(figures.amount);
      else if (figures.hours == 0 || (column == average && role != Role::Detail))
        line.skip();
      else if (column == hours)
        line.value(figures.hours);
      else
        line.money(Money::from_double(figures.amount.to_double() / figures.hours));
    }
  }

  std::shared_ptr<const PayItems> items_;
  Sums_By_Number sums_;
  std::vector<Person> people_;
  std::vector<std::string_view> picked_;
};

}  // namespace

ReportTable Build_Payroll_Summary(Session& session, const ReportRequest& request) {
  return Summary(session, request).table;
}

ReportTable Build_Payroll_Earnings(Session& session, const ReportRequest& request) {
  const Sums_By_Number sums(session, request);
  const auto items = PayItems::Of(*session.dbCompany);
  std::vector<const PayItem*> shown;
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.columns = {{.kind = Kind::Margin}, {.name = "Employee"}};
  for (const PayItem& item : items->all()) {
    if (!sums.has(item)) continue;
    shown.push_back(&item);
    table.columns.push_back({.caption = item.Name, .kind = Kind::Money, .may_go = true});
  }
  std::vector<Money> all(shown.size());
  for (const Person& person : Employees_Of(*session.dbCompany, nullptr)) {
    auto line = table.add_row();
    line.skip().text(person.Name);
    for (size_t at = 0; at < shown.size(); ++at) {
      const Money amount = Amount_Of(*shown[at], sums.of(*shown[at], person.SSNum));
      line.money(amount);
      all[at] += amount;
    }
  }
  auto line = table.add_row(Role::Grand_Total);
  line.skip().text("Total");
  for (const Money amount : all) line.money(amount);
  return table;
}

ReportTable Build_Payroll_Liabilities(Session& session, const ReportRequest& request) {
  store::Database& db = *session.dbCompany;
  CaselessMap<CaselessMap<Money>> owed;  // of an item in a category
  db.each(
      "SELECT PayrollItem, Account, SUM(COALESCE(Credit, 0)) - SUM(COALESCE(Debit, 0)) FROM Transactions"
      " WHERE PayrollItem IS NOT NULL AND Date >= ? AND Date <= ? GROUP BY PayrollItem, Account",
      {request.from, request.to},
      [&](const store::Row& row) { owed[std::string(row.text(0))][std::string(row.text(1))] = row.money(2); });
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.columns = {{.kind = Kind::Margin}, {.name = "Item"}, {.caption = "Amount", .kind = Kind::Money}};
  Money all;
  for (const PayItem& item : PayItems::Of(db)->all()) {
    if (item.LiabilityAcct.empty()) continue;
    const Money amount = owed[item.Name][item.LiabilityAcct];
    table.add_row().skip().text(item.Name).money(amount);
    all += amount;
  }
  table.add_row(Role::Grand_Total).skip().text("Total").money(all);
  return table;
}

ReportTable Build_Payroll_Detail(Session& session, const ReportRequest& request) {
  enum { TransNum, Type, Day, Number, Item, Debit, Amount };
  ReportTable table;
  table.heading = Make_Heading(session, request);
  table.looks = Looks::List;
  table.columns = {{.kind = Kind::Margin}, {.caption = "Type"},         {.caption = "Date", .kind = Kind::Date},
                   {.caption = "Number"},  {.caption = "Payroll Item"}, {.caption = "Amount", .kind = Kind::Money}};
  session.dbCompany->each(
      "SELECT TransNum, Type, Date, Number, PayrollItem, Debit, Amount FROM Transactions WHERE (Type = 'Paycheck' OR"
      " Type = 'Liabilitycheck') AND PayrollItem <> '' AND Date >= ? AND Date <= ?"
      " ORDER BY Date, Number, PayrollItem, RowKey",
      {request.from, request.to}, [&](const store::Row& row) {
        const bool debit = !row.money(Debit).is_zero();
        auto line = table.add_row(Role::Detail, To_Transaction(row.text(Type), row.integer(TransNum)));
        line.skip().text(row.text(Type)).value(row.date(Day)).text(row.text(Number)).text(row.text(Item));
        line.money(debit ? row.money(Amount) : -row.money(Amount));
      });
  return table;
}

}  // namespace tallymere
