// What every report window can do: dates or none, columns left out, empty groups left out, a note on how it counts.
start();
newCompany("Acme");
other("DELETE FROM Accounts WHERE AccountType LIKE '*Income*' OR AccountType LIKE '*Expense*' OR " +
      "AccountType = 'Cost of Goods Sold'");
for (const [id, name, type, parent] of [["I1", "Sales", "Income", null], ["I2", "Repairs", "Income", "I1"],
                                        ["E1", "Rent", "Expense", null]])
  other("INSERT INTO Accounts (CatID, AccountName, AccountType, ParentAccount) VALUES (?, ?, ?, ?)", id, name, type,
        parent);
for (const name of ["Ann", "Bob", "Smith, Jr."]) other("INSERT INTO Customers (Name) VALUES (?)", name);
function post(number, type, day, name, account, breakDown, debit, credit) {
  other("INSERT INTO Transactions (TransNum, Type, Date, Name, Account, Category, Debit, Credit, Amount) " +
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)", number, type, day, name, account, breakDown, debit, credit,
        debit || credit);
}
post(1, "Deposit", "6/2/2026", "Smith, Jr.", "I2", "BK1", 0, 224667.1499);
post(2, "Deposit", "2/2/2026", "Ann", "BK1", "I1", 80.25, 0);
const captions = (g) => g.columns.filter((caption) => caption !== "");
const labels = (g) => {
  const all = [];
  for (let row = 0; row < g.rows; ++row) if (g.text(row, 1).trim()) all.push(g.text(row, 1).trim());
  return all;
};

// A statement: columns that are picked stay so when the dates change and their captions with them.
menu("mnuRYTDPL");
let w = win("frmPrintPL2");
ok(/counts? when invoices are paid.*sub-categories twice/.test(w.lblNote.value), w.lblNote.value);
equal(w.grdPL.text(1, 2), "224667.1499", "shown as cents, exact beneath");
modal("frmSelectFields", function (d) {
  equal(d.grdFields.rows, 2);
  d.grdFields.select([0]);
  click(d.cmdOk);
});
click(w.cmdPick);
equal(captions(w.grdPL), ["6/1/2026 - 6/15/2026"]);
date(w.dteStart, "5/1/2026");
equal(captions(w.grdPL), ["5/1/2026 - 6/15/2026"]);
option(w.optBasis, 1);
ok(w.lblNote.visible, "it compares still");
menu("mnuRBasic");
option(w.optBasis, 1);
equal(w.lblNote.visible, false, "on accrual basis there is nothing to say");

// What shows nothing goes and comes back; the choice stays with the window's report.
check(w.chkEmpty, true);
equal(labels(w.grdPL), ["Income", "Sales", "Repairs", "Total Income", "Gross Profit", "Net Income"]);
menu("mnuPLCustomer");
equal(captions(w.grdPL), ["Ann", "Bob", "Smith, Jr.", "Total"]);
check(w.chkEmpty, true);
equal(captions(w.grdPL), ["Smith, Jr.", "Total"]);
check(w.chkEmpty, false);
ok(labels(w.grdPL).includes("Total Expense"));

// Names may have commas: a column picked by such a name is that one.
modal("frmSelectFields", function (d) {
  equal(d.grdFields.text(2, 0), "Smith, Jr.");
  d.grdFields.select([2]);
  click(d.cmdOk);
});
click(w.cmdPick);
equal(captions(w.grdPL), ["Smith, Jr."]);

// Names without rows, and none with rows to hide.
menu("mnuPrintTranCus");
w = win("frmPrintCustom");
equal(labels(w.grdPL).slice(0, 3), ["Ann", "Bob", "Smith, Jr."]);
check(w.chkEmpty, true);
equal([w.grdPL.text(0, 1), w.grdPL.style(0)], ["Smith, Jr.", "Bold"]);
close(w);
menu("mnuPrintTranDate");
w = win("frmPrintCustom");
equal(w.chkEmpty.visible, false, "there is nothing to hide here");
close(w);

// A list as it stands asks for no dates and leads nowhere.
menu("mnuListCategory");
w = win("frmPrintListCat");
equal([w.Label6.value, w.Label4.value], ["Category Listing", "Monday, June 15, 2026"]);
equal([w.dteStart.visible, w.dteEnd.visible, w.cmbDate.visible, w.cmdGoto.visible], [false, false, false, false]);
equal(captions(w.grdPL), ["Category", "Type", "Acct #", "Balance"]);
click(w.cmdRefresh);
equal(w.Label4.value, "Monday, June 15, 2026");
