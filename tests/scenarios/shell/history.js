// What was done can be looked at and taken back, by everybody whose rights reach it.
start();
newCompany("Acme");
other("INSERT INTO Vendors (Name) VALUES ('Acme Supply')");
const main = win("frmMain");

function writeCheck(amount) {
  menu("mnuChecks");
  const w = win("frmCheck");
  pick(w.cmbPayee, "Acme Supply");
  type(w.txtAmount, amount);
  w.grdExpense.set(0, "Category", "Office Supplies");
  w.grdExpense.set(0, "Amount", amount);
  click(w.cmdSaveNew);
  equal([w.txtAmount.value, w.cmbPayee.value], ["", ""], "saved, and a new one");
  close(w);
}
menu("mnuUndo");  // nothing yet: the status bar says so
writeCheck("125");
writeCheck("40.25");
equal([ledger(1).length, ledger(2).length], [2, 2]);

// Edit > Undo names the last document and asks; Esc leaves it.
box("Undo", null, "Esc", "Entered ");
menu("mnuUndo");
equal(ledger(2).length, 2);
box("Undo", null, "Yes");
menu("mnuUndo");
equal([ledger(1).length, ledger(2).length], [2, 0]);
equal(rows("SELECT Balance FROM Accounts WHERE CatID = '0SS'")[0].Balance, -125, "balances follow");

// The history: newest first, before and after, the undo among them; an action is taken back once.
menu("mnuHistory");
const h = win("frmHistory");
function find(words) {
  for (let row = 0; row < h.grdActions.rows; ++row)
    if (h.grdActions.text(row, "What").indexOf(words) === 0) return row;
  return -1;
}
equal([find("Undo") < find("Check"), find("Updating Categories")], [true, -1], "no upkeep of balances");
const undone = find("Check");
h.grdActions.row(undone);
equal(h.grdActions.text(undone, "Taken Back"), "Yes");
ok(!h.cmdTakeBack.enabled);
let first = -1;
for (let row = 0; row < h.grdActions.rows; ++row)
  if (h.grdActions.text(row, "What").indexOf("Check") === 0) first = row;
h.grdActions.row(first);
let fields = [];
for (let row = 0; row < h.grdChanges.rows; ++row) fields.push(h.grdChanges.text(row, "Field"));
ok(fields.indexOf("Name") >= 0 && fields.indexOf("CatID") < 0 && h.grdChanges.text(0, "Where").indexOf("Transactions") === 0);
shot("frmHistory");
box("Undo", null, "Yes");
click(h.cmdTakeBack);
equal([ledger(1).length, rows("SELECT Balance FROM Accounts WHERE CatID = '0SS'")[0].Balance], [0, 0]);

// The undo of the undo brings it back; what stands in the way is said in one box, and nothing happens.
h.grdActions.row(find("Undo"));
box("Undo", null, "Yes");
click(h.cmdTakeBack);
equal(ledger(1).length, 2);
equal(log(), []);

// Who may not open the check book sees none of its history, and undoes none of it.
close(h);
other("INSERT INTO Users (UserName, AR, AP, BankCC, Inventory, Payroll) VALUES ('Ann', -1, -1, 0, 0, 0)");
menu("mnuSwitchMode");
modal("frmLogin", function (w) { type(w.cmbUser, "Ann"); click(w.cmdLogin); });
openCompany("Acme");
menu("mnuHistory");
const hers = win("frmHistory").grdActions;
for (let row = 0; row < hers.rows; ++row) ok(hers.text(row, "What").indexOf("Check") < 0, hers.text(row, "What"));
close(win("frmHistory"));
menu("mnuUndo");
equal(ledger(1).length, 2);
