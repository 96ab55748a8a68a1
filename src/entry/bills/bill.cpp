#include "entry/bills/bill.h"

#include <algorithm>

#include "core/ledger/ledger.h"
#include "core/ledger/settlement.h"
#include "core/ledger/stored_row.h"
#include "core/store/recordset.h"
#include "core/values/format.h"

namespace tallymere {
namespace {

constexpr std::string_view bill_types[] = {"Bill", "Credit", "Item Receipt"};

LineSide Line_Side(const Bill& bill) { return bill.credit ? LineSide::Credit : LineSide::Debit; }
LineSide Payable_Side(const Bill& bill) { return bill.credit ? LineSide::Debit : LineSide::Credit; }

std::string Type_Of(const Bill& bill) { return bill.receipt ? "Item Receipt" : bill.credit ? "Credit" : "Bill"; }

}  // namespace

const DocumentKind<Bill> Bill_Kind = {"bill", {bill_types, 0, accounts_payable}, New_Bill, Load_Bill, Enter_Bill};

// --- loading ---------------------------------------------------------------------------------------------

namespace {

/// Rows in writing order, the payable row first.
std::vector<LedgerRow> Read_Rows(store::Recordset& rows) {
  std::vector<LedgerRow> read;
  for (; !rows.Eof(); rows.MoveNext()) read.push_back(Stored_Row(rows));
  const auto payable = std::ranges::find_if(
      read, [](const LedgerRow& row) { return row.Item.empty() && row.Account == accounts_payable; });
  if (payable != read.end()) std::rotate(read.begin(), payable, payable + 1);
  return read;
}

void Read_Head(const LedgerRow& row, Bill& bill) {
  bill.Type = row.Type.value_or("");
  bill.receipt = bill.Type == "Item Receipt";
  // What goes back to the vendor before its credit has come is a receipt on the other side.
  bill.credit = bill.Type == "Credit" || (bill.receipt && !row.Debit.is_zero());
  bill.DueDate = row.DueDate;
  bill.Number = row.Number.value_or("");
  bill.Name = row.Name.value_or("");
  bill.Terms = row.Terms;
  bill.Memo = row.Memo;
  bill.Amount = Posted(row, Payable_Side(bill));
  bill.Paid = row.Paid;
  bill.PaidBy = row.PaidBy;
  bill.kept = std::make_shared<const LedgerRow>(row);
}

void Read_Lines(Session& session, const std::vector<LedgerRow>& rows, Bill& bill) {
  for (size_t at = 1; at < rows.size(); ++at) {
    if (rows[at].Item.empty())
      bill.expenses.push_back(Read_Expense(session, rows[at], rows.front(), Line_Side(bill)));
    else
      bill.items.push_back(Read_Item(rows[at], rows.front(), Line_Side(bill)));
  }
  if (bill.expenses.empty() && !bill.items.empty()) bill.Tab = LineTab::Items;
}

}  // namespace

Bill New_Bill(Session& session) {
  return {.TransNum = Next_TransNum(*session.dbCompany), .Date = session.today(), .DueDate = session.today()};
}

std::optional<Bill> Load_Bill(Session& session, int64_t TransNum) {
  store::Database& db = *session.dbCompany;
  Bill bill{.TransNum = TransNum, .Date = session.today(), .probe = Probe::Of(db, TransNum)};
  auto stored = db.OpenRecordset(
      "SELECT * FROM Transactions WHERE TransNum = ? AND Type IN ('Bill', 'Credit', 'Item Receipt') ORDER BY RowKey",
      {TransNum});
  if (!stored.has_row()) return std::nullopt;
  bill.Date = stored["Date"].date();
  const std::vector<LedgerRow> rows = Read_Rows(stored);
  Read_Head(rows.front(), bill);
  Read_Lines(session, rows, bill);
  return bill;
}

// --- while it is filled in -------------------------------------------------------------------------------

bool Fill_From_Last_Bill(Session& session, Bill& bill) {
  if (bill.Name.empty() || bill.Amount) return false;
  Drop_Blank_Lines(bill.expenses, bill.items);
  if (!bill.expenses.empty() || !bill.items.empty()) return false;
  const int64_t last = session.dbCompany
                           ->value(
                               "SELECT TransNum FROM Transactions WHERE Name = ? AND Type = 'Bill' AND Category = 'AP1'"
                               " ORDER BY Date DESC, TransNum DESC LIMIT 1",
                               {bill.Name})
                           .integer();
  const auto before = last == 0 ? std::nullopt : Load_Bill(session, last);
  if (!before) return false;
  bill.expenses = before->expenses;
  bill.items = before->items;
  for (ExpenseLine& line : bill.expenses) line.kept = nullptr;
  for (ItemLine& line : bill.items) line.kept = nullptr;
  bill.Tab = before->Tab;
  bill.Amount = Sum_Of(bill.expenses) + Sum_Of(bill.items);
  return true;
}

void Take_Up_Orders(Session& session, Bill& bill, const std::vector<int64_t>& indexes) {
  Drop_Blank_Lines(bill.expenses, bill.items);
  for (const PaperLine& ordered : bill.pulled.add(session, indexes)) {
    bill.items.push_back({.Item = ordered.Item,
                          .Description = ordered.Description,
                          .Quantity = ordered.Qty,
                          .Cost = ordered.Rate,
                          .Amount = ordered.Amount,
                          .CatID = Item_Facts(session, ordered.Item).posts_to()});
    bill.Amount = bill.Amount.value_or(Money()) + ordered.Amount.value_or(Money());
    bill.Tab = LineTab::Items;
  }
}

namespace {

std::string Number_Notice(Session& session, const Bill& bill) {
  if (bill.Number.empty() || bill.Name.empty()) return "";
  auto other = session.dbCompany->OpenRecordset(
      "SELECT * FROM Transactions WHERE Name = ? AND Number = ? AND Account = 'AP1' AND Type = 'Bill' AND TransNum <> ?"
      " ORDER BY Date DESC",
      {bill.Name, bill.Number, bill.TransNum});
  if (!other.has_row()) return "";
  return bill.Name + " has a bill " + bill.Number + " already, of " + other["Date"].date().to_text() + " for " +
         Dollar_Text(other["Amount"].money()) + ".";
}

}  // namespace

std::string Bill_Notice(Session& session, const Bill& bill) {
  const std::string notice = bill.credit || bill.receipt ? "" : Number_Notice(session, bill);
  if (!notice.empty() || bill.Name.empty()) return notice;
  if (!session.dbCompany->value("SELECT 1 FROM Vendors WHERE Name = ?", {bill.Name}).is_null()) return "";
  return bill.Name + " is not in the list of vendors.";
}

// --- saving ----------------------------------------------------------------------------------------------

namespace {

auto Content_Of(const Bill& bill) {
  return std::tie(bill.credit, bill.receipt, bill.Date, bill.DueDate, bill.Number, bill.Name, bill.Terms, bill.Memo,
                  bill.Amount, bill.expenses, bill.items);
}

}  // namespace

bool Same_Bill(const Bill& one, const Bill& other) {
  return std::tie(one.Paid, one.PaidBy) == std::tie(other.Paid, other.PaidBy) && Content_Of(one) == Content_Of(other);
}

namespace {

/// Lines that nobody meant: what the amount proposed as an expense before items were chosen. Items that came without
/// their category get it.
void Prepare_Lines(Session& session, Bill& bill) {
  if (bill.Tab == LineTab::Items)
    std::erase_if(bill.expenses, [](const ExpenseLine& line) { return line.Category.empty(); });
  for (ItemLine& line : bill.items)
    if (line.CatID.empty()) line.CatID = Item_Facts(session, line.Item).posts_to();
}

std::optional<Fault> Expenses_Fault(const Bill& bill) {
  const auto nameless = [](const ExpenseLine& line) {
    return line.CatID.empty() && (line.Amount || !line.Category.empty());
  };
  const bool none = bill.expenses.empty() || bill.expenses.front().CatID.empty();
  if ((none && bill.Tab == LineTab::Expenses) || std::ranges::any_of(bill.expenses, nameless))
    return Mistake("Please Select an expense for this Transaction", "No Expense", "grdExpense");
  return std::nullopt;
}

std::optional<Fault> Items_Fault(const Bill& bill) {
  const auto nameless = [](const ItemLine& line) { return line.CatID.empty() && !line.blank(); };
  const bool none = bill.items.empty() || bill.items.front().Item.empty();
  if ((none && bill.Tab == LineTab::Items) || std::ranges::any_of(bill.items, nameless))
    return Mistake("Please Select an item for this Transaction", "No items", "grdItems");
  return std::nullopt;
}

/// Both tabs are written, so both are looked at and both count, whichever is in front.
std::optional<Fault> Lines_Fault(const Bill& bill) {
  if (auto fault = Expenses_Fault(bill)) return fault;
  if (auto fault = Items_Fault(bill)) return fault;
  const Money lines = Sum_Of(bill.expenses) + Sum_Of(bill.items);
  const char* grid = bill.Tab == LineTab::Items ? "grdItems" : "grdExpense";
  if (!bill.Amount || lines != *bill.Amount)
    return Mistake("Transaction does not Balance", "No Balance", bill.Amount ? grid : "txtAmount");
  // A line in accounts payable would count as one more bill.
  if (std::ranges::find(bill.expenses, accounts_payable, &ExpenseLine::CatID) != bill.expenses.end())
    return Mistake("Cannot Assign Category to Transaction that is also the Category that you are editing.",
                   "Invalid Category", "grdExpense");
  return std::nullopt;
}

Box Settled_Box(const Bill& bill, const std::string& verb) {
  return {"This Bill has been paid, are you sure you want to " + verb + " this Bill?", "Bill Paid", Icon::Critical,
          Spoken(bill.Type, bill.Number, bill.Name, bill.Amount)};
}

std::optional<Fault> Settled_Fault(const Bill& bill) {
  if (!bill.is_settled() || Type_Of(bill) == bill.Type) return std::nullopt;
  return Mistake("This Bill has been paid. It stays a bill until its payment is deleted.", "Bill Paid",
                 bill.receipt ? "chkRecipt" : "optBill_0");
}

LedgerRow Payable_Row(Session& session, const Bill& bill) {
  LedgerRow row = bill.kept ? *bill.kept : LedgerRow{};
  row.Account = accounts_payable;
  row.Category = Other_Side(session, bill.expenses, bill.items);
  Post(row, Payable_Side(bill), bill.Amount);
  row.Memo = bill.Memo;
  row.Type = row.Number = row.Name = row.Address = std::nullopt;  // the head's
  return row;
}

LedgerRow Bought_Row(const ItemLine& line, LineSide side) {
  LedgerRow row = Item_Row(line, accounts_payable, side);
  row.Qty = line.Quantity.value_or(0);
  return row;
}

void Write_Bill(Session& session, Bill& bill) {
  const std::string address = bill.kept ? bill.kept->Address.value_or("") : "";
  Transaction_Writer rows(session,
                          {.TransNum = bill.TransNum,
                           .Type = Type_Of(bill),
                           .Date = bill.Date,
                           .Number = bill.Number,
                           .Name = bill.Name,
                           .Address = address},
                          bill.probe);
  const auto add = [&](LedgerRow row) {
    row.DueDate = bill.DueDate;
    row.Terms = bill.Terms;
    row.Paid = bill.Paid;
    row.PaidBy = bill.PaidBy;
    rows.add(std::move(row));
  };
  add(Payable_Row(session, bill));
  for (const ExpenseLine& line : bill.expenses) add(Expense_Row(session, line, accounts_payable, Line_Side(bill)));
  for (const ItemLine& line : bill.items) add(Bought_Row(line, Line_Side(bill)));
  bill.pulled.close(session, rows.number(), bill.Name);
  rows.commit();
  bill.pulled.clear();
  bill.TransNum = rows.number();
  bill.Type = Type_Of(bill);
  bill.probe = rows.probe();
}

}  // namespace

SaveResult Enter_Bill(Session& session, Bill& bill) {
  if (bill.Name.empty() && !bill.Amount) return {};
  if (!bill.is_new()) {
    const auto stored = Load_Bill(session, bill.TransNum);
    if (stored && Content_Of(*stored) == Content_Of(bill)) return {};
  }
  if (bill.Name.empty()) return {.fault = Mistake("Please select a vendor for this bill.", "No Vendor", "cmbVendor")};
  Prepare_Lines(session, bill);
  if (auto fault = Lines_Fault(bill)) return {.fault = fault};
  if (auto fault = Settled_Fault(bill)) return {.fault = fault};
  if (!bill.pulled.are_open(session, bill.Name))
    return {.fault =
                Mistake("Another user has taken up one of the purchase orders of this bill.", "Open POs", "cmbVendor")};
  if (bill.is_settled() && !session.prompts.ask(Settled_Box(bill, "change"), Buttons::YesNoDefaultNo))
    return {.declined = true};
  Drop_Blank_Lines(bill.expenses, bill.items);
  auto conflict = Save_Or_Conflict([&] { Write_Bill(session, bill); });
  return {.conflict = conflict, .written = !conflict};
}

// --- deleting --------------------------------------------------------------------------------------------

Deleted<Bill> Delete_Bill(Session& session, const Bill& bill) {
  Deletion deletion{.question = "Are you sure you want to delete this Bill?",
                    .spoken = Spoken(bill.is_new() ? "the new Bill" : bill.Type, bill.Number, bill.Name, bill.Amount)};
  if (bill.is_settled()) deletion.more = {Settled_Box(bill, "delete")};
  return Delete_Document(session, Bill_Kind, bill, deletion);
}

// --- receipts --------------------------------------------------------------------------------------------

std::vector<OpenReceipt> Open_Receipts(Session& session) {
  std::vector<OpenReceipt> receipts;
  session.dbCompany->each(
      "SELECT Number, Name, Amount, TransNum FROM Transactions WHERE Type = 'Item Receipt' AND Account = 'AP1'"
      " AND Paid = False ORDER BY Date, TransNum",
      {}, [&](const store::Row& row) {
        receipts.push_back({std::string(row.text(0)), std::string(row.text(1)), row.money(2), row.integer(3)});
      });
  return receipts;
}

}  // namespace tallymere
