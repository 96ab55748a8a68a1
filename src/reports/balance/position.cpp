#include "reports/balance/position.h"

#include <span>

#include "core/ledger/ledger.h"

namespace tallymere {
namespace {

constexpr std::string_view not_an_invoice = "(Transactions.Type IS NULL OR Transactions.Type <> 'Invoice')";
constexpr std::string_view no_receipt =
    "(Transactions.Type IS NULL OR Transactions.Type NOT IN ('Invoice', 'Payment'))";
constexpr std::string_view open_bill = "Transactions.Type = 'Bill' AND COALESCE(PaidBy, '') = ''";

std::string_view Kinds(Counted_As counted) { return counted == Counted_As::Receivable ? no_receipt : not_an_invoice; }

/// Takes the bills back that nothing has paid yet, and those that were paid later.
void Leave_Out_Bills(store::Database& db, Figures& figures, const CatIDs& categories, Date as_of) {
  CategoryPlaces wanted(categories);
  db.each("SELECT Account, SUM(" + std::string(row_value) +
              ") FROM Transactions INDEXED BY Transactions_OpenBills WHERE " + std::string(open_bill) +
              " AND Date <= ? GROUP BY Account",
          {as_of}, [&](const store::Row& row) {
            if (const auto place = wanted.find(row.text(0))) figures[categories[*place]] -= row.money(1);
          });
  Bills_Paid_Later(db, categories, {First_Day, as_of}, "COALESCE(PaidBy, '') <> ''",
                   [&](const LateBill& bill) { figures[std::string(bill.Account)] -= bill.value; });
}

constexpr std::string_view income_types[] = {"Income", "Other Income"};
constexpr std::string_view cost_types[] = {"Cost of Goods Sold", "Expense", "Other Expense"};

CatIDs Of_Types(const CategoryTree& tree, std::span<const std::string_view> types) {
  CatIDs ids;
  for (const Category& category : tree.all())
    if (std::find(types.begin(), types.end(), category.AccountType) != types.end()) ids.push_back(category.CatID);
  return ids;
}

Money Total(const Figures& figures) {
  Money total;
  for (const auto& [id, amount] : figures) total += amount;
  return total;
}

/// What all income categories took in day by day on cash basis, each with all below it: a sub-category's income comes
/// in at each income category above it as well as at itself.
std::map<Date, Money> Cash_Income_By_Day(store::Database& db, const CategoryTree& tree, Date last) {
  CaselessMap<int> times;
  for (const std::string& id : Of_Types(tree, income_types))
    for (const std::string& below : Family_Of(tree, id)) ++times[below];
  CatIDs all;
  std::vector<int> times_of;
  for (const auto& [id, count] : times) {
    all.push_back(id);
    times_of.push_back(count);
  }
  std::map<Date, Money> by_day;
  Sum_CashIncome(db, all, {First_Day, last}, [&](const DatedAmount& share) {
    Money& day = by_day[share.date];
    for (int time = 0; time < times_of[share.category]; ++time) day += share.amount;
  });
  return by_day;
}

CatIDs Shown_Categories(const CategoryTree& tree) {
  CatIDs ids;
  for (const std::string_view section : Position_Sections)
    for (std::string& id : Section_Categories(tree, section)) ids.push_back(std::move(id));
  CaselessMap<bool> known;
  for (const std::string& id : ids) known.try_emplace(id, true);
  for (const std::string& control : {accounts_payable, retained_earnings})
    for (std::string& id : Family_Of(tree, control))
      if (known.try_emplace(id, true).second) ids.push_back(std::move(id));
  return ids;
}

}  // namespace

std::string Counted_By(Basis basis, Counted_As counted, Date as_of) {
  if (basis == Basis::Accrual) return "";
  return std::string(Kinds(counted)) + " AND NOT COALESCE(" + std::string(open_bill) +
         ", FALSE) AND NOT COALESCE(Transactions.Type = 'Bill' AND INSTR(PaidBy, ';') > 0 AND"
         " (SELECT Date FROM Transactions AS payment WHERE payment.TransNum = CAST(Transactions.PaidBy AS INTEGER)"
         " ORDER BY payment.RowKey LIMIT 1) > '" +
         as_of.to_iso() + "', FALSE)";
}

Figures Sum_Balance(store::Database& db, const CatIDs& categories, Basis basis, Counted_As counted, Date as_of) {
  const DateRange days{First_Day, as_of};
  if (basis == Basis::Accrual) return Sum_Categories(db, categories, days, {});
  Figures figures = Sum_Categories(db, categories, days, {.counted = std::string(Kinds(counted))});
  Leave_Out_Bills(db, figures, categories, as_of);
  return figures;
}

Positions::Positions(store::Database& db, const CategoryTree& tree, Basis basis, Date last)
    : db_(db),
      tree_(tree),
      basis_(basis),
      shown_(Shown_Categories(tree)),
      receivable_(Family_Of(tree, accounts_receivable)),
      income_(Of_Types(tree, income_types)),
      costs_(Of_Types(tree, cost_types)) {
  if (basis == Basis::Cash) cash_income_ = Cash_Income_By_Day(db, tree, last);
}

Money Positions::net_income(DateRange days) {
  Money net = Total(Sum_Category(db_, costs_, {days, basis_}));
  if (basis_ == Basis::Accrual) return net + Total(Sum_Category(db_, income_, {days, basis_}));
  for (auto day = cash_income_.lower_bound(days.start); day != cash_income_.end() && day->first <= days.end; ++day)
    net += day->second;
  return net;
}

Money Positions::earned_before(int year) {
  const auto known = earned_before_.find(year);
  if (known != earned_before_.end()) return known->second;
  return earned_before_[year] = net_income({Date(1900, 1, 1), Date(year, 1, 1).plus_days(-1)});
}

Position Positions::at(Date as_of) {
  Position position{.own = Sum_Balance(db_, shown_, basis_, Counted_As::Other, as_of)};
  const Figures receivable = Sum_Balance(db_, receivable_, basis_, Counted_As::Receivable, as_of);
  position.receivable = -tree_.sum_family(accounts_receivable, receivable);
  position.payable = tree_.sum_family(accounts_payable, position.own);
  position.net_income = net_income({Date(as_of.year(), 1, 1), as_of});
  position.retained = earned_before(as_of.year()) + tree_.sum_family(retained_earnings, position.own);
  return position;
}

}  // namespace tallymere
