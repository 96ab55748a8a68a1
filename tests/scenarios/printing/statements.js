// Statements and finance charges: of one customer, and of all who owe.
start();
newCompany("Acme");
function row(number, type, day, name, account, category, debit, credit) {
  other("INSERT INTO Transactions (TransNum, Type, Date, Number, Name, Account, Category, Debit, Credit, Amount, Paid) " +
            "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, 0)",
        number, type, day, String(number), name, account, category, debit, credit, debit + credit);
}
function invoice(number, day, name, amount) {
  row(number, "Invoice", day, name, "AR1", "66SS", amount, 0);
  row(number, "Invoice", day, name, "66SS", "AR1", 0, amount);
}
other("INSERT INTO Customers (Name, BillingAddress, Dormant) VALUES ('Ann Oak', 'Ann Oak', 0), ('Bell', 'Bell', 0)");
other("UPDATE GeneralPrefs SET State = '18%' WHERE Preference = 'FinanceAPR'");
invoice(1, "2026-06-05", "Ann Oak", 1000);
invoice(2, "2026-05-06", "Ann Oak", 500);
invoice(3, "2026-05-06", "Bell", 365);
function charges() { return rows("SELECT Name, Amount FROM Transactions WHERE Type = 'Statement' AND Account = 'AR1' ORDER BY TransNum"); }

menu("mnuCustomers");
const list = win("frmCustomers");
list.grdCustomers.row(0);
rightclick(list.grdCustomers, 0);
popup("mnuCreateStatement");
const w = win("frmStatement");
equal([w.lblCustomer.caption, w.lblBalance.caption, w.lblFAPR.caption, w.lblFAmount.caption],
      ["Ann Oak", "$1,500.00", "18%", "$36.99"]);
equal([w.grdReckoning.rows, w.grdReckoning.text(0, "Days"), w.grdReckoning.text(1, "Charge")], [2, "40", "7.3973"]);
shot("frmStatement");
box("No Preview Made", "You Must Print the Statement first, before it will be entered into Tallymere");
click(w.cmdOk);
modal("frmPrintStatement", function (preview) {
  shot("frmPrintStatement");
  file("PDF Files (*.pdf)|*.pdf", "one.pdf");
  click(preview.cmdPDF);
  click(preview.cmdQuickPDF);
  click(preview.cmdQuickPDF);
  click(preview.cmdClose);
});
click(w.cmdPrint);
ok(exists("one.pdf"));
ok(exists("Acme PDF/Statement Ann Oak.pdf") && exists("Acme PDF/Statement Ann Oak (2).pdf"), "one click, nothing replaced");
date(w.DTPicker1, "6/16/2026");  // another day, another charge: the paper shown is not this one
box("No Preview Made", null);
click(w.cmdOk);
date(w.DTPicker1, "6/15/2026");
modal("frmPrintStatement", function (preview) { click(preview.cmdClose); });
click(w.cmdPrint);
click(w.cmdOk);
ok(!isOpen("frmStatement"));
equal(charges(), [{ Name: "Ann Oak", Amount: 36.99 }]);

// All who owe, one document; one of them was charged today already.
rightclick(list.grdCustomers, 0);
popup("mnuCreateStatements");
const all = win("frmStatements");
equal([all.grdCustomers.rows, all.grdCustomers.text(1, "Customer"), all.grdCustomers.text(1, "Finance Charge")],
      [2, "Bell", "7.2"]);
modal("frmPrintStatement", function (preview) {
  equal(preview.lblPage.caption, "Page 1 of 2");
  click(preview.cmdClose);
});
click(all.cmdPrint);
shot("frmStatements");
box("Second Statement", "A finance charge was entered on 6/15/2026 already. Do you want to enter another one?", "No",
    "Ann Oak $36.99");
click(all.cmdOk);
all.grdCustomers.toggle(0, "Select");
box("No Preview Made", null);
click(all.cmdOk);
modal("frmPrintStatement", function (preview) { click(preview.cmdClose); });
click(all.cmdPrint);
click(all.cmdOk);
equal(charges().length, 2);
equal(charges()[1], { Name: "Bell", Amount: 7.2 });
equal(log(), []);
