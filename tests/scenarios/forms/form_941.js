// The quarterly return: reckoned, corrected, traced, previewed.
start();
newCompany("Acme");
function paid(number, date, item, amount, type) {
  other("INSERT INTO Transactions (TransNum, Type, Date, PaidThrough, SSNum, Name, PayrollItem, Account, Category, Amount) VALUES (?, ?, ?, ?, '300', 'Ann Able', ?, '0SS', '1SS', ?)",
        number, type || "Paycheck", date, date, item, amount * 10000);
}
other("INSERT INTO PayrollItems (Name, Type) VALUES ('Salary', 'Wage')");
other("UPDATE PayrollItems SET DefaultRate = '6.2%' WHERE Name LIKE 'Social*'");
other("UPDATE PayrollItems SET DefaultRate = '1.45%' WHERE Name LIKE 'Medicare*'");
menu("mnuPay941");
const w = win("frmCreate941");
equal([w.caption, w.dteEnd.value, w.txtWages.value, w.txtOverpay.value], ["Create 941", "3/31/2026", "$0.00", "$0.00"]);
paid(1, "2026-02-06", "Salary", 1000);
paid(1, "2026-02-06", "Federal Withholding", 90);
paid(2, "2026-02-28", "Federal Withholding", 60, "Liabilitycheck");
date(w.dteEnd, "5/5/2026");
equal([w.dteEnd.value, w.txtWages.value], ["6/30/2026", "$0.00"]);
date(w.dteEnd, "1/15/2026");
equal([w.dteEnd.value, w.txtWages.value, w.lblTotSocTaxWage.value, w.txtNetTaxes.value, w.txtBalance.value],
      ["3/31/2026", "$1000.00", "$124.00", "$243.00", "$183.00"]);
ok(/\$90\.00, which is \$153\.00 less than line 13/.test(w.lblScheduleB.value), w.lblScheduleB.value);

// A correction carries on; what is no amount is told; an emptied line is the books' again.
type(w.txtAdjustTaxes, "1.5");
equal([w.txtAdjustTaxes.value, w.txtNetTaxes.value], ["$1.50", "$244.50"]);
box("No Value", "Item Number 9 must be a Numeric value.");
type(w.txtAdjustTaxes, "many");
equal([w.txtAdjustTaxes.value, w.txtAdjustTaxes.focused, w.txtNetTaxes.value], ["many", true, "$244.50"]);
type(w.txtAdjustTaxes, "0");
type(w.txtWithheld, "100");
equal(w.txtNetTaxes.value, "$253.00");
type(w.txtWithheld, "");
equal([w.txtWithheld.value, w.txtNetTaxes.value], ["$90.00", "$243.00"]);
type(w.txtFirst, "10");
equal(w.lblTotalLia.value, "$100.00", "beside February's 90");

// What made a line.
modal("frmFormTrace", function (d) {
  equal([d.grdRows.rows, d.grdRows.text(0, "Name"), d.grdRows.text(0, "Payroll Item"), d.lblTotal.value],
        [1, "Ann Able", "Salary", "Total $1000.00"]);
  click(d.cmdClose);
});
click(w.cmdMade_txtWages);

// On paper only with state and count.
shot("frmCreate941");
box("No State", "Please Enter a State for this 941.");
click(w.cmdPP);
key(w.cmbState, "Esc");  // its list has opened
pick(w.cmbState, "MN");
box("No Count", "Please Enter an Employee Count for this 941.");
click(w.cmdPP);
type(w.txtEmpCount, "1");
equal(w.txtEmpCount.value, "1");
check(w.chkFutReturn, true);
ok(w.dteFinalWage.visible);
modal("frmPrint941", function (d) {
  equal([d.caption, d.lblPage.value], ["Form 941", "Page 1 of 1"]);
  file(null, "941.pdf");
  click(d.cmdPDF);
  click(d.cmdClose);
});
click(w.cmdPP);
option(w.optDeposit, 0);
modal("frmPrint941", function (d) { click(d.cmdClose); });
modal("frmSchedB", function (d) { shot("frmSchedB"); click(d.cmdClose); });
click(w.cmdPP);
file(null, "941.csv");
click(w.cmdCSV);
equal(["941.pdf", "941.csv"].map(exists), [true, true]);
equal(log(), []);

// A tax item that is gone: said, and the window stands.
other("UPDATE PayrollItems SET Name = 'Gone' WHERE Name = 'Social Security Employee'");
box("Error", null);
date(w.dteEnd, "12/31/2026");
ok(/frmCreate941.*cmbDate_Click/.test(log()[0]), log()[0]);
click(w.cmdCancel);
