// Another user at work in the same category.
function register(name) {
  menu("mnuAccounts");
  const list = win("frmAccounts").grdAccounts;
  for (let row = 0; row < list.rows; ++row)
    if (list.text(row, 0).trim() === name) { list.dblclick(row); return win("frmRegister"); }
  throw new Error("no category " + name);
}
const changed = "This Transaction has been modified by another user since you opened it. Transaction will not be updated. Click Ok to see changes.";
start();
newCompany("Acme");
const w = register("Checking");
const g = w.grdRegister;
for (const amount of ["10", "20", "30"]) {
  g.set(g.rows, "Category", "Freight In");
  g.set(g.rows - 1, "Payment", amount);
  click(w.cmdRecord);
}

// Changed, or gone, while the line was being typed in: the box, nothing written, the line as it is now.
g.row(0);
other("UPDATE Transactions SET Memo = ? WHERE TransNum = ?", "theirs", 1);
g.set(0, "Memo", "mine");
box("Data has changed", changed);
click(w.cmdRecord);
equal(ledger(1).map(function (row) { return row.Memo; }), ["theirs", "theirs"]);
equal(g.text(0, "Memo"), "theirs");
g.row(1);
other("DELETE FROM Transactions WHERE TransNum = ?", 2);
g.set(1, "Memo", "mine");
box("Data has changed", changed);
click(w.cmdRecord);
equal([ledger(2), g.rows, w.lblTotal.value], [[], 2, "-$40.00"]);

// Changed before the line was gone to: it shows what is there, and can be recorded at once.
other("UPDATE Transactions SET Memo = ?, Credit = ? WHERE TransNum = ? AND Account = ?", "moved", 35, 3, "0SS");
g.row(0);
g.row(1);
equal([g.text(1, "Memo"), g.text(1, "Payment"), w.lblTotal.value], ["moved", "35", "-$45.00"]);
g.set(1, "Class", "North");
click(w.cmdRecord);
equal(ledger(3).map(function (row) { return [row.Credit, row.Debit, row.Class]; }), [[35, 0, "North"], [0, 35, "North"]]);

// Gone before it was gone to.
other("DELETE FROM Transactions WHERE TransNum = ?", 1);
g.row(0);
equal([g.rows, g.text(0, "TransNum")], [1, "3"]);

// The number another user took meanwhile: ours goes in beside it.
g.set(1, "Category", "Freight In");
g.set(1, "Payment", "5");
other("INSERT INTO Transactions (TransNum, Type, Date, Account, Category, Debit, Credit) VALUES (?, ?, ?, ?, ?, ?, ?)",
      4, "Ledger Entry", "6/1/2026", "0SS", "29SS", 7, 0);
click(w.cmdRecord);
equal(ledger(4).length, 1);
equal(ledger(5).map(function (row) { return row.Account + row.Amount; }), ["0SS5", "37SS5"]);
equal([g.rows, w.lblTotal.value], [3, "-$33.00"]);
equal(log(), []);
