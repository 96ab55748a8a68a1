// The payroll reports: who was paid what, what is owed, and every line of it.
start();
newCompany("Acme");
other("INSERT INTO PayrollItems (Name, Type, PayType, TaxPaid, ExpenseAcct) VALUES ('Hourly', 'Wage', 'Hourly', 'Employee Paid Tax', '69SS')");
function paid(number, name, ssn, wage) {
  const row = "INSERT INTO Transactions (TransNum, Type, Date, Number, Name, SSNum, PayrollItem, Account, Debit, Credit, Amount, " +
              "Hours) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)";
  const head = [number, "Paycheck", "6/5/2026", String(number), name, ssn];
  other(row, ...head, "Hourly", "69SS", wage, "0", wage, 40);
  other(row, ...head, "Federal Withholding", "15SS", "0", "100", "100", 0);
}
other("INSERT INTO Employees (SSNum, Name) VALUES ('111', 'Ann Able')");
other("INSERT INTO Employees (SSNum, Name) VALUES ('222', 'Bo Baker')");
other("INSERT INTO Employees (SSNum, Name) VALUES ('333', 'Cy Cole')");
paid(1, "Ann Able", "111", "800");
paid(2, "Bo Baker", "222", "1000");

menu("mnuPaySum");
const w = win("frmPrintPayroll"), g = w.grdPL;
equal([w.caption, g.columns.length], ["Payroll Summary", 11]);
equal(g.columns.slice(2, 5), ["Hours", "Avg Rate", "TOTAL"]);
shot("frmPrintPayroll");
modal("frmSelectFields", function (m) {
  m.grdFields.select([0, 2]);
  click(m.cmdOk);
});
click(w.cmdPick);
equal(g.columns.slice(2), ["Hours", "TOTAL", "Hours", "TOTAL", "Hours", "TOTAL"]);
// Other people in the same number of columns: the heads above them change with them.
other("UPDATE Transactions SET Name = 'Cy Cole', SSNum = '333' WHERE TransNum = 1");
click(w.cmdRefresh);
shot("frmPrintPayroll");
close(w);

menu("mnuPayEmpEarn");
const e = win("frmPrintPayrollEarnings");
equal([e.caption, e.grdPL.rows, e.grdPL.text(1, 1), e.grdPL.text(3, 1)], ["Payroll Earnings", 4, "Bo Baker", "Total"]);
menu("mnuPayLiaRpt");
equal(win("frmPrintPayrollEarnings").caption, "Liability Report");
shot("frmPrintPayrollEarnings");
menu("mnuPayTransDetail");
const d = win("frmPrintPayDetail");
equal([d.caption, d.grdPL.rows, d.grdPL.columns.slice(1)], ["Payroll Detail", 4, ["Type", "Date", "Number", "Payroll Item", "Amount"]]);
d.grdPL.dblclick(0);
ok(isOpen("frmCheck"), "a line leads to its check");
equal(log(), []);
