// Registers of every kind of category, side by side, and long ones.
function register(name) {
  menu("mnuAccounts");
  const list = win("frmAccounts").grdAccounts;
  for (let row = 0; row < list.rows; ++row)
    if (list.text(row, 0).trim() === name) { list.dblclick(row); return win("frmRegister"); }
  throw new Error("no category " + name);
}
function post(number, day, account, category, debit, credit) {
  other("INSERT INTO Transactions (TransNum, Type, Date, Number, Name, Account, Category, Debit, Credit, Amount) " +
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)", number, "Ledger Entry", day, String(number), "Payee " + number, account,
        category, debit, credit, debit || credit);
}
start();
newCompany("Acme");
post(1, "1/1/2026", "AR1", "29SS", 100, 0);
post(2, "1/2/2026", "12SS", "40SS", 0, 40);
post(3, "1/3/2026", "24SS", "0SS", 15, 0);
post(4, "1/4/2026", "AP1", "40SS", 0, 25);
post(5, "1/5/2026", "9SS", "0SS", 60, 0);

// What the two amounts are called, and which way the balance runs.
const kinds = {
  "Accounts Receivable": ["Amt Rec'd", "Amt Billed", "$100.00"],
  "Accounts Payable": ["Billed", "Paid", "$25.00"],
  "Line of Credit": ["Increase", "Decrease", "$0.00"],
  "Bank Loan": ["Increase", "Decrease", "-$15.00"],
  "Undeposited Funds": ["Decrease", "Increase", "$0.00"],
  "Machinery and Equipment": ["Decrease", "Increase", "$60.00"],
  "Company Credit Card": ["Charge", "Payment", "$40.00"],
  "Savings": ["Payment", "Deposit", "$0.00"]
};
for (const name in kinds) {
  const w = register(name);
  equal([w.grdRegister.columns[6], w.grdRegister.columns[8], w.lblTotal.value], kinds[name], name);
}
equal(wins("frmRegister").length, 8);

// Receivables and payables take no new line; what is there can be looked at.
const receivable = wins("frmRegister")[0];
equal([receivable.grdRegister.rows, receivable.grdRegister.row()], [1, 0]);
let refused = false;
try { receivable.grdRegister.set(1, "Memo", "x"); } catch (e) { refused = true; }
ok(refused, "no new line");
receivable.grdRegister.set(0, "Memo", "noted");
click(receivable.cmdRecord);
equal(ledger(1).map(function (row) { return [row.Account, row.Debit, row.Credit, row.Memo]; }),
      [["AR1", 100, 0, "noted"], ["29SS", 0, 100, "noted"]]);

// A card and a bank side by side: what one records the other shows, unless something is being typed there.
const card = wins("frmRegister")[6], bank = wins("frmRegister")[7];
card.grdRegister.set(1, "Category", "Savings");
card.grdRegister.set(1, "Payment", "40");
click(card.cmdRecord);
equal([card.lblTotal.value, bank.lblTotal.value, bank.grdRegister.text(0, "Category")],
      ["$0.00", "-$40.00", "Company Credit Card"]);
bank.grdRegister.set(1, "Memo", "half a line");
card.grdRegister.set(2, "Category", "Savings");
card.grdRegister.set(2, "Payment", "1");
click(card.cmdRecord);
equal([bank.grdRegister.rows, bank.grdRegister.text(1, "Memo")], [2, "half a line"]);
box("Save Changes", null, "No");
bank.grdRegister.row(0);
equal([bank.grdRegister.rows, bank.lblTotal.value], [2, "-$41.00"]);
while (isOpen("frmRegister")) close(win("frmRegister"));
equal(rows("SELECT CatID, Balance FROM Accounts WHERE Balance <> 0 ORDER BY CatID").map(function (row) {
  return row.CatID + " " + row.Balance; }), ["1SS -41", "24SS -15", "9SS 60", "AP1 25", "AR1 100", "12SS -1"].sort());

// Dates rule the order, then numbers; the balance is walked over lines that are not read yet.
for (let number = 10; number < 31; ++number) post(number, "2/" + (number - 9) + "/2026", "2SS", "40SS", 0, 1);
let cash = register("Petty Cash");
equal([cash.grdRegister.rows, cash.grdRegister.row(), cash.lblTotal.value], [21, 21, "-$21.00"]);
equal(cash.datReg.value, "2/21/2026", "the date of the line above");
equal([cash.grdRegister.text(20, "Balance"), cash.grdRegister.text(0, "Num"), cash.grdRegister.text(0, "Balance")],
      ["-21", "10", "-1"]);
cash.grdRegister.row(0);
equal([cash.datReg.value, cash.grdRegister.text(0, "Payee"), cash.grdRegister.text(1, "Balance")], ["2/1/2026", "Payee 10", "-2"]);
shot("frmRegister");

// A dark sheet is written on in light letters.
other("UPDATE Colors SET Color = ? WHERE Items = ?", 0x402010, "RegBack");
close(cash);
cash = register("Petty Cash");
shot("dark_sheet");
equal(log(), []);
