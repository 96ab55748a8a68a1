#include "reports/lists/list_reports.h"

#include "reports/frame/field_columns.h"

namespace tallymere {

ReportTable Build_Category_List(Session& session, const ReportRequest& request) {
  ReportTable table;
  table.heading = Make_Heading(session, request);
  Add_Records(*session.dbCompany, table, "Accounts", {"AccountName", "AccountType", "AccountNum", "Balance"});
  return table;
}

}  // namespace tallymere
