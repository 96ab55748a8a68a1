// The income statement's six variants and the four by name: figures, dates, basis, the way to the transactions.
const today = "6/15/2026";

function category(id, name, type, parent) {
  other("INSERT INTO Accounts (CatID, AccountName, AccountType, ParentAccount) VALUES (?, ?, ?, ?)", id, name, type,
        parent || null);
}

function post(number, type, day, name, account, breakDown, debit, credit, more) {
  const row = Object.assign({TransNum: number, Type: type, Date: day, Name: name, Account: account,
                             Category: breakDown, Debit: debit, Credit: credit, Amount: debit || credit,
                             Paid: false}, more || {});
  const fields = Object.keys(row);
  other("INSERT INTO Transactions (" + fields.join(", ") + ") VALUES (" + fields.map(() => "?").join(", ") + ")",
        ...fields.map((field) => row[field]));
}

/// The amounts of the row with this label, from its own column on.
function figures(g, label) {
  for (let row = 0; row < g.rows; ++row)
    if (g.text(row, 1) === label) {
      const all = [];
      for (let column = 2; column < g.columns.length; ++column) all.push(g.text(row, column));
      return all.filter((text) => text !== "");
    }
  throw new Error("no row " + label);
}
const rowOf = (g, label) => {
  for (let row = 0; row < g.rows; ++row) if (g.text(row, 1) === label) return row;
  throw new Error("no row " + label);
};

start();
newCompany("Acme");
other("DELETE FROM Accounts WHERE AccountType LIKE '*Income*' OR AccountType LIKE '*Expense*' OR AccountType = 'Cost of Goods Sold'");
category("I1", "Sales", "Income");
category("I2", "Repairs", "Income", "I1");
category("E1", "Rent", "Expense");
other("INSERT INTO Customers (Name) VALUES (?)", "O'Hara Flowers");
other("INSERT INTO Vendors (Name) VALUES (?)", "City Land");
other("INSERT INTO Class (Class) VALUES (?)", "Retail");
// An invoice of 1,000 of which 400 was paid, a repair paid on the spot, a paid check for the rent of May.
post(901, "Invoice", "6/2/2026", "O'Hara Flowers", "AR1", "I1", 1000, 0, {PaidBy: "902;"});
post(901, "Invoice", "6/2/2026", "O'Hara Flowers", "I1", "AR1", 0, 1000, {PaidBy: "902;", Class: "Retail"});
post(902, "Payment", "6/9/2026", "O'Hara Flowers", "AR1", "BK1", 0, 400);
post(903, "Deposit", "6/10/2026", "O'Hara Flowers", "I2", "BK1", 0, 50);
post(904, "Check", "5/3/2026", "City Land", "E1", "BK1", 300, 0);

menu("mnuRBasic");
let w = win("frmPrintPL2");
let g = w.grdPL;
equal([w.Label6.value, w.Label5.value, w.Label4.value], ["Profit And Loss", "Acme", "6/1/2026 - 6/15/2026"]);
equal(g.text(0, 1), "Income");
equal(g.style(0), "sBold");
equal(figures(g, "     Sales"), ["450"], "400 of 1,000 was paid, and the repair below");
equal(figures(g, "          Repairs"), ["50"]);
equal(figures(g, "Total Income"), ["450"], "the parent's figure holds the repair once");
equal(g.style(rowOf(g, "Total Income")), "sBold");
equal(figures(g, "Net Income"), ["450"]);

// The basis and the dates show at once; Refresh takes in what was entered meanwhile.
option(w.optBasis, 1);
equal(figures(g, "Total Income"), ["1050"]);
date(w.dteStart, "5/1/2026");
equal(w.Label4.value, "5/1/2026 - 6/15/2026");
equal(figures(g, "Net Income"), ["750"]);
pick(w.cmbDate, "Last Month");
equal([w.dteStart.value, w.dteEnd.value], ["5/1/2026", "5/31/2026"]);
equal(figures(g, "Net Income"), ["-300"]);
post(905, "Check", "5/4/2026", "City Land", "E1", "BK1", 25, 0);
equal(figures(g, "Net Income"), ["-300"], "a report does not follow entries");
click(w.cmdRefresh);
equal(figures(g, "Net Income"), ["-325"]);

// Another title builds the report again; Cancel leaves all as it was.
modal("frmChangeTitle", function (d) {
  equal(d.caption, "Enter Title");
  equal(d.Text1.value, "Profit And Loss");
  type(d.Text1, "Income of May");
  click(d.cmdOk);
});
click(w.cmdLabel);
equal(w.Label6.value, "Income of May");
modal("frmChangeTitle", function (d) { type(d.Text1, "No"); click(d.cmdCancel); });
click(w.cmdLabel);
equal(w.Label6.value, "Income of May");

// From a category to its transactions, up to the report's end; a head leads nowhere.
g.row(0);
click(w.cmdGoto);
ok(!isOpen("frmPrintCustom"), "a head has no transactions");
g.dblclick(rowOf(g, "     Rent"));
let list = win("frmPrintCustom");
equal(list.Label6.value, "Category Report: Rent");
equal([list.dteStart.value, list.dteEnd.value], ["1/1/2026", "5/31/2026"]);
equal(list.grdPL.rows, 4, "two checks, a blank row, the total");
equal(list.grdPL.text(3, "Amount"), "325");
close(list);

// The other variants are the same window under another key.
const variants = {
  mnuRYTDPL: ["Profit And Loss Year To Date Comparioson", "6/1/2026"],
  mnuPrevYear: ["Profit And Loss Previous Year Comparioson", "1/1/2026"],
  mnuPLCustomer: ["Profit And Loss Previous by Customer", "1/1/2026"],
  mnuPLClass: ["Profit And Loss Previous by Class", "1/1/2026"],
  mnuPLDetail: ["Profit And Loss", "1/1/2026"]
};
for (const command in variants) {
  menu(command);
  equal(wins("frmPrintPL2").length, 1);
  w = win("frmPrintPL2");
  g = w.grdPL;
  equal([w.Label6.value, w.dteStart.value, w.dteEnd.value], [...variants[command], today], command);
  option(w.optBasis, 1);
  const shown = {
    mnuRYTDPL: ["1050", "1100"], mnuPrevYear: ["1050", "0"], mnuPLCustomer: ["1100", "1050"],
    mnuPLClass: ["1000", "1050"], mnuPLDetail: ["1050"]
  };
  equal(figures(g, "Total Income"), shown[command], command + ": columns of comparison hold sub-categories twice");
}
equal(w.cmdGoto.visible, false, "the detailed statement leads nowhere");
equal(g.text(rowOf(g, "     Rent") + 1, "Name"), "City Land");

// Income by customer, expenses by vendor.
menu("mnuPLIncSum");
w = win("frmPrintPLName");
option(w.optBasis, 1);
equal(w.Label6.value, "Customer Income Summary");
equal(figures(w.grdPL, "O'Hara Flowers"), ["1050"]);
menu("mnuPLIncDetail");
equal(w.Label6.value, "Customer Income Detail");
menu("mnuPLExpSum");
equal(w.Label6.value, "Vendor Expenses Summary");
equal(figures(w.grdPL, "City Land"), ["325"]);
menu("mnuPLExpVen");
equal(w.Label6.value, "Vendor Expenses Detail");
equal(w.grdPL.text(1, "Amount"), "300");
w.grdPL.dblclick(1);
ok(!isOpen("frmPrintCustom"), "a double click does nothing here");
