// The list of vendors, and the form that makes and changes one, with what its 1099 reports.
start();
newCompany("Acme");
menu("mnuVendors");
const l = win("frmVendors");
const g = l.grdVendors;
function choose(row, item) {
  g.select([row]);
  click(l.cmdAction);
  popup(item);
}
function vendor(name) {
  return rows("SELECT * FROM Vendors WHERE Name = ?", name)[0];
}
equal([l.caption, g.columns], ["Vendors", ["Name", "Balance"]]);

modal("frmModVendor", function (m) {
  equal(m.caption, "New Vendor");
  box("No Name", "Please enter a Name");
  click(m.cmdOk);
  type(m.txtName, "Rock River Realty");
  type(m.txtCheck, "R R Realty");
  input("New Term", "Please Enter the Day Amount for this new Term.", "45");
  type(m.txtTerms, "Net 45");
  type(m.txtBillAddress, "Rock River Realty");
  ok(!m.cmbCategory.enabled && !m.lstBoxes.enabled && m.lstBoxes.rows === 0, "nothing to choose yet");
  check(m.chk1099, true);
  equal([m.lstBoxes.rows, m.lstBoxes.text(0, 1)], [11, "1: Rents:"]);
  box("No Value", "Please Supply a Valid Tax ID");
  click(m.cmdOk);
  ok(m.txtTaxID.focused);
  type(m.txtTaxID, "36-5550001");
  type(m.cmbCategory, "rent");
  m.lstBoxes.toggle(0, 0);
  m.lstBoxes.toggle(1, 0);
  option(m.optForm, 0);
  equal([m.lstBoxes.rows, m.lstBoxes.text(0, 1)], [5, "1: Intrest Income:"]);
  option(m.optForm, 1);
  m.lstBoxes.toggle(0, 0);
  m.lstBoxes.toggle(6, 0);
  shot("frmModVendor");
  click(m.cmdOk);
});
key(g, "Insert");
const made = vendor("Rock River Realty");
equal([made.CheckPrint, made.Terms, made.ShippingAddress, made.Address || null, made.TaxID, made.Boxes, made["1099MISC"],
       made.Eligible1099, made.Balance],
      ["R R Realty", "Net 45", "Rock River Realty", null, "36-5550001", "Rents:,Nonemployee compensation,;", true, true, 0]);
equal(rows("SELECT AccountName FROM Accounts WHERE CatID = ?", made["1099Cat"])[0].AccountName.toLowerCase().indexOf("rent"), 0);
equal(rows("SELECT Days FROM Terms WHERE Term = 'Net 45'"), [{Days: 45}]);

// Shown as it is; unticking loses nothing, neither here nor in the file.
modal("frmModVendor", function (m) {
  equal([m.caption, m.chk1099.checked, m.lstBoxes.text(0, 0), m.lstBoxes.text(1, 0)].slice(0, 2), ["Edit Vendor", true]);
  check(m.chk1099, false);
  equal(m.lstBoxes.rows, 0);
  check(m.chk1099, true);
  equal(m.lstBoxes.rows, 11);
  check(m.chk1099, false);
  click(m.cmdOk);
});
g.dblclick(0);
const plain = vendor("Rock River Realty");
equal([plain.Eligible1099, plain.Boxes, plain["1099Cat"]], [false, made.Boxes, made["1099Cat"]]);

// A bill shows in the balance, the name goes with it, and the vendor stays while it is there.
other("INSERT INTO Transactions (TransNum, Type, Date, Name, Account, Credit, Amount, Paid) VALUES (1, 'Bill', '2026-05-01', 'Rock River Realty', 'AP1', 950000, 950000, 0)");
other("INSERT INTO Transactions (TransNum, Type, Date, Name, Account, Debit, Amount) VALUES (1, 'Bill', '2026-05-01', 'Rock River Realty', '40SS', 950000, 950000)");
modal("frmModVendor", function (m) {
  type(m.txtName, "O'Brien Realty");
  click(m.cmdOk);
});
choose(0, "mnuEditVen");
equal([ledger(1)[1].Name, g.text(0, 0), g.text(0, 1)], ["O'Brien Realty", "O'Brien Realty", "95"]);
box("Confirm Delete", "Are you sure you want to delete \"O'Brien Realty\"", "Yes");
box("No Deletion", "\"O'Brien Realty\" cannot be deleted, for it is used in 1 transaction and has a balance of $95.00. " +
                   "Do you want to make it dormant?", "No");
key(g, "Delete");
equal(g.rows, 1);
choose(0, "mnuVenRep");
ok(isOpen("frmPrintCustom"));
close(win("frmPrintCustom"));
shot("frmVendors");
modal("frmModVendor", function (m) {
  check(m.chkDormant, true);
  box("Save Changes", null, "Yes");
  key(m, "Esc");
});
choose(0, "mnuEditVen");
equal(g.rows, 0);
check(l.chkShowDormant, true);
equal([g.rows, g.style(0)], [1, "Dormant"]);
equal(log(), []);
