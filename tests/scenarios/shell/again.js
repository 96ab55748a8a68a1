// The second morning: the companies of the last days stand in the start window, Enter opens the newest, and the frame
// tells what one asks first.
start();
ok(!win("frmStart").lstRecent.visible, "none yet");
equal(win("frmMain").mnuLists.enabled, false, "all its lists need a company");
newCompany("First");
newCompany("Second");
const insert = "INSERT INTO Transactions (TransNum, Type, Date, Account, Debit, Credit, Amount, Paid, DueDate) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)";
other(insert, 1, "Deposit", "6/1/2026", "0SS", 1250.5, 0, 1250.5, false, null);
other(insert, 2, "Bill", "6/1/2026", "AP1", 0, 60, 60, false, "6/18/2026");
box("Back Up", null, "No");
menu("mnuExit");

start();
const s = win("frmStart");
equal(s.lstRecent.items, ["Second", "First"]);
ok(s.lstRecent.focused, "Enter opens the newest");
shot("frmStart");
key(s.lstRecent, "Enter");
ok(!isOpen("frmStart"));
equal(win("frmMain").caption, "Second - Main Display");

// Help works with and without a company.
box("About Tallymere", null);
menu("mnuAbout");
menu("mnuKeys");
ok(isOpen("frmKeys"));
key(win("frmKeys"), "Esc");

// A moment after a company came up, its figures are there.
openCompany("First");
openCompany("Second");
let figures = "";
for (let row = 0; row < 9; ++row) {
  try { figures += win("frmMain")["figure_" + row].value + " "; } catch (none) { }
}
ok(figures.indexOf("$1,250.50") >= 0, figures);
ok(figures.indexOf("$60.00") >= 0, figures);
shot("frmMain");
equal(log(), []);
