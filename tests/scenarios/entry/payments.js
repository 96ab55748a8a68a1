// Payments and deposits: applied, held, deposited, met by another user, and given back.
start();
newCompany("Acme");
other("INSERT INTO Customers (Name) VALUES ('Jones'), ('Smith')");
function row(number, date, name, account, category, debit, credit) {
  other("INSERT INTO Transactions (TransNum, Type, Date, Number, Name, Account, Category, Debit, Credit, Amount, AmountReceived) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        number, "Invoice", date, "I" + number, name, account, category, debit, credit, debit + credit, 0);
}
function invoice(number, name, date, amount) {
  row(number, date, name, "AR1", "29SS", amount, 0);
  row(number, date, name, "29SS", "AR1", 0, amount);
}
invoice(1, "Jones", "2026-05-01", 150);
invoice(2, "Jones", "2026-05-02", 80);
invoice(3, "Jones", "2026-05-03", 100);
invoice(4, "Smith", "2026-05-03", 40);

menu("mnuPayments");
let w = win("frmPayments");
let g = w.grdHistory;
click(w.cmdOk);  // nothing to save
menu("mnuPayments");
w = win("frmPayments");
g = w.grdHistory;
type(w.cmbCustomer, "Jones");
equal([g.rows, g.text(0, "Invoice Number"), g.text(2, "Total")], [3, "I1", "100"]);
type(w.txtAmount, "50+50");
const shares = function () { return [0, 1, 2].map(function (row) { return g.text(row, "Amount Recieved"); }); };
equal([w.txtAmount.value, shares(), w.lblApply.value], ["100.00", ["0", "0", "100"], "0.00"], "exactly the third");
type(w.txtAmount, "200");
equal([shares(), w.lblApply.value], [["150", "50", "0"], "0.00"]);
g.toggle(1, "Recieved");
equal([shares(), w.lblApply.value], [["150", "0", "0"], "50.00"]);
box("No Bank", "Please Select a Bank to Deposit to.");
click(w.cmdOk);
key(w.cmbAccount, "Escape");
pick(w.cmbAccount, "Undeposited Funds");
box("Not Equal", "Applied amounts does not equal payment amount.");
key(w, "Ctrl+Enter");
g.toggle(2, "Recieved");
equal([shares(), w.lblApply.value], [["150", "0", "50"], "0.00"], "a ticked line takes what is left");
type(w.txtCheckNum, "771");
type(w.txtPayMethod, "Barter");
shot("frmPayments");
// Another user pays one of these meanwhile: nothing is written, and what was typed is applied to what is open now.
other("UPDATE Transactions SET Memo = 'touched' WHERE TransNum = 1");
box("Data has changed", null);
key(w, "Ctrl+Enter");
equal([w.txtCheckNum.value, w.txtAmount.value, shares()], ["771", "200.00", ["150", "50", "0"]]);
key(w, "Ctrl+Enter");
equal(ledger(5).map(function (row) { return [row.Account, row.Debit, row.Credit, row.PayMethod, row.Number]; }),
      [["UF1", 200, 0, "Barter", "771"], ["AR1", 0, 200, "Barter", "771"]]);
equal(rows("SELECT TransNum, AmountReceived, Paid, PaidBy FROM Transactions WHERE Account = 'AR1' AND Type = 'Invoice' ORDER BY TransNum").map(Object.values),
      [[1, 150, true, "5;"], [2, 50, false, "5;"], [3, 0, false, null], [4, 0, false, null]]);
equal([w.cmbCustomer.value, w.txtAmount.value, g.rows], ["", "", 0], "the next one is blank");

// Seen and left.
const all = function () { return [1, 2, 3, 4, 5].map(ledger); };
let before = all();
click(w.cmdPrev);
equal([w.txtIndex.value, g.rows, shares(), w.lblApply.value], ["5", 3, ["150", "50", "0"], "0.00"]);
click(w.cmdNext);
equal(all(), before, "seen and left");
type(w.cmbCustomer, "Smith");
type(w.txtAmount, "40");
pick(w.cmbAccount, "Undeposited Funds");
click(w.cmdOk);

// The menu asks for what waits; picking marks nothing.
modal("frmOpenPayments", function (m) {
  equal([m.grdAccounts.rows, m.grdAccounts.text(0, "Customer")], [2, "Jones"]);
  m.grdAccounts.select([0]);
  click(m.cmdOk);
});
menu("mnuDepositFunds");
let d = win("frmDeposits");
equal([d.grdPayments.rows, d.lblTotal.value], [1, "$200.00"]);
click(d.cmdCancel);
equal(rows("SELECT DISTINCT TransNum FROM Transactions WHERE Type = 'Payment' AND Paid = False").length, 2);

modal("frmOpenPayments", function (m) { m.grdAccounts.select([0]); click(m.cmdOk); });
menu("mnuDepositFunds");
d = win("frmDeposits");
const p = d.grdPayments;
box("No Bank", "Please Select a Bank to Deposit To.");
click(d.cmdDeposit);
key(d.cmbBank, "Escape");
pick(d.cmbBank, "Checking");
modal("frmOpenPayments", function (m) { m.grdAccounts.select([0, 1]); click(m.cmdOk); });
click(d.cmdSelect);
equal([p.rows, d.lblTotal.value], [2, "$240.00"], "the same payment is not put in twice");
let refused = false;
try { p.set(0, "Amount", "1"); } catch (e) { refused = true; }
equal([refused, p.text(0, "Amount")], [true, "200"]);
p.set(2, "Amount", "5");
box("Invalid Data", "Please Select a Category to Deposit From and Enter an Amount.");
click(d.cmdDeposit);
p.set(2, "From Category", "Advertising and Promotion");
p.set(2, "Class", "Found");
shot("frmDeposits");
click(d.cmdDeposit);
equal(isOpen("frmDeposits"), false);
equal(ledger(7).map(function (row) { return [row.Account, row.Debit, row.Credit]; }),
      [["0SS", 245, 0], ["UF1", 0, 200], ["UF1", 0, 40], ["40SS", 0, 5]]);
equal(rows("SELECT Class FROM Class WHERE Class = 'Found'").length, 1);
equal(rows("SELECT DISTINCT TransNum FROM Transactions WHERE Type = 'Payment' AND Paid = False").length, 0);

// A deposited payment stays as it is until its deposit goes.
menu("mnuPayments");
w = win("frmPayments");
click(w.cmdPrev);
equal([w.txtAmount.enabled, w.lblLocked.visible], [false, true]);
shot("frmPayments_deposited");
box("No Delete", null);
click(w.cmdDelete);
click(w.cmdOk);
menu("mnuDepositFunds");  // nothing waits: the deposit comes up at once
equal([isOpen("frmOpenPayments"), win("frmDeposits").grdPayments.rows], [false, 0]);
close(win("frmDeposits"));
equal(log(), []);
