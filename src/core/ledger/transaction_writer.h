#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/company/session.h"
#include "core/ledger/probe.h"
#include "core/store/recordset.h"

/// The one way transactions get into the ledger: a transaction goes in, and goes out, whole.
namespace tallymere {

/// What all rows of a transaction repeat. Initialised in this order.
struct TransactionHead {
  int64_t TransNum = 0;  ///< 0: the next free number
  std::string Type = {};
  tallymere::Date Date;
  std::string Number = {};
  std::string Name = {};
  std::string Address = {};
  bool Cleared = false;  ///< as the rows were when the window loaded them; written to every row again
};

/// One row: its posting, then what documents add, initialised in this order. Empty text and unset values are
/// stored as null, but an unset Debit or Credit as 0, so that "Credit = 0" finds the other side. Nothing is stored
/// signed: a negative Debit becomes a Credit, a negative Credit a Debit, and Amount is its size.
struct LedgerRow {
  std::string Account = {};
  std::string Category = {};
  Money Debit = {};
  Money Credit = {};
  std::optional<Money> Amount = {};
  std::string Memo = {};
  std::string SourceName = {};
  std::string Class = {};
  std::string Item = {};
  std::string ItemDescription = {};
  std::optional<double> Qty = {};
  std::optional<Money> SalePrice = {};
  std::optional<double> ExactRate = {};  ///< of a tax, where SalePrice does not hold it
  bool Taxable = false;
  bool Cleared = false;  ///< or the head's
  bool Paid = false;
  std::string PaidBy = {};
  std::optional<Money> AmountReceived = {};
  std::optional<std::string> Type = {};  ///< these four: the row's own, be it empty; unset: the head's
  std::optional<std::string> Number = {};
  std::optional<std::string> Name = {};
  std::optional<std::string> Address = {};
  std::string ShippingAddress = {};
  std::string Terms = {};
  std::optional<Date> DueDate = {};
  std::string PONum = {};
  std::optional<Date> ShipDate = {};
  std::string FOB = {};
  std::string Via = {};
  std::string Rep = {};
  std::string PayMethod = {};
  std::optional<Date> PaidThrough = {};
  std::string SSNum = {};
  std::string PayrollItem = {};
  std::string PayPeriod = {};
  std::optional<double> Hours = {};
};

/// Writes a transaction, new or in place of its old rows: probe, delete, write, in one store transaction.
/// What is called between construction and commit belongs to it; without commit nothing has happened. Errors
/// 3197 (changed by another user) and 3218 (locked) come from the constructor, 3201 (no such category) from add.
class Transaction_Writer {
 public:
  /// A new entry whose number another user has taken since, or ever had, gets the next free one.
  Transaction_Writer(Session& session, TransactionHead head, const Probe& probe = {});

  int64_t number() const { return head_.TransNum; }
  /// A row on a category that is not there is refused; so is one on none, but for lines that post nothing.
  void add(LedgerRow row);
  /// What had been paid on the document before stays paid: its settlement is written onto the new rows.
  void commit();
  /// After commit: remembers the rows just written, for the next save from the same window.
  const Probe& probe() const { return written_; }

 private:
  void require_category(const LedgerRow& row);
  store::Database& db_;
  TransactionHead head_;
  std::set<std::string> found_;  ///< categories that are there
  store::Transaction tx_;
  Probe written_;
};

/// A transaction as the history speaks of it: "Check 1042, Acme Supply".
std::string Title_Of_Rows(store::Database& db, int64_t TransNum);

/// Removes all rows of a transaction, and what it settled is open again, in one store transaction; how many rows
/// there were.
int64_t Delete_Transaction(Session& session, int64_t TransNum);

/// Sets a few fields on all rows of a transaction that must not be rewritten; how many rows there are.
using FieldValues = std::vector<std::pair<std::string_view, store::Value>>;
int64_t Rewrite_Fields(Session& session, int64_t TransNum, const FieldValues& fields);

/// A save that met another user's, or a category that is not there. The save has ended and nothing was written.
struct Conflict {
  Box box;
  bool reload = false;  ///< show the box, then load the transaction anew; else what was typed stays
};
/// The conflict that an error stands for; nothing for any other failure.
std::optional<Conflict> Conflict_Of(const store::Error& error);

/// Runs a save and answers with the conflict it met, if any. Other errors pass through.
template <typename Save>
std::optional<Conflict> Save_Or_Conflict(Save&& save) {
  try {
    std::forward<Save>(save)();
    return std::nullopt;
  } catch (const store::Error& error) {
    if (auto conflict = Conflict_Of(error)) return conflict;
    throw;
  }
}

}  // namespace tallymere
