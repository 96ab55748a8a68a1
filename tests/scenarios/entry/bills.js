// Bills: typed, repeated for the vendor, credited, received before billed, paid meanwhile, seen and left.
start();
newCompany("Acme");
other("INSERT INTO Vendors (Name) VALUES ('Acme Supply')");
other("INSERT INTO Terms (Term, Days) VALUES ('Net 30', 30)");
other("INSERT INTO Items (ItemName, ItemType, ItemCat, InvAsset, Description) VALUES " +
      "('Bolt', 'Inventory Part', '36SS', '3SS', 'Steel bolt')");
menu("mnuBill");
let w = win("frmBills");
const today = w.dteDate.value;
function sides(number) {
  return ledger(number).map(function (r) { return [r.Type, r.Account, r.Category, r.Debit, r.Credit, r.Amount]; });
}
equal([w.caption, w.txtIndex.value, w.optBill.value, w.lblBill.value, w.chkPaid.enabled, w.dteDue.value],
      ["Bills", "1", "1", "Bill", false, today]);

// Terms give the due date as they are left; a new one asks for its days, and an answer that is none adds nothing.
for (const letter of "acme") key(w, letter);  // the focus is there
key(w, "Tab");
equal(w.cmbVendor.value, "Acme Supply");
date(w.dteDate, "6/1/2026");
type(w.txtNum, "77");
input("New Term", "Please Enter the Day Amount for this new Term.", "abc");
type(w.txtTerms, "Net 9");
equal([w.dteDue.value, rows("SELECT * FROM Terms WHERE Term = 'Net 9'").length], [today, 0]);
type(w.txtTerms, "net 3");
equal([w.txtTerms.value, w.dteDue.value], ["Net 30", "7/1/2026"]);
date(w.dteDate, "6/2/2026");
equal(w.dteDue.value, "7/1/2026", "the date does not move it");
input("New Term", "Please Enter the Day Amount for this new Term.", "10");
type(w.txtTerms, "Net 10");
equal([w.dteDue.value, rows("SELECT Days FROM Terms WHERE Term = 'Net 10'")[0].Days], ["6/12/2026", 10]);

// Both tabs count together; what is only on the other one is not forgotten.
type(w.txtAmount, "100");
equal(w.grdExpense.text(0, "Amount"), "100");
w.grdExpense.set(0, "Category", "office supp");
w.grdExpense.set(0, "Amount", "60");
w.grdExpense.set(0, "Class", "North");
pick(w.SSTab1, "&Items");
w.grdItems.set(0, "Item", "bo");
w.grdItems.set(0, "Quantity", "5");
w.grdItems.set(0, "Cost", "7");
equal(w.lblAssigned.value, "Assigned 95.00, left 5.00");
box("No Balance", "Transaction does not Balance");
click(w.cmdNext);
equal(w.txtIndex.value, "1", "stays");
w.grdItems.set(0, "Cost", "8");
shot("frmBills");
click(w.cmdNext);
equal(sides(1), [["Bill", "AP1", "<-Break Down->", 0, 100, 100], ["Bill", "66SS", "AP1", 60, 0, 60],
                 ["Bill", "3SS", "AP1", 40, 0, 40]]);
equal(rows("SELECT Class FROM Class").length, 1, "a class that was typed is in its list");
equal([w.txtIndex.value, w.cmbVendor.value, w.txtAmount.value, w.grdExpense.rows, w.grdItems.rows], ["2", "", "", 0, 0]);

// The vendor's next bill begins as the last one; its number is noticed when it comes again.
type(w.cmbVendor, "Acme Supply");
equal([w.txtAmount.value, w.grdExpense.text(0, "Category"), w.grdItems.text(0, "Quantity")], ["100.00", "Office Supplies", "5"]);
type(w.txtNum, "77");
equal(w.lblNotice.value, "Acme Supply has a bill 77 already, of 6/2/2026 for $100.00.");
option(w.optBill, 0);
equal([w.lblBill.value, w.lblNotice.value], ["Credit", ""]);
pick(w.SSTab1, "E&xpenses");
click(w.cmdOk);
equal(sides(2).map(function (r) { return r[0] + r[3] + "/" + r[4]; }), ["Credit100/0", "Credit0/60", "Credit0/40"]);

// Goods come before their bill.
menu("mnuInvRec");
w = win("frmBills");
equal([w.chkRecipt.checked, w.lblReceipt.visible, w.SSTab1.value], [true, true, "&Items"]);
type(w.cmbVendor, "Acme Supply");
type(w.txtNum, "r1");
click(w.cmdOk);
equal(sides(3)[0][0], "Item Receipt");
menu("mnuInvBill");
let p = win("frmInvBill");
equal([p.caption, p.grdRecieved.rows, p.grdRecieved.text(0, 0), p.grdRecieved.text(0, 2)], ["Select for Bill", 1, "r1", "100"]);
shot("frmInvBill");
click(p.cmdOk);
ok(!isOpen("frmInvBill"));
w = win("frmBills");
equal([w.txtIndex.value, w.chkRecipt.checked], ["3", true]);
check(w.chkRecipt, false);
click(w.cmdOk);
equal(ledger(3).map(function (r) { return [r.Type, r.Qty]; }), [["Bill", undefined], ["Bill", undefined], ["Bill", 5]]);
menu("mnuInvBill");
p = win("frmInvBill");
equal([p.grdRecieved.rows, p.cmdOk.enabled], [0, false]);
click(p.cmdCancel);

// Walking past what one only looks at writes nothing.
const history = function () { return rows("SELECT COUNT(*) AS n FROM History")[0].n; };
menu("mnuBill");
w = win("frmBills");
const before = history();
for (let i = 0; i < 4; ++i) click(w.cmdPrev);
equal([w.txtIndex.value, history(), sounds().indexOf("ball_bounce.wav") >= 0], ["1", before, true]);

// Another user pays it meanwhile: nothing of it is overwritten, and what it is stays.
other("UPDATE Transactions SET Paid = -1, PaidBy = '9;' WHERE TransNum = 1");
type(w.txtMemo, "mine");
box("Data has changed", null);
click(w.cmdOk);
equal([w.chkPaid.checked, w.txtMemo.value, w.chkRecipt.enabled], [true, "", false]);
type(w.txtMemo, "later");
box("Bill Paid", "This Bill has been paid, are you sure you want to change this Bill?", "No");
click(w.cmdOk);
ok(isOpen("frmBills"));
equal(ledger(1)[0].Memo, undefined);
box("Bill Paid", null, "Yes");
click(w.cmdNext);
equal(ledger(1).map(function (r) { return [r.Paid, r.PaidBy]; }), [[true, "9;"], [true, "9;"], [true, "9;"]]);
equal(ledger(1)[0].Memo, "later");
click(w.cmdPrev);
box("Confirm Delete", "Are you sure you want to delete this Bill?", "Yes");
box("Bill Paid", "This Bill has been paid, are you sure you want to delete this Bill?", "Yes");
click(w.cmdDelete);
equal(ledger(1), []);

// What is typed goes by Cancel alone; an unnamed vendor and an empty line stop the save.
menu("mnuInvRecBill");
w = win("frmBills");
equal([w.chkRecipt.checked, w.SSTab1.value], [false, "&Items"]);
pick(w.SSTab1, "E&xpenses");
box("To many Decimals", "Max number of decimal places is 2");
type(w.txtAmount, "12.345");
equal(w.txtAmount.value, "");
type(w.txtAmount, "12.34");
box("No Vendor", "Please select a vendor for this bill.");
click(w.cmdOk);
type(w.cmbVendor, "Somebody New");
equal(w.lblNotice.value, "Somebody New is not in the list of vendors.");
box("No Expense", "Please Select an expense for this Transaction");
click(w.cmdOk);
click(w.cmdCan);
ok(!isOpen("frmBills"));
equal([ledger(4), log()], [[], []]);

// What is on order is offered with its vendor; leaving without saving closes no order, saving does.
other("INSERT INTO POs (\"Index\", \"Open\", Vendor, PONumber, Date, Total) VALUES (?, ?, ?, ?, ?, ?)", 1, true,
      "Acme Supply", "P9", "6/1/2026", "20");
other("INSERT INTO POItems (POIndex, Item, Description, Qty, Rate, Amount) VALUES (?, ?, ?, ?, ?, ?)", 1, "Bolt",
      "Steel bolt", 4, "5", "20");
const open = function () { return rows("SELECT \"Open\" FROM POs")[0].Open; };
for (const keep of [false, true]) {
  menu("mnuBill");
  w = win("frmBills");
  box("Open POs", "This Vendor has Open Purchase Orders. Would you like to enter them in now?", "Yes");
  modal("frmOpenPOs", function (m) { click(m.cmdOk); });
  type(w.cmbVendor, "Acme Supply");
  equal([w.SSTab1.value, w.grdItems.text(0, "Item"), w.txtAmount.value, open()], ["&Items", "Bolt", "20.00", true]);
  if (!keep) click(w.cmdCan);
  if (keep) click(w.cmdOk);
  equal(open(), !keep);
}
