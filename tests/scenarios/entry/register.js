// A bank's register: typing entries, what stops them, editing them again, breaking them down, taking them out.
function register(name) {
  menu("mnuAccounts");
  const list = win("frmAccounts").grdAccounts;
  for (let row = 0; row < list.rows; ++row)
    if (list.text(row, 0).trim() === name) { list.dblclick(row); return win("frmRegister"); }
  throw new Error("no category " + name);
}
function line(g, row) {
  return ["Date", "Num", "Payee", "Category", "Payment", "Deposit", "Balance"].map(function (column) {
    return g.text(row, column);
  }).join("|");
}
function sides(number) {
  return ledger(number).map(function (row) {
    return [row.Type, row.Account, row.Category, row.Debit || 0, row.Credit || 0, row.Amount].join(" ");
  });
}

start();
newCompany("Acme");
let w = register("Checking");
const g = w.grdRegister;
equal(g.columns.slice(0, 10), ["Date", "Num", "Payee", "Category", "Memo", "Class", "Payment", "Clear", "Deposit", "Balance"]);
equal([g.rows, g.row(), w.lblTotal.value, w.lblCatID.value], [0, 0, "$0.00", "0SS"]);
ok(w.datReg.focused, "the date control stands on the empty line");
equal(w.datReg.value, "6/15/2026", "today, with no line above");

// What stops a record, in order; what was typed stays.
box("Invalid Data", "Please Enter a Category and a dollar value for all transactions.");
click(w.cmdRecord);
date(w.datReg, "3/15/2026");
equal(g.rows, 0, "a date alone begins no line");
g.set(0, "Num", "101");
equal(line(g, 0), "3/15/2026|101|||||");
g.set(0, "Date", "");
box("Invalid Data", "Please Enter a date value for all transactions.");
click(w.cmdRecord);
date(w.datReg, "3/15/2026");
g.set(0, "Category", "Advertising and Promotion");
box("Invalid Data", "Please Enter a Category and a dollar value for all transactions.");
click(w.cmdRecord);
g.set(0, "Payment", "twelve");
box("Invalid Data", "Please Enter a Category and a dollar value for all transactions.");
click(w.cmdRecord);
g.set(0, "Deposit", "12");
equal([g.text(0, "Payment"), g.text(0, "Deposit")], ["", "12"], "a line stands on one side");
g.set(0, "Payment", "twelve");
box("Invalid Data", null);
click(w.cmdRecord);
equal([g.text(0, "Payment"), g.text(0, "Deposit")], ["twelve", "12"], "what was typed stays");
g.set(0, "Payment", "1,250.50");
g.set(0, "Category", "Checking");
box("Invalid Category", "Cannot Assign Category to Transaction that is also the Category that you are editing.");
click(w.cmdRecord);
equal(ledger(1), []);
g.set(0, "Category", "Advertising and Promotion");
g.set(0, "Memo", "Flyers");
click(w.cmdRecord);
equal(sounds(), ["stapler.wav"]);
equal(sides(1), ["Ledger Entry 0SS 40SS 0 1250.5 1250.5", "Ledger Entry 40SS 0SS 1250.5 0 1250.5"]);
equal(ledger(1)[1].Memo + ledger(1)[1].Number + ledger(1)[1].Date, "Flyers1013/15/2026");
equal([line(g, 0), w.lblTotal.value], ["3/15/2026|101||Advertising and Promotion|1250.5||-1250.5", "-$1,250.50"]);
equal([g.row(), w.datReg.value, w.datReg.focused], [1, "3/15/2026", true], "ready for the next one");

// A payee's last outgoing entry fills what is empty, a quote in the name or not; the number typed makes no check of it.
other("INSERT INTO Vendors (Name) VALUES (?)", "O'Brien & Sons");
close(w);
w = register("Checking");
const next = w.grdRegister;
next.set(1, "Payee", "O'Brien & Sons");
next.set(1, "Category", "Freight In");
next.set(1, "Payment", "75");
next.set(1, "Memo", "Pallets");
next.toggle(1, "Clear");
click(w.cmdRecord);
equal(sides(2), ["Ledger Entry 0SS 37SS 0 75 75", "Ledger Entry 37SS 0SS 75 0 75"]);
equal(ledger(2).map(function (row) { return row.Cleared + row.Name; }), ["trueO'Brien & Sons", "trueO'Brien & Sons"]);
next.set(2, "Payee", "O'Brien & Sons");
equal(line(next, 2), "3/15/2026||O'Brien & Sons||||", "filling waits until the payee is left");
next.set(2, "Memo", "Crates");
equal(line(next, 2), "3/15/2026||O'Brien & Sons|Freight In|75||");
equal(next.text(2, "Memo"), "Crates");

// Leaving the line asks; No takes it back, Yes records, and what cannot be recorded stays.
box("Save Changes", "Do you wish to record your changes?", "No");
next.row(0);
equal([next.rows, next.row(), rows("SELECT COUNT(*) AS n FROM Transactions")[0].n], [2, 0, 4]);
next.set(2, "Payee", "O'Brien & Sons");
next.set(2, "Num", "D1");
next.set(2, "Deposit", "20");
equal(line(next, 2), "3/15/2026|D1|O'Brien & Sons|Freight In||20|", "a line stands on one side");
next.set(2, "Category", "");
box("Save Changes", null, "Yes");
box("Invalid Data", "Please Enter a Category and a dollar value for all transactions.");
next.row(0);
equal([next.row(), next.text(2, "Num")], [2, "D1"]);
next.set(2, "Category", "Sales Income");
box("Save Changes", null, "Yes");
next.row(0);
equal(next.row(), 0, "the line that was gone to");
equal(sides(3), ["Ledger Entry 0SS 29SS 20 0 20", "Ledger Entry 29SS 0SS 0 20 20"]);
equal(w.lblTotal.value, "-$1,305.50");

// A line is written anew under its number; an entry of another year asks for a full balance pass.
next.set(1, "Payment", "80");
date(w.datReg, "12/31/2025");
click(w.cmdRecord);
equal(sides(1), ["Ledger Entry 0SS 40SS 0 80 80", "Ledger Entry 40SS 0SS 80 0 80"]);
equal(ledger(1)[1].Date, "12/31/2025");
equal(next.row(), 0, "back on the line, where its date has taken it");
equal(next.text(0, "Balance") + next.text(2, "Balance"), "-80-135");

// A parent category is posted to through its child.
next.set(3, "Payee", "O'Brien & Sons");
next.set(3, "Category", "Automobile");
next.set(3, "Payment", "9");
click(w.cmdRecord);
const child = ledger(4)[1].Account;
equal(rows("SELECT AccountName FROM Accounts WHERE CatID = ?", child)[0].AccountName, "Automobile - Other");
equal(sides(4)[0], "Ledger Entry 0SS " + child + " 0 9 9");

// A name in no list asks what it is; a category in no list is made on the way.
modal("frmNewPayee", function (n) { option(n.optType, 1); click(n.cmdOk); });
next.set(4, "Payee", "Harbor Tools");
equal(rows("SELECT Name FROM Vendors WHERE Name = ?", "Harbor Tools").length, 1);
modal("frmModAccount", function (m) {
  equal(m.txtName.value, "Shop Tools");
  pick(m.cmbType, "Expense");
  click(m.cmdOk);
});
next.set(4, "Category", "Shop Tools");
next.set(4, "Payment", "33.33");
click(w.cmdRecord);
const made = rows("SELECT CatID FROM Accounts WHERE AccountName = 'Shop Tools'")[0].CatID;
equal(sides(5), ["Ledger Entry 0SS " + made + " 0 33.33 33.33", "Ledger Entry " + made + " 0SS 33.33 0 33.33"]);

// Taking an entry out asks, twice when the bank has cleared it. The empty line has nothing to take out.
rightclick(next, 1);
box("Confirm Delete", "Are you sure you want to delete this Item?", "Yes");
box("Transaction Cleared", "This Transaction has been cleared by your bank, are you sure you want to delete this transaction?", "No");
popup("mnuDelReg");
equal(ledger(2).length, 2);
rightclick(next, 1);
box("Confirm Delete", null, "Yes");
box("Transaction Cleared", null, "Yes");
popup("mnuDelReg");
equal([ledger(2).length, next.rows, w.lblTotal.value], [0, 4, "-$102.33"]);
rightclick(next, 0);
box("Confirm Delete", null, "Enter", "Delete ");  // which is kept, and named
popup("mnuDelReg");
equal(next.rows, 4);
shot("frmRegister");

// Closing asks about a line that was begun, and brings the balances up to date.
next.set(4, "Memo", "half a line");
rightclick(next, 4);
popup("mnuDelReg");  // not in the ledger yet: nothing to take out
equal(next.text(4, "Memo"), "half a line");
box("Save Changes", null, "Cancel");
close(w);
equal([isOpen("frmRegister"), next.text(4, "Memo")], [true, "half a line"], "gone on with");
box("Save Changes", null, "No");
close(w);
ok(!isOpen("frmRegister"));
equal(rows("SELECT Balance FROM Accounts WHERE CatID = '0SS'")[0].Balance, -102.33);
const list = win("frmAccounts").grdAccounts;
equal(list.text(0, "Name") + list.text(0, "Balance"), "Checking-102.33");
equal(sounds().length, 6);
equal(log(), []);
