// The list of customers, the form that makes and changes one, jobs, names that are carried, and messages.
start();
newCompany("Acme");
menu("mnuCustomers");
const l = win("frmCustomers");
const g = l.grdCustomers;
function place(name) {
  for (let row = 0; row < g.rows; ++row) if (g.text(row, "Name").trim() === name) return row;
  return -1;
}
function choose(name, item) {
  g.select([place(name)]);
  click(l.cmdAction);
  popup(item);
}
function customer(name) {
  return rows("SELECT * FROM Customers WHERE Name = ?", name)[0];
}
equal([l.caption, g.columns], ["Customers", ["Name", "Balance", "Key"]]);

// A new one, mistakes first; Enter goes from field to field.
modal("frmModCustomer", function (m) {
  equal([m.caption, m.chkCarry.visible], ["New Customer", false]);
  box("No Name", "Please enter a Name");
  click(m.cmdOk);
  ok(m.txtName.focused);
  type(m.txtName, "O'Brien Homes");
  key(m.txtName, "Enter");
  ok(m.txtContact.focused, "Enter goes on");
  type(m.txtContact, "Pat");
  type(m.txtPhone, "(815) 555-0110");
  type(m.txtRep, "Jo Fox");
  type(m.txtBillAddress, "O'Brien Homes");
  click(m.cmdSend);
  equal(m.txtShipAddress.value, "O'Brien Homes");
  type(m.txtNotes, "Gate code at the office");
  ok(!m.cmbCustomers.enabled);
  shot("frmModCustomer");
  click(m.cmdOk);
});
key(g, "Insert");
const made = customer("O'Brien Homes");
equal([made.Contact, made.RepName, made.ShippingAddress, made.Balance, made.Dormant, made.ParentName || null],
      ["Pat", "Jo Fox", "O'Brien Homes", 0, false, null]);
equal(rows("SELECT Name FROM RepNames"), [{Name: "Jo Fox"}], "a new representative is taken without a question");
equal([g.row(), g.text(0, "Name")], [0, "O'Brien Homes"]);

// A job of it.
modal("frmModCustomer", function (m) {
  type(m.txtName, "Porch");
  check(m.chkSubJob, true);
  type(m.cmbCustomers, "o'b");
  equal(m.cmbCustomers.value, "O'Brien Homes", "completed");
  click(m.cmdOk);
});
click(l.cmdAction);
popup("mnuNewCustomer");
equal([g.row(), g.text(1, "Name"), customer("Porch").ParentName], [1, "     Porch", "O'Brien Homes"]);
ok(g.row() === 1, "after New the new row is current");

// Its balance follows what is entered.
other("INSERT INTO Transactions (TransNum, Type, Date, Name, Account, Debit, Amount) VALUES (1, 'Invoice', '2026-05-01', 'Porch', 'AR1', 2500000, 2500000)");
close(l);
menu("mnuCustomers");
const w = win("frmCustomers"), t = w.grdCustomers;
equal(t.text(1, "Balance"), "250");
shot("frmCustomers");

// A new name goes everywhere, in one action; a taken one is asked about.
modal("frmModCustomer", function (m) {
  equal([m.caption, m.txtName.value, m.chkSubJob.checked, m.cmbCustomers.value, m.chkCarry.enabled],
        ["Edit Customer", "Porch", true, "O'Brien Homes", false]);
  ok(m.cmbCustomers.items.indexOf("Porch") < 0, "no job of itself");
  type(m.txtName, "o'brien homes");
  ok(m.chkCarry.enabled && m.chkCarry.checked);
  box("Merge Names", "There is already a customer named \"O'Brien Homes\". Do you want to make the two one?", "No");
  click(m.cmdOk);
  type(m.txtName, "Front Porch");
  shot("frmModCustomer_edit");
  click(m.cmdOk);
});
t.dblclick(1);
equal([ledger(1)[0].Name, t.text(1, "Name"), t.text(1, "Balance")], ["Front Porch", "     Front Porch", "250"]);

// Another user was faster, or deleted it.
modal("frmModCustomer", function (m) {
  other("UPDATE Customers SET Phone = 'theirs' WHERE Name = 'Front Porch'");
  type(m.txtPhone, "mine");
  box("Data has changed", "This customer has been modified by another user since you opened it. It will not be " +
                          "updated. Click Ok to see changes.");
  click(m.cmdOk);
  equal(m.txtPhone.value, "theirs");
  other("DELETE FROM Customers WHERE Name = 'Front Porch'");
  type(m.txtPhone, "mine");
  box("Data has changed", "Another user has deleted this customer.");
  click(m.cmdOk);
  equal([m.caption, m.txtPhone.value], ["New Customer", "mine"], "what was typed is there");
  click(m.cmdOk);
});
t.dblclick(1);
equal(customer("Front Porch").Phone, "mine");

// One that is used is not deleted; a dormant parent hides its jobs.
function chosen(name, item) {
  for (let row = 0; row < t.rows; ++row) if (t.text(row, "Key") === name) t.select([row]);
  click(w.cmdAction);
  popup(item);
}
box("Confirm Delete", "Are you sure you want to delete \"O'Brien Homes\"", "Yes");
box("No Deletion", "\"O'Brien Homes\" cannot be deleted, for it is used in 1 job. Do you want to make it dormant?", "Yes");
chosen("O'Brien Homes", "mnuDeleteCus");
equal(t.rows, 0);
check(w.chkShowDormant, true);
equal([t.rows, t.style(0)], [2, "Dormant"]);
other("DELETE FROM Transactions");
other("UPDATE Customers SET Balance = 0");
box("Confirm Delete", null, "Yes");
chosen("Front Porch", "mnuDeleteCus");
equal([t.rows, customer("Front Porch")], [1, undefined]);

// Messages of invoices.
menu("mnuCusMes");
const m = win("frmCusMessage");
input("", "Enter The New Message.", "");
key(m.grdNames, "Insert");
input("", "Enter The New Message.", "Thank you for your business.");
click(m.cmdAction);
popup("mnuCusMessageNew");
equal([m.caption, m.grdNames.rows, m.grdNames.text(0, "Message")], ["Customer Messages", 1, "Thank you for your business."]);
shot("frmCusMessage");
click(m.cmdAction);
popup("mnuCusMesDelete");
equal([m.grdNames.rows, rows("SELECT * FROM CustomerMessages").length], [0, 0]);
equal(log(), []);
