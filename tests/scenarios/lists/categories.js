// The list of categories and the form that makes and changes one.
start();
newCompany("Acme");
menu("mnuAccounts");
const l = win("frmAccounts");
const g = l.grdAccounts;
function place(name) {
  for (let row = 0; row < g.rows; ++row) if (g.text(row, "Name").trim() === name) return row;
  return -1;
}
function choose(name, item) {
  g.select([place(name)]);
  click(l.cmdAction);
  popup(item);
}
function refused(name, item) {
  try {
    choose(name, item);
  } catch (error) {
    return error.message.indexOf("is disabled") >= 0;
  }
  return false;
}
function category(name) {
  return rows("SELECT CatID, AccountType, ParentAccount, Dormant, AccountNum, Description FROM Accounts WHERE AccountName = ?", name)[0];
}
equal(l.caption, "Categories");
equal(g.columns, ["Name", "Type", "Balance", "CatID"]);
equal([g.text(0, 0), g.text(0, 1), g.text(0, 3)], ["Checking", "Bank", "0SS"], "banks first, by name");
equal(g.text(place("Fuel"), 0), "     Fuel", "five blanks a level");

// What each row allows.
ok(refused("Retained Earnings", "mnuDelete") && refused("Opening Balance Equity", "mnuDelete"), "kept");
ok(refused("Undeposited Funds", "mnuDelete") && refused("Accounts Payable", "mnuDelete"), "kept");
ok(refused("Sales Income", "mnuRegister") && refused("Sales Income", "mnuReconcile"), "no register of income");
ok(refused("Buildings and Improvements", "mnuReconcile"), "no reconciling of assets");

// A new one: mistakes first.
modal("frmModAccount", function (m) {
  equal(m.caption, "New Category");
  box("No Name", "Please enter a name for this Category");
  click(m.cmdOk);
  ok(m.txtName.focused);
  type(m.txtName, "Drones");
  box("No Parent", "Please select a Parent Category before selecting a Sub Category.");
  click(m.Check1);
  ok(!m.Check1.checked && m.cmbType.focused, "to the type");
  box("No Type", "Please select a type for this Category");
  click(m.cmdOk);
  type(m.cmbType, "exp");
  equal(m.cmbType.value, "Expense", "completed");
  ok(!m.cmbSubCat.enabled);
  click(m.Check1);
  ok(m.cmbSubCat.enabled && m.cmbSubCat.items.indexOf("Automobile") >= 0 && m.cmbSubCat.items.indexOf("Checking") < 0,
     "only categories of the type");
  pick(m.cmbSubCat, "Automobile");
  equal(m.lblParentID.value, "41SS");
  type(m.txtAcctNum, "6150");
  type(m.txtDescripiton, "Aircraft");
  shot("frmModAccount");
  click(m.cmdOk);
});
click(l.cmdAction);
popup("cmdNew");
const made = category("Drones");
equal([made.AccountType, made.ParentAccount, made.Dormant, made.AccountNum, made.Description],
      ["Expense", "41SS", false, "6150", "Aircraft"]);
ok(/^\d+SS$/.test(made.CatID), "numbered");
equal(g.text(place("Drones"), 0), "     Drones", "listed at once");

// Changed by double-clicking nothing: an expense has no register. Then to dormant and to the top.
g.dblclick(place("Drones"));
modal("frmModAccount", function (m) {
  equal([m.caption, m.txtName.value, m.cmbType.value, m.Check1.checked, m.cmbSubCat.value, m.lblParentID.value],
        ["Edit Category", "Drones", "Expense", true, "Automobile", "41SS"]);
  click(m.Check1);
  check(m.chkDormant, true);
  click(m.cmdOk);
});
choose("Drones", "mnuEdit");
equal([category("Drones").ParentAccount || null, category("Drones").Dormant], [null, true]);
equal(place("Drones"), -1, "dormant ones hide");
check(l.chkDormant, true);
equal(g.text(place("Drones"), 0), "Drones");

// Escape and Cancel change nothing.
modal("frmModAccount", function (m) {
  type(m.txtName, "Rockets");
  box("Save Changes", "Do you wish to record your changes?", "Cancel");
  key(m, "Esc");
  equal(m.txtName.value, "Rockets", "gone on with");
  box("Save Changes", "Do you wish to record your changes?", "No");
  key(m, "Esc");
});
choose("Drones", "mnuEdit");
modal("frmModAccount", function (m) {
  type(m.txtName, "Rockets");
  click(m.cmdCancel);  // asks nothing: one who says Cancel means it
});
choose("Drones", "mnuEdit");
equal(category("Rockets"), undefined);

// Another user changed it while the form stood open: nothing is overwritten, the form shows what the other one did.
modal("frmModAccount", function (m) {
  other("UPDATE Accounts SET AccountNum = 'theirs' WHERE AccountName = 'Drones'");
  type(m.txtName, "Kites");
  box("Data has changed", "This category has been modified by another user since you opened it. It will not be " +
                          "updated. Click Ok to see changes.");
  click(m.cmdOk);
  equal([m.txtName.value, m.txtAcctNum.value], ["Drones", "theirs"]);
  click(m.cmdOk);
});
choose("Drones", "mnuEdit");
equal(category("Kites"), undefined);

rightclick(g, place("Drones"));
modal("frmModAccount", function (m) {
  equal(m.txtName.value, "Drones", "the row under the pointer");
  click(m.cmdCancel);
});
popup("mnuEdit");

// One that another user deleted while it was on the screen leaves the list instead of opening.
other("INSERT INTO Accounts (CatID, AccountName, AccountType, Dormant) VALUES ('900SS', 'Aaron', 'Bank', False)");
for (const on of [false, true]) check(l.chkDormant, on);
ok(place("Aaron") >= 0);
other("DELETE FROM Accounts WHERE CatID = '900SS'");
choose("Aaron", "mnuEdit");
equal(place("Aaron"), -1);

// Deleting: refused, in use, done.
const question = "Are you sure you want to delete \"Drones\"";
box("Confirm Delete", question, "No");
choose("Drones", "mnuDelete");
ok(place("Drones") >= 0);
other("INSERT INTO Transactions (Account, TransNum, Type, Amount) VALUES (?, 1, 'Check', 10000)", made.CatID);
box("Confirm Delete", question, "Yes");
box("No Deletion", "Category in use cannot Delete");
key(g, "Delete");
ok(category("Drones"));
other("DELETE FROM Transactions");
box("Confirm Delete", question, "Yes");
choose("Drones", "mnuDelete");
equal([place("Drones"), category("Drones")], [-1, undefined]);

// A category that is typed into a check is made there and stands in its line.
menu("mnuChecks");
const w = win("frmCheck");
modal("frmNewPayee", function (p) {
  equal(p.caption, "New Payee");
  option(p.optType, 0);
  click(p.cmdOk);
});
type(w.cmbPayee, "O'Brien");
equal(rows("SELECT Name FROM Customers"), [{Name: "O'Brien"}]);
ok(w.cmbPayee.items.indexOf("O'Brien") >= 0, "offered from now on");
type(w.txtAmount, "15");
w.grdExpense.set(0, "Category", "Kites");
modal("frmModAccount", function (m) {
  equal(m.txtName.value, "Kites");
  pick(m.cmbType, "Expense");
  click(m.cmdOk);
});
click(w.cmdOk);
equal(ledger(1)[1].Account, category("Kites").CatID);
ok(place("Kites") >= 0, "and in the list");
equal(log(), []);
