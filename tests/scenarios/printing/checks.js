// The queue of checks: what is asked, what gets which number, what goes back.
start();
newCompany("Acme");
function waiting(number, name, amount, type) {
  for (const side of [["0SS", "66SS", 0, amount], ["66SS", "0SS", amount, 0]])
    other("INSERT INTO Transactions (TransNum, Type, Date, Number, Name, Account, Category, Debit, Credit, Amount) VALUES " +
              "(?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
          number, type || "Check", "2026-06-01", "Print", name, side[0], side[1], side[2], side[3], amount);
}
function numbers() {
  return rows("SELECT TransNum, Number FROM Transactions ORDER BY TransNum, RowKey").map(function (r) { return r.Number; });
}
waiting(1, "Ann", 10);
waiting(2, "Bert", 20, "Billcheck");
waiting(3, "Cleo", 30);
menu("mnuPrintChecks");
const w = win("frmPrintChecks");
equal([w.cmbBank.value, w.grdChecks.rows, w.grdChecks.text(1, "Payee")], ["Checking", 3, "Bert"]);
shot("frmPrintChecks");

// What is missing is said in this order, and nothing is written.
box("Number needed", "Please enter the first check number to print.");
click(w.cmdPrint);
type(w.txtFirstCheck, "ten");
box("Number needed", "Please enter a number value for the first check.");
click(w.cmdPrint);
type(w.txtFirstCheck, "1000");
box("No Selection", "Please select at least on check before printing.");
click(w.cmdPrint);
w.grdChecks.select([2]);
file("Printer", null);
click(w.cmdPrint);
equal(numbers(), ["Print", "Print", "Print", "Print", "Print", "Print"], "a cancelled dialog prints nothing");

// A preview numbers nothing; its PDF can be kept.
modal("frmPreview", function (preview) {
  shot("preview");
  file("PDF Files (*.pdf)|*.pdf", "preview.pdf");
  click(preview.cmdPDF);
  click(preview.cmdClose);
});
click(w.cmdPreview);
ok(exists("preview.pdf"));
equal(numbers()[0], "Print");

// In the order of selection; the last two come out wrong and go back, with all their rows.
w.grdChecks.select([2, 0, 1]);
file("Printer", "checks.pdf");
modal("frmGoodPrint", function (good) {
  shot("frmGoodPrint");
  box("Number needed", null);
  type(good.txtNum, "x");
  click(good.cmdOk);
  type(good.txtNum, "1001");
  click(good.cmdOk);
});
click(w.cmdPrint);
ok(exists("checks.pdf"));
ok(!isOpen("frmPrintChecks"));
const after = numbers();
equal(after.filter(function (n) { return n === "Print"; }).length, 4);
equal(after.filter(function (n) { return n === "1000"; }).length, 2);

// A number that this bank has seen is asked about; stopping leaves what was not printed.
menu("mnuPrintChecks");
const again = win("frmPrintChecks");
equal(again.grdChecks.rows, 2);
click(again.cmdAll);
type(again.txtFirstCheck, "999");
box("Number used", "Check number 1000 has already been used on this bank. Print anyway?", "No");
click(again.cmdPrint);
type(again.txtFirstCheck, "2000");
stop();
file("Printer", "stopped.pdf");
click(again.cmdPrint);
equal(again.grdChecks.rows, 2, "stopped before the first");

// Another station prints one of them while this window stands open.
other("UPDATE Transactions SET Number = '77' WHERE TransNum = 2");
file("Printer", "left.pdf");
modal("frmGoodPrint", function (good) { click(good.cmdOk); });
click(again.cmdPrint);
equal(rows("SELECT Number FROM Transactions WHERE Number = '2000'").length, 2);
equal(rows("SELECT Number FROM Transactions WHERE Number = '77'").length, 2);

// One check from the check book, by its own number.
menu("mnuChecks");
const check = win("frmCheck");
click(check.cmdPrev);
modal("frmPrintCheck", function (preview) {
  shot("frmPrintCheck");
  file("Printer", "one.pdf");
  modal("frmGoodPrint", function (good) { click(good.cmdOk); });
  click(preview.cmdPrint);
});
click(check.cmdPrint);
ok(exists("one.pdf"));
equal(log(), []);
