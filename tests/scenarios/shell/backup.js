// A backup, its way back, and backups that are no good.
start();
newCompany("Acme");
const filter = "Backup Files (*.cbk)|*.cbk";
file(filter);
menu("mnuBackup");  // cancelled: nothing said
file(filter, "Mon, 3.17");
box("Backup", "Backup Successful.");
menu("mnuBackup");
other("UPDATE CompanyInfo SET Memo = 'after the backup'");

file(filter, "Model.mdb");
box("Error", null);
menu("mnuRestore");
equal(rows("SELECT Memo FROM CompanyInfo")[0].Memo, "after the backup", "an unsound backup changes nothing");
menu("mnuSwitchMode");  // the company is open with its sets
menu("mnuSwitchMode");

file(filter, "Mon 317.cbk");
box("Restore", "Restore Successful.");
menu("mnuRestore");
equal(rows("SELECT Memo FROM CompanyInfo")[0].Memo || "", "");
menu("mnuSwitchMode");
menu("mnuSwitchMode");

// On the way out: the same backup, and no leaving without it when it fails.
box("Back Up", "Do you want to Back up your data?", "Yes");
file(filter, "no such folder/x.cbk");
box("Error", null);
menu("mnuExit");
ok(isOpen("frmMain"));
box("Back Up", "Do you want to Back up your data?", "Yes");
file(filter, "last.cbk");
box("Backup", "Backup Successful.");
menu("mnuExit");
ok(!isOpen("frmMain"));

// From the start, under a name of its own.
start();
option(win("frmStart").optStart, 2);
input("Restore Name", "Please Enter the File Name for the Company to restore to.", "Copy");
file(filter, "last.cbk");
box("Restore", "Restore Successful.");
click(win("frmStart").cmdOK);
ok(!isOpen("frmStart"));
equal(rows("SELECT Name FROM CompanyInfo")[0].Name, "Acme");
