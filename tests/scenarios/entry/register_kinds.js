// What a register may change of what other windows wrote, breaking lines down, and where "Go to" leads.
function register(name) {
  menu("mnuAccounts");
  const list = win("frmAccounts").grdAccounts;
  for (let row = 0; row < list.rows; ++row)
    if (list.text(row, 0).trim() === name) { list.dblclick(row); return win("frmRegister"); }
  throw new Error("no category " + name);
}
function post(number, type, day, account, category, debit, credit, more) {
  const row = Object.assign({TransNum: number, Type: type, Date: day, Number: String(number), Name: "Acme Supply",
                             Account: account, Category: category, Debit: debit, Credit: credit,
                             Amount: debit || credit, Cleared: false}, more);
  const names = Object.keys(row);
  const marks = names.map(function () { return "?"; }).join(", ");
  other.apply(null, ["INSERT INTO Transactions (" + names.join(", ") + ") VALUES (" + marks + ")"].concat(
      names.map(function (name) { return row[name]; })));
}
function sides(number) {
  return ledger(number).map(function (row) {
    return [row.Type, row.Account, row.Category, row.Debit || 0, row.Credit || 0, row.Amount].join(" ");
  });
}
function find(g, number) {
  for (let row = 0; row < g.rows; ++row) if (g.text(row, "TransNum") === String(number)) return row;
  return -1;
}

start();
newCompany("Acme");
other("INSERT INTO Vendors (Name) VALUES ('Acme Supply')");
post(10, "Check", "1/5/2026", "0SS", "40SS", 0, 50, {Address: "1 Mill Road"});
post(10, "Check", "1/5/2026", "40SS", "0SS", 50, 0, {SourceName: "Baker"});
post(11, "Check", "1/6/2026", "0SS", "<-Break Down->", 0, 60);
post(11, "Check", "1/6/2026", "3SS", "0SS", 60, 0, {Item: "Bolts"});
post(12, "Billcheck", "1/7/2026", "0SS", "AP1", 0, 70);
post(12, "Billcheck", "1/7/2026", "AP1", "0SS", 70, 0);
post(13, "Ledger Entry", "1/8/2026", "0SS", "<-Break Down->", 0, 80);
post(13, "Ledger Entry", "1/8/2026", "40SS", "0SS", 30, 0);
post(13, "Ledger Entry", "1/8/2026", "46SS", "0SS", 50, 0);
post(14, "Payment", "1/9/2026", "0SS", "AR1", 90, 0);
post(14, "Payment", "1/9/2026", "AR1", "0SS", 0, 90);
let w = register("Checking");
let g = w.grdRegister;
equal(w.lblTotal.value, "-$170.00");

// An expense check is written anew in two rows, and keeps its number, type, address and customer.
g.set(find(g, 10), "Payment", "55");
click(w.cmdRecord);
equal(sides(10), ["Check 0SS 40SS 0 55 55", "Check 40SS 0SS 55 0 55"]);
equal([ledger(10)[0].Address, ledger(10)[1].SourceName], ["1 Mill Road", "Baker"]);
equal(g.row(), find(g, 10));

// Checks with items and what other windows made are refused, and the line shows again what it was.
for (const number of [11, 12, 14]) {
  g.set(find(g, number), "Memo", "changed");
  box("Access Denied", "Cannot edit this Transaction type in register mode. Please go to the transaction for editing.");
  click(w.cmdRecord);
  equal(g.text(find(g, number), "Memo"), "");
  box("Break Down Denied",
      "Cannot Break Down this type of Transaction in Register Mode. Please 'Go to' the Transaction for editing.");
  click(w.cmdBreakdown);
}
equal(sounds(), ["stapler.wav"]);

rightclick(g, find(g, 14));
box("Confirm Delete", null, "Yes");
box("No Delete", "Payments can only be deleted from the payment screen.");
popup("mnuDelReg");
equal(ledger(14).length, 2);

// A ledger entry of more than two rows only takes its mark, on the one row.
g.set(find(g, 13), "Memo", "changed");
g.toggle(find(g, 13), "Clear");
box("Access Denied", null, "OK", "only whether it is cleared was recorded");
click(w.cmdRecord);
equal(ledger(13).map(function (row) { return row.Cleared + (row.Memo || ""); }), ["true", "false", "false"]);
equal(g.text(find(g, 13), "Memo"), "");

// Nothing to break down without an amount.
const end = g.rows;
g.row(end);
box("No Value", "Please enter a total Dollar value first before entering breakdown");
click(w.cmdBreakdown);

// A new line broken down: more than the amount on one side, the rest taken back on the other.
g.set(end, "Payment", "100");
g.set(end, "Category", "Freight In");
g.set(end, "Payee", "Acme Supply");
click(w.cmdBreakdown);
let lines = w.grdBreakDown;
equal([lines.rows, lines.text(0, "Account"), lines.text(0, "Amount")], [1, "Freight In", "100"]);
lines.set(0, "Amount", "120");
box("Not Equal", "Break Down Values do not equal Transaction amount");
click(w.cmdClose);
ok(w.fraBreakDown.visible, "the frame stays");
lines.set(1, "Account", "Bank Service Charges");
lines.set(1, "Amount", "-20");
lines.set(1, "Memo", "Refund");
lines.set(1, "Customer", "Acme Supply");
shot("frmRegister");
click(w.cmdClose);
ok(!w.fraBreakDown.visible);
equal([g.text(end, "Category"), g.text(end, "CatID")], ["<-Break Down->", ""]);
g.set(end, "Num", "77");
click(w.cmdRecord);
equal(sides(15), ["Ledger Entry 0SS <-Break Down-> 0 100 100", "Ledger Entry 37SS 0SS 120 0 120",
                  "Ledger Entry 46SS 0SS 0 20 20"]);
equal(ledger(15).map(function (row) { return [row.Number, row.Name, row.Memo]; }),
      [["77", "Acme Supply", undefined], ["77", undefined, undefined], ["77", "Acme Supply", "Refund"]]);

// Money coming in, broken down over two; recording closes the frame first, and leaving the line asks about it.
g.set(g.rows, "Deposit", "30");
key(w, "Alt+B");
lines.set(0, "Account", "Sales Income");
lines.set(1, "Account", "Service Income");
lines.set(1, "Amount", "10");
box("Not Equal", null);
key(w, "Alt+R");
equal(ledger(16), []);
lines.set(0, "Amount", "20");
box("Save Changes", null, "Yes");
g.row(0);
equal(sides(16), ["Ledger Entry 0SS <-Break Down-> 30 0 30", "Ledger Entry 29SS 0SS 0 20 20",
                  "Ledger Entry 30SS 0SS 0 10 10"]);

// One line left: the entry takes its category. The lines of an entry in the ledger come back as they were typed.
g.row(find(g, 10));
click(w.cmdBreakdown);
equal([lines.rows, lines.text(0, "Account"), lines.text(0, "Amount")], [1, "Advertising and Promotion", "55"]);
lines.set(0, "Account", "Job Materials");
click(w.cmdClose);
equal(g.text(find(g, 10), "Category"), "Job Materials");
click(w.cmdRecord);
equal(sides(10), ["Check 0SS 38SS 0 55 55", "Check 38SS 0SS 55 0 55"]);
g.row(find(g, 15));
click(w.cmdBreakdown);
equal([lines.text(0, "Amount"), lines.text(1, "Account"), lines.text(1, "Amount")], ["120", "Bank Service Charges", "-20"]);
click(w.cmdClose);

// A payee whose last entry was broken down brings the lines along.
g.set(g.rows, "Payee", "Acme Supply");
g.set(g.rows - 1, "Memo", "again");
equal([g.text(g.rows - 1, "Payment"), g.text(g.rows - 1, "Category")], ["100", "<-Break Down->"]);
click(w.cmdRecord);
equal(sides(17), sides(15));

// An amount that no longer fits its lines shows them.
g.set(g.rows, "Payee", "Acme Supply");
g.set(g.rows - 1, "Payment", "90");
box("Not Equal", null);
click(w.cmdRecord);
ok(w.fraBreakDown.visible);
box("Save Changes", null, "No");
click(w.cmdRefresh);
ok(!w.fraBreakDown.visible);

// Go to: the window of the transaction's kind, and nowhere from an empty line.
click(w.cmdGoto);
ok(!isOpen("frmCheck"));
g.row(find(g, 10));
click(w.cmdGoto);
equal(win("frmCheck").txtIndex.value, "10");
close(win("frmCheck"));
close(w);

// A ledger entry may stand here with several rows: its lines do not add up to one of them, which takes its mark alone.
for (const credit of [60, 40]) post(30, "Ledger Entry", "1/10/2026", "0SS", "<-Break Down->", 0, credit);
post(30, "Ledger Entry", "1/10/2026", "40SS", "<-Break Down->", 100, 0);
w = register("Checking");
g = w.grdRegister;
g.row(find(g, 30) + 1);
g.toggle(g.row(), "Clear");
click(w.cmdRecord);
equal(ledger(30).map(function (row) { return row.Cleared; }), [false, true, false]);
other("DELETE FROM Transactions WHERE TransNum = 30");
close(w);
equal(rows("SELECT Balance FROM Accounts WHERE CatID = '0SS'")[0].Balance, -345);
