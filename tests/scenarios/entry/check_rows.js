// What a check leaves in the ledger: one expense, several, a parent category, items, and a changed check.
start();
newCompany("Acme");
other("INSERT INTO Vendors (Name, Address) VALUES ('Acme Supply', '1 Mill Road\r\nDuluth')");
other("INSERT INTO Items (ItemName, ItemType, ItemCat, InvAsset, Description) VALUES " +
      "('Bolt', 'Inventory Part', '36SS', '3SS', 'Steel bolt')");
other("INSERT INTO Items (ItemName, ItemType, ItemCat) VALUES ('Labor', 'Service', '39SS')");
menu("mnuChecks");
const w = win("frmCheck");
const expense = w.grdExpense;

// One expense: the bank's row names the category, the category's row the bank.
type(w.txtNumber, "1042");
date(w.DTPicker1, "3/15/2026");
type(w.cmbPayee, "acme");
equal(w.cmbPayee.value, "Acme Supply", "completed");
equal(w.txtAddress.value, "1 Mill Road\nDuluth");
type(w.txtAmount, "1234.5");
equal(w.txtAmount.value, "1,234.50");
equal(w.lblAmount.value.replace(/^(\* )+/, ""), "One thousand Two hundred Thirty-Four and 50/100");
ok(w.lblAmount.value.length >= 123, "padded");
type(w.txtMemo, "March order");
equal(expense.text(0, "Amount"), "1234.5", "the whole amount is proposed");
expense.set(0, "Category", "office supp");
equal(expense.text(0, "Category"), "Office Supplies");
expense.set(0, "Memo", "paper");
key(w, "Ctrl+Enter");
const head = {TransNum: 1, Type: "Check", Date: "3/15/2026", Number: "1042", Name: "Acme Supply",
              Address: "1 Mill Road\r\nDuluth"};
function row(fields) {
  return Object.assign({}, head, fields, {Cleared: false, Paid: false, Taxable: false});
}
function seen(number) {
  return ledger(number).map(function (found) { return Object.assign({}, head, found); });
}
equal(seen(1), [
  row({Memo: "March order", Account: "0SS", Category: "66SS", Debit: 0, Credit: 1234.5, Amount: 1234.5}),
  row({Memo: "paper", Account: "66SS", Category: "0SS", Debit: 1234.5, Credit: 0, Amount: 1234.5})]);
equal([w.txtIndex.value, w.txtNumber.value, w.cmbPayee.value, w.txtAmount.value, w.lblAmount.value, w.txtMemo.value,
       w.txtAddress.value, expense.rows], ["2", "Print", "", "", "", "", "", 0], "a blank check follows");

// Two expenses, the second with what is left; a parent category goes to its child.
type(w.cmbPayee, "Acme Supply");
type(w.txtAmount, "100");
expense.set(0, "Category", "Automobile");
expense.set(0, "Amount", "60");
type(w.txtAmount, "110");
equal([expense.rows, expense.text(1, "Amount")], [2, "50"], "the rest on a new line");
expense.set(1, "Category", "Fuel");
other("INSERT INTO Class (Class) VALUES ('North')");
expense.set(1, "Class", "");
click(w.cmdNext);
const other_id = rows("SELECT CatID FROM Accounts WHERE AccountName = 'Automobile - Other'")[0].CatID;
equal(ledger(2).map(function (r) { return [r.Account, r.Category, r.Debit, r.Credit, r.Amount]; }),
      [["0SS", "<-Break Down->", 0, 110, 110], [other_id, "0SS", 60, 0, 60], ["42SS", "0SS", 50, 0, 50]]);

// Items: quantity times cost; an inventory part goes to its asset, a service to its category.
type(w.cmbPayee, "Acme Supply");
type(w.txtAmount, "37.50");
pick(w.SSTab1, "&Items");
const items = w.grdItems;
items.set(0, "Item", "bo");
items.set(0, "Quantity", "5");
equal(items.text(0, "Amount"), "", "no cost, no amount");
items.set(0, "Cost", "2.5");
equal(items.text(0, "Amount"), "12.5");
items.set(1, "Item", "Labor");
items.set(1, "Cost", "25");
equal(items.text(1, "Amount"), "25", "the cost alone");
items.set(1, "Customer", "Acme Supply");
click(w.cmdNext);
equal(ledger(3).map(function (r) { return [r.Account, r.Category, r.Credit, r.Debit, r.Item, r.Qty, r.SalePrice]; }),
      [["0SS", "<-Break Down->", 37.5, 0, undefined, undefined, undefined],
       ["3SS", "0SS", 0, 12.5, "Bolt", 5, 2.5], ["39SS", "0SS", 0, 25, "Labor", undefined, 25]]);
equal(ledger(3)[2].SourceName, "Acme Supply");

// A changed check keeps its number; another year asks for a full pass of the balances.
click(w.cmdPrev);
equal([w.txtIndex.value, w.SSTab1.value, items.rows, items.text(0, "Item")], ["3", "&Items", 2, "Bolt"]);
items.remove(1);
type(w.txtAmount, "12.50");
date(w.DTPicker1, "12/30/2025");
click(w.cmdOk);
ok(!isOpen("frmCheck"), "closed");
equal(ledger(3).map(function (r) { return [r.Date, r.Amount]; }), [["12/30/2025", 12.5], ["12/30/2025", 12.5]]);
equal(log(), []);
