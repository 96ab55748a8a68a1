#include "core/ledger/balances.h"

#include <optional>
#include <vector>

#include "core/ledger/category_tree.h"
#include "core/ledger/ledger.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

/// What rows came to, debits less credits, by where they stand to the current calendar year.
struct YearSums {
  Money before = {}, within = {}, after = {};
  bool any_within = false;

  YearSums& operator+=(const YearSums& other) {
    before += other.before, within += other.within, after += other.after;
    any_within = any_within || other.any_within;
    return *this;
  }
};

/// One walk over the index of accounts and days answers for all categories. Outside RecalcAll only the
/// current year is read. Rows without a date stand before all others.
CaselessMap<YearSums> Sum_Ledger(store::Database& db, int year, bool all_years) {
  constexpr std::string_view sum =
      "(SELECT SUM(IFNULL(Debit, 0) - IFNULL(Credit, 0)) FROM Transactions WHERE Account = CatID AND Date ";
  const std::string within = std::string(sum) + ">= ? AND Date < ?)";
  const std::string others =
      ", " + std::string(sum) + "IS NULL), " + std::string(sum) + "< ?), " + std::string(sum) + ">= ?)";
  const store::Value first = Date(year, 1, 1), next = Date(year + 1, 1, 1);
  store::Database::Params params{first, next};
  if (all_years) params.insert(params.end(), {first, next});

  CaselessMap<YearSums> sums;
  db.each("SELECT CatID, " + within + (all_years ? others : "") + " FROM Accounts", params, [&](const store::Row& row) {
    YearSums& account = sums[std::string(row.text(0))];
    account = {.within = row.money(1), .any_within = !row.is_null(1)};
    if (all_years) account.before = row.money(2) + row.money(3), account.after = row.money(4);
  });
  return sums;
}

/// The balance when the first row of the current year comes; without one, after the last row of all.
Money Year_End(const YearSums& sums) { return sums.any_within ? sums.before : sums.before + sums.after; }

struct Figures {
  std::optional<Money> Balance, LastYearEndBal;
  friend bool operator==(const Figures&, const Figures&) = default;
};

Figures Recalculated(const YearSums& sums) { return {sums.before + sums.within + sums.after, Year_End(sums)}; }

/// From last year's end on. A row of the current year turns an unset LastYearEndBal into 0.
Figures Carried_On(const YearSums& sums, std::optional<Money> LastYearEndBal) {
  Money opening = LastYearEndBal.value_or(Money());
  return {opening + sums.within, sums.any_within ? opening : LastYearEndBal};
}

YearSums On_Normal_Side(YearSums sums, std::string_view AccountType) {
  if (!Is_Credit_Normal(AccountType)) return sums;
  return {-sums.before, -sums.within, -sums.after, sums.any_within};
}

/// Tells of progress in a hundred steps at most, and takes the window away however the work ends.
class Progress {
 public:
  Progress(Prompts* prompts, std::string label, size_t total)
      : prompts_(prompts), label_(std::move(label)), total_(total ? static_cast<int64_t>(total) : 1) {
    tell();
  }
  ~Progress() {
    if (prompts_) prompts_->progress_done();
  }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void step() {
    int64_t before = done_++;
    if (before * 100 / total_ != done_ * 100 / total_) tell();
  }

 private:
  void tell() {
    if (prompts_) prompts_->progress(label_, done_, total_);
  }
  Prompts* prompts_;  ///< nullptr: silent
  std::string label_;
  int64_t done_ = 0, total_;
};

/// Rows to be written: a statement's parameters, the key last.
class CacheUpdate {
 public:
  CacheUpdate(store::Database& db, std::string what, std::string statement)
      : db_(db), what_(std::move(what)), statement_(std::move(statement)) {}
  void add(store::Database::Params params) { rows_.push_back(std::move(params)); }
  void write() {
    if (rows_.empty()) return;
    store::Transaction tx(db_, what_);
    for (const auto& row : rows_) db_.Execute(statement_, row);
    tx.commit();
  }

 private:
  store::Database& db_;
  std::string what_, statement_;
  std::vector<store::Database::Params> rows_;
};

}  // namespace

void Update_Accounts(Session& session, Categories which) {
  const std::string label = "Updating Categories";
  const bool banks_only = which == Categories::Bank;
  store::Database& db = *session.dbCompany;
  const auto tree = CategoryTree::Load(db);
  Progress progress(banks_only ? nullptr : &session.prompts, label, tree.all().size());
  const auto sums = Sum_Ledger(db, session.today().year(), session.RecalcAll);
  CacheUpdate update(db, label, "UPDATE Accounts SET Balance = ?, LastYearEndBal = ? WHERE RowKey = ?");
  for (const Category& category : tree.all()) {
    progress.step();
    if (category.Dormant || Is_Profit_And_Loss(category.AccountType)) continue;
    if (banks_only && !same_text(category.AccountType, "Bank")) continue;
    auto own = banks_only ? sums.at(category.CatID) : tree.sum_family(category.CatID, sums);
    own = On_Normal_Side(own, category.AccountType);
    Figures now = session.RecalcAll ? Recalculated(own) : Carried_On(own, category.LastYearEndBal);
    if (now != Figures{category.Balance, category.LastYearEndBal})
      update.add({now.Balance, now.LastYearEndBal, category.key});
  }
  update.write();
  session.RecalcAll = false;
}

void Fix_Accounts(Session& session) {
  store::Database& db = *session.dbCompany;
  const auto tree = CategoryTree::Load(db);
  const auto sums = Sum_Ledger(db, session.today().year(), true);
  CacheUpdate update(db, "Year-end balances", "UPDATE Accounts SET LastYearEndBal = ? WHERE RowKey = ?");
  for (const Category& category : tree.all()) {
    if (Is_Profit_And_Loss(category.AccountType)) continue;
    Money year_end = Year_End(On_Normal_Side(tree.sum_family(category.CatID, sums), category.AccountType));
    if (category.LastYearEndBal != year_end) update.add({year_end, category.key});
  }
  update.write();
}

namespace {

CaselessMap<Money> Sums_By_Name(store::Database& db, std::string_view sql) {
  CaselessMap<Money> sums;
  db.each(sql, {}, [&](const store::Row& row) {
    if (!row.is_null(0)) sums[std::string(row.text(0))] = row.money(1);
  });
  return sums;
}

struct CachedName {
  int64_t key;
  std::string Name;
  std::optional<Money> Balance;
};

std::vector<CachedName> Names_In_Use(store::Database& db, const std::string& table) {
  std::vector<CachedName> names;
  db.each("SELECT RowKey, Name, Balance FROM " + table + " WHERE Dormant = False", {}, [&](const store::Row& row) {
    auto balance = row.is_null(2) ? std::nullopt : std::optional(row.money(2));
    names.push_back({row.integer(0), std::string(row.text(1)), balance});
  });
  return names;
}

/// `balance_of(name)` gives the new figure, or nothing where the old one stays.
template <typename Fn>
void Update_Names(Session& session, const std::string& table, Fn&& balance_of) {
  store::Database& db = *session.dbCompany;
  const std::string label = "Updating " + table;
  const auto names = Names_In_Use(db, table);
  Progress progress(&session.prompts, label, names.size());
  CacheUpdate update(db, label, "UPDATE " + table + " SET Balance = ? WHERE RowKey = ?");
  for (const CachedName& name : names) {
    std::optional<Money> balance = balance_of(name.Name);
    if (balance && balance != name.Balance) update.add({balance, name.key});
    progress.step();
  }
  update.write();
}

}  // namespace

void Update_Customers(Session& session) {
  const auto owed =
      Sums_By_Name(*session.dbCompany,
                   "SELECT Customers.Name, SUM(CASE WHEN IFNULL(Debit, 0) = 0 THEN -IFNULL(Credit, 0) ELSE Debit END)"
                   " FROM (SELECT DISTINCT Name FROM Customers WHERE Dormant = False) AS Customers"
                   " CROSS JOIN Transactions ON Transactions.Name = Customers.Name"
                   " WHERE Account = 'AR1' AND Type IN ('Invoice', 'Payment', 'Check') GROUP BY Customers.Name");
  Update_Names(session, "Customers", [&](const std::string& name) -> std::optional<Money> {
    auto found = owed.find(name);
    return found == owed.end() ? Money() : found->second;
  });
}

void Update_Vendors(Session& session) {
  const auto unpaid = Sums_By_Name(*session.dbCompany,
                                   "SELECT Name, SUM(Debit) FROM Transactions WHERE Paid = 0 AND Type = 'Bill'"
                                   " GROUP BY Name");
  Update_Names(session, "Vendors", [&](const std::string& name) -> std::optional<Money> {
    // Written into a query the way that leaves such a name unfound, which is kept.
    auto found = unpaid.find(replace_all(name, "'", "\\'"));
    return found == unpaid.end() ? std::nullopt : std::optional(found->second);
  });
}

}  // namespace tallymere
