// Passwords, log-in and what each user sees.
function refused(work) {
  try { work(); } catch (e) { return true; }
  return false;
}
start();
newCompany("Locked");
menu("mnuSwitchMode");  // the person becomes Admin at once
ok(refused(function () { menu("mnuRestore"); }), "no restore while others may be at work");
menu("mnuSwitchMode");
equal(rows("SELECT UserMode FROM CompanyInfo")[0].UserMode, "Single");
menu("mnuSwitchMode");
other("INSERT INTO Users (UserName, Password, AR, AP, BankCC, Inventory, Payroll) VALUES ('Karen', '', -1, 0, 0, 0, 0)");
newCompany("Other");

// The log-in presets Admin; what is wrong is said in one way, whichever part it is.
modal("frmLogin", function (w) {
  equal(w.cmbUser.value, "Admin");
  type(w.cmbUser, "");
  box("No User", "Please enter a User name.");
  click(w.cmdLogin);
  type(w.cmbUser, "Nobody");
  box("Access Denied", "Invlaid Login");
  click(w.cmdLogin);
  type(w.cmbUser, "karen");
  type(w.txtPassord, "guess");
  box("Access Denied", "Invlaid Login");
  click(w.cmdLogin);
  type(w.txtPassord, "");
  click(w.cmdLogin);
});
openCompany("Locked");
equal(win("frmMain").caption, "Locked - Main Display");
for (const name of ["mnuSwitchMode", "mnuCompany", "mnuRestore", "mnuUsers", "mnuChecks", "mnuQuickBooks", "mnuPrintChecks"])
  ok(refused(function () { menu(name); }), name + " for Karen");

// Withdrawing closes the company that was being opened; nothing is open then.
file("Company Files (*.cmf)|*.cmf", "Locked.cmf");
modal("frmLogin", function (w) { click(w.SSDBCommand2); });
menu("mnuOpenCommpany");
box("Error", null);
menu("mnuBackup");

// A company password asks for itself in single-user mode only, and takes no other case.
newCompany("Kept");
other("UPDATE CompanyInfo SET Password = 'Secret'");
newCompany("Third");
file("Company Files (*.cmf)|*.cmf", "Kept.cmf");
modal("frmPassword", function (w) {
  type(w.Text1, "secret");
  box("Password", "Incorrect Password");
  click(w.cmdOk);
  click(w.cmdCancel);
});
menu("mnuOpenCommpany");
box("Error", null);
menu("mnuBackup");
ok(log().length >= 2);
