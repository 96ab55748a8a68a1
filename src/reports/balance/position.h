#pragma once

#include <map>

#include "reports/sums/ledger_sums.h"

/// What a balance sheet is made of: what categories stand at when a day ends, and what the years came to.
namespace tallymere {

/// The rows that count on cash basis: no invoices, on the receivable no payments either; bills once something has paid
/// them by that day. In SQL on a row of Transactions; empty: all.
enum class Counted_As { Receivable, Other };
std::string Counted_By(Basis basis, Counted_As counted, Date as_of);

/// The categories' own counted rows from the first to that day, as income has them: credits add.
Figures Sum_Balance(store::Database& db, const CatIDs& categories, Basis basis, Counted_As counted, Date as_of);

/// What a period earned. On cash basis a sub-category's income comes in at each income category above it as well as at
/// itself; so it is in every figure made of this.
Money Net_Income(store::Database& db, const CategoryTree& tree, DateRange days, Basis basis);

/// What stands at the end of a day.
struct Position {
  Figures own;  ///< of all categories but those of the profit and loss
  Money receivable = {}, payable = {}, net_income = {}, retained = {};
};

/// The positions of several days; what earlier years earned is reckoned once for each year.
class Positions {
 public:
  Positions(store::Database& db, const CategoryTree& tree, Basis basis);
  Position at(Date as_of);

 private:
  Money earned_before(int year);

  store::Database& db_;
  const CategoryTree& tree_;
  Basis basis_;
  CatIDs shown_, receivable_;
  std::map<int, Money> earned_before_;
};

/// The types of a balance sheet's sections.
inline constexpr std::array<std::string_view, 7> Position_Sections = {
    "Bank", "Current Asset", "Fixed Asset", "Credit Card", "Current Liability", "Long Term Liability", "Equity"};

}  // namespace tallymere
