// fails with: inside_modal\.js:8: the user / expected "Nobody" / seen "Admin"
start();
newCompany("Acme");
menu("mnuSwitchMode");
box("Back Up", null, "No"); menu("mnuExit");
start();
modal("frmLogin", function (w) {
  equal(w.cmbUser.value, "Nobody",
        "the user");
});
openCompany("Acme");
