// The list of employees and the form that makes and changes one, with its earnings, adjustments and other taxes.
start();
newCompany("Acme");
other("INSERT INTO PayrollItems (Name, Type, PayType) VALUES ('Hourly', 'Wage', 'Hourly')");
other("INSERT INTO PayrollItems (Name, Type, DefaultRate, DefaultLimit) VALUES ('401k', 'Deduction', '4%', 245000000)");
other("INSERT INTO PayrollItems (Name, Type, DefaultRate) VALUES ('Training', 'Other Tax', '0.1%')");
other("INSERT INTO PayrollItems (Name, Type, TaxType, SState) VALUES ('IL Withholding', 'State Tax', 'State Withholding', 'IL')");
other("INSERT INTO PayHistory (Employee, PayPeriod, PayEndDate, PayCheckDate, Paid) VALUES ('Bo', 'Weekly', '2026-05-29', '2026-06-02', 'Yes')");
menu("mnuEmployee");
const l = win("frmEmployees"), g = l.grdEmployees;
equal([l.caption, g.columns], ["Employees", ["Social Security #", "Name", "Key"]]);
function command(item) {
  click(l.cmdAction);
  popup(item);
}
function found(ssn) { return rows("SELECT * FROM Employees WHERE SSNum = ?", ssn)[0]; }
box("No Selection", "Please Select an Employee to delete");
command("mnuDelEmp");

// A new one: each mistake brings its page to the front.
modal("frmModEmployee", function (m) {
  equal([m.caption, m.cmbPayPeriod.value, m.dteHire.value, m.dteRelease.enabled, m.txtSSNum.enabled],
        ["New Employee", "BiWeekly", "6/15/2026", false, true]);
  equal([m.chkFUTA.checked, m.chkMedicare.checked, m.chkSS.checked, m.chkSUI.checked, m.chkEarned.checked],
        [true, true, true, true, false]);
  shot("frmModEmployee");
  box("No Entry", "Please fill in a Social Security Number");
  click(m.cmdOk);
  pick(m.SSTab1, "&Earnings");
  m.grdEarnings.set(0, "Wage", "Hourly");
  m.grdEarnings.set(0, "Rate", "18.50");
  box("", "Please Enter a Social Security Number first.");
  m.grdEarnings.row(1);
  equal(m.grdEarnings.row(), 0, "the line waits for a number");
  pick(m.SSTab1, "&Personal");
  type(m.txtSSNum, "987-65-4321");
  pick(m.cmbPrefix, "Ms.");
  type(m.txtName, "Ann O'Brien");
  type(m.txtAddressOne, "12 Oak Street");
  type(m.txtClass, "Office");
  box("No Data", null);
  click(m.cmdOk);
  ok(m.txtFedAllow.focused, "on the page of taxes");
  type(m.txtFedAllow, "1");
  type(m.txtFedWithHolding, "0");
  type(m.txtSAllow, "1");
  type(m.txtSWithHold, "0");
  pick(m.cmbStateLive, "IL");
  box("No Payroll Items", "You have no payroll items for this state. Please make sure you add your payroll items for this state.");
  modal("frmPayrollItems", function (p) {
    equal(p.caption, "PayRoll Items");
    click(p.cmdClose);
  });
  pick(m.cmbStateWorked, "WI");
  pick(m.cmbStateWorked, "IL");
  pick(m.cmbFedStatus, "Single");
  pick(m.cmbSStatus, "Married");
  m.grdOtherTax.set(0, "Tax", "Training");
  shot("frmModEmployee_taxes");
  box("No Value", "Value needed");
  click(m.cmdOk);
  ok(m.txtSickMax.focused);
  equal(m.Label25.value, "Starting Hours as of 6/15/2026");
  ["txtSickMax", "txtSickStart", "txtSickRecur", "txtVacMax", "txtVacRecur", "txtVacStart"].forEach(function (name) {
    type(m[name], "40");
  });
  option(m.optVac, 1);
  shot("frmModEmployee_leave");
  pick(m.SSTab1, "&Earnings");
  m.grdOthers.set(0, "Adjustment", "401k");
  shot("frmModEmployee_earnings");
  click(m.cmdOk);
});
command("mnuNewEmp");
let ann = found("987-65-4321");
equal([ann.Name, ann.Prefix, ann.FedAllow, ann.StateWorked, ann.AccurPayPeriodSick, ann.AccurPayPeriodVac, ann.Class],
      ["Ann O'Brien", "Ms.", 1, "IL", 1, 0, "Office"]);
equal(rows("SELECT SSNum, Wage, Rate FROM EmployeeEarnings WHERE SSNum <> '000'"),
      [{SSNum: "987-65-4321", Wage: "Hourly", Rate: 18.5}]);
equal(rows("SELECT Paid, PayPeriod FROM PayHistory WHERE Employee = 'Ann O''Brien'"), [{Paid: "No", PayPeriod: "BiWeekly"}]);
equal([g.rows, g.text(0, "Social Security #"), g.text(0, "Name")], [1, "987-65-4321", "Ann O'Brien"]);
shot("frmEmployees");

// Free fields, notes on paper; Cancel leaves nothing of what was typed into the grids.
modal("frmModEmployee", function (m) {
  equal([m.caption, m.lblSSNum.value, m.cmbSStatus.value, m.optVac.value], ["Ann O'Brien", "987-65-4321", "Married", "1"]);
  pick(m.SSTab1, "&Notes");
  ok(!m.txtCust1.visible, "a field without a name");
  modal("frmCustFields", function (f) {
    type(f.Text1, "Shirt");
    click(f.cmdOk);
  });
  click(m.cmdDefine);
  equal([m.txtCust1.visible, m.lblCust1.value, m.txtCust2.visible], [true, "Shirt", false]);
  type(m.txtNotes, "Prefers mornings");
  modal("frmPreview", function (p) {
    shot("frmPreview");
    click(p.cmdClose);
  });
  click(m.cmdPrintNotes);
  shot("frmModEmployee_notes");
  pick(m.SSTab1, "&Earnings");
  m.grdEarnings.set(1, "Wage", "Hourly");
  m.grdEarnings.set(1, "Rate", "20");
  click(m.cmdCancel);
});
command("mnuEditEmp");
equal(rows("SELECT * FROM EmployeeEarnings WHERE SSNum = '987-65-4321'").length, 1);
equal(rows("SELECT * FROM EmployeeAdjustments WHERE SSNum = '987-65-4321'").length, 1);

// Opened and saved as it is: nothing is written. The drop-down brings the item's own rate, the row menu takes a row out.
const actions = rows("SELECT COUNT(*) AS n FROM History")[0].n;
modal("frmModEmployee", function (m) { click(m.cmdOk); });
key(g, "Enter");
equal(rows("SELECT COUNT(*) AS n FROM History")[0].n, actions);
modal("frmModEmployee", function (m) {
  pick(m.SSTab1, "&Earnings");
  rightclick(m.grdOthers, 0);
  popup("mnuDeleteAdjust");
  equal(m.grdOthers.rows, 0);
  m.grdEarnings.set(1, "Wage", "Hourly");
  rightclick(m.grdEarnings, 1);
  popup("mnuDelEarning");
  equal(m.grdEarnings.rows, 1);
  pick(m.SSTab1, "&Personal");
  type(m.txtSSNum, "987-65-0001");
  type(m.txtName, "Ann Day");
  check(m.chkReleased, true);
  ok(m.dteRelease.enabled);
  date(m.dteRelease, "6/1/2026");
  click(m.cmdOk);
});
g.dblclick(0);
equal([g.rows, rows("SELECT * FROM EmployeeAdjustments WHERE SSNum <> '000'").length], [0, 0], "released, and out of the list");
check(l.chkReleased, true);
equal([g.rows, g.text(0, "Key"), g.style(0)], [1, "987-65-0001", "Dormant"]);
equal(rows("SELECT Employee FROM PayHistory ORDER BY RowKey"), [{Employee: "Bo"}, {Employee: "Ann Day"}]);

// An open time sheet follows the number; another user's work is not lost.
menu("mnuEmployee");
modal("frmModEmployee", function (m) {
  check(m.chkReleased, false);
  click(m.cmdOk);
});
command("mnuEditEmp");
tool("btnTime");
const t = win("frmTimeSheet");
pick(t.cmbEmployee, "Ann Day");
menu("mnuEmployee");
modal("frmModEmployee", function (m) {
  other("UPDATE Employees SET Phone = 'theirs' WHERE Name = 'Ann Day'");
  type(m.txtPhone, "mine");
  box("Data has changed", null);
  click(m.cmdOk);
  equal(m.txtPhone.value, "theirs");
  type(m.txtSSNum, "987-65-0002");
  click(m.cmdOk);
});
command("mnuEditEmp");
equal(t.lblSSNum.value, "987-65-0002");
t.grdTimeSheet.set(0, "Mon 15", "8");
t.grdTimeSheet.set(0, "Payroll Item", "Hourly");
click(t.cmdOk);
equal(rows("SELECT SSNum FROM Time20260614"), [{SSNum: "987-65-0002"}]);

// Deleted beside the open list and beside the open form.
modal("frmModEmployee", function (m) {
  other("DELETE FROM Employees");
  other("DELETE FROM EmployeeEarnings WHERE SSNum = '987-65-0002'");
  type(m.txtPhone, "555");
  box("Data has changed", "Another user has deleted this employee.");
  click(m.cmdOk);
  equal(m.caption, "New Employee");
  click(m.cmdOk);
});
command("mnuEditEmp");
equal(rows("SELECT SSNum, Wage FROM EmployeeEarnings WHERE SSNum <> '000'"), [{SSNum: "987-65-0002", Wage: "Hourly"}]);
box("Confirm Delete", "Are you sure you want to delete \"Ann Day\"", "Yes", "1 time sheet line");
command("mnuDelEmp");
equal([g.rows, rows("SELECT * FROM Time20260614").length, rows("SELECT * FROM PayHistory").length], [0, 0, 1]);
equal(log(), []);
