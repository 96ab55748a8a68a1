// Transaction reports side by side, their columns, and saved under a name.
function post(number, type, day, name, account, breakDown, debit, credit) {
  other("INSERT INTO Transactions (TransNum, Type, Date, Name, Account, Category, Debit, Credit, Amount) " +
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)", number, type, day, name, account, breakDown, debit, credit,
        debit || credit);
}
function captions(g) {
  return g.columns.filter((caption) => caption !== "");
}

start();
newCompany("Acme");
menu("mnuPrintTranDate");
equal(win("frmPrintCustom").grdPL.rows, 2, "a blank row and the total");
close(win("frmPrintCustom"));
box(null, "No Customers to Report");
menu("mnuPrintTranCus");
close(win("frmPrintCustom"));

other("INSERT INTO Customers (Name) VALUES (?)", "Ann");
other("INSERT INTO Vendors (Name) VALUES (?)", "City Land");
post(901, "Deposit", "6/10/2026", "Ann", "BK1", "AR1", 50, 0);
post(901, "Deposit", "6/10/2026", "Ann", "AR1", "BK1", 0, 50);
post(902, "Check", "6/11/2026", "City Land", "BK1", "AR1", 0, 80);

// Three of them at once, each with dates of its own.
menu("mnuPrintTranDate");
menu("mnuPrintTranCus");
menu("mnuPrintTranVen");
equal(wins("frmPrintCustom").length, 3);
const [byDate, byCustomer, byVendor] = wins("frmPrintCustom");
equal(byDate.Label6.value, "Detailed Transactions by Date");
equal(byDate.grdPL.rows, 5);
equal(byDate.grdPL.style(0), "Small");
equal(byCustomer.grdPL.text(0, 1), "Ann");
equal(byCustomer.grdPL.style(0), "Bold");
equal(byVendor.Label6.value, "Detailed Transactions by Vendor");
date(byDate.dteStart, "6/11/2026");
equal([byDate.grdPL.rows, byCustomer.Label4.value], [3, "6/1/2026 - 6/15/2026"]);
close(byVendor);
close(byCustomer);

// As many may stand side by side as one likes.
while (wins("frmPrintCustom").length < 55) menu("mnuPrintTranVen");
while (wins("frmPrintCustom").length > 1) close(win("frmPrintCustom"));

// Fields, in the order of the ledger whatever the order of picking; without an amount there is no total.
equal(captions(byDate.grdPL), ["Date", "Type", "Number", "Name", "Memo", "Category", "Amount"], "what one asks first");
modal("frmSelectFields", function (d) {
  equal(d.caption, "Select Columns");
  const names = [];
  for (let row = 0; row < d.grdFields.rows; ++row) names.push(d.grdFields.text(row, 0));
  ok(names.indexOf("Category") < names.indexOf("<-Break Down->"), "Account comes before Category");
  d.grdFields.select(["Amount", "Name", "<-Break Down->"].map((name) => names.indexOf(name)).sort((a, b) => a - b));
  click(d.cmdOk);
});
click(byDate.cmdPick);
equal(captions(byDate.grdPL), ["Name", "<-Break Down->", "Amount"]);
equal(byDate.grdPL.text(0, "<-Break Down->"), rows("SELECT AccountName FROM Accounts WHERE CatID = 'AR1'")[0].AccountName);
equal(byDate.grdPL.text(0, "Amount"), "-80", "a credit of a report by date is negative");
equal(byDate.grdPL.text(2, "Name"), "TOTAL");
equal(byDate.grdPL.text(2, "Amount"), "-80");

// A total leads nowhere, a row to the window of its type.
byDate.grdPL.row(2);
click(byDate.cmdGoto);
ok(!isOpen("frmCheck"), "the total is no transaction");
byDate.grdPL.row(0);
click(byDate.cmdGoto);
equal(win("frmCheck").cmbPayee.value, "City Land");
close(win("frmCheck"));

// Saved without a name, then with one; the range of dates counts from the day it is shown.
pick(byDate.cmbDate, "This Month");
modal("frmModSaveReport", function (d) {
  equal(d.caption, "Save Report");
  equal(d.cmbItem.enabled, false, "only item reports are of an item");
  equal(d.cmbDate.value, "This Month");
  box("No Name", "Please enter a name for this report.");
  click(d.cmdOk);
  ok(d.txtName.focused, "back to the name");
  type(d.txtName, "June");
  click(d.cmdOk);
});
click(byDate.cmdSave);
close(byDate);
const saved = rows("SELECT ReportName, DateRange, Parent, Fields, Class, Item FROM SavedReports");
equal(saved, [{ReportName: "June", DateRange: "This Month", Parent: "Date", Fields: "Name,Category,Amount,",
               Class: null, Item: null}]);

menu("mnuSavedReports");
let list = win("frmSavedReps");
equal(list.grdCustomers.rows, 1);
list.grdCustomers.dblclick(0);
let shown = win("frmPrintCustom");
equal([shown.dteStart.value, shown.dteEnd.value], ["6/1/2026", "6/30/2026"]);
equal(captions(shown.grdPL), ["Name", "<-Break Down->", "Amount"]);
equal(shown.grdPL.text(4, "Amount"), "-80", "50 in, 50 out, 80 out");
close(shown);

list.grdCustomers.row(0);
modal("frmModSaveReport", function (d) {
  equal(d.caption, "Edit Report");
  equal(d.txtName.value, "June");
  type(d.txtName, "Without a range");
  type(d.cmbDate, "");
  click(d.cmdOk);
});
click(list.cmdAction);
popup("mnuEditSaveRep");
equal(rows("SELECT ReportName, DateRange, Fields FROM SavedReports"),
      [{ReportName: "Without a range", DateRange: null, Fields: "Name,Category,Amount,"}]);
list.grdCustomers.row(0);
click(list.cmdAction);
popup("mnuShowSaveRep");
shown = win("frmPrintCustom");
equal([shown.dteStart.value, shown.dteEnd.value], ["6/1/2026", "6/15/2026"], "this month up to today");
close(shown);

list.grdCustomers.row(0);
box("Confirm Delete", 'Are you sure you want to delete "Without a range"', "No");
click(list.cmdAction);
popup("mnuDelSavRep");
equal(list.grdCustomers.rows, 1);
box("Confirm Delete", null, "Yes");
click(list.cmdAction);
popup("mnuDelSavRep");
equal(rows("SELECT * FROM SavedReports"), []);
box("No Selection", "Please Select a Report to Show");
click(list.cmdAction);
popup("mnuShowSaveRep");
box("No Selection", "Please Select a Report to edit");
click(list.cmdAction);
popup("mnuEditSaveRep");
