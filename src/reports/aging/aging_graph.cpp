#include "reports/aging/aging_reports.h"
#include "reports/aging/open_documents.h"

namespace tallymere {

/// The columns of the summary as bars, and its largest lines.
Graph Build_Aging_Graph(Session& session, const ReportRequest& request) {
  constexpr size_t largest_names = 12;
  const bool receivable = same_text(request.key, "AR");
  const ReportTable table =
      receivable ? Build_Receivable_Aging(session, request) : Build_Payable_Aging(session, request);
  const int first = table.find_column(Bucket_Names.front()), total = table.find_column("Total");
  Graph_Bars ages{.title = "By age in days"};
  Graph_Bars names{.title = receivable ? "Who owes most" : "Who is owed most", .none = "Nothing is unpaid."};
  for (int row = 0; row < table.rows(); ++row) {
    if (table.role(row) == Role::Detail) {
      names.bars.push_back({table.text(row, table.label_column()), table.value(row, total).money()});
      continue;
    }
    for (size_t bucket = 0; bucket < Bucket_Names.size(); ++bucket)
      ages.bars.push_back(
          {std::string(Bucket_Names[bucket]), table.value(row, first + static_cast<int>(bucket)).money()});
    break;  // what follows the total leads to the balance
  }
  Keep_Largest(names.bars, largest_names);
  return {table.heading, {std::move(ages), std::move(names)}};
}

}  // namespace tallymere
