// A company with a password of its own asks for it, and lets nobody in without.
// As the company form keeps "Rain7".
const kept = "$argon2id$v=19$m=65536,t=2,p=1$dTrHdSwrJEe3UBDQ2yZ5gA$fYK29lcZ72zAe37Eem8x8PqukhQjs8sTMcmSuFRZC54";

start();
newCompany("Acme");
other("UPDATE CompanyInfo SET Password = ?", kept);
box("Back Up", null, "No");
menu("mnuExit");

start();
modal("frmPassword", function (w) {
  equal(w.caption, "Password Required");
  click(w.cmdCancel);
});
openCompany("Acme");
ok(isOpen("frmStart"), "turned away");
equal(win("frmMain").caption, "Main Display");
ok(!win("frmMain").mnuAction.enabled && !win("frmMain").Toolbar1.enabled);

modal("frmPassword", function (w) {
  for (const wrong of ["", "rain7", "Rain7 "]) {
    type(w.Text1, wrong);
    box("Password", "Incorrect Password");
    click(w.cmdOk);
  }
  ok(!w.cmdOk.enabled, "after three misses it waits");
  click(w.cmdCancel);
});
openCompany("Acme");
modal("frmPassword", function (w) {
  ok(!w.cmdOk.enabled, "closing the window is no way round");
  for (const until = Date.now() + 2100; Date.now() < until;);
  type(w.Text1, "Rain7");
  click(w.cmdOk);
});
openCompany("Acme");
ok(!isOpen("frmStart"));
equal(win("frmMain").caption, "Acme - Main Display");
ok(win("frmMain").mnuRestore.enabled);
equal(log(), []);
equal(rows("SELECT UserMode FROM CompanyInfo"), [{UserMode: "Single"}]);

// Turned away while another company is open: none is open then, and nothing that works on one can be reached.
newCompany("Beta");
menu("mnuSwitchMode");
modal("frmLogin", function (w) { click(w.cmdLogin); });
openCompany("Beta");
equal(win("frmMain").mnuSwitchMode.caption, "Switch to Single-User Mode");
modal("frmPassword", function (w) { click(w.cmdCancel); });
openCompany("Acme");
ok(isOpen("frmStart"), "the way on");
equal(win("frmMain").caption, "Main Display");
for (const name of ["mnuAction", "mnuFile", "mnuBackup", "mnuRestore"]) ok(!win("frmMain")[name].enabled, name);
ok(!win("frmMain").Toolbar1.enabled);
equal(win("frmMain").mnuSwitchMode.caption, "Switch to Multi-User Mode");
shot("turned-away");
modal("frmLogin", function (w) { click(w.SSDBCommand2); });
openCompany("Beta");
ok(isOpen("frmStart"));
modal("frmPassword", function (w) {
  type(w.Text1, "Rain7");
  click(w.cmdOk);
});
openCompany("Acme");
equal(win("frmMain").caption, "Acme - Main Display");
ok(win("frmMain").mnuRestore.enabled);
equal(log(), []);
