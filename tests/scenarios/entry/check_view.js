// Checks of any lines are seen and left as they are; a cell that is only opened keeps what it stands for.
start();
newCompany("Acme");
other("INSERT INTO Vendors (Name) VALUES ('Acme Supply')");
other("INSERT INTO Items (ItemName, ItemType, ItemCat) VALUES ('Labor', 'Service', '39SS')");
// A category that no list shows: its parent is gone.
other("INSERT INTO Accounts (CatID, AccountName, AccountType, ParentAccount) VALUES ('900SS', 'Lost', 'Expense', 'gone')");
function write(number, account, category, debit, credit, more) {
  const fields = Object.assign({TransNum: number, Type: "Check", Date: "2026-03-0" + number, Name: "Acme Supply",
                                Number: "n" + number, Account: account, Category: category}, more);
  const names = Object.keys(fields).concat(["Debit", "Credit", "Amount"]);
  const values = Object.keys(fields).map(function (name) { return fields[name]; });
  other("INSERT INTO Transactions (" + names.join(", ") + ") VALUES (" + names.map(function () { return "?"; }).join(", ") + ")",
        ...values.concat([debit, credit, debit + credit]));
}
write(1, "0SS", "<-Break Down->", 0, 70.25, {Memo: "head"});
write(1, "900SS", "0SS", 90.2575, 0, {Memo: "lost", SourceName: "Baker", Cleared: -1});
write(1, "66SS", "0SS", 0, 20.0075, {Memo: "back", Name: "Another", Address: "Elsewhere"});
write(2, "0SS", "<-Break Down->", 12.5, 0, {});
write(2, "39SS", "0SS", 0, 12.5, {Item: "Labor", Qty: 0.125, SalePrice: -100, Memo: "kept", Taxable: -1});
write(3, "0SS", "66SS", 0, 5, {});
write(3, "66SS", "0SS", 5, 0, {Name: null, Class: "none"});

function all() { return [1, 2, 3].map(ledger); }
const before = all();
menu("mnuChecks");
const w = win("frmCheck");
const expense = w.grdExpense;
for (let i = 0; i < 3; ++i) click(w.cmdPrev);
equal([w.txtIndex.value, expense.rows, expense.text(0, "Amount"), expense.text(1, "Amount")],
      ["1", 2, "90.2575", "-20.0075"]);
shot("frmCheck");

// The cell of the lost category is opened and left, and typed over with what it says.
expense.row(0);
key(expense, "F2");
key(expense, "Tab");
expense.set(0, "Category", "Lost");
equal(expense.text(0, "CatID"), "900SS");
for (let i = 0; i < 3; ++i) click(w.cmdNext);
equal(all(), before, "seen and left");

// Amounts are reckoned; what is assigned and what is left stands below, and the next line is offered it.
type(w.cmbPayee, "Acme Supply");
type(w.txtAmount, "60+3*13.50");
equal(w.txtAmount.value, "100.50");
expense.set(0, "Category", "Office Supplies");
expense.set(0, "Amount", "100/4");
equal([expense.text(0, "Amount"), w.lblAssigned.value], ["25", "Assigned 25.00, left 75.50"]);
expense.set(1, "Category", "Automobile");
equal([expense.text(1, "Amount"), w.lblAssigned.value], ["75.5", "Assigned 100.50, left 0.00"]);
shot("frmCheck_assigned");

// The save made "Automobile - Other": it is in the list at once, here and in a register.
const listed = function () { return rows("SELECT CatID FROM Accounts WHERE AccountName = 'Automobile - Other'"); };
equal(listed().length, 0);
key(w, "Ctrl+Enter");
const child = listed()[0].CatID;
expense.set(0, "Category", "Automobile - O");
equal([expense.text(0, "Category"), expense.text(0, "CatID")], ["Automobile - Other", child], "completed, not asked about");
expense.remove(0);

// What no list shows is no new category: neither what lost its parent nor what another user just made.
other("INSERT INTO Accounts (CatID, AccountName, AccountType) VALUES ('902SS', 'Quite New', 'Expense')");
expense.set(0, "Category", "Lost");
expense.set(1, "Category", "Quite New");
expense.row(2);
equal([expense.text(0, "CatID"), expense.text(1, "CatID")], ["900SS", "902SS"]);
for (let i = 0; i < 2; ++i) expense.remove(0);
click(w.cmdOk);

menu("mnuAccounts");
const list = win("frmAccounts");
list.grdAccounts.dblclick(0);
const reg = win("frmRegister").grdRegister;
const end = reg.rows;
reg.set(end, "Payment", "5+5");
equal(reg.text(end, "Payment"), "10");
reg.set(end, "Category", "Lost");
click(win("frmRegister").cmdRecord);
equal(rows("SELECT Account, Category, Debit, Credit FROM Transactions WHERE Account = '0SS' ORDER BY TransNum DESC")[0],
      {Account: "0SS", Category: "900SS", Debit: 0, Credit: 10});
