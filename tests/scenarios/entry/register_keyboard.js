// An afternoon at the register without the mouse.
start();
newCompany("Acme");
other("INSERT INTO Vendors (Name) VALUES ('Acme Supply')");
other("INSERT INTO Class (Class) VALUES ('North')");
menu("mnuAccounts");
key(win("frmAccounts").grdAccounts, "Home");
key(win("frmAccounts").grdAccounts, "Enter");
const w = win("frmRegister");
const g = w.grdRegister;
function press() {
  for (let i = 0; i < arguments.length; ++i) key(w, arguments[i]);
}
function letters(text) {
  for (const letter of text) key(w, letter === " " ? "Space" : letter);
}
ok(w.datReg.focused);

// Date, number, payee, category by its first letters, memo, class, amount; Enter from cell to cell. The line is
// recorded by going on and saying yes.
letters("3/1/26");
press("Enter");
letters("100");
press("Enter");
letters("acme");
press("Enter");
letters("freight");
press("Enter");
letters("pallets");
press("Enter");
letters("n");
press("Enter");
letters("12.5");
press("Enter", "Enter");

box("Save Changes", null, "Yes");
press("Enter");
equal(ledger(1).map(function (row) { return [row.Date, row.Number, row.Name, row.Account, row.Memo, row.Class, row.Amount]; }),
      [["3/1/2026", "100", "Acme Supply", "0SS", "pallets", "North", 12.5],
       ["3/1/2026", "100", "Acme Supply", "37SS", "pallets", "North", 12.5]]);
equal([w.datReg.focused, w.datReg.value, g.row()], [true, "3/1/2026", 1]);

// The date moves by keys, Tab goes on, the payee fills the rest, Control+Enter records.
press("+", "Tab", "Tab");
letters("acme");
press("Tab");
equal([g.text(1, "Date"), g.text(1, "Category"), g.text(1, "Payment")], ["3/2/2026", "Freight In", "12.5"]);
press("Ctrl+Enter");
equal(ledger(2).map(function (row) { return row.Date + row.Account + row.Amount; }), ["3/2/20260SS12.5", "3/2/202637SS12.5"]);

// Back up to the first line, its amount typed over, broken down and recorded.
press("Shift+Tab", "Up", "Shift+Tab", "Shift+Tab");
equal([g.row(), w.datReg.focused], [0, false]);
letters("15");
press("Alt+B");
ok(w.grdBreakDown.focused || w.fraBreakDown.visible);
press("Enter");
letters("10");
press("Enter", "Enter", "Enter", "Enter");
letters("job");
press("Enter");
letters("5");
press("Ctrl+Enter");
ok(!w.fraBreakDown.visible);
equal(g.text(0, "Category"), "<-Break Down->");
press("Ctrl+Enter");
equal(ledger(1).map(function (row) { return row.Account + row.Amount; }), ["0SS15", "37SS10", "38SS5"]);
ok(isOpen("frmRegister"));

rightclick(g, 0);
box("Confirm Delete", null, "Yes");
popup("mnuDelReg");
equal([ledger(1), g.rows], [[], 1]);
