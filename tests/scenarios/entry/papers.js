// Estimates, purchase orders and package slips: one design. Filling in, walking, two users, a small screen.
start();
newCompany("Acme");
other("INSERT INTO Customers (Name, ShippingAddress, Dormant) VALUES ('O''Brien Homes', '1 Oak Way', 0)");
other("INSERT INTO Vendors (Name, ShippingAddress, Dormant) VALUES ('Rock Supply', '9 Quarry Rd', 0)");
other("INSERT INTO Items (ItemName, ItemType, Description, InvPurchaseDesc, PriceRate, Cost, ParentItem) VALUES ('Hose', 'Inventory Part', 'Garden hose', 'HOSE 50', 199500, 110000, ''), ('Mowing', 'Service', 'Lawn', '', 350000, 0, '')");
const kinds = [
  {menu: "mnuCreateEstimate", window: "frmEstimate", caption: "Estimates", header: "Estimates", lines: "EstItems", party: "O'Brien Homes", address: "1 Oak Way", rate: "19.95", words: "Garden hose", none: "No More Previous Estimates"},
  {menu: "mnuPO", window: "frmPOs", caption: "Create Purchase Orders", header: "POs", lines: "POItems", party: "Rock Supply", address: "9 Quarry Rd", rate: "11", words: "HOSE 50", none: "No More Previous POs"},
  {menu: "mnuPS", window: "frmPackageSlips", caption: "Create Package Slips", header: "PSlips", lines: "PSlipItems", party: "O'Brien Homes", address: "1 Oak Way", rate: "19.95", words: "Garden hose", none: "No More Previous PSlips"},
];
function documents(kind) {
  return rows("SELECT * FROM " + kind.header + " ORDER BY \"Index\"");
}
kinds.forEach(function (kind) {
  menu(kind.menu);
  const w = win(kind.window), g = w.grdPOItems;
  equal([w.caption, w.txtPONum.value, w.lblTotal.value], [kind.caption, "1", "$0.00"]);
  box("NO PO", kind.none);
  click(w.cmdPrev);
  click(w.cmdNext);
  equal(documents(kind), [], "a blank one is not kept");

  pick(w.cmbVendor, kind.party);
  equal(w.txtAddress.value, kind.address);
  g.set(0, "Item", "hose");
  equal([g.text(0, "Item"), g.text(0, "Description"), g.text(0, "Qty"), g.text(0, "Rate"), g.text(0, "Amount")], ["Hose", kind.words, "1", kind.rate, kind.rate]);
  g.set(0, "Qty", "2");
  g.set(0, "Rate", "10.50");
  g.set(1, "Description", "Delivery");
  g.set(1, "Amount", "4");
  equal([g.text(0, "Amount"), w.lblTotal.value], ["21", "$25.00"]);
  shot(kind.window);
  click(w.cmdNext);
  equal([w.txtPONum.value, w.cmbVendor.value, g.rows], ["2", "", 0]);
  const made = documents(kind)[0];
  equal([made.Index, made.Open, made.Total, made.Vendor || made.Customer], [1, true, 25, kind.party]);

  // Walking over documents writes none of them again.
  const actions = rows("SELECT COUNT(*) AS n FROM History")[0].n;
  click(w.cmdPrev);
  equal([w.cmbVendor.value, g.rows, g.text(1, "Description"), w.lblTotal.value], [kind.party, 2, "Delivery", "$25.00"]);
  click(w.cmdNext);
  click(w.cmdPrev);
  equal(rows("SELECT COUNT(*) AS n FROM History")[0].n, actions);

  // Another user was faster; then what was typed here is kept by the question.
  other("UPDATE " + kind.header + " SET Memo = 'theirs' WHERE \"Index\" = 1");
  type(w.txtMemo, "mine");
  box("Data has changed", null);
  click(w.cmdOk);
  equal(w.txtMemo.value, "theirs");
  g.remove(1);
  equal(w.lblTotal.value, "$21.00");
  box("Save Changes", null, "Yes");
  close(w);
  equal([documents(kind)[0].Total, rows("SELECT * FROM " + kind.lines).length], [21, 1]);

  // Cancel keeps nothing of what was typed, and deletes nothing.
  menu(kind.menu);
  click(win(kind.window).cmdPrev);
  win(kind.window).grdPOItems.remove(0);
  click(win(kind.window).cmdCancel);
  equal(rows("SELECT * FROM " + kind.lines).length, 1);
});
equal(log(), []);
