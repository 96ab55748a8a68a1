#include "payroll/posting.h"

#include <algorithm>

#include "core/ledger/ledger.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

/// The hours of a wage's rows: of the row in the same place among those of that name, or of all of them when the user has
/// put them together by hand.
double Hours_Of(const Paycheck& check, const std::string& wage, size_t place) {
  std::vector<double> hours;
  for (const EarningRow& row : check.grdEarnings)
    if (same_text(row.Name, wage)) hours.push_back(First_Number(row.Hours).money().to_double());
  const auto lines =
      std::ranges::count_if(check.grdEmployee, [&](const SummaryRow& row) { return same_text(row.Name, wage); });
  if (static_cast<size_t>(lines) == hours.size()) return hours[place];
  double sum = 0;
  for (const double each : hours) sum += each;
  return place == 0 ? sum : 0;
}

// The quantity of an item is the hours of the current wage, once for each of its rows: so it has always been kept.
double Quantity_Of(const Paycheck& check, const std::string& item) {
  if (check.current_earning >= check.grdEarnings.size()) return 0;
  const double hours = First_Number(check.grdEarnings[check.current_earning].Hours).money().to_double();
  const auto rows =
      std::ranges::count_if(check.grdOtherItems, [&](const OtherItemRow& row) { return same_text(row.Item, item); });
  return hours * static_cast<double>(rows);
}

/// Writes one check row by row.
class PaycheckRows {
 public:
  PaycheckRows(Transaction_Writer& rows, const PaycheckEntry& entry) : rows_(rows), entry_(entry) {}

  void bank() {
    const Paycheck& check = entry_.check;
    rows_.add({.Account = entry_.BankID,
               .Category = break_down,
               .Credit = check.lblTotal,
               .Amount = check.lblTotal,
               .Memo = check.lblMemo,
               .Class = entry_.Class,
               .Cleared = entry_.Cleared,
               .SSNum = entry_.facts.employee.SSNum,
               .PayPeriod = entry_.period.text()});
  }
  void summary(const std::vector<SummaryRow>& grid, Summary which) {
    for (size_t at = 0; at < grid.size(); ++at) {
      if (grid[at].Name.empty()) continue;
      const auto before = grid.begin() + static_cast<std::ptrdiff_t>(at);
      const auto place = std::count_if(grid.begin(), before,
                                       [&](const SummaryRow& row) { return same_text(row.Name, grid[at].Name); });
      amount(grid[at], which, static_cast<size_t>(place));
    }
  }

 private:
  void amount(const SummaryRow& row, Summary which, size_t place) {
    if (!row.loaded.empty() && row.Amount == row.loaded_amount) {
      for (LedgerRow kept : row.loaded) line(std::move(kept));
      return;
    }
    const PayItem& item = entry_.facts.items->item(row.Name);
    const Money amount = row.amount().cents();
    for (const PostedSide& side : Sides_Of(entry_.facts.rule, item, amount, which)) {
      LedgerRow posted{.Account = side.Account, .Debit = side.Debit, .Credit = side.Credit, .Amount = amount.abs()};
      posted.PayrollItem = row.Name;
      const bool expense = side.Account == item.ExpenseAcct;
      if (expense && item.type() == ItemType::Wage) posted.Hours = Hours_Of(entry_.check, row.Name, place);
      if (expense && item.QuantityBased) posted.Qty = Quantity_Of(entry_.check, row.Name);
      line(std::move(posted));
    }
  }
  /// What every row of the check says alike.
  void line(LedgerRow row) {
    row.Category = entry_.BankID;
    row.Class = entry_.Class;
    row.SSNum = entry_.facts.employee.SSNum;
    row.PayPeriod = entry_.period.text();
    rows_.add(row);
  }

  Transaction_Writer& rows_;
  const PaycheckEntry& entry_;
};

void Write(Session& session, PaycheckEntry& entry) {
  store::Database& db = *session.dbCompany;
  const PayEmployee& employee = entry.facts.employee;
  store::Transaction tx(db, "Paycheck, " + employee.Name);
  Transaction_Writer writer(session,
                            {.TransNum = entry.TransNum,
                             .Type = "Paycheck",
                             .Date = entry.date,
                             .Number = entry.Number,
                             .Name = employee.Name,
                             .Address = employee.address()},
                            entry.probe);
  PaycheckRows rows(writer, entry);
  rows.bank();
  rows.summary(entry.check.grdEmployee, Summary::Employee);
  rows.summary(entry.check.grdCompany, Summary::Company);
  writer.commit();
  if (entry.is_new()) {
    Open_Pay_Period(db, entry.pay_end);
    Mark_Paid(db, employee.Name, entry.pay_end);
  }
  tx.commit();
  entry.TransNum = writer.number();
  entry.probe = writer.probe();
}

}  // namespace

PostResult Post_Paycheck(Session& session, PaycheckEntry& entry) {
  const auto& earnings = entry.check.grdEarnings;
  if (std::ranges::all_of(earnings, [](const EarningRow& row) { return row.Name.empty(); }))
    return {.fault =
                Fault{{"You must enter some income in the earnings section before cutting a paycheck.", "No Income"},
                      "grdEarnings"}};
  return {.conflict = Save_Or_Conflict([&] { Write(session, entry); })};
}

std::vector<std::string> Off_Balance_Lines(const PaycheckEntry& entry) {
  std::vector<std::string> lines;
  auto look = [&](const std::vector<SummaryRow>& grid, Summary which) {
    for (const SummaryRow& row : grid)
      if (const PayItem* item = entry.facts.items->find(row.Name))
        if (std::string why = Why_Off_Balance(entry.facts.rule, *item, row.amount().cents(), which); !why.empty())
          lines.push_back(std::move(why));
  };
  look(entry.check.grdEmployee, Summary::Employee);
  look(entry.check.grdCompany, Summary::Company);
  return lines;
}

}  // namespace tallymere
