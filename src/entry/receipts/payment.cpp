#include "entry/receipts/payment.h"

#include <algorithm>

#include "core/ledger/ledger.h"
#include "core/ledger/settlement.h"
#include "core/ledger/stored_row.h"
#include "core/store/recordset.h"
#include "core/values/format.h"

namespace tallymere {
namespace {

constexpr std::string_view payment_types[] = {"Payment"};

}  // namespace

std::vector<std::pair<std::string, std::string>> Deposit_Categories(Session& session) {
  std::vector<std::pair<std::string, std::string>> found;
  session.dbCompany->each(
      "SELECT AccountName, CatID FROM Accounts WHERE AccountType = 'Bank' OR CatID = 'UF1' ORDER BY RowKey", {},
      [&](const store::Row& row) { found.emplace_back(row.text(0), row.text(1)); });
  return found;
}

// --- loading -------------------------------------------------------------------------------------

Payment New_Payment(Session& session) {
  return {.TransNum = Next_TransNum(*session.dbCompany), .Date = session.today()};
}

namespace {

void Read_Rows(store::Recordset& rows, Payment& payment) {
  for (; !rows.Eof(); rows.MoveNext()) {
    LedgerRow row = Stored_Row(rows);
    const bool money = row.Account != accounts_receivable;
    if (money) payment.CatID = row.Account;
    payment.Cleared |= row.Cleared;
    payment.deposited |= money && row.Paid && row.Account == undeposited_funds;
    if (payment.kept.empty()) {
      payment.Name = row.Name.value_or("");
      payment.Number = row.Number.value_or("");
      payment.Memo = row.Memo;
      payment.PayMethod = row.PayMethod;
      payment.Amount = row.Amount;
    }
    payment.kept.push_back(std::make_shared<const LedgerRow>(std::move(row)));
  }
}

/// What this payment settled of each document.
std::vector<Application> Shares(store::Database& db, const Payment& payment) {
  return payment.is_new() ? std::vector<Application>{} : Applied_By(db, payment.TransNum);
}

OpenItem Read_Item(store::Database& db, int64_t TransNum) {
  OpenItem item{.TransNum = TransNum, .probe = Probe::Of(db, TransNum)};
  db.each(
      "SELECT Date, Number, IFNULL(Debit, 0) - IFNULL(Credit, 0), IFNULL(AmountReceived, 0), Amount FROM Transactions"
      " WHERE TransNum = ? AND Account = 'AR1' ORDER BY RowKey LIMIT 1",
      {TransNum}, [&](const store::Row& row) {
        item.Date = row.date(0);
        item.Number = row.text(1);
        item.Total = row.money(2);
        item.AmountRecieved = item.before = row.money(3);
      });
  return item;
}

}  // namespace

void List_Open_Items(Session& session, Payment& payment) {
  store::Database& db = *session.dbCompany;
  const std::vector<Application> shares = Shares(db, payment);
  std::vector<int64_t> numbers;
  db.each(
      "SELECT DISTINCT TransNum FROM Transactions WHERE Name = ? AND Account = 'AR1' AND Paid = False AND Type IN "
      "('Invoice', 'Statement')",
      {payment.Name}, [&](const store::Row& row) { numbers.push_back(row.integer(0)); });
  for (const Application& share : shares) numbers.push_back(share.TransNum);
  std::ranges::sort(numbers);
  numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
  payment.items.clear();
  for (const int64_t number : numbers) {
    OpenItem item = Read_Item(db, number);
    const auto own = std::ranges::find(shares, number, &Application::TransNum);
    item.Recieved = own != shares.end();
    if (item.Recieved) item.before -= own->Amount;
    payment.items.push_back(item);
  }
  std::ranges::stable_sort(payment.items, {}, &OpenItem::Date);
}

namespace {

bool Names_It(store::Database& db, const Payment& payment) {
  return !db.value("SELECT 1 FROM Transactions WHERE Name = ? AND Account = 'AR1' AND instr(';' || PaidBy, ?) > 0",
                   {payment.Name, ";" + Paid_By(payment.TransNum)})
              .is_null();
}

}  // namespace

std::optional<Payment> Load_Payment(Session& session, int64_t TransNum) {
  store::Database& db = *session.dbCompany;
  Payment payment{.TransNum = TransNum, .Date = session.today(), .probe = Probe::Of(db, TransNum)};
  auto stored = db.OpenRecordset("SELECT * FROM Transactions WHERE TransNum = ? AND Type = 'Payment' ORDER BY RowKey",
                                 {TransNum});
  if (!stored.has_row()) return std::nullopt;
  payment.Date = stored["Date"].date();
  Read_Rows(stored, payment);
  if (const auto holders = Applied_To(db, TransNum); !holders.empty()) payment.deposit = holders.front().TransNum;
  payment.deposited |= payment.deposit != 0;
  payment.unrecorded = Shares(db, payment).empty() && Names_It(db, payment);
  List_Open_Items(session, payment);
  return payment;
}

// --- applying ------------------------------------------------------------------------------------

Money Apply_Automatically(std::vector<OpenItem>& items, Money amount) {
  for (OpenItem& item : items) {
    item.Recieved = false;
    item.AmountRecieved = item.before;
  }
  const auto take = [](OpenItem& item, Money share) {
    item.Recieved = true;
    item.AmountRecieved = item.before + share;
  };
  const Money exact = amount.rounded_to_cents();
  const auto same = std::ranges::find_if(items, [&](const OpenItem& item) {
    return item.before.is_zero() && item.Total.rounded_to_cents() == exact && !exact.is_zero() && !exact.is_negative();
  });
  if (same != items.end()) {
    take(*same, amount);
    return {};
  }
  Money left = amount;
  for (OpenItem& item : items) {
    if (left <= Money()) break;
    const Money share = std::min(left, item.open());
    if (share <= Money()) continue;
    take(item, share);
    left -= share;
  }
  return left;
}

Money Left_To_Apply(const std::vector<OpenItem>& items, Money amount) {
  for (const OpenItem& item : items)
    if (item.Recieved) amount -= item.share();
  return amount;
}

void Tick(OpenItem& item, Money left) {
  if (!item.Recieved)
    item.AmountRecieved = item.before;
  else if (item.share().is_zero())
    item.AmountRecieved += std::clamp(left, Money(), std::max(item.open(), Money()));
}

// --- saving --------------------------------------------------------------------------------------

namespace {

bool Takes(const OpenItem& item) { return item.Recieved && !item.share().is_zero(); }

std::optional<Fault> Fault_Of(const Payment& payment) {
  const Money amount = payment.Amount.value_or(Money());
  if (payment.Name.empty())
    return Mistake("Please select the customer this payment is from.", "No Customer", "cmbCustomer");
  if (payment.CatID.empty()) return Mistake("Please Select a Bank to Deposit to.", "No Bank", "cmbAccount");
  if (!Left_To_Apply(payment.items, amount).is_zero())
    return Mistake("Applied amounts does not equal payment amount.", "Not Equal", "txtAmount");
  if (payment.items.empty()) return Mistake("No Invoices to apply payment to.", "No Invoices", "cmbCustomer");
  if (std::ranges::none_of(payment.items, Takes))
    return Mistake("Payment has not been applied to an invoice.", "No Invoices Paid", "grdHistory");
  // What is applied is never negative, and never more than is owed.
  for (const OpenItem& item : payment.items)
    if (Takes(item) && (item.share().is_negative() || item.share() > item.open()))
      return Fault{{"Applied amounts does not equal payment amount.", "Not Equal", Icon::Information,
                    "Of " + item.Number + ", " + Dollar_Text(item.open()) + " is open, and " +
                        Dollar_Text(item.share()) + " would be applied."},
                   "grdHistory"};
  return std::nullopt;
}

LedgerRow Begin_Row(const Payment& payment, bool receivable) {
  for (const KeptRow& row : payment.kept)
    if ((row->Account == accounts_receivable) == receivable) {
      LedgerRow kept = *row;
      kept.Type = kept.Number = kept.Name = kept.Address = std::nullopt;
      return kept;
    }
  return {};
}

/// The money's row and the receivable's. Money that is held waits: its rows are not Paid.
std::vector<LedgerRow> Rows_Of(const Payment& payment) {
  LedgerRow money = Begin_Row(payment, false), receivable = Begin_Row(payment, true);
  money.Account = receivable.Category = payment.CatID;
  receivable.Account = money.Category = accounts_receivable;
  Post(money, LineSide::Debit, payment.Amount);
  Post(receivable, LineSide::Credit, payment.Amount);
  for (LedgerRow* row : {&money, &receivable}) {
    row->Memo = payment.Memo;
    row->PayMethod = payment.PayMethod;
    row->Paid = payment.CatID != undeposited_funds;
  }
  return {money, receivable};
}

void Apply_Shares(store::Database& db, int64_t number, const std::vector<OpenItem>& items) {
  for (const Application& before : Applied_By(db, number)) {
    const auto item = std::ranges::find(items, before.TransNum, &OpenItem::TransNum);
    if (item == items.end() || !Takes(*item)) Apply(db, number, before.TransNum, Money());
  }
  for (const OpenItem& item : items)
    if (Takes(item)) Apply(db, number, item.TransNum, item.share());
}

void Write_Payment(Session& session, Payment& payment) {
  store::Database& db = *session.dbCompany;
  const auto shares = Shares(db, payment);
  const auto settled = [&](const OpenItem& item) {
    return std::ranges::find(shares, item.TransNum, &Application::TransNum) != shares.end();
  };
  Transaction_Writer rows(session,
                          {.TransNum = payment.TransNum,
                           .Type = "Payment",
                           .Date = payment.Date,
                           .Number = payment.Number,
                           .Name = payment.Name},
                          payment.probe);
  for (const OpenItem& item : payment.items)
    if (Takes(item) || settled(item)) item.probe.check(db);
  for (const LedgerRow& row : Rows_Of(payment)) rows.add(row);
  Apply_Shares(db, rows.number(), payment.items);
  rows.commit();
  payment.TransNum = rows.number();
  payment.probe = rows.probe();
  List_Open_Items(session, payment);  // as they stand now, for the next save from the same window
}

}  // namespace

SaveResult Enter_Payment(Session& session, Payment& payment) {
  if (payment.is_new() && payment.Name.empty() && !payment.Amount) return {};
  if (const std::string why = Locked_Why(session, payment); !why.empty())
    return {.fault = Mistake(why, "Payment Deposited", "cmbCustomer")};
  if (auto fault = Fault_Of(payment)) return {.fault = fault};
  auto conflict = Save_Or_Conflict([&] { Write_Payment(session, payment); });
  return {.conflict = conflict, .written = !conflict};
}

std::string Locked_Why(Session& session, const Payment& payment) {
  if (payment.deposit != 0)
    return "This payment lies in a deposit: " + Title_Of_Rows(*session.dbCompany, payment.deposit) + " (transaction " +
           std::to_string(payment.deposit) + "). Delete that deposit first.";
  if (payment.deposited) return "This payment has been deposited.";
  if (payment.Cleared) return "This payment has cleared the bank.";
  if (payment.unrecorded)
    return "How much this payment paid of each invoice was never recorded. Delete it and enter it again to change it.";
  return "";
}

// --- deleting ------------------------------------------------------------------------------------

const DocumentKind<Payment> Payment_Kind = {
    "payment", {payment_types, 0, "AR1"}, New_Payment, Load_Payment, Enter_Payment};

Deleted<Payment> Delete_Payment(Session& session, const Payment& payment) {
  const auto refusal = [&]() -> std::optional<Box> {
    if (payment.Cleared) return Box{"Cannot Delete a Payment that has cleared the bank.", "No Delete", Icon::Critical};
    const std::string why = payment.deposited ? Locked_Why(session, payment) : "";
    return why.empty() ? std::nullopt : std::optional(Box{why, "No Delete", Icon::Critical});
  };
  return Delete_Document(
      session, Payment_Kind, payment,
      {.question = "Are you sure you want to delete this Payment?",
       .spoken = Spoken(payment.is_new() ? "the new Payment" : "Payment", payment.Number, payment.Name, payment.Amount),
       .refusal = refusal});
}

// --- waiting for a deposit -----------------------------------------------------------------------

std::vector<WaitingPayment> Waiting_Payments(Session& session) {
  std::vector<WaitingPayment> waiting;
  session.dbCompany->each(
      "SELECT TransNum, Name, Amount, Date FROM Transactions WHERE Type = 'Payment' AND Paid = False AND "
      "Account = 'AR1' ORDER BY Date, TransNum",
      {}, [&](const store::Row& row) {
        waiting.push_back(
            {row.integer(0), std::string(row.text(1)), row.money(2), row.date(3).value_or(session.today())});
      });
  return waiting;
}

}  // namespace tallymere
