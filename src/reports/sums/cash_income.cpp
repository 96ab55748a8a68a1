#include <algorithm>
#include <utility>

#include "core/company/schema.h"
#include "core/ledger/ledger.h"
#include "reports/sums/income_shares.h"
#include "reports/sums/kept_ledger.h"
#include "reports/sums/ledger_sums.h"

// Income on cash basis: counted when the customer pays.
namespace tallymere {
namespace {

/// The numbers of the transactions dated in a period, unless that holds the whole ledger: they spare looking
/// at what others paid.
class Period {
 public:
  Period(store::Database& db, DateRange days) {
    auto oldest = db.value("SELECT MIN(Date) FROM Transactions").maybe_date();
    auto newest = db.value("SELECT MAX(Date) FROM Transactions").maybe_date();
    is_whole_ledger_ = !oldest || (*oldest >= days.start && *newest <= days.end);
    if (is_whole_ledger_) return;
    db.each(
        "SELECT TransNum FROM Transactions INDEXED BY Transactions_Date WHERE Date >= ? AND Date <= ?"
        " GROUP BY Date, TransNum",
        {days.start, days.end}, [&](const store::Row& row) { numbers_.push_back(row.integer(0)); });
    std::sort(numbers_.begin(), numbers_.end());
    numbers_.erase(std::unique(numbers_.begin(), numbers_.end()), numbers_.end());
  }

  bool is_whole_ledger() const { return is_whole_ledger_; }
  const std::vector<int64_t>& numbers() const { return numbers_; }
  bool holds(int64_t number) const { return std::binary_search(numbers_.begin(), numbers_.end(), number); }

 private:
  bool is_whole_ledger_ = false;
  std::vector<int64_t> numbers_;  // sorted; small enough for any company
};

/// Numbers as a parameter for json_each, in lists of a bearable length.
template <typename Fn>
void Each_List(const std::vector<int64_t>& numbers, Fn&& fn) {
  constexpr size_t longest = 10000;
  std::string list;
  for (size_t at = 0; at < numbers.size(); ++at) {
    list += (list.empty() ? "[" : ",") + std::to_string(numbers[at]);
    if ((at + 1) % longest != 0 && at + 1 < numbers.size()) continue;
    fn(std::exchange(list, {}) + "]");
  }
}

/// Rows that name a payment of a period, read in batches and shared out.
class PaidRows {
 public:
  PaidRows(store::Database& db, const CatIDs& categories, DateRange days, const TakeAmount& take)
      : db_(db), days_(days), places_(categories), take_(take) {}

  void read() {
    const Period period(db_, days_);
    if (period.is_whole_ledger()) {
      read_rows("", " WHERE PaidBy IS NOT NULL", {});
    } else {
      Each_List(period.numbers(), [this](const std::string& payments) {
        read_rows(" json_each(?) AS payment CROSS JOIN",
                  " WHERE PaidBy >= payment.value || ';' AND PaidBy < payment.value || '<'", {payments});
      });
      read_several_times_paid(period);
    }
    share_out();
  }

 private:
  void read_rows(const std::string& before, const std::string& where, const store::Database::Params& params) {
    db_.each("SELECT PaidBy, Account, TransNum, Credit, Amount FROM" + before +
                 " Transactions INDEXED BY Transactions_PaidBy" + where +
                 " AND (Paid <> 0 OR Transactions.Type = 'Invoice')",
             params, [this](const store::Row& row) { add(row); });
  }

  /// The rows whose first payment was not in the period, but a later one was.
  void read_several_times_paid(const Period& period) {
    db_.each("SELECT DISTINCT PaidBy FROM Transactions INDEXED BY Transactions_PaidByMore WHERE " +
                 std::string(not_one_payment),
             {}, [&](const store::Row& row) {
               const auto numbers = Payments_Of(row.text(0));
               auto in_period = [&](int64_t number) { return period.holds(number); };
               if (std::none_of(numbers.begin(), numbers.end(), in_period)) return;
               const bool known =
                   in_period(numbers.front()) && row.text(0).starts_with(std::to_string(numbers.front()) + ";");
               if (!known) read_rows("", " WHERE PaidBy = ?", {row.text(0)});
             });
  }

  void add(const store::Row& row) {
    constexpr size_t batch = 20000;
    const auto place = places_.find(row.text(1));
    if (!place) return;
    if (shares_.size() >= batch) share_out();
    shares_.add(*place, row.integer(2), row.text(0), row.integer(3) != 0, row.money(4));
  }

  void share_out() {
    const HeadRows payments =
        read_heads(shares_.payments(),
                   "SELECT wanted.value, Amount, Date FROM json_each(?) AS wanted CROSS JOIN Transactions ON"
                   " Transactions.RowKey = (SELECT RowKey FROM Transactions AS head WHERE head.TransNum = wanted.value"
                   " ORDER BY RowKey LIMIT 1)");
    const HeadRows receivables =
        read_heads(shares_.invoices(),
                   "SELECT wanted.value, Amount, NULL FROM json_each(?) AS wanted CROSS JOIN Transactions"
                   " INDEXED BY Transactions_Receivable WHERE TransNum = wanted.value AND Account = 'AR1'");
    shares_.share_out(payments, receivables, [this](const DatedAmount& part) {
      if (part.date >= days_.start && part.date <= days_.end) take_(part);
    });
    shares_.clear();
  }

  HeadRows read_heads(const std::vector<int64_t>& numbers, std::string_view sql) {
    HeadRows heads;
    Each_List(numbers, [&](const std::string& list) {
      db_.each(sql, {list}, [&](const store::Row& row) { heads.add(row.integer(0), row.date(2), row.money(1)); });
    });
    heads.settle();
    return heads;
  }

  store::Database& db_;
  DateRange days_;
  CategoryPlaces places_;
  const TakeAmount& take_;
  IncomeShares shares_;
};

}  // namespace

void Sum_CashIncome(store::Database& db, const CatIDs& categories, DateRange days, const TakeAmount& take) {
  if (auto* kept = KeptLedger::Of(db, categories)) return kept->Sum_CashIncome(categories, days, take);
  PaidRows(db, categories, days, take).read();
  db.each(
      "SELECT wanted.key, Date, SUM(CASE WHEN Credit <> 0 THEN ABS(Amount) ELSE -ABS(Amount) END)"
      " FROM json_each(?3) AS wanted CROSS JOIN Transactions INDEXED BY Transactions_Account"
      " WHERE Account = wanted.value AND Date >= ?1 AND Date <= ?2 AND (Paid IS NULL OR Paid = 0)"
      " AND (Transactions.Type IS NULL OR Transactions.Type <> 'Invoice') GROUP BY wanted.key, Date",
      {days.start, days.end, Id_List(categories)}, [&](const store::Row& row) {
        take({static_cast<size_t>(row.integer(0)), *row.date(1), row.money(2)});
      });
}

Figures Sum_CashIncome(store::Database& db, const CatIDs& categories, DateRange days) {
  std::vector<Money> sums(categories.size());
  Sum_CashIncome(db, categories, days, [&](const DatedAmount& part) { sums[part.category] += part.amount; });
  return By_Category(categories, sums);
}

}  // namespace tallymere
