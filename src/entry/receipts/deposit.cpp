#include "entry/receipts/deposit.h"

#include <algorithm>

#include "core/ledger/ledger.h"
#include "core/ledger/settlement.h"
#include "core/values/format.h"
#include "entry/receipts/payment.h"

namespace tallymere {

Money Deposit::total() const {
  Money total;
  for (const DepositLine& line : lines) total += line.Amount.value_or(Money());
  return total;
}

Deposit New_Deposit(Session& session) {
  return {.TransNum = Next_TransNum(*session.dbCompany), .Date = session.today()};
}

std::vector<std::pair<std::string, std::string>> Deposit_Banks(Session& session) {
  auto banks = Deposit_Categories(session);
  std::erase_if(banks, [](const auto& bank) { return bank.second == undeposited_funds; });
  return banks;
}

std::vector<DepositLine> Held_Lines(Session& session, const std::vector<int64_t>& payments) {
  const std::string held = Category_Name(session, undeposited_funds);
  std::vector<DepositLine> lines;
  for (const WaitingPayment& each : Waiting_Payments(session))
    if (std::ranges::find(payments, each.TransNum) != payments.end())
      lines.push_back({.Customer = each.Name,
                       .Amount = each.Amount,
                       .Category = held,
                       .CatID = undeposited_funds,
                       .Payment = each.TransNum});
  return lines;
}

// --- saving --------------------------------------------------------------------------------------

namespace {

bool Is_Blank(const DepositLine& line) {
  return line.Customer.empty() && !line.Amount && line.Memo.empty() && line.Category.empty() && line.Class.empty();
}

std::optional<Fault> Fault_Of(const Deposit& deposit) {
  if (deposit.BankID.empty()) return Mistake("Please Select a Bank to Deposit To.", "No Bank", "cmbBank");
  if (deposit.lines.empty()) return Mistake("Please Enter Deposits in Register.", "No Items", "grdPayments");
  for (const DepositLine& line : deposit.lines)
    if (line.CatID.empty() || !line.Amount)
      return Mistake("Please Select a Category to Deposit From and Enter an Amount.", "Invalid Data", "grdPayments");
  return std::nullopt;
}

/// A line's payment as it waits now; nothing when it waits no more, or for another amount.
bool Still_Waits(const std::vector<WaitingPayment>& waiting, const DepositLine& line) {
  const auto found = std::ranges::find(waiting, line.Payment, &WaitingPayment::TransNum);
  return found != waiting.end() && found->Amount == line.Amount;
}

std::optional<Fault> Gone_Meanwhile(Session& session, const Deposit& deposit) {
  const std::vector<WaitingPayment> waiting = Waiting_Payments(session);
  for (const DepositLine& line : deposit.lines)
    if (line.Payment != 0 && !Still_Waits(waiting, line))
      return Mistake("The payment of " + line.Customer + " over " + Dollar_Text(*line.Amount) +
                         " does not wait any more. Another user changed or deposited it. Take it out of this deposit.",
                     "Data has changed", "grdPayments");
  return std::nullopt;
}

LedgerRow Bank_Row(const Deposit& deposit, const std::string& Category) {
  const bool single = deposit.lines.size() == 1;
  LedgerRow row{.Account = deposit.BankID, .Category = single ? Category : break_down, .Memo = "Deposit"};
  Post(row, LineSide::Debit, deposit.total());
  if (single) row.Name = deposit.lines.front().Customer;
  return row;
}

LedgerRow Source_Row(const Deposit& deposit, const DepositLine& line, const std::string& Account) {
  LedgerRow row{.Account = Account, .Category = deposit.BankID, .Memo = line.Memo, .Class = line.Class};
  row.Name = line.Customer;
  Post(row, LineSide::Credit, line.Amount);
  return row;
}

std::optional<Fault> Write_Deposit(Session& session, Deposit& deposit) {
  Transaction_Writer rows(
      session, {.TransNum = deposit.TransNum, .Type = "Ledger Entry", .Date = deposit.Date, .Number = deposit.Number});
  if (auto fault = Gone_Meanwhile(session, deposit)) return fault;
  std::vector<LedgerRow> sources;
  for (const DepositLine& line : deposit.lines)
    sources.push_back(Source_Row(deposit, line, Get_Postable_Category(session, line.CatID)));
  rows.add(Bank_Row(deposit, sources.front().Account));
  for (const LedgerRow& row : sources) rows.add(row);
  for (const DepositLine& line : deposit.lines)
    if (line.Payment != 0) Apply(*session.dbCompany, rows.number(), line.Payment, *line.Amount);
  rows.commit();
  deposit.TransNum = rows.number();
  return std::nullopt;
}

}  // namespace

SaveResult Enter_Deposit_Form(Session& session, Deposit& deposit) {
  std::erase_if(deposit.lines, Is_Blank);
  if (auto fault = Fault_Of(deposit)) return {.fault = fault};
  SaveResult result;
  result.conflict = Save_Or_Conflict([&] { result.fault = Write_Deposit(session, deposit); });
  result.written = result.ok();
  return result;
}

}  // namespace tallymere
