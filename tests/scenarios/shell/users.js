// Two modes of one company: who is asked to log in, and what each user then sees.
// As the users' form keeps their passwords "boss" and "bee".
const kept = {
  Admin: "$argon2id$v=19$m=65536,t=2,p=1$ucBX7r0ZCMIjIeXYhdf5Dw$f8FkbKsvkld8FkITFX64KfclpN1idz1adAGp14zaznc",
  Bob: "$argon2id$v=19$m=65536,t=2,p=1$FnFhUd9Ww6LSugxEtKbN1g$mi3B96jWwhZ7wjADwh7MY/FLwH+O/f3dD/91cicayXo"
};

function leave() {
  box("Back Up", "Do you want to Back up your data?", "No");
  menu("mnuExit");
}

function logIn(user, password) {
  return function (w) {
    equal(w.caption, "User Login");
    equal(w.cmbUser.value, "Admin", "offered first");
    pick(w.cmbUser, user);
    type(w.txtPassord, password);
    click(w.cmdLogin);
  };
}

function visible(names) {
  const frame = win("frmMain");
  return names.filter(function (name) { return frame[name].visible; });
}

start();
newCompany("Acme");
let main = win("frmMain");
menu("mnuSwitchMode");
equal(main.mnuSwitchMode.caption, "Switch to Single-User Mode");
equal(rows("SELECT UserMode FROM CompanyInfo"), [{UserMode: "Multi"}]);
ok(main.mnuUsers.visible, "whoever switches is Admin at once");
other("UPDATE Users SET Password = ? WHERE UserName = ?", kept.Admin, "Admin");
other("INSERT INTO Users (UserName, Password, AR, AP, BankCC, Inventory, Payroll) VALUES (?, ?, ?, ?, ?, ?, ?)", "Bob",
      kept.Bob, true, false, false, true, false);
leave();

// Turned away: the company is closed again and the start window stands.
start();
modal("frmLogin", function (w) {
  equal(w.cmbUser.items, ["Admin", "Bob"]);
  type(w.txtPassord, "BOSS");
  box("Access Denied", "Invlaid Login");
  click(w.cmdLogin);
  type(w.cmbUser, "Nobody");
  box("Access Denied", "Invlaid Login");
  click(w.cmdLogin);
  type(w.cmbUser, "");
  box("No User", "Please enter a User name.");
  click(w.cmdLogin);
  ok(w.cmbUser.focused);
  click(w.SSDBCommand2);
});
openCompany("Acme");
ok(isOpen("frmStart"));
equal(win("frmMain").caption, "Main Display");

// The administrator sees everything, but in this mode restores nothing.
modal("frmLogin", logIn("Admin", "boss"));
openCompany("Acme");
main = win("frmMain");
equal(main.caption, "Acme - Main Display");
const admins = ["mnuUsers", "mnuPrefrences", "mnuPL", "mnuBalance", "mnuImport", "mnuJournal", "mnuFind", "mnuSavedReports"];
equal(visible(admins), admins);
ok(main.mnuBackup.enabled && main.mnuFile.enabled && main.mnuSwitchMode.enabled);
ok(!main.mnuRestore.enabled && !main.mnuCompany.enabled, "out of reach in multi-user mode");
leave();

// A user sees the groups of the flags that are set.
start();
modal("frmLogin", logIn("Bob", "bee"));
openCompany("Acme");
main = win("frmMain");
equal(visible(admins), []);
equal(visible(["mnuInvoices", "mnuBill", "mnuChecks", "mnuInventory", "mnuPayroll"]), ["mnuInvoices", "mnuInventory"]);
equal(visible(["btnInvoices", "btnChecks", "btnBills", "btnPayments", "btnCustomers", "btnVendors", "btnItems", "btnTime"]),
      ["btnInvoices", "btnCustomers", "btnItems"]);
ok(!main.mnuSwitchMode.enabled && !main.mnuRestore.enabled && !main.mnuCompany.enabled);

// What is taken from a user at work is gone at the next command.
other("UPDATE Users SET Inventory = ? WHERE UserName = ?", false, "Bob");
menu("mnuHistory");
equal(visible(["mnuInvoices", "mnuInventory", "btnItems"]), ["mnuInvoices"]);
other("UPDATE Users SET Inventory = ? WHERE UserName = ?", true, "Bob");
leave();

// Back to one user: all of it again, and no log-in next time.
start();
modal("frmLogin", logIn("Admin", "boss"));
openCompany("Acme");
menu("mnuSwitchMode");
main = win("frmMain");
equal(main.mnuSwitchMode.caption, "Switch to Multi-User Mode");
ok(main.mnuRestore.enabled, "a restore is in reach again");
leave();
start();
openCompany("Acme");
equal(visible(["btnInvoices", "btnChecks", "btnBills", "mnuPayroll"]).length, 4);
equal(rows("SELECT UserMode FROM CompanyInfo"), [{UserMode: "Single"}]);
equal(rows("SELECT UserName, AR, AP FROM Users ORDER BY UserName"),
      [{UserName: "Admin", AR: true, AP: true}, {UserName: "Bob", AR: true, AP: false}]);
equal(log(), []);
