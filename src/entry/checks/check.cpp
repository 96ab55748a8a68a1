#include "entry/checks/check.h"

#include <algorithm>

#include "core/ledger/balances.h"
#include "core/ledger/ledger.h"
#include "core/store/recordset.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

constexpr std::string_view check_types[] = {"Check", "Liabilitycheck", "Paycheck", "Billcheck"};
constexpr Walk check_walk{check_types, 1000};

std::string Default_Bank(Session& session) {
  return session.dbCompany->value("SELECT State FROM GeneralPrefs WHERE Preference = 'DefaultBank'").text();
}

std::optional<Money> Amount_In(store::Recordset& row, std::string_view field) {
  return row[field].blank() ? std::nullopt : std::optional(row[field].money());
}

/// "1042;", as a bill that this payment settled names it.
std::string Paid_By(int64_t TransNum) { return std::to_string(TransNum) + ";"; }

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

void Read_Head(store::Recordset& row, Check& check) {
  check.Type = row["Type"].text();
  check.BankID = row["Account"].text();
  check.Date = row["Date"].date();
  check.Number = row["Number"].text();
  check.Name = row["Name"].text();
  check.Address = row["Address"].text();
  check.Memo = row["Memo"].text();
  check.Amount = Amount_In(row, "Amount");
  check.Cleared = row["Cleared"].flag();
}

void Read_Expense(Session& session, store::Recordset& row, Check& check) {
  check.expenses.push_back({.Category = Category_Name(session, row["Account"].text()),
                            .Amount = Amount_In(row, "Amount"),
                            .Memo = row["Memo"].text(),
                            .Customer = row["SourceName"].text(),
                            .Class = row["Class"].text(),
                            .CatID = row["Account"].text()});
}

void Read_Item(store::Recordset& row, Check& check) {
  check.items.push_back({.Item = row["Item"].text(),
                         .Description = row["ItemDescription"].text(),
                         .Quantity = row["Qty"].blank() ? std::nullopt : std::optional(row["Qty"].number()),
                         .Cost = Amount_In(row, "SalePrice"),
                         .Amount = Amount_In(row, "Amount"),
                         .Customer = row["SourceName"].text(),
                         .Class = row["Class"].text(),
                         .CatID = row["Account"].text()});
}

void Read_Lines(Session& session, store::Recordset& rows, Check& check) {
  for (; !rows.Eof(); rows.MoveNext()) {
    if (rows["Item"].blank())
      Read_Expense(session, rows, check);
    else
      Read_Item(rows, check);
  }
  if (check.expenses.empty() && !check.items.empty()) check.Tab = CheckTab::Items;
}

void Read_Bills(Session& session, Check& check) {
  auto bills = session.dbCompany->OpenRecordset("SELECT * FROM Transactions WHERE PaidBy = ? AND Account = 'AP1'",
                                                {Paid_By(check.TransNum)});
  for (; !bills.Eof(); bills.MoveNext())
    check.bills.push_back({bills["DueDate"].maybe_date(), bills["Number"].text(), bills["Name"].text(),
                           bills["Amount"].money(), bills["Date"].maybe_date()});
}

void Read_Paycheck(Session& session, store::Recordset& rows, Check& check) {
  if (!rows.Eof()) check.PayPeriod = rows["PayPeriod"].text();
  check.Hours =
      session.dbCompany->value("SELECT SUM(Hours) FROM Transactions WHERE TransNum = ?", {check.TransNum}).number();
}

void Read_Liabilities(store::Recordset& rows, Check& check) {
  if (!rows.Eof()) check.PaidThrough = rows["PaidThrough"].maybe_date();
  for (; !rows.Eof(); rows.MoveNext()) {
    const bool payroll = !rows["PayrollItem"].blank();
    check.has_payroll_items |= payroll;
    check.liabilities.push_back({rows[payroll ? "PayrollItem" : "Item"].text(), rows["Amount"].money()});
  }
}

}  // namespace

Check Open_Checks(Session& session, int64_t TransNum) {
  Update_Accounts(session, Categories::Bank);
  auto asked = TransNum == 0 ? std::nullopt : Load_Check(session, TransNum);
  return asked ? std::move(*asked) : New_Check(session);
}

Check New_Check(Session& session) {
  return {.TransNum = Next_TransNum(*session.dbCompany), .BankID = Default_Bank(session), .Date = session.today()};
}

std::optional<Check> Load_Check(Session& session, int64_t TransNum) {
  store::Database& db = *session.dbCompany;
  Check check{.TransNum = TransNum, .Date = session.today(), .probe = Probe::Of(db, TransNum)};
  // The bank's row comes first: it names no item, and nothing is debited there. Negative lines stay behind
  // it.
  auto rows = db.OpenRecordset(
      "SELECT * FROM Transactions WHERE TransNum = ? AND Type IN ('Check', 'Liabilitycheck', 'Paycheck', "
      "'Billcheck') ORDER BY Item, PayrollItem, Debit < 0, Debit, RowKey",
      {TransNum});
  if (!rows.has_row()) return std::nullopt;
  Read_Head(rows, check);
  rows.MoveNext();
  if (check.Type == "Billcheck")
    Read_Bills(session, check);
  else if (check.Type == "Paycheck")
    Read_Paycheck(session, rows, check);
  else if (check.Type == "Liabilitycheck")
    Read_Liabilities(rows, check);
  else
    Read_Lines(session, rows, check);
  return check;
}

CheckStep Load_Check(Session& session, int64_t TransNum, bool forward) {
  const Step step = Walk_From(session, check_walk, TransNum, forward);
  switch (step.arrival) {
    case Arrival::Document:
      return {Load_Check(session, step.TransNum)};
    case Arrival::New:
      return {New_Check(session)};
    case Arrival::Stay:
      break;
  }
  return {.bounce = step.bounce};
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
  const bool items = check.Tab == CheckTab::Items;
  const char* grid = items ? "grdItems" : "grdExpense";
  if (auto fault = items ? Items_Fault(check) : Expenses_Fault(check)) return fault;
  // Both grids are written, so both count, whichever is in front.
  if (auto fault = Balance_Fault(Sum_Of(check.expenses) + Sum_Of(check.items), *check.Amount, grid)) return fault;
  if (!items && !check.expenses.empty() && check.expenses.back().CatID == check.BankID)
    return Mistake("Cannot Assign Category to Transaction that is also the Category that you are editing.",
                   "Invalid Category", grid);
  return std::nullopt;
}

/// What the bank's row names as the other side.
std::string Other_Side(Session& session, const Check& check) {
  const bool split = check.Tab == CheckTab::Items || check.expenses.size() > 1 || !check.items.empty();
  if (split) return std::string(break_down);
  return check.expenses.empty() ? "" : Get_Postable_Category(session, check.expenses.front().CatID);
}

void Write_Check(Session& session, Check& check) {
  Transaction_Writer rows(session,
                          {.TransNum = check.TransNum,
                           .Type = "Check",
                           .Date = check.Date,
                           .Number = check.Number,
                           .Name = check.Name,
                           .Address = check.Address,
                           .Cleared = check.Cleared},
                          check.probe);
  rows.add({.Account = check.BankID,
            .Category = Other_Side(session, check),
            .Credit = *check.Amount,
            .Amount = check.Amount,
            .Memo = check.Memo});
  for (const ExpenseLine& line : check.expenses)
    rows.add({.Account = Get_Postable_Category(session, line.CatID),
              .Category = check.BankID,
              .Debit = line.Amount.value_or(Money()),
              .Amount = line.Amount,
              .Memo = line.Memo,
              .SourceName = line.Customer,
              .Class = line.Class});
  for (const ItemLine& line : check.items)
    rows.add({.Account = line.CatID,
              .Category = check.BankID,
              .Debit = line.Amount.value_or(Money()),
              .Amount = line.Amount,
              .SourceName = line.Customer,
              .Class = line.Class,
              .Item = line.Item,
              .ItemDescription = line.Description,
              .Qty = line.Quantity,
              .SalePrice = line.Cost});
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

void Rewrite_Narrow(Session& session, const Check& check) {
  FieldValues fields = {{"Number", check.Number}};
  const CheckFields may = Editable_Fields(check);
  if (may.Date) fields.emplace_back("Date", check.Date);
  if (may.Name) fields.emplace_back("Name", check.Name);
  // The year it leaves must be balanced again as well as the one it comes to.
  auto was = session.dbCompany->value("SELECT Date FROM Transactions WHERE TransNum = ?", {check.TransNum});
  if (auto date = was.maybe_date()) Set_Recalc_If_Other_Year(session, *date);
  Rewrite_Fields(session, check.TransNum, fields);
}

void Drop_Blank_Lines(Check& check) {
  std::erase_if(check.expenses, [](const ExpenseLine& line) { return line.CatID.empty(); });
  std::erase_if(check.items, [](const ItemLine& line) { return line.blank(); });
}

}  // namespace

SaveResult Enter_Check(Session& session, Check& check) {
  if (check.Name.empty() && !check.Amount) return {};
  if (!check.Amount) return {.fault = Mistake("Please enter an amount for this check.", "No Amount", "txtAmount")};
  Set_Recalc_If_Other_Year(session, check.Date);
  if (!check.is_narrow()) {
    // A company without a default bank begins its checks without one.
    if (check.BankID.empty())
      return {.fault = Mistake("Please select the bank category this check is paid from.", "No Bank", "cmbAccount")};
    // What the amount proposed on the other tab before an item was chosen is not written and does not count.
    if (check.Tab == CheckTab::Items)
      std::erase_if(check.expenses, [](const ExpenseLine& line) { return line.CatID.empty(); });
    if (auto fault = Lines_Fault(check)) return {.fault = fault};
    Drop_Blank_Lines(check);
  }
  auto conflict = Save_Or_Conflict([&] {
    if (check.is_narrow())
      Rewrite_Narrow(session, check);
    else
      Write_Check(session, check);
  });
  return {.conflict = conflict, .written = !conflict};
}

std::optional<Fault> Cannot_Print(const Check& check) {
  if (check.Number != "Print") return std::nullopt;
  return Mistake("Please Enter a check number for this check.", "No Number", "txtNumber");
}

// --- deleting --------------------------------------------------------------------------------------------

namespace {

void Delete_And_Free_Bills(Session& session, const Check& check) {
  store::Database& db = *session.dbCompany;
  store::Transaction tx(db, "Deleted " + check.Type + " " + check.Number + ", " + check.Name);
  db.Execute(
      "UPDATE Transactions SET Paid = False, PaidBy = NULL WHERE Type = 'Bill' AND Paid = True AND PaidBy = "
      "?",
      {Paid_By(check.TransNum)});
  Delete_Transaction(session, check.TransNum);
  tx.commit();
}

}  // namespace

DeleteResult Delete_Check(Session& session, const Check& check) {
  const std::string spoken =
      Spoken(check.is_new() ? "the new Check" : check.Type, check.Number, check.Name, check.Amount);
  if (!Confirm_Delete(session.prompts, "Are you sure you want to delete this Check?", check.Cleared, spoken)) return {};
  auto previous = Load_Check(session, check.TransNum, false).check;
  auto conflict = Save_Or_Conflict([&] {
    // The number of a check that was never saved may be another user's by now.
    if (!check.probe.is_new()) Delete_And_Free_Bills(session, check);
  });
  if (conflict) return {.conflict = conflict};
  return {.deleted = true, .show = previous ? std::move(previous) : New_Check(session)};
}

}  // namespace tallymere
