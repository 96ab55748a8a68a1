#include <algorithm>

#include "reports/profit/profit_and_loss.h"
#include "reports/sums/ledger_sums.h"

namespace tallymere {
namespace {

size_t Month_At(const PL_Graph& graph, Date day) {
  return static_cast<size_t>(months_between(graph.months.front().first_day, day));
}

void Add_Months(PL_Graph& graph, const ReportRequest& request) {
  const Date first = request.from.first_of_month();
  for (int month = 0; month <= months_between(first, request.to); ++month)  // up to the last there is
    graph.months.push_back({first.add_months(month), {}, {}});
}

void Add_Income(PL_Graph& graph, store::Database& db, const CategoryTree& tree, const ReportRequest& request) {
  const SumRange range{{request.from, request.to}, request.basis};
  auto receive = [&](const DatedAmount& share) { graph.months[Month_At(graph, share.date)].income += share.amount; };
  CatIDs ordinary = Section_Categories(tree, "Other Income");
  CatIDs income = Section_Categories(tree, "Income");
  if (request.basis == Basis::Cash)
    Sum_CashIncome(db, income, range.days, receive);
  else
    ordinary.insert(ordinary.end(), income.begin(), income.end());
  Sum_Category_By_Day(db, ordinary, range, receive);
}

void Add_Expenses(PL_Graph& graph, store::Database& db, const CategoryTree& tree, const ReportRequest& request) {
  CatIDs all;
  for (std::string_view section : PL_Sections)
    if (Is_Expense_Side(section))
      for (std::string& id : Section_Categories(tree, section)) all.push_back(std::move(id));
  std::vector<Money> sums(all.size());
  Sum_Category_By_Day(db, all, {{request.from, request.to}, request.basis}, [&](const DatedAmount& share) {
    graph.months[Month_At(graph, share.date)].expense -= share.amount;
    sums[share.category] -= share.amount;
  });
  const Figures own = By_Category(all, sums);
  for (const Category* category : Top_Level_By_Name(tree)) {
    if (!Is_Expense_Side(category->AccountType)) continue;
    Money amount = tree.sum_family(category->CatID, own);
    if (amount > Money()) graph.expenses.push_back({category->AccountName, amount});
  }
}

void Keep_Largest(std::vector<PL_Graph::Slice>& slices, size_t largest) {
  std::stable_sort(slices.begin(), slices.end(), [](auto& a, auto& b) { return a.amount > b.amount; });
  if (slices.size() <= largest) return;
  Money rest;
  for (size_t at = largest; at < slices.size(); ++at) rest += slices[at].amount;
  slices.resize(largest);
  slices.push_back({"Other", rest});
}

}  // namespace

PL_Graph Build_PL_Graph(Session& session, const ReportRequest& request, size_t largest) {
  store::Database& db = *session.dbCompany;
  const store::Snapshot moment(db);
  const CategoryTree tree = CategoryTree::Load(db);
  PL_Graph graph;
  graph.heading = Make_Heading(session, request);
  Add_Months(graph, request);
  Add_Income(graph, db, tree, request);
  Add_Expenses(graph, db, tree, request);
  Keep_Largest(graph.expenses, largest);
  return graph;
}

}  // namespace tallymere
