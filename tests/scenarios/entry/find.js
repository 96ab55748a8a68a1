// Finding transactions, and going from a found row to its window.
start();
newCompany("Acme");
menu("mnuChecks");
const c = win("frmCheck");
type(c.txtAmount, "12.50");
c.grdExpense.set(0, "Amount", "12.50");
c.grdExpense.set(0, "Category", "Advertising and Promotion");
click(c.cmdOk);
equal(ledger(1).length, 2);
menu("mnuFind");
const f = win("frmFind");
equal(f.caption, "Find Transaction");
ok(f.cmbVen.focused && f.cmbVen.visible && !f.txtNumber.visible);
box("No Value", "Please Pick a Name");
click(f.cmdFind);
click(f.cmdGoto);  // no line: nothing

option(f.optFind, 2);
ok(f.txtNumber.visible && f.txtNumberTo.visible && !f.cmbVen.visible);
type(f.txtNumber, "abc");
box("No Value", "Please Enter a Number value in the Box");
click(f.cmdFind);
type(f.txtNumber, "99");
box("No Find", "No Transactions Found");
click(f.cmdFind);
type(f.txtNumber, "12.5");
click(f.cmdFind);
const g = f.SSDBGrid1;
equal([g.rows, g.text(0, "Type"), g.text(0, "Category"), g.text(1, "Category"), g.text(1, "Amount")],
      [2, "Check", "Checking", "Advertising and Promotion", "12.5"]);
shot("frmFind");
option(f.optFind, 3);
ok(!f.txtNumberTo.visible && f.txtNumber.visible, "a number has no range");
option(f.optFind, 1);
ok(f.QuillbrookDatePick1.visible && !f.txtNumber.visible);
click(f.cmdFind);
equal(g.rows, 2, "today's");
g.dblclick(1);
const again = win("frmCheck");
ok(again.caption.length > 0);
equal(again.txtIndex.value, "1");

// What goes elsewhere goes here too.
box(null, null, "Yes");
click(again.cmdDelete);
equal(g.rows, 0);
