// Users, company info and colours.
start();
newCompany("Acme");
let main = win("frmMain");

// Company info: the stored password never shows; untouched it stays.
menu("mnuCompany");
let i = win("frmInfo");
equal(i.caption, "Company Info");
shot("frmInfo");
type(i.txtName, "Acme Rockets");
pick(i.cmbFiscal, "July");
type(i.txtPassword, "secret");
box("No Match", "Your password and password confirmation does not match");
click(i.cmdOk);
ok(i.txtPassword.focused);
type(i.txtRePassword, "secret");
type(i.txtPassword, "secret");
click(i.cmdOk);
ok(!isOpen("frmInfo"));
const kept = rows("SELECT Password FROM CompanyInfo")[0].Password;
ok(kept.indexOf("$argon2id$") === 0);
menu("mnuCompany");
i = win("frmInfo");
equal([i.txtName.value, i.cmbFiscal.value, i.txtPassword.value], ["Acme Rockets", "July", ""]);
type(i.txtFederalID, "12-3456789");
click(i.cmdOk);
equal(rows("SELECT FedID, FiscalMonth, Password FROM CompanyInfo"), [{FedID: "12-3456789", FiscalMonth: "July", Password: kept}]);

// Colours: one is picked, the main window follows; Cancel leaves all as it was.
menu("mnuColors");
let c = win("frmColors");
shot("frmColors");
modal("frmColorPicker", function (p) {
  equal(p.txtColor.value, "E3F0E4", "of 15003875");
  shot("frmColorPicker");
  type(p.txtColor, "00FF00");
  click(p.cmdOk);
});
click(c.Pick_1);
const before = rows("SELECT * FROM Colors");
click(c.cmdCancel);
equal(rows("SELECT * FROM Colors"), before);
menu("mnuColors");
c = win("frmColors");
modal("frmColorPicker", function (p) {
  type(p.txtColor, "00FF00");
  click(p.cmdOk);
});
click(c.Pick_1);
click(c.SSDBCommand1);
equal(rows("SELECT Color FROM Colors WHERE Items = 'CheckBack'"), [{Color: 65280}], "green stays green");

// Users.
menu("mnuUsers");
const u = win("frmUsers");
const g = u.SSDBGrid1;
equal([u.caption, g.rows, g.text(0, 0), g.text(0, 1)], ["Users", 1, "Admin", "none"]);
modal("frmModUser", function (m) {
  type(m.txtUser, "admin");
  box("Duplicate User Name", "User Name already exisits. Try a differenet one.");
  click(m.cmdOk);
  type(m.txtUser, "Ann");
  type(m.txtPassword, "x");
  box("No Match", "Your passwords do not match. Please Re-Type your passwords.");
  click(m.cmdOk);
  type(m.txtPassword, "x");
  type(m.txtPassword2, "x");
  check(m.chkAR, true);
  shot("frmModUser");
  click(m.cmdOk);
});
click(u.cmdNew);
equal([g.rows, g.text(1, 0), g.text(1, 1)], [2, "Ann", ""]);
shot("frmUsers");
g.select([1]);
modal("frmModUser", function (m) {
  equal([m.txtUser.value, m.txtPassword.value, m.chkAR.checked, m.chkPay.checked], ["Ann", "", true, false]);
  check(m.chkPay, true);
  click(m.cmdOk);
});
click(u.cmdEdit);
equal(rows("SELECT AR, AP, Payroll FROM Users WHERE UserName = 'Ann'"), [{AR: true, AP: false, Payroll: true}]);
g.select([0]);
box("Access Denied", "You cannot delete the Administrator.");
click(u.cmdDelete);
g.select([1]);
box("Confirm Delete", "Are you sure you want to delete \"Ann\"?", "No");
click(u.cmdDelete);
equal(g.rows, 2);
box("Confirm Delete", "Are you sure you want to delete \"Ann\"?", "Yes");
click(u.cmdDelete);
equal(g.rows, 1);

// Who takes a right from himself loses it at once.
menu("mnuSwitchMode");
ok(main.mnuPayroll.visible);
g.select([0]);
modal("frmModUser", function (m) {
  check(m.chkPay, false);
  click(m.cmdOk);
});
click(u.cmdEdit);
ok(!main.mnuPayroll.visible);
equal(log(), []);

// Preferences: pages, one Apply for all of them.
menu("mnuSwitchMode");
menu("mnuPrefrences");
let r = win("frmPrefrences");
equal([r.caption, r.imgSettings.items[0], r.chkToolBar.checked], ["Prefrences", "Shortcut Bar", true]);
check(r.chkToolBar, false);
pick(r.imgSettings, "Sales Tax");
option(r.optSalesBase, 0);
pick(r.imgSettings, "Finance Charges");
type(r.txtAPR, "a lot");
box("No Value", null);
click(r.cmdApply);
type(r.txtAPR, "18%");
shot("frmPrefrences");
pick(r.imgSettings, "Invoices");
shot("frmPrefrences-invoices");
file(null, "nothing.jpg");
box("Company Logo", "This file holds no picture that can be read.");
click(r.SSDBCommand1);
click(r.cmdClose);
ok(!main.Toolbar1.visible, "at once");
equal(rows("SELECT State FROM GeneralPrefs WHERE Preference IN ('SalesBase', 'FinanceAPR', 'DefaultBank') ORDER BY Preference"),
      [{State: "0SS"}, {State: "18%"}, {State: "Cash"}]);
menu("mnuPrefrences");
r = win("frmPrefrences");
check(r.chkToolBar, true);
click(r.cmdCancel);
ok(!main.Toolbar1.visible, "nothing was applied");
