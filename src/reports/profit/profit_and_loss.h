#pragma once

#include <string>
#include <vector>

#include "reports/reports.h"

/// The income statement: frmPrintPL2 in its six variants.
namespace tallymere {

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
