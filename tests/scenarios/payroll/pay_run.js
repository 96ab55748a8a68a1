// A pay run: who fails stops nobody else, who is cancelled stays unpaid, and No ends the run. Then a paycheck opened again.
start();
newCompany("Acme");
function wage(name, type, style) {
  other("INSERT INTO PayrollItems (Name, Type, PayType, PayStyle, ExpenseAcct, TaxPaid) VALUES (?, 'Wage', ?, ?, '68SS', 'Employee Paid Tax')", name, type, style);
}
wage("Salary", "Salary", "Regular");
wage("Hourly", "Hourly", "Regular");
wage("Sick", "Hourly", "Sick");
other("INSERT INTO PayrollItems (Name, Type, ExpenseAcct, TaxPaid, DefaultRate) VALUES ('Bonus', 'Addition', '68SS', 'Employee Paid Tax', '25')");
function employee(number, name, wage, rate) {
  other("INSERT INTO Employees (SSNum, Name, PayPeriod, FedStatus, StateWorked, SickHoursStart) VALUES (?, ?, 'Weekly', 'Single', 'TX', 24)", number, name);
  other("INSERT INTO EmployeeEarnings (SSNum, Wage, Rate) VALUES (?, ?, ?)", number, wage, rate);
}
employee("1", "Abe", "A wage that is gone", 10);
employee("2", "Ann", "Salary", 52000);
employee("3", "Bea", "Salary", 26000);
employee("4", "Cid", "Hourly", 18.5);

tool("btnPayRoll");
const run = win("frmPayRoll");
const who = run.grdEmployees;
equal([run.caption, run.cmbBank.value, run.lblBank.value, who.rows], ["Payroll", "Checking", "0SS", 4]);
equal(rows("SELECT * FROM PayHistory").length, 0, "looking at a day leaves nothing");
click(run.cmdCreate);
type(run.cmbBank, "");
box("No Bank", "Please select a bank to write Paychecks from.");
click(run.cmdCreate);
pick(run.cmbBank, "Checking");
shot("frmPayRoll");

// Abe cannot be paid and says why; Ann's withholding is changed by hand; Bea is left; Cid's hours are typed.
who.select([0, 1, 2, 3]);
box(null, null);
modal("frmPayCheck", function (c) {
  equal([c.caption, c.lblName.value, c.lblPayPeriodStart.value, c.lblPayPeriodEnd.value, c.lblSick.value],
        ["Create PayCheck", "Ann", "06/09/2026", "06/15/2026", "24"]);
  key(c, "Home");
  ok(c.grdEarnings.focused, "the cursor begins in the earnings");
  equal([c.grdEarnings.text(0, "Rate"), c.lblNotes.value], ["1000.00", "Income tax of TX is not calculated."]);
  c.grdEmployee.set(1, "Amount", "-50");
  key(c.grdCompany, "Tab");
  equal([c.grdEmployee.text(1, "Amount"), c.lblTotal.value], ["-50.00", "$873.50"]);
  shot("frmPayCheck");
  click(c.cmdCreate);
});
modal("frmPayCheck", function (c) { click(c.cmdCancel); });
modal("frmPayCheck", function (c) {
  equal([c.grdEarnings.text(0, "Name"), c.grdEarnings.text(0, "Rate"), c.grdEarnings.text(0, "Hours")], ["Hourly", "18.5", "0"]);
  c.grdEarnings.set(0, "Hours", "32");
  c.grdEarnings.set(1, "Name", "Sick");
  equal(c.grdEarnings.text(1, "Hours"), "0.0", "an hourly wage begins with no hours");
  c.grdEarnings.set(1, "Rate", "18.5");
  c.grdEarnings.set(1, "Hours", "8");
  box("Update", "Do you want this Item to appear on Upcoming Pay Checks?", "Yes");
  c.grdOtherItems.set(0, "Item", "Bonus");
  key(c.grdEmployee, "Tab");
  equal([c.grdOtherItems.text(0, "Rate"), c.grdOtherItems.text(0, "Type"), c.lblSick.value], ["25", "Addition", "16"]);
  equal([c.grdEmployee.text(0, "Amount"), c.grdEmployee.text(1, "Amount"), c.grdEmployee.text(2, "Amount")], ["592.00", "148.00", "25.00"]);
  type(c.txtClass, "Shop");
  click(c.cmdCreate);
});
click(run.cmdCreate);
function paid() { return rows("SELECT Employee, Paid FROM PayHistory ORDER BY Employee").map(function (row) { return row.Employee + " " + row.Paid; }); }
equal(paid(), ["Abe No", "Ann Yes", "Bea No", "Cid Yes"]);
equal([who.text(0, "Paid"), who.text(1, "Paid"), who.text(2, "Paid"), who.text(3, "Paid")], ["No", "Yes", "No", "Yes"]);
equal(rows("SELECT SSNum, Adjustment, AmountRate FROM EmployeeAdjustments"), [{SSNum: "4", Adjustment: "Bonus", AmountRate: "25"}]);
equal(rows("SELECT DISTINCT Class FROM Transactions WHERE TransNum = 2"), [{Class: "Shop"}]);
equal(rows("SELECT TransNum, SUM(Debit) - SUM(Credit) + 0 AS Off FROM Transactions GROUP BY TransNum"), [{TransNum: 1, Off: 0}, {TransNum: 2, Off: 0}]);
equal(ledger(1)[0].Credit, 873.5);

// Paid already: asked, and No ends the whole run; nobody after it is reached.
const twice = "This Employee has already been paid of this Pay Period. Create check anyways?";
who.select([1]);
box("Confirm Paycheck", twice, "Yes", "Ann");
modal("frmPayCheck", function (c) { click(c.cmdCancel); });
click(run.cmdCreate);
who.select([1, 2, 3]);
box("Confirm Paycheck", twice, "No", "Ann");
click(run.cmdCreate);

// Opened again from the check window, with its date and number as they stand there.
menu("mnuChecks");
const w = win("frmCheck");
click(w.cmdPrev);
click(w.cmdPrev);
equal([w.cmbPayee.value, w.lblPayPeriod.value], ["Ann", "06/09/2026 - 06/15/2026"]);
function plain(number) { return ledger(number).map(function (row) { return [row.Account, row.Debit, row.Credit, row.PayrollItem, row.Date, row.Number, row.PayPeriod]; }); }
date(w.DTPicker1, "6/20/2026");
type(w.txtNumber, "1001");
const before = plain(1);
for (let time = 0; time < 2; ++time) {
  modal("frmPayCheck", function (c) {
    equal([c.grdEmployee.text(1, "Amount"), c.lblTotal.value, c.grdEarnings.rows], ["-50.00", "$873.50", 1]);
    key(c.grdEarnings, "Tab");
    key(c.grdCompany, "Tab");
    equal(c.grdEmployee.text(1, "Amount"), "-50.00", "nobody changed anything, so nothing is calculated");
    click(c.cmdCreate);
  });
  click(w.cmdEditPayCheck);
  equal(plain(1), before.map(function (row) { return row.slice(0, 4).concat(["6/20/2026", "1001"], row.slice(6)); }));
  equal([w.DTPicker1.value, w.txtNumber.value], ["6/20/2026", "1001"]);
}

// Another user is faster; then deletes it under the open window.
modal("frmPayCheck", function (c) {
  other("UPDATE Transactions SET Memo = 'theirs' WHERE TransNum = 1");
  box("Data has changed", "This Transaction has been modified by another user since you opened it. Transaction will not be updated. Click Ok to see changes.");
  click(c.cmdCreate);
  equal(c.lblMemo.value, "theirs");
  c.grdEarnings.set(0, "Rate", "900");
  key(c.grdEmployee, "Tab");
  equal(c.grdEmployee.text(0, "Amount"), "900.00");
  box("Save Changes", null, "Cancel");
  close(c);
  click(c.cmdCancel);
});
click(w.cmdEditPayCheck);
equal(ledger(1)[0].Credit, 873.5);

// Deleted, its period is open again.
click(w.cmdNext);
click(w.cmdPrev);
box("Confirm Delete", null, "Yes");
click(w.cmdDelete);
equal(paid(), ["Abe No", "Ann No", "Bea No", "Cid Yes"]);
equal(who.text(1, "Paid"), "No", "the open run heard of it");
equal(sounds().filter(function (sound) { return sound === "stapler.wav"; }).length, 4);
equal(log().length, 1);
