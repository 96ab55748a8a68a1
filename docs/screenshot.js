// Makes docs/tallymere.png from the sample company:
//   tallymere-drive docs/screenshot.js --folder build/release/bin --shots docs
start();
openCompany("Sample Company");
menu("mnuAccounts");
const list = win("frmAccounts").grdAccounts;
for (let row = 0; row < list.rows; ++row)
  if (list.text(row, 0) === "Checking") { list.dblclick(row); break; }
tool("btnChecks");
const check = win("frmCheck");
pick(check.cmbPayee, "Novak Nursery");
type(check.txtAmount, "1284.5");
type(check.txtMemo, "Maples and serviceberries");
check.grdExpense.set(0, 0, "Job Materials");
check.grdExpense.set(0, 1, "984.50");
check.grdExpense.set(1, 0, "Equipment Rental");
check.grdExpense.set(1, 1, "300");
shot("tallymere");
