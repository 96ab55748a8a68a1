// A company into a backup and back; a backup that is none costs nothing.
const backups = "Backup Files (*.cbk)|*.cbk";

function post(number, amount) {
  other("INSERT INTO Transactions (TransNum, Date, Account, Debit, Amount) VALUES (?, ?, ?, ?, ?)", number, "3/15/2026",
        "0SS", amount, amount);
}

start();
newCompany("Acme");
const main = win("frmMain");
post(1, 125.5);

// Cancelled, then made: points and commas go from a name without the extension.
file(backups, null);
menu("mnuBackup");
file(backups, "Acme, v1.0");
box("Backup", "Backup Successful.");
tool("btnBackup");

// Later work is taken back by the restore.
post(2, 80.25);
equal(rows("SELECT TransNum FROM Transactions").length, 2);
file(backups, null);
menu("mnuRestore");
equal(rows("SELECT TransNum FROM Transactions").length, 2, "a cancelled restore");
// A company is replaced when its user says so, and not before.
file(backups, "Acme v10.cbk");
box("Restore", 'Replace "Acme" by the backup?', "No");
menu("mnuRestore");
equal(rows("SELECT TransNum FROM Transactions").length, 2, "a restore that was thought better of");
file(backups, "Acme v10.cbk");
box("Restore", 'Replace "Acme" by the backup?', "Yes");
box("Restore", "Restore Successful.");
menu("mnuRestore");
equal(ledger(1), [{TransNum: 1, Date: "3/15/2026", Account: "0SS", Debit: 125.5, Amount: 125.5, Cleared: false,
                   Paid: false, Taxable: false}]);
equal(ledger(2), []);
equal(main.caption, "Acme - Main Display");

// What is no backup, what is one of another program, and what is not there: the box and the log line, the company open.
post(3, 10);
for (const wrong of ["Acme.cmf", "Model.mdb", "ErrorLog.txt", "nowhere.cbk"]) {
  const lines = log().length;
  file(backups, wrong);
  box("Error", null);
  menu("mnuRestore");
  equal(log().length, lines + 1, wrong);
  ok(log()[lines].includes(" : frmMain : mnuRestore_Click : "), log()[lines]);
  equal(rows("SELECT TransNum, Amount FROM Transactions ORDER BY TransNum"),
        [{TransNum: 1, Amount: 125.5}, {TransNum: 3, Amount: 10}], "after " + wrong);
}
menu("mnuSwitchMode");  // still a company that can be written
menu("mnuSwitchMode");

// Restored under another name from the start window; the first company is as it was.
box("Back Up", "Do you want to Back up your data?", "No");
menu("mnuExit");
start();
option(win("frmStart").optStart, 2);
input("Restore Name", "Please Enter the File Name for the Company to restore to.", "Second");
file(backups, "Acme v10.cbk");
box("Restore", "Restore Successful.");
click(win("frmStart").cmdOK);
ok(!isOpen("frmStart") && win("frmMain").mnuAction.enabled);
equal(win("frmMain").caption, "Second - Main Display");
equal(win("frmMain").mnuSwitchMode.caption, "Switch to Multi-User Mode");
equal(rows("SELECT TransNum FROM Transactions"), [{TransNum: 1}]);
openCompany("Acme");
equal(rows("SELECT TransNum FROM Transactions").length, 2);
openCompany("Second");
equal(win("frmMain").caption, "Second - Main Display");

// From the start window an existing company is asked about as well, and no name leads elsewhere.
function restoreAtStart(name) {
  option(win("frmStart").optStart, 2);
  input("Restore Name", "Please Enter the File Name for the Company to restore to.", name);
}
box("Back Up", null, "No");
menu("mnuExit");
start();
for (const name of ["../Acme", "a\tb", "..", "   ", "nul"]) {
  restoreAtStart(name);
  box("No Name", null);
  click(win("frmStart").cmdOK);
}
restoreAtStart("Acme");
file(backups, "Acme v10.cbk");
box("Restore", 'Replace "Acme" by the backup?', "No");
click(win("frmStart").cmdOK);
ok(isOpen("frmStart") && !win("frmMain").mnuAction.enabled);
openCompany("Acme");
equal(rows("SELECT TransNum FROM Transactions").length, 2, "untouched");

// A backup that can go nowhere: the box, and nothing lost.
for (const wrong of ["Acme.cmf.cbk/..", "nowhere/a.cbk"]) {
  file(backups, wrong);
  box("Error", null);
  menu("mnuBackup");
}
equal(rows("SELECT TransNum FROM Transactions").length, 2);
