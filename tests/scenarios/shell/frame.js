// The frame's own commands: what can be used when, and what stays greyed.
function refusal(command) {
  try {
    command();
  } catch (error) {
    return error.message;
  }
  return "";
}

start();
equal(refusal(function () { menu("mnuBackup"); }), "mnuBackup is disabled");
equal(refusal(function () { menu("mnuExit"); }), "mnuFile is disabled");
equal(refusal(function () { tool("btnBackup"); }), "btnBackup is disabled");
equal(refusal(function () { menu("mnuNoSuch"); }).indexOf("no command mnuNoSuch"), 0);

newCompany("Acme");
const main = win("frmMain");
equal(main.mnuOpenCommpany.caption, "&Open Company");
equal(main.mnuPrefrences.caption, "&Prefernces.....");
equal(main.mnnuPrint1099.caption, "Print 109&9s");
ok(main.mnuHelp.enabled && main.mnuKeys.enabled, "help is there");
equal(main.btnAccounts.caption, "Categories");

box("Help", "Please Contact Quillbrook Software for Help or Tech Support.");
tool("btnHelp");

// Closing the frame asks like the command does.
box("Back Up", "Do you want to Back up your data?", "Yes");
file("Backup Files (*.cbk)|*.cbk", "last");
box("Backup", "Backup Successful.");
tool("btnExit");
ok(!isOpen("frmMain") && exists("last.cbk"));
equal(log(), []);
equal(rows("SELECT Name FROM CompanyInfo"), [{Name: "Acme"}]);
