// Every report of the menus comes up under its title with its columns, in the preview, as PDF, sheet and CSV; the aging of
// either side; the budget window; the graphs.
function post(number, type, day, name, account, debit, credit, more) {
  const row = Object.assign({TransNum: number, Type: type, Date: day, Name: name, Account: account, Category: "AR1",
                             Debit: debit, Credit: credit, Amount: debit || credit, Paid: false}, more || {});
  const fields = Object.keys(row);
  other("INSERT INTO Transactions (" + fields.join(", ") + ") VALUES (" + fields.map(() => "?").join(", ") + ")",
        ...fields.map((field) => row[field]));
}
const captions = (g) => g.columns.map((column) => column.caption || column).filter((text) => text !== "");
const rowOf = (g, label) => {
  for (let row = 0; row < g.rows; ++row) if (g.text(row, 1).trim() === label) return row;
  throw new Error("no row " + label);
};

start();
newCompany("Acme");
other("INSERT INTO Customers (Name, Phone) VALUES (?, ?)", "Ann", "555-1");
other("INSERT INTO Vendors (Name) VALUES (?)", "City Land");
other("INSERT INTO Items (ItemName, ItemType, ItemCat, InitialQty, Dormant) VALUES (?, ?, ?, ?, 0)", "Rake",
      "Inventory Part", "29SS", 5);
post(1, "Invoice", "5/2/2026", "Ann", "AR1", 100, 0);
post(1, "Invoice", "5/2/2026", "Ann", "29SS", 0, 100, {Item: "Rake", Qty: -2});
post(2, "Bill", "6/1/2026", "City Land", "AP1", 0, 40);
post(2, "Bill", "6/1/2026", "City Land", "76SS", 40, 0);

const reports = [
  ["mnuBalStandard", "frmPrintBalSheet", "Balance Sheet"],
  ["mnuBalSum", "frmPrintBalSheet", "Balance Sheet Summary"],
  ["mnuBalCompare", "frmPrintBalSheet", "Balance Sheet Comparison"],
  ["mnuBalItem", "frmPrintBalSheet", "Balance Sheet Detailed"],
  ["mnuAgeSum", "frmPrintAging", "Accounts Receivable Aging Summary"],
  ["mnuAgeDetail", "frmPrintAgeDetail", "Accounts Receivable Aging Detail"],
  ["mnuARInvoice", "frmPrintAgeDetail", "Open Invoices"],
  ["mnuARCollect", "frmPrintAgeDetail", "Collections Report"],
  ["mnuARCusSum", "frmPrintBalances", "Customer Balance Summary"],
  ["mnuARCusDetail", "frmPrintBalances", "Customer Balance Detail"],
  ["mnuSalesItemSum", "frmPrintSales", "Sales Item Summary"],
  ["mnuSalesItemDetail", "frmPrintSales", "Sales Item Detail"],
  ["mnuSalesCusSum", "frmPrintSaleCus", "Sales Customer Summary"],
  ["mnuSalesCusDetail", "frmPrintSaleCus", "Sales Customer Detail"],
  ["mnuSalesRepSum", "frmPrintSaleCus", "Sales Rep Summary"],
  ["mnuSaleRepDetail", "frmPrintSaleCus", "Sales Rep Detail"],
  ["mnuInvItem", "frmPrintInvItem", "Inventory Status by Item"],
  ["mnuInvVendor", "frmPrintInvItem", "Inventory Status by Item"],
  ["mnuInvValSum", "frmPrintInvValue", "Inventory Stock Value Summary"],
  ["mnuInvValDetail", "frmPrintInvValue", "Inventory Stock Value Detail"],
  ["mnuInvWork", "frmPrintInvCount", "Inventory Count Worksheet"],
  ["mnuAPAgeDetail", "frmPrintAgeDetail", "Accounts Payable Aging Detail"],
  ["mnuPrintAPVenSum", "frmPrintBalances", "Vendor Balance Summary"],
  ["mnuPrintAPVenDetail", "frmPrintBalances", "Vendor Balance Detail"],
  ["mnuPrintAPBills", "frmPrintAgeDetail", "Unpaid Bills"],
  ["mnuBudList", "frmPrintBudList", "Complete Budget Listing"],
  ["mnuBudCompare", "frmPrintBudCompare", "Budget vs. Actual"],
  ["mnuListCus", "frmPrintListCus", "Customer Contact Phone List"],
  ["mnuListVen", "frmPrintListVen", "Vendor Contact Phone List"],
  ["mnuListEmp", "frmPrintListEmp", "Employee Info List"],
  ["mnuListItem", "frmPrintListItem", "Item Listing"],
  ["mnuListRepeats", "frmPrintListMem", "Repeat Transactions"],
  ["mnuListPayItem", "frmPrintListPay", "Payroll Item Listing"],
  ["mnuSalesReport", "frmPrintSalesTax", "Sales Tax Report"],
];
for (const [command, window, title] of reports) {
  menu(command);
  const w = win(window);
  equal([w.Label6.value, w.Label5.value], [title, "Acme"], command);
  ok(w.grdPL.columns.length > 2, command);
  shot(command);
  modal("frmPreview", function (d) {
    ok(/^Page 1 of [1-9]/.test(d.lblPage.value), command);
    click(d.cmdClose);
  });
  click(w.cmdPrint);
  for (const [item, kind] of [["mnuExportPDF", "pdf"], ["mnuExportSheet", "xlsx"], ["mnuExportCSV", "csv"]]) {
    file(null, command + "." + kind);
    click(w.cmdExport);
    popup(item);
    ok(exists(command + "." + kind), command + " as " + kind);
  }
  click(w.cmdExport);
  popup("mnuExportCopy");
}
equal(log(), [], "nothing went wrong on the way");
for (const window of new Set(reports.map((row) => row[1]))) close(win(window));

// Both menus open the aging at the customers; the window offers the vendors too, and keeps its day.
menu("mnuAPAgeSum");
let w = win("frmPrintAging");
equal(w.Label6.value, "Accounts Receivable Aging Summary");
equal(w.grdPL.text(rowOf(w.grdPL, "Ann"), 4), "100", "44 days");
date(w.dteEnd, "6/20/2026");
click(w.optParty_1);
equal([w.Label6.value, w.Label4.value], ["Accounts Payable Aging Summary", "As of 6/20/2026"]);
equal(w.grdPL.text(rowOf(w.grdPL, "City Land"), 3), "40");
click(w.optParty_0);
equal(w.Label6.value, "Accounts Receivable Aging Summary");
date(w.dteEnd, "6/1/2026");
equal(w.Label4.value, "As of 6/1/2026, of what is unpaid today, 6/15/2026");
close(w);

// A category on the balance sheet opens its year.
menu("mnuBalStandard");
w = win("frmPrintBalSheet");
option(w.optBasis, 1);
w.grdPL.dblclick(rowOf(w.grdPL, "Accounts Payable"));
equal(win("frmPrintCustom").Label4.value, "1/1/2026 - 6/15/2026");
close(win("frmPrintCustom"));
close(w);

// --- the budget

menu("mnuBudgetSetup");
w = win("frmBudget");
box("", "Select a Category to Budget");
click(w.cmdOk);
equal(rows("SELECT * FROM Budget").length, 0);
pick(w.cmbCat, "Rent");
type(w.txtJan, "100");
equal(w.txtJan.value, "$100.00");
click(w.cmdFill);
type(w.txtDec, "150.5");
click(w.cmdOk);
equal(rows("SELECT Month, Amount FROM Budget WHERE Category = '76SS' AND Year = 2026 AND Month > 10 ORDER BY Month"),
      [{Month: 11, Amount: 100}, {Month: 12, Amount: 150.5}]);
equal(rows("SELECT * FROM Budget").length, 12);

// What was typed is asked about: stay, save, let go.
type(w.txtFeb, "7");
box("Save Changes", null, "Yes");
pick(w.cmbCat, "Utilities");
equal(rows("SELECT Amount FROM Budget WHERE Category = '76SS' AND Month = 2"), [{Amount: 7}]);
equal(w.txtFeb.value, "");
type(w.txtFeb, "9");
box("Save Changes", null, "No");
date(w.dteYear, "1/1/2027");
equal(rows("SELECT * FROM Budget").length, 12);
date(w.dteYear, "1/1/2026");
pick(w.cmbCat, "Rent");
equal([w.txtFeb.value, w.txtDec.value], ["$7.00", "$150.50"]);

// Last year's ledger with a percentage.
post(3, "Check", "3/5/2025", "City Land", "76SS", 200, 0);
input("From Last Year", null, "10%");
click(w.cmdActual);
equal([w.txtMar.value, w.txtApr.value], ["$220.00", "$0.00"]);
click(w.cmdOk);
close(w);
menu("mnuBudCompare");
w = win("frmPrintBudCompare");
const rent = rowOf(w.grdPL, "Rent");
equal([w.grdPL.text(rent, 17), w.grdPL.text(rent, 18), w.grdPL.text(rent, 19)], ["40", "0", "40"], "June");

// --- graphs

for (const [command, window] of [["mnuBalStandard", "frmPrintBalSheet"], ["mnuAgeSum", "frmPrintAging"],
                                 ["mnuSalesItemSum", "frmPrintSales"], ["mnuBudCompare", "frmPrintBudCompare"]]) {
  menu(command);
  w = win(window);
  click(w.cmdGraph);
  equal([w.grfPL.visible, w.grdPL.visible], [true, false], command);
  shot("graph_" + window + ".png");
  modal("frmPreview", function (d) {
    equal(d.lblPage.value, "Page 1 of 1");
    click(d.cmdClose);
  });
  click(w.cmdPrint);
  click(w.cmdGraph);
  equal([w.grfPL.visible, w.grdPL.visible], [false, true], command);
}
menu("mnuSalesItemDetail");
click(win("frmPrintSales").cmdGraph);
menu("mnuSalesItemSum");
ok(win("frmPrintSales").grdPL.visible, "another report begins with its figures");
menu("mnuSalesReport");
ok(!win("frmPrintSalesTax").cmdGraph.visible, "it has no graph");
