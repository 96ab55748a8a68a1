// From an empty folder to a company, by each option of the start window, and out again.
const companyMenus = ["mnuAction", "mnuOptions", "mnuWindow", "mnuReports", "mnuBackup", "mnuRestore",
                      "mnuFile"];

function enabledMenus(frame) { return companyMenus.filter(function (name) { return frame[name].enabled; }); }

function exit(answer) {
  const asked = answer !== undefined;
  if (asked) box("Back Up", "Do you want to Back up your data?", answer);
  close(win("frmMain"));
  ok(!isOpen("frmMain"), "the frame went");
}

start();
let main = win("frmMain");
equal(main.caption, "Main Display");
equal(win("frmStart").caption, "Start");
equal(enabledMenus(main), [], "menus without a company");
ok(!main.Toolbar1.enabled, "the toolbar waits for a company");

// Whoever cancels is still at the start window.
option(win("frmStart").optStart, 1);
file("Company Files (*.cmf)|*.cmf", null);
click(win("frmStart").cmdOK);
option(win("frmStart").optStart, 2);
input("Restore Name", "Please Enter the File Name for the Company to restore to.", "Copied");
file("Backup Files (*.cbk)|*.cbk", null);
click(win("frmStart").cmdOK);
ok(isOpen("frmStart"));
equal(main.caption, "Main Display");

// Nothing was chosen, so nothing is asked on the way out. frmCreate cancelled leaves the frame alone.
option(win("frmStart").optStart, 0);
click(win("frmStart").cmdOK);
ok(!isOpen("frmStart"), "frmStart goes when frmCreate comes");
click(win("frmCreate").cmdCancel);
equal(enabledMenus(main), []);
exit();

// A company needs a name.
start();
main = win("frmMain");
option(win("frmStart").optStart, 0);
click(win("frmStart").cmdOK);
box("No Name", "Please Enter a Name For the New Company");
click(win("frmCreate").cmdOk);
for (const bad of ["a/b", "..", "con", "x".repeat(201)]) {
  type(win("frmCreate").txtName, bad);
  box("No Name", "This cannot be a company's name.");
  click(win("frmCreate").cmdOk);
}
type(win("frmCreate").txtName, "   ");
box("No Name", "Please Enter a Name For the New Company");
click(win("frmCreate").cmdOk);
type(win("frmCreate").txtName, "Acme");
key(win("frmCreate").txtName, "Tab");
click(win("frmCreate").cmdOk);
ok(!isOpen("frmCreate") && !isOpen("frmStart"));
equal(main.caption, "Acme - Main Display");
equal(enabledMenus(main), companyMenus);
ok(main.Toolbar1.enabled);
equal(main.mnuSwitchMode.caption, "Switch to Multi-User Mode");

// What a new company holds, and what it does not.
equal(rows("SELECT Name, UserMode, Password FROM CompanyInfo"), [{Name: "Acme", UserMode: "Single", Password: null}]);
equal(rows("SELECT UserName FROM Users"), [{UserName: "Admin"}]);
equal(rows("SELECT DISTINCT OpeningDate FROM Accounts").length, 1, "every category opens today");
ok(rows("SELECT * FROM GeneralPrefs").length > 0 && rows("SELECT * FROM Colors").length === 4);
for (const table of ["Transactions", "Customers", "Vendors", "Items", "Employees", "Terms", "PaymentMethod", "VIA", "Class"]) {
  equal(rows("SELECT * FROM " + table), [], table + " of a new company");
}

// A name that is taken: nothing replaced, nothing opened.
other("UPDATE CompanyInfo SET Name = ?", "Acme Hardware");
box("Error", "Company name already exisits.");
newCompany("Acme");
ok(!isOpen("frmCreate"));
equal(main.caption, "Acme - Main Display");
equal(rows("SELECT Name FROM CompanyInfo"), [{Name: "Acme Hardware"}]);

// A second company, and back to the first.
newCompany("Zenith");
equal(main.caption, "Zenith - Main Display");
equal(rows("SELECT Name FROM CompanyInfo"), [{Name: "Zenith"}]);
openCompany("Acme");
equal(main.caption, "Acme - Main Display");
equal(rows("SELECT Name FROM CompanyInfo"), [{Name: "Acme Hardware"}]);

// A file that is no company: the box, the log line, and the company that was open is open still.
equal(log(), []);
box("Error", null);
openCompany("ErrorLog.txt");
equal(main.caption, "Acme - Main Display");
ok(log().length === 1 && log()[0].includes(" : frmMain : mnuOpenCommpany_Click : "), log());

// The preference decides whether the toolbar shows, a moment after the company came up.
ok(main.Toolbar1.visible);
other("UPDATE GeneralPrefs SET State = ? WHERE Preference = ?", "No", "ToolBarVisible");
openCompany("Acme");
ok(!main.Toolbar1.visible);

exit("No");
start();
openCompany("Zenith");
ok(!isOpen("frmStart"));
equal(win("frmMain").caption, "Zenith - Main Display");
box("Back Up", "Do you want to Back up your data?", "Yes");
file("Backup Files (*.cbk)|*.cbk", "leaving.cbk");
box("Backup", "Backup Successful.");
menu("mnuExit");
ok(!isOpen("frmMain"));
