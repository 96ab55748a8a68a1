// Layouts: written out, drawn on, faulty; and the test page.
start();
newCompany("Acme");
menu("mnuLayouts");
const w = win("frmLayouts");
equal([w.grdLayouts.text(3, "Layout"), w.grdLayouts.text(3, "Drawing")], ["Invoices on blank paper", "as it ships"]);
shot("frmLayouts");
w.grdLayouts.row(3);
click(w.cmdWrite);
ok(exists("layouts/crpInvoice.svg"));
ok(w.grdLayouts.text(3, "Drawing").indexOf("crpInvoice.svg") > 0);
box("Layout", "This layout has been written out already. Move your own away to begin again.");
click(w.cmdWrite);
type(w.txtRight, "0.10");
file("Printer", "test.pdf");
click(w.cmdTest);
ok(exists("test.pdf"));
// A bank's numbers put its checks on blank stock.
type(w.txtRouting, "091000023");
type(w.txtAccount, "12345");
box("Bank Line", "This is no routing number: it has nine digits, and one of these is wrong.");
click(w.cmdBankLine);
type(w.txtRouting, "091000022");
click(w.cmdBankLine);
equal(rows("SELECT State FROM GeneralPrefs WHERE Preference = 'BankLine 0SS'"), [{ State: "091000022 12345" }]);
click(w.cmdClose);
equal(log(), []);
