#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/store/database.h"
#include "core/values/caseless.h"
#include "core/values/date_range.h"
#include "reports/reports.h"
#include "reports/sums/sections.h"

/// What reports sum from the ledger. Each function reads it in one grouped pass, mostly from an index alone,
/// and gives every category its own rows' figure; rolling up is CategoryTree::sum_family. Figures are as
/// income has them: credits add, debits subtract.
namespace tallymere {

using Figures = CaselessMap<Money>;

/// Sums that stand in the order of a list of categories, by category.
template <typename T>
CaselessMap<T> By_Category(const CatIDs& categories, const std::vector<T>& sums) {
  CaselessMap<T> figures;
  for (size_t at = 0; at < sums.size(); ++at) figures[categories[at]] += sums[at];
  return figures;
}

/// Several figures of one category, one for each column of a report.
struct Amounts {
  std::vector<Money> columns;
  Amounts& operator+=(const Amounts& more);
  Amounts operator-() const;
  Money& operator[](size_t column);  ///< grows as needed
};
using ColumnFigures = CaselessMap<Amounts>;

struct SumRange {
  DateRange days;
  Basis basis;
};

/// Whether a row counts: on cash basis an invoice's or bill's does once it is paid. Bills paid after the
/// period are another question: see Bills_Paid_Later.
bool Is_Counted(Basis basis, std::string_view Type, bool Paid);

/// The same in SQL, as Sum_Of takes it.
std::string Counted_Rows(Basis basis);

/// A row's value: Credit, or without one less its Debit.
Money Row_Value(Money Debit, Money Credit);
inline constexpr std::string_view row_value = "CASE WHEN Credit <> 0 THEN Credit ELSE -Debit END";

/// What a grouped reading adds up, in SQL on a row of Transactions: a report with rules of its own hands in its
/// own test and value.
struct Sum_Of {
  std::string counted = {};  ///< which rows of the period count; empty: all
  std::string value = std::string(row_value);
};

/// The categories' own rows.
Figures Sum_Categories(store::Database& db, const CatIDs& categories, DateRange days, const Sum_Of& what);

/// The rows of each name in each category. Where none counts the sum is zero, so that all names of the period
/// are told.
using TakeNameSum = std::function<void(std::string_view Name, std::string_view CatID, Money sum)>;
void Sum_Names(store::Database& db, DateRange days, const Sum_Of& what, const TakeNameSum& take);

/// The categories' counted rows of the period. On cash basis bills count once they are paid by the period's
/// end.
Figures Sum_Category(store::Database& db, const CatIDs& categories, const SumRange& range);
/// The same, only the rows of each name or class: a column for each, in that order.
ColumnFigures Sum_Category_By_Name(store::Database& db, const CatIDs& categories, const SumRange& range,
                                   const std::vector<std::string>& names);
ColumnFigures Sum_Category_By_Class(store::Database& db, const CatIDs& categories, const SumRange& range,
                                    const std::vector<std::string>& classes);

/// A bill that was paid after a period ended. The texts hold until the next one is told.
struct LateBill {
  std::string_view Account, Name, Class;
  std::string_view date;
  Money value;
};
/// Tells of the period's bills, as far as they meet `paid` (in SQL), whose first payment came after its end.
void Bills_Paid_Later(store::Database& db, const CatIDs& categories, DateRange days, std::string_view paid,
                      const std::function<void(const LateBill&)>& tell);

/// Part of a category's figure, and the day it counts on.
struct DatedAmount {
  size_t category;  ///< its place in the list of categories asked for
  Date date;
  Money amount;
};
using TakeAmount = std::function<void(const DatedAmount&)>;

/// Cash-basis income: an invoice's rows count by what was paid in the period, in the proportion of the
/// payment to the invoice's receivable; other unpaid rows by their own date. `take` hears of every share, in
/// no order.
void Sum_CashIncome(store::Database& db, const CatIDs& categories, DateRange days, const TakeAmount& take);
Figures Sum_CashIncome(store::Database& db, const CatIDs& categories, DateRange days);

/// Sum_Category day by day, on the rows' own dates.
void Sum_Category_By_Day(store::Database& db, const CatIDs& categories, const SumRange& range, const TakeAmount& take);

/// Where a row's category stands in a list, in whatever case it was written; quick when asked for every row.
class CategoryPlaces {
 public:
  explicit CategoryPlaces(const CatIDs& categories);
  std::optional<size_t> find(std::string_view CatID);

 private:
  CaselessMap<size_t> places_;
  std::map<std::string, std::optional<size_t>, std::less<>> spellings_;
};

/// The transaction numbers of a PaidBy: each stands before a ";".
std::vector<int64_t> Payments_Of(std::string_view PaidBy);

/// Ids or names as one parameter, which `json_each(?)` reads back: `key` counts them from 0, `value` is the
/// text.
std::string Id_List(const std::vector<std::string>& texts);

}  // namespace tallymere
