// What goes wrong around a report: reports saved elsewhere, other users, dates the wrong way round, a store that
// refuses; and a report read with the keyboard alone.
start();
newCompany("Acme");
other("INSERT INTO Vendors (Name) VALUES (?)", "City Land");
other("INSERT INTO Transactions (TransNum, Type, Date, Name, Account, Category, Debit, Credit, Amount) " +
      "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)", 1, "Check", "6/3/2026", "City Land", "AR1", "UF1", 80, 0, 80);
function save(name, range, parent, fields, item) {
  other("INSERT INTO SavedReports (ReportName, DateRange, Parent, Fields, Item) VALUES (?, ?, ?, ?, ?)", name, range,
        parent, fields, item);
}
const lastLine = () => log()[log().length - 1];

// A report that this version does not know opens no window; one whose subject or columns are gone does.
save("A", "This Year", "Unheard", "Type,Date,", null);
save("B", "This Year", "ItemRep", "Type,Amount,", "Gone");
save("C", null, "Date", "Nothing,Else,", null);
menu("mnuSavedReports");
const list = win("frmSavedReps");
box("Error", null);
list.grdCustomers.dblclick(0);
ok(!isOpen("frmPrintCustom"));
list.grdCustomers.dblclick(1);
let w = win("frmPrintCustom");
equal([w.Label6.value, w.grdPL.rows, w.cmbDate.value], ["Item Report: Gone", 2, "This Year"]);
close(w);
list.grdCustomers.dblclick(2);
w = win("frmPrintCustom");
ok(w.grdPL.columns.indexOf("Amount Received") > 0, "all fields");
close(w);

// The keyboard alone: the first arrow key lights the first row, Enter shows it.
click(list.cmdClose);
menu("mnuSavedReports");
const again = win("frmSavedReps");
box("Error", null);
key(again.grdCustomers, "Down");
equal(again.grdCustomers.row(), 0);
key(again.grdCustomers, "Enter");

// One that another user deletes while it stands in the list leaves it; while it is changed, it is kept.
again.grdCustomers.row(1);
modal("frmModSaveReport", function (d) {
  type(d.txtName, "B2");
  other("DELETE FROM SavedReports WHERE ReportName = 'B'");
  click(d.cmdOk);
});
click(again.cmdAction);
popup("mnuEditSaveRep");
equal(rows("SELECT ReportName FROM SavedReports ORDER BY ReportName").map((row) => row.ReportName), ["A", "B2", "C"]);
other("DELETE FROM SavedReports WHERE ReportName = 'C'");
again.grdCustomers.row(2);
click(again.cmdAction);
popup("mnuShowSaveRep");
equal([again.grdCustomers.rows, isOpen("frmPrintCustom")], [2, false]);

// Dates the wrong way round report nothing; a preset's own dates are called by its name.
menu("mnuPLExpVen");
w = win("frmPrintPLName");
date(w.dteStart, "12/31/2026");
equal([w.Label4.value, w.grdPL.rows], ["12/31/2026 - 6/15/2026", 0]);
date(w.dteEnd, "12/31/2026");
equal(w.cmbDate.value, "Custom");
date(w.dteStart, "1/1/2026");
equal(w.cmbDate.value, "This Year");

// No column picked is all of them, and the names of the rows always stay; an emptied title is the report's own.
modal("frmSelectFields", function (d) { d.grdFields.select([]); click(d.cmdOk); });
click(w.cmdPick);
ok(w.grdPL.columns.indexOf("Break Down") > 0);
modal("frmSelectFields", function (d) { d.grdFields.select([0]); click(d.cmdOk); });
click(w.cmdPick);
equal(w.grdPL.columns, ["", "Type", "Date", ""]);
menu("mnuPrintTranDate");
w = win("frmPrintCustom");
modal("frmChangeTitle", function (d) { type(d.Text1, ""); click(d.cmdOk); });
click(w.cmdLabel);
equal(w.Label6.value, "Detailed Transactions by Date");

// A build that fails is told once under its name, and the report stays as it was.
menu("mnuPLClass");
w = win("frmPrintPL2");
const shown = w.Label4.value;
const sales = rows("SELECT CatID FROM Accounts WHERE AccountType = 'Income'")[0].CatID;
for (const number of [2, 3])  // together more than an amount can be
  other("INSERT INTO Transactions (TransNum, Type, Date, Account, Category, Debit, Credit, Amount) " +
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?)", number, "Deposit", "6/3/2026", sales, "UF1", 0, 9e14, 9e14);
box("Error", null);
date(w.dteStart, "2/1/2026");
ok(/frmPrintPL2 : Load_Standard : /.test(lastLine()), lastLine());
equal([w.Label4.value, w.grdPL.columns.length], [shown, 3]);
other("DELETE FROM Transactions WHERE TransNum = 3");
click(w.cmdRefresh);
equal(w.Label4.value, "2/1/2026 - 6/15/2026");
