// What goes wrong on the way into a company and out of it: nobody is left with a half-open one.
const companies = "Company Files (*.cmf)|*.cmf", backups = "Backup Files (*.cbk)|*.cbk";

// A file that is no company, chosen in the start window: the box, and the window still there.
start();
file(companies, "Model.mdb");
box("Error", null);
click(win("frmStart").cmdOK);
ok(isOpen("frmStart"));
equal(log().length, 1);

newCompany("Birch & Sons");
equal(win("frmMain").caption, "Birch & Sons - Main Display");
menu("mnuNewCompany");
click(win("frmCreate").cmdCancel);
equal(rows("SELECT Name FROM CompanyInfo"), [{Name: "Birch & Sons"}], "a cancelled frmCreate leaves the company current");
menu("mnuSwitchMode");
newCompany("Other");
box("Help", "Please Contact Quillbrook Software for Help or Tech Support.");
tool("btnHelp");

// Withdrawn at the log-in: the company that was open went before, and nothing is open now.
file(companies, "Birch & Sons.cmf");
modal("frmLogin", function (w) {
  type(w.cmbUser, "admin");  // names are found in any case
  click(w.SSDBCommand2);
});
menu("mnuOpenCommpany");
ok(isOpen("frmStart") && !win("frmMain").mnuFile.enabled && !win("frmMain").Toolbar1.enabled);
equal(win("frmMain").caption, "Main Display");
modal("frmLogin", function (w) { click(w.cmdLogin); });
openCompany("Birch & Sons");

// Who asked for a backup on the way out and did not get it is not sent away without one.
box("Back Up", "Do you want to Back up your data?", "Yes");
file(backups, "no such folder/x.cbk");
box("Error", null, null, "no such folder");  // which file
menu("mnuExit");
ok(isOpen("frmMain"));

// So it is with one who turns back at the question, and one who asked for a backup and gave it no name.
for (const answer of ["Cancel", "Esc"]) {
  box("Back Up", null, answer);
  tool("btnExit");
  ok(isOpen("frmMain") && win("frmMain").mnuAction.enabled, answer);
}
box("Back Up", null, "Enter");
file(backups, null);
close(win("frmMain"));
ok(isOpen("frmMain") && win("frmMain").mnuAction.enabled);
box("Back Up", "Do you want to Back up your data?", "No");
tool("btnExit");
ok(!isOpen("frmMain"));
