#include "shell/shell.h"

#include "reports/transactions/transaction_reports.h"

namespace tallymere {

Form* Shell::Show_Custom_Report(Request request) {
  request.window = "frmPrintCustom";
  request.new_instance = true;
  if (request.columns.empty()) request.columns = Custom_Report_Columns(request.key);
  return Show_Window(request);
}

}  // namespace tallymere
