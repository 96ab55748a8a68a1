#include "core/values/text.h"
#include "reports/sales/sales_reports.h"

namespace tallymere {

/// The summary's types and its largest items as bars.
Graph Build_Item_Sales_Graph(Session& session, const ReportRequest& request) {
  constexpr size_t largest_items = 14;
  const ReportTable table = Build_Item_Sales(session, request);
  const int label = table.label_column(), amount = table.find_column("Amount");
  Graph_Bars types{.title = "By type of item"};
  Graph_Bars items{.title = "Largest sales", .none = "Nothing was sold in this period."};
  std::string type;
  for (int row = 0; row < table.rows(); ++row) {
    const Money sold = table.value(row, amount).money();
    if (table.role(row) == Role::Head) type = table.text(row, label);
    if (sold.is_zero()) continue;
    if (table.role(row) == Role::Detail) items.bars.push_back({trim(table.text(row, label)), sold});
    if (table.role(row) == Role::Total) types.bars.push_back({type, sold});
  }
  Keep_Largest(items.bars, largest_items);
  Graph graph{table.heading};
  if (!types.bars.empty()) graph.parts.emplace_back(std::move(types));
  graph.parts.emplace_back(std::move(items));
  return graph;
}

}  // namespace tallymere
