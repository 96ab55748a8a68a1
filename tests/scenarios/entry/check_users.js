// Two users on one check, numbers taken meanwhile, and what closing asks.
start();
newCompany("Acme");
other("INSERT INTO Vendors (Name) VALUES ('Acme Supply')");
function open() {
  menu("mnuChecks");
  return win("frmCheck");
}
function fill(w, amount) {
  pick(w.cmbPayee, "Acme Supply");
  type(w.txtAmount, amount);
  w.grdExpense.set(0, "Category", "Fuel");
}
let w = open();
fill(w, "50");
click(w.cmdOk);

// Another user was faster: nothing is written, the screen shows what the other one did.
w = open();
click(w.cmdPrev);
other("UPDATE Transactions SET Memo = 'theirs' WHERE TransNum = 1");
type(w.txtMemo, "mine");
box("Data has changed", "This Transaction has been modified by another user since you opened it. Transaction " +
                        "will not be updated. Click Ok to see changes.");
click(w.cmdOk);
ok(isOpen("frmCheck"), "stays open");
equal([w.txtIndex.value, w.txtMemo.value], ["1", "theirs"]);
equal(ledger(1).map(function (r) { return r.Memo; }), ["theirs", "theirs"]);
type(w.txtMemo, "ours");
click(w.cmdOk);
equal(ledger(1)[0].Memo, "ours");

// Another user took the number of a check that is being written: it gets the next one.
w = open();
equal(w.txtIndex.value, "2");
fill(w, "60");
other("INSERT INTO Transactions (TransNum, Type, Date, Account, Amount) VALUES (2, 'Ledger Entry', '2026-01-01', '0SS', 0)");
click(w.cmdOk);
equal(ledger(2).length, 1);
equal(ledger(3).map(function (r) { return r.Amount; }), [60, 60]);

// Closing with the X does not save. A check that was written in is not lost by it.
w = open();
close(w);
ok(!isOpen("frmCheck"), "an untouched one just goes");
w = open();
fill(w, "70");
box("Save Changes", "Do you wish to record your changes?", "Cancel");
close(w);
ok(isOpen("frmCheck"));
equal(w.txtAmount.value, "70.00");
box("Save Changes", "Do you wish to record your changes?", "No");
close(w);
ok(!isOpen("frmCheck"));
equal(ledger(4), []);
w = open();
fill(w, "80");
w.grdExpense.set(0, "Amount", "1");
box("Save Changes", "Do you wish to record your changes?", "Yes");
box("No Balance", "Transaction does not Balance");
close(w);
ok(isOpen("frmCheck"), "what cannot be saved stays");
w.grdExpense.set(0, "Amount", "80");
box("Save Changes", "Do you wish to record your changes?", "Yes");
close(w);
equal(ledger(4).map(function (r) { return r.Amount; }), [80, 80]);

// Leaving the company asks too.
w = open();
type(w.txtMemo, "x");
box("Save Changes", "Do you wish to record your changes?", "Cancel");
menu("mnuNewCompany");
ok(isOpen("frmCheck"));
equal(log(), []);
