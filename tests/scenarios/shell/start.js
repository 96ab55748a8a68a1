// How the program comes up: no company, a new one, a name that is taken, another company, and the way out.
function refused(work) {
  try { work(); } catch (e) { return true; }
  return false;
}
start();
for (const name of ["mnuNewCompany", "mnuBackup", "mnuRBasic", "mnuPrefrences"])
  ok(refused(function () { menu(name); }), name + " without a company");
ok(refused(function () { tool("btnBackup"); }), "the toolbar without a company");

// A cancelled file dialog leaves frmStart up; so does a file that is no company, after the error box.
file("Company Files (*.cmf)|*.cmf");
click(win("frmStart").cmdOK);
file("Company Files (*.cmf)|*.cmf", "Model.mdb");
box("Error", null);
click(win("frmStart").cmdOK);
ok(isOpen("frmStart"));
equal(log().length, 1);
ok(log()[0].includes("frmMain") || log()[0].includes("frmStart"), log()[0]);

option(win("frmStart").optStart, 0);
click(win("frmStart").cmdOK);
ok(!isOpen("frmStart"), "frmStart goes when frmCreate comes");
box("No Name", "Please Enter a Name For the New Company");
click(win("frmCreate").cmdOk);
ok(isOpen("frmCreate"));
type(win("frmCreate").txtName, "Acme");
click(win("frmCreate").cmdOk);
ok(!isOpen("frmCreate"));
equal(rows("SELECT Name, UserMode FROM CompanyInfo"), [{Name: "Acme", UserMode: "Single"}]);
equal(win("frmMain").caption, "Acme - Main Display");

// The same name again opens nothing and closes frmCreate; the company that was current stays.
menu("mnuNewCompany");
type(win("frmCreate").txtName, "Acme");
box("Error", "Company name already exisits.");
click(win("frmCreate").cmdOk);
ok(!isOpen("frmCreate"));
equal(win("frmMain").caption, "Acme - Main Display");
menu("mnuNewCompany");
click(win("frmCreate").cmdCancel);

newCompany("Birch & Sons");
equal(win("frmMain").caption, "Birch & Sons - Main Display");
openCompany("Acme");
equal(rows("SELECT Name FROM CompanyInfo")[0].Name, "Acme");

// A file that does not open leaves the company that is open.
file("Company Files (*.cmf)|*.cmf", "Accounts.mdb");
box("Error", null);
menu("mnuOpenCommpany");
equal(win("frmMain").caption, "Acme - Main Display");
menu("mnuSwitchMode");
equal(rows("SELECT UserMode FROM CompanyInfo")[0].UserMode, "Multi", "still Acme, still with its sets");

box("Help", "Please Contact Quillbrook Software for Help or Tech Support.");
tool("btnHelp");

box("Back Up", "Do you want to Back up your data?", "No");
tool("btnExit");
