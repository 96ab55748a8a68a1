#include "reports/sums/ledger_sums.h"

#include <charconv>

#include "core/ledger/ledger.h"
#include "reports/sums/kept_ledger.h"

namespace tallymere {
namespace {

// Reading by category from the covering index is ten times quicker than by day. The engine's own choice is
// another one once it has statistics, so the index is named.
constexpr std::string_view by_account = " FROM Transactions INDEXED BY Transactions_Account WHERE Account = ";
constexpr std::string_view in_period = " AND Date >= ? AND Date <= ?";
constexpr std::string_view each_category = " FROM json_each(?) AS wanted";

std::string And(const std::string& condition) { return condition.empty() ? "" : " AND (" + condition + ")"; }

std::string If_Counted(Basis basis) { return And(Counted_Rows(basis)); }

store::Database::Params Params_Of(const CatIDs& categories, DateRange days) {
  return {days.start, days.end, Id_List(categories)};
}

std::string Category_Rows(std::string_view columns, std::string_view condition) {
  return "SELECT " + std::string(columns) +
         " FROM json_each(?3) AS wanted CROSS JOIN Transactions INDEXED BY Transactions_Account"
         " WHERE Account = wanted.value AND Date >= ?1 AND Date <= ?2" +
         std::string(condition);
}

/// When transactions happened, asked one by one and kept.
class TransactionDates {
 public:
  explicit TransactionDates(store::Database& db) : db_(db) {}
  std::optional<Date> operator()(int64_t number) {
    auto known = dates_.find(number);
    if (known != dates_.end()) return known->second;
    auto date = db_.value("SELECT Date FROM Transactions WHERE TransNum = ? ORDER BY RowKey LIMIT 1", {number});
    return dates_.emplace(number, date.maybe_date()).first->second;
  }

 private:
  store::Database& db_;
  std::unordered_map<int64_t, std::optional<Date>> dates_;
};

constexpr std::string_view bill_columns = "Account, Name, Class, Debit, Credit, PaidBy, Date";
/// The period's paid bills, reached by their own dates, or by those of the transactions after the period,
/// which is the shorter way when few days have passed since.
std::string Paid_Bills(DateRange days, Date newest, std::string_view paid) {
  const std::string is_paid_bill = " AND Transactions.Type = 'Bill' AND " + std::string(paid);
  if (days_between(days.start, days.end) < days_between(days.end, newest))
    return Category_Rows(bill_columns, is_paid_bill);
  return "SELECT " + std::string(bill_columns) +
         " FROM (SELECT DISTINCT TransNum AS payment FROM Transactions INDEXED BY Transactions_Date WHERE "
         "Date > ?2)"
         " CROSS JOIN Transactions INDEXED BY Transactions_PaidBy"
         " WHERE PaidBy >= payment || ';' AND PaidBy < payment || '<' AND Date >= ?1 AND Date <= ?2"
         " AND Account IN (SELECT value FROM json_each(?3))" +
         is_paid_bill;
}

/// What Sum_Category must not count on cash basis.
template <typename Fn>
void Bills_Paid_Later(store::Database& db, const CatIDs& categories, const SumRange& range, Fn&& tell) {
  if (range.basis == Basis::Cash) Bills_Paid_Later(db, categories, range.days, "Paid <> 0", std::forward<Fn>(tell));
}

/// Where each name stands among a report's columns; a name that stands twice has two.
CaselessMap<std::vector<size_t>> Columns_Of(const std::vector<std::string>& names) {
  CaselessMap<std::vector<size_t>> columns;
  for (size_t at = 0; at < names.size(); ++at) columns[names[at]].push_back(at);
  return columns;
}

void Add(ColumnFigures& figures, const CaselessMap<std::vector<size_t>>& columns, std::string_view category,
         std::string_view name, Money amount) {
  auto found = columns.find(name);
  if (found == columns.end()) return;
  Amounts& amounts = figures[std::string(category)];
  for (size_t column : found->second) amounts[column] += amount;
}

}  // namespace

void Bills_Paid_Later(store::Database& db, const CatIDs& categories, DateRange days, std::string_view paid,
                      const std::function<void(const LateBill&)>& tell) {
  auto newest = db.value("SELECT MAX(Date) FROM Transactions").maybe_date();
  if (!newest || *newest <= days.end) return;
  TransactionDates date_of(db);
  db.each(Paid_Bills(days, *newest, paid), Params_Of(categories, days), [&](const store::Row& row) {
    auto payments = Payments_Of(row.text(5));
    auto paid_on = payments.empty() ? std::nullopt : date_of(payments.front());
    if (!paid_on || *paid_on <= days.end) return;
    tell({row.text(0), row.text(1), row.text(2), row.text(6), Row_Value(row.money(3), row.money(4))});
  });
}

Amounts& Amounts::operator+=(const Amounts& more) {
  for (size_t column = 0; column < more.columns.size(); ++column) (*this)[column] += more.columns[column];
  return *this;
}

Amounts Amounts::operator-() const {
  Amounts turned = *this;
  for (Money& amount : turned.columns) amount = -amount;
  return turned;
}

Money& Amounts::operator[](size_t column) {
  if (column >= columns.size()) columns.resize(column + 1);
  return columns[column];
}

bool Is_Counted(Basis basis, std::string_view Type, bool Paid) {
  return basis == Basis::Accrual || Paid || !(same_text(Type, "Invoice") || same_text(Type, "Bill"));
}

std::string Counted_Rows(Basis basis) {
  if (basis == Basis::Accrual) return "";
  return "Transactions.Type IS NULL OR Transactions.Type NOT IN ('Invoice', 'Bill') OR Paid <> 0";
}

Money Row_Value(Money Debit, Money Credit) { return Credit.is_zero() ? -Debit : Credit; }

std::vector<int64_t> Payments_Of(std::string_view PaidBy) {
  std::vector<int64_t> numbers;
  for (size_t end = PaidBy.find(';'); end != std::string_view::npos; end = PaidBy.find(';')) {
    int64_t number = 0;
    auto [stop, fault] = std::from_chars(PaidBy.data(), PaidBy.data() + end, number);
    if (fault == std::errc() && stop == PaidBy.data() + end) numbers.push_back(number);
    PaidBy.remove_prefix(end + 1);
  }
  return numbers;
}

std::string Id_List(const std::vector<std::string>& texts) {
  std::string list = "[";
  for (const std::string& text : texts) {
    list += list.size() == 1 ? "\"" : ",\"";
    for (char c : text) {
      bool control = static_cast<unsigned char>(c) < 0x20;
      if (control) list += c < 0x10 ? "\\u000" : "\\u001";
      if (c == '"' || c == '\\') list += '\\';
      list += control ? "0123456789abcdef"[c & 0xf] : c;
    }
    list += '"';
  }
  return list + "]";
}

Figures Sum_Categories(store::Database& db, const CatIDs& categories, DateRange days, const Sum_Of& what) {
  Figures figures;
  const std::string sum = "(SELECT SUM(" + what.value + ")" + std::string(by_account) + "wanted.value" +
                          std::string(in_period) + And(what.counted) + ")";
  db.each("SELECT wanted.value, " + sum + std::string(each_category), Params_Of(categories, days),
          [&](const store::Row& row) { figures.insert_or_assign(std::string(row.text(0)), row.money(1)); });
  return figures;
}

void Sum_Names(store::Database& db, DateRange days, const Sum_Of& what, const TakeNameSum& take) {
  const std::string counted = what.counted.empty() ? "TRUE" : what.counted;
  db.each("SELECT Name, Account, SUM(CASE WHEN " + counted + " THEN " + what.value +
              " ELSE 0 END) FROM Transactions INDEXED BY Transactions_Name"
              " WHERE Date >= ? AND Date <= ? GROUP BY Name, Account",
          {days.start, days.end}, [&](const store::Row& row) { take(row.text(0), row.text(1), row.money(2)); });
}

Figures Sum_Category(store::Database& db, const CatIDs& categories, const SumRange& range) {
  if (auto* kept = KeptLedger::Of(db, categories)) return kept->Sum_Category(categories, range);
  Figures figures = Sum_Categories(db, categories, range.days, {.counted = Counted_Rows(range.basis)});
  Bills_Paid_Later(db, categories, range,
                   [&](const LateBill& bill) { figures[std::string(bill.Account)] -= bill.value; });
  return figures;
}

ColumnFigures Sum_Category_By_Name(store::Database& db, const CatIDs& categories, const SumRange& range,
                                   const std::vector<std::string>& names) {
  if (auto* kept = KeptLedger::Of(db, categories)) return kept->Sum_Category_By_Name(categories, range, names);
  ColumnFigures figures;
  const auto columns = Columns_Of(names);
  std::string sum = "SELECT wanted.value, name.value, (SELECT SUM(" + std::string(row_value) +
                    ") FROM Transactions INDEXED BY Transactions_Name WHERE Name = name.value AND Account ="
                    " wanted.value AND Date >= ?1 AND Date <= ?2" +
                    If_Counted(range.basis) +
                    ") AS amount FROM json_each(?4) AS name CROSS JOIN json_each(?3) AS wanted WHERE amount <> 0";
  CatIDs distinct;
  for (const auto& [name, places] : columns) distinct.push_back(name);
  auto params = Params_Of(categories, range.days);
  params.push_back(Id_List(distinct));
  db.each(sum, params, [&](const store::Row& row) { Add(figures, columns, row.text(0), row.text(1), row.money(2)); });
  Bills_Paid_Later(db, categories, range,
                   [&](const LateBill& bill) { Add(figures, columns, bill.Account, bill.Name, -bill.value); });
  return figures;
}

ColumnFigures Sum_Category_By_Class(store::Database& db, const CatIDs& categories, const SumRange& range,
                                    const std::vector<std::string>& classes) {
  if (auto* kept = KeptLedger::Of(db, categories)) return kept->Sum_Category_By_Class(categories, range, classes);
  ColumnFigures figures;
  const auto columns = Columns_Of(classes);
  db.each(Category_Rows("Account, Class, Debit, Credit", " AND Class <> ''" + If_Counted(range.basis)),
          Params_Of(categories, range.days), [&](const store::Row& row) {
            Add(figures, columns, row.text(0), row.text(1), Row_Value(row.money(2), row.money(3)));
          });
  Bills_Paid_Later(db, categories, range,
                   [&](const LateBill& bill) { Add(figures, columns, bill.Account, bill.Class, -bill.value); });
  return figures;
}

void Sum_Category_By_Day(store::Database& db, const CatIDs& categories, const SumRange& range, const TakeAmount& take) {
  if (auto* kept = KeptLedger::Of(db, categories)) return kept->Sum_Category_By_Day(categories, range, take);
  db.each(Category_Rows("wanted.key, Date, SUM(" + std::string(row_value) + ")", If_Counted(range.basis)) +
              " GROUP BY wanted.key, Date",
          Params_Of(categories, range.days), [&](const store::Row& row) {
            take({static_cast<size_t>(row.integer(0)), *row.date(1), row.money(2)});
          });
  CategoryPlaces places(categories);
  Bills_Paid_Later(db, categories, range, [&](const LateBill& bill) {
    if (auto place = places.find(bill.Account)) take({*place, *Date::from_iso(bill.date), -bill.value});
  });
}

CategoryPlaces::CategoryPlaces(const CatIDs& categories) {
  for (size_t at = 0; at < categories.size(); ++at) places_.try_emplace(categories[at], at);
}

std::optional<size_t> CategoryPlaces::find(std::string_view CatID) {
  if (auto seen = spellings_.find(CatID); seen != spellings_.end()) return seen->second;
  auto place = places_.find(CatID);
  auto answer = place == places_.end() ? std::nullopt : std::optional(place->second);
  return spellings_.emplace(CatID, answer).first->second;
}

}  // namespace tallymere
