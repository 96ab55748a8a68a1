// A morning's checks without the mouse.
start();
newCompany("Acme");
other("INSERT INTO Vendors (Name, Address) VALUES ('Acme Supply', '1 Mill Road')");
other("INSERT INTO Vendors (Name) VALUES ('Northern Power')");
menu("mnuChecks");
const w = win("frmCheck");
function press() {
  for (let i = 0; i < arguments.length; ++i) key(w, arguments[i]);
}
function letters(text) {
  for (const letter of text) key(w, letter === " " ? "Space" : letter);
}

letters("acme");
press("Enter");
ok(w.txtAmount.focused, "payee to amount");
equal(w.cmbPayee.value, "Acme Supply");
letters("125");
press("Enter");
ok(w.txtAddress.focused, "amount to address");
equal(w.txtAddress.value, "1 Mill Road");
press("Enter");
ok(w.txtMemo.focused, "an address just entered is left as it is");
equal(w.txtAddress.value, "1 Mill Road");
letters("pens");
press("Enter");
ok(w.grdExpense.focused, "memo to lines");
letters("off");
press("Enter");
equal([w.grdExpense.text(0, "Category"), w.grdExpense.text(0, "Amount")], ["Office Supplies", "125"]);
press("Ctrl+Enter");
equal(ledger(1).map(function (r) { return [r.Name, r.Memo, r.Account, r.Amount]; }),
      [["Acme Supply", "pens", "0SS", 125], ["Acme Supply", undefined, "66SS", 125]]);
ok(w.cmbPayee.focused, "ready for the next one");

// Two lines: the amount cell is overwritten, Insert goes to the new line, the rest is typed.
letters("north");
press("Enter");
letters("90");
press("Enter", "Tab");
letters("january");
press("Enter");
letters("util");
press("Enter");
letters("60");
press("Enter", "Insert");
letters("fuel");
press("Enter");
letters("30");
press("Ctrl+Enter");
equal(ledger(2).map(function (r) { return [r.Category, r.Memo, r.Debit]; }),
      [["<-Break Down->", "january", 0], ["0SS", undefined, 60], ["0SS", undefined, 30]]);

// Delete takes the line away; the letters underlined in this window come before those of the menus.
press("Alt+R");
equal(w.txtIndex.value, "2", "previous, not Reports");
press("Alt+X");
ok(w.grdExpense.focused, "to the lines");
press("Down", "Delete");
equal(w.grdExpense.rows, 1);
press("Alt+M");
ok(w.txtMemo.focused);
w.grdExpense.set(0, "Amount", "90");
press("Alt+O");
ok(!isOpen("frmCheck"), "saved and closed");
equal(ledger(2).map(function (r) { return r.Amount; }), [90, 90]);
equal(log(), []);
