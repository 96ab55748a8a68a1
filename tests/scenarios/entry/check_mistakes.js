// Every box of the check book, in the order in which they are met, and where the focus goes.
start();
newCompany("Acme");
other("INSERT INTO Vendors (Name) VALUES ('Acme Supply')");
menu("mnuChecks");
let w = win("frmCheck");
const expense = w.grdExpense;
const information = "Please enter a Category for this Expense";

// Neither payee nor amount: nothing to save.
click(w.cmdNext);
equal(rows("SELECT TransNum FROM Transactions"), []);

type(w.cmbPayee, "Acme Supply");
box("No Amount", "Please enter an amount for this check.");
click(w.cmdNext);
ok(w.txtAmount.focused, "on the amount");

box("To many Decimals", "Max number of decimal places is 2");
type(w.txtAmount, "12.345");
equal([w.txtAmount.value, w.lblAmount.value], ["", ""]);
box("Number to large", "Number is to large to compute");
type(w.txtAmount, "21474836.48");
equal(w.txtAmount.value, "");
type(w.txtAmount, "21474836.47");
equal(w.txtAmount.value, "21,474,836.47");
type(w.txtAmount, ".05");
equal(w.txtAmount.value, ".05");
equal(w.lblAmount.value.replace(/^(\* )+/, ""), " and 05/100");
type(w.txtAmount, "20");
equal(w.lblAmount.value.replace(/^(\* )+/, ""), "Twenty  and 00/100", "two blanks after a round ten");


// Each change of the amount proposed its rest on another line.
equal([expense.rows, expense.text(1, "Amount"), expense.text(2, "Amount")], [3, "-21474836.42", "19.95"]);
expense.remove(2);
expense.remove(1);
expense.set(0, "Amount", "20");
box("No Category", information);
click(w.cmdNext);
ok(expense.focused, "on the line");

// Text that is no category: first the offer to make one, then the refusal.
modal("frmModAccount", function (m) {
  equal(m.txtName.value, "Zeppelins");
  click(m.cmdCancel);
});
box("No Category", "Please enter a Valid Category for this Expense");
expense.set(0, "Category", "Zeppelins");
click(w.cmdNext);
ok(expense.focused, "on the line");

expense.set(0, "Category", "Fuel");
expense.set(0, "Amount", "12");
box("No Balance", "Transaction does not Balance");
click(w.cmdNext);

expense.set(0, "Category", "Checking");
expense.set(0, "Amount", "20");
box("Invalid Category",
    "Cannot Assign Category to Transaction that is also the Category that you are editing.");
click(w.cmdNext);

pick(w.SSTab1, "&Items");
box("No Category", "Please enter a Item for this Expense");
click(w.cmdNext);
ok(w.grdItems.focused, "on the items");
pick(w.SSTab1, "E&xpenses");
equal(rows("SELECT TransNum FROM Transactions"), [], "nothing of all that was written");

// Printing saves first and needs a number.
expense.set(0, "Category", "Fuel");
box("No Number", "Please Enter a check number for this check.");
click(w.cmdPrint);
ok(w.txtNumber.focused, "on the number");
equal(ledger(1).length, 2);
type(w.txtNumber, "7");
modal("frmPrintCheck", function (preview) { click(preview.cmdClose); });
click(w.cmdPrint);
equal(ledger(1)[0].Number, "7");

// Words are no amount of a line: the cell keeps what it had.
let refused = false;
try {
  expense.set(0, "Amount", "much");
} catch (error) {
  refused = true;
}
ok(refused);
equal(expense.text(0, "Amount"), "20");

// A company without a default bank: the check is written on none until one is chosen.
click(w.cmdOk);
other("DELETE FROM GeneralPrefs WHERE Preference = 'DefaultBank'");
menu("mnuChecks");
w = win("frmCheck");
equal([w.cmbAccount.value, w.lblBankID.value], ["", ""]);
pick(w.cmbPayee, "Acme Supply");
type(w.txtAmount, "3");
w.grdExpense.set(0, "Category", "Fuel");
box("No Bank", null);
click(w.cmdOk);
ok(w.cmbAccount.focused, "on the bank");
pick(w.cmbAccount, "Savings");
click(w.cmdOk);
equal(ledger(2)[0].Account, "1SS");
equal(log(), []);
