#pragma once

#include <array>
#include <string_view>

#include "core/ledger/category_tree.h"
#include "reports/reports.h"
#include "reports/sums/ledger_sums.h"

/// The income statement: frmPrintPL2 in its six variants.
namespace tallymere {

/// The sections in their order. On the expense side a debit is positive.
inline constexpr std::array<std::string_view, 5> PL_Sections = {"Income", "Other Income", "Cost of Goods Sold",
                                                                "Expense", "Other Expense"};
bool Is_Expense_Side(std::string_view AccountType);

/// The top-level categories, by name, as every statement walks them.
std::vector<const Category*> Top_Level_By_Name(const CategoryTree& tree);

/// The CatIDs of a section: its top-level categories with all that stands below them.
CatIDs Section_Categories(const CategoryTree& tree, std::string_view section);

ReportTable Build_PL(Session& session, const ReportRequest& request);
ReportTable Build_PLYTD(Session& session, const ReportRequest& request);
ReportTable Build_PLPrev(Session& session, const ReportRequest& request);
ReportTable Build_PLCus(Session& session, const ReportRequest& request);
ReportTable Build_PLClass(Session& session, const ReportRequest& request);
ReportTable Build_PLDetail(Session& session, const ReportRequest& request);

/// What "&Graph" paints: the same figures as the profit and loss of the same dates and basis.
struct PL_Graph {
  struct Month {
    Date first_day;
    Money income, expense;
  };
  struct Slice {
    std::string AccountName;  ///< of a top-level category with all below it; "Other" for the rest
    Money amount;
  };
  ReportHeading heading;
  std::vector<Month> months;    ///< every month of the period, quiet ones too
  std::vector<Slice> expenses;  ///< the largest first, none of them zero or less
};
PL_Graph Build_PL_Graph(Session& session, const ReportRequest& request, size_t largest = 8);

}  // namespace tallymere
