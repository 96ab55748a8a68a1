// The three kinds of check that other windows write: what shows, what may change, and what deleting one frees.
start();
newCompany("Acme");
function write(fields) {
  const names = Object.keys(fields);
  const marks = names.map(function () { return "?"; }).join(", ");
  other.apply(null, ["INSERT INTO Transactions (" + names.join(", ") + ") VALUES (" + marks + ")"].concat(
    names.map(function (name) { return fields[name]; })));
}
const money = 1;
function bank(number, type, name, amount, category) {
  write({TransNum: number, Type: type, Date: "2026-03-0" + number, Number: "n" + number, Name: name, Account: "0SS",
         Category: category, Debit: 0, Credit: amount * money, Amount: amount * money});
}

// 1 pays two bills, one of them together with another check.
bank(1, "Billcheck", "Acme Supply", 300, "AP1");
write({TransNum: 1, Type: "Billcheck", Date: "2026-03-01", Number: "n1", Name: "Acme Supply", Account: "AP1", Category: "0SS",
       Debit: 300 * money, Credit: 0, Amount: 300 * money});
write({TransNum: 9, Type: "Ledger Entry", Date: "2026-03-09", Number: "n9", Name: "Acme Supply", Account: "AP1", Category: "0SS",
       Debit: 100 * money, Credit: 0, Amount: 100 * money});
for (const bill of [[20, "B-20", "1;"], [21, "B-21", "1;9;"]]) {
  write({TransNum: bill[0], Type: "Bill", Date: "2026-02-01", DueDate: "2026-03-03", Number: bill[1], Name: "Acme Supply",
         Account: "AP1", Category: "42SS", Credit: 100 * money, Debit: 0, Amount: 100 * money, Paid: -1, PaidBy: bill[2]});
}
// 2 is a paycheck, 3 a payroll liability payment, 4 a sales tax payment.
bank(2, "Paycheck", "Jo Park", 800, "<-Break Down->");
for (const line of [["Salary", 40, 1000], ["Overtime", 2.5, 100]]) {
  write({TransNum: 2, Type: "Paycheck", Date: "2026-03-02", Number: "n2", Name: "Jo Park", Account: "42SS", Category: "0SS",
         PayrollItem: line[0], Hours: line[1], PayPeriod: "3/1/2026 - 3/14/2026", Debit: line[2] * money, Credit: 0,
         Amount: line[2] * money});
}
bank(3, "Liabilitycheck", "State", 90, "<-Break Down->");
write({TransNum: 3, Type: "Liabilitycheck", Date: "2026-03-03", Number: "n3", Name: "State", Account: "19SS", Category: "0SS",
       PayrollItem: "State Withholding", PaidThrough: "2026-02-28", Debit: 90 * money, Credit: 0, Amount: 90 * money});
bank(4, "Liabilitycheck", "Revenue", 70, "<-Break Down->");
write({TransNum: 4, Type: "Liabilitycheck", Date: "2026-03-04", Number: "n4", Name: "Revenue", Account: "13SS", Category: "0SS",
       Item: "Sales Tax", PaidThrough: "2026-02-28", Debit: 70 * money, Credit: 0, Amount: 70 * money});

menu("mnuChecks");
const w = win("frmCheck");
function enabled() {
  return [w.txtNumber, w.DTPicker1, w.cmbPayee, w.txtAmount, w.txtMemo, w.cmbAccount].map(function (field) {
    return field.enabled;
  });
}
click(w.cmdPrev);
equal([w.txtIndex.value, w.fraLiability.visible, w.SSTab1.visible, w.lblPaidThrough.value], ["4", true, false, "2/28/2026"]);
equal([w.grdLiabilities.rows, w.grdLiabilities.text(0, 0), w.grdLiabilities.text(0, 1)], [1, "Sales Tax", "70"]);
shot("frmCheck");
click(w.cmdPrev);
equal([w.txtIndex.value, w.grdLiabilities.text(0, 0)], ["3", "State Withholding"]);
equal(enabled(), [true, true, true, false, false, false]);
date(w.DTPicker1, "3/5/2026");
type(w.txtNumber, "88");
modal("frmNewPayee", function (p) { click(p.cmdOk); });
type(w.cmbPayee, "State Revenue");
click(w.cmdPrev);
equal(ledger(3).map(function (r) { return [r.Date, r.Number, r.Name, r.Amount, r.Account]; }),
      [["3/5/2026", "88", "State Revenue", 90, "0SS"], ["3/5/2026", "88", "State Revenue", 90, "19SS"]]);

// The changed date put 3 behind 4: before it comes the paycheck, by date.
equal([w.txtIndex.value, w.fraLiability.visible], ["4", true]);
click(w.cmdPrev);
equal([w.txtIndex.value, w.fraPaycheck.visible, w.lblPayPeriod.value, w.lblHours.value],
      ["2", true, "3/1/2026 - 3/14/2026", "42.5"]);
equal(enabled(), [true, true, false, false, false, false]);
ok(w.cmdEditPayCheck.enabled);
date(w.DTPicker1, "3/6/2026");
click(w.cmdOk);
equal(ledger(2).map(function (r) { return [r.Date, r.Number, r.Amount]; }),
      [["3/6/2026", "n2", 800], ["3/6/2026", "n2", 1000], ["3/6/2026", "n2", 100]]);

menu("mnuChecks");
const again = win("frmCheck");
for (let i = 0; i < 4; ++i) click(again.cmdPrev);
equal([again.txtIndex.value, again.fraBill.visible], ["1", true]);
equal([again.grdBills.rows, again.grdBills.text(0, "Number"), again.grdBills.text(0, "Amount")], [1, "B-20", "100"]);
ok(!again.DTPicker1.enabled && again.txtNumber.enabled, "only its number");
shot("frmCheck");

// Deleting a bill payment frees the bill that it alone paid.
box("Confirm Delete", "Are you sure you want to delete this Check?", "Enter",  // keeps it
    "Delete Billcheck ");
click(again.cmdDelete);
equal(ledger(1).length, 2);
other("UPDATE Transactions SET Cleared = -1 WHERE TransNum = 1");
click(again.cmdNext);
click(again.cmdPrev);
box("Confirm Delete", null, "Yes");
box("Transaction Cleared",
    "This Transaction has been cleared by your bank, are you sure you want to delete this transaction?", "No");
click(again.cmdDelete);
equal(ledger(1).length, 2);
box("Confirm Delete", null, "Yes");
box("Transaction Cleared", null, "Yes");
click(again.cmdDelete);
equal(ledger(1), []);
equal(rows("SELECT TransNum, Paid, PaidBy FROM Transactions WHERE Type = 'Bill' ORDER BY TransNum"),
      [{TransNum: 20, Paid: false, PaidBy: null}, {TransNum: 21, Paid: true, PaidBy: "9;"}]);
equal(log(), []);
