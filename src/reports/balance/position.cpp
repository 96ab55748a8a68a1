#include "reports/balance/position.h"

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

CatIDs Of_Types(const CategoryTree& tree, std::initializer_list<std::string_view> types) {
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

/// The cash income of these categories, each with all below it.
Money Cash_Income(store::Database& db, const CategoryTree& tree, const CatIDs& income, DateRange days) {
  CaselessMap<bool> seen;
  CatIDs all;
  for (const std::string& id : income)
    for (std::string& below : Family_Of(tree, id))
      if (seen.try_emplace(below, true).second) all.push_back(std::move(below));
  const Figures own = Sum_CashIncome(db, all, days);
  Money total;
  for (const std::string& id : income) total += tree.sum_family(id, own);
  return total;
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

Money Net_Income(store::Database& db, const CategoryTree& tree, DateRange days, Basis basis) {
  const CatIDs income = Of_Types(tree, {"Income", "Other Income"});
  const CatIDs costs = Of_Types(tree, {"Cost of Goods Sold", "Expense", "Other Expense"});
  const Money earned =
      basis == Basis::Cash ? Cash_Income(db, tree, income, days) : Total(Sum_Category(db, income, {days, basis}));
  return earned + Total(Sum_Category(db, costs, {days, basis}));
}

Positions::Positions(store::Database& db, const CategoryTree& tree, Basis basis)
    : db_(db),
      tree_(tree),
      basis_(basis),
      shown_(Shown_Categories(tree)),
      receivable_(Family_Of(tree, accounts_receivable)) {}

Money Positions::earned_before(int year) {
  const auto known = earned_before_.find(year);
  if (known != earned_before_.end()) return known->second;
  return earned_before_[year] = Net_Income(db_, tree_, {Date(1900, 1, 1), Date(year, 1, 1).plus_days(-1)}, basis_);
}

Position Positions::at(Date as_of) {
  Position position{.own = Sum_Balance(db_, shown_, basis_, Counted_As::Other, as_of)};
  const Figures receivable = Sum_Balance(db_, receivable_, basis_, Counted_As::Receivable, as_of);
  position.receivable = -tree_.sum_family(accounts_receivable, receivable);
  position.payable = tree_.sum_family(accounts_payable, position.own);
  position.net_income = Net_Income(db_, tree_, {Date(as_of.year(), 1, 1), as_of}, basis_);
  position.retained = earned_before(as_of.year()) + tree_.sum_family(retained_earnings, position.own);
  return position;
}

}  // namespace tallymere
