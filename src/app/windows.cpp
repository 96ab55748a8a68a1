#include "app/windows.h"

#include "entry/bank/frmPaySalesTax.h"
#include "entry/bank/frmReconcile.h"
#include "entry/bills/frmBills.h"
#include "entry/bills/frmInvBill.h"
#include "entry/bills/frmPayBills.h"
#include "entry/checks/frmCheck.h"
#include "entry/find/frmFind.h"
#include "entry/journal/frmJournal.h"
#include "entry/papers/frmOpenPOs.h"
#include "entry/papers/frmPaper.h"
#include "entry/receipts/frmDeposits.h"
#include "entry/receipts/frmOpenPayments.h"
#include "entry/receipts/frmPayments.h"
#include "entry/register/frmRegister.h"
#include "entry/repeats/frmModRepeat.h"
#include "entry/repeats/frmRepeats.h"
#include "entry/repeats/repeat.h"
#include "entry/sales/frmInvoice.h"
#include "entry/sales/frmOpenEst.h"
#include "entry/stock/frmInvAdjust.h"
#include "forms/frmCreate941.h"
#include "import/frmImportQB.h"
#include "lists/frmAccounts.h"
#include "lists/frmClass.h"
#include "lists/frmModAccount.h"
#include "lists/frmNewPayee.h"
#include "lists/frmOtherNames.h"
#include "lists/items/frmItems.h"
#include "lists/items/frmModItems.h"
#include "lists/parties/frmCusMessage.h"
#include "lists/parties/frmCustomers.h"
#include "lists/parties/frmModCustomer.h"
#include "lists/parties/frmModVendor.h"
#include "lists/parties/frmVendors.h"
#include "payroll/frmEmployees.h"
#include "payroll/frmModEmployee.h"
#include "payroll/frmPayAdjust.h"
#include "payroll/frmPayCheck.h"
#include "payroll/frmPayLiabilites.h"
#include "payroll/frmPayRefund.h"
#include "payroll/frmPayRoll.h"
#include "payroll/frmSetupYTD.h"
#include "payroll/frmTimeSheet.h"
#include "payroll/items/frmModPayItem.h"
#include "payroll/items/frmPayrollItems.h"
#include "printing/PrintedForm.h"
#include "printing/frmLayouts.h"
#include "printing/frmPrintChecks.h"
#include "printing/frmStatement.h"
#include "printing/frmStatements.h"
#include "reports/aging/frmPrintAging.h"
#include "reports/budget/frmBudget.h"
#include "reports/frame/AheadForm.h"
#include "reports/saved/frmSavedReps.h"
#include "reports/transactions/frmPrintCustom.h"
#include "shell/frmMain.h"
#include "shell/frmSpell.h"
#include "shell/help/frmKeys.h"
#include "shell/history/frmHistory.h"
#include "shell/settings/frmColorPicker.h"
#include "shell/settings/frmColors.h"
#include "shell/settings/frmCustFields.h"
#include "shell/settings/frmInfo.h"
#include "shell/settings/frmModUser.h"
#include "shell/settings/frmPrefrences.h"
#include "shell/settings/frmUsers.h"

namespace tallymere {

/// A window's row: {"frmCheck", Make_Window<frmCheck>}, or {"frmPrintAging", Make_Report<"frmPrintAging">}
/// for a report that is nothing but its rows in the table of reports.
const WindowTable& Windows() {
  static const WindowTable windows = {
      {"frmAccounts", Make_Window<frmAccounts>},
      {"frmBills", Make_Window<frmBills>},
      {"frmInvBill", Make_Window<frmInvBill>},
      {"frmPayBills", Make_Window<frmPayBills>},
      {"frmJournal", Make_Window<frmJournal>},
      {"frmInvAdjust", Make_Window<frmInvAdjust>},
      {"frmCheck", Make_Window<frmCheck>},
      {"frmInvoice", Make_Window<frmInvoice>},
      {"frmOpenEst", Make_Window<frmOpenEst>},
      {"frmOpenSlips", Make_Window<frmOpenSlips>},
      {"frmSpell", Make_Window<frmSpell>},
      {"frmPayments", Make_Window<frmPayments>},
      {"frmOpenPayments", Make_Window<frmOpenPayments>},
      {"frmDeposits", Make_Window<frmDeposits>},
      {"frmClass", Make_Window<frmClass>},
      {"frmPayrollItems", Make_Window<frmPayrollItems>},
      {"frmModPayItem", Make_Window<frmModPayItem>},
      {"frmCusMessage", Make_Window<frmCusMessage>},
      {"frmCustomers", Make_Window<frmCustomers>},
      {"frmModCustomer", Make_Window<frmModCustomer>},
      {"frmModVendor", Make_Window<frmModVendor>},
      {"frmVendors", Make_Window<frmVendors>},
      {"frmEstimate", Make_Window<frmEstimate>},
      {"frmPOs", Make_Window<frmPOs>},
      {"frmPackageSlips", Make_Window<frmPackageSlips>},
      {"frmOpenPOs", Make_Window<frmOpenPOs>},
      {"frmRepeats", Make_Window<frmRepeats>},
      {"frmModRepeat", Make_Window<frmModRepeat>},
      {"frmItems", Make_Window<frmItems>},
      {"frmModItems", Make_Window<frmModItems>},
      {"frmModAccount", Make_Window<frmModAccount>},
      {"frmNewPayee", Make_Window<frmNewPayee>},
      {"frmOtherNames", Make_Window<frmOtherNames>},
      {"frmRegister", Make_Window<frmRegister>},
      {"frmPrintCustom", Make_Window<frmPrintCustom>},
      {"frmPrintPL2", Make_Ahead<"frmPrintPL2">},
      {"frmPrintPLName", Make_Report<"frmPrintPLName">},
      {"frmFind", Make_Window<frmFind>},
      {"frmImportQB", Make_Window<frmImportQB>},
      {"frmSavedReps", Make_Window<frmSavedReps>},
      {"frmPrintAging", Make_Window<frmPrintAging>},
      {"frmPrintAgeDetail", Make_Report<"frmPrintAgeDetail">},
      {"frmPrintBalSheet", Make_Ahead<"frmPrintBalSheet">},
      {"frmBudget", Make_Window<frmBudget>},
      {"frmPrintBudCompare", Make_Report<"frmPrintBudCompare">},
      {"frmPrintBudList", Make_Report<"frmPrintBudList">},
      {"frmPrintInvCount", Make_Report<"frmPrintInvCount">},
      {"frmPrintInvItem", Make_Report<"frmPrintInvItem">},
      {"frmPrintInvValue", Make_Report<"frmPrintInvValue">},
      {"frmPrintSaleCus", Make_Report<"frmPrintSaleCus">},
      {"frmPrintSales", Make_Report<"frmPrintSales">},
      {"frmPrintSalesTax", Make_Report<"frmPrintSalesTax">},
      {"frmPrintBalances", Make_Report<"frmPrintBalances">},
      {"frmPrintPayroll", Make_Report<"frmPrintPayroll">},
      {"frmPrintPayrollEarnings", Make_Report<"frmPrintPayrollEarnings">},
      {"frmPrintPayDetail", Make_Report<"frmPrintPayDetail">},
      {"frmPrintListCat", Make_Report<"frmPrintListCat">},
      {"frmPrintListCus", Make_Report<"frmPrintListCus">},
      {"frmPrintListEmp", Make_Report<"frmPrintListEmp">},
      {"frmPrintListItem", Make_Report<"frmPrintListItem">},
      {"frmPrintListMem", Make_Report<"frmPrintListMem">},
      {"frmPrintListPay", Make_Report<"frmPrintListPay">},
      {"frmPrintListVen", Make_Report<"frmPrintListVen">},
      {"frmPrintPayCheckup", Make_Report<"frmPrintPayCheckup">},
      {"frmPayAdjust", Make_Window<frmPayAdjust>},
      {"frmPayCheck", Make_Window<frmPayCheck>},
      {"frmPayLiabilites", Make_Window<frmPayLiabilites>},
      {"frmPayRefund", Make_Window<frmPayRefund>},
      {"frmPayRoll", Make_Window<frmPayRoll>},
      {"frmSetupYTD", Make_Window<frmSetupYTD>},
      {"frmPaySalesTax", Make_Window<frmPaySalesTax>},
      {"frmReconcile", Make_Window<frmReconcile>},
      {"frmEmployees", Make_Window<frmEmployees>},
      {"frmModEmployee", Make_Window<frmModEmployee>},
      {"frmCreate941", Make_Window<frmCreate941>},
      {"frmTimeSheet", Make_Window<frmTimeSheet>},
      {"frmHistory", Make_Window<frmHistory>},
      {"frmKeys", Make_Window<frmKeys>},
      {"frmUsers", Make_Window<frmUsers>},
      {"frmModUser", Make_Window<frmModUser>},
      {"frmInfo", Make_Window<frmInfo>},
      {"frmCustFields", Make_Window<frmCustFields>},
      {"frmColors", Make_Window<frmColors>},
      {"frmPrefrences", Make_Window<frmPrefrences>},
      {"frmColorPicker", Make_Window<frmColorPicker>},
      {"frmPrintChecks", Make_Window<frmPrintChecks>},
      {"frmPrintCheck", Make_Document<"frmPrintCheck">},
      {"frmPrintInvoice", Make_Document<"frmPrintInvoice">},
      {"frmPrintInvoiceLetter", Make_Document<"frmPrintInvoiceLetter">},
      {"frmPrintStatement", Make_Document<"frmPrintStatement">},
      {"frmPrintPO", Make_Document<"frmPrintPO">},
      {"frmPrintSlip", Make_Document<"frmPrintSlip">},
      {"frmLayouts", Make_Window<frmLayouts>},
      {"frmStatement", Make_Window<frmStatement>},
      {"frmStatements", Make_Window<frmStatements>},
  };
  return windows;
}

std::unique_ptr<frmMain> Make_Frame(Session& session) {
  auto made = std::make_unique<frmMain>(session, Windows());
  made->Check_Repeats = [&session, frame = made.get()] {
    if (!Check_Repeats(session)) return;
    frame->changed("Transactions");
    frame->changed("RepeatTrans");
  };
  return made;
}

}  // namespace tallymere
