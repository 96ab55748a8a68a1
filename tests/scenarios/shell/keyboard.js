// The keyboard contract, docs/keyboard.md.
start();
let s = win("frmStart");
ok(s.cmdOK.coloured, "the last stop before the button: Enter presses it");
newCompany("Acme");
const main = win("frmMain");

// A dialog: Enter goes on while a field follows, and then does what the coloured button says.
menu("mnuAccounts");
const list = win("frmAccounts");
modal("frmModAccount", function (d) {
  for (const letter of "kite") key(d, letter);
  equal(d.txtName.value, "kite");
  ok(d.txtName.focused && !d.cmdOk.coloured && !d.cmdCancel.coloured, "in the middle none is coloured");
  key(d, "Enter");
  ok(d.cmbType.focused, "on to the type");
  for (const letter of "exp") key(d, letter);
  for (let i = 0; i < 4 && !d.chkDormant.focused; ++i) key(d, "Enter");
  ok(d.chkDormant.focused && d.cmdOk.coloured && !d.cmdCancel.coloured, "the last field");
  key(d, "Tab");
  ok(d.cmdCancel.focused ? d.cmdCancel.coloured && !d.cmdOk.coloured : d.cmdOk.coloured, "the colour goes with the focus");
  key(d, "Shift+Tab");
  key(d, "Enter");
});
click(list.cmdAction);
popup("cmdNew");
equal(rows("SELECT AccountType FROM Accounts WHERE AccountName = 'kite'"), [{AccountType: "Expense"}]);

// Ctrl+Enter is the main button from any field; Esc and Ctrl+W leave and keep nothing.
for (const [keys, kept] of [["Ctrl+Enter", 1], ["Esc", 0], ["Ctrl+W", 0]]) {
  modal("frmModAccount", function (d) {
    type(d.cmbType, "Expense");
    type(d.txtName, "with " + keys);
    if (!kept) box("Save Changes", null, "No");
    key(d.txtName, keys);
  });
  click(list.cmdAction);
  popup("cmdNew");
  equal(rows("SELECT CatID FROM Accounts WHERE AccountName = ?", "with " + keys).length, kept, keys);
}
ok(isOpen("frmAccounts"), "Ctrl+W closed the dialog and not the list behind it");

// In a list Enter is the double click.
list.grdAccounts.row(0);
key(list.grdAccounts, "Enter");
ok(isOpen("frmRegister"));
key(win("frmRegister"), "Ctrl+W");
ok(!isOpen("frmRegister") && isOpen("frmAccounts"));
key(list.grdAccounts, "Esc");
ok(!isOpen("frmAccounts"));

// A letter of this window is never the menu bar's, also when its control has the focus already.
menu("mnuChecks");
let w = win("frmCheck");
for (let times = 0; times < 2; ++times) {
  key(w, "Alt+M");
  ok(w.txtMemo.focused, "memo");
  for (const letter of "oil") key(w, letter);
}
ok(!isOpen("frmPrefrences") && isOpen("frmCheck"));
equal(w.txtMemo.value, "oiloil", "typed here");
key(w, "Alt+I");
equal(w.SSTab1.value, "&Items");

// What was typed is asked about on the way out, by whatever key.
for (const keys of ["Esc", "Ctrl+W"]) {
  box("Save Changes", null, "Esc");
  key(w, keys);
  ok(isOpen("frmCheck"), keys);
}
box("Save Changes", null, "No");
key(w, "Esc");
ok(!isOpen("frmCheck"));
menu("mnuChecks");
key(win("frmCheck"), "Esc");
ok(!isOpen("frmCheck"), "nothing typed, nothing asked");
equal(log(), []);

// A list after New stands on what was made; Home and End are its first and last row.
menu("mnuAccounts");
const again = win("frmAccounts").grdAccounts;
modal("frmModAccount", function (d) {
  type(d.txtName, "Zinc");
  type(d.cmbType, "Expense");
  key(d, "Ctrl+Enter");
});
key(again, "Insert");
equal(again.text(again.row(), "Name"), "Zinc");
key(again, "Home");
equal(again.row(), 0);
key(again, "End");
equal(again.row(), again.rows - 1);
