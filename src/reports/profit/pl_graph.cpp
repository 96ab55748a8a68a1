#include "reports/profit/profit_and_loss.h"
#include "reports/sums/ledger_sums.h"

namespace tallymere {
namespace {

constexpr size_t largest_expenses = 8;
enum Series : size_t { Income, Expense };

/// Income and expense over the months, and what the money went for.
struct Parts {
  Graph_Months months{.title = "Income and expense", .series = {"Income", "Expense"}, .difference = "Net"};
  Graph_Bars expenses{.title = "Largest expenses", .none = "No expenses in this period."};

  void add(Date day, Series series, Money amount) {
    const int month = months_between(months.months.front().first_day, day);
    months.months[static_cast<size_t>(month)].amounts[series] += amount;
  }
};

void Add_Income(Parts& parts, store::Database& db, const CategoryTree& tree, const ReportRequest& request) {
  const SumRange range{request.days(), request.basis};
  auto receive = [&](const DatedAmount& share) { parts.add(share.date, Income, share.amount); };
  CatIDs ordinary = Section_Categories(tree, "Other Income");
  CatIDs income = Section_Categories(tree, "Income");
  if (request.basis == Basis::Cash)
    Sum_CashIncome(db, income, range.days, receive);
  else
    ordinary.insert(ordinary.end(), income.begin(), income.end());
  Sum_Category_By_Day(db, ordinary, range, receive);
}

void Add_Expenses(Parts& parts, store::Database& db, const CategoryTree& tree, const ReportRequest& request) {
  CatIDs all;
  for (std::string_view section : PL_Sections)
    if (Is_Expense_Side(section))
      for (std::string& id : Section_Categories(tree, section)) all.push_back(std::move(id));
  std::vector<Money> sums(all.size());
  Sum_Category_By_Day(db, all, {request.days(), request.basis}, [&](const DatedAmount& share) {
    parts.add(share.date, Expense, -share.amount);
    sums[share.category] -= share.amount;
  });
  const Figures own = By_Category(all, sums);
  for (const Category* category : Top_Level_By_Name(tree)) {
    if (!Is_Expense_Side(category->AccountType)) continue;
    Money amount = tree.sum_family(category->CatID, own);
    if (amount > Money()) parts.expenses.bars.push_back({category->AccountName, amount});
  }
}

}  // namespace

Graph Build_PL_Graph(Session& session, const ReportRequest& request) {
  store::Database& db = *session.dbCompany;
  const CategoryTree tree = CategoryTree::Load(db);
  Parts parts;
  parts.months.months = Months_Of(request.days(), parts.months.series.size());
  Add_Income(parts, db, tree, request);
  Add_Expenses(parts, db, tree, request);
  Keep_Largest(parts.expenses.bars, largest_expenses);
  return {Make_Heading(session, request), {std::move(parts.months), std::move(parts.expenses)}};
}

}  // namespace tallymere
