// Paying the sales tax that was collected, and changing such a check.
start();
newCompany("Acme");
other("INSERT INTO Items (ItemName, ItemType, ItemCat, TaxVendor) VALUES ('State', 'Sales Tax', '21SS', 'Revenue Dept')");
function row(account, category, debit, credit, item) {
  other("INSERT INTO Transactions (TransNum, Type, Date, Account, Category, Debit, Credit, Amount, Item) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)",
        1, "Invoice", "5/3/2026", account, category, debit, credit, 60, item);
}
row("AR1", "21SS", 60, 0, "");
row("21SS", "AR1", 0, 60, "State");
menu("mnuPaySalesTax");
let w = win("frmPaySalesTax");
equal([w.caption, w.dtePayDate.value, w.dteQtrDate.value, w.cmbBankAcct.value], ["Pay Sales Tax", "6/15/2026", "5/31/2026", "Checking"]);
equal([w.SSDBGrid1.rows, w.SSDBGrid1.text(0, "Item"), w.SSDBGrid1.text(0, "Vendor"), w.SSDBGrid1.text(0, "Amount")], [1, "State", "Revenue Dept", "60"]);
date(w.dtePayDate, "5/10/2026");
equal([w.dteQtrDate.value, w.SSDBGrid1.text(0, "Amount")], ["4/30/2026", "0"]);
date(w.dteQtrDate, "5/31/2026");
w.SSDBGrid1.toggle(0, "Select");
shot("frmPaySalesTax");
type(w.cmbBankAcct, "");
box("No Bank", "Please select a Bank to Pay Liabilities from.");
click(w.cmdOk);
pick(w.cmbBankAcct, "Checking");
click(w.cmdOk);
ok(!isOpen("frmPaySalesTax"));
equal(ledger(2).map(function (row) { return [row.Type, row.Account, row.Amount, row.PaidThrough]; }),
      [["Liabilitycheck", "0SS", 60, "5/31/2026"], ["Liabilitycheck", "21SS", 60, "5/31/2026"]]);

// From the check back to its lines.
menu("mnuChecks");
const c = win("frmCheck");
click(c.cmdPrev);
equal(c.grdLiabilities.text(0, 0), "State");
type(c.txtNumber, "77");
modal("frmPaySalesTax", function (m) {
  equal([m.cmdOk.caption, m.dtePayDate.enabled, m.dteQtrDate.value, m.SSDBGrid1.rows], ["&Save", false, "5/31/2026", 1]);
  click(m.cmdOk);
});
click(c.cmdLiaEdit);
equal([c.txtNumber.value, ledger(2)[1].Number], ["77", "77"], "with the number of the check window, which shows what is stored");
equal(ledger(2).length, 2);
equal(log(), []);
