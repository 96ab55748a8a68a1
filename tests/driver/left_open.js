// fails with: left_open\.js:5: frmLogin was left open
start(); newCompany("Acme"); menu("mnuSwitchMode");
box("Back Up", null, "No"); menu("mnuExit");
start();
modal("frmLogin", function (w) { type(w.txtPassord, "x"); });
openCompany("Acme");
