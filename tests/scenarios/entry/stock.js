// Adjust Quantity in Stock: counts typed, sales meanwhile, what is written of them.
start();
newCompany("Acme");
function part(name, initial, cost) {
  other("INSERT INTO Items (ItemName, Description, ItemType, InitialQty, Cost, InvAsset) VALUES (?, ?, ?, ?, ?, ?)",
        name, "Steel " + name, "Inventory Part", initial, cost, "3SS");
}
function sell(number, item, qty) {
  other("INSERT INTO Transactions (TransNum, Type, Date, Account, Item, Qty) VALUES (?, ?, ?, ?, ?, ?)",
        number, "Invoice", "2026-06-01", "3SS", item, -qty);
}
function refused(grid, row, column, text) {
  let taken = true;
  try { grid.set(row, column, text); } catch (e) { taken = false; }
  ok(!taken, text + " is refused");
}
part("Bolt", 10, 2);
part("Nut", 4, 0.5);
sell(1, "Bolt", 3);
menu("mnuInvAdj");
const w = win("frmInvAdjust");
const g = w.grdInventory;
function seen(row) {
  return [g.text(row, "Item"), g.text(row, "Current Quantity"), g.text(row, "New Qty"), g.text(row, "Difference")];
}
equal([w.caption, g.rows, w.lblValue.value, w.cmdCancel.caption], ["Adjust Quantity in Stock", 2, "$0.00", "&Cancel"]);
equal(seen(0), ["Bolt", "7", "", ""]);
g.set(0, "New Qty", "5");
refused(g, 1, "New Qty", "many");
equal(seen(1), ["Nut", "4", "", ""], "words are no count");
g.set(1, "New Qty", "5");
equal([seen(0)[3], seen(1)[3], w.lblValue.value], ["-2", "1", "-$3.50"]);
shot("frmInvAdjust");
refused(g, 0, "Difference", "9");
equal(seen(0)[3], "-2", "reckoned, not typed");
box("No Category", "Please Select a Category to Adjust From.");
click(w.cmdOk);
key(w, "Escape");
pick(w.cmbCat, "Bad Debts");

// Somebody sells a bolt before Ok: that is told, the counts stay, and the difference is reckoned anew.
sell(2, "Bolt", 1);
box("Data has changed", null, undefined, "The stock of Bolt has moved since. Your counts stay, to be looked at again.");
click(w.cmdOk);
equal([seen(0), seen(1)[2], w.lblValue.value], [["Bolt", "6", "5", "-1"], "5", "-$1.50"]);
click(w.cmdOk);
ok(!isOpen("frmInvAdjust"));
equal(ledger(3).map(function (r) { return [r.Type, r.Account, r.Debit, r.Credit, r.Amount, r.Item, r.Qty]; }),
      [["Inv Adjust", "45SS", 1.5, 0, 1.5, undefined, undefined], ["Inv Adjust", "3SS", 0, 2, 2, "Bolt", -1],
       ["Inv Adjust", "3SS", 0.5, 0, 0.5, "Nut", 1]]);
equal(log(), []);
