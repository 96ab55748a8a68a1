// A check that repeats: made from the check book, listed, changed, entered at the next start, and gone when used up.
start();
newCompany("Acme");
menu("mnuChecks");
const w = win("frmCheck");
pick(w.cmbAccount, w.cmbAccount.items[0]);
type(w.txtAmount, "125");
w.grdExpense.set(0, "Category", "Rent");
w.grdExpense.set(0, "Amount", "125");
modal("frmModRepeat", function (m) {
  equal([m.caption, m.dteNextDate.value !== ""], ["Repeat Check", true]);
  box("Not Valid", "Please Enter all information in the form for Repeat Transaction.");
  click(m.cmdOk);
  type(m.txtName, "Shop rent");
  pick(m.cmbFreq, "Monthly");
  date(m.dteNextDate, "1/31/2026");
  type(m.txtAdvDays, "3");
  shot("frmModRepeat");
  click(m.cmdOk);
});
click(w.cmdRepeat);
equal(ledger(1)[0].Amount, 125, "the check was saved first");
const made = rows("SELECT * FROM RepeatTrans")[0];
equal([made.Name, made.Type, made.TransactionID, made.Amount, made.NumRemain, made.AnchorDay], ["Shop rent", "Check", 1, 125, null, 31]);
close(w);
menu("mnuRepeatList");
const l = win("frmRepeats"), g = l.grdList;
equal([l.caption, g.columns, g.rows, g.text(0, "Next Date")], ["Repeat Transactions", ["Name", "Type", "Source Category", "Amount", "Frequency", "Next Date"], 1, "1/31/2026"]);
modal("frmModRepeat", function (m) {
  equal([m.caption, m.cmbFreq.value, m.txtRepeat.value], ["Check Repeat", "Monthly", ""]);
  type(m.txtRepeat, "2");
  click(m.cmdOk);
});
g.dblclick(0);
shot("frmRepeats");

// Far behind, it catches up one period at each opening.
box("Added Check", "Repeat Transaction \"Shop rent\" was added to your Current Checks");
openCompany("Acme");
equal([ledger(2)[0].Date, ledger(2)[0].Number, rows("SELECT NextDate FROM RepeatTrans")[0].NextDate], ["1/31/2026", "Print", "2/28/2026"]);
box("Added Check", null);
box("No more Repeats", "Number of Repeats for \"Shop rent\" has run out. \"Shop rent\" has been removed.");
openCompany("Acme");
equal([rows("SELECT * FROM RepeatTrans"), ledger(3)[0].Date], [[], "2/28/2026"]);
equal(log(), []);
