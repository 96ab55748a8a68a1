#include "reports/graph/graph.h"

#include <algorithm>

#include "core/values/text.h"
#include "reports/aging/aging_reports.h"
#include "reports/balance/balance_sheet.h"
#include "reports/budget/budget_reports.h"
#include "reports/profit/profit_and_loss.h"
#include "reports/sales/sales_reports.h"

namespace tallymere {
namespace {

// The reports that are shown as a graph too. A new one needs its row and its builder.
constexpr struct {
  std::string_view key;
  Graph_Builder build;
} graphs[] = {
    {"PL", Build_PL_Graph},
    {"PLYTD", Build_PL_Graph},
    {"PLPrev", Build_PL_Graph},
    {"PLCus", Build_PL_Graph},
    {"PLClass", Build_PL_Graph},
    {"PLDetail", Build_PL_Graph},
    {"BalStand", Build_Balance_Graph},
    {"BalSum", Build_Balance_Graph},
    {"BalCmp", Build_Balance_Graph},
    {"BalDetail", Build_Balance_Graph},
    {"AR", Build_Aging_Graph},
    {"AP", Build_Aging_Graph},
    {"SaleSum", Build_Item_Sales_Graph},
    {"SaleDetail", Build_Item_Sales_Graph},
    {"BudCompare", Build_Budget_Graph},
};

/// All from there on become "Other".
void Put_Together(std::vector<Graph_Bars::Bar>& bars, size_t from) {
  Money rest;
  for (size_t at = from; at < bars.size(); ++at) rest += bars[at].amount;
  bars.resize(from);
  bars.push_back({"Other", rest});
}

Graph_Builder Builder_Of(std::string_view key) {
  for (const auto& graph : graphs)
    if (same_text(graph.key, key)) return graph.build;
  return nullptr;
}

}  // namespace

bool Has_Graph(std::string_view key) { return Builder_Of(key) != nullptr; }

Graph Build_Graph(Session& session, const ReportRequest& request) {
  const Graph_Builder build = Builder_Of(request.key);
  if (!build) throw store::Error(store::errors::no_such_field, "\"" + request.key + "\" has no graph.");
  const store::Snapshot moment(*session.dbCompany);
  return build(session, request);
}

std::vector<Graph_Months::Month> Months_Of(DateRange days, size_t series) {
  std::vector<Graph_Months::Month> months;
  const Date first = days.start.first_of_month();
  for (int month = 0; month <= months_between(first, days.end); ++month)  // up to the last there is
    months.push_back({first.add_months(month), std::vector<Money>(series)});
  return months;
}

void Keep_Largest(std::vector<Graph_Bars::Bar>& bars, size_t largest) {
  std::stable_sort(bars.begin(), bars.end(), [](auto& a, auto& b) { return a.amount > b.amount; });
  if (bars.size() > largest) Put_Together(bars, largest);
}

std::vector<Graph_Bars::Bar> Largest_Bars(std::vector<Graph_Bars::Bar> bars, size_t most) {
  if (most == 0) return {};
  if (bars.size() > most) Put_Together(bars, most - 1);
  return bars;
}

}  // namespace tallymere
