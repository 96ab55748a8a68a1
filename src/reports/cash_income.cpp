#include <algorithm>

#include "core/ledger.h"
#include "core/schema.h"
#include "reports/kept_ledger.h"
#include "reports/ledger_sums.h"

// Income on cash basis: counted when the customer pays.
namespace tallymere {
namespace {

struct Payment {
  Date date;
  Money Amount;
};

/// The payments of a period. Unless it holds the whole ledger, which numbers may lie in it is read once: that
/// spares looking at all others.
class Payments {
 public:
  Payments(store::Database& db, DateRange days)
      : first_row_(
            db.query("SELECT Date, Amount FROM Transactions WHERE TransNum = ? ORDER BY RowKey LIMIT 1",
                     {int64_t{0}})),
        days_(days) {
    auto oldest = db.value("SELECT MIN(Date) FROM Transactions").maybe_date();
    auto newest = db.value("SELECT MAX(Date) FROM Transactions").maybe_date();
    all_in_period_ = !oldest || (*oldest >= days.start && *newest <= days.end);
    if (all_in_period_) return;
    db.each(
        "SELECT TransNum FROM Transactions INDEXED BY Transactions_Date WHERE Date >= ? AND Date <= ?"
        " GROUP BY Date, TransNum",
        {days.start, days.end}, [&](const store::Row& row) { in_period_.push_back(row.integer(0)); });
    std::sort(in_period_.begin(), in_period_.end());
    in_period_.erase(std::unique(in_period_.begin(), in_period_.end()), in_period_.end());
  }

  bool all_in_period() const { return all_in_period_; }
  bool may_be_in_period(int64_t number) const {
    return all_in_period_ || std::binary_search(in_period_.begin(), in_period_.end(), number);
  }
  /// For json_each: lists of the numbers in the period, each of a bearable length.
  std::vector<std::string> lists_in_period() const {
    constexpr size_t longest = 10000;
    std::vector<std::string> lists;
    for (size_t at = 0; at < in_period_.size(); ++at) {
      if (at % longest == 0) lists.emplace_back("[");
      lists.back() += std::to_string(in_period_[at]) + ",";
    }
    for (std::string& list : lists) list.back() = ']';
    return lists;
  }

  /// The first row of that transaction when it is dated in the period.
  std::optional<Payment> find(int64_t number) {
    if (!may_be_in_period(number) || !first_row_.again().bind(1, number).step()) return std::nullopt;
    const store::Row row(first_row_);
    const auto date = row.date(0);
    if (!date || *date < days_.start || *date > days_.end) return std::nullopt;
    return Payment{*date, row.money(1)};
  }

 private:
  store::Statement first_row_;
  DateRange days_;
  bool all_in_period_ = false;
  std::vector<int64_t> in_period_;  // sorted; small enough for any company
};

/// An income row that names the transactions which paid it.
struct PaidRow {
  size_t category;
  int64_t TransNum;
  bool is_credit;
  Money Amount;
};

// An invoice's lines may post to AR1 too, and its first row may bear another PaidBy than they. So a row of
// AR1 that is not the first of its transaction brings the Amount of the first one of AR1.
constexpr std::string_view is_later_receivable =
    "Account = 'AR1' AND RowKey > (SELECT MIN(RowKey) FROM Transactions AS head"
    " WHERE head.TransNum = Transactions.TransNum)";
constexpr std::string_view first_receivable =
    "SELECT Amount FROM Transactions AS head WHERE head.TransNum = Transactions.TransNum AND Account = 'AR1'"
    " ORDER BY RowKey LIMIT 1";

/// Rows with one and the same PaidBy. They come together, mostly with the invoice's receivable row.
class PaidRows {
 public:
  PaidRows(store::Database& db, const CatIDs& categories, DateRange days, const TakeAmount& take)
      : db_(db), payments_(db, days), places_(categories), take_(take) {}

  /// Reads every row that names a payment of the period; payment by payment, unless that is the whole ledger.
  void read() {
    if (payments_.all_in_period()) read_rows("", " WHERE PaidBy IS NOT NULL", " ORDER BY PaidBy", {});
    for (const std::string& payments : payments_.lists_in_period())
      read_rows(" json_each(?) AS payment CROSS JOIN",
                " WHERE PaidBy >= payment.value || ';' AND PaidBy < payment.value || '<'", "", {payments});
    if (!payments_.all_in_period()) read_several_times_paid();
    finish();
  }

 private:
  static inline const std::string columns = "SELECT PaidBy, Account, TransNum, Credit, CASE WHEN " +
                                            std::string(is_later_receivable) + " THEN (" +
                                            std::string(first_receivable) + ") ELSE Amount END";

  void read_rows(const std::string& before, const std::string& where, const std::string& order,
                 const store::Database::Params& params) {
    db_.each(columns + " FROM" + before + " Transactions INDEXED BY Transactions_PaidBy" + where +
                 " AND (Paid <> 0 OR Transactions.Type = 'Invoice')" + order,
             params, [this](const store::Row& row) { add(row); });
  }

  /// The rows whose first payment was not in the period, but a later one was.
  void read_several_times_paid() {
    db_.each("SELECT DISTINCT PaidBy FROM Transactions INDEXED BY Transactions_PaidByMore WHERE " +
                 std::string(not_one_payment),
             {}, [this](const store::Row& row) {
               auto in_period = [this](int64_t number) { return payments_.may_be_in_period(number); };
               const auto numbers = Payments_Of(row.text(0));
               if (std::none_of(numbers.begin(), numbers.end(), in_period)) return;
               const bool known = in_period(numbers.front()) &&
                                  row.text(0).starts_with(std::to_string(numbers.front()) + ";");
               if (known) return;
               read_rows("", " WHERE PaidBy = ?", "", {row.text(0)});
             });
  }

  void add(const store::Row& row) {
    if (const std::string_view PaidBy = row.text(0); PaidBy != PaidBy_) {
      finish();
      PaidBy_ = PaidBy;
    }
    const std::string_view Account = row.text(1);
    if (same_text(Account, accounts_receivable))
      receivables_.try_emplace(row.integer(2), row.money(4));
    else if (auto place = places_.find(Account))
      rows_.push_back({*place, row.integer(2), row.integer(3) != 0, row.money(4)});
  }

  void finish() {
    if (!rows_.empty())
      for (int64_t number : Payments_Of(PaidBy_))
        if (auto payment = payments_.find(number))
          for (const PaidRow& row : rows_) take_share(row, *payment);
    rows_.clear();
    receivables_.clear();
  }

  void take_share(const PaidRow& row, const Payment& payment) {
    Money share = Paid_Share(row.Amount, payment.Amount, receivable_of(row.TransNum));
    take_({row.category, payment.date, row.is_credit ? share : -share});
  }

  /// The Amount of the invoice's receivable row; zero, so that the whole row counts, when it has none.
  Money receivable_of(int64_t TransNum) {
    auto known = receivables_.find(TransNum);
    if (known != receivables_.end()) return known->second;
    auto read = db_.value(
        "SELECT Amount FROM Transactions WHERE TransNum = ? AND Account = ? ORDER BY RowKey LIMIT 1",
        {TransNum, accounts_receivable});
    return receivables_.emplace(TransNum, read.money()).first->second;
  }

  store::Database& db_;
  Payments payments_;
  CategoryPlaces places_;
  const TakeAmount& take_;
  std::string PaidBy_;
  std::vector<PaidRow> rows_;
  std::map<int64_t, Money> receivables_;
};

}  // namespace

Money Paid_Share(Money Amount, Money payment, Money receivable) {
  const bool in_part = receivable > payment && !receivable.is_zero();
  return in_part ? Amount.share(payment, receivable) : Amount;
}

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
  Figures figures;
  for (size_t at = 0; at < sums.size(); ++at) figures[categories[at]] += sums[at];
  return figures;
}

}  // namespace tallymere
