#pragma once

#include <array>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "core/company/session.h"
#include "core/ledger/transaction_writer.h"

/// Holding a bank's statement against the rows of its category.
namespace tallymere {

/// One row of the category that no statement has cleared yet.
struct ReconcileLine {
  bool Cleared = false;  ///< marked as standing on the statement
  std::string Type;
  std::string Number;
  std::optional<tallymere::Date> Date;
  std::string Name;
  std::string Memo;
  Money Amount;
  int64_t TransNum = 0;
  int64_t key = 0;  ///< of the ledger's row: what is stamped is this row and no other
};

enum class Side { Deposits, Payments };

struct LineSum {
  int count = 0;
  Money total;
};

/// A reconciliation under way. Nothing is written before Balance.
class Reconciliation {
 public:
  Reconciliation(Session& session, std::string CatID);

  /// Reads the uncleared rows; those that were marked stay marked as long as they are there.
  void Load_Lists();

  const std::string& CatID() const { return CatID_; }
  const std::vector<ReconcileLine>& lines(Side side) const { return lines_[static_cast<size_t>(side)]; }
  void mark(Side side, size_t line, bool marked);
  void mark_all(bool marked);

  void set_ending(Money balance) { ending_ = balance; }
  Money opening() const { return opening_; }  ///< what earlier statements have cleared
  Money ending() const { return ending_; }
  Money cleared() const;  ///< opening, plus marked deposits, less marked payments
  Money difference() const { return ending_ - cleared(); }
  LineSum marked(Side side) const { return marked_[static_cast<size_t>(side)]; }

  /// Stamps the marked rows as cleared, all or none. The fault says that the difference is not zero yet; the conflict, that
  /// another user has changed or cleared one of the rows meanwhile.
  struct Result {
    std::optional<Fault> fault = {};
    std::optional<Conflict> conflict = {};
    bool ok() const { return !fault && !conflict; }
  };
  Result Balance();

 private:
  std::vector<ReconcileLine> read(Side side) const;
  void stamp(const ReconcileLine& line, Side side);

  Session& session_;
  std::string CatID_;
  Money opening_, ending_;
  std::array<std::vector<ReconcileLine>, 2> lines_;
  std::array<LineSum, 2> marked_;
};

}  // namespace tallymere
