#include "reports/budget/budget_reports.h"
#include "reports/sums/sections.h"

namespace tallymere {

/// Budget and actual over the months: income above, expense below. Only what has a budget is compared.
Graph Build_Budget_Graph(Session& session, const ReportRequest& request) {
  const CategoryTree tree = CategoryTree::Load(*session.dbCompany);
  const ReportTable table = Build_Budget_Compare(session, request);
  const auto part = [&](std::string title) {
    Graph_Months months{.title = std::move(title), .series = {"Actual", "Budget"}, .difference = "Over Budget"};
    months.months = Months_Of(request.days(), months.series.size());
    return months;
  };
  Graph_Months income = part("Income"), expense = part("Expense");
  for (int row = 0; row < table.rows(); ++row) {
    const Category* category = tree.find(std::string(table.key(row).text));
    const bool earns = category && contains(category->AccountType, "Income");
    if (!earns && !(category && Is_Expense_Side(category->AccountType))) continue;
    auto& months = (earns ? income : expense).months;
    for (size_t at = 0; at < months.size(); ++at)
      for (const size_t series : {0, 1}) {
        const int column = table.label_column() + 1 + static_cast<int>(3 * at + series);
        months[at].amounts[series] += table.value(row, column).money();
      }
  }
  return {table.heading, {std::move(income), std::move(expense)}};
}

}  // namespace tallymere
