#pragma once

#include "reports/reports.h"

namespace tallymere {

/// Payroll Check-up: per employee what stands in the paychecks of a year up to a day, beside what the law of 2026 asks where
/// the calculation knows no limit. Read-only; docs/payroll-law.md tells what to do about a difference.
ReportTable Build_Payroll_Checkup(Session& session, const ReportRequest& request);

}  // namespace tallymere
