// The list of payroll items and the form that makes and changes one: a frame for each type, ticks, and what hides what.
start();
newCompany("Acme");
other("INSERT INTO Vendors (Name) VALUES ('State of Illinois')");
menu("mnuPayItems");
const l = win("frmPayrollItems"), g = l.grdPayItems;
equal([l.caption, g.columns, g.rows], ["PayRoll Items", ["Name", "Type"], 6]);
function command(item) {
  click(l.cmdAction);
  popup(item);
}
function place(name) {
  for (let row = 0; row < g.rows; ++row) if (g.text(row, "Name") === name) return row;
  return -1;
}
function open(name, work) {
  g.select([place(name)]);
  modal("frmModPayItem", work);
  command("mnuEditPayroll");
}
function item(name) { return rows("SELECT * FROM PayrollItems WHERE Name = ?", name)[0]; }
function ticked(table, field, name) {
  return rows("SELECT * FROM " + table + " WHERE Name = ? AND Selected <> 0 ORDER BY RowKey", name).map(function (row) { return row[field]; });
}

// A wage; a federal tax cannot be made.
modal("frmModPayItem", function (m) {
  equal([m.caption, m.fraBlank.visible], ["New Payroll Item", true]);
  type(m.txtName, "Hourly");
  box("No Change", "Cannot Change Item to Federal Tax");
  pick(m.cmbType, "Federal Tax");
  equal(m.cmbType.value, "");
  pick(m.cmbType, "Wage");
  equal([m.fraWage.visible, m.optPayType.value, m.optStyle.value], [true, "0", "0"]);
  option(m.optPayType, 1);
  shot("frmModPayItem");
  click(m.cmdOk);
});
key(g, "Insert");
equal([item("Hourly").PayType, item("Hourly").PayStyle, item("Hourly").TaxPaid], ["Salary", "Regular", "Employee Paid Tax"]);
equal([g.text(g.row(), "Name"), rows("SELECT * FROM PreWageTable WHERE WageName = 'Hourly' AND Selected <> 0").length], ["Hourly", 6]);

// A deduction: its tracking type ticks the taxes, the user's ticks stay until it is chosen anew.
modal("frmModPayItem", function (m) {
  type(m.txtName, "Plan");
  pick(m.cmbType, "Deduction");
  equal([m.fraDeduction.visible, m.grdDeducTaxNew.rows], [true, 6]);
  pick(m.cmbDeducAgency, "State of Illinois");
  pick(m.cmbDeducType, "401(k)");
  equal([0, 1, 2, 3, 4, 5].map(function (row) { return m.grdDeducTaxNew.text(row, 0); }),
        ["True", "False", "False", "False", "False", "False"]);
  m.grdDeducTaxNew.toggle(3, 0);
  type(m.txtDeducRate, "-4%");
  type(m.txtDeducLimit, "lots");
  box("Not a Number", null);
  click(m.cmdOk);
  ok(m.txtDeducLimit.focused);
  type(m.txtDeducLimit, "24500");
  click(m.cmdOk);
});
command("mnuNewPayroll");
equal([item("Plan").DefaultRate, item("Plan").DefaultLimit, item("Plan").LiabilityAgency, item("Plan").PayCal],
      ["4%", 24500, "State of Illinois", "Gross"]);
equal(ticked("PreTaxTable", "TaxName", "Plan"), ["Federal Withholding", "Medicare Company"]);

// A state tax: withholding hides what only unemployment has, the law's figures come by themselves.
modal("frmModPayItem", function (m) {
  type(m.txtName, "IL Unemployment");
  pick(m.cmbType, "State Tax");
  equal([m.txtStateRate.visible, m.txtLimit.visible, m.chkStateCredit.visible, m.cmbStateExpense.visible, m.txtWFRate.visible],
        [false, false, false, false, false]);
  box("No State", "Please Enter a State");
  click(m.cmdOk);
  pick(m.cmbSState, "IL");
  option(m.optStateTax, 1);
  equal([m.txtStateRate.value, m.txtLimit.value, m.chkStateCredit.visible, m.Label31.visible], ["3.35%", "14250", true, true]);
  box("No Category", "Please Enter a Expense Category");
  click(m.cmdOk);
  pick(m.cmbStateExpense, m.cmbStateExpense.items[0]);
  box("No Category", "Please Enter a Liability Category");
  click(m.cmdOk);
  pick(m.cmbStateLiability, m.cmbStateLiability.items[0]);
  type(m.txtStateRate, "3.35");
  box("Check Rate", null, "No");
  click(m.cmdOk);
  type(m.txtStateRate, "3.35%");
  check(m.chkStateCredit, true);
  shot("frmModPayItem");
  click(m.cmdOk);
});
command("mnuNewPayroll");
let tax = item("IL Unemployment");
equal([tax.TaxPaid, tax.TaxType, tax.UnempTaxRate, tax.DefaultLimit, tax.FUTACredit, tax.SState],
      ["Employer Paid Tax", "State Unemployment", "3.35%", 14250, true, "IL"]);
equal(ticked("PreWageTable", "WageName", "IL Unemployment"), ["Hourly"]);

// Every item opened and saved as it is: nothing is written.
const actions = rows("SELECT COUNT(*) AS n FROM History")[0].n;
for (let row = 0; row < g.rows; ++row) {
  modal("frmModPayItem", function (m) {
    equal([m.caption, m.txtName.enabled, m.cmbType.enabled], ["Edit Item", false, false]);
    click(m.cmdOk);
  });
  g.dblclick(row);
}
equal(rows("SELECT COUNT(*) AS n FROM History")[0].n, actions);

// Federal taxes: what each one shows.
open("Federal Unemployment", function (m) {
  equal([m.cmbFedUnemp.visible, m.cmbFedUnemp.value, m.cmbFedExpense.visible, m.txtFedLimit.value, m.txtFedRate.visible],
        [true, "0.006", true, "7000", false]);
  pick(m.cmbFedUnemp, "0.06");
  click(m.cmdOk);
});
equal(item("Federal Unemployment").UnempTaxRate, "0.06");
open("Social Security Employee", function (m) {
  equal([m.cmbFedUnemp.visible, m.cmbFedExpense.visible, m.txtFedRate.value], [false, false, "6.2%"]);
  type(m.cmbFedLiability, "no such category");
  box("No Category", "Please Enter a Liability Category");
  click(m.cmdOk);
  click(m.cmdCancel);
});
g.select([place("Medicare Company")]);
click(l.cmdAction);
let refused = "";
try { popup("mnuDeletePayroll"); } catch (e) { refused = e.message; }
ok(refused.indexOf("is disabled") >= 0, "a federal tax is not deleted");

// Another user was faster, or deleted the item beside the open form.
open("Plan", function (m) {
  equal([m.grdDeducTaxEdit.rows, m.cmbDeducType.value], [7, "401(k)"]);
  other("UPDATE PreTaxTable SET Selected = 0 WHERE Name = 'Plan'");
  m.grdDeducTaxEdit.toggle(0, 0);
  box("Data has changed", null);
  click(m.cmdOk);
  equal(m.grdDeducTaxEdit.text(0, 0), "False", "as it is now");
  other("DELETE FROM PayrollItems WHERE Name = 'Plan'");
  type(m.txtDeducRate, "5%");
  box("Data has changed", "Another user has deleted this payroll item.");
  click(m.cmdOk);
  click(m.cmdOk);
});
equal([item("Plan").DefaultRate, rows("SELECT * FROM PreTaxTable WHERE Name = 'Plan'").length], ["5%", 7]);

// One that is used says by whom before it goes.
other("INSERT INTO EmployeeEarnings (SSNum, Wage) VALUES ('111', 'Hourly')");
g.select([place("Hourly")]);
box("Confirm Delete", "Are you sure you want to delete \"Hourly\"", "No", "1 employee");
command("mnuDeletePayroll");
ok(item("Hourly"));
box("Confirm Delete", null, "Yes");
key(g, "Delete");
equal([place("Hourly"), rows("SELECT * FROM PreWageTable").length, rows("SELECT * FROM PreWageSet").length], [-1, 0, 0]);
equal(log(), []);
