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

/// What stands at the end of a day.
struct Position {
  Figures own;  ///< of all categories but those of the profit and loss
  Money receivable = {}, payable = {}, net_income = {}, retained = {};
};

/// The positions of several days up to the last of them. Cash income is read once for all, and what earlier years earned
/// is reckoned once for each year.
class Positions {
 public:
  Positions(store::Database& db, const CategoryTree& tree, Basis basis, Date last);
  Position at(Date as_of);

 private:
  Money net_income(DateRange days);
  Money earned_before(int year);

  store::Database& db_;
  const CategoryTree& tree_;
  Basis basis_;
  CatIDs shown_, receivable_, income_, costs_;
  std::map<Date, Money> cash_income_;  ///< by day, on cash basis
  std::map<int, Money> earned_before_;
};

/// The types of a balance sheet's sections.
inline constexpr std::array<std::string_view, 7> Position_Sections = {
    "Bank", "Current Asset", "Fixed Asset", "Credit Card", "Current Liability", "Long Term Liability", "Equity"};

}  // namespace tallymere
