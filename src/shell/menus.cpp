#include "shell/menus.h"

namespace tallymere {
namespace {

constexpr MenuRow menu_rows[] = {
    {"", "mnuFile", "&File"},
    {"mnuFile", "mnuNewCompany", "&New Company", "", "", "Ctrl+N"},
    {"mnuFile", "mnuOpenCommpany", "&Open Company", "", "", "Ctrl+O"},
    {"mnuFile", "mnuSwitchMode", "Switch to Multi-User Mode"},
    {"mnuFile", "lin", Separator},
    {"mnuFile", "mnuImport", "&Import"},
    {"mnuImport", "mnuQuickBooks", "&Excel Data", "frmImportQB"},
    {"mnuFile", "linCompany", Separator},
    {"mnuFile", "mnuCompany", "Company &Info....", "frmInfo"},
    {"mnuFile", "mnuBackup", "&Backup"},
    {"mnuFile", "mnuRestore", "&Restore"},
    {"mnuFile", "mnuTaxCheck", "&Check For Tax Updates"},
    {"mnuFile", "L99", Separator},
    {"mnuFile", "mnuPrint", "&Print"},
    {"mnuPrint", "mnuPrintChecks", "Print Checks", "frmPrintChecks"},
    {"mnuFile", "linExit", Separator},
    {"mnuFile", "mnuExit", "E&xit", "", "", "Ctrl+Q"},

    {"", "mnuAction", "&Action"},
    {"mnuAction", "mnuFind", "&Find Transaction", "frmFind", "", "Ctrl+F"},
    {"mnuAction", "linFind", Separator},
    {"mnuAction", "mnuInvoices", "&Invoices", "frmInvoice", "", "Ctrl+I"},
    {"mnuAction", "mnuChecks", "&Checks", "frmCheck", "", "Ctrl+K"},
    {"mnuAction", "mnuPO", "Create Purchase &Order", "frmPOs"},
    {"mnuAction", "mnuCreateEstimate", "Create &Estimate", "frmEstimate"},
    {"mnuAction", "mnuPS", "Create Package S&lips", "frmPackageSlips"},
    {"mnuAction", "mnuBill", "&Bills", "frmBills", "", "Ctrl+B"},
    {"mnuAction", "mnuPayBill", "Pa&y Bills", "frmPayBills"},
    {"mnuAction", "mnuPayments", "P&ayments", "frmPayments", "", "Ctrl+M"},
    {"mnuAction", "mnuDepositFunds", "&Deposit Funds", "frmDeposits", "", "Ctrl+D"},
    {"mnuAction", "mnuJournal", "&Edit Ledger", "frmJournal", "", "Ctrl+J"},
    {"mnuAction", "linPayroll", Separator},
    {"mnuAction", "mnuPayroll", "&PayRoll"},
    {"mnuAction", "mnuInventory", "&Inventory"},
    {"mnuAction", "linBudget", Separator},
    {"mnuAction", "mnuBudgetSetup", "&Set Up Budget", "frmBudget"},
    {"mnuAction", "mnuPaySalesTax", "Pay Sales &Tax", "frmPaySalesTax"},
    {"mnuAction", "mnnuPrint1099", "Print 109&9s", "frmCreate1099"},

    {"mnuPayroll", "mnuPayCreate", "&Create PayChecks", "frmPayRoll"},
    {"mnuPayroll", "mnuPayTaxes", "&Pay Liabilites", "frmPayLiabilites"},
    {"mnuPayroll", "mnuPayAdjust", "&Adjust Liabilities", "frmPayAdjust"},
    {"mnuPayroll", "mnuPayRefund", "&Enter Tax Refunds", "frmPayRefund"},
    {"mnuPayroll", "mnuPaySetup", "&Setup YTD Amounts", "frmSetupYTD"},
    {"mnuPayroll", "mnuPay941", "Create 94&1", "frmCreate941"},
    {"mnuPayroll", "mnuPay940", "Create 94&0", "frmCreate940"},
    {"mnuPayroll", "mnuState", "State &Forms"},
    {"mnuState", "mnuMin", "&Minnesota"},
    {"mnuMin", "mnuMW6", "Create &Quarter Tax Report", "frmQuarterState", "Minnesota"},
    {"mnuMin", "mnuSUTA", "Create SU&TA", "frmCreateSUTAMN"},
    {"mnuState", "mnuIK", "&Illinois"},
    {"mnuIK", "mnuILState", "Create &Quarter Tax Report", "frmQuarterState", "Illinois"},
    {"mnuState", "mnuID", "&Indiana"},
    {"mnuID", "mnuINState", "Create &Quarter Tax Report", "frmQuarterState", "Indiana"},
    {"mnuState", "mnuMO", "&Missouri"},
    {"mnuMO", "mnuMOState", "Create &Quarter Tax Report", "frmQuarterState", "Missouri"},
    {"mnuState", "mnuWI", "&Wisconsin"},
    {"mnuWI", "mnuWIState", "Create &Quarter Tax Report", "frmQuarterState", "Wisconsin"},
    {"mnuPayroll", "mnuPayW2", "Create W-&2s", "frmCreateW2"},
    {"mnuPayroll", "mnuPayW3", "Create W-&3", "frmCreateW3"},

    {"mnuInventory", "mnuInvRecBill", "&Receive Items and Enter Bill", "frmBills", Bills_Items},
    {"mnuInventory", "mnuInvRec", "Receive &Items", "frmBills", Bills_Item_Receipt},
    {"mnuInventory", "mnuInvBill", "Enter &Bill for Item Receipt", "frmInvBill"},
    {"mnuInventory", "mnuInvAdj", "&Adjust Quantity in Stock", "frmInvAdjust"},

    {"", "mnuLists", "&Lists"},
    {"mnuLists", "mnuAccounts", "&Categories", "frmAccounts", "", "Ctrl+L"},
    {"mnuLists", "mnuPayItems", "&Payroll Items", "frmPayrollItems"},
    {"mnuLists", "mnuCustomers", "C&ustomers", "frmCustomers"},
    {"mnuLists", "mnuVendors", "&Vendors", "frmVendors"},
    {"mnuLists", "mnuItems", "I&tems", "frmItems"},
    {"mnuLists", "mnuEmployee", "&Employees", "frmEmployees"},
    {"mnuLists", "mnuRepeatList", "&Repeat Transactions", "frmRepeats"},
    {"mnuLists", "mnuClassList", "C&lasses", "frmClass"},
    {"mnuLists", "mnuOtherNames", "&Other Names", "frmOtherNames"},
    {"mnuLists", "mnuCusMes", "Customer &Messages", "frmCusMessage"},
    {"mnuLists", "mnuUsers", "&Users", "frmUsers"},

    {"", "mnuReports", "&Reports"},
    {"mnuReports", "mnuPL", "&Profit/Loss"},
    {"mnuPL", "mnuRBasic", "&Basic", "frmPrintPL2", "PL"},
    {"mnuPL", "mnuRYTDPL", "&YTD Comparison", "frmPrintPL2", "PLYTD"},
    {"mnuPL", "mnuPrevYear", "&Prev Year Comparison", "frmPrintPL2", "PLPrev"},
    {"mnuPL", "mnuPLCustomer", "By C&ustomer", "frmPrintPL2", "PLCus"},
    {"mnuPL", "mnuPLClass", "By &Class", "frmPrintPL2", "PLClass"},
    {"mnuPL", "mnuPLDetail", "&Detail", "frmPrintPL2", "PLDetail"},
    {"mnuPL", "mnuPLIncSum", "&Summary of Income by Customer", "frmPrintPLName", "PLCusSum"},
    {"mnuPL", "mnuPLIncDetail", "&Details of Income by Customer", "frmPrintPLName", "PLCusDetail"},
    {"mnuPL", "mnuPLExpSum", "Summary of Expenses by &Vendor", "frmPrintPLName", "PLVenSum"},
    {"mnuPL", "mnuPLExpVen", "Detail of &Expenses by Vendor", "frmPrintPLName", "PLVenDetail"},
    {"mnuReports", "mnuBalance", "&Balance Sheet"},
    {"mnuBalance", "mnuBalStandard", "&Standard", "frmPrintBalSheet", "BalStand"},
    {"mnuBalance", "mnuBalSum", "S&ummary", "frmPrintBalSheet", "BalSum"},
    {"mnuBalance", "mnuBalCompare", "&Comparison", "frmPrintBalSheet", "BalCmp"},
    {"mnuBalance", "mnuBalItem", "&Detailed", "frmPrintBalSheet", "BalDetail"},
    {"mnuReports", "mnuAR", "&Accounts Receivable"},
    {"mnuAR", "mnuAgeSum", "&Aging Summary", "frmPrintAging", "AR"},
    {"mnuAR", "mnuAgeDetail", "Aging &Detail", "frmPrintAgeDetail", "ARDetail"},
    {"mnuAR", "mnuARInvoice", "&Open Invoices", "frmPrintAgeDetail", "OpenInvoices"},
    {"mnuAR", "mnuARCollect", "&Collection Report", "frmPrintAgeDetail", "CR"},
    {"mnuAR", "mnuARCusSum", "Customer Balance &Summary", "frmPrintBalances", "ARCusSum"},
    {"mnuAR", "mnuARCusDetail", "Customer &Balance Detail", "frmPrintBalances", "ARCusDetail"},
    {"mnuReports", "mnuSales", "&Sales"},
    {"mnuSales", "mnuSalesItemSum", "&Item Summary", "frmPrintSales", "SaleSum"},
    {"mnuSales", "mnuSalesItemDetail", "Item &Detail", "frmPrintSales", "SaleDetail"},
    {"mnuSales", "mnuSalesCusSum", "Customer &Summary", "frmPrintSaleCus", "SaleSum"},
    {"mnuSales", "mnuSalesCusDetail", "&Customer Detail", "frmPrintSaleCus", "SaleDetail"},
    {"mnuSales", "mnuSalesRepSum", "&Rep Summary", "frmPrintSaleCus", "RepSum"},
    {"mnuSales", "mnuSaleRepDetail", "Re&p Detail", "frmPrintSaleCus", "RepDetail"},
    {"mnuReports", "mnuReportsInventory", "&Inventory"},
    {"mnuReportsInventory", "mnuInvItem", "Status by &Item", "frmPrintInvItem", "Item"},
    {"mnuReportsInventory", "mnuInvVendor", "Status by &Vendor", "frmPrintInvItem", "Vendor"},
    {"mnuReportsInventory", "mnuInvValSum", "&Stock Value Summary", "frmPrintInvValue", "Sum"},
    {"mnuReportsInventory", "mnuInvValDetail", "Stock Value &Detail", "frmPrintInvValue", "Detail"},
    {"mnuReportsInventory", "mnuInvWork", "Count &Worksheet", "frmPrintInvCount"},
    {"mnuReports", "mnuAP", "Accounts &Payable"},
    {"mnuAP", "mnuAPAgeSum", "Aging &Summary", "frmPrintAging", "AR"},
    {"mnuAP", "mnuAPAgeDetail", "&Aging Detail", "frmPrintAgeDetail", "APDetail"},
    {"mnuAP", "mnuPrintAPVenSum", "&Vendor Balance Summary", "frmPrintBalances", "APVenSum"},
    {"mnuAP", "mnuPrintAPVenDetail", "Vendor Balance &Detail", "frmPrintBalances", "APVenDetail"},
    {"mnuAP", "mnuPrintAPBills", "&Unpaid Bills", "frmPrintAgeDetail", "OpenBills"},
    {"mnuReports", "mnuBudget", "&Budget"},
    {"mnuBudget", "mnuBudList", "&Complete Listing", "frmPrintBudList"},
    {"mnuBudget", "mnuBudCompare", "&Budget vs. Actual Comparison", "frmPrintBudCompare"},
    {"mnuReports", "mnuTransaction", "&Transaction"},
    {"mnuTransaction", "mnuPrintTranDate", "Report by &Date", "frmPrintCustom", "Date"},
    {"mnuTransaction", "mnuPrintTranCus", "Report by &Customer", "frmPrintCustom", "Customer"},
    {"mnuTransaction", "mnuPrintTranVen", "Report by &Vendor", "frmPrintCustom", "Vendor"},
    {"mnuReports", "mnuRPayroll", "&Payroll"},
    {"mnuRPayroll", "mnuPaySum", "&Summary", "frmPrintPayroll", "Hours,Avg Rate,TOTAL,"},
    {"mnuRPayroll", "mnuPayEmpEarn", "&Employee Earnings", "frmPrintPayrollEarnings", "EmpSum"},
    {"mnuRPayroll", "mnuPayLiaRpt", "&Liability Report", "frmPrintPayrollEarnings", "PayLia"},
    {"mnuRPayroll", "mnuPayItemDet", "&Item Detail", "frmPrintCustom", "PayItem"},
    {"mnuRPayroll", "mnuPayTransDetail", "&Transaction Detail", "frmPrintPayDetail"},
    {"mnuReports", "mnuReportLists", "&Company Lists"},
    {"mnuReportLists", "mnuListCus", "&Customer Contact Phone List", "frmPrintListCus"},
    {"mnuReportLists", "mnuListVen", "&Vendor Contact Phone List", "frmPrintListVen"},
    {"mnuReportLists", "mnuListEmp", "&Employee Info List", "frmPrintListEmp"},
    {"mnuReportLists", "mnuListCategory", "C&ategory Listing", "frmPrintListCat"},
    {"mnuReportLists", "mnuListItem", "&Item Listing", "frmPrintListItem"},
    {"mnuReportLists", "mnuListRepeats", "&Repeat Transactions", "frmPrintListMem"},
    {"mnuReportLists", "mnuListPayItem", "&Payroll Item Listing", "frmPrintListPay"},
    {"mnuReports", "mnuSalesReport", "Sales Tax Report", "frmPrintSalesTax"},
    {"mnuReports", "mnuSavedReports", "&Saved Reports", "frmSavedReps"},

    {"", "mnuOptions", "&Options"},
    {"mnuOptions", "mnuPrefrences", "&Prefernces.....", "frmPrefrences"},
    {"mnuOptions", "mnuColors", "&Colors.....", "frmColors"},
    {"", "mnuWindow", "&Window"},
    {"", "mnuHelp", "&Help"},
};

constexpr ToolRow tool_rows[] = {
    {"btnInvoices", "Invoices", "invoice", "frmInvoice"},
    {"btnChecks", "Checks", "check", "frmCheck"},
    {"btnBills", "Bills", "bill", "frmBills"},
    {"btnPayments", "Payments", "payment", "frmPayments"},
    {"linLists", Separator, ""},
    {"btnAccounts", "Categories", "categories", "frmAccounts"},
    {"btnCustomers", "Customers", "customers", "frmCustomers"},
    {"btnVendors", "Vendors", "vendors", "frmVendors"},
    {"btnItems", "Items", "items", "frmItems"},
    {"linPayroll", Separator, ""},
    {"btnTime", "Time sheet", "time", "frmTimeSheet"},
    {"btnPayRoll", "PayRoll", "payroll", "frmPayRoll"},
    {"linProgram", Separator, ""},
    {"btnBackup", "Backup", "backup", "", "mnuBackup"},
    {"btnHelp", "Help", "help", "", "btnHelp"},
    {"btnExit", "Exit", "exit", "", "mnuExit"},
};

constexpr ContextRow context_rows[] = {
    {"mnuAccount", "cmdNew", "&New Category"},
    {"mnuAccount", "mnuEdit", "&Edit Category"},
    {"mnuAccount", "mnuDelete", "&Delete Category"},
    {"mnuAccount", "mnuRegister", "&Category Register"},
    {"mnuAccount", "mnuReconcile", "&Reconcile"},
    {"mnuAccount", "mnuCatReport", "Category Re&port"},
    {"mnuCustomers", "mnuNewCustomer", "New Customer"},
    {"mnuCustomers", "mnuEditCus", "Edit Customer"},
    {"mnuCustomers", "mnuDeleteCus", "Delete Customer"},
    {"mnuCustomers", "mnuCreateStatement", "Create Statement"},
    {"mnuVendors", "mnuNewVen", "New Vendor"},
    {"mnuVendors", "mnuEditVen", "Edit Vendor"},
    {"mnuVendors", "mnuDeleteVen", "Delete Vendor"},
    {"mnuVendors", "mnuVenRep", "Vendor Report"},
    {"mnuItems", "mnuNewItem", "New Item"},
    {"mnuItems", "mnuEditItem", "Edit Item"},
    {"mnuItems", "mnuDeleteItem", "Delete Item"},
    {"mnuItems", "mnuItemReport", "&Item Report"},
    {"mnuRows", "mnuDeleteLine", "Delete Line"},
    {"mnuEmployee", "mnuNewEmp", "&New Employee"},
    {"mnuEmployee", "mnuEditEmp", "&Edit Employee"},
    {"mnuEmployee", "mnuDelEmp", "&Delete Employee"},
    {"mnuPayroll", "mnuNewPayroll", "&New Payroll Item"},
    {"mnuPayroll", "mnuEditPayroll", "&Edit Payroll Item"},
    {"mnuPayroll", "mnuDeletePayroll", "&Delete Payroll Item"},
    {"mnuDelItem", "mnuDeleteAdjust", "Delete Item"},
    {"mnuDelEarn", "mnuDelEarning", "Delete Earning"},
    {"mnuGroup", "mnuRveGroupItem", "Remove Item"},
    {"mnuRepeats", "mnuEditRep", "Edit Repeat"},
    {"mnuRepeats", "mnuDelRepeat", "Delete Repeat"},
    {"mnuReg", "mnuDelReg", "&Delete Item"},
    {"mnuSaveReps", "mnuEditSaveRep", "&Edit Report"},
    {"mnuSaveReps", "mnuDelSavRep", "&Delete Report"},
    {"mnuSaveReps", "mnuShowSaveRep", "&Show Report"},
    {"mnuCusMessages", "mnuCusMessageNew", "New"},
    {"mnuCusMessages", "mnuCusMesDelete", "Delete"},
};

struct TypeRow {
  std::string_view type;
  std::string_view window;
};
constexpr TypeRow type_rows[] = {
    {"Payment", "frmPayments"},     {"Check", "frmCheck"},    {"Billcheck", "frmCheck"},
    {"Liabilitycheck", "frmCheck"}, {"Paycheck", "frmCheck"}, {"Bill", "frmBills"},
    {"Item Receipt", "frmBills"},   {"Credit", "frmBills"},   {"Invoice", "frmInvoice"},
};

constexpr std::string_view category_columns = "Type,Date,Number,Name,Memo,Category,Amount,Balance,";
struct ColumnsRow {
  std::string_view key;
  std::string_view columns;
};
constexpr ColumnsRow columns_rows[] = {
    {"AcctRep", category_columns},
    {"PrintAcctRep", category_columns},
    {"PrintAcctBal", category_columns},
    {"VendorRep", category_columns},
    {"ItemRep", "Type,Date,Number,Name,Memo,Qty,Amount,"},
    {"PayItem", "Type,Date,Number,Name,PayrollItem,Amount,"},
};

}  // namespace

std::span<const MenuRow> Menu_Table() {
  return menu_rows;
}
std::span<const ToolRow> Toolbar_Table() {
  return tool_rows;
}
std::span<const ContextRow> Context_Table() {
  return context_rows;
}

std::string_view Window_Of_Type(std::string_view type) {
  for (const TypeRow& row : type_rows)
    if (row.type == type) return row.window;
  return "frmJournal";
}

std::string_view Custom_Report_Columns(std::string_view key) {
  for (const ColumnsRow& row : columns_rows)
    if (row.key == key) return row.columns;
  return {};
}

}  // namespace tallymere
