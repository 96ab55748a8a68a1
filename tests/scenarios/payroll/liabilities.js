// What is owed to the agencies: paid, changed, corrected, refunded.
start();
newCompany("Acme");
other("UPDATE PayrollItems SET LiabilityAgency = 'Treasury', LiabilityNumber = 'N-1' WHERE Name <> 'Medicare Employee'");
other("INSERT INTO PayrollItems (Name, Type, LiabilityAcct, TaxPaid) VALUES ('Plan', 'Deduction', '21SS', 'Employee Paid Tax')");
other("INSERT INTO Vendors (Name, Address) VALUES ('Treasury', 'Ogden')");
other("INSERT INTO Employees (SSNum, Name) VALUES ('9', 'Ann')");
let number = 0;
function row(account, debit, credit, item, day) {
  other("INSERT INTO Transactions (TransNum, Type, Date, Account, Debit, Credit, Amount, PayrollItem) VALUES (?, ?, ?, ?, ?, ?, ?, ?)",
        number, "Paycheck", day, account, debit, credit, debit + credit, item);
}
function owes(item, account, amount, day) {
  ++number;
  row("68SS", amount, 0, "", day);
  row(account, 0, amount, item, day);
}
owes("Federal Withholding", "15SS", 100, "3/13/2026");
owes("Social Security Employee", "16SS", 60, "3/13/2026");
owes("Medicare Employee", "17SS", 14.5, "3/13/2026");
owes("Federal Withholding", "15SS", 11, "4/10/2026");
menu("mnuPayTaxes");
let w = win("frmPayLiabilites");
const g = w.grdItems;
equal([w.caption, w.cmbBankAcct.value, w.lblBankID.value, w.dtePayDate.value, w.dteQtrDate.value, w.cmdCreate.caption],
      ["Pay Liabilities", "Checking", "0SS", "6/15/2026", "6/15/2026", "C&reate"]);
function list() { const all = []; for (let row = 0; row < g.rows; ++row) all.push(g.text(row, "Payroll Liability") + " " + g.text(row, "Amount")); return all; }
equal(list(), ["Federal Withholding 111", "Social Security Employee 60", "Medicare Employee 14.5"]);
const bank = w.lblBalance.value;
g.toggle(0, "Select");
equal(w.lblBalance.value, "-$111.00");
date(w.dteQtrDate, "3/31/2026");
equal([list()[0], g.text(0, "Select"), w.lblBalance.value], ["Federal Withholding 100", "False", "-$111.00"], "the ticks go, the balance stays where they put it");
pick(w.cmbBankAcct, "Savings");
pick(w.cmbBankAcct, "Checking");
equal(w.lblBalance.value, bank);
box("No Agency", "Please Enter an Agency to Pay To before paying Liability");
modal("frmModPayItem", function (m) {
  equal([m.caption, m.txtName.value], ["Edit Item", "Medicare Employee"]);
  click(m.cmdCancel);
});
g.toggle(2, "Select");
equal(g.text(2, "Select"), "False");
type(w.cmbBankAcct, "");
box("No Bank", "Please Select a Bank to Pay Liabilities From.");
g.toggle(0, "Select");
box("No Bank", "Please select a Bank to Pay Liabilities from.");
click(w.cmdCreate);
pick(w.cmbBankAcct, "Checking");
click(w.cmdCreate);
ok(isOpen("frmPayLiabilites"), "nothing is selected");
g.toggle(0, "Select");
g.toggle(1, "Select");
shot("frmPayLiabilites");
click(w.cmdCreate);
ok(!isOpen("frmPayLiabilites"));
function plain(number) { return ledger(number).map(function (row) { return [row.Name, row.Account, row.Debit || 0, row.Credit || 0, row.PayrollItem || "", row.PaidThrough, row.Number]; }); }
const check = plain(5);
equal(check, [["Treasury", "0SS", 0, 160, "", "3/31/2026", "Print"],
              ["Treasury", "15SS", 100, 0, "Federal Withholding", "3/31/2026", "Print"],
              ["Treasury", "16SS", 60, 0, "Social Security Employee", "3/31/2026", "Print"]]);

// From the check window back to its lines; unchanged it stays, another user is told.
menu("mnuChecks");
const c = win("frmCheck");
click(c.cmdPrev);
type(c.txtNumber, "2001");
modal("frmPayLiabilites", function (m) {
  equal([m.cmdCreate.caption, m.dteQtrDate.value, m.grdItems.rows, m.grdItems.text(0, "Select")], ["&Save", "3/31/2026", 2, "True"]);
  click(m.cmdCreate);
});
click(c.cmdLiaEdit);
equal(plain(5), check.map(function (row) { return row.slice(0, 6).concat("2001"); }));
modal("frmPayLiabilites", function (m) {
  other("UPDATE Transactions SET Memo = 'theirs' WHERE TransNum = 5");
  box("Data has changed", null);
  click(m.cmdCreate);
  click(m.cmdCancel);
});
click(c.cmdLiaEdit);

// Corrections: who pays the tax decides whether an employee is named.
menu("mnuPayAdjust");
let a = win("frmPayAdjust");
equal([a.caption, a.DTPicker1.value, a.optApply.value], ["Adjust Liabilites", "6/15/2026", "0"]);
a.grdAdjustments.set(0, "Payroll Item", "Medicare Employee");
equal(a.grdAdjustments.text(0, "TaxPaid"), "Employee Paid Tax");
a.grdAdjustments.set(0, "Amount", "4.5");
box("No Employee", "Item is Employee Paid, Employee Name is Necessary");
click(a.cmdOk);
a.grdAdjustments.set(0, "Employee Affected", "Ann");
a.grdAdjustments.set(1, "Payroll Item", "Medicare Company");
a.grdAdjustments.set(1, "Amount", "-7");
a.grdAdjustments.set(1, "Employee Affected", "Ann");
box("Employee is not Needed", "Item is Employer Paid, no Employee Name Necessary");
click(a.cmdOk);
equal(a.grdAdjustments.text(1, "Employee Affected"), "");
shot("frmPayAdjust");
click(a.cmdOk);
ok(!isOpen("frmPayAdjust"));
equal(ledger(6).map(function (row) { return [row.Type, row.Account, row.Debit || 0, row.Credit || 0, row.SSNum || "", row.Memo]; }),
      [["Liability Adjust", "17SS", 4.5, 0, "9", "Payroll Liability Adjustment"], ["Liability Adjust", "OE1", 0, 4.5, "9", "Payroll Liability Adjustment"],
       ["Liability Adjust", "17SS", 0, 7, "", "Payroll Liability Adjustment"], ["Liability Adjust", "69SS", 7, 0, "", "Payroll Liability Adjustment"]]);

// A refund, mistakes in the order of the screen.
menu("mnuPayRefund");
const r = win("frmPayRefund");
equal(r.caption, "Deposit Tax Refunds");
box("No Items", "Please Select a Payrollitem to refund to.");
click(r.cmdOk);
r.grdItems.set(0, "Item", "Federal Withholding");
r.grdItems.set(0, "Amount", "6");
box("No Vendor", "Please Select a Vendor to refund form.");
click(r.cmdOk);
pick(r.cmbVendor, "Treasury");
box("No Category", "Please Select a Category to refund to.");
click(r.cmdOk);
pick(r.cmbDeposit, "Checking");
shot("frmPayRefund");
click(r.cmdOk);
equal(ledger(7).map(function (row) { return [row.Account, row.Debit || 0, row.Credit || 0, row.PaidThrough]; }), [["0SS", 6, 0, "6/15/2026"], ["15SS", 0, 6, "6/15/2026"]]);

// The year before the books: without and with the bank.
menu("mnuPaySetup");
const y = win("frmSetupYTD");
equal([y.caption, y.optApply.value, y.cmbBank.enabled], ["Setup/Adjust Year-To-Date Amounts", "1", false]);
y.grdIncome.set(0, "Item", "Federal Withholding");
box("Invalid Data", "Please have a payroll item and an amount for each row.");
click(y.cmdAction);
y.grdIncome.set(0, "Amount", "90");
box("No Employee", null);
click(y.cmdAction);
pick(y.cmbEmployee, "Ann");
option(y.optApply, 2);
ok(y.cmbBank.enabled);
box("No Bank", null);
click(y.cmdAction);
shot("frmSetupYTD");
option(y.optApply, 1);
click(y.cmdAction);
ok(!isOpen("frmSetupYTD"));
equal(ledger(8).map(function (row) { return [row.Type, row.Account, row.Debit || 0, row.Credit || 0, row.SSNum]; }),
      [["YTD Adjust", "15SS", 0, 90, "9"], ["YTD Adjust", "OE1", 90, 0, "9"]]);

// An owner chooses how paychecks post: under the plain rule such a correction is one row.
function posting() { return rows("SELECT State FROM GeneralPrefs WHERE Preference = 'PayrollPosting'").map(function (row) { return row.State; }); }
menu("mnuPrefrences");
const p = win("frmPrefrences");
pick(p.imgSettings, "Payroll");
equal([posting(), p.optPosting.value], [["Balanced"], "1"]);
option(p.optPosting, 0);
shot("frmPrefrences");
click(p.cmdClose);
equal(posting(), ["Plain"]);
menu("mnuPayAdjust");
a = win("frmPayAdjust");
a.grdAdjustments.set(0, "Payroll Item", "Medicare Employee");
a.grdAdjustments.set(0, "Amount", "1");
a.grdAdjustments.set(0, "Employee Affected", "Ann");
click(a.cmdOk);
equal(ledger(9).map(function (row) { return [row.Account, row.Debit]; }), [["17SS", 1]]);
other("DELETE FROM GeneralPrefs WHERE Preference = 'PayrollPosting'");
menu("mnuPrefrences");
const again = win("frmPrefrences");
pick(again.imgSettings, "Payroll");
equal(again.optPosting.value, "0", "a company without the row is plain");
click(again.cmdClose);
equal(posting(), [], "and stays so");
equal(log(), []);
