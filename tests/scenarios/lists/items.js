// The list of items and the form of each type; what is used keeps its type, groups hold their lines, two users meet.
start();
newCompany("Acme");
menu("mnuItems");
const l = win("frmItems");
const g = l.grdAccounts;
equal([l.caption, g.columns], ["Items", ["Name", "Description", "Type", "Category", "Price/Rate", "Key"]]);
function place(name) {
  for (let row = 0; row < g.rows; ++row) if (g.text(row, "Key") === name) return row;
  return -1;
}
function choose(name, item) {
  if (name) g.select([place(name)]);
  click(l.cmdAction);
  popup(item);
}
function item(name) {
  return rows("SELECT * FROM Items WHERE ItemName = ?", name)[0];
}
function category(type) {
  return rows("SELECT AccountName, CatID FROM Accounts WHERE AccountType = ? ORDER BY AccountName", type)[0];
}
const income = category("Income"), cost = category("Cost of Goods Sold"), asset = category("Current Asset"), debt = category("Current Liability");

// A service, its mistakes in the order of the form, and a parent before a type.
modal("frmModItems", function (m) {
  equal(m.caption, "New Item");
  box("No Parent", "Please select a Parent Category before selecting a Sub Category.");
  check(m.chkSubItem, true);
  equal(m.chkSubItem.checked, false);
  pick(m.cmbType, "Service");
  box("", "Please input a income category for this service.");
  click(m.cmdOk);
  ok(m.cmbCategory.focused);
  type(m.cmbCategory, income.AccountName);
  box("No Name", "Please enter a Name for this Item.");
  click(m.cmdOk);
  type(m.txtName, "Lawn Co.");
  type(m.txtDescription, "Lawn care");
  type(m.txtPrice, "a lot");
  box("No Amount", "\"a lot\" is not an amount.");
  click(m.cmdOk);
  type(m.txtPrice, "35");
  check(m.chkServiceTax, true);
  shot("frmModItems");
  click(m.cmdOk);
});
key(g, "Insert");
equal([item("Lawn Co.").ItemCat, item("Lawn Co.").PriceRate, item("Lawn Co.").InvTaxable], [income.CatID, 35, true]);
modal("frmModItems", function (m) {
  pick(m.cmbType, "Service");
  type(m.txtName, "Edging");
  check(m.chkSubItem, true);
  type(m.cmbSubITem, "Lawn Co.");
  type(m.cmbCategory, income.AccountName);
  click(m.cmdOk);
});
choose("", "mnuNewItem");
equal(g.text(place("Edging"), "Name"), "     Edging");

// 6.875 % stays what it is.
modal("frmModItems", function (m) {
  pick(m.cmbType, "Sales Tax");
  type(m.txtName, "County tax");
  type(m.txtTaxRate, "6.875%");
  box("", "Please input a liability category for this sales tax.");
  click(m.cmdOk);
  type(m.cmbTaxLia, debt.AccountName);
  click(m.cmdOk);
});
key(g, "Insert");
equal([g.text(place("County tax"), "Price/Rate"), item("County tax").PriceRate, item("County tax").ExactRate], ["6.875%", 0.0688, 0.06875]);

// A part, then what is in stock once some moved.
modal("frmModItems", function (m) {
  pick(m.cmbType, "Inventory Part");
  type(m.txtName, "Hose");
  type(m.txtInvSalesDesc, "Garden hose");
  type(m.txtInvCost, "11");
  type(m.txtInvPrice, "19.95");
  type(m.cmbInvCOGSC, cost.AccountName);
  type(m.cmbInvIncome, income.AccountName);
  box("", "Please input a income category, COGS Category and Asset Category for this Inventroy Part.");
  click(m.cmdOk);
  ok(m.cmbAsset.focused);
  type(m.cmbAsset, asset.AccountName);
  type(m.txtReorder, "5");
  type(m.txtInvQty, "12");
  type(m.txtInvValue, "132");
  shot("frmModItems-part");
  click(m.cmdOk);
});
key(g, "Insert");
equal([item("Hose").StockQty, item("Hose").InitialQty, item("Hose").TotalValue, item("Hose").COGScat], [12, 12, 132, cost.CatID]);
other("INSERT INTO Transactions (TransNum, Type, Date, Item, Qty, Account, Debit) VALUES (1, 'Bill', '2026-05-01', 'hose', 3, '" + asset.CatID + "', 330000)");
modal("frmModItems", function (m) {
  equal([m.lblQtyInStock.value, m.lblTotalValue.value, m.txtInvQty.visible, m.cmbType.enabled], ["15", "$132.00", false, false]);
  equal([m.txtInvCost.value, m.txtInvPrice.value, m.cmbAsset.value], ["11.00", "19.95", asset.AccountName]);
  click(m.cmdOk);
});
g.dblclick(place("Hose"));
equal(item("Hose").StockQty, 12, "looking changes nothing");

// A group keeps its lines with itself; its right click takes one out.
modal("frmModItems", function (m) {
  pick(m.cmbType, "Group");
  type(m.txtName, "Yard kit");
  m.grdGroup.set(0, "Item", "Hose");
  equal([m.grdGroup.text(0, "Description"), m.grdGroup.text(0, "Qty")], ["Garden hose", "1"]);
  m.grdGroup.set(1, "Item", "Edging");
  m.grdGroup.set(1, "Qty", "2.5");
  m.grdGroup.set(2, "Item", "Nothing");
  box("No Item", "There is no item named \"Nothing\".");
  click(m.cmdOk);
  rightclick(m.grdGroup, 2);
  popup("mnuRveGroupItem");
  shot("frmModItems-group");
  click(m.cmdOk);
});
key(g, "Insert");
equal(rows("SELECT Item, Qty FROM ItemGroups WHERE GroupName = 'Yard kit'"), [{Item: "Hose", Qty: 1}, {Item: "Edging", Qty: 2.5}]);

// The name goes everywhere, the item stays while it is used, two users meet on one row.
modal("frmModItems", function (m) {
  type(m.txtName, "Hose 50 ft.");
  click(m.cmdOk);
});
choose("Hose", "mnuEditItem");
equal([ledger(1)[0].Item, rows("SELECT Item FROM ItemGroups")[0].Item], ["Hose 50 ft.", "Hose 50 ft."]);
box("Confirm Delete", "Are you sure you want to delete \"Hose 50 ft.\"", "Yes");
box("No Deletion", null, "Yes");
g.select([place("Hose 50 ft.")]);
key(g, "Delete");
equal(place("Hose 50 ft."), -1);
check(l.chkDormant, true);
equal(g.style(place("Hose 50 ft.")), "Dormant");
modal("frmModItems", function (m) {
  other("UPDATE Items SET Description = 'theirs' WHERE ItemName = 'Edging'");
  type(m.txtDescription, "mine");
  box("Data has changed", null);
  click(m.cmdOk);
  equal(m.txtDescription.value, "theirs");
  other("DELETE FROM Items WHERE ItemName = 'Edging'");
  type(m.txtDescription, "mine again");
  box("Data has changed", "Another user has deleted this item.");
  click(m.cmdOk);
  click(m.cmdCancel);
});
choose("Edging", "mnuEditItem");
choose("County tax", "mnuItemReport");
ok(isOpen("frmPrintCustom"));
close(win("frmPrintCustom"));
shot("frmItems");
equal(log(), []);
