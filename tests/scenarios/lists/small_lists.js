// Classes and other names: the grid writes what is typed in it.
start();
newCompany("Acme");
function names(table, field) {
  return rows("SELECT " + field + " AS Name FROM " + table + " ORDER BY 1").map(function (row) { return row.Name; });
}
for (const list of [["mnuClassList", "frmClass", "grdClass", "Class", "Class", "Class"],
                    ["mnuOtherNames", "frmOtherNames", "grdNames", "OtherNames", "Name", "Other Names"]]) {
  menu(list[0]);
  const w = win(list[1]);
  const g = w[list[2]];
  equal([w.caption, g.columns[0], g.rows], [list[5], "Name", 0]);
  g.set(0, "Name", "South");
  g.set(1, "Name", "North");
  equal(names(list[3], list[4]), ["South"], "a row is written when it is left");
  g.row(0);
  equal(names(list[3], list[4]), ["North", "South"]);
  g.set(0, "Name", "Far South");

  // The grid asks before a row goes.
  box("Confirm Delete", null, "No");
  click(w.cmdAction);
  equal(names(list[3], list[4]), ["Far South", "North"], "changed in place");
  box("Confirm Delete", null, "Yes");
  click(w.cmdAction);
  equal([names(list[3], list[4]), g.rows], [["North"], 1]);
  // A value that another user deletes while it is changed is there again as it was typed.
  other("DELETE FROM " + list[3]);
  g.set(0, "Name", "North'é");
  g.row(1);
  equal(names(list[3], list[4]), ["North'é"]);
  g.set(0, "Name", "North");
  g.set(1, "Name", "East");
  click(w.cmdClose);
  equal(names(list[3], list[4]), ["East", "North"], "closing writes the last row");
  menu(list[0]);
  equal(win(list[1])[list[2]].text(0, "Name"), "East", "by name");
}

// An other name is a payee nobody asks about.
menu("mnuChecks");
const w = win("frmCheck");
type(w.cmbPayee, "east");
equal(w.cmbPayee.value, "East");
type(w.txtAmount, "1");
w.grdExpense.set(0, "Category", "Fuel");
w.grdExpense.set(0, "Class", "nor");
click(w.cmdOk);
equal(ledger(1)[1].Class, "North");
equal(log(), []);
