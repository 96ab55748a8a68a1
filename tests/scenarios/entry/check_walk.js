// Previous and Next: by date, inside the band of numbers, with the sound at the ends.
start();
newCompany("Acme");
other("INSERT INTO Vendors (Name) VALUES ('Acme Supply')");
function write(number, day, type) {
  const fields = "INSERT INTO Transactions (TransNum, Type, Date, Number, Name, Account, Category, Debit, Credit, Amount) ";
  other(fields + "VALUES (?, ?, ?, ?, 'Acme Supply', '0SS', '42SS', 0, 50000, 50000)", number, type, day, "n" + number);
  other(fields + "VALUES (?, ?, ?, ?, 'Acme Supply', '42SS', '0SS', 50000, 0, 50000)", number, type, day, "n" + number);
}
write(10, "2026-02-01", "Check");
write(11, "2026-01-01", "Check");
write(12, "2026-03-01", "Ledger Entry");
write(500, "2026-02-15", "Check");

menu("mnuChecks");
const w = win("frmCheck");
equal(w.txtIndex.value, "501", "one past the highest number of any type");
const today = w.DTPicker1.value;
click(w.cmdPrev);
equal(w.txtIndex.value, "500");
click(w.cmdPrev);
equal(w.txtIndex.value, "10", "by date");
click(w.cmdPrev);
equal(w.txtIndex.value, "11");
equal(sounds(), []);
click(w.cmdPrev);
equal([w.txtIndex.value, w.txtNumber.value], ["11", "n11"], "nothing changes at the first");
equal(sounds(), ["ball_bounce.wav"]);
click(w.cmdNext);
equal(w.txtIndex.value, "10");
click(w.cmdNext);
equal([w.txtIndex.value, w.DTPicker1.value], ["500", "2/15/2026"]);
click(w.cmdNext);
equal([w.txtIndex.value, w.txtNumber.value, w.cmbPayee.value], ["501", "Print", ""]);
equal(w.DTPicker1.value, today);
ok(w.cmbPayee.focused, "ready for the next payee");
click(w.cmdNext);
equal(w.txtIndex.value, "501", "a blank check has none after it");

// A number too far away is out of reach, whatever its date.
write(3000, "2026-02-10", "Check");
click(w.cmdPrev);
click(w.cmdNext);
equal(w.txtIndex.value, "3001");
click(w.cmdPrev);
equal(w.txtIndex.value, "3000");
click(w.cmdPrev);
equal([w.txtIndex.value, sounds().length > 1], ["3000", true]);

// What was only looked at is as it was.
equal(ledger(11).map(function (r) { return [r.Account, r.Amount, r.Number]; }), [["0SS", 5, "n11"], ["42SS", 5, "n11"]]);
equal(log(), []);
