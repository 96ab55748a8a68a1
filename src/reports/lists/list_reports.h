#pragma once

#include "reports/reports.h"

/// What the company has on record, list by list: the frmPrintList windows.
namespace tallymere {

ReportTable Build_Category_List(Session& session, const ReportRequest& request);

}  // namespace tallymere
