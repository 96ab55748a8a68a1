#include "core/ledger/balances.h"

#include <functional>
#include <optional>

#include "core/ledger/category_tree.h"
#include "core/ledger/ledger.h"
#include "core/ledger/marks.h"
#include "core/store/history.h"
#include "core/store/sql.h"

namespace tallymere {
namespace {

using store::Database;

// --- figures -------------------------------------------------------------------------------------

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

/// One walk over the index of accounts and days answers for all categories. Rows without a date stand before all
/// others.
CaselessMap<YearSums> Sum_Ledger(Database& db, int year) {
  constexpr std::string_view sum =
      "(SELECT SUM(IFNULL(Debit, 0) - IFNULL(Credit, 0)) FROM Transactions WHERE Account = CatID AND Date ";
  std::string columns;
  for (const char* days : {">= ? AND Date < ?)", "IS NULL)", "< ?)", ">= ?)"})
    columns += ", " + std::string(sum) + days;
  const store::Value first = Date(year, 1, 1), next = Date(year + 1, 1, 1);
  CaselessMap<YearSums> sums;
  db.each("SELECT CatID" + columns + " FROM Accounts", {first, next, first, next}, [&](const store::Row& row) {
    sums[std::string(row.text(0))] = {row.money(2) + row.money(3), row.money(1), row.money(4), !row.is_null(1)};
  });
  return sums;
}

struct Figures {
  std::optional<Money> Balance, LastYearEndBal;
  friend bool operator==(const Figures&, const Figures&) = default;
};

/// The year ends where the first row of the current one comes; without one, after the last row of all.
Figures Of_Category(const YearSums& sums, std::string_view AccountType) {
  const Money all = sums.before + sums.within + sums.after, year_end = sums.any_within ? sums.before : all;
  return Is_Credit_Normal(AccountType) ? Figures{-all, -year_end} : Figures{all, year_end};
}

/// A cached figure of a row of a list, and what the ledger says.
struct Cached {
  int64_t key;
  std::string name;
  Figures is, should_be;
};

bool In_Use(const Category& category) { return !category.Dormant; }
bool Is_Bank(const Category& category) { return In_Use(category) && same_text(category.AccountType, "Bank"); }
bool Is_Any(const Category&) { return true; }

std::vector<Cached> Reckon_Accounts(Database& db, int year, bool (*wanted)(const Category&)) {
  const auto tree = CategoryTree::Load(db);
  const auto sums = Sum_Ledger(db, year);
  std::vector<Cached> figures;
  for (const Category& category : tree.all()) {
    if (!wanted(category) || Is_Profit_And_Loss(category.AccountType)) continue;
    figures.push_back({category.key,
                       category.AccountName,
                       {category.Balance, category.LastYearEndBal},
                       Of_Category(tree.sum_family(category.CatID, sums), category.AccountType)});
  }
  return figures;
}

/// A list of names whose balance is the sum of some rows of the ledger under the name.
struct NameList {
  std::string table;
  std::string sums;  ///< SQL: name, sum
};
const std::string owed_sum = "SUM(CASE WHEN IFNULL(Debit, 0) = 0 THEN -IFNULL(Credit, 0) ELSE Debit END)";
const std::string owed_rows = "Account = 'AR1' AND Type IN ('Invoice', 'Statement', 'Payment', 'Check')";
const NameList customers{"Customers",
                         "SELECT Customers.Name, " + owed_sum +
                             " FROM (SELECT DISTINCT Name FROM Customers WHERE Dormant = False) AS Customers"
                             " CROSS JOIN Transactions ON Transactions.Name = Customers.Name WHERE " +
                             owed_rows + " GROUP BY Customers.Name"};
const NameList vendors{"Vendors",
                       "SELECT Name, SUM(IFNULL(Credit, 0) - IFNULL(Debit, 0)"
                       " - IFNULL((SELECT SUM(Applied.Amount) FROM Applied WHERE Document = TransNum), 0))"
                       " FROM Transactions WHERE Paid = 0 AND Type = 'Bill' AND Account = 'AP1' GROUP BY Name"};

std::vector<Cached> Reckon_Names(Database& db, const NameList& list) {
  CaselessMap<Money> sums;
  db.each(list.sums, {}, [&](const store::Row& row) { sums[std::string(row.text(0))] = row.money(1); });
  std::vector<Cached> figures;
  db.each("SELECT RowKey, Name, Balance FROM " + list.table + " WHERE Dormant = False", {}, [&](const store::Row& row) {
    const auto found = sums.find(row.text(1));
    figures.push_back({row.integer(0),
                       std::string(row.text(1)),
                       {row.is_null(2) ? std::nullopt : std::optional(row.money(2)), {}},
                       {found == sums.end() ? Money() : found->second, {}}});
  });
  return figures;
}

// --- passes --------------------------------------------------------------------------------------

/// Tells of progress in a hundred steps at most, and takes the window away however the work ends.
class Teller {
 public:
  Teller(Prompts* prompts, std::string label, size_t total)
      : prompts_(prompts), label_(std::move(label)), total_(total ? static_cast<int64_t>(total) : 1) {
    tell();
  }
  ~Teller() {
    if (prompts_) prompts_->progress_done();
  }
  Teller(const Teller&) = delete;
  Teller& operator=(const Teller&) = delete;

  void step() {
    const int64_t before = done_++;
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

int64_t Last_Action(Database& db) { return db.value("SELECT MAX(RowKey) FROM History").integer(); }

std::string Mark_Of(const std::string& table) { return table + " worked out"; }

/// What a pass over a table leaves. `statement` sets the figures of a key; `as_of` is the action that the ledger had
/// come to before it was read, or nothing for a pass over a part.
struct Pass {
  std::string table, statement;
  bool keeps_year_end;
  std::optional<int64_t> as_of = {};
  int year = 0;
};

void Write(Database& db, const Pass& pass, const std::vector<Cached>& figures, Teller& teller) {
  std::vector<const Cached*> changed;
  for (const Cached& figure : figures) {
    teller.step();
    if (figure.is != figure.should_be) changed.push_back(&figure);
  }
  const bool marks = pass.as_of && Mark(db, Mark_Of(pass.table)) != *pass.as_of;
  if (changed.empty() && !marks) return;
  store::Transaction tx(db, "Updating " + pass.table);
  for (const Cached* figure : changed) {
    store::Database::Params values{figure->should_be.Balance};
    if (pass.keeps_year_end) values.push_back(figure->should_be.LastYearEndBal);
    values.push_back(figure->key);
    db.Execute(pass.statement, values);
  }
  if (marks) Set_Mark(db, Mark_Of(pass.table), *pass.as_of);
  if (marks && pass.year) Set_Mark(db, "Year of the balances", pass.year);
  tx.commit();
}

const std::string accounts_statement = "UPDATE Accounts SET Balance = ?, LastYearEndBal = ? WHERE RowKey = ?";

void Update_Names(Session& session, const NameList& list) {
  Database& db = *session.dbCompany;
  const Pass pass{list.table, "UPDATE " + list.table + " SET Balance = ? WHERE RowKey = ?", false, Last_Action(db)};
  const auto figures = Reckon_Names(db, list);
  Teller teller(&session.prompts, "Updating " + list.table, figures.size());
  Write(db, pass, figures, teller);
}

}  // namespace

void Update_Accounts(Session& session, Categories which, Progress progress) {
  Database& db = *session.dbCompany;
  const bool all = which == Categories::All;
  const int year = session.today().year();
  Pass pass{"Accounts", accounts_statement, true, {}, year};
  if (all) pass.as_of = Last_Action(db);
  const auto figures = Reckon_Accounts(db, year, all ? In_Use : Is_Bank);
  const bool told = all && progress == Progress::Told;
  Teller teller(told ? &session.prompts : nullptr, "Updating Categories", figures.size());
  Write(db, pass, figures, teller);
}

void Fix_Accounts(Session& session) {
  Database& db = *session.dbCompany;
  auto figures = Reckon_Accounts(db, session.today().year(), Is_Any);
  for (Cached& figure : figures) figure.should_be.Balance = figure.is.Balance;
  Teller silent(nullptr, "", figures.size());
  Write(db, {"Accounts", accounts_statement, true}, figures, silent);
}

void Update_Customers(Session& session) { Update_Names(session, customers); }
void Update_Vendors(Session& session) { Update_Names(session, vendors); }

Money Customer_Balance(Session& session, const std::string& name) {
  Money balance;
  session.dbCompany->each("SELECT " + owed_sum + " FROM Transactions WHERE Name = ? AND " + owed_rows, {name},
                          [&](const store::Row& row) { balance = row.money(0); });
  return balance;
}

// --- holding them against the ledger -------------------------------------------------------------

namespace {

bool Is_Due(Database& db, const std::string& table) { return Mark(db, Mark_Of(table)) != Last_Action(db); }

void Add_False(std::vector<std::string>& found, const std::vector<Cached>& figures) {
  const auto words = [](const std::optional<Money>& amount) { return amount ? amount->to_text() : "nothing"; };
  for (const Cached& figure : figures) {
    if (figure.is.Balance != figure.should_be.Balance)
      found.push_back(figure.name + ": " + words(figure.is.Balance) + ", but " + words(figure.should_be.Balance) +
                      " in the ledger");
    else if (figure.is != figure.should_be)
      found.push_back(figure.name + " at the year's end: " + words(figure.is.LastYearEndBal) + ", but " +
                      words(figure.should_be.LastYearEndBal) + " in the ledger");
  }
}

}  // namespace

std::vector<std::string> False_Balances(Database& db) {
  std::vector<std::string> found;
  const int year = static_cast<int>(Mark(db, "Year of the balances"));
  if (!Is_Due(db, "Accounts")) Add_False(found, Reckon_Accounts(db, year, In_Use));
  for (const NameList& list : {customers, vendors})
    if (!Is_Due(db, list.table)) Add_False(found, Reckon_Names(db, list));
  return found;
}

}  // namespace tallymere
