#include "entry/checks/check.h"

#include <algorithm>

#include "core/company/preferences.h"
#include "core/ledger/balances.h"
#include "core/ledger/ledger.h"
#include "core/ledger/settlement.h"
#include "core/ledger/stored_row.h"
#include "core/store/recordset.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

constexpr std::string_view check_types[] = {"Check", "Liabilitycheck", "Paycheck", "Billcheck"};

std::string Default_Bank(Session& session) { return Preference(*session.dbCompany, preference::DefaultBank); }

}  // namespace

// --- banks -----------------------------------------------------------------------------------------------

std::vector<Bank> Banks(Session& session) {
  std::vector<Bank> banks;
  session.dbCompany->each("SELECT CatID, AccountName, Balance FROM Accounts WHERE AccountType = 'Bank'", {},
                          [&](const store::Row& row) {
                            banks.push_back({std::string(row.text(0)), std::string(row.text(1)), row.money(2)});
                          });
  return banks;
}

Bank Read_Bank(Session& session, const std::string& CatID) {
  auto row = session.dbCompany->OpenRecordset("SELECT * FROM Accounts WHERE CatID = ?", {CatID});
  if (!row.has_row()) return {.CatID = CatID};
  return {CatID, row["AccountName"].text(), row["Balance"].money()};
}

// --- loading ---------------------------------------------------------------------------------------------

namespace {

/// Rows of a check in writing order, the bank's row first: it names no item and stands on a bank. Without one it is the
/// first row.
std::vector<LedgerRow> Read_Rows(store::Recordset& rows, const std::vector<Bank>& banks) {
  std::vector<LedgerRow> read;
  for (; !rows.Eof(); rows.MoveNext()) read.push_back(Stored_Row(rows));
  const auto bank = std::ranges::find_if(read, [&](const LedgerRow& row) {
    return row.Item.empty() && row.PayrollItem.empty() &&
           std::ranges::find(banks, row.Account, &Bank::CatID) != banks.end();
  });
  if (bank != read.end()) std::rotate(read.begin(), bank, bank + 1);
  return read;
}

void Read_Head(const LedgerRow& row, Check& check) {
  check.Type = row.Type.value_or("");
  check.BankID = row.Account;
  check.Number = row.Number.value_or("");
  check.Name = row.Name.value_or("");
  check.Address = row.Address.value_or("");
  check.Memo = row.Memo;
  check.Amount = Posted(row, LineSide::Credit);
  check.Cleared = row.Cleared;
  check.kept = std::make_shared<const LedgerRow>(row);
}

void Read_Lines(Session& session, const std::vector<LedgerRow>& rows, Check& check) {
  for (size_t at = 1; at < rows.size(); ++at) {
    if (rows[at].Item.empty())
      check.expenses.push_back(Read_Expense(session, rows[at], rows.front(), LineSide::Debit));
    else
      check.items.push_back(Read_Item(rows[at], rows.front(), LineSide::Debit));
  }
  if (check.expenses.empty() && !check.items.empty()) check.Tab = LineTab::Items;
}

/// The bills that a check paid, each with as much as it paid of it. Of a payment from before that was kept, those that
/// name it alone.
void Read_Bills(Session& session, Check& check) {
  store::Database& db = *session.dbCompany;
  const auto add = [&](store::Recordset bill, std::optional<Money> paid) {
    for (; !bill.Eof(); bill.MoveNext())
      check.bills.push_back({bill["DueDate"].maybe_date(), bill["Number"].text(), bill["Name"].text(),
                             paid ? *paid : bill["Amount"].money(), bill["Date"].maybe_date()});
  };
  for (const Application& paid : Applied_By(db, check.TransNum))
    add(db.OpenRecordset("SELECT * FROM Transactions WHERE TransNum = ? AND Account = 'AP1'", {paid.TransNum}),
        paid.Amount);
  if (check.bills.empty())
    add(db.OpenRecordset("SELECT * FROM Transactions WHERE PaidBy = ? AND Account = 'AP1'", {Paid_By(check.TransNum)}),
        std::nullopt);
}

void Read_Paycheck(const std::vector<LedgerRow>& rows, Check& check) {
  if (rows.size() > 1) check.PayPeriod = rows[1].PayPeriod;
  for (const LedgerRow& row : rows) check.Hours += row.Hours.value_or(0);
}

void Read_Liabilities(const std::vector<LedgerRow>& rows, Check& check) {
  if (rows.size() > 1) check.PaidThrough = rows[1].PaidThrough;
  for (size_t at = 1; at < rows.size(); ++at) {
    const bool payroll = !rows[at].PayrollItem.empty();
    check.has_payroll_items |= payroll;
    check.liabilities.push_back({payroll ? rows[at].PayrollItem : rows[at].Item, rows[at].Amount.value_or(Money())});
  }
}

}  // namespace

Check Open_Checks(Session& session, int64_t TransNum) {
  Update_Accounts(session, Categories::Bank);
  return Open_Document(session, Check_Kind, TransNum);
}

Check New_Check(Session& session) {
  return {.TransNum = Next_TransNum(*session.dbCompany), .BankID = Default_Bank(session), .Date = session.today()};
}

std::optional<Check> Load_Check(Session& session, int64_t TransNum) {
  store::Database& db = *session.dbCompany;
  Check check{.TransNum = TransNum, .Date = session.today(), .probe = Probe::Of(db, TransNum)};
  auto stored = db.OpenRecordset(
      "SELECT * FROM Transactions WHERE TransNum = ? AND Type IN ('Check', 'Liabilitycheck', 'Paycheck', "
      "'Billcheck') ORDER BY RowKey",
      {TransNum});
  if (!stored.has_row()) return std::nullopt;
  check.Date = stored["Date"].date();
  check.loaded = check.Date;
  const std::vector<LedgerRow> rows = Read_Rows(stored, Banks(session));
  Read_Head(rows.front(), check);
  if (check.Type == "Billcheck")
    Read_Bills(session, check);
  else if (check.Type == "Paycheck")
    Read_Paycheck(rows, check);
  else if (check.Type == "Liabilitycheck")
    Read_Liabilities(rows, check);
  else
    Read_Lines(session, rows, check);
  return check;
}

// --- the payee's address ---------------------------------------------------------------------------------

namespace {

std::string Employee_Address(store::Recordset& employee) {
  for (const char* field : {"AddressOne", "City", "State", "Zip"})
    if (employee[field].value().is_null()) return "";
  return employee["Name"].text() + "\r\n" + employee["AddressOne"].text() + "\r\n" + employee["City"].text() + " " +
         employee["State"].text() + ", " + employee["Zip"].text();
}

}  // namespace

std::string Load_Address_Box(Session& session, const std::string& name) {
  if (name.empty()) return "";
  for (const char* list : {"Vendors", "Customers", "Employees"}) {
    auto row = session.dbCompany->OpenRecordset("SELECT * FROM " + std::string(list) + " WHERE Name = ?", {name});
    if (!row.has_row()) continue;
    if (row.has_field("AddressOne")) return Employee_Address(row);
    const bool older = row["ShippingAddress"].blank() && row.has_field("Address");
    return row[older ? "Address" : "ShippingAddress"].text();
  }
  return "";
}

std::string Without_Last_Line_End(std::string address) {
  for (std::string_view end : {"\r\n", "\n"})
    if (address.ends_with(end)) return address.substr(0, address.size() - end.size());
  return address;
}

// --- saving ----------------------------------------------------------------------------------------------

namespace {

std::optional<Fault> Items_Fault(const Check& check) {
  // An item that is in no list would be posted to no category.
  const auto unknown = [](const ItemLine& line) { return !line.blank() && line.CatID.empty(); };
  if (check.items.empty() || check.items.front().Item.empty() || std::ranges::any_of(check.items, unknown))
    return Mistake("Please enter a Item for this Expense", "No Category", "grdItems");
  return std::nullopt;
}

std::optional<Fault> Expenses_Fault(const Check& check) {
  for (const ExpenseLine& line : check.expenses) {
    if (line.Category.empty() && line.Amount)
      return Mistake("Please enter a Category for this Expense", "No Category", "grdExpense");
    // A line that names no category would be left out and the check would not balance.
    if (!check.Valid || (line.CatID.empty() && line.Amount))
      return Mistake("Please enter a Valid Category for this Expense", "No Category", "grdExpense");
  }
  return std::nullopt;
}

std::optional<Fault> Lines_Fault(const Check& check) {
  const bool items = check.Tab == LineTab::Items;
  const char* grid = items ? "grdItems" : "grdExpense";
  if (auto fault = items ? Items_Fault(check) : Expenses_Fault(check)) return fault;
  // Both grids are written, so both count, whichever is in front.
  if (auto fault = Balance_Fault(Sum_Of(check.expenses) + Sum_Of(check.items), *check.Amount, grid)) return fault;
  if (!items && !check.expenses.empty() && check.expenses.back().CatID == check.BankID)
    return Mistake("Cannot Assign Category to Transaction that is also the Category that you are editing.",
                   "Invalid Category", grid);
  return std::nullopt;
}

/// The bank's row: what the check book shows of it, the rest as it was.
LedgerRow Bank_Row(Session& session, const Check& check) {
  LedgerRow row = check.kept ? *check.kept : LedgerRow{};
  row.Account = check.BankID;
  row.Category = Other_Side(session, check.expenses, check.items);
  Post(row, LineSide::Credit, check.Amount);
  row.Memo = check.Memo;
  row.Cleared = check.Cleared;
  row.Type = row.Number = row.Name = row.Address = std::nullopt;  // the head's
  return row;
}

/// A line that was there keeps its own mark: the other bank of a transfer is cleared by itself.
LedgerRow Marked(LedgerRow row, const KeptRow& kept, const Check& check) {
  if (!kept) row.Cleared = check.Cleared;
  return row;
}

void Write_Check(Session& session, Check& check) {
  Transaction_Writer rows(session,
                          {.TransNum = check.TransNum,
                           .Type = "Check",
                           .Date = check.Date,
                           .Number = check.Number,
                           .Name = check.Name,
                           .Address = check.Address},
                          check.probe);
  rows.add(Bank_Row(session, check));
  for (const ExpenseLine& line : check.expenses)
    rows.add(Marked(Expense_Row(session, line, check.BankID, LineSide::Debit), line.kept, check));
  for (const ItemLine& line : check.items)
    rows.add(Marked(Item_Row(line, check.BankID, LineSide::Debit), line.kept, check));
  rows.commit();
  check.TransNum = rows.number();
  check.Type = "Check";
  check.probe = rows.probe();
}

/// What may change here on a check that another window wrote; its amounts and rows stay.
constexpr struct {
  std::string_view Type;
  bool Date, Name;
} narrow_rules[] = {{"Billcheck", false, false}, {"Paycheck", true, false}, {"Liabilitycheck", true, true}};

}  // namespace

CheckFields Editable_Fields(const Check& check) {
  for (const auto& rule : narrow_rules)
    if (rule.Type == check.Type) return {rule.Date, rule.Name, false};
  return {};
}

namespace {

/// Writes what was changed of the few fields. Where another user changed the same, or the check is gone, this save ends:
/// a check must not lose the number that printing gave it meanwhile.
void Rewrite_Narrow(Session& session, Check& check) {
  store::Database& db = *session.dbCompany;
  store::Transaction tx(db, Title_Of_Rows(db, check.TransNum));
  const auto now = Load_Check(session, check.TransNum);
  if (!now || !check.loaded) throw store::Error(store::errors::data_changed, "The check was deleted.");
  FieldValues fields;
  const auto change = [&](const char* name, const auto& typed, const auto& loaded, const auto& stored) {
    if (typed == loaded) return;
    if (stored != loaded) throw store::Error(store::errors::data_changed, "The check was changed.");
    fields.emplace_back(name, typed);
  };
  const CheckFields may = Editable_Fields(check);
  change("Number", check.Number, check.kept->Number.value_or(""), now->Number);
  if (may.Date) change("Date", check.Date, *check.loaded, now->Date);
  if (may.Name) change("Name", check.Name, check.kept->Name.value_or(""), now->Name);
  if (!fields.empty()) Rewrite_Fields(session, check.TransNum, fields);
  tx.commit();
  check = *Load_Check(session, check.TransNum);
}

}  // namespace

namespace {

/// What a person enters of a check.
auto Content_Of(const Check& check) {
  return std::tie(check.BankID, check.Date, check.Number, check.Name, check.Address, check.Memo, check.Amount,
                  check.expenses, check.items);
}

bool Stands_So(Session& session, const Check& check) {
  const auto stored = check.is_new() ? std::nullopt : Load_Check(session, check.TransNum);
  return stored && Content_Of(*stored) == Content_Of(check);
}

}  // namespace

SaveResult Enter_Check(Session& session, Check& check) {
  if ((check.Name.empty() && !check.Amount) || Stands_So(session, check)) return {};
  if (!check.Amount) return {.fault = Mistake("Please enter an amount for this check.", "No Amount", "txtAmount")};
  if (!check.is_narrow()) {
    // A company without a default bank begins its checks without one.
    if (check.BankID.empty())
      return {.fault = Mistake("Please select the bank category this check is paid from.", "No Bank", "cmbAccount")};
    // What the amount proposed on the other tab before an item was chosen is not written and does not count.
    if (check.Tab == LineTab::Items)
      std::erase_if(check.expenses, [](const ExpenseLine& line) { return line.CatID.empty(); });
    if (auto fault = Lines_Fault(check)) return {.fault = fault};
    Drop_Blank_Lines(check.expenses, check.items);
  }
  auto conflict = Save_Or_Conflict([&] {
    if (check.is_narrow())
      Rewrite_Narrow(session, check);
    else
      Write_Check(session, check);
  });
  return {.conflict = conflict, .written = !conflict};
}

std::string Locked_Why(const Check& check) {
  if (check.Type == "Billcheck") return "This check pays bills. Here only its number can be changed.";
  if (check.Type == "Paycheck") return "This is a paycheck. Here only its number and date can be changed.";
  if (check.Type == "Liabilitycheck")
    return "This check pays liabilities. Here only its number, date and payee can be changed.";
  return "";
}

std::optional<Fault> Cannot_Print(const Check& check) {
  if (check.Number != "Print") return std::nullopt;
  return Mistake("Please Enter a check number for this check.", "No Number", "txtNumber");
}

// --- deleting --------------------------------------------------------------------------------------------

const DocumentKind<Check> Check_Kind = {"check", {check_types, 1000}, New_Check, Load_Check, Enter_Check};

Deleted<Check> Delete_Check(Session& session, const Check& check) {
  return Delete_Document(
      session, Check_Kind, check,
      {.question = "Are you sure you want to delete this Check?",
       .spoken = Spoken(check.is_new() ? "the new Check" : check.Type, check.Number, check.Name, check.Amount),
       .cleared = check.Cleared});
}

}  // namespace tallymere
