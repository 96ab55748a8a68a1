// Lists of another program: what a file would do is shown, done by Ok, and taken back as one.
start();
newCompany("Acme");
menu("mnuQuickBooks");
const w = win("frmImportQB");
equal(w.caption, "Import QuickBooks Data");
ok(!w.cmdOk.enabled, "nothing is chosen yet");

write("blanks.iif", "CUST,Baker\nCUST,Mill\n");
file(null, "blanks.iif");
box("Import", null);
click(w.SSDBCommand1);
ok(!w.cmdOk.enabled);

write("lists.iif", ["!CUST\tNAME\tREFNUM\tPHONE1", "CUST\tBaker\t1\t555-1", "CUST\tBaker:Roof\t2\t",
                    "EMP\tNobody\t", "MYSTERY\tx"].join("\r\n") + "\r\n");
file(null, "lists.iif");
click(w.SSDBCommand1);
equal(w.lblPlan.value, "2 to add, 0 to change, 0 the same, 1 skipped, 1 lines of other kinds. Read as UTF-8.");
equal([w.grdPlan.rows, w.grdPlan.text(1, "Name"), w.grdPlan.text(2, "Action")], [3, "Baker:Roof", "Skip"]);
shot("import_lists");
equal(rows("SELECT COUNT(*) AS n FROM Customers"), [{n: 0}], "only shown");

menu("mnuCustomers");
const list = win("frmCustomers");
box("No Number", "Nobody does not have a Social Security Number. Nobody will not be added.");
box("Import Summary", null);
click(w.cmdOk);
ok(!isOpen("frmImportQB"));
equal(rows("SELECT Name, ParentName, Phone FROM Customers ORDER BY Name"),
      [{Name: "Baker", ParentName: null, Phone: "555-1"}, {Name: "Roof", ParentName: "Baker", Phone: null}]);
shot("import_customers");

// A second time nothing is left to do.
menu("mnuQuickBooks");
const again = win("frmImportQB");
file(null, "lists.iif");
click(again.SSDBCommand1);
equal(again.lblPlan.value, "0 to add, 0 to change, 2 the same, 1 skipped, 1 lines of other kinds. Read as UTF-8.");
click(again.cmdCancel);
equal(log(), []);
