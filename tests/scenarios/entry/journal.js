// The general journal: lines that balance themselves, what is refused, entries of others, by whom they are opened.
start();
newCompany("Acme");
other("INSERT INTO Vendors (Name) VALUES ('Acme Supply')");
menu("mnuJournal");
let w = win("frmJournal");
let g = w.grdLedger;
equal([w.caption, w.txtIndex.value, w.cmdPrev.caption, g.columns.slice(0, 6).join()],
      ["Ledger", "1", "&Previous", "Category,Credit,Debit,Memo,Name,Class"]);
date(w.dteDate, "6/1/2026");
type(w.txtEntryID, "J1");
g.set(0, "Category", "office supp");
box("Value Error", "Please Enter a Dollar Value.");
try { g.set(0, "Debit", "ten"); } catch (refused) { }
equal(g.text(0, "Debit"), "");
g.set(0, "Debit", "100");
g.set(0, "Class", "North");

// The next line comes up with what balances; left alone it is nothing.
g.row(1);
equal([g.rows, g.text(1, "Credit"), g.text(1, "Debit")], [2, "100", ""]);
g.row(0);
box("Balance Error", "This Entry Does not Balance. Debits and Credits must equal zero.");
click(w.cmdOk);
g.set(1, "Category", "Checking");
equal(w.lblTotals.value, "Credits 100.00, Debits 100.00");
shot("frmJournal");
click(w.cmdNext);
equal(ledger(1).map(function (r) { return [r.Type, r.Number, r.Account, r.Category, r.Debit, r.Credit, r.Class]; }),
      [["Ledger Entry", "J1", "66SS", "0SS", 100, 0, "North"], ["Ledger Entry", "J1", "0SS", "66SS", 0, 100, undefined]]);
equal([rows("SELECT Class FROM Class").length, w.txtIndex.value, g.rows], [1, "2", 0]);

// A value without a category, a category without a value, both values on one line.
box("No Category", "Please Enter a Categorry for each entry line");
g.set(0, "Credit", "5");
click(w.cmdOk);
ok(isOpen("frmJournal"));
g.set(0, "Category", "Checking");
g.set(0, "Debit", "5");
box("Balance Error", "A line takes either a Credit or a Debit. Please enter them on two lines.");
click(w.cmdOk);
click(w.cmdCancel);
equal(ledger(2), []);

// A new category is asked for; a cleared entry of another user's hand keeps what the journal does not show.
other("UPDATE Transactions SET Address = '1 Mill Road', Cleared = -1 WHERE TransNum = 1");
menu("mnuJournal");
w = win("frmJournal");
g = w.grdLedger;
click(w.cmdPrev);
equal([w.txtEntryID.value, g.rows, g.text(0, "Debit"), g.text(1, "Credit")], ["J1", 2, "100", "100"]);
modal("frmModAccount", function (m) {
  equal(m.txtName.value, "Tents");
  pick(m.cmbType, "Expense");
  click(m.cmdOk);
});
g.set(0, "Category", "Tents");
click(w.cmdOk);
equal(ledger(1).map(function (r) { return [r.Address, r.Cleared]; }), [["1 Mill Road", true], ["1 Mill Road", true]]);
equal(rows("SELECT AccountName FROM Accounts WHERE CatID = ?", ledger(1)[0].Account)[0].AccountName, "Tents");

// From the register to its entry; another user is faster; deleting asks twice.
menu("mnuAccounts");
const list = win("frmAccounts").grdAccounts;
for (let row = 0; row < list.rows; ++row)
  if (list.text(row, 0).trim() === "Checking") { list.dblclick(row); break; }
const reg = win("frmRegister");
reg.grdRegister.row(0);
click(reg.cmdGoto);
w = win("frmJournal");
g = w.grdLedger;
equal([w.txtIndex.value, g.rows], ["1", 2]);
other("UPDATE Transactions SET Memo = 'theirs' WHERE TransNum = 1");
g.set(0, "Memo", "mine");
box("Data has changed", null);
click(w.cmdNext);
equal([w.txtIndex.value, g.text(0, "Memo")], ["1", "theirs"]);
box("Delete Entry", "Are you sure you want to Delete this Ledger Entry?", "Yes");
box("Delete Entry", "This transaction has been cleared, Are you sure you want to Delete this Ledger Entry?", "Yes");
click(w.cmdDelete);
equal([ledger(1), g.rows], [[], 0]);
close(w);
equal(log(), []);
