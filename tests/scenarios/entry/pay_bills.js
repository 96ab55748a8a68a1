// Pay Bills: sorted, selected, paid in one step; somebody else pays first; by card; what the check shows of it.
start();
newCompany("Acme");
other("INSERT INTO Vendors (Name, ShippingAddress) VALUES ('Acme Supply', '1 Mill Road')");
other("INSERT INTO Accounts (CatID, AccountName, AccountType) VALUES ('900SS', 'Visa', 'Credit Card')");
function bill(number, vendor, due, amount) {
  const insert = "INSERT INTO Transactions (TransNum, Type, Date, Number, Name, DueDate, Account, Category, Debit, Credit, Amount)" +
                 " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)";
  other(insert, number, "Bill", "2026-06-01", "n" + number, vendor, due, "AP1", "66SS", 0, amount, amount);
  other(insert, number, "Bill", "2026-06-01", "n" + number, vendor, due, "66SS", "AP1", amount, 0, amount);
}
bill(1, "Acme Supply", "2026-07-01", 25);
bill(2, "Northern Power", "2026-06-20", 40);
bill(3, "Acme Supply", "2026-07-02", 10);
bill(4, "Northern Power", "2026-08-01", 5);

menu("mnuPayBill");
let w = win("frmPayBills");
function due() {
  const amounts = [];
  for (let row = 0; row < w.grdBills.rows; ++row) amounts.push(w.grdBills.text(row, "Amount Due"));
  return amounts.join(" ");
}
equal([w.caption, due(), w.cmbSort.value, w.cmbCat.value, w.SSDBCommand1.caption], ["Pay Bills", "40 25 10 5", "Due Date", "", "&Cancel"]);
w.grdBills.select([1]);
pick(w.cmbSort, "Amount Due");
equal([due(), w.lblSelected.value], ["5 10 25 40", "1 bill selected, $25.00"], "what was selected stays so");
pick(w.cmbSort, "Vendor");
equal(due(), "25 10 40 5");
w.grdBills.select([0, 1, 2]);
equal(w.lblSelected.value, "3 bills selected, $75.00");
shot("frmPayBills");
box("No Selection", "Please Select a Place to withdraw from.");
click(w.cmdOk);
pick(w.cmbCat, "Checking");
w.grdBills.select([]);
box("No Selection", "Please Select a Bill to Pay.");
click(w.cmdOk);

// A colleague was faster with one of them: that is told, and nothing is paid.
w.grdBills.select([0, 1, 2]);
other("UPDATE Transactions SET Paid = -1, PaidBy = '99;' WHERE TransNum = 3");
box("Data has changed", null, undefined, "Bill n3, Acme Supply for $10.00 was paid or changed. Nothing was paid now.");
click(w.cmdOk);
equal([isOpen("frmPayBills"), due(), w.lblSelected.value], [true, "25 40 5", "2 bills selected, $65.00"]);
equal(rows("SELECT * FROM Transactions WHERE Type = 'Billcheck'"), []);
menu("mnuBill");
const b = win("frmBills");
for (let i = 0; i < 4; ++i) click(b.cmdPrev);
equal([b.txtIndex.value, b.chkPaid.checked], ["1", false]);
click(w.cmdOk);
equal([b.txtIndex.value, b.chkPaid.checked], ["1", true], "an open bill hears that it was paid");
click(b.cmdCan);
ok(!isOpen("frmPayBills"));
ok(sounds().indexOf("stapler.wav") >= 0);
equal(ledger(5).map(function (r) { return [r.Type, r.Number, r.Name, r.Address, r.Account, r.Category, r.Credit]; }),
      [["Billcheck", "Print", "Acme Supply", "1 Mill Road", "0SS", "AP1", 25], ["Billcheck", "Print", "Acme Supply", "1 Mill Road", "AP1", "0SS", 0]]);
equal([ledger(1)[1].PaidBy, ledger(2)[0].PaidBy, ledger(6)[0].Name], ["5;", "6;", "Northern Power"]);

// The check shows its bill; when it goes, the open list of unpaid bills has the bill again.
menu("mnuPayBill");
w = win("frmPayBills");
equal(due(), "5");
menu("mnuChecks");
const c = win("frmCheck");
click(c.cmdPrev);
equal([c.txtIndex.value, c.grdBills.rows, c.grdBills.text(0, "Amount")], ["6", 1, "40"]);
box("Confirm Delete", null, "Yes");
click(c.cmdDelete);
w = win("frmPayBills");
equal(due(), "40 5");

// In part: the rest is owed still.
w.grdBills.select([0, 1]);
ok(!w.txtPart.enabled);
w.grdBills.select([0]);
type(w.txtPart, "15.50");
equal([w.grdBills.text(0, "Payment"), w.lblSelected.value], ["15.5", "1 bill selected, $15.50"]);
w.grdBills.select([0, 1]);
equal(w.lblSelected.value, "2 bills selected, $20.50");
w.grdBills.select([0]);
shot("frmPayBills_part");
pick(w.cmbCat, "Checking");
click(w.cmdOk);
equal([ledger(7)[0].Amount, ledger(2)[0].Paid, ledger(2)[0].PaidBy], [15.5, false, "7;"]);
menu("mnuPayBill");
w = win("frmPayBills");
equal(due(), "24.5 5");

// By card: the choice of bank goes, the entry has no number.
pick(w.cmbCat, "Checking");
option(w.optPayBy, 0);
equal([w.cmbCat.value, w.cmbCat.items], ["", ["Company Credit Card", "Visa"]]);
pick(w.cmbCat, "Visa");
date(w.dtePayDate, "6/30/2026");
w.grdBills.select([0, 1]);
click(w.cmdOk);
equal(ledger(8).map(function (r) { return [r.Type, r.Number, r.Date, r.Account, r.Amount]; }),
      [["Ledger Entry", undefined, "6/30/2026", "900SS", 29.5], ["Ledger Entry", undefined, "6/30/2026", "AP1", 29.5]]);
equal(log(), []);
