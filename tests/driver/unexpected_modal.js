// fails with: unexpected_modal\.js:8: unexpected modal / expected none / seen modal\("frmLogin"\)
start();
newCompany("Acme");
menu("mnuSwitchMode");
box("Back Up", null, "No");
menu("mnuExit");
start();
openCompany("Acme");
