#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "reports/sums/ledger_sums.h"

namespace tallymere {

/// The first rows of transactions, found by number.
class HeadRows {
 public:
  struct Head {
    int64_t TransNum;
    std::optional<Date> day;
    Money Amount;
  };

  /// In the order of writing: the first row of a number is the one that counts.
  void add(int64_t TransNum, std::optional<Date> day, Money Amount);
  void settle();                             ///< once all are added
  const Head* find(int64_t TransNum) const;  ///< nullptr when there is none

 private:
  std::vector<Head> heads_;
};

/// Rows of income that name the transactions which paid them, kept until those are known.
class IncomeShares {
 public:
  void add(size_t category, int64_t TransNum, std::string_view PaidBy, bool is_credit, Money Amount);
  size_t size() const { return rows_.size(); }
  void clear();

  // What must be known of, ascending, each number once.
  std::vector<int64_t> payments() const;
  std::vector<int64_t> invoices() const;

  /// Tells of every share, on its payment's day: the row's part of a payment that is less than the whole
  /// receivable, else all of the row. Payments that are gone or have no date are passed over; without a
  /// receivable the whole row counts.
  void share_out(const HeadRows& payments, const HeadRows& receivables, const TakeAmount& take) const;

 private:
  struct Row {
    size_t category;
    int64_t TransNum;
    bool is_credit;
    Money Amount;
    size_t first_payment, payment_count;  ///< part of payments_
  };

  std::vector<Row> rows_;
  std::vector<int64_t> payments_;
  std::string PaidBy_;  ///< of the last row: many rows in turn bear the same
  size_t first_payment_ = 0;
};

}  // namespace tallymere
