#include "payroll/ytd_setup.h"

#include <algorithm>

#include "core/ledger/ledger.h"
#include "core/ledger/transaction_writer.h"
#include "payroll/pay_items.h"

namespace tallymere {
namespace {

/// What of an amount was paid out: pay is, what the employee pays comes off, what the company pays is neither.
Money Paid_Out(const PayItem& item, Money amount) {
  switch (item.type()) {
    case ItemType::Wage:
    case ItemType::Commision:
    case ItemType::Addition:
      return amount;
    case ItemType::CompanyContribution:
      return {};
    default:
      return item.paid_by_employer() ? Money() : -amount;
  }
}

LedgerRow Row_Of(const std::string& account, const std::string& category, Money amount) {
  LedgerRow row{.Account = account, .Category = category, .Amount = amount.abs()};
  (amount > Money() ? row.Debit : row.Credit) = amount.abs();
  return row;
}

std::optional<Fault> Setup_Fault(const YtdSetup& setup) {
  const auto incomplete = [](const YtdSetup::Line& line) { return line.Item.empty() || !line.Amount; };
  if (setup.lines.empty() || std::ranges::any_of(setup.lines, incomplete))
    return Fault{{"Please have a payroll item and an amount for each row.", "Invalid Data"}, "grdIncome"};
  if (setup.SSNum.empty()) return Fault{{"Please select an Employee.", "No Employee"}, "cmbEmployee"};
  if (setup.to_bank && setup.BankID.empty()) return Fault{{"Please select a Bank.", "No Bank"}, "cmbBank"};
  return {};
}

}  // namespace

std::optional<Fault> Set_Up_Year_To_Date(Session& session, const YtdSetup& setup) {
  if (auto fault = Setup_Fault(setup)) return fault;
  const auto items = PayItems::Of(*session.dbCompany);
  const std::string against = setup.to_bank ? setup.BankID : opening_balance;
  Transaction_Writer writer(session, {.Type = "YTD Adjust", .Date = setup.date, .Name = setup.Employee});
  Money total;
  auto add = [&](LedgerRow row, const std::string& item) {
    row.SSNum = setup.SSNum;
    row.PayrollItem = item;
    writer.add(row);
  };
  for (const YtdSetup::Line& line : setup.lines) {
    const PayItem& item = items->item(line.Item);
    total += Paid_Out(item, *line.Amount);
    if (!item.ExpenseAcct.empty()) add(Row_Of(item.ExpenseAcct, against, *line.Amount), item.Name);
    if (!item.LiabilityAcct.empty()) add(Row_Of(item.LiabilityAcct, against, -*line.Amount), item.Name);
  }
  add(Row_Of(against, break_down, -total), "");
  writer.commit();
  return {};
}

}  // namespace tallymere
