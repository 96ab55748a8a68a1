#pragma once

#include "reports/reports.h"

/// What was paid, withheld and owed: payroll items against employees.
namespace tallymere {

/// A row for each payroll item, a group of columns for each employee who was paid, and one for all of them.
ReportTable Build_Payroll_Summary(Session& session, const ReportRequest& request);
/// A row for each employee, a column for each payroll item that stands in the period.
ReportTable Build_Payroll_Earnings(Session& session, const ReportRequest& request);
/// What the period added to each payroll item's liability, less what was paid on it.
ReportTable Build_Payroll_Liabilities(Session& session, const ReportRequest& request);
/// Every row of paychecks and liability checks that has a payroll item.
ReportTable Build_Payroll_Detail(Session& session, const ReportRequest& request);

}  // namespace tallymere
