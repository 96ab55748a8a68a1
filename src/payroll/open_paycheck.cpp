#include <algorithm>

#include "core/store/recordset.h"
#include "core/values/text.h"
#include "payroll/paychecks.h"

/// A paycheck read back from its rows. An employer's tax stands in two rows and is one line of a grid; rows whose item is
/// gone are carried along.
namespace tallymere {
namespace {

/// One amount of the check, as its one or two rows say.
struct Posted {
  std::string item;
  Money amount;
  double hours = 0, quantity = 0;
  std::vector<LedgerRow> rows;

  bool is_pair() const { return rows.size() == 2; }
};

LedgerRow Row_Of(store::RowSet& row) {
  LedgerRow read{.Account = row["Account"].text(),
                 .Debit = row["Debit"].money(),
                 .Credit = row["Credit"].money(),
                 .Amount = row["Amount"].money(),
                 .Memo = row["Memo"].text(),
                 .Cleared = row["Cleared"].flag(),
                 .PayrollItem = row["PayrollItem"].text()};
  if (!row["Qty"].blank()) read.Qty = row["Qty"].number();
  if (!row["Hours"].blank()) read.Hours = row["Hours"].number();
  return read;
}

/// Whether a row is the other side of the one before it: the same item and amount on another category, the other way.
bool Is_Other_Side(const Posted& posted, const LedgerRow& row) {
  if (posted.rows.size() != 1 || !same_text(posted.item, row.PayrollItem)) return false;
  const LedgerRow& first = posted.rows.front();
  const bool across =
      (first.Debit.is_zero() && row.Credit.is_zero()) || (first.Credit.is_zero() && row.Debit.is_zero());
  return across && first.Amount == row.Amount && !same_text(first.Account, row.Account);
}

std::vector<Posted> Read_Posted(store::Recordset& rows) {
  std::vector<Posted> all;
  for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
    if (rows["PayrollItem"].blank()) continue;
    LedgerRow row = Row_Of(rows);
    if (all.empty() || !Is_Other_Side(all.back(), row))
      all.push_back({row.PayrollItem, row.Amount.value_or(Money()), row.Hours.value_or(0), row.Qty.value_or(0), {}});
    all.back().rows.push_back(std::move(row));
  }
  return all;
}

/// Amount over hours or pieces, in full: times them it is the amount again.
std::string Each(Money amount, double count) { return (Exact(amount) / Exact::of(count)).text(); }

/// Sorts the amounts of a check into its grids.
class Reopener {
 public:
  Reopener(Paycheck& check, const PayFacts& facts, const ItemSums& year) : check_(check), facts_(facts), year_(year) {}

  void sort(const Posted& posted) {
    const PayItem* item = facts_.items->find(posted.item);
    if (!item) return carry(posted);
    switch (item->type()) {
      case ItemType::Wage:
        return wage(posted, *item);
      case ItemType::Addition:
        return other(posted, *item), employee(posted, *item, posted.amount, 1);
      case ItemType::Deduction:
        return other(posted, *item), employee(posted, *item, -posted.amount, 1);
      case ItemType::Commision:
      case ItemType::CompanyContribution:
        return other(posted, *item), company(posted, *item, posted.amount, 1);
      case ItemType::Other:
        return carry(posted);
      default:
        return tax(posted, *item);
    }
  }

 private:
  void wage(const Posted& posted, const PayItem& item) {
    const std::string amount = Exact(posted.amount).cell();
    const std::string hours = posted.hours == 0 ? "" : Exact::of(posted.hours).text();
    const std::string rate = item.is_salary() || hours.empty() ? amount : Each(posted.amount, posted.hours);
    check_.grdEarnings.push_back({posted.item, rate, hours});
    employee(posted, item, posted.amount, 1);
  }
  void other(const Posted& posted, const PayItem& item) {
    const bool by_quantity = item.QuantityBased && posted.quantity != 0;
    OtherItemRow row{posted.item, Exact(posted.amount).cell(), "", item.Type};
    if (by_quantity) row.Rate = Each(posted.amount, posted.quantity), row.Quantity = Exact::of(posted.quantity).text();
    if (item.type() == ItemType::Deduction && !by_quantity) row.Rate = deduction_rate(posted, row.Rate);
    check_.grdOtherItems.push_back(std::move(row));
  }
  /// The employee's percentage, while there is one.
  std::string deduction_rate(const Posted& posted, const std::string& amount) const {
    for (const EmployeeLine& line : facts_.employee.adjustments)
      if (same_text(line.item, posted.item) && line.AmountRate && contains(*line.AmountRate, "%"))
        return *line.AmountRate;
    return amount;
  }
  /// A tax of both stands first with the employee, then with the company.
  void tax(const Posted& posted, const PayItem& item) {
    const bool both = contains(item.TaxPaid, "Both");
    const bool withheld = item.TaxPaid == "Employee Paid Tax" ||
                          (both && std::ranges::count(check_.grdEmployee, posted.item, &SummaryRow::Name) == 0);
    withheld ? employee(posted, item, -posted.amount, -1) : company(posted, item, -posted.amount, -1);
  }
  void employee(const Posted& posted, const PayItem& item, Money amount, int year_sign) {
    add(check_.grdEmployee, posted, was_reversed(posted, item) ? -amount : amount, year_of(item) * year_sign);
  }
  void company(const Posted& posted, const PayItem& item, Money amount, int year_sign) {
    add(check_.grdCompany, posted, was_reversed(posted, item) ? -amount : amount, year_of(item) * year_sign);
  }
  void carry(const Posted& posted) {
    const bool paid_out = !posted.rows.front().Debit.is_zero();
    const Money amount = paid_out && !posted.is_pair() ? posted.amount : -posted.amount;
    add(posted.is_pair() ? check_.unknown_company : check_.unknown_employee, posted, amount,
        year_.of(posted.item).amount);
    auto& shown = posted.is_pair() ? check_.grdCompany : check_.grdEmployee;
    shown.push_back((posted.is_pair() ? check_.unknown_company : check_.unknown_employee).back());
  }
  /// An amount given back stands on the other side of its categories.
  static bool was_reversed(const Posted& posted, const PayItem& item) {
    return std::ranges::any_of(posted.rows, [&item](const LedgerRow& row) {
      return (same_text(row.Account, item.LiabilityAcct) && !row.Debit.is_zero()) ||
             (same_text(row.Account, item.ExpenseAcct) && !row.Credit.is_zero());
    });
  }
  Exact year_of(const PayItem& item) const { return Exact(year_.of(item.Name).amount) / item.rows_per_amount(); }
  static void add(std::vector<SummaryRow>& grid, const Posted& posted, Money amount, Exact year) {
    const std::string cell = Exact(amount).cell();
    grid.push_back({posted.item, cell, year.cell(), cell, posted.rows});
  }

  Paycheck& check_;
  const PayFacts& facts_;
  const ItemSums& year_;
};

PayEmployee Employee_Of(store::Database& db, const std::string& ss_num, const std::string& name) {
  if (auto found = Find_Employee_By_Number(db, ss_num)) return *found;
  if (auto found = Find_Employee_By_Name(db, name)) return *found;
  return {.SSNum = ss_num, .Name = name};
}

/// The row without a payroll item: the bank's.
bool Find_Header(store::Recordset& rows) {
  for (; !rows.Eof(); rows.MoveNext())
    if (rows["Type"].text() == "Paycheck" && rows["PayrollItem"].blank() && !rows["Date"].blank()) return true;
  return false;
}

}  // namespace

std::optional<PaycheckEntry> Open_Paycheck(Session& session, int64_t TransNum) {
  store::Database& db = *session.dbCompany;
  Probe probe = Probe::Of(db, TransNum);
  auto rows = db.OpenRecordset("SELECT * FROM Transactions WHERE TransNum = ? ORDER BY RowKey", {TransNum});
  if (!Find_Header(rows)) return {};
  const Date day = rows["Date"].date();
  PaycheckEntry entry{.TransNum = TransNum,
                      .date = day,
                      .pay_end = day,
                      .BankID = rows["Account"].text(),
                      .Number = rows["Number"].text(),
                      .Class = rows["Class"].text(),
                      .Cleared = rows["Cleared"].flag(),
                      .period = Read_Pay_Period(rows["PayPeriod"].text(), day),
                      .probe = std::move(probe)};
  if (entry.period.last) entry.pay_end = *entry.period.last;
  entry.facts = Pay_Facts(session, Employee_Of(db, rows["SSNum"].text(), rows["Name"].text()), TransNum);
  entry.check.lblTotal = rows["Amount"].money();
  entry.check.lblMemo = rows["Memo"].text();
  entry.check.lblSick = entry.facts.employee.SickHoursStart;
  entry.check.lblVac = entry.facts.employee.VacHoursStart;
  const ItemSums year = ItemSums::Read(db, SumFilter::Paid_Up_To(entry.facts.employee.SSNum, day));
  Reopener reopener(entry.check, entry.facts, year);
  for (const Posted& posted : Read_Posted(rows)) reopener.sort(posted);
  return entry;
}

}  // namespace tallymere
