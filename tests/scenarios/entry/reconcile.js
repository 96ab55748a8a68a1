// A bank's statement: marking, going to a transaction and back, balancing, printing.
start();
newCompany("Acme");
menu("mnuChecks");
const c = win("frmCheck");
function write(amount, payeeNumber) {
  type(c.txtNumber, payeeNumber);
  type(c.txtAmount, amount);
  c.grdExpense.set(0, "Amount", amount);
  c.grdExpense.set(0, "Category", "Advertising and Promotion");
  click(c.cmdNext);
}
write("30", "101");
write("20", "102");
menu("mnuAccounts");
const l = win("frmAccounts");
l.grdAccounts.select([0]);
click(l.cmdAction);
popup("mnuReconcile");
const w = win("frmReconcile");
equal(w.caption, "Reconcile - Checking");
const p = w.grdPayments;
equal([p.rows, p.text(0, "Check #"), p.text(1, "Amount"), w.grdDeposits.rows], [2, "101", "20", 0]);
box("Not Balanced", "Bank is not Balanced Yet");
type(w.txtEnd, "-30");
equal(w.lblDifference.value, "-$30.00");
click(w.cmdBalance);
click(w.cmdMark);
equal([w.lblPaymenyCount.value, w.lblPayTotal.value, w.lblClearedBalance.value, w.lblDifference.value], ["2", "$50.00", "-$50.00", "$20.00"]);
click(w.cmdUnMark);
equal(w.lblDifference.value, "-$30.00");
p.toggle(0, "Cleared");
p.toggle(1, "Cleared");
shot("frmReconcile");

// Going to a line takes its mark away; what is saved there shows here.
p.row(1);
click(w.cmdGoTo);
equal(w.lblDifference.value, "$0.00");
equal(win("frmCheck").txtIndex.value, "2");
type(win("frmCheck").txtNumber, "202");
click(win("frmCheck").cmdNext);
equal([p.text(1, "Check #"), w.lblPaymenyCount.value, p.text(0, "Cleared")], ["202", "1", "-1"]);

modal("frmRecReport", function (r) {
  shot("frmRecReport");
  option(r.optType, 1);
  modal("frmPreview", function (v) { shot("frmPreview"); click(v.cmdClose); });
  box("Print", "Print Report Again?", "No");
  click(r.cmdOk);
});
click(w.cmdBalance);
ok(!isOpen("frmReconcile"));
equal(rows("SELECT Account, Number FROM Transactions WHERE Cleared = True"), [{Account: "0SS", Number: "101"}]);
equal(log(), []);
