#include <algorithm>

#include "core/ledger/ledger.h"
#include "core/values/date_range.h"
#include "reports/sums/income_shares.h"
#include "reports/sums/kept_ledger.h"

namespace tallymere {
namespace {

constexpr int rows_in_a_step = 10000;

constexpr std::string_view next_rows =
    "SELECT RowKey, TransNum, Transactions.Type, Date, Name, Class, Account, Amount, Debit, Credit, Paid,"
    " PaidBy FROM Transactions WHERE RowKey > ? ORDER BY RowKey LIMIT ?";
enum Column { HiddenKey, TransNum, Type, Day, Name, Class, Account, Amount, Debit, Credit, Paid, PaidBy };

}  // namespace

/// Reads a company's ledger into its KeptLedger, a step at a time.
class LedgerReader {
 public:
  explicit LedgerReader(store::Database& db) : db_(db) {}

  bool step();  ///< false when there is no more to do

 private:
  struct PaidBill {
    size_t row;  ///< among the ledger's
    int64_t payment;
  };
  /// Rows of one transaction mostly bear the same text: the last one and its id.
  struct LastText {
    std::string text;
    KeptLedger::TextId id = KeptLedger::no_text;
  };

  void begin();
  void read(const store::Row& row);
  void add_row(const store::Row& row, Date day);
  void add_income(const store::Row& row, std::optional<Date> day);
  void finish();
  void date_paid_bills();
  void sort_by_day();
  KeptLedger::TextId keep(LastText& last, const store::Row& row, int column);

  store::Database& db_;
  store::ChangeStamp begun_at_;
  int64_t read_to_ = 0;  ///< hidden key
  KeptLedger ledger_;
  HeadRows transactions_, receivables_;
  std::vector<PaidBill> paid_bills_;
  IncomeShares paid_income_;
  LastText Account_, Name_, Class_;
};

bool KeptLedger::Read_Ahead(store::Database& db) {
  if (db.writing_scope()) return true;  // what stands there now may yet be undone
  auto& reader = db.kept<std::optional<LedgerReader>>();
  try {
    const store::Snapshot moment(db);
    if (!reader) reader.emplace(db);
    if (reader->step()) return true;
  } catch (const std::exception&) {
    // who needs the ledger will meet the fault and tell of it
  }
  reader.reset();
  return false;
}

bool LedgerReader::step() {
  const store::ChangeStamp now = db_.change_stamp();
  if (db_.kept<KeptLedger>().read_at_ == now) return false;
  if (begun_at_ == store::ChangeStamp()) begin();
  if (begun_at_ != now) return false;
  int rows = 0;
  db_.each(next_rows, {read_to_, rows_in_a_step}, [&](const store::Row& row) {
    read(row);
    ++rows;
  });
  if (rows == rows_in_a_step) return true;
  finish();
  return false;
}

void LedgerReader::begin() {
  begun_at_ = db_.change_stamp();
  const CategoryTree tree = CategoryTree::Load(db_);
  for (const std::string& id : Result_Categories(tree))
    ledger_.texts_.try_emplace(id, static_cast<KeptLedger::TextId>(ledger_.texts_.size() + 1));
  ledger_.categories_ = ledger_.texts_.size();
}

void LedgerReader::read(const store::Row& row) {
  read_to_ = row.integer(HiddenKey);
  const int64_t number = row.integer(TransNum);
  const std::optional<Date> day = row.date(Day);
  transactions_.add(number, day, row.money(Amount));
  if (row.text(Account) != Account_.text) Account_ = {std::string(row.text(Account)), ledger_.id_of(row.text(Account))};
  if (same_text(Account_.text, accounts_receivable)) receivables_.add(number, day, row.money(Amount));
  if (Account_.id == KeptLedger::no_text || Account_.id > ledger_.categories_) return;
  if (day) add_row(row, *day);
  add_income(row, day);
}

void LedgerReader::add_row(const store::Row& row, Date day) {
  const bool counts = Is_Counted(Basis::Cash, row.text(Type), row.flag(Paid));
  if (counts && same_text(row.text(Type), "Bill"))
    if (auto payments = Payments_Of(row.text(PaidBy)); !payments.empty())
      paid_bills_.push_back({ledger_.rows_.size(), payments.front()});
  ledger_.rows_.push_back({day, Account_.id, keep(Name_, row, Name), keep(Class_, row, Class), counts, First_Day,
                           Row_Value(row.money(Debit), row.money(Credit))});
}

void LedgerReader::add_income(const store::Row& row, std::optional<Date> day) {
  const bool is_credit = !row.money(Credit).is_zero();
  if (!row.flag(Paid) && !same_text(row.text(Type), "Invoice")) {
    const Money amount = row.money(Amount).abs();
    if (day) ledger_.income_.push_back({*day, Account_.id, is_credit ? amount : -amount});
    return;
  }
  paid_income_.add(Account_.id, row.integer(TransNum), row.text(PaidBy), is_credit, row.money(Amount));
}

KeptLedger::TextId LedgerReader::keep(LastText& last, const store::Row& row, int column) {
  if (row.is_null(column)) return KeptLedger::no_text;
  if (last.id == KeptLedger::no_text || row.text(column) != last.text) {
    last.text = row.text(column);
    const auto next = static_cast<KeptLedger::TextId>(ledger_.texts_.size() + 1);
    last.id = ledger_.texts_.try_emplace(last.text, next).first->second;
  }
  return last.id;
}

void LedgerReader::finish() {
  transactions_.settle();
  receivables_.settle();
  date_paid_bills();
  paid_income_.share_out(transactions_, receivables_, [this](const DatedAmount& part) {
    ledger_.income_.push_back({part.date, static_cast<KeptLedger::TextId>(part.category), part.amount});
  });
  sort_by_day();
  ledger_.read_at_ = begun_at_;
  db_.kept<KeptLedger>() = std::move(ledger_);
}

void LedgerReader::date_paid_bills() {
  for (const PaidBill& bill : paid_bills_)
    if (auto* payment = transactions_.find(bill.payment); payment && payment->day)
      ledger_.rows_[bill.row].counts_from = *payment->day;
}

void LedgerReader::sort_by_day() {
  auto by_day = [](auto& a, auto& b) { return a.day < b.day; };
  std::sort(ledger_.rows_.begin(), ledger_.rows_.end(), by_day);
  std::sort(ledger_.income_.begin(), ledger_.income_.end(), by_day);
}

}  // namespace tallymere
